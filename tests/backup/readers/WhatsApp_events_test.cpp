// SPDX-License-Identifier: MIT
#include "WhatsAppTest.h"
#include "backup/readers/whatsapp_events.h"

namespace {

/// An event of the group, whose line is wanted.
struct EventRow {
    int number = 0;
    const char* text = nullptr;   ///< ZTEXT
    const char* line = nullptr;   ///< done by Mia
    const char* nobody = nullptr; ///< where the store does not say who did it
};

const char* const kBenAlone = "12025550114@s.whatsapp.net";

TEST_F(WhatsAppTest, EventsOfAGroupAreSentences)
{
    const std::vector<EventRow> rows{
        {1, "Summer choir", "Mia Jansen named the conversation “Summer choir”",
            "Someone named the conversation “Summer choir”"},
        {2, kBenAlone, "Mia Jansen added Ben Carter to the conversation",
            "Ben Carter was added to the conversation"},
        {2, "", "Mia Jansen was added to the conversation",
            "Someone was added to the conversation"},
        {3, "", "Mia Jansen left the conversation", "Someone left the conversation"},
        {4, "", "Mia Jansen changed the group photo", "Someone changed the group photo"},
        {5, "", "Mia Jansen removed the group photo", "Someone removed the group photo"},
        {7, kBenAlone, "Mia Jansen removed Ben Carter from the conversation",
            "Ben Carter was removed from the conversation"},
        {9, "", "Mia Jansen changed the phone number", "Someone changed the phone number"},
        {10, "", "You are now an admin", "You are now an admin"},
        {11, "", "You are no longer an admin", "You are no longer an admin"},
        {12, "", "Mia Jansen created the group", "Someone created the group"},
        {15, "", "Mia Jansen joined by a link", "Someone joined by a link"},
        {17, "Songs", "Mia Jansen changed the group description",
            "Someone changed the group description"},
        {18, "", "Mia Jansen allowed only admins to edit the group",
            "Someone allowed only admins to edit the group"},
        {19, "", "Mia Jansen allowed all members to edit the group",
            "Someone allowed all members to edit the group"},
        {20, "", "Mia Jansen allowed only admins to send messages",
            "Someone allowed only admins to send messages"},
        {21, "", "Mia Jansen allowed all members to send messages",
            "Someone allowed all members to send messages"},
        {22, "", "Mia Jansen deleted the group description",
            "Someone deleted the group description"},
        {23, "", "Mia Jansen joined by an invitation", "Someone joined by an invitation"},
        {26, "604800", "Mia Jansen made messages disappear after 7 days",
            "Someone made messages disappear after 7 days"},
        {26, "86400", "Mia Jansen made messages disappear after 24 hours",
            "Someone made messages disappear after 24 hours"},
        {26, "0", "Mia Jansen turned off disappearing messages",
            "Someone turned off disappearing messages"},
        {26, "300", "Mia Jansen changed disappearing messages",
            "Someone changed disappearing messages"},
        {26, "", "Mia Jansen changed disappearing messages",
            "Someone changed disappearing messages"},
        {3, kBenAlone, "Mia Jansen left the conversation", "Ben Carter left the conversation"},
        {9, kBenAlone, "Mia Jansen changed the phone number",
            "Ben Carter changed the phone number"},
        {15, kBenAlone, "Mia Jansen joined by a link", "Ben Carter joined by a link"},
        {17, "write@me.example", "Mia Jansen changed the group description",
            "Someone changed the group description"},
        {30, "", "Mia Jansen joined from the community", "Someone joined from the community"},
        {31, kBenAlone, "Mia Jansen added Ben Carter to the community",
            "Ben Carter was added to the community"},
        {33, kBenAlone, "Mia Jansen removed Ben Carter from the conversation",
            "Ben Carter was removed from the conversation"},
        {39, "", "Mia Jansen is now an admin", "Someone is now an admin"},
        {39, kBenAlone, "Mia Jansen made Ben Carter an admin", "Ben Carter is now an admin"},
        {42, "", "Mia Jansen allowed only admins to add members",
            "Someone allowed only admins to add members"},
        {50, "12025550114@s.whatsapp.net,49401@s.whatsapp.net",
            "Mia Jansen added Ben Carter, +49401 to the conversation",
            "Ben Carter, +49401 was added to the conversation"},
        {56, R"({"previous_subject":"Choir","new_subject":"Summer"})",
            "Mia Jansen named the conversation “Summer”",
            "Someone named the conversation “Summer”"},
        {61, kBenAlone, "Mia Jansen added Ben Carter to the community",
            "Ben Carter was added to the community"},
        {99, "", "Mia Jansen changed the conversation", "Someone changed the conversation"},
    };
    QStringList statements = chats();
    QStringList expected;
    int id = 0;
    for (const EventRow& each : rows) {
        const QString columns = "ZMESSAGETYPE, ZGROUPEVENTTYPE, ZGROUPMEMBER";
        statements << message(++id, 2, each.text, columns, QString("6, %1, 22").arg(each.number));
        statements << message(++id, 2, each.text, columns, QString("6, %1, NULL").arg(each.number));
        expected << QString("6 < ") + each.line << QString("6 < ") + each.nobody;
    }
    open(statements);
    EXPECT_EQ(messages(), expected);
}

TEST_F(WhatsAppTest, EventMayNameWhoDidItInOtherPlaces)
{
    const QString columns = "ZMESSAGETYPE, ZGROUPEVENTTYPE, ";
    open(chats() << message(1, 2, QString(), columns + "ZISFROMME", "6, 12, 1")
                 << message(2, 2, QString(), columns + "ZFROMJID", "6, 12, '" + mia() + "'")
                 << message(3, 2, mia() + ";" + ben(), columns + "ZFROMJID", "6, 2, '1203@g.us'")
                 << message(4, 2, ";" + ben(), columns + "ZISFROMME", "6, 2, 0"));
    EXPECT_EQ(
        messages(), QStringList({"6 > You created the group", "6 < Mia Jansen created the group",
                        "6 < Mia Jansen added Ben Carter to the conversation",
                        "6 < Ben Carter was added to the conversation"}));
}

TEST_F(WhatsAppTest, NobodyAddsOrRemovesOneself)
{
    const QString columns = "ZMESSAGETYPE, ZGROUPEVENTTYPE, ZGROUPMEMBER";
    open(chats() << message(1, 2, mia(), columns, "6, 2, 22")
                 << message(2, 2, mia(), columns, "6, 7, 22"));
    EXPECT_EQ(messages(), QStringList({"6 < Mia Jansen was added to the conversation",
                              "6 < Mia Jansen was removed from the conversation"}));
}

TEST_F(WhatsAppTest, SecurityCodesAndBlocksAreThoseOfTheOtherOne)
{
    QStringList statements = chats();
    for (const int number : {3, 36, 34, 35}) {
        statements << message(number, 1, QString(), "ZMESSAGETYPE, ZGROUPEVENTTYPE, ZISFROMME",
            QString("10, %1, 1").arg(number));
    }
    statements << message(40, 2, ben(), "ZMESSAGETYPE, ZGROUPEVENTTYPE, ZISFROMME", "10, 3, 1");
    open(statements);
    EXPECT_EQ(messages(1),
        QStringList({"6 > The security code of Ben Carter changed", "6 > Ben Carter was blocked",
            "6 > Ben Carter was unblocked", "6 > The security code of Ben Carter changed"}));
    EXPECT_EQ(messages(0), QStringList("6 > The security code of Ben Carter changed"));
}

TEST_F(WhatsAppTest, NoticesOfTheApplicationAreSentences)
{
    struct Row {
        int number = 0;
        const char* line = nullptr;
    };
    const std::vector<Row> rows{{1, "Missed voice call"}, {21, "Missed voice call"},
        {45, "Missed voice call"}, {4, "Missed video call"}, {22, "Missed video call"},
        {46, "Missed video call"}, {2, "Messages and calls are encrypted from end to end"},
        {3, "The security code of Ben Carter changed"},
        {36, "The security code of Ben Carter changed"}, {5, "Ben Carter changed the phone number"},
        {6, "Ben Carter changed the phone number"}, {25, "Notice about a business account"},
        {26, "Notice about a business account"}, {29, "Notice about a business account"},
        {30, "Notice about a business account"}, {38, "Notice about a business account"},
        {34, "Ben Carter was blocked"}, {35, "Ben Carter was unblocked"}, {40, "Group call"},
        {41, "Group call"}, {99, "[System message]"}};
    QStringList statements = chats();
    QStringList expected;
    int id = 0;
    for (const Row& each : rows) {
        statements << message(++id, 1, QString(), "ZMESSAGETYPE, ZGROUPEVENTTYPE",
            QString("10, %1").arg(each.number));
        expected << QString("6 < ") + each.line;
    }
    open(statements);
    EXPECT_EQ(messages(), expected);
}

TEST_F(WhatsAppTest, EventsOfAChannelAreSentences)
{
    QStringList statements{chat(1, "120@newsletter", "Tides", 5)};
    for (const int number : {1, 4, 9}) {
        statements << message(
            number, 1, QString(), "ZMESSAGETYPE, ZGROUPEVENTTYPE", QString("55, %1").arg(number));
    }
    statements << message(10, 1, "High at six", "ZFROMJID", "'120@newsletter'");
    open(statements);
    EXPECT_EQ(messages(),
        QStringList({"6 < The channel was created", "6 < The privacy of the channel changed",
            "6 < The channel was changed", "0 < High at six"}));
}

TEST(WhatsAppEvents, PersonsStandInTheText)
{
    struct Row {
        QString text;
        QString actor;
        QStringList others;
    };
    const std::vector<Row> rows{
        {"", "", {}},
        {"1@s.whatsapp.net", "", {"1@s.whatsapp.net"}},
        {"1@lid, 2@s.whatsapp.net", "", {"1@lid", "2@s.whatsapp.net"}},
        {"1@lid;2@lid,3@lid", "1@lid", {"2@lid", "3@lid"}},
        {"1@lid;", "1@lid", {}},
        {"Summer choir, at last; really", "", {}},
        {"write to me @ home", "", {}},
        {"write@me.example;at@once.example", "", {}},
        {"1-2@g.us;3:4@s.whatsapp.net", "1-2@g.us", {"3:4@s.whatsapp.net"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text.toStdString());
        const backup::WhatsAppPersons persons = backup::personsOfEvent(row.text);
        EXPECT_EQ(persons.actor, row.actor);
        EXPECT_EQ(persons.others, row.others);
    }
}

} // namespace
