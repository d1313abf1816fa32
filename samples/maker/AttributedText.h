// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <QVariant>

#include <utility>
#include <vector>

namespace sample {

/// A text whose stretches carry attributes, as a message's body is stored.
struct AttributedText {
    /// Values are whole numbers (NSNumber), QString (NSString) and QUrl (NSURL).
    using Attributes = std::vector<std::pair<QByteArray, QVariant>>;
    struct Run {
        int length = 0; ///< UTF-16 units
        Attributes attributes;
    };
    QString text;
    std::vector<Run> runs; ///< their lengths sum up to the text's
};

/// The typedstream of an NSAttributedString.
QByteArray typedstream(const AttributedText& body);

} // namespace sample
