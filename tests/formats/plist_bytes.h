// SPDX-License-Identifier: MIT
#pragma once

#include "stream_bytes.h"

#include <QByteArray>

/// `size` bytes, big-endian.
inline QByteArray bigEndian(quint64 value, int size)
{
    QByteArray bytes;
    for (int i = size - 1; i >= 0; --i) {
        bytes.append(static_cast<char>(value >> (8 * i) & 0xFF));
    }
    return bytes;
}

inline QByteArray drawnArray(std::string_view picture)
{
    const Bytes bytes = drawn(picture);
    return {reinterpret_cast<const char*>(bytes.data()), static_cast<int>(bytes.size())};
}

/// A binary property list of these objects, the first being the root. References have
/// `referenceSize` bytes.
inline QByteArray binaryPlist(const QList<QByteArray>& objects, int referenceSize = 1)
{
    QByteArray list("bplist00");
    QByteArray offsets;
    for (const QByteArray& object : objects) {
        offsets += bigEndian(static_cast<quint64>(list.size()), 4);
        list += object;
    }
    const auto table = static_cast<quint64>(list.size());
    return list + offsets + QByteArray(6, '\0') + bigEndian(4, 1)
           + bigEndian(static_cast<quint64>(referenceSize), 1)
           + bigEndian(static_cast<quint64>(objects.size()), 8) + bigEndian(0, 8)
           + bigEndian(table, 8);
}

inline QByteArray xmlPlist(const QByteArray& value)
{
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
)" + value + "\n</plist>\n";
}
