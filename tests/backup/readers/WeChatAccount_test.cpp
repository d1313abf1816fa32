// SPDX-License-Identifier: MIT
#include "WeChatTest.h"

namespace {

const QByteArray kJpeg = QByteArray::fromHex("FFD8FFE000104A464946");
const QByteArray kPng = QByteArray::fromHex("89504E470D0A1A0A00");

QByteArray room(const QByteArray& users, const QByteArray& xml)
{
    return wireField(1, users) + wireField(6, xml);
}

TEST_F(WeChatTest, ChatIsCalledByRemarkThenNicknameThenUserName)
{
    addContacts({row({.user = "wxid_a", .nick = "Annie", .remark = "Ann (choir)"}),
        row({.user = "wxid_b", .nick = "Bo"}), row({.user = "wxid_c"})});
    addMessages("MM.sqlite",
        chat("wxid_a", {{.id = 4, .text = "a"}}) + chat("wxid_b", {{.id = 3, .text = "b"}})
            + chat("wxid_c", {{.id = 2, .text = "c"}}) + chat("wxid_d", {{.id = 1, .text = "d"}}));
    openFolder();
    EXPECT_EQ(
        lines(kChats), QStringList({"Ann (choir) | Annie | ", "Bo | Bo | ", "wxid_c | wxid_c | ",
                           hash("wxid_d") + " | " + hash("wxid_d") + " | "}));
    EXPECT_EQ(notices("DB/"), QStringList());
}

TEST_F(WeChatTest, MessagesOfSeveralDatabasesMakeOneAccount)
{
    addContacts({row({.user = "wxid_a", .nick = "Ann"}), row({.user = "wxid_b", .nick = "Bo"})});
    addMessages("MM.sqlite", {"CREATE TABLE Other (a)"});
    addMessages("message_1.sqlite", chat("wxid_a", {{.id = 1, .text = "one"}}));
    addMessages("message_12.sqlite", chat("wxid_b", {{.id = 2, .text = "two"}}));
    addMessages("fts_message_1.sqlite", chat("wxid_c", {{.id = 2, .text = "index"}}));
    openFolder();
    EXPECT_EQ(column(kChats, 0), QStringList({"Bo", "Ann"}));
    EXPECT_EQ(conversationLines(0), QStringList("0 < two"));
    EXPECT_EQ(conversationLines(1), QStringList("0 < one"));
    EXPECT_EQ(notices("DB/"), QStringList()) << "a database without chats is no fault";
}

TEST_F(WeChatTest, ChatThatHasMovedIsShownOnceAndInItsOrder)
{
    addMessages("MM.sqlite", chat("wxid_a", {{.id = 1, .text = "one"}, {.id = 2, .text = "two"},
                                                {.id = 4, .text = "x"}}));
    addMessages("message_1.sqlite",
        chat("wxid_a",
            {{.id = 2, .text = "two"}, {.id = 3, .text = "three"}, {.id = 5, .text = "five"}}));
    openFolder();
    ASSERT_EQ(lines(kChats).size(), 1);
    EXPECT_EQ(conversationLines(0),
        QStringList({"0 < one", "0 < two", "0 < three", "0 < x", "0 < five"}));
}

TEST_F(WeChatTest, MessagesStandByTheirTime)
{
    QStringList statements = chat("wxid_a", {{.id = 1, .text = "b"}, {.id = 2, .text = "c"}});
    statements +=
        "INSERT INTO Chat_" + hash("wxid_a") + " VALUES (1, 7, 70, 1599999999, 'a', 2, 1, 1, 1)";
    addMessages("MM.sqlite", statements);
    openFolder();
    EXPECT_EQ(conversationLines(0), QStringList({"0 < a", "0 < b", "0 < c"}));
    const PRWhatsappMsg& last = conversation(0).contents().back();
    EXPECT_EQ(last.msgDate(), QDateTime(QDate(2020, 9, 13), QTime(12, 28, 40), Qt::UTC));
    EXPECT_EQ(last.msgDate().timeSpec(), Qt::UTC);
}

TEST_F(WeChatTest, TimeThatIsNoneStandsBeforeTheOthers)
{
    QStringList statements = chat("wxid_a", {{.id = 3, .text = "last"}});
    statements += "INSERT INTO Chat_" + hash("wxid_a")
                  + " VALUES (1, 1, 71, 9223372036854775807, 'absurd', 2, 1, 1, 1),"
                    " (1, 2, 72, 0, 'none', 2, 1, 1, 1)";
    addMessages("MM.sqlite", statements);
    openFolder();
    EXPECT_EQ(conversationLines(0), QStringList({"0 < absurd", "0 < none", "0 < last"}));
    EXPECT_FALSE(conversation(0).contents().at(0).msgDate().isValid());
    EXPECT_FALSE(conversation(0).contents().at(1).msgDate().isValid());
}

TEST_F(WeChatTest, OwnMessageWithoutAServerNumberWasNotSent)
{
    addMessages(
        "MM.sqlite", chat("wxid_a", {{.id = 1, .text = "sent", .fromMe = true},
                                        {.id = 2, .text = "not", .fromMe = true, .serverId = 0},
                                        {.id = 3, .text = "theirs", .serverId = 0}})
                         + chat("wxid_b", {{.id = 1, .text = "x", .fromMe = true, .serverId = 0}}));
    openFolder();
    EXPECT_EQ(conversationLines(0), QStringList({"0 > sent", "0 >! not", "0 < theirs"}));
    EXPECT_EQ(conversationLines(1), QStringList("0 > x")) << "no message here has a number";
}

TEST_F(WeChatTest, SendersOfARoomAreNamed)
{
    addContacts({row({.user = "wxid_a", .nick = "Annie", .remark = "Ann"}),
        row({.user = "wxid_b", .nick = "Bo"}), row({.user = "wxid_c", .nick = "Cy"}),
        row({.user = "7@chatroom",
            .nick = "Choir",
            .room = room("wxid_a;wxid_b",
                "<RoomData><Member UserName=\"wxid_a\"><DisplayName>Soprano</DisplayName></Member>"
                "<Member "
                "UserName=\"wxid_b\"><DisplayName>Bass</DisplayName></Member></RoomData>")})});
    addMessages("MM.sqlite",
        chat("7@chatroom",
            {{.id = 1, .text = "wxid_a:\nHello"}, {.id = 2, .text = "wxid_b:\nHi:\nthere"},
                {.id = 3, .text = "wxid_c:\nHey"}, {.id = 4, .text = "wxid_d:\nYo"},
                {.id = 5, .text = "wxid_a:\nmine", .fromMe = true}, {.id = 6, .text = "no name"},
                {.id = 7, .type = 10000, .text = "\"Bo\" joined"},
                {.id = 8,
                    .type = 10002,
                    .text = "7@chatroom:\n<sysmsg type=\"x\"><a>Left</a></sysmsg>"},
                {.id = 9, .type = 42, .text = "wxid_b:\n<msg nickname=\"Di\" alias=\"di\"/>"}}));
    openFolder();
    EXPECT_EQ(lines(kChats), QStringList("Choir | Choir | "));
    EXPECT_EQ(conversationLines(0),
        QStringList({"0 < [Ann] Hello", "0 < [Bass] Hi:\nthere", "0 < [Cy] Hey", "0 < [wxid_d] Yo",
            "0 > wxid_a:\nmine", "0 < no name", "6 < \"Bo\" joined", "6 < Left",
            "4 < [Bass] Di\ndi"}));
}

TEST_F(WeChatTest, ListOfChatsTellsWhoseAChatIs)
{
    builder().addDatabase(kDomain, account() + "/session/session.db",
        {"CREATE TABLE SessionAbstract (UsrName TEXT, CreateTime INTEGER)",
            "INSERT INTO SessionAbstract VALUES ('7@chatroom', 1600000000), ('anna90', 1)"});
    addMessages("MM.sqlite", chat("7@chatroom", {{.id = 2, .text = "bo-77:\nHello"}})
                                 + chat("anna90", {{.id = 1, .text = "Hi"}}));
    openFolder();
    EXPECT_EQ(column(kChats, 0), QStringList({"7@chatroom", "anna90"}));
    EXPECT_EQ(conversationLines(0), QStringList("0 < [bo-77] Hello"));
}

TEST_F(WeChatTest, MembersOfRoomsTellWhoseAChatIs)
{
    addContacts({row({.user = "7@chatroom", .nick = "Choir", .room = room("wxid_a;wxid_b", "")})});
    addMessages("MM.sqlite", chat("wxid_b", {{.id = 1, .text = "Hi"}}));
    openFolder();
    EXPECT_EQ(column(kChats, 0), QStringList("wxid_b"));
}

TEST_F(WeChatTest, RoomWithoutANameIsCalledByItsMembers)
{
    addContacts({row({.user = "wxid_a", .nick = "Ann"}),
        row({.user = "7@chatroom", .room = room("wxid_a;wxid_b;7@chatroom", "")}),
        row({.user = "8@im.chatroom", .room = room("wxid_a;wxid_b;wxid_c;wxid_d;wxid_e", "")})});
    addMessages("MM.sqlite", chat("7@chatroom", {{.id = 2, .text = "a"}})
                                 + chat("8@im.chatroom", {{.id = 1, .text = "b"}}));
    openFolder();
    EXPECT_EQ(column(kChats, 0), QStringList({"Ann, wxid_b, 7@chatroom",
                                     QString::fromUtf8("Ann, wxid_b, wxid_c, wxid_d, …")}));
}

TEST_F(WeChatTest, SendersAreKnownAlsoWhereTheRoomIsNot)
{
    addContacts({row({.user = "bo1990", .nick = "Bo"})});
    addMessages("MM.sqlite",
        chat("7@chatroom", {{.id = 1, .text = "wxid_a:\nHello"}, {.id = 2, .text = "bo1990:\nHi"},
                               {.id = 3, .text = "rope:\ntwo"}}));
    openFolder();
    EXPECT_EQ(
        conversationLines(0), QStringList({"0 < [wxid_a] Hello", "0 < [Bo] Hi", "0 < rope:\ntwo"}));
}

TEST_F(WeChatTest, TextOfAPersonKeepsWhatLooksLikeASender)
{
    addContacts({row({.user = "wxid_a", .nick = "Ann"})});
    addMessages("MM.sqlite", chat("wxid_a", {{.id = 1, .text = "wxid_a:\nHello"}}));
    openFolder();
    EXPECT_EQ(conversationLines(0), QStringList("0 < wxid_a:\nHello"));
}

TEST_F(WeChatTest, MediaAreTheBestFilesOfTheirMessages)
{
    addMessages("MM.sqlite",
        chat("wxid_a", {{.id = 1, .type = 3}, {.id = 2, .type = 3}, {.id = 3, .type = 3},
                           {.id = 4, .type = 34}, {.id = 5, .type = 43}, {.id = 6, .type = 62},
                           {.id = 7, .type = 43}, {.id = 8, .type = 3}, {.id = 9, .type = 34},
                           {.id = 10, .text = "plain"}}));
    for (const char* name : {"1.pic", "1.pic_hd", "1.pic_thum", "2.pic", "2.pic_thum", "3.pic_thum",
             "10.pic", "33.pic", "x.pic"}) {
        addFile("Img", "wxid_a", name);
    }
    addFile("Audio", "wxid_a", "4.aud");
    for (const char* name : {"5.mp4", "5_raw.mp4", "6.mp4", "6.video_thum", "7.video_thum"}) {
        addFile("Video", "wxid_a", name);
    }
    addFile("Img", "wxid_b", "8.pic");
    openFolder();
    EXPECT_EQ(
        conversationLines(0), QStringList({"1 <  = 1.pic_hd", "1 <  = 2.pic", "1 <  = 3.pic_thum",
                                  "3 <  = 4.aud", "2 <  = 5_raw.mp4", "2 <  = 6.mp4",
                                  "2 <  = 7.video_thum", "1 < ", "3 < ", "0 < plain"}));
}

TEST_F(WeChatTest, AttachmentsOfAppMessagesAreTheirFilesOrPreviews)
{
    const auto app = [](int type, const QString& elements) {
        return QString("<msg><appmsg>%2<type>%1</type></appmsg></msg>").arg(type).arg(elements);
    };
    addMessages("MM.sqlite",
        chat("wxid_a",
            {{.id = 1,
                 .type = 49,
                 .text = app(
                     6, "<title>../Tides</title><appattach><fileext>pdf</fileext></appattach>")},
                {.id = 2, .type = 49, .text = app(5, "<title>Ferry</title><url>https://f</url>")},
                {.id = 3, .type = 49, .text = app(8, "<title>x</title>")},
                {.id = 4, .type = 49, .text = app(57, "<title>Answer</title>")}}));
    for (const char* name : {"1.pdf", "1.pic_thum", "2.pic_thum", "3.pic_thum", "4.pic_thum"}) {
        addFile("OpenData", "wxid_a", name);
    }
    openFolder();
    EXPECT_EQ(conversationLines(0),
        QStringList({"8 < ../Tides = 1.pdf", "0 < Ferry\nhttps://f = 2.pic_thum",
            "1 <  = 3.pic_thum", "0 < Answer"}));
    EXPECT_EQ(files(kFiles), QStringList({"Tides.pdf < " + hash("wxid_a") + " = 1.pdf",
                                 "4.pic_thum < " + hash("wxid_a") + " = 4.pic_thum"}))
        << "previews are no files of a chat, but those that no message asks for";
}

TEST_F(WeChatTest, MediaAreNeverAddresses)
{
    addMessages("MM.sqlite",
        chat("wxid_a",
            {{.id = 1, .type = 3, .text = "<msg><img cdnbigimgurl=\"http://x/1\"/></msg>"},
                {.id = 2, .type = 47, .text = "<msg><emoji cdnurl=\"http://x/2\"/></msg>"},
                {.id = 3,
                    .type = 43,
                    .text = "<msg><videomsg cdnvideourl=\"http://x/3\"/></msg>"}}));
    openFolder();
    for (const PRWhatsappMsg& message : conversation(0).contents()) {
        EXPECT_EQ(message.media(), "");
    }
    EXPECT_EQ(conversation(0).contents().size(), 3U);
}

TEST_F(WeChatTest, FilesStandByChatAndThoseWithoutAMessageBehind)
{
    addContacts({row({.user = "wxid_a", .nick = "Ann"})});
    addMessages("MM.sqlite", chat("wxid_a", {{.id = 1, .type = 3}, {.id = 2, .type = 34},
                                                {.id = 3, .type = 3}, {.id = 4, .type = 43}}));
    const QString pictures = account() + "/Img/" + hash("wxid_a");
    builder()
        .add(kDomain, pictures + "/1.pic", kJpeg)
        .add(kDomain, pictures + "/1.pic_thum", kJpeg)
        .add(kDomain, pictures + "/3.pic_thum", kJpeg)
        .add(kDomain, pictures + "/9.pic_hd", kPng)
        .add(kDomain, pictures + "/9.pic", kJpeg)
        .add(kDomain, pictures + "/10.pic", "unknown");
    addFile("Audio", "wxid_a", "2.aud");
    addFile("Video", "wxid_a", "4_raw.mp4");
    addFile("Audio", "wxid_gone", "5.aud");
    openFolder();
    // Chats that are not known come in the order of their hashes, before or behind Ann's.
    QStringList names;
    for (int at = 0; at < lines(kFiles).size(); ++at) {
        names.append(file(kFiles, at).value(0) + " < " + *file(kFiles, at).record().parent);
    }
    const QString other = "5.aud < _";
    EXPECT_EQ(names.removeAll(other), 1);
    EXPECT_EQ(names, QStringList({"1.jpg < Ann", "2.aud < Ann", "3.jpg < Ann", "4_raw.mp4 < Ann",
                         "9.png < Ann", "10.pic < Ann"}));
    EXPECT_EQ(file(kFiles, 0).getDetailInfoDateTime(), "2020-09-13T12:27:40Z");
}

TEST_F(WeChatTest, HelloTablesAreChatsToo)
{
    addContacts({row({.user = "wxid_a", .nick = "Ann", .type = 0})});
    addMessages("MM.sqlite", chat("wxid_a", {{.id = 1, .text = "May I?"}}, "Hello_"));
    openFolder();
    EXPECT_EQ(lines(kChats), QStringList("Ann | Ann | "));
    EXPECT_EQ(conversationLines(0), QStringList("0 < May I?"));
}

TEST_F(WeChatTest, SessionWithoutATableIsADeletedChat)
{
    addContacts({row({.user = "wxid_a", .nick = "Ann"}), row({.user = "wxid_b", .nick = "Bo"}),
        row({.user = "gh_news", .nick = "News"}), row({.user = "7@chatroom", .nick = "Choir"})});
    addMessages("MM.sqlite", chat("wxid_a", {{.id = 1, .text = "a"}}) + chat("wxid_e", {}));
    const QStringList session{
        "CREATE TABLE SessionAbstract (UsrName TEXT, CreateTime INTEGER, unreadcount INTEGER)",
        "INSERT INTO SessionAbstract VALUES ('wxid_a', 1600000000, 0), ('wxid_b', 1500000000, 0),"
        " ('gh_news', 1600000000, 0), ('brandsessionholder', 1, 0), ('wxid_e', 1600000000, 0)"};
    builder().addDatabase(kDomain, account() + "/session/session.db", session);
    builder().addDatabase(kDomain, account() + "/UniversalSession/1/session.db",
        {session.first(), "INSERT INTO SessionAbstract VALUES ('7@chatroom', 1400000000, 0),"
                          " ('wxid_b', 1500000000, 0)"});
    openFolder();
    EXPECT_EQ(lines(kChats), QStringList({"Ann | Ann | ", "x Bo | Bo | ", "x Choir | Choir | "}));
    EXPECT_EQ(conversationLines(1), QStringList());
}

TEST_F(WeChatTest, SeveralAccountsShareTheirSets)
{
    addMessages("MM.sqlite", chat("wxid_a", {{.id = 1, .text = "old"}}));
    addContacts({row({.user = "wxid_a", .nick = "Ann"})});
    const QString other = "Documents/" + hash("wxid_other") + "/DB/";
    builder()
        .addDatabase(kDomain, other + "MM.sqlite", chat("wxid_a", {{.id = 2, .text = "new"}}))
        .addDatabase(kDomain, other + "WCDB_Contact.sqlite",
            friendTable() + QStringList(row({.user = "wxid_a", .nick = "Annie"})));
    openFolder();
    EXPECT_EQ(column(kChats, 0), QStringList({"Annie", "Ann"}));
    EXPECT_EQ(conversationLines(0), QStringList("0 < new"));
    EXPECT_EQ(conversationLines(1), QStringList("0 < old"));
    QStringList people = column(kContacts, 0);
    people.sort();
    EXPECT_EQ(people, QStringList({"Ann", "Annie"}));
}

TEST_F(WeChatTest, AccountsOfThePhoneAreKnownByName)
{
    builder().add(kDomain, "Documents/LoginInfo2.dat",
        wireField(1, wireField(1, "wxid_owner") + wireField(2, "anna") + wireField(3, "Anna")));
    addMessages("MM.sqlite", chat("wxid_owner", {{.id = 1, .text = "note"}}));
    openFolder();
    EXPECT_EQ(column(kChats, 0), QStringList("Anna"));
}

TEST_F(WeChatTest, MissingColumnsReadAsEmpty)
{
    addMessages("MM.sqlite", {"CREATE TABLE Chat_" + hash("wxid_a")
                                     + " (CreateTime INTEGER, Des"
                                       " INTEGER, Type INTEGER, Message TEXT)",
                                 "INSERT INTO Chat_" + hash("wxid_a")
                                     + " VALUES (1600000000, 0, 1, 'a'), (NULL, 1, NULL, NULL)"});
    openFolder();
    ASSERT_EQ(lines(kChats).size(), 1);
    EXPECT_EQ(conversationLines(0), QStringList({"6 < [Unknown message]", "0 > a"}));
    EXPECT_FALSE(conversation(0).contents().front().msgDate().isValid());
}

TEST_F(WeChatTest, DamagedPageLosesItsOwnMessages)
{
    std::vector<Message> sent;
    for (int id = 1; id <= 2000; ++id) {
        sent.push_back(
            {.id = id, .text = QString("Message %1, long enough to fill pages").arg(id)});
    }
    QByteArray bytes = databaseBytes(chat("wxid_a", sent)).file;
    const int damaged = bytes.size() / 4096 / 2;
    bytes.replace(damaged * 4096, 4096, QByteArray(4096, '\xFF'));
    builder().add(kDomain, account() + "/DB/MM.sqlite", bytes);
    openFolder();
    ASSERT_EQ(lines(kChats).size(), 1);
    const QStringList shown = conversationLines(0);
    EXPECT_GT(shown.size(), 1800);
    EXPECT_LT(shown.size(), 2000);
    EXPECT_EQ(shown.first(), "0 < Message 1, long enough to fill pages");
    EXPECT_EQ(shown.last(), "0 < Message 2000, long enough to fill pages");
    EXPECT_EQ(files(kFiles), QStringList());
    EXPECT_EQ(notices("MM.sqlite").size(), 1);
}

TEST_F(WeChatTest, WithoutTheApplicationThereIsNoSet)
{
    builder().add("HomeDomain", "Documents/x/DB/MM.sqlite", "x");
    openFolder();
    EXPECT_EQ(m_opened->records.getPRData(kChats), nullptr);
    EXPECT_EQ(m_opened->records.getPRData(kContacts), nullptr);
    EXPECT_EQ(notices("MM.sqlite"), QStringList());
}

TEST_F(WeChatTest, LooseStoreFindsContactsAndFilesBesideIt)
{
    const QString base = m_directory.filePath("copy/");
    writeFile(base + "DB/MM.sqlite",
        databaseBytes(chat("wxid_a", {{.id = 1, .text = "Hello"}, {.id = 2, .type = 3}})).file);
    writeFile(base + "DB/WCDB_Contact.sqlite",
        databaseBytes(friendTable() + QStringList(row({.user = "wxid_a", .nick = "Ann"}))).file);
    writeFile(base + "DB/Img/" + hash("wxid_a") + "/2.pic", kJpeg);
    take(backup::openDatabaseFile(base + "DB/MM.sqlite"));
    EXPECT_EQ(column(kChats, 0), QStringList("Ann"));
    EXPECT_EQ(column(kContacts, 0), QStringList("Ann"));
    EXPECT_EQ(conversationLines(0).first(), "0 < Hello");
    EXPECT_EQ(files(kFiles).size(), 1);
}

} // namespace
