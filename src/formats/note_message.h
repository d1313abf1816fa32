// SPDX-License-Identifier: MIT
#pragma once

#include "formats/gzip.h"

#include <span>

namespace formats {

/// The largest body of a note that is read, decompressed. A note of a million words with all its
/// runs and history stays far below; a few kilobytes that unfold to gigabytes do not.
inline constexpr int kLargestNote = 64 << 20;

/// A message out of its compressed bytes.
template <typename Message> Result<Message> noteMessage(std::span<const unsigned char> bytes)
{
    const auto plain = inflated(bytes, kLargestNote);
    if (!plain) {
        return plain.error();
    }
    Message message;
    if (!message.ParseFromArray(plain->constData(), plain->size())) {
        return Error{.what = QStringLiteral("its structure is damaged")};
    }
    return message;
}

} // namespace formats
