// SPDX-License-Identifier: MIT
// Messages of whatsapp.proto:
//   Metadata     {quoted_id "3EB0A1", quoted_sender "4917...@s.whatsapp.net", forwarded 1}
//   ReceiptInfo  reactions  {others {sender, emoji}, own {emoji}}
//                poll       {question "Cinema?", option {text "Friday"}}
#include "formats/whatsapp_data.h"

#include "formats/cocoa_values.h"

#include <QByteArray>

#include <algorithm>
#include <whatsapp.pb.h>

namespace formats {

namespace {

// Shorter texts are names that happen to be base64.
constexpr int kShortestEncoded = 16;

template <typename Message> Message messageOf(std::span<const unsigned char> bytes)
{
    Message message;
    if (!message.ParseFromArray(bytes.data(), static_cast<int>(bytes.size()))) {
        message.Clear(); // half of a damaged one is no better
    }
    return message;
}

// A picture's caption has another place: no text, no harm.
QString textOf(const std::string& quoted)
{
    whatsapp::Content content;
    if (quoted.empty() || !content.ParseFromString(quoted)) {
        return {};
    }
    return utf8Text(content.has_text() ? content.text() : content.linked_text().text());
}

} // namespace

WhatsAppMetadata whatsAppMetadata(std::span<const unsigned char> bytes)
{
    const auto metadata = messageOf<whatsapp::Metadata>(bytes);
    return {
        .quotedId = metadata.quoted_id(),
        .quotedSender = utf8Text(metadata.quoted_sender()),
        .quotedText = textOf(metadata.quoted_content()),
        .forwarded = metadata.forwarded() > 0,
    };
}

WhatsAppReceipts whatsAppReceipts(std::span<const unsigned char> bytes)
{
    const auto info = messageOf<whatsapp::ReceiptInfo>(bytes);
    const auto stands = [](const auto& reaction) { return !reaction.emoji().empty(); };
    const whatsapp::Reactions& reactions = info.reactions();
    WhatsAppReceipts receipts{
        .reactions = static_cast<int>(std::ranges::count_if(reactions.others(), stands)
                                      + std::ranges::count_if(reactions.own(), stands)),
        .pollQuestion = utf8Text(info.poll().question()),
        .pollOptions = {},
    };
    for (const whatsapp::PollOption& option : info.poll().option()) {
        receipts.pollOptions.append(utf8Text(option.text()));
    }
    return receipts;
}

bool isEncodedMessage(const QString& text)
{
    if (text.size() < kShortestEncoded) {
        return false;
    }
    const auto decoded = QByteArray::fromBase64Encoding(
        text.toUtf8(), QByteArray::Base64Encoding | QByteArray::AbortOnBase64DecodingErrors);
    whatsapp::Anything message;
    return decoded.decodingStatus == QByteArray::Base64DecodingStatus::Ok
           && message.ParseFromArray(decoded.decoded.constData(), decoded.decoded.size());
}

} // namespace formats
