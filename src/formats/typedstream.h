// SPDX-License-Identifier: MIT
#pragma once

#include "formats/Result.h"

#include <QString>
#include <QVariantMap>

#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace formats {

/// A stretch of an attributed text with the same attributes.
struct TextRun {
    int start = 0;  ///< UTF-16 units
    int length = 0; ///< UTF-16 units
    /// By name; NSNumber is a qlonglong or double, NSString and NSURL a QString, NSData a
    /// QByteArray, NSDictionary a QVariantMap, NSArray a QVariantList.
    QVariantMap attributes;
};

struct AttributedText {
    QString text;
    std::vector<TextRun> runs; ///< their lengths sum up to the text's at most
};

/// Reads an archived NSAttributedString (or a plain NSString). Where the runs cannot be read, the
/// text alone is given; an Error only where there is no text.
Result<AttributedText> parseTypedstream(std::span<const unsigned char> bytes);

/// The text alone, in UTF-8, as a view into `bytes`; nothing is built. None where there is no text.
std::optional<std::string_view> typedstreamText(std::span<const unsigned char> bytes);

} // namespace formats
