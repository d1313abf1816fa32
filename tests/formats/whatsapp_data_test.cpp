// SPDX-License-Identifier: MIT
#include "formats/whatsapp_data.h"
#include "support/message_bytes.h"

#include <gtest/gtest.h>

namespace {

using message_bytes::field;
using message_bytes::numberField;

std::span<const unsigned char> spanOf(const QByteArray& bytes)
{
    return {reinterpret_cast<const unsigned char*>(bytes.constData()),
        static_cast<std::size_t>(bytes.size())};
}

const QByteArray kQuote = field(5, "3EB0A1") + field(6, "491715550101@s.whatsapp.net")
                          + field(7, "1203@g.us") + numberField(17, 2);

TEST(WhatsAppData, MetadataTellsOfTheQuotedMessage)
{
    const auto metadata = formats::whatsAppMetadata(spanOf(kQuote + field(19, field(1, "Grüße"))));
    EXPECT_EQ(metadata.quotedId, "3EB0A1");
    EXPECT_EQ(metadata.quotedSender, "491715550101@s.whatsapp.net");
    EXPECT_EQ(metadata.quotedText, "Grüße");
    EXPECT_TRUE(metadata.forwarded);
}

TEST(WhatsAppData, QuotedTextMayStandWithItsLink)
{
    const QByteArray content = field(6, field(1, "See https://example.org"));
    EXPECT_EQ(formats::whatsAppMetadata(spanOf(field(19, content))).quotedText,
        "See https://example.org");
    // A picture has neither.
    EXPECT_EQ(formats::whatsAppMetadata(spanOf(field(19, field(3, "\x0A\x01")))).quotedText, "");
}

TEST(WhatsAppData, ReactionsOfOthersAndTheOwnersAreCounted)
{
    const auto other = [](const QByteArray& emoji) {
        return field(1, field(1, "key") + field(2, "49171@s.whatsapp.net") + field(3, emoji)
                            + numberField(4, 1'700'000'000'000));
    };
    const QByteArray own = field(2, field(1, "key") + field(2, "❤") + numberField(3, 5));
    const QByteArray takenBack = other("");
    const auto receipts =
        formats::whatsAppReceipts(spanOf(field(7, other("👍") + other("😂") + takenBack + own)));
    EXPECT_EQ(receipts.reactions, 3);
}

TEST(WhatsAppData, PollHasQuestionAndOptions)
{
    const auto receipts = formats::whatsAppReceipts(spanOf(field(
        8, field(2, "Cinema?") + field(3, field(1, "Friday")) + field(3, field(1, "Saturday")))));
    EXPECT_EQ(receipts.pollQuestion, "Cinema?");
    EXPECT_EQ(receipts.pollOptions, QStringList({"Friday", "Saturday"}));
}

TEST(WhatsAppData, DamagedBytesSayNothing)
{
    const QByteArray quote = kQuote + field(19, field(1, "text"));
    for (int size = 0; size < quote.size(); ++size) {
        SCOPED_TRACE(size);
        const auto metadata = formats::whatsAppMetadata(spanOf(quote.left(size)));
        EXPECT_TRUE(metadata.quotedId.empty() || metadata.quotedId == "3EB0A1");
        EXPECT_TRUE(metadata.quotedText.isEmpty());
    }
    for (const QByteArray& bytes : {QByteArray("\xFF\xFF\xFF\xFF"), QByteArray("not a message"),
             field(7, "\xFF"), field(8, "\x12\x7F"), numberField(7, 3), numberField(8, 3)}) {
        SCOPED_TRACE(bytes.toHex().toStdString());
        const auto receipts = formats::whatsAppReceipts(spanOf(bytes));
        EXPECT_EQ(receipts.reactions, 0);
        EXPECT_EQ(receipts.pollQuestion, "");
        EXPECT_EQ(formats::whatsAppMetadata(spanOf(bytes)).quotedId, "");
    }
}

TEST(WhatsAppData, EncodedMessageIsNoName)
{
    const QByteArray message = field(1, "Ben") + field(2, "4915551234567") + numberField(3, 7);
    EXPECT_TRUE(formats::isEncodedMessage(QString::fromLatin1(message.toBase64())));
    for (const QString& name : {QString("Ben"), QString("Ben Carter"), QString("AnnaMariaLouise1"),
             QString("محمد"), QString("Maximilian Alexander"), QString()}) {
        SCOPED_TRACE(name.toStdString());
        EXPECT_FALSE(formats::isEncodedMessage(name));
    }
}

} // namespace
