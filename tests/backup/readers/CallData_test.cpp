// SPDX-License-Identifier: MIT
#include "LazyTableTest.h"

namespace {

constexpr int kCalls = 3;

// 2023-03-08 20:26:40 UTC is 700,000,000 seconds after 2001 began; the tests' clock is 2 hours
// ahead.
const QString kRecords =
    R"(CREATE TABLE ZCALLRECORD (Z_PK INTEGER PRIMARY KEY, ZADDRESS VARCHAR, ZNAME VARCHAR,
            ZDATE TIMESTAMP, ZDURATION FLOAT, ZORIGINATED INTEGER, ZANSWERED INTEGER,
            ZCALLTYPE INTEGER, ZSERVICE_PROVIDER VARCHAR, ZCALL_CATEGORY INTEGER))";

const QStringList kAddressBook{
    R"(CREATE TABLE ABPerson (ROWID INTEGER PRIMARY KEY, First TEXT, Last TEXT, Nickname TEXT,
            Organization TEXT))",
    R"(CREATE TABLE ABMultiValue (UID INTEGER PRIMARY KEY, record_id INTEGER, property INTEGER,
            value TEXT))",
    "INSERT INTO ABPerson (First) VALUES ('Mia'), ('Jo')",
    R"(INSERT INTO ABMultiValue (record_id, property, value) VALUES (1, 3, '0171 5550101'),
            (2, 4, 'jo@example.org'))"};

QString call(const QString& values)
{
    return "INSERT INTO ZCALLRECORD (ZADDRESS, ZNAME, ZDATE, ZDURATION, ZORIGINATED, ZANSWERED,"
           " ZCALLTYPE, ZSERVICE_PROVIDER, ZCALL_CATEGORY) VALUES ("
           + values + ")";
}

class CallDataTest : public LazyTableTest {
protected:
    void openWithBook(const QStringList& statements)
    {
        builder()
            .addDatabase("HomeDomain", "Library/CallHistoryDB/CallHistory.storedata", statements)
            .addDatabase("HomeDomain", "Library/AddressBook/AddressBook.sqlitedb", kAddressBook);
        openFolder();
    }
};

TEST_F(CallDataTest, CallHasNameNumberDateDurationTypeAndService)
{
    openWithBook({kRecords,
        call("'+491715550101', NULL, 700000000.5, 312.9, 0, 1, 1, 'com.apple.Telephony', 1")});
    EXPECT_EQ(lines(kCalls), QStringList("Mia | +491715550101 | 2023-03-08 22:26 | 0:05:12"
                                         " | Incoming | Phone"));
    const PRData* set = m_opened->records.getPRData(kCalls);
    QStringList headings;
    for (int i = 0; i < set->dataColumn(); ++i) {
        headings.append(set->columnName(i));
    }
    EXPECT_EQ(headings, QStringList({"Name", "Number", "Date", "Duration", "Type", "Service"}));
}

TEST_F(CallDataTest, NewestCallComesFirst)
{
    openWithBook({kRecords, call("'1', NULL, 700000000, 0, 0, 1, 1, NULL, NULL"),
        call("'2', NULL, 700000900, 0, 0, 1, 1, NULL, NULL"),
        call("'3', NULL, NULL, 0, 0, 1, 1, NULL, NULL"),
        call("'4', NULL, 700000300, 0, 0, 1, 1, NULL, NULL")});
    EXPECT_EQ(column(kCalls, 1), QStringList({"2", "4", "1", "3"}));
}

TEST_F(CallDataTest, TypeFollowsFromWhoCalledAndWhetherItWasAnswered)
{
    struct Row {
        const char* what = nullptr;
        QString values; ///< duration, originated, answered
        QString type;
    };
    const std::vector<Row> rows{
        {"taken", "10, 0, 1", "Incoming"},
        {"not taken", "0, 0, 0", "Missed"},
        {"made", "10, 1, 1", "Outgoing"},
        {"made, nobody answered", "0, 1, 0", "Outgoing"},
        {"unsaid, with a duration", "10, 0, NULL", "Incoming"},
        {"unsaid, without one", "0, NULL, NULL", "Missed"},
    };
    QStringList statements{kRecords};
    QStringList types;
    int date = 700000000;
    for (const Row& row : rows) {
        statements.append(
            call(QString("'1', NULL, %1, %2, 1, NULL, NULL").arg(--date).arg(row.values)));
        types.append(row.type);
    }
    openWithBook(statements);
    EXPECT_EQ(column(kCalls, 4), types);
}

TEST_F(CallDataTest, ServiceFollowsFromTypeProviderAndCategory)
{
    struct Row {
        QString values; ///< call type, provider, category
        QString service;
    };
    const std::vector<Row> rows{
        {"1, NULL, NULL", "Phone"},
        {"1, 'com.apple.Telephony', 1", "Phone"},
        {"NULL, NULL, NULL", "Phone"},
        {"8, NULL, NULL", "FaceTime Video"},
        {"8, 'com.apple.FaceTime', 2", "FaceTime Video"},
        {"16, 'com.apple.FaceTime', 1", "FaceTime Audio"},
        {"1, 'com.apple.FaceTime', 2", "FaceTime Video"},
        {"1, 'com.apple.FaceTime', NULL", "FaceTime"},
        {"0, 'net.whatsapp.WhatsApp', 1", "WhatsApp"},
        {"0, 'org.example.talk', 1", "org.example.talk"},
        {"0, NULL, NULL", "Other app"},
    };
    QStringList statements{kRecords};
    QStringList services;
    int date = 700000000;
    for (const Row& row : rows) {
        statements.append(call(QString("'1', NULL, %1, 0, 0, 1, %2").arg(--date).arg(row.values)));
        services.append(row.service);
    }
    openWithBook(statements);
    EXPECT_EQ(column(kCalls, 5), services);
}

TEST_F(CallDataTest, NameComesFromTheAddressBookThenTheStoreThenTheNumber)
{
    openWithBook({kRecords, call("'+49 171 5550101', 'Stored', 9, 0, 0, 1, 1, NULL, NULL"),
        call("'JO@example.org', NULL, 8, 0, 0, 1, 16, NULL, NULL"),
        call("'0305550199', 'Stored', 7, 0, 0, 1, 1, NULL, NULL"),
        call("'0305550199', '', 6, 0, 0, 1, 1, NULL, NULL"),
        call("NULL, NULL, 5, 0, 0, 1, 1, NULL, NULL"),
        call("'', NULL, 4, 0, 0, 1, 1, NULL, NULL")});
    EXPECT_EQ(column(kCalls, 0),
        QStringList({"Mia", "Jo", "Stored", "0305550199", "Unknown", "Unknown"}));
    EXPECT_EQ(column(kCalls, 1),
        QStringList({"+49 171 5550101", "JO@example.org", "0305550199", "0305550199", "", ""}));
}

TEST_F(CallDataTest, AllParticipantsOfAGroupCallAreNamed)
{
    openWithBook({kRecords, "CREATE TABLE ZHANDLE (Z_PK INTEGER PRIMARY KEY, ZVALUE VARCHAR)",
        R"(CREATE TABLE Z_3REMOTEPARTICIPANTHANDLES (Z_3REMOTEPARTICIPANTCALLS INTEGER,
                Z_5REMOTEPARTICIPANTHANDLES INTEGER))",
        "INSERT INTO ZHANDLE VALUES (1, '+491715550101'), (2, '+12025550123')",
        "INSERT INTO Z_3REMOTEPARTICIPANTHANDLES VALUES (1, 1), (1, 2), (1, 2), (2, 1), (3, 999)",
        call("'+12025550123', NULL, 9, 0, 1, 1, 8, NULL, NULL"),
        call("NULL, NULL, 8, 0, 1, 1, 8, NULL, NULL"),
        call("'0305550199', NULL, 7, 0, 1, 1, 8, NULL, NULL")});
    EXPECT_EQ(column(kCalls, 0), QStringList({"Mia, +12025550123", "Mia", "0305550199"}));
    EXPECT_EQ(column(kCalls, 1),
        QStringList({"+491715550101, +12025550123", "+491715550101", "0305550199"}));
}

TEST_F(CallDataTest, AddressOfTheFirstReleasesIsBytes)
{
    openFile(
        {R"(CREATE TABLE ZCALLRECORD (Z_PK INTEGER PRIMARY KEY, ZADDRESS BLOB, ZDATE, ZDURATION,
            ZORIGINATED, ZANSWERED, ZCALLTYPE))",
            "INSERT INTO ZCALLRECORD VALUES (1, x'2b34393137', 700000000, 61, 1, 1, 1)"});
    EXPECT_EQ(lines(kCalls),
        QStringList("+4917 | +4917 | 2023-03-08 22:26 | 0:01:01 | Outgoing | Phone"));
    EXPECT_EQ(notices(""), QStringList());
}

TEST_F(CallDataTest, OldStoreCountsFrom1970AndHasFlags)
{
    // 2012-06-01 10:00:00 UTC
    builder().addDatabase("WirelessDomain", "Library/CallHistory/call_history.db",
        {R"(CREATE TABLE call (ROWID INTEGER PRIMARY KEY, address TEXT, date INTEGER,
            duration INTEGER, flags INTEGER, id INTEGER, name TEXT))",
            R"(INSERT INTO call VALUES (1, '0401', 1338544800, 3725, 4, -1, NULL),
            (2, '0402', 1338544860, 0, 4, -1, ''), (3, '0403', 1338544920, 5, 5, -1, 'Ina'),
            (4, '', 1338544980, 20, 16, -1, NULL), (5, '0405', 1338545040, 20, 17, -1, NULL))"});
    openFolder();
    EXPECT_EQ(lines(kCalls),
        QStringList({"0405 | 0405 | 2012-06-01 12:04 | 0:00:20 | Outgoing | FaceTime",
            "Unknown |  | 2012-06-01 12:03 | 0:00:20 | Incoming | FaceTime",
            "Ina | 0403 | 2012-06-01 12:02 | 0:00:05 | Outgoing | Phone",
            "0402 | 0402 | 2012-06-01 12:01 | 0:00:00 | Missed | Phone",
            "0401 | 0401 | 2012-06-01 12:00 | 1:02:05 | Incoming | Phone"}));
}

TEST_F(CallDataTest, OldStoreThatStayedAddsItsCalls)
{
    builder().addDatabase("WirelessDomain", "Library/CallHistory/call_history.db",
        {R"(CREATE TABLE call (ROWID INTEGER PRIMARY KEY, address TEXT, date INTEGER,
            duration INTEGER, flags INTEGER))",
            "INSERT INTO call VALUES (1, '0401', 1338544800, 1, 4)"});
    openWithBook({kRecords, call("'2', NULL, 700000000, 0, 0, 1, 1, NULL, NULL")});
    EXPECT_EQ(column(kCalls, 1), QStringList({"2", "0401"}));
}

TEST_F(CallDataTest, OddValuesCostNoCall)
{
    openWithBook({kRecords, call("'1', NULL, 'soon', 'long', 'yes', x'00', 'a', 7, 'b'"),
        call("NULL, NULL, 1e300, -5, NULL, NULL, NULL, NULL, NULL"),
        call("'2', NULL, 9e999, 1e300, 0, 1, 1, NULL, NULL")});
    EXPECT_EQ(column(kCalls, 2), QStringList({"", "", ""}));
    EXPECT_EQ(column(kCalls, 3), QStringList({"0:00:00", "0:00:00", "0:00:00"}));
}

TEST_F(CallDataTest, ColumnThatEachReleaseHasIsMissedOnce)
{
    openFile({R"(CREATE TABLE ZCALLRECORD (Z_PK INTEGER PRIMARY KEY, ZADDRESS VARCHAR,
            ZORIGINATED INTEGER, ZANSWERED INTEGER, ZDURATION FLOAT))",
        "INSERT INTO ZCALLRECORD VALUES (1, '11', 1, 1, 2), (2, '12', 1, 1, 2)"});
    EXPECT_EQ(column(kCalls, 1), QStringList({"12", "11"}));
    EXPECT_EQ(notices("ZDATE").size(), 1);
    EXPECT_EQ(notices("").size(), 1);
}

TEST_F(CallDataTest, RowsAroundADamagedPageAreThere)
{
    QStringList statements{kRecords};
    for (int i = 1; i <= 1000; ++i) {
        statements.append(call(QString("'%1', NULL, %1, 0, 0, 1, 1, NULL, NULL").arg(i)));
    }
    QByteArray bytes = databaseBytes(statements).file;
    const int damaged = bytes.size() / 4096 / 2;
    bytes.replace(damaged * 4096, 4096, QByteArray(4096, '\xFF'));
    openFile(bytes);
    const QStringList numbers = column(kCalls, 1);
    EXPECT_LT(numbers.size(), 1000);
    EXPECT_GT(numbers.size(), 800);
    EXPECT_EQ(numbers.first(), "1000");
    EXPECT_EQ(numbers.last(), "1");
    EXPECT_EQ(notices("damaged").size(), 1);
    EXPECT_TRUE(std::is_sorted(numbers.begin(), numbers.end(),
        [](const QString& a, const QString& b) { return a.toInt() > b.toInt(); }));
}

TEST_F(CallDataTest, TruncatedStoreNeverCrashes)
{
    QStringList statements{kRecords};
    for (int i = 0; i < 300; ++i) {
        statements.append(call(QString("'%1', NULL, %1, 0, 0, 1, 1, NULL, NULL").arg(i)));
    }
    const QByteArray whole = databaseBytes(statements).file;
    for (int size = 4096; size < whole.size(); size += 1777) {
        SCOPED_TRACE(size);
        writeFile(m_directory.filePath("cut.db"), whole.left(size));
        auto opened = backup::openDatabaseFile(m_directory.filePath("cut.db"));
        if (opened) {
            EXPECT_LE(opened->records.getPRData(kCalls)->count(1), 300);
        }
    }
}

} // namespace
