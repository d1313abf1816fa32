// SPDX-License-Identifier: MIT
#include "ChatTest.h"

#include <array>

namespace {

constexpr int kChats = 11;
constexpr int kFiles = 12;
constexpr int kCalls = 13;

const QString kGroupDomain = "AppDomainGroup-group.viber.share.container";
const QString kAppDomain = "AppDomain-com.viber";
const QString kPath = "com.viber/database/Contacts.data";

// 700,000,000 seconds after 2001 began it was 2023-03-08 20:26:40 UTC.
const QStringList kSchema{
    R"(CREATE TABLE ZVIBERMESSAGE (Z_PK INTEGER PRIMARY KEY, ZCONVERSATION INTEGER,
        ZPHONENUMINDEX INTEGER, ZATTACHMENT INTEGER, ZLOCATION INTEGER, ZLIKESCOUNT INTEGER,
        ZBEINGDELETED INTEGER, ZDATE TIMESTAMP, ZSTATE VARCHAR, ZSYSTEMTYPE VARCHAR,
        ZTEXT VARCHAR))",
    "CREATE INDEX ZVIBERMESSAGE_ZCONVERSATION_INDEX ON ZVIBERMESSAGE (ZCONVERSATION)",
    R"(CREATE TABLE ZCONVERSATION (Z_PK INTEGER PRIMARY KEY, ZINTERLOCUTOR INTEGER,
        ZBEINGDELETED INTEGER, ZNAME VARCHAR, ZGROUPID VARCHAR))",
    R"(CREATE TABLE ZMEMBER (Z_PK INTEGER PRIMARY KEY, ZDISPLAYFULLNAME VARCHAR,
        ZDISPLAYSHORTNAME VARCHAR, ZNAME VARCHAR))",
    R"(CREATE TABLE ZPHONENUMBER (Z_PK INTEGER PRIMARY KEY, ZMEMBER INTEGER, ZPHONE VARCHAR,
        ZCANONIZEDPHONENUM VARCHAR))",
    "CREATE TABLE ZATTACHMENT (Z_PK INTEGER PRIMARY KEY, ZNAME VARCHAR, ZTYPE VARCHAR)",
    R"(CREATE TABLE ZVIBERLOCATION (Z_PK INTEGER PRIMARY KEY, ZLATITUDE FLOAT, ZLONGITUDE FLOAT,
        ZADDRESS VARCHAR))",
    R"(CREATE TABLE ZABCONTACT (Z_PK INTEGER PRIMARY KEY, ZPREFIXNAME VARCHAR, ZMAINNAME VARCHAR,
        ZSUFFIXNAME VARCHAR))",
    R"(CREATE TABLE ZABCONTACTNUMBER (Z_PK INTEGER PRIMARY KEY, ZCONTACT INTEGER, ZPHONE VARCHAR,
        ZCANONIZEDPHONENUM VARCHAR))",
    "CREATE TABLE Z_7PHONENUMINDEXES (Z_7CONVERSATIONS INTEGER, Z_12PHONENUMINDEXES INTEGER)",
    "INSERT INTO ZMEMBER VALUES (1, 'Mia', NULL, NULL), (2, 'Jo', NULL, NULL)",
    "INSERT INTO ZPHONENUMBER VALUES (1, 1, NULL, '+491715550101'), (2, 2, NULL, '+12025550114')",
    "INSERT INTO ZCONVERSATION VALUES (1, 1, 0, NULL, NULL), (2, NULL, 0, 'Boats', '5551')",
    "INSERT INTO Z_7PHONENUMINDEXES VALUES (2, 1), (2, 2)"};

const QString kCallSchema =
    "CREATE TABLE ZRECENT (Z_PK INTEGER PRIMARY KEY, ZCALLLOGMESSAGE INTEGER,"
    " ZRECENTSLINE INTEGER, ZDATE TIMESTAMP, ZDURATION FLOAT, ZCALLTYPE VARCHAR)";

QString message(const QString& columns, const QString& values)
{
    return "INSERT INTO ZVIBERMESSAGE (" + columns + ") VALUES (" + values + ")";
}

QString text(int chat, int second = 0)
{
    return message("ZCONVERSATION, ZPHONENUMINDEX, ZDATE, ZSTATE, ZTEXT",
        QString("%1, 1, %2, 'received', 'Hi'").arg(chat).arg(700'000'000 + second));
}

class ViberChatsTest : public ChatTest {
protected:
    void openWith(const QStringList& statements)
    {
        builder().addDatabase(kGroupDomain, kPath, kSchema + statements);
        openFolder();
    }
};

TEST_F(ViberChatsTest, ChatHasThePersonsNameAndNumberAGroupThoseOfItsMembers)
{
    openWith({text(1, 1), text(2)});
    EXPECT_EQ(lines(kChats),
        QStringList({"Mia | Mia | +491715550101", "Boats | Boats | +491715550101,+12025550114"}));
}

TEST_F(ViberChatsTest, NameComesFromViberThenTheBooksThenThePerson)
{
    struct Row {
        const char* what = nullptr;
        const char* member = nullptr; ///< full, short and own name
        const char* number = nullptr;
        const char* title = nullptr;
    };
    const std::array rows{
        Row{"as Viber shows", "'Mimi', 'M', 'mia87'", "'+491715550101'", "Mimi"},
        Row{"address book", "NULL, 'M', 'mia87'", "'+491715550101'", "Mia Holm"},
        Row{"Viber's copy of the book", "NULL, NULL, 'mia87'", "'+12025550199'", "Dr. Ann Lee"},
        Row{"her own name", "NULL, NULL, 'mia87'", "NULL", "mia87"},
        Row{"short name", "'', 'M', NULL", "NULL", "M"},
        Row{"number", "NULL, NULL, NULL", "'4917155509999'", "+4917155509999"},
        Row{"nothing", "NULL, NULL, NULL", "NULL", "Unknown"}, // though somebody has no number
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const QTemporaryDir directory;
        BackupBuilder backup(directory.filePath("backup"));
        backup
            .addDatabase(kGroupDomain, kPath,
                kSchema
                    + QStringList{"DELETE FROM ZMEMBER", "DELETE FROM ZPHONENUMBER",
                        QString("INSERT INTO ZMEMBER VALUES (1, %1)").arg(row.member),
                        QString("INSERT INTO ZPHONENUMBER VALUES (1, 1, NULL, %1)").arg(row.number),
                        "INSERT INTO ZABCONTACT VALUES (4, 'Dr.', 'Ann', 'Lee')",
                        "INSERT INTO ZABCONTACTNUMBER VALUES (1, 4, NULL, '+12025550199')",
                        "INSERT INTO ZABCONTACTNUMBER VALUES (2, 4, NULL, NULL)", text(1)})
            .addDatabase("HomeDomain", "Library/AddressBook/AddressBook.sqlitedb", kChatAddressBook)
            .finish();
        take(backup::openBackupFolder(directory.filePath("backup")));
        EXPECT_EQ(column(kChats, 0), QStringList(row.title));
    }
}

TEST_F(ViberChatsTest, ChatMarkedAsDeletedIsDeleted)
{
    openWith({"UPDATE ZCONVERSATION SET ZBEINGDELETED = 1 WHERE Z_PK = 2", text(1, 1), text(2)});
    EXPECT_EQ(lines(kChats),
        QStringList({"Mia | Mia | +491715550101", "x Boats | Boats | +491715550101,+12025550114"}));
}

TEST_F(ViberChatsTest, GroupWithoutANameIsCalledByItsMembers)
{
    openWith({"UPDATE ZCONVERSATION SET ZNAME = NULL", text(2)});
    EXPECT_EQ(column(kChats, 0), QStringList("Mia, Jo"));
}

TEST_F(ViberChatsTest, StateTellsWhoseMessageItIs)
{
    struct Row {
        const char* values = nullptr; ///< sender and state
        const char* line = nullptr;
    };
    const std::array rows{
        Row{"2, 'received'", "< [0] Jo: x"},
        Row{"NULL, 'send'", "> [0] x"},
        Row{"1, 'delivered'", "> [0] x"},
        Row{"NULL, 'other'", "> [0] x"},
        Row{"2, 'other'", "< [0] Jo: x"},
    };
    QStringList statements;
    QStringList expected;
    for (const Row& row : rows) {
        statements.append(message("ZCONVERSATION, ZTEXT, ZDATE, ZPHONENUMINDEX, ZSTATE",
            QString("2, 'x', %1, %2").arg(700'000'000 + expected.size()).arg(row.values)));
        expected.append(row.line);
    }
    openWith(statements);
    EXPECT_EQ(shownMessages(kChats, 0), expected);
    EXPECT_EQ(dates(kChats, 0).first(), "2023-03-08T20:26:40.000Z");
}

TEST_F(ViberChatsTest, KindComesFromAttachmentLocationOrSystemType)
{
    struct Row {
        const char* what = nullptr;
        const char* values = nullptr; ///< attachment, location, system type, text
        const char* line = nullptr;
    };
    const std::array rows{
        Row{"picture with a caption", "1, NULL, NULL, 'x'", "< [1] x"},
        Row{"film", "2, NULL, 'text', NULL", "< [2] "},
        Row{"sticker", "3, NULL, NULL, NULL", "< [1] [Sticker]"},
        Row{"file", "4, NULL, NULL, NULL", "< [8] plan.pdf"},
        Row{"unknown kind of sound", "5, NULL, NULL, NULL", "< [3] "},
        Row{"unknown kind of file", "6, NULL, NULL, NULL", "< [8] data.bin"},
        Row{"place", "NULL, 1, NULL, NULL", "< [5] Pier 7\n52.5163, 13.3777"},
        Row{"place with an attachment", "7, 1, NULL, 'Here'", "< [5] Here\n52.5163, 13.3777"},
        Row{"text", "NULL, NULL, 'text', 'x'", "< [0] x"},
        Row{"group event", "NULL, NULL, 'group_rename', 'x'", "< [6] x"},
        Row{"event without words", "NULL, NULL, 'group_rename', NULL", "< [6] [System message]"},
        Row{"nothing", "NULL, NULL, NULL, NULL", "< [6] [Unknown message]"},
        Row{"lost attachment", "99, NULL, NULL, NULL", "< [6] [Unknown message]"},
    };
    QStringList statements{
        "INSERT INTO ZATTACHMENT VALUES (1, 'a.jpg', 'picture'), (2, 'b.mp4', 'video'),"
        " (3, 'c.png', 'sticker'), (4, 'plan.pdf', 'file'), (5, 'd.m4a', 'ptt'),"
        " (6, 'data.bin', NULL), (7, 'map.png', 'customLocation')",
        "INSERT INTO ZVIBERLOCATION VALUES (1, 52.5163, 13.3777, 'Pier 7')"};
    QStringList expected;
    for (const Row& row : rows) {
        statements.append(message(
            "ZCONVERSATION, ZPHONENUMINDEX, ZSTATE, ZDATE, ZATTACHMENT, ZLOCATION, ZSYSTEMTYPE,"
            " ZTEXT",
            QString("1, 1, 'received', %1, %2")
                .arg(700'000'000 + expected.size())
                .arg(row.values)));
        expected.append(row.line);
    }
    openWith(statements);
    EXPECT_EQ(shownMessages(kChats, 0), expected);
}

TEST_F(ViberChatsTest, LikesAreCounted)
{
    openWith({message("ZCONVERSATION, ZPHONENUMINDEX, ZSTATE, ZTEXT, ZLIKESCOUNT",
                  "1, 1, 'received', 'x', 3"),
        message("ZCONVERSATION, ZPHONENUMINDEX, ZSTATE, ZTEXT, ZLIKESCOUNT",
            "1, 1, 'received', 'y', 0")});
    EXPECT_EQ(shownMessages(kChats, 0), QStringList({"< [0] x +3", "< [0] y"}));
    EXPECT_EQ(messagesOf(kChats, 0).front().getLikeType(), 1);
}

TEST_F(ViberChatsTest, MediaAreFoundByName)
{
    builder()
        .add(kAppDomain, "Documents/Attachments/a.jpg", "picture")
        .add(kGroupDomain, "com.viber/media/b.mp4", "film")
        .add(kGroupDomain, "com.viber/media/logo.png", "not a message's")
        .add(kAppDomain, "Documents/Attachments/old.jpg", "left over");
    openWith({"INSERT INTO ZATTACHMENT VALUES (1, 'a.jpg', 'picture'),"
              " (2, '../media/b.mp4', 'video'), (3, 'gone.jpg', 'picture')",
        message("ZCONVERSATION, ZPHONENUMINDEX, ZSTATE, ZATTACHMENT, ZDATE",
            "1, 1, 'received', 1, 700000000"),
        message("ZCONVERSATION, ZPHONENUMINDEX, ZSTATE, ZATTACHMENT, ZDATE",
            "1, 1, 'received', 2, 700000001"),
        message("ZCONVERSATION, ZPHONENUMINDEX, ZSTATE, ZATTACHMENT, ZDATE",
            "1, 1, 'received', 3, 700000002")});
    EXPECT_EQ(
        shownMessages(kChats, 0), QStringList({"< [1]  {picture}", "< [2]  {film}", "< [1] "}));
    EXPECT_EQ(files(kFiles),
        QStringList({"a.jpg < Mia = picture", "b.mp4 < Mia = film", "old.jpg < _ = left over"}));
}

TEST_F(ViberChatsTest, NameInTheOtherUnicodeFormIsTheSame)
{
    const QString composed = QString::fromUtf8("Caf\u00E9.jpg");
    builder().add(kAppDomain,
        "Documents/Attachments/" + composed.normalized(QString::NormalizationForm_D), "picture");
    openWith({"INSERT INTO ZATTACHMENT VALUES (1, '" + composed + "', 'picture')",
        message("ZCONVERSATION, ZPHONENUMINDEX, ZSTATE, ZATTACHMENT", "1, 1, 'received', 1")});
    EXPECT_EQ(shownMessages(kChats, 0), QStringList("< [1]  {picture}"));
    EXPECT_EQ(files(kFiles).size(), 1);
}

TEST_F(ViberChatsTest, LinksOfMinusOneLeadNowhere)
{
    openWith({"UPDATE ZCONVERSATION SET ZINTERLOCUTOR = -1, ZGROUPID = NULL, ZNAME = NULL"
              " WHERE Z_PK = 2",
        message(
            "ZCONVERSATION, ZPHONENUMINDEX, ZATTACHMENT, ZLOCATION, ZTEXT", "2, -1, -1, -1, 'x'")});
    EXPECT_EQ(column(kChats, 0), QStringList("Mia, Jo"));
    EXPECT_EQ(shownMessages(kChats, 0), QStringList("> [0] x"));
}

TEST_F(ViberChatsTest, CallsAreATable)
{
    struct Row {
        const char* type = nullptr;
        const char* shown = nullptr;
    };
    const std::array rows{
        Row{"missed", "0:00:00 | Missed | Viber"},
        Row{"missed_with_video", "0:00:00 | Missed | Viber Video"},
        Row{"outgoing_viber", "0:05:12 | Outgoing | Viber"},
        Row{"outgoing_viber_with_video", "0:05:12 | Outgoing | Viber Video"},
        Row{"incoming", "0:05:12 | Incoming | Viber"},
        Row{"incoming_with_video", "0:05:12 | Incoming | Viber Video"},
    };
    QStringList statements{kCallSchema, text(1)};
    QStringList expected;
    for (const Row& row : rows) {
        statements.append(
            QString("INSERT INTO ZRECENT (ZCALLLOGMESSAGE, ZDATE, ZDURATION, ZCALLTYPE)"
                    " VALUES (1, 700000000, 312, '%1')")
                .arg(row.type));
        expected.prepend(QString("Mia | +491715550101 | 2023-03-08 22:26 | ") + row.shown);
    }
    openWith(statements);
    EXPECT_EQ(lines(kCalls), expected);
}

TEST_F(ViberChatsTest, CallIsALineInItsChat)
{
    openWith({kCallSchema, message("ZCONVERSATION, ZPHONENUMINDEX, ZSTATE", "1, 1, 'received'"),
        "INSERT INTO ZRECENT (ZCALLLOGMESSAGE, ZDATE, ZCALLTYPE) VALUES (1, 700000000, 'missed')"});
    EXPECT_EQ(shownMessages(kChats, 0), QStringList("< [6] Missed voice call"));
}

TEST_F(ViberChatsTest, CallInAGroupIsThatOfItsCaller)
{
    openWith({kCallSchema, message("ZCONVERSATION, ZPHONENUMINDEX, ZSTATE", "2, 2, 'received'"),
        "INSERT INTO ZRECENT (ZCALLLOGMESSAGE, ZDATE, ZCALLTYPE) VALUES (1, 700000000, 'missed')"});
    EXPECT_EQ(lines(kCalls),
        QStringList("Jo | +12025550114 | 2023-03-08 22:26 | 0:00:00 | Missed | Viber"));
}

TEST_F(ViberChatsTest, CallTakesWhatItLacksFromItsLine)
{
    openWith({kCallSchema,
        "CREATE TABLE ZRECENTSLINE (Z_PK INTEGER PRIMARY KEY, ZDATE TIMESTAMP, ZCALLTYPE VARCHAR,"
        " ZPHONE VARCHAR)",
        "INSERT INTO ZRECENTSLINE VALUES (5, 700000000, 'incoming', '+491715550188')",
        "INSERT INTO ZRECENT (ZRECENTSLINE, ZDURATION) VALUES (5, 60)"});
    EXPECT_EQ(lines(kCalls), QStringList("+491715550188 | +491715550188 | 2023-03-08 22:26"
                                         " | 0:01:00 | Incoming | Viber"));
}

TEST_F(ViberChatsTest, CallWhoseMessageIsGoneHasTheNameOfVibersBook)
{
    openWith({kCallSchema, "ALTER TABLE ZRECENT ADD COLUMN ZPHONE VARCHAR",
        "INSERT INTO ZABCONTACT VALUES (4, NULL, 'Ann', NULL)",
        "INSERT INTO ZABCONTACTNUMBER VALUES (1, 4, '+12025550199', NULL)",
        R"(INSERT INTO ZRECENT (ZCALLLOGMESSAGE, ZDATE, ZCALLTYPE, ZPHONE)
            VALUES (99, 700000000, 'missed', '+12025550199'))"});
    EXPECT_EQ(lines(kCalls),
        QStringList("Ann | +12025550199 | 2023-03-08 22:26 | 0:00:00 | Missed | Viber"));
}

TEST_F(ViberChatsTest, WithoutCallsThereIsNoListOfThem)
{
    openWith({kCallSchema, text(1)});
    EXPECT_EQ(m_opened->records.getPRData(kCalls), nullptr);
    EXPECT_NE(m_opened->records.getPRData(kChats), nullptr);
}

TEST_F(ViberChatsTest, OlderPlacesAreReadWhereTheNewerHaveNothing)
{
    builder()
        .addDatabase(kGroupDomain, kPath, kSchema)
        .addDatabase(kAppDomain, "Documents/Contacts.data", kSchema + QStringList{text(1)});
    openFolder();
    EXPECT_EQ(column(kChats, 0), QStringList("Mia"));
}

TEST_F(ViberChatsTest, OlderPlaceIsReadWhereItHasMore)
{
    builder().addDatabase(
        kAppDomain, "Documents/Contacts.data", kSchema + QStringList{text(2), text(2)});
    openWith({text(1)});
    EXPECT_EQ(column(kChats, 0), QStringList("Boats"));
}

TEST_F(ViberChatsTest, OldReleaseWithFewColumnsIsRead)
{
    builder().addDatabase(kAppDomain, "Documents/Contacts.data",
        {R"(CREATE TABLE ZVIBERMESSAGE (Z_PK INTEGER PRIMARY KEY, ZCONVERSATION, ZDATE, ZSTATE,
            ZTEXT, ZPHONENUMBERINDEX))",
            "CREATE TABLE ZCONVERSATION (Z_PK INTEGER PRIMARY KEY, ZNAME, ZGROUPID)",
            "CREATE TABLE ZMEMBER (Z_PK INTEGER PRIMARY KEY, ZNAME)",
            "INSERT INTO ZMEMBER VALUES (1, 'Mia')",
            "INSERT INTO ZCONVERSATION VALUES (1, 'Boats', 'g')",
            "INSERT INTO ZVIBERMESSAGE VALUES (1, 1, 700000000, 'received', 'x', 1)"});
    openFolder();
    EXPECT_EQ(lines(kChats), QStringList("Boats | Boats | "));
    EXPECT_EQ(shownMessages(kChats, 0), QStringList("< [0] Mia: x"));
    EXPECT_EQ(notices("Contacts.data"), QStringList());
}

TEST_F(ViberChatsTest, MessagesAroundADamagedPageAreThere)
{
    QStringList statements = kSchema + QStringList("DROP INDEX ZVIBERMESSAGE_ZCONVERSATION_INDEX");
    for (int i = 0; i < 2000; ++i) {
        statements.append(text(1 + i % 2, i));
    }
    QByteArray bytes = databaseBytes(statements).file;
    const int damaged = bytes.size() / 4096 / 2;
    bytes.replace(damaged * 4096, 4096, QByteArray(4096, '\xFF'));
    builder().add(kGroupDomain, kPath, bytes);
    openFolder();
    ASSERT_EQ(lines(kChats).size(), 2);
    EXPECT_GT(shownMessages(kChats, 0).size(), 800);
    EXPECT_GT(shownMessages(kChats, 1).size(), 800);
    EXPECT_EQ(notices("damaged").size(), 1);
}

} // namespace
