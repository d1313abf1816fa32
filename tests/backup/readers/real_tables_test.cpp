// SPDX-License-Identifier: MIT
// Stores that real devices made, and small ones that others made by hand. They lie beside the
// project, or where DATAEXPORT_TEST_DATA says; the tests are passed over where they are absent.
#include "LazyTableTest.h"
#include "formats/sqlite.h"

#include <QDir>
#include <QFileInfo>

namespace {

class RealTables : public LazyTableTest {
protected:
    bool open(const QString& path)
    {
        const QString directory = qEnvironmentVariable(
            "DATAEXPORT_TEST_DATA", QStringLiteral(DATAEXPORT_SOURCE_DIR "/../shared/data"));
        m_file = QDir(directory).filePath(path);
        if (!QFileInfo::exists(m_file)) {
            return false;
        }
        take(QFileInfo(m_file).isDir() ? backup::openBackupFolder(m_file)
                                       : backup::openDatabaseFile(m_file));
        return true;
    }

    QString m_file;
};

TEST_F(RealTables, CallsOfAHandMadeStoreAreRead)
{
    if (!open("databases/miniatures/calls/testdata/calls.1.CallHistory.storedata")) {
        GTEST_SKIP() << "there is no " << m_file.toStdString();
    }
    // 700,000,000 is 2023-03-08 20:26:40 UTC; the calls follow day by day.
    const QString group = "+1 555 0300, +1 555 0301 | +1 555 0300, +1 555 0301"
                          " | 2023-03-10 22:26 | 0:02:00 | Outgoing | FaceTime Video";
    EXPECT_EQ(lines(3),
        QStringList({"+1 555 0199 | +1 555 0199 | 2023-03-12 22:26 | 0:00:00 | Incoming | Phone",
            "+1 555 0166 | +1 555 0166 | 2023-03-11 22:26 | 0:00:00 | Incoming | Phone", group,
            "+1 555 0142 | +1 555 0142 | 2023-03-09 22:26 | 0:00:00 | Missed | Phone",
            "Alex Fixture | +1 555 0100 | 2023-03-08 22:26 | 0:01:05 | Outgoing | Phone"}));
}

TEST_F(RealTables, CalendarMadeByHandIsRead)
{
    if (!open("databases/miniatures/calendar/testdata/calendar.1.Calendar.sqlitedb")) {
        GTEST_SKIP() << "there is no " << m_file.toStdString();
    }
    // Of its five rows one is a birthday, one has a text for a date.
    EXPECT_EQ(column(29, 0), QStringList({"Corrupt", "Team Sync", "Holiday", "Quick note"}));
    EXPECT_EQ(
        column(29, 2), QStringList({"", "2023-03-08 22:26", "2023-03-10", "2023-03-11 06:00"}));
    EXPECT_EQ(lines(29).at(1).section(" | ", 4),
        "Quarterly planning\nhttps://example.invalid/e1 | Every week | Work (iCloud)"
        " | Attendees: Blair Invitee (Accepted), Casey Invitee (Declined)"
        "\nAlert: 2023-03-08 22:11");
}

TEST_F(RealTables, CalendarOfARealPhoneHasItsEvent)
{
    if (!open("backups/ios-14.3-manifest-mostly-absent")) {
        GTEST_SKIP() << "there is no " << m_file.toStdString();
    }
    // 703,502,100 is 2023-04-18 09:15:00 UTC. Most of its tables are missing.
    EXPECT_EQ(lines(29), QStringList("Super interesting meeting |  | 2023-04-18 11:15"
                                     " | 2023-04-18 12:15 | very very interesting things"
                                     " |  |  | "));
}

TEST_F(RealTables, RemindersOfHandMadeStoresAreRead)
{
    if (!open("databases/miniatures/reminders/testdata/reminders.1.cloud.sqlite")) {
        GTEST_SKIP() << "there is no " << m_file.toStdString();
    }
    EXPECT_EQ(column(30, 0), QStringList({"Buy milk", "Buy milk › Buy oat milk", "Corrupt date",
                                 "Submit report", "Call plumber"}));
    EXPECT_EQ(column(30, 6), QStringList({"Flagged, Repeats", "", "", "", ""}));
    EXPECT_EQ(lines(30).filter(QRegularExpression("^x ")).size(), 1);
}

TEST_F(RealTables, BookmarksOfAHandMadeStoreAreRead)
{
    if (!open("databases/miniatures/safari/testdata/safari.1.Bookmarks.db")) {
        GTEST_SKIP() << "there is no " << m_file.toStdString();
    }
    // One of its nine rows is hidden, four are folders.
    EXPECT_EQ(column(33, 0), QStringList({"Example Bookmark", "Corrupt", "RL Unread", "RL Read"}));
}

TEST_F(RealTables, HistoryOfAHandMadeStoreIsRead)
{
    if (!open("databases/miniatures/safari/testdata/safari.1.History.db")) {
        GTEST_SKIP() << "there is no " << m_file.toStdString();
    }
    EXPECT_EQ(column(34, 0), QStringList({"Visit B1", "Visit A2", "Corrupt"}));
}

TEST_F(RealTables, HistoryOfAComputerIsReadWithoutItsRedirects)
{
    if (!open("databases/safari-History.db")) {
        GTEST_SKIP() << "there is no " << m_file.toStdString();
    }
    const auto database = formats::Database::open(m_file, formats::OpenMode::Immutable);
    ASSERT_TRUE(database.has_value());
    auto visits =
        database->prepare("SELECT count(*) FROM history_visits WHERE redirect_destination IS NULL");
    ASSERT_TRUE(visits->next());
    EXPECT_EQ(lines(34).size(), visits->integer(0));
    EXPECT_EQ(column(34, 0).first(), "Google");
    EXPECT_EQ(column(34, 0).last(), "Ubuntu Start Page");
    EXPECT_FALSE(column(34, 0).contains(""));
}

TEST_F(RealTables, NewIphonesHaveBookmarksOfTheMakerAndNoReminders)
{
    if (!open("backups/ios-13.3")) {
        GTEST_SKIP() << "there is no " << m_file.toStdString();
    }
    EXPECT_EQ(
        column(33, 0), QStringList({"iPhone User Guide", "Apple", "Bing", "Google", "Yahoo"}));
    EXPECT_EQ(lines(30), QStringList());
    EXPECT_EQ(notices("Reminders"), QStringList());
    EXPECT_EQ(notices("Calendar"), QStringList());
    EXPECT_EQ(m_opened->records.getPRData(3), nullptr);
}

TEST_F(RealTables, BackupOfIos14Opens)
{
    if (!open("backups/ios-14.0-beta")) {
        GTEST_SKIP() << "there is no " << m_file.toStdString();
    }
    EXPECT_EQ(lines(33), QStringList());
    EXPECT_EQ(lines(30), QStringList());
    EXPECT_EQ(notices("Stores"), QStringList());
}

TEST_F(RealTables, EventsOfAnOldCalendarAreReadAndAreNoReminders)
{
    if (!open("databases/ios6-Calendar.sqlitedb")) {
        GTEST_SKIP() << "there is no " << m_file.toStdString();
    }
    EXPECT_EQ(lines(30), QStringList());
    // 386,164,800 is 2013-03-28 12:00:00 UTC.
    const QStringList events = lines(29);
    ASSERT_EQ(events.size(), 13);
    EXPECT_EQ(
        events.at(0), "Kev event | Here | 2013-03-28 14:00 | 2013-03-29 14:00 |  |  | Calendar | ");
    EXPECT_EQ(column(29, 1).mid(0, 2), QStringList({"Here", "There"}));
    EXPECT_EQ(column(29, 4).filter("Event notes here").size(), 10);
    EXPECT_EQ(notices(""), QStringList());
}

} // namespace
