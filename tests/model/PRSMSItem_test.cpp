// SPDX-License-Identifier: MIT
#include "model/PRSMSItem.h"

#include <QDateTime>
#include <QMap>

#include <gtest/gtest.h>

#include <utility>

namespace {

SmsMessage withPiece(const QString& content)
{
    SmsMessage message{.content = content};
    message.pieces.emplace_back(SmsPiece{.type = "image/jpeg", .info = content + ".jpg"});
    return message;
}

} // namespace

TEST(PRSMSPiece, HasWhatItIsFilledWith)
{
    const PRSMSPiece piece({.type = "image/jpeg",
        .location = true,
        .data = "bytes",
        .path = "/p/file",
        .preview = "/p/preview",
        .info = "file.jpg"});
    EXPECT_EQ(piece.pieceType(), "image/jpeg");
    EXPECT_TRUE(piece.isLocation());
    EXPECT_EQ(piece.pieceData(), "bytes");
    EXPECT_EQ(piece.pieceLocation(), "/p/file");
    EXPECT_EQ(piece.piecePreviewFile(), "/p/preview");
    EXPECT_EQ(piece.pieceInfo(), "file.jpg");
    EXPECT_FALSE(PRSMSPiece().isLocation());
}

TEST(PRSMSChat, HasWhatItIsFilledWith)
{
    const QDateTime date(QDate(2024, 5, 1), QTime(12, 0), Qt::UTC);
    const PRSMSChat chat(SmsMessage{.checked = false,
        .fromMe = true,
        .sentDone = false,
        .normalSMS = false,
        .date = date,
        .itemType = 3,
        .event = "Anna left",
        .subject = "subject",
        .content = "content",
        .addr = "+49 1"});
    EXPECT_FALSE(chat.isChecked());
    EXPECT_TRUE(chat.isFromMe());
    EXPECT_FALSE(chat.isSentDone());
    EXPECT_FALSE(chat.isNormalSMS());
    EXPECT_EQ(chat.msgDate(), date);
    EXPECT_EQ(chat.itemType(), 3);
    EXPECT_EQ(chat.msgForEvent({}), "Anna left");
    EXPECT_EQ(chat.msgForEvent({{"+49 1", "Anna"}}), "Anna left");
    EXPECT_EQ(chat.subject(), "subject");
    EXPECT_EQ(chat.content(), "content");
    EXPECT_EQ(chat.addr(), "+49 1");
    EXPECT_TRUE(chat.pieces().isEmpty());
}

TEST(PRSMSChat, IsAWantedSentMessageWithContentByDefault)
{
    const PRSMSChat chat;
    EXPECT_TRUE(chat.isChecked());
    EXPECT_FALSE(chat.isFromMe());
    EXPECT_TRUE(chat.isSentDone());
    EXPECT_TRUE(chat.isNormalSMS());
    EXPECT_FALSE(chat.msgDate().isValid());
    EXPECT_EQ(chat.itemType(), 0);
}

TEST(PRSMSChat, ACopyHasPiecesOfItsOwn)
{
    const PRSMSChat chat(withPiece("a"));
    const PRSMSChat copy(chat); // NOLINT(performance-unnecessary-copy-initialization): the claim
    ASSERT_EQ(copy.pieces().size(), 1);
    EXPECT_NE(copy.pieces().at(0), chat.pieces().at(0));
    EXPECT_EQ(copy.pieces().at(0)->pieceInfo(), "a.jpg");
}

TEST(PRSMSChat, KeepsItsPiecesWhenItMoves)
{
    PRSMSChat chat(withPiece("a"));
    PRSMSChat moved(std::move(chat));
    ASSERT_EQ(moved.pieces().size(), 1);
    EXPECT_EQ(moved.pieces().at(0)->pieceInfo(), "a.jpg");
    PRSMSChat assigned(withPiece("b"));
    assigned = std::move(moved);
    ASSERT_EQ(assigned.pieces().size(), 1);
    EXPECT_EQ(assigned.pieces().at(0)->pieceInfo(), "a.jpg");
}

TEST(PRSMSItem, KeepsItsMessagesInOrder)
{
    SmsConversation conversation;
    conversation.addrIds = {{"+49 1", "Anna"}};
    for (int i = 0; i < 50; ++i) { // grows several times
        conversation.chats.emplace_back(withPiece(QString::number(i)));
    }
    const PRSMSItem item({.values = {"Anna", "+49 1", "a@b"}}, std::move(conversation));
    ASSERT_NE(item.detailContent(), nullptr);
    const PRSMSChatGroup& group = *item.detailContent();
    EXPECT_EQ(group.addrIds().value("+49 1"), "Anna");
    ASSERT_EQ(group.chats().size(), 50);
    for (int i = 0; i < 50; ++i) {
        EXPECT_EQ(group.chats().at(i)->content(), QString::number(i));
        ASSERT_EQ(group.chats().at(i)->pieces().size(), 1);
        EXPECT_EQ(group.chats().at(i)->pieces().at(0)->pieceInfo(), QString::number(i) + ".jpg");
    }
    EXPECT_EQ(item.value(2), "a@b");
}

TEST(PRSMSItem, IsAnEmptyConversationByDefault)
{
    const PRSMSItem item;
    ASSERT_NE(item.detailContent(), nullptr);
    EXPECT_TRUE(item.detailContent()->chats().isEmpty());
    EXPECT_TRUE(item.detailContent()->addrIds().isEmpty());
}
