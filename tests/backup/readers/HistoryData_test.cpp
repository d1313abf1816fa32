// SPDX-License-Identifier: MIT
#include "LazyTableTest.h"

namespace {

constexpr int kHistory = 34;

const QStringList kSchema{
    "CREATE TABLE history_items (id INTEGER PRIMARY KEY, url TEXT UNIQUE, visit_count INTEGER)",
    R"(CREATE TABLE history_visits (id INTEGER PRIMARY KEY, history_item INTEGER, visit_time REAL,
            title TEXT, redirect_source INTEGER, redirect_destination INTEGER, origin INTEGER))",
    R"(CREATE TABLE history_tombstones (id INTEGER PRIMARY KEY, start_time REAL, end_time REAL,
            url TEXT, generation INTEGER))",
    "INSERT INTO history_items VALUES (1, 'https://a.example/', 1), (2, 'https://b.example/', 1)"};

QString visit(const QString& values)
{
    return "INSERT INTO history_visits (history_item, visit_time, title, redirect_destination)"
           " VALUES ("
           + values + ")";
}

class HistoryDataTest : public LazyTableTest {};

TEST_F(HistoryDataTest, VisitHasTitleAddressAndItsTimeNewestFirst)
{
    openFile(kSchema
             + QStringList{visit("1, 700000000.5, 'A', NULL"), visit("2, 700000200, 'B', NULL"),
                 visit("1, 700000100, 'A later', NULL")});
    EXPECT_EQ(lines(kHistory), QStringList({"[History] | B | https://b.example/ | 2023-03-08 22:30",
                                   "[History] | A later | https://a.example/ | 2023-03-08 22:28",
                                   "[History] | A | https://a.example/ | 2023-03-08 22:26"}));
    EXPECT_EQ(notices(""), QStringList());
}

TEST_F(HistoryDataTest, VisitWithoutATitleHasThePagesOrItsAddress)
{
    openFile(
        kSchema
        + QStringList{visit("1, 700000000, 'Old name', NULL"), visit("1, 700000100, 'A', NULL"),
            visit("1, 700000200, '', NULL"), visit("2, 700000050, NULL, NULL")});
    EXPECT_EQ(column(kHistory, 0), QStringList({"A", "A", "https://b.example/", "Old name"}));
}

TEST_F(HistoryDataTest, PageThatLedOnIsNoVisit)
{
    openFile(
        kSchema
        + QStringList{visit("1, 700000000, NULL, 2"), visit("2, 700000001, 'B', NULL"),
            visit("1, 700000010, 'leads to nothing', 99"),
            visit("1, 700000020, 'leads to itself', 4"), visit("2, 700000030, 'leads back', 1")});
    EXPECT_EQ(column(kHistory, 0),
        QStringList({"leads back", "leads to itself", "leads to nothing", "B"}));
}

TEST_F(HistoryDataTest, DeletedVisitsLeaveTheirAddress)
{
    openFile(kSchema
             + QStringList{visit("1, 700000000, 'A', NULL"),
                 R"(INSERT INTO history_tombstones VALUES (1, 1, 700000100, 'https://gone.example/',
            1), (2, 700000060, 63113904000, 'https://all.example/', 1),
            (3, 1, 700000100, NULL, 1))"});
    EXPECT_EQ(lines(kHistory),
        QStringList({"x [History] | https://gone.example/ | https://gone.example/"
                     " | 2023-03-08 22:28",
            "x [History] | https://all.example/ | https://all.example/ | 2023-03-08 22:27",
            "[History] | A | https://a.example/ | 2023-03-08 22:26"}));
}

TEST_F(HistoryDataTest, TimesSince1970AreToldByTheirSize)
{
    openFile(kSchema + QStringList{visit("1, 1678307200, 'A', NULL")});
    EXPECT_EQ(column(kHistory, 2), QStringList("2023-03-08 22:26"));
}

TEST_F(HistoryDataTest, VisitWithoutATimeStandsLastUnderItsSite)
{
    openFile(kSchema
             + QStringList{visit("1, 'not-a-time', 'A', NULL"), visit("1, NULL, 'B', NULL"),
                 visit("2, 700000000, 'C', NULL"), visit("2, 9e99, 'D', NULL")});
    EXPECT_EQ(column(kHistory, 0), QStringList({"C", "D", "B", "A"}));
    EXPECT_EQ(column(kHistory, 2),
        QStringList({"2023-03-08 22:26", "b.example", "a.example", "a.example"}));
}

TEST_F(HistoryDataTest, VisitOfNoPageKeepsItsTitle)
{
    openFile(kSchema
             + QStringList{
                 visit("77, 700000100, 'Somewhere', NULL"), visit("78, 700000000, NULL, NULL")});
    EXPECT_EQ(lines(kHistory), QStringList("[History] | Somewhere |  | 2023-03-08 22:28"));
}

TEST_F(HistoryDataTest, ProfilesAreReadTogether)
{
    builder()
        .addDatabase("HomeDomain", "Library/Safari/History.db",
            kSchema + QStringList{visit("1, 700000000, 'A', NULL")})
        .addDatabase("HomeDomain", "Library/Safari/Profiles/0B0B/History.db",
            kSchema + QStringList{visit("1, 700000200, 'work', NULL")})
        .addDatabase("AppDomain-com.apple.mobilesafari", "Library/Safari/Profiles/0C/History.db",
            kSchema + QStringList{visit("1, 700000100, 'choir', NULL")})
        .add("HomeDomain", "Library/Safari/Profiles/0B0B/Other.db", "x");
    openFolder();
    EXPECT_EQ(column(kHistory, 0), QStringList({"work", "choir", "A"}));
}

TEST_F(HistoryDataTest, WriteAheadLogIsTakenIn)
{
    builder().addDatabaseWithLog("HomeDomain", "Library/Safari/History.db",
        kSchema + QStringList{visit("1, 700000000, 'A', NULL")},
        {visit("2, 700000100, 'logged', NULL")});
    openFolder();
    EXPECT_EQ(column(kHistory, 0), QStringList({"logged", "A"}));
}

TEST_F(HistoryDataTest, FirstReleasesHaveNoTombstones)
{
    openFile(
        kSchema + QStringList{"DROP TABLE history_tombstones", visit("1, 700000000, 'A', NULL")});
    EXPECT_EQ(column(kHistory, 0), QStringList("A"));
    EXPECT_EQ(notices(""), QStringList());
}

TEST_F(HistoryDataTest, OldPropertyListIsRead)
{
    builder().add("HomeDomain", "Library/Safari/History.plist",
        propertyList("<key>WebHistoryDates</key><array>"
                     "<dict><key></key><string>https://a.example/</string><key>title</key>"
                     "<string>A</string><key>lastVisitedDate</key><string>325160392.8</string>"
                     "</dict><dict><key></key><string>https://b.example/</string></dict>"
                     "<dict><key>title</key><string>nowhere</string></dict><true/></array>"));
    openFolder();
    // 325,160,392 seconds after 2001: 2011-04-22 10:19:52 UTC
    EXPECT_EQ(lines(kHistory), QStringList({"[History] | A | https://a.example/ | 2011-04-22 12:19",
                                   "[History] | https://b.example/ | https://b.example/"
                                   " | b.example"}));
}

TEST_F(HistoryDataTest, HundredThousandVisitsAreReadWhole)
{
    const QByteArray bytes = databaseBytes(
        QStringList{kSchema[0], kSchema[1],
            R"(WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 20000)
            INSERT INTO history_items SELECT i, 'https://site' || i || '.example/path', 5
            FROM n)",
            R"(WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 100000)
            INSERT INTO history_visits (history_item, visit_time, title) SELECT
            1 + i % 20000, 600000000 + i, 'The title of page ' || i FROM n)"})
                                 .file;
    openFile(bytes);
    const PRData* set = m_opened->records.getPRData(kHistory);
    EXPECT_EQ(set->count(1), 100000);
    EXPECT_EQ(set->value(0, 0), "The title of page 100000");
    EXPECT_EQ(set->value(99999, 0), "The title of page 1");
}

} // namespace
