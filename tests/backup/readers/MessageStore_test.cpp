// SPDX-License-Identifier: MIT
#include "backup/readers/MessageStore.h"
#include "backup/readers/MessageStoreTest.h"

#include <QFile>

namespace {

TEST_F(MessageStoreTest, ConversationsStandInTheOrderOfTheirLastMessage)
{
    const qint64 mia = store().handle("+491715550101");
    const qint64 tom = store().handle("tom@example.org");
    const qint64 miaChat = store().chat("+491715550101", mia);
    const qint64 tomChat = store().chat("tom@example.org", tom);
    store().message({.chat = miaChat, .date = 100, .text = "first", .handle = mia});
    store().message({.chat = tomChat, .date = 300, .text = "third", .handle = tom});
    store().message({.chat = miaChat, .date = 200, .text = "second", .handle = mia});
    open();
    ASSERT_EQ(count(), 2);
    EXPECT_EQ(item(0)->value(0), "tom@example.org");
    EXPECT_EQ(item(1)->value(0), "+491715550101");
    EXPECT_EQ(lines(1), QStringList({"< first", "< second"}));
}

TEST_F(MessageStoreTest, MessagesStandInOrderOfDateThenOfArrival)
{
    const qint64 mia = store().handle("+491715550101");
    const qint64 chat = store().chat("+491715550101", mia);
    store().message({.chat = chat, .date = 30, .text = "c", .handle = mia});
    store().message({.chat = chat, .date = 10, .text = "a", .handle = mia});
    store().message({.chat = chat, .date = 30, .text = "d", .handle = mia});
    store().message({.chat = chat, .date = 20, .text = "b", .handle = mia});
    open();
    EXPECT_EQ(lines(0), QStringList({"< a", "< b", "< c", "< d"}));
}

TEST_F(MessageStoreTest, PhoneAndEmailAreToldApart)
{
    const qint64 mia = store().handle("+491715550101");
    const qint64 tom = store().handle("tom@example.org");
    const qint64 group = store().group("Beach", {mia, tom});
    store().message({.chat = group, .date = 3, .text = "x", .handle = mia});
    store().message(
        {.chat = store().chat("+491715550101", mia), .date = 2, .text = "x", .handle = mia});
    store().message(
        {.chat = store().chat("tom@example.org", tom), .date = 1, .text = "x", .handle = tom});
    open();
    ASSERT_EQ(count(), 3);
    EXPECT_EQ(item(0)->value(0), "Beach");
    EXPECT_EQ(item(0)->value(1), "+491715550101");
    EXPECT_EQ(item(0)->value(2), "tom@example.org");
    EXPECT_EQ(item(1)->value(1), "+491715550101");
    EXPECT_EQ(item(1)->value(2), "");
    EXPECT_EQ(item(2)->value(1), "");
    EXPECT_EQ(item(2)->value(2), "tom@example.org");
}

TEST_F(MessageStoreTest, GroupWithoutNameIsNamedByItsMembers)
{
    const qint64 group = store().group(
        QString(), {store().handle("+491715550101"), store().handle("+491715550102")});
    store().message({.chat = group, .date = 1, .text = "x", .handle = 1});
    open();
    EXPECT_EQ(item(0)->value(0), "+491715550101, +491715550102");
    EXPECT_EQ(item(0)->detailContent()->addrIds().size(), 2);
}

TEST_F(MessageStoreTest, MarksOfDirectionAreTakenOffNames)
{
    const qint64 group =
        store().group("\u2068Beach\u2069\u200E", {store().handle("+491715550101")});
    store().message({.chat = group, .date = 1, .text = "x", .handle = 1});
    open();
    EXPECT_EQ(item(0)->value(0), "Beach");
}

TEST_F(MessageStoreTest, ChatsOfOneAddressUnderTwoServicesAreOneConversation)
{
    const qint64 message = store().handle("+491715550101", "iMessage");
    const qint64 sms = store().handle("+491715550101", "SMS");
    const qint64 first = store().chat("+491715550101", message, "iMessage");
    const qint64 second = store().chat("+491715550101", sms, "SMS");
    const qint64 both =
        store().message({.chat = first, .date = 1, .text = "blue", .handle = message});
    store().message({.chat = second, .date = 2, .text = "green", .handle = sms, .service = "SMS"});
    store().run(QString("INSERT INTO chat_message_join VALUES (%1, %2, 1)").arg(second).arg(both));
    open();
    ASSERT_EQ(count(), 1);
    EXPECT_EQ(lines(0), QStringList({"< blue", "< green"}));
    const auto& chats = item(0)->detailContent()->chats();
    EXPECT_FALSE(chats.at(0)->isNormalSMS());
    EXPECT_TRUE(chats.at(1)->isNormalSMS());
    EXPECT_EQ(item(0)->detailContent()->addrIds().size(), 1);
}

TEST_F(MessageStoreTest, ServiceDecidesAboutTheKindOfMessage)
{
    struct Row {
        const char* service;
        bool normalSms;
    };
    static constexpr Row kRows[] = {
        {"SMS", true}, {"RCS", true}, {"iMessage", false}, {"iMessageLite", false}};
    const qint64 mia = store().handle("+491715550101");
    const qint64 chat = store().chat("+491715550101", mia);
    int date = 0;
    for (const Row& row : kRows) {
        store().message({.chat = chat,
            .date = double(++date),
            .text = "x",
            .handle = mia,
            .service = row.service});
    }
    open();
    const auto& chats = item(0)->detailContent()->chats();
    ASSERT_EQ(chats.size(), 4);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(chats.at(i)->isNormalSMS(), kRows[i].normalSms) << kRows[i].service;
    }
}

TEST_F(MessageStoreTest, StateTellsWhatWasSentAndWhatFailed)
{
    const qint64 mia = store().handle("+491715550101");
    const qint64 chat = store().chat("+491715550101", mia);
    store().message({.chat = chat, .date = 1, .text = "sent", .fromMe = true});
    store().message(
        {.chat = chat, .date = 2, .text = "failed", .fromMe = true, .columns = {{"error", 22}}});
    store().message(
        {.chat = chat, .date = 3, .text = "waiting", .fromMe = true, .columns = {{"is_sent", 0}}});
    store().message(
        {.chat = chat, .date = 4, .text = "received", .handle = mia, .columns = {{"error", 22}}});
    open();
    EXPECT_EQ(lines(0), QStringList({"> sent", "! failed", "! waiting", "< received"}));
    EXPECT_EQ(item(0)->detailContent()->chats().at(0)->addr(), "");
    EXPECT_EQ(item(0)->detailContent()->chats().at(3)->addr(), "+491715550101");
}

TEST_F(MessageStoreTest, DatesAreReadInBothUnits)
{
    const qint64 mia = store().handle("+491715550101");
    const qint64 chat = store().chat("+491715550101", mia);
    store().message({.chat = chat, .text = "unset", .handle = mia, .columns = {{"date", 0}}});
    store().message({.chat = chat, .text = "s", .handle = mia, .columns = {{"date", 500'000'000}}});
    store().message({.chat = chat,
        .text = "ns",
        .handle = mia,
        .columns = {{"date", qint64(600'000'000'123'000'000)}}});
    open();
    const auto& chats = item(0)->detailContent()->chats();
    ASSERT_EQ(chats.size(), 3);
    EXPECT_FALSE(chats.at(0)->msgDate().isValid());
    EXPECT_EQ(chats.at(1)->msgDate(), QDateTime::fromSecsSinceEpoch(1'478'307'200, Qt::UTC));
    EXPECT_EQ(chats.at(2)->msgDate(), QDateTime::fromMSecsSinceEpoch(1'578'307'200'123, Qt::UTC));
}

TEST_F(MessageStoreTest, TextComesFromTheBodyWhereTheColumnShowsNothing)
{
    const qint64 mia = store().handle("+491715550101");
    const qint64 chat = store().chat("+491715550101", mia);
    const QByteArray body = attributedBody("from the body 😀");
    store().message({.chat = chat,
        .date = 1,
        .text = "from the column",
        .handle = mia,
        .columns = {{"attributedBody", body}}});
    store().message(
        {.chat = chat, .date = 2, .handle = mia, .columns = {{"attributedBody", body}}});
    store().message({.chat = chat,
        .date = 3,
        .text = "",
        .handle = mia,
        .columns = {{"attributedBody", body}}});
    store().message({.chat = chat,
        .date = 4,
        .handle = mia,
        .columns = {{"attributedBody", QByteArray("damaged")}, {"subject", "only a subject"}}});
    open();
    EXPECT_EQ(lines(0),
        QStringList({"< from the column", "< from the body 😀", "< from the body 😀", "< "}));
    EXPECT_EQ(item(0)->detailContent()->chats().at(3)->subject(), "only a subject");
}

TEST_F(MessageStoreTest, RecentlyDeletedMessagesAreARecordOfTheirOwn)
{
    const qint64 mia = store().handle("+491715550101");
    const qint64 chat = store().chat("+491715550101", mia);
    store().message({.chat = chat, .date = 1, .text = "stays", .handle = mia});
    const qint64 gone = store().message({.chat = chat, .date = 2, .text = "gone", .handle = mia});
    store().recentlyDelete(chat, gone);
    const qint64 other = store().chat("+491715550102", store().handle("+491715550102"));
    const qint64 whole =
        store().message({.chat = other, .date = 3, .text = "all gone", .handle = 2});
    store().recentlyDelete(other, whole);
    open();
    ASSERT_EQ(count(), 3);
    EXPECT_EQ(lines(0), QStringList("< all gone"));
    EXPECT_TRUE(item(0)->flag(Deleted));
    EXPECT_EQ(item(0)->value(0), "+491715550102");
    EXPECT_EQ(lines(1), QStringList("< gone"));
    EXPECT_TRUE(item(1)->flag(Deleted));
    EXPECT_EQ(item(1)->value(0), "+491715550101");
    EXPECT_EQ(lines(2), QStringList("< stays"));
    EXPECT_FALSE(item(2)->flag(Deleted));
}

TEST_F(MessageStoreTest, DeletedPartOfALiveMessageIsAMessageOfTheDeletedRecord)
{
    const qint64 mia = store().handle("+491715550101");
    const qint64 chat = store().chat("+491715550101", mia);
    const qint64 id = store().message({.chat = chat, .date = 1, .text = "stays", .handle = mia});
    store().run(QString("INSERT INTO recoverable_message_part (chat_id, message_id, part_index,"
                        " delete_date, part_text) VALUES (%1, %2, 1, 5, x'%3')")
                    .arg(chat)
                    .arg(id)
                    .arg(QString(attributedBody("gone part").toHex())));
    open();
    ASSERT_EQ(count(), 2);
    const int deleted = item(0)->flag(Deleted) ? 0 : 1;
    EXPECT_EQ(lines(deleted), QStringList("< gone part"));
    EXPECT_EQ(lines(1 - deleted), QStringList("< stays"));
}

TEST_F(MessageStoreTest, MessagesWithoutAChatAreListedBySender)
{
    const qint64 mia = store().handle("+491715550101");
    const qint64 tom = store().handle("tom@example.org");
    store().message({.date = 1, .text = "orphan", .handle = mia});
    store().message({.date = 2, .text = "another", .handle = mia});
    store().message({.date = 3, .text = "by mail", .handle = tom});
    open();
    ASSERT_EQ(count(), 2);
    EXPECT_EQ(item(0)->value(2), "tom@example.org");
    EXPECT_EQ(item(1)->value(1), "+491715550101");
    EXPECT_EQ(lines(1), QStringList({"< orphan", "< another"}));
}

TEST_F(MessageStoreTest, ChatWhoseRowIsGoneKeepsItsMessages)
{
    const qint64 mia = store().handle("+491715550101");
    const qint64 chat = store().chat("+491715550101", mia);
    const qint64 live = store().message({.chat = chat, .date = 1, .text = "live", .handle = mia});
    Q_UNUSED(live)
    const qint64 gone = store().message({.chat = chat, .date = 2, .text = "gone", .handle = mia});
    store().recentlyDelete(chat, gone);
    store().run("DELETE FROM chat");
    open();
    ASSERT_EQ(count(), 2);
    EXPECT_EQ(item(0)->value(0), "+491715550101");
    EXPECT_EQ(lines(0), QStringList("< gone"));
    EXPECT_EQ(lines(1), QStringList("< live"));
}

TEST_F(MessageStoreTest, ChatWithoutMessagesIsNotListed)
{
    store().chat("+491715550101", store().handle("+491715550101"));
    open();
    EXPECT_EQ(count(), 0);
}

TEST_F(MessageStoreTest, JoinsToMessagesThatAreGoneArePassedOver)
{
    const qint64 mia = store().handle("+491715550101");
    const qint64 chat = store().chat("+491715550101", mia);
    const qint64 empty = store().chat("+491715550102", store().handle("+491715550102"));
    store().message({.chat = chat, .date = 1, .text = "here", .handle = mia});
    store().run(QString("INSERT INTO chat_message_join VALUES (%1, 777, 9), (%2, 778, 9)")
                    .arg(chat)
                    .arg(empty));
    open();
    ASSERT_EQ(count(), 1);
    EXPECT_EQ(lines(0), QStringList("< here"));
}

TEST_F(MessageStoreTest, MessageInTwoConversationsIsInBoth)
{
    const qint64 mia = store().handle("+491715550101");
    const qint64 first = store().chat("+491715550101", mia);
    const qint64 second = store().group("Beach", {mia});
    const qint64 id = store().message({.chat = first, .date = 1, .text = "both", .handle = mia});
    store().run(QString("INSERT INTO chat_message_join VALUES (%1, %2, 1)").arg(second).arg(id));
    open();
    ASSERT_EQ(count(), 2);
    EXPECT_EQ(lines(0), QStringList("< both"));
    EXPECT_EQ(lines(1), QStringList("< both"));
}

TEST_F(MessageStoreTest, OldStoreWithFewColumnsIsRead)
{
    m_builder.reset();
    QFile::remove(m_path);
    m_builder.emplace(m_path);
    store().run("DROP TABLE message; DROP TABLE chat; DROP TABLE chat_message_join;"
                "DROP TABLE chat_recoverable_message_join; DROP TABLE recoverable_message_part;"
                "CREATE TABLE message (ROWID INTEGER PRIMARY KEY, guid TEXT, text TEXT,"
                " handle_id INTEGER, service TEXT, date INTEGER, is_from_me INTEGER, error INTEGER,"
                " is_sent INTEGER);"
                "CREATE TABLE chat (ROWID INTEGER PRIMARY KEY, guid TEXT, style INTEGER,"
                " chat_identifier TEXT);"
                "CREATE TABLE chat_message_join (chat_id INTEGER, message_id INTEGER);"
                "INSERT INTO handle (ROWID, id, service) VALUES (1, '+491715550101', 'SMS');"
                "INSERT INTO chat VALUES (1, 'SMS;-;x', 45, '+491715550101');"
                "INSERT INTO message VALUES (1, 'a', 'old', 1, 'SMS', 400000000, 0, 0, 0);"
                "INSERT INTO chat_message_join VALUES (1, 1);");
    open();
    ASSERT_EQ(count(), 1);
    EXPECT_EQ(lines(0), QStringList("< old"));
}

TEST_F(MessageStoreTest, ContentOfAConversationHoldsUntilTheNextIsAskedFor)
{
    const qint64 mia = store().handle("+491715550101");
    const qint64 first = store().chat("+491715550101", mia);
    const qint64 second = store().group("Beach", {mia});
    store().message({.chat = first, .date = 2, .text = "one", .handle = mia});
    store().message({.chat = second, .date = 1, .text = "two", .handle = mia});
    open();
    const PRSMSChatGroup* content = item(0)->detailContent();
    EXPECT_EQ(item(0)->detailContent(), content);
    EXPECT_EQ(lines(1), QStringList("< two"));
    EXPECT_EQ(lines(0), QStringList("< one"));
}

} // namespace
