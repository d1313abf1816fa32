// SPDX-License-Identifier: MIT
#pragma once

#include <QTextStream>

/// UTF-8 without a mark. False when the stream will not have it.
inline bool setUtf8(QTextStream& stream)
{
    stream.setCodec("UTF-8");
    return stream.status() == QTextStream::Ok;
}
