// SPDX-License-Identifier: MIT
// What samples/backup/*.json says, as it comes out of the sample backup.
#include "LazyTableTest.h"

namespace {

class SampleTablesTest : public LazyTableTest {
protected:
    void SetUp() override
    {
        take(backup::openBackupFolder(QStringLiteral(DATAEXPORT_BUILD_DIR "/samples/backup")));
    }
};

TEST_F(SampleTablesTest, CallsShowPeopleStrangersAndWithheldNumbers)
{
    const QStringList calls = lines(3);
    ASSERT_EQ(calls.size(), 26);
    EXPECT_EQ(calls.first(), "Lena Hoffmann | +491715550101 | 2024-06-02 19:58 | 0:00:00 | Missed"
                             " | FaceTime Video");
    EXPECT_TRUE(calls.contains(
        "Tom Baker | +447700900123 | 2024-05-22 17:37 | 0:08:50 | Incoming | WhatsApp"));
    EXPECT_TRUE(calls.contains("Lena Hoffmann, Emil Hoffmann | +491715550101, +491715550109"
                               " | 2024-05-04 22:15 | 1:02:05 | Outgoing | FaceTime Video"));
    EXPECT_TRUE(calls.contains("Unknown |  | 2024-04-02 15:05 | 0:00:41 | Incoming | Phone"));
    EXPECT_TRUE(calls.contains(
        "+491715550188 | +491715550188 | 2024-05-26 12:00 | 0:00:00 | Missed | Phone"));
}

TEST_F(SampleTablesTest, RemindersOfBothAccountsStandInTheirLists)
{
    EXPECT_EQ(column(30, 0),
        QStringList({"Milk", "Milk › Oat milk for Noor", "Milk › Butter", "Cherries",
            "Bicycle lamp", "Rehearsal", "Copy the scores", "Book the church hall",
            "Call Jonas Weber", "عيد ميلاد نور", "由紀に電話する 📞", "Water the plants",
            "Passport <renewal> & photos", "Return Ben's pump"}));
    const QStringList reminders = lines(30);
    EXPECT_TRUE(reminders.contains(
        "Rehearsal | Choir (iCloud) |  | 2024-06-04 19:30 |  |  | Flagged, Repeats"));
    EXPECT_TRUE(reminders.contains("Cherries | Shopping (iCloud) | For Mama's cake.\nNo walnuts!"
                                   " | 2024-06-07 |  | High | "));
    EXPECT_EQ(reminders.filter(QRegularExpression("^x ")).size(), 2);
}

TEST_F(SampleTablesTest, EventsOfAllCalendarsStandByTheirStart)
{
    const QStringList events = lines(29);
    EXPECT_EQ(events.size(), 23);
    EXPECT_EQ(column(29, 0).first(), "Wedding day");
    EXPECT_EQ(column(29, 0).last(), "由紀が来る ✈️");
    EXPECT_TRUE(events.contains("Rehearsal | Church hall | 2024-06-04 19:30 | 2024-06-04 21:00 |  "
                                "| Every week until\n2024-07-16"
                                " | Choir (iCloud) | Alert: 2024-06-04 19:15"));
    EXPECT_TRUE(events.contains(
        "Norway |  | 2024-06-10 | 2024-06-23 | Boat, hut, rain |  | Home (Local) | "));
    EXPECT_TRUE(events.contains(
        "Board |  | 2024-01-26 20:00 | 2024-01-26 22:00 |  | Every 3 months until\n2024-10-25"
        " | Choir (iCloud) | Accepted\nAttendees: Lena Hoffmann (Organizer), Tom Baker (Declined), "
        "noor@example.net"));
    EXPECT_TRUE(events.contains(
        " | Platform 9 | 2024-05-27 18:00 | 2024-05-27 18:30 |  |  | Calendar (iCloud) | "));
    // It has no zone: the clock that it is shown by is not asked.
    EXPECT_EQ(events.filter("Morning run").first().section(" | ", 2, 2), "2024-06-05 06:30");
    EXPECT_EQ(events.filter(QRegularExpression("^x ")), QStringList());
}

TEST_F(SampleTablesTest, BookmarksStandInTheirFolders)
{
    const QStringList bookmarks = lines(33);
    EXPECT_EQ(bookmarks.size(), 12);
    EXPECT_TRUE(bookmarks.contains(
        "[Travel / Norway] | Bergen | https://bergen.example.com/ | bergen.example.com"));
    EXPECT_TRUE(
        bookmarks.contains("[Reading List] | Cherry cake without a mixer"
                           " | https://recipes.example.org/cherry-cake | 2024-05-30 08:41"));
    EXPECT_EQ(bookmarks.filter(QRegularExpression("^x ")),
        QStringList("x [] | Old weather page | http://weather.example.net/ | weather.example.net"));
}

TEST_F(SampleTablesTest, HistoryIsNewestFirstWithoutRedirectsAndWithWhatWasDeleted)
{
    const QStringList visits = lines(34);
    EXPECT_EQ(visits.size(), 32);
    EXPECT_EQ(visits.first(), "[History] | How to back up your phone"
                              " | https://help.example.com/backup | 2024-06-02 21:12");
    EXPECT_EQ(visits.filter("http://"), QStringList());
    EXPECT_EQ(visits.filter(QRegularExpression("^x ")).size(), 2);
}

} // namespace
