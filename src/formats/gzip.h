// SPDX-License-Identifier: MIT
#pragma once

#include "formats/Result.h"

#include <QByteArray>

#include <span>

namespace formats {

/// The contents of one gzip or zlib stream. An Error where it is damaged, cut off, or holds more
/// than `limit` bytes; what lies behind the stream is ignored.
Result<QByteArray> inflated(std::span<const unsigned char> bytes, int limit);

} // namespace formats
