// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// Messages as protocol buffers lay them out, field by field.
namespace message_bytes {

inline QByteArray varint(quint64 value)
{
    QByteArray bytes;
    for (; value >= 0x80; value >>= 7) {
        bytes.append(static_cast<char>((value & 0x7F) | 0x80));
    }
    return bytes.append(static_cast<char>(value));
}

/// A field that holds a text or another message.
inline QByteArray field(quint64 number, const QByteArray& content)
{
    return varint(number << 3 | 2) + varint(static_cast<quint64>(content.size())) + content;
}

inline QByteArray numberField(quint64 number, quint64 value)
{
    return varint(number << 3) + varint(value);
}

} // namespace message_bytes
