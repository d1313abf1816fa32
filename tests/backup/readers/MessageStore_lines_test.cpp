// SPDX-License-Identifier: MIT
// Events, reactions, edited and unsent messages.
#include "backup/readers/MessageStoreTest.h"
#include "backup/readers/event_text.h"

namespace {

TEST_F(MessageStoreTest, EventLinesNameTheirPersons)
{
    const qint64 mia = store().handle("+491715550101");
    const qint64 tom = store().handle("+491715550102");
    const qint64 group = store().group("Beach", {mia});
    store().message({.chat = group,
        .date = 1,
        .handle = mia,
        .columns = {{"item_type", 1}, {"other_handle", tom}}});
    store().message({.chat = group,
        .date = 2,
        .handle = tom,
        .columns = {{"item_type", 1}, {"other_handle", tom}}});
    store().message({.chat = group,
        .date = 3,
        .handle = mia,
        .columns = {{"item_type", 1}, {"group_action_type", 1}, {"other_handle", 0}}});
    store().message({.chat = group,
        .date = 4,
        .fromMe = true,
        .columns = {{"item_type", 2}, {"group_title", "Sea"}}});
    store().message({.chat = group, .date = 5, .handle = tom, .columns = {{"item_type", 3}}});
    store().message({.chat = group,
        .date = 6,
        .handle = 99,
        .columns = {{"item_type", 4}, {"share_status", 1}}});
    store().message({.chat = group,
        .date = 7,
        .text = "Tom notified you",
        .handle = tom,
        .columns = {{"is_system_message", 1}}});
    open();
    EXPECT_EQ(
        lines(0), QStringList({"* +491715550101 added +491715550102 to the conversation",
                      "* +491715550102 changed the phone number",
                      "* +491715550101 removed you from the conversation",
                      "* You named the conversation “Sea”", "* +491715550102 left the conversation",
                      "* Someone stopped sharing the location", "* Tom notified you"}));
    EXPECT_EQ(item(0)->detailContent()->chats().at(0)->itemType(), 1);
    EXPECT_EQ(item(0)->detailContent()->chats().at(6)->itemType(), backup::SystemLine);
    // Who has left is still known by name.
    EXPECT_EQ(item(0)->detailContent()->addrIds().keys(),
        QStringList({"+491715550101", "+491715550102"}));
}

class ReactionTest : public MessageStoreTest {
protected:
    void SetUp() override
    {
        m_mia = store().handle("+491715550101");
        m_chat = store().chat("+491715550101", m_mia);
        m_target = store().message({.chat = m_chat, .date = 1, .text = "Dinner?", .handle = m_mia});
    }

    void react(double date, int type, const QString& target, bool fromMe = true)
    {
        store().message({.chat = m_chat,
            .date = date,
            .text = "Reaction “…”",
            .handle = fromMe ? 0 : m_mia,
            .fromMe = fromMe,
            .columns = {{"associated_message_type", type}, {"associated_message_guid", target},
                {"associated_message_emoji", "🔥"}}});
    }

    QString part(int number = 0) const
    {
        return QString("p:%1/").arg(number) + MessageStoreBuilder::guid(m_target);
    }

    qint64 m_mia = 0;
    qint64 m_chat = 0;
    qint64 m_target = 0;
};

TEST_F(ReactionTest, IsALineWithTheTextOfItsMessage)
{
    react(2, 2000, part());
    react(3, 2006, part(), false);
    react(4, 1000, "bp:" + MessageStoreBuilder::guid(m_target));
    react(5, 2003, MessageStoreBuilder::guid(m_target), false);
    open();
    EXPECT_EQ(lines(0),
        QStringList(
            {"< Dinner?", "* You loved “Dinner?”", "* +491715550101 reacted with 🔥 to “Dinner?”",
                "* You placed a sticker on “Dinner?”", "* +491715550101 laughed at “Dinner?”"}));
    EXPECT_EQ(item(0)->detailContent()->chats().at(1)->itemType(), backup::ReactionLine);
}

TEST_F(ReactionTest, NewestOfOnePersonToOnePartHolds)
{
    react(2, 2000, part());
    react(3, 2001, part());
    react(4, 2002, part(1));
    react(5, 2004, part(), false);
    open();
    EXPECT_EQ(lines(0), QStringList({"< Dinner?", "* You liked “Dinner?”",
                            "* You disliked “Dinner?”", "* +491715550101 emphasized “Dinner?”"}));
}

TEST_F(ReactionTest, TakenBackLeavesNoLine)
{
    react(2, 2000, part());
    react(3, 3000, part());
    react(4, 2001, part(), false);
    open();
    EXPECT_EQ(lines(0), QStringList({"< Dinner?", "* +491715550101 liked “Dinner?”"}));
}

TEST_F(ReactionTest, ToWhatIsNotThereIsToldPlainly)
{
    react(2, 2000, "p:0/FFFFFFFF-FFFF-4FFF-8FFF-FFFFFFFFFFFF");
    const qint64 picture =
        store().message({.chat = m_chat, .date = 3, .text = "\uFFFC", .handle = m_mia});
    store().attachment(picture, {{"filename", "~/Library/SMS/Attachments/a/b/c/x.jpg"}});
    react(4, 2000, MessageStoreBuilder::guid(picture));
    open();
    EXPECT_EQ(lines(0),
        QStringList({"< Dinner?", "* You loved a message", "< ", "* You loved an attachment"}));
}

TEST_F(ReactionTest, UpdatesOfAppMessagesAreNoReactions)
{
    react(2, 2, part());
    react(3, 3, part());
    open();
    EXPECT_EQ(lines(0), QStringList({"< Dinner?", "> Reaction “…”", "> Reaction “…”"}));
}

TEST_F(MessageStoreTest, UnsentMessageIsALine)
{
    const qint64 mia = store().handle("+491715550101");
    const qint64 chat = store().chat("+491715550101", mia);
    store().message({.chat = chat, .date = 1, .handle = mia, .columns = {{"date_retracted", 5}}});
    store().message({.chat = chat,
        .date = 2,
        .fromMe = true,
        .columns = {{"date_edited", 5},
            {"message_summary_info",
                QByteArray("<plist version=\"1.0\"><dict><key>rp</key><array><integer>0</integer>"
                           "</array></dict></plist>")}}});
    open();
    EXPECT_EQ(
        lines(0), QStringList({"* +491715550101 unsent a message", "* You unsent a message"}));
}

TEST_F(MessageStoreTest, EditedMessageShowsItsTextAndWhatItWasBefore)
{
    const auto version = [](const QString& text) {
        return "<dict><key>t</key><data>" + attributedBody(text).toBase64() + "</data></dict>";
    };
    const QByteArray summary = "<plist version=\"1.0\"><dict><key>ec</key><dict><key>0</key><array>"
                               + version("At seven") + version("At eight") + version("At nine")
                               + "</array></dict></dict></plist>";
    const qint64 mia = store().handle("+491715550101");
    const qint64 chat = store().chat("+491715550101", mia);
    store().message({.chat = chat,
        .date = 1,
        .text = "At nine",
        .handle = mia,
        .columns = {{"date_edited", 5}, {"message_summary_info", summary}}});
    store().message({.chat = chat,
        .date = 2,
        .fromMe = true,
        .columns = {{"date_edited", 5}, {"message_summary_info", summary}}});
    open();
    EXPECT_EQ(lines(0),
        QStringList(
            {"< At nine", "* +491715550101 edited the message. Before: “At seven”, “At eight”",
                "> At nine", "* You edited the message. Before: “At seven”, “At eight”"}));
}

} // namespace
