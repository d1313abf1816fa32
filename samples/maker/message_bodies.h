// SPDX-License-Identifier: MIT
#pragma once

#include "AttributedText.h"
#include "Conversations.h"

namespace sample {

/// One file of a message.
struct MessageFile {
    QString guid; ///< as the body names it
    QString name; ///< for people
    int part = 0; ///< where in the body it stands
};

/// Text as it was first sent: one U+FFFC for each file.
QString originalText(const Message& message);
/// Text as it is now: after edits, and the words that stand for a tapback.
QString currentText(const Message& message, const Conversations& all);

/// The files of a message, in order.
std::vector<MessageFile> filesOf(const Message& message);

/// `text` as a body: parts, files, link and mention.
AttributedText bodyOf(const Message& message, const QString& text);

/// The property list with the earlier texts; empty for a message that was not changed.
QByteArray summaryOf(const Message& message);

/// The archive with the preview of a link; empty where there is none.
QByteArray linkPreviewOf(const Message& message);

/// Number of a tapback by its name ("loved"), 2006 for an emoji.
int tapbackType(const Message& message);

} // namespace sample
