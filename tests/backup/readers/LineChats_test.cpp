// SPDX-License-Identifier: MIT
#include "ChatTest.h"

#include <array>

namespace {

constexpr int kChats = 9;
constexpr int kFiles = 10;

const QString kGroupDomain = "AppDomainGroup-group.com.linecorp.line";
const QString kAppDomain = "AppDomain-jp.naver.line";
const QString kStore = "Library/Application Support/PrivateStore/";
const QString kAccount = kStore + "P_ume/";

const QStringList kSchema{
    R"(CREATE TABLE ZMESSAGE (Z_PK INTEGER PRIMARY KEY, ZCHAT INTEGER, ZSENDER INTEGER,
        ZTIMESTAMP INTEGER, ZCONTENTTYPE INTEGER, ZSENDSTATUS INTEGER, ZLATITUDE FLOAT,
        ZLONGITUDE FLOAT, ZID VARCHAR, ZTEXT VARCHAR, ZCONTENTMETADATA BLOB))",
    "CREATE INDEX ZMESSAGE_ZCHAT_INDEX ON ZMESSAGE (ZCHAT)",
    "CREATE TABLE ZCHAT (Z_PK INTEGER PRIMARY KEY, ZTYPE INTEGER, ZMID VARCHAR)",
    R"(CREATE TABLE ZUSER (Z_PK INTEGER PRIMARY KEY, ZMID VARCHAR, ZNAME VARCHAR,
        ZCUSTOMNAME VARCHAR, ZADDRESSBOOKNAME VARCHAR))",
    "CREATE TABLE ZGROUP (Z_PK INTEGER PRIMARY KEY, ZID VARCHAR, ZNAME VARCHAR)",
    R"(CREATE TABLE ZCONTACT (Z_PK INTEGER PRIMARY KEY, ZMID VARCHAR, ZNAME VARCHAR,
            ZPHONENUMBER VARCHAR))",
    "CREATE TABLE Z_3MEMBERS (Z_3GROUPS INTEGER, Z_9MEMBERS INTEGER)",
    "INSERT INTO ZUSER (Z_PK, ZMID, ZNAME) VALUES (1, 'ua', 'Ken'), (2, 'ub', 'Aoi')",
    "INSERT INTO ZCHAT VALUES (1, 0, 'ua'), (2, 2, 'cx')",
    "INSERT INTO ZGROUP VALUES (1, 'cx', 'Choir')"};

QString message(const QString& columns, const QString& values)
{
    return "INSERT INTO ZMESSAGE (" + columns + ") VALUES (" + values + ")";
}

// A received text, so that the chat is listed.
QString text(int chat, int second = 1)
{
    return message("ZCHAT, ZSENDER, ZTIMESTAMP, ZCONTENTTYPE, ZTEXT",
        QString("%1, 1, %2, 0, 'Hi'").arg(chat).arg(1'700'000'000'000 + second * 1000LL));
}

class LineChatsTest : public ChatTest {
protected:
    void openWith(const QStringList& statements)
    {
        builder().addDatabase(
            kGroupDomain, kAccount + "Messages/Line.sqlite", kSchema + statements);
        openFolder();
    }
};

TEST_F(LineChatsTest, ChatHasTheNamesAndTheNumberOfItsPerson)
{
    struct Row {
        const char* what = nullptr;
        const char* user = nullptr; ///< name, custom name, name in the book
        const char* phone = "NULL";
        const char* line = nullptr;
    };
    const std::array rows{
        Row{"own name", "'Ken', NULL, NULL", "NULL", "Ken | Ken | "},
        Row{"name that the owner gave", "'Ken', 'Kenny', 'Ken B.'", "NULL", "Kenny | Ken | "},
        Row{"name in the book", "'Ken', '', 'Ken B.'", "NULL", "Ken B. | Ken | "},
        Row{"address book", "'Ken', NULL, NULL", "'+491715550101'",
            "Mia Holm | Ken | +491715550101"},
        Row{"number alone", "NULL, NULL, NULL", "'491715550999'",
            "+491715550999 | +491715550999 | +491715550999"},
        Row{"nothing", "NULL, NULL, NULL", "NULL", "Unknown | Unknown | "},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const QTemporaryDir directory;
        BackupBuilder backup(directory.filePath("backup"));
        backup
            .addDatabase(kGroupDomain, kAccount + "Messages/Line.sqlite",
                kSchema
                    + QStringList{"DELETE FROM ZUSER",
                        QString("INSERT INTO ZUSER (Z_PK, ZMID, ZNAME, ZCUSTOMNAME,"
                                " ZADDRESSBOOKNAME) VALUES (1, 'ua', %1)")
                            .arg(row.user),
                        QString("INSERT INTO ZCONTACT (ZMID, ZPHONENUMBER) VALUES ('ua', %1)")
                            .arg(row.phone),
                        text(1)})
            .addDatabase("HomeDomain", "Library/AddressBook/AddressBook.sqlitedb", kChatAddressBook)
            .finish();
        take(backup::openBackupFolder(directory.filePath("backup")));
        EXPECT_EQ(lines(kChats), QStringList(row.line));
    }
}

TEST_F(LineChatsTest, ChatsWithoutMessagesAreLeftOutAndTheNewestComesFirst)
{
    openWith({"INSERT INTO ZCHAT VALUES (3, 0, 'ub')", text(1, 5), text(2, 9)});
    EXPECT_EQ(lines(kChats), QStringList({"Choir | Choir | ", "Ken | Ken | "}));
}

TEST_F(LineChatsTest, GroupWithoutANameIsCalledByItsMembers)
{
    openWith({"INSERT INTO ZCHAT VALUES (3, 1, 'ry')", "INSERT INTO ZGROUP VALUES (7, 'ry', NULL)",
        "INSERT INTO Z_3MEMBERS VALUES (7, 1), (7, 2)",
        "INSERT INTO ZCONTACT (ZMID, ZPHONENUMBER) VALUES ('ub', '+8135550100')", text(3)});
    EXPECT_EQ(lines(kChats), QStringList("Ken, Aoi | Ken, Aoi | +8135550100"));
}

TEST_F(LineChatsTest, NewerReleasesNameGroupsInADatabaseBeside)
{
    builder().addDatabase(kGroupDomain, kAccount + "Messages/UnifiedGroup.sqlite",
        {"CREATE TABLE ZUNIFIEDGROUP (Z_PK INTEGER PRIMARY KEY, ZID VARCHAR, ZNAME VARCHAR)",
            "INSERT INTO ZUNIFIEDGROUP VALUES (1, 'cz', 'Rowing')"});
    openWith({"INSERT INTO ZCHAT VALUES (3, 2, 'cz')", text(3)});
    EXPECT_EQ(lines(kChats), QStringList("Rowing | Rowing | "));
}

TEST_F(LineChatsTest, MessagesStandByTheirDatesInUtc)
{
    openWith({message("ZCHAT, ZSENDER, ZTIMESTAMP, ZCONTENTTYPE, ZTEXT",
                  "1, 1, 1700000001500, 0, 'second'"),
        message(
            "ZCHAT, ZSENDER, ZTIMESTAMP, ZCONTENTTYPE, ZTEXT", "1, 1, 1700000000000, 0, 'first'")});
    EXPECT_EQ(shownMessages(kChats, 0), QStringList({"< [0] first", "< [0] second"}));
    EXPECT_EQ(
        dates(kChats, 0), QStringList({"2023-11-14T22:13:20.000Z", "2023-11-14T22:13:21.500Z"}));
}

TEST_F(LineChatsTest, SenderAndStatusTellWhoseMessageItIs)
{
    struct Row {
        const char* what = nullptr;
        const char* values = nullptr; ///< sender, type, status
        const char* line = nullptr;
    };
    const std::array rows{
        Row{"received", "2, 0, 0", "< [0] Aoi: x"},
        Row{"own", "NULL, 0, 1", "> [0] x"},
        Row{"own, of a store that marks nobody by -1", "-1, 0, 1", "> [0] x"},
        Row{"own, not sent", "NULL, 0, 2", "! [0] x"},
        Row{"own of a release without a status", "NULL, 0, NULL", "> [0] x"},
        Row{"the application's line", "NULL, 18, 1", "< [6] x"},
    };
    QStringList statements;
    QStringList expected;
    for (const Row& row : rows) {
        statements.append(message("ZCHAT, ZTIMESTAMP, ZTEXT, ZSENDER, ZCONTENTTYPE, ZSENDSTATUS",
            QString("2, %1, 'x', %2").arg(1'700'000'000'000 + expected.size()).arg(row.values)));
        expected.append(row.line);
    }
    openWith(statements);
    EXPECT_EQ(shownMessages(kChats, 0), expected);
}

TEST_F(LineChatsTest, ContentTypeTellsTheKind)
{
    struct Row {
        int type = 0;
        const char* withText = nullptr;
        const char* withoutText = nullptr;
    };
    const std::array rows{
        Row{0, "< [0] x", "< [6] [Unknown message]"},
        Row{1, "< [1] x", "< [1] "},
        Row{2, "< [2] x", "< [2] "},
        Row{3, "< [3] x", "< [3] "},
        Row{6, "< [6] [Call]", "< [6] [Call]"},
        Row{7, "< [1] x", "< [1] [Sticker]"},
        Row{13, "< [4] x", "< [4] [Contact]"},
        Row{14, "< [8] x", "< [8] "},
        Row{16, "< [7] x", "< [7] [Album or post]"},
        Row{18, "< [6] x", "< [6] [System message]"},
        Row{100, "< [5] x\n52.5163, 13.3777", "< [5] 52.5163, 13.3777"},
        Row{111, "< [7] x", "< [7] [Album]"},
        Row{112, "< [1] x", "< [1] "},
        Row{99, "< [0] x", "< [6] [Unknown message]"},
    };
    QStringList statements;
    QStringList expected;
    for (const Row& row : rows) {
        for (const char* text : {"'x'", "NULL"}) {
            statements.append(
                message("ZCHAT, ZSENDER, ZTIMESTAMP, ZLATITUDE, ZLONGITUDE, ZCONTENTTYPE, ZTEXT",
                    QString("1, 1, %1, 52.5163, 13.3777, %2, %3")
                        .arg(1'700'000'000'000 + expected.size())
                        .arg(row.type)
                        .arg(text)));
            expected.append(text[0] == '\'' ? row.withText : row.withoutText);
        }
    }
    openWith(statements);
    EXPECT_EQ(shownMessages(kChats, 0), expected);
}

TEST_F(LineChatsTest, MetadataTellOfCallsContactsAndFiles)
{
    struct Row {
        const char* what = nullptr;
        const char* senderAndType = nullptr;
        const char* metadata = nullptr;
        const char* line = nullptr;
    };
    const std::array rows{
        Row{"call", "1, 6",
            "<key>TYPE</key><string>A</string><key>DURATION</key>"
            "<string>312000</string>",
            "< [6] Incoming voice call (0:05:12)"},
        Row{"own call with pictures", "NULL, 6",
            "<key>TYPE</key><string>V</string><key>RESULT</key><string>NORMAL</string>",
            "> [6] Outgoing video call"},
        Row{"missed call", "1, 6",
            "<key>TYPE</key><string>A</string><key>RESULT</key><string>CANCELED</string>",
            "< [6] Missed voice call"},
        Row{"contact", "1, 13", "<key>displayName</key><string>Emi</string>", "< [4] Emi"},
        Row{"file", "1, 14", "<key>FILE_NAME</key><string>plan.pdf</string>", "< [8] plan.pdf"},
    };
    QStringList statements;
    QStringList expected;
    for (const Row& row : rows) {
        statements.append(
            message("ZCHAT, ZTIMESTAMP, ZSENDSTATUS, ZSENDER, ZCONTENTTYPE, ZCONTENTMETADATA",
                QString("1, %1, 1, %2, x'%3'")
                    .arg(1'700'000'000'000 + expected.size())
                    .arg(row.senderAndType)
                    .arg(QString(propertyList(row.metadata).toHex()))));
        expected.append(row.line);
    }
    openWith(statements);
    EXPECT_EQ(shownMessages(kChats, 0), expected);
}

TEST_F(LineChatsTest, MetadataMayStandBehindTheMarkOfWhatIsInTheStore)
{
    openWith({message("ZCHAT, ZSENDER, ZTIMESTAMP, ZCONTENTTYPE, ZCONTENTMETADATA",
        "1, 1, 1700000000000, 13, x'01"
            + QString(propertyList("<key>displayName</key><string>Emi</string>").toHex()) + "'")});
    EXPECT_EQ(shownMessages(kChats, 0), QStringList("< [4] Emi"));
}

TEST_F(LineChatsTest, MediaAreFoundByChatAndMessage)
{
    builder()
        .add(kGroupDomain, kAccount + "Message Attachments/ua/11.jpg", "full")
        .add(kGroupDomain, kAccount + "Message Thumbnails/ua/11.thumb", "small")
        .add(kGroupDomain, kAccount + "Message Thumbnails/ua/12.thumb", "preview")
        .add(kAppDomain, kAccount + "Message Attachments/ua/13.m4a", "voice")
        .add(kGroupDomain, kStore + "P_other/Message Attachments/ua/14.mp4", "another account's")
        .add(kGroupDomain, kAccount + "Message Attachments/cx/99.mp4", "left over");
    QStringList statements{text(2)};
    for (const char* values : {"1, '11'", "2, '12'", "3, '13'", "2, '14'"}) {
        statements.append(message("ZCHAT, ZSENDER, ZTIMESTAMP, ZCONTENTTYPE, ZID",
            QString("1, 1, 1700000000000, %1").arg(values)));
    }
    openWith(statements);
    EXPECT_EQ(shownMessages(kChats, 1),
        QStringList({"< [1]  {full}", "< [2]  {preview}", "< [3]  {voice}", "< [2] "}));
    EXPECT_EQ(files(kFiles), QStringList({"11.jpg < Ken = full", "12.jpg < Ken = preview",
                                 "13.m4a < Ken = voice", "99.mp4 < Choir = left over"}));
    EXPECT_EQ(file(kFiles, 0).getDetailInfoDateTime(), "2023-11-14T22:13:20Z");
}

TEST_F(LineChatsTest, FileHasItsNameForPeople)
{
    builder().add(kGroupDomain, kAccount + "Message Attachments/ua/11.pdf", "plan");
    openWith({message("ZCHAT, ZSENDER, ZTIMESTAMP, ZCONTENTTYPE, ZID, ZCONTENTMETADATA",
        "1, 1, 1700000000000, 14, '11', x'"
            + QString(propertyList("<key>FILE_NAME</key><string>../plan.pdf</string>").toHex())
            + "'")});
    EXPECT_EQ(files(kFiles), QStringList("plan.pdf < Ken = plan"));
}

TEST_F(LineChatsTest, IdThatLeadsElsewhereFindsNothing)
{
    builder().add(kGroupDomain, kAccount + "Messages/secret.jpg", "secret");
    openWith({message("ZCHAT, ZSENDER, ZTIMESTAMP, ZCONTENTTYPE, ZID",
        "1, 1, 1700000000000, 1, '../../Messages/secret'")});
    EXPECT_EQ(shownMessages(kChats, 0), QStringList("< [1] "));
    EXPECT_EQ(files(kFiles), QStringList());
}

TEST_F(LineChatsTest, AccountsMakeOneList)
{
    builder().addDatabase(kGroupDomain, kStore + "P_uother/Messages/Line.sqlite",
        kSchema + QStringList{text(2, 1), text(1, 3)});
    openWith({text(1, 2)});
    EXPECT_EQ(lines(kChats), QStringList({"Ken | Ken | ", "Ken | Ken | ", "Choir | Choir | "}));
}

TEST_F(LineChatsTest, OlderPlaceIsReadWhereTheNewerOneHasNothing)
{
    builder()
        .addDatabase(kGroupDomain, kAccount + "Messages/Line.sqlite", kSchema)
        .addDatabase(kAppDomain, "Documents/talk.sqlite", kSchema + QStringList{text(1)});
    openFolder();
    EXPECT_EQ(lines(kChats), QStringList("Ken | Ken | "));
}

TEST_F(LineChatsTest, OfTwoPlacesTheOneWithMoreMessagesIsRead)
{
    struct Row {
        const char* what = nullptr;
        QStringList newer;
        QStringList older;
        QStringList chats;
    };
    const std::array rows{
        Row{"newer has more", {text(1), text(1)}, {text(2)}, {"Ken"}},
        Row{"older has more", {text(1)}, {text(2), text(2)}, {"Choir"}},
        Row{"as many", {text(1)}, {text(2)}, {"Ken"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const QTemporaryDir directory;
        BackupBuilder backup(directory.filePath("backup"));
        backup.addDatabase(kGroupDomain, kAccount + "Messages/Line.sqlite", kSchema + row.newer)
            .addDatabase(kAppDomain, kAccount + "Messages/Line.sqlite", kSchema + row.older)
            .finish();
        take(backup::openBackupFolder(directory.filePath("backup")));
        EXPECT_EQ(column(kChats, 0), row.chats);
    }
}

TEST_F(LineChatsTest, PeopleWithoutAMidAreNotTakenForEachOther)
{
    openWith({"INSERT INTO ZUSER (Z_PK, ZMID, ZNAME) VALUES (7, NULL, 'Emi'), (8, NULL, 'Rin')",
        "INSERT INTO ZCONTACT (ZMID, ZPHONENUMBER) VALUES (NULL, '+8135550100')",
        "INSERT INTO ZCHAT VALUES (3, 0, NULL), (4, 2, NULL)",
        "INSERT INTO ZGROUP VALUES (7, NULL, 'Lost')",
        message("ZCHAT, ZSENDER, ZTIMESTAMP, ZCONTENTTYPE, ZTEXT", "4, 8, 1500000000000, 0, 'z'"),
        message("ZCHAT, ZSENDER, ZTIMESTAMP, ZCONTENTTYPE, ZTEXT", "2, 7, 1700000000000, 0, 'x'"),
        message("ZCHAT, ZSENDER, ZTIMESTAMP, ZCONTENTTYPE, ZTEXT", "2, 8, 1700000000001, 0, 'y'"),
        message("ZCHAT, ZSENDER, ZTIMESTAMP, ZCONTENTTYPE, ZTEXT", "3, 8, 1600000000000, 0, 'z'")});
    EXPECT_EQ(shownMessages(kChats, 0), QStringList({"< [0] Emi: x", "< [0] Rin: y"}));
    EXPECT_EQ(lines(kChats),
        QStringList({"Choir | Choir | ", "Unknown | Unknown | ", "Unknown | Unknown | "}));
}

TEST_F(LineChatsTest, AbsurdDateIsNone)
{
    openWith({message("ZCHAT, ZSENDER, ZTIMESTAMP, ZCONTENTTYPE, ZTEXT",
                  "1, 1, 9223372036854775807, 0, 'absurd'"),
        message("ZCHAT, ZSENDER, ZTIMESTAMP, ZCONTENTTYPE, ZTEXT", "1, 1, 0, 0, 'none'"), text(1),
        text(2, 9)});
    EXPECT_EQ(column(kChats, 0), QStringList({"Choir", "Ken"}));
    EXPECT_EQ(dates(kChats, 1), QStringList({"-", "-", "2023-11-14T22:13:21.000Z"}));
}

TEST_F(LineChatsTest, ReleaseWithFewColumnsIsRead)
{
    builder().addDatabase(kGroupDomain, kAccount + "Messages/Line.sqlite",
        {R"(CREATE TABLE ZMESSAGE (Z_PK INTEGER PRIMARY KEY, ZCHAT, ZSENDER, ZTIMESTAMP,
            ZCONTENTTYPE, ZTEXT))",
            "CREATE TABLE ZCHAT (Z_PK INTEGER PRIMARY KEY, ZMID)",
            "CREATE TABLE ZUSER (Z_PK INTEGER PRIMARY KEY, ZMID, ZNAME)",
            "INSERT INTO ZUSER VALUES (1, 'ua', 'Ken')", "INSERT INTO ZCHAT VALUES (1, 'ua')",
            text(1), text(5)});
    openFolder();
    EXPECT_EQ(lines(kChats), QStringList({"Ken | Ken | ", "Unknown |  | "}));
    EXPECT_EQ(shownMessages(kChats, 0), QStringList("< [0] Hi"));
    EXPECT_EQ(notices("Line.sqlite"), QStringList());
}

TEST_F(LineChatsTest, MessagesAroundADamagedPageAreThere)
{
    QStringList statements = kSchema + QStringList("DROP INDEX ZMESSAGE_ZCHAT_INDEX");
    for (int i = 0; i < 2000; ++i) {
        statements.append(text(1 + i % 2, i));
    }
    QByteArray bytes = databaseBytes(statements).file;
    const int damaged = bytes.size() / 4096 / 2;
    bytes.replace(damaged * 4096, 4096, QByteArray(4096, '\xFF'));
    builder().add(kGroupDomain, kAccount + "Messages/Line.sqlite", bytes);
    openFolder();
    ASSERT_EQ(lines(kChats).size(), 2);
    for (int row = 0; row < 2; ++row) {
        EXPECT_GT(shownMessages(kChats, row).size(), 800);
        EXPECT_LT(shownMessages(kChats, row).size(), 1001);
    }
    EXPECT_EQ(notices("damaged").size(), 1);
}

TEST_F(LineChatsTest, LooseDatabaseFindsMediaBesideIt)
{
    openFile(kSchema
             + QStringList{message(
                 "ZCHAT, ZSENDER, ZTIMESTAMP, ZCONTENTTYPE, ZID", "1, 1, 1700000000000, 1, '11'")});
    writeFile(m_directory.filePath("Message Attachments/ua/11.jpg"), "full");
    EXPECT_EQ(shownMessages(kChats, 0), QStringList("< [1]  {full}"));
}

} // namespace
