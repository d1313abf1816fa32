// SPDX-License-Identifier: MIT
#include "ChatTest.h"

#include <array>

namespace {

constexpr int kChats = 17;
constexpr int kFiles = 18;

const QString kDomain = "AppDomainGroup-group.com.kik.chat";
const QString kAccount = "cores/private/0123456789abcdef0123456789abcdef/";
const QByteArray kJpeg = "\xFF\xD8\xFF\xE0 picture";
const QByteArray kFilm("\0\0\0\x18"
                       "ftypmp42 film",
    17);

// 700,000,000 seconds after 2001 began it was 2023-03-08 20:26:40 UTC.
const QStringList kSchema{
    R"(CREATE TABLE ZKIKMESSAGE (Z_PK INTEGER PRIMARY KEY, ZTYPE INTEGER, ZUSER INTEGER,
        ZTIMESTAMP TIMESTAMP, ZRECEIVEDTIMESTAMP TIMESTAMP, ZBODY VARCHAR))",
    "CREATE INDEX ZKIKMESSAGE_ZUSER_INDEX ON ZKIKMESSAGE (ZUSER)",
    R"(CREATE TABLE ZKIKUSER (Z_PK INTEGER PRIMARY KEY, ZDISPLAYNAME VARCHAR, ZUSERNAME VARCHAR,
            ZJID VARCHAR))",
    "CREATE TABLE ZKIKATTACHMENT (Z_PK INTEGER PRIMARY KEY, ZMESSAGE INTEGER, ZCONTENT VARCHAR)",
    "CREATE TABLE Z_4MEMBERS (Z_4GROUPS INTEGER, Z_4MEMBERS INTEGER)",
    R"(INSERT INTO ZKIKUSER VALUES (1, 'Mia', 'mia_87', 'j1'), (2, 'Skate park', NULL, 'j2'),
            (3, NULL, 'jo', 'j3'))",
    "INSERT INTO Z_4MEMBERS VALUES (2, 1), (2, 3)"};

QString message(int chat, int type, const QString& body, int second = 0)
{
    return QString("INSERT INTO ZKIKMESSAGE (ZUSER, ZTYPE, ZBODY, ZTIMESTAMP)"
                   " VALUES (%1, %2, %3, %4)")
        .arg(chat)
        .arg(type)
        .arg(body)
        .arg(700'000'000 + second);
}

class KikChatsTest : public ChatTest {
protected:
    void openWith(const QStringList& statements)
    {
        builder().addDatabase(kDomain, kAccount + "kik.sqlite", kSchema + statements);
        openFolder();
    }
};

TEST_F(KikChatsTest, ChatHasTheShownNameAndTheUsersName)
{
    openWith({message(1, 1, "'x'", 3), message(2, 1, "'x'", 2), message(3, 1, "'x'", 1)});
    EXPECT_EQ(lines(kChats),
        QStringList({"Mia | mia_87 | ", "Skate park | Skate park | ", "jo | jo | "}));
}

TEST_F(KikChatsTest, GroupWithoutANameIsCalledByItsMembers)
{
    openWith({"UPDATE ZKIKUSER SET ZDISPLAYNAME = NULL WHERE Z_PK = 2", message(2, 1, "'x'")});
    EXPECT_EQ(column(kChats, 0), QStringList("Mia, jo"));
}

TEST_F(KikChatsTest, TypeTellsWhoseMessageItIs)
{
    struct Row {
        int type = 0;
        const char* body = "'x'";
        const char* line = nullptr;
    };
    const std::array rows{
        Row{1, "'x'", "< [0] x"},
        Row{2, "'x'", "> [0] x"},
        Row{3, "'Jo has joined'", "< [6] Jo has joined"},
        Row{4, "NULL", "< [6] [System message]"},
        Row{9, "'x'", "< [0] x"},
        Row{1, "NULL", "< [6] [Unknown message]"},
    };
    QStringList statements;
    QStringList expected;
    for (const Row& row : rows) {
        statements.append(message(2, row.type, row.body, expected.size()));
        expected.append(row.line);
    }
    openWith(statements);
    EXPECT_EQ(shownMessages(kChats, 0), expected);
    EXPECT_EQ(dates(kChats, 0).first(), "2023-03-08T20:26:40.000Z");
}

TEST_F(KikChatsTest, ReceivedDateServesWhereThereIsNoOther)
{
    openWith({"INSERT INTO ZKIKMESSAGE (ZUSER, ZTYPE, ZBODY, ZTIMESTAMP, ZRECEIVEDTIMESTAMP)"
              " VALUES (1, 1, 'x', NULL, 700000000.5), (1, 1, 'y', 0, 700000001)"});
    EXPECT_EQ(
        dates(kChats, 0), QStringList({"2023-03-08T20:26:40.500Z", "2023-03-08T20:26:41.000Z"}));
}

TEST_F(KikChatsTest, FirstBytesTellWhatAFileIs)
{
    builder()
        .add(kDomain, kAccount + "content_manager/data_cache/aaa", kJpeg)
        .add(kDomain, kAccount + "attachments/bbb", kFilm)
        .add(kDomain, kAccount + "attachments/ccc", "unknown")
        .add(kDomain, "cores/private/other/attachments/ddd", "another account's")
        .add(kDomain, kAccount + "attachments/eee", kJpeg);
    openWith({message(1, 1, "'Look'"), message(1, 2, "NULL", 1), message(1, 1, "NULL", 2),
        message(1, 1, "NULL", 3),
        R"(INSERT INTO ZKIKATTACHMENT (ZMESSAGE, ZCONTENT) VALUES (1, 'aaa'), (2, 'bbb'), (3, 'ccc'),
            (4, 'ddd'), (1, 'bbb'))"});
    const QString jpeg = QString::fromUtf8(kJpeg);
    const QString film = QString::fromUtf8(kFilm);
    EXPECT_EQ(shownMessages(kChats, 0),
        QStringList({"< [1]  {" + jpeg + "}", "< [0] Look", "< [2]  {" + film + "}",
            "> [2]  {" + film + "}", "< [8]  {unknown}", "< [8] "}));
    EXPECT_EQ(files(kFiles),
        QStringList({"aaa.jpg < Mia = " + jpeg, "bbb.mp4 < Mia = " + film,
            "bbb.mp4 < Mia = " + film, "ccc < Mia = unknown", "eee.jpg < _ = " + jpeg}));
}

TEST_F(KikChatsTest, ContentThatLeadsElsewhereFindsNothing)
{
    builder().add(kDomain, kAccount + "secret", kJpeg);
    openWith({message(1, 1, "'x'"),
        "INSERT INTO ZKIKATTACHMENT (ZMESSAGE, ZCONTENT) VALUES (1, '../../secret')"});
    EXPECT_EQ(shownMessages(kChats, 0), QStringList("< [8] x"));
}

TEST_F(KikChatsTest, AccountsMakeOneList)
{
    builder().addDatabase(kDomain, "cores/private/fedcba9876543210fedcba9876543210/kik.sqlite",
        kSchema + QStringList{message(3, 1, "'x'", 5)});
    openWith({message(1, 1, "'x'", 9), message(2, 1, "'x'", 1)});
    EXPECT_EQ(column(kChats, 0), QStringList({"Mia", "jo", "Skate park"}));
}

TEST_F(KikChatsTest, OlderPlaceIsReadWhereTheNewerHasNothing)
{
    builder().addDatabase("AppDomain-com.kik.chat", "Documents/kik.sqlite",
        {"CREATE TABLE ZKIKMESSAGE (Z_PK INTEGER PRIMARY KEY, ZTYPE, ZUSER, ZTIMESTAMP, ZBODY)",
            "CREATE TABLE ZKIKUSER (Z_PK INTEGER PRIMARY KEY, ZDISPLAYNAME)",
            "INSERT INTO ZKIKUSER VALUES (1, 'Mia')", message(1, 2, "'x'")});
    openFolder();
    EXPECT_EQ(lines(kChats), QStringList("Mia | Mia | "));
    EXPECT_EQ(shownMessages(kChats, 0), QStringList("> [0] x"));
    EXPECT_EQ(notices("kik.sqlite"), QStringList());
}

TEST_F(KikChatsTest, OlderPlaceIsReadWhereItHasMore)
{
    builder().addDatabase("AppDomain-com.kik.chat", "Documents/kik.sqlite",
        kSchema + QStringList{message(3, 1, "'x'"), message(3, 2, "'y'")});
    openWith({message(1, 1, "'z'")});
    EXPECT_EQ(column(kChats, 0), QStringList("jo"));
}

TEST_F(KikChatsTest, MessagesOfALostChatAreThere)
{
    openWith({message(77, 1, "'x'"), message(1, 1, "'y'", 9),
        "INSERT INTO ZKIKMESSAGE (ZTYPE, ZBODY) VALUES (1, 'z')"});
    EXPECT_EQ(column(kChats, 0), QStringList({"Mia", "Unknown", "Unknown"}));
    EXPECT_EQ(shownMessages(kChats, 1), QStringList("< [0] x"));
    EXPECT_EQ(shownMessages(kChats, 2), QStringList("< [0] z"));
}

} // namespace
