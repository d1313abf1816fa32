// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <span>
#include <string>

namespace formats {

/// What a message says of those that it repeats.
struct WhatsAppMetadata {
    std::string quotedId; ///< of the message that it answers; empty for none
    QString quotedSender; ///< an address
    QString quotedText;   ///< empty where the quoted message is no text
    bool forwarded = false;
};

/// What others made of a message.
struct WhatsAppReceipts {
    int reactions = 0;
    QString pollQuestion;
    QStringList pollOptions;
};

/// Bytes that are not of the kind are taken for a message that says nothing.
WhatsAppMetadata whatsAppMetadata(std::span<const unsigned char> bytes);
WhatsAppReceipts whatsAppReceipts(std::span<const unsigned char> bytes);

/// Whether a text is no text, but bytes of a message in base64: recent releases put such into the
/// place of names.
bool isEncodedMessage(const QString& text);

} // namespace formats
