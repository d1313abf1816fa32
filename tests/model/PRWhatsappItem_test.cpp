// SPDX-License-Identifier: MIT
#include "model/PRWhatsappItem.h"

#include <QDateTime>

#include <gtest/gtest.h>

#include <utility>
#include <vector>

TEST(PRWhatsappMsg, HasWhatItIsFilledWith)
{
    const QDateTime date(QDate(2024, 5, 1), QTime(12, 0), Qt::UTC);
    const PRWhatsappMsg message({.checked = false,
        .type = 8,
        .fromMe = true,
        .sentDone = false,
        .date = date,
        .content = "content",
        .member = "Anna",
        .media = "/m/file",
        .thumbData = true,
        .broadcast = true,
        .drawLike = true,
        .likeType = 2,
        .likeCount = 5});
    EXPECT_FALSE(message.isChecked());
    EXPECT_EQ(message.type(), MsgType::Document);
    EXPECT_TRUE(message.isFromMe());
    EXPECT_FALSE(message.isSentDone());
    EXPECT_EQ(message.msgDate(), date);
    EXPECT_EQ(message.content(), "content");
    EXPECT_EQ(message.member(), "Anna");
    EXPECT_EQ(message.media(), "/m/file");
    EXPECT_TRUE(message.isReadThumbFileData());
    EXPECT_TRUE(message.isBroadcast());
    EXPECT_TRUE(message.isDrawLike());
    EXPECT_EQ(message.getLikeType(), 2);
    EXPECT_EQ(message.getLikeCount(), 5);
}

TEST(PRWhatsappMsg, IsAWantedSentTextByDefault)
{
    const PRWhatsappMsg message;
    EXPECT_TRUE(message.isChecked());
    EXPECT_EQ(message.type(), MsgType::Text);
    EXPECT_FALSE(message.isFromMe());
    EXPECT_TRUE(message.isSentDone());
    EXPECT_EQ(message.media(), "");
    EXPECT_FALSE(message.isReadThumbFileData());
    EXPECT_FALSE(message.isBroadcast());
    EXPECT_FALSE(message.isDrawLike());
}

TEST(PRWhatsappMsg, KeepsAnUnknownType)
{
    EXPECT_EQ(static_cast<int>(PRWhatsappMsg({.type = 99}).type()), 99);
}

TEST(PRWhatsappItem, KeepsItsMessagesInOrder)
{
    std::vector<PRWhatsappMsg> messages;
    messages.reserve(50);
    for (int i = 0; i < 50; ++i) {
        messages.emplace_back(ChatMessage{.content = QString::number(i)});
    }
    const PRWhatsappItem item({.values = {"Title", "Name", "Phone"}}, std::move(messages));
    EXPECT_EQ(item.value(1), "Name");
    ASSERT_NE(item.detailContent(), nullptr);
    const QList<PRWhatsappMsg*>& kept = item.detailContent()->messages();
    ASSERT_EQ(kept.size(), 50);
    for (int i = 0; i < 50; ++i) {
        EXPECT_EQ(kept.at(i)->content(), QString::number(i));
    }
}

TEST(PRWhatsappItem, KeepsTheMediaOnceItIsSet)
{
    std::vector<PRWhatsappMsg> messages;
    messages.emplace_back(ChatMessage{.media = "http://h/a"});
    messages.emplace_back(ChatMessage{.media = "http://h/b"});
    const PRWhatsappItem item({}, std::move(messages));
    item.detailContent()->messages().at(0)->setMedia("/downloads/a.jpg");
    EXPECT_EQ(item.detailContent()->messages().at(0)->media(), "/downloads/a.jpg");
    EXPECT_EQ(item.detailContent()->messages().at(1)->media(), "http://h/b");
}

TEST(PRWhatsappItem, HasNoMessagesByDefault)
{
    const PRWhatsappItem item;
    ASSERT_NE(item.detailContent(), nullptr);
    EXPECT_TRUE(item.detailContent()->messages().isEmpty());
}
