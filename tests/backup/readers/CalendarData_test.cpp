// SPDX-License-Identifier: MIT
#include "LazyTableTest.h"
#include "model/PRCalendarItem.h"

#include <QTimeZone>

namespace {

constexpr int kCalendar = 29;

// As a phone of iOS 18 has them. 700,000,000 is 2023-03-08 20:26:40 UTC, a Wednesday, 2 hours later
// on the tests' clock; 700,012,800 is 2023-03-09 00:00:00 UTC.
QStringList newCalendar(const QStringList& more)
{
    return QStringList{
               R"(CREATE TABLE CalendarItem (ROWID INTEGER PRIMARY KEY, summary TEXT,
            location_id INTEGER, description TEXT, start_date REAL, start_tz TEXT, end_date REAL,
            end_tz TEXT, all_day INTEGER, calendar_id INTEGER, orig_item_id INTEGER, orig_date REAL,
            status INTEGER, url TEXT, hidden INTEGER, entity_type INTEGER, calendar_scale TEXT))",
               "CREATE TABLE Store (ROWID INTEGER PRIMARY KEY, name TEXT, disabled INTEGER)",
               R"(CREATE TABLE Calendar (ROWID INTEGER PRIMARY KEY, store_id INTEGER, title TEXT,
            flags INTEGER))",
               R"(CREATE TABLE Location (ROWID INTEGER PRIMARY KEY, title TEXT, address TEXT,
            item_owner_id INTEGER))",
               R"(CREATE TABLE Recurrence (ROWID INTEGER PRIMARY KEY, frequency INTEGER,
            interval INTEGER, count INTEGER, cached_end_date REAL, end_date REAL, specifier TEXT,
            owner_id INTEGER))",
               R"(CREATE TABLE Alarm (ROWID INTEGER PRIMARY KEY, trigger_date REAL,
            trigger_interval INTEGER, calendaritem_owner_id INTEGER, proximity INTEGER,
            disabled INTEGER))",
               R"(CREATE TABLE Participant (ROWID INTEGER PRIMARY KEY, entity_type INTEGER,
            status INTEGER, identity_id INTEGER, owner_id INTEGER, email TEXT, phone_number TEXT,
            is_self INTEGER))",
               R"(CREATE TABLE Identity (display_name TEXT, address TEXT, first_name TEXT,
            last_name TEXT))",
               "INSERT INTO Store VALUES (1, 'iCloud', 0), (2, 'Work', NULL), (3, 'Off', 1)",
               R"(INSERT INTO Calendar VALUES (1, 1, 'Home', 0), (2, 1, 'DEFAULT_CALENDAR_NAME', 0),
            (3, 2, 'Team', 0), (4, 3, 'Old', 0), (5, 1, 'Found in Mail', 262149),
            (6, 1, 'Found in Natural Language', 524295))",
           }
           + more;
}

// In calendar 1, from 700,000,000 on for an hour.
QString event(const QString& columns, const QString& values)
{
    return QString(R"(INSERT INTO CalendarItem (entity_type, calendar_id, start_date, end_date,
            ROWID%1) VALUES (2, 1, 700000000, 700003600, %2))")
        .arg(columns, values);
}

QDateTime utc(const QDate& day, const QTime& time = {0, 0})
{
    return {day, time, Qt::UTC};
}

class CalendarDataTest : public LazyTableTest {
protected:
    CalendarEvent contents(int row = 0)
    {
        const PRData* set = m_opened->records.getPRData(kCalendar);
        auto* item = dynamic_cast<PRCalendarItem*>(set->at(row, true));
        EXPECT_NE(item, nullptr);
        return item == nullptr ? CalendarEvent{} : item->event();
    }
};

TEST_F(CalendarDataTest, EventHasItsColumns)
{
    openFile(newCalendar({event(", summary, description, location_id, url, start_tz",
                              "5, 'Choir', 'Scores', 9, 'https://a.example', 'Europe/Berlin'"),
        "INSERT INTO Location VALUES (9, 'Hall', 'Main Street 1', 5)",
        "INSERT INTO Recurrence VALUES (1, 2, 2, 0, NULL, 700610400, 'D=0WE', 5)",
        "INSERT INTO Alarm VALUES (1, NULL, -900, 5, 0, 0)"}));
    EXPECT_EQ(lines(kCalendar),
        QStringList("Choir | Hall | 2023-03-08 22:26 | 2023-03-08 23:26"
                    " | Scores\nhttps://a.example | Every 2 weeks until\n2023-03-15 | Home"
                    " | Alert: 2023-03-08 22:11"));
    const PRData* set = m_opened->records.getPRData(kCalendar);
    ASSERT_EQ(set->dataColumn(), 8);
    EXPECT_EQ(set->columnName(2), "Starts");
    EXPECT_TRUE(set->at(0, true)->flag(InCalendarRange));
    EXPECT_FALSE(set->at(0, true)->flag(Deleted));
    EXPECT_EQ(notices(""), QStringList());
}

TEST_F(CalendarDataTest, WriterOfEventsGetsTypedValues)
{
    openFile(newCalendar({event(", start_tz", "5, 'Europe/Berlin'"),
        "INSERT INTO Recurrence VALUES (1, 2, 2, 0, NULL, 700610400, 'D=0MO,0WE', 5)",
        "INSERT INTO Alarm VALUES (1, NULL, -900, 5, 0, 0)"}));
    const CalendarEvent event = contents();
    EXPECT_EQ(event.allDay, 0);
    EXPECT_EQ(event.start, utc({2023, 3, 8}, {20, 26, 40}));
    EXPECT_EQ(event.end, utc({2023, 3, 8}, {21, 26, 40}));
    EXPECT_EQ(event.recurrence, "2*2*D=0MO,0WE");
    EXPECT_EQ(event.recurrenceEnd, utc({2023, 3, 15}, {22, 0}));
    EXPECT_EQ(event.alarmSeconds, 900);
}

TEST_F(CalendarDataTest, EventWithoutAnythingHasADateAtMost)
{
    openFile(newCalendar({"INSERT INTO CalendarItem (ROWID, entity_type) VALUES (1, 2)"}));
    EXPECT_EQ(lines(kCalendar), QStringList(" |  |  |  |  |  |  | "));
    const CalendarEvent event = contents();
    EXPECT_FALSE(event.start.isValid());
    EXPECT_FALSE(event.recurrenceEnd.isValid());
    EXPECT_EQ(event.recurrence, "");
    EXPECT_EQ(event.alarmSeconds, 0);
}

// The days of a rule are meant where the event takes place: in Tokyo 700,000,000 is a Thursday.
TEST_F(CalendarDataTest, TimesHaveTheDayOfTheirZone)
{
    openFile(newCalendar({event(", start_tz", "1, 'Asia/Tokyo'"),
        "INSERT INTO Recurrence VALUES (1, 2, 1, 0, NULL, 700604800, 'D=0TH', 1)"}));
    EXPECT_EQ(contents().start.date(), QDate(2023, 3, 9));
    EXPECT_EQ(contents().start.time(), QTime(5, 26, 40));
    EXPECT_EQ(contents().recurrenceEnd.date(), QDate(2023, 3, 16));
    EXPECT_EQ(column(kCalendar, 2), QStringList("2023-03-08 22:26"));
}

TEST_F(CalendarDataTest, ZoneThatIsNotKnownIsThatOfTheMachine)
{
    openFile(newCalendar(
        {event(", start_tz", "1, '../../etc/passwd'"), event(", start_tz", "2, 'Mars/Olympus'"),
            event("", "3"), event(", start_tz", "4, x'ff'")}));
    for (int row = 0; row < 4; ++row) {
        SCOPED_TRACE(row);
        EXPECT_EQ(contents(row).start.time(), QTime(22, 26, 40));
        EXPECT_EQ(contents(row).start, utc({2023, 3, 8}, {20, 26, 40}));
    }
}

TEST_F(CalendarDataTest, FloatingTimeIsThatOfTheClock)
{
    openFile(newCalendar({event(", start_tz", "1, '_float'")}));
    EXPECT_EQ(column(kCalendar, 2), QStringList("2023-03-08 20:26"));
    EXPECT_EQ(contents().start, QDateTime(QDate(2023, 3, 8), QTime(20, 26, 40)));
    EXPECT_EQ(contents().end.toLocalTime().time(), QTime(21, 26, 40));
}

TEST_F(CalendarDataTest, WholeDaysAreThoseThatWereWritten)
{
    const auto day = [](const QString& id, const QString& start, const QString& end) {
        return QString(R"(INSERT INTO CalendarItem (entity_type, all_day, ROWID, start_date,
            end_date, start_tz) VALUES (2, 1, %1, %2, %3, '_float'))")
            .arg(id, start, end);
    };
    openFile(newCalendar({day("1", "700012800", "700099199"), // to 23:59:59
        day("2", "700012800", "700099200"),                   // to the midnight behind it
        day("3", "700012800", "700271999"), day("4", "700012800", "700012800"),
        "INSERT INTO Recurrence VALUES (1, 1, 1, 0, NULL, 700185600, '', 1)"}));
    EXPECT_EQ(column(kCalendar, 2),
        QStringList({"2023-03-09", "2023-03-09", "2023-03-09", "2023-03-09"}));
    EXPECT_EQ(column(kCalendar, 3),
        QStringList({"2023-03-09", "2023-03-09", "2023-03-11", "2023-03-09"}));
    EXPECT_EQ(column(kCalendar, 5).first(), "Every day until\n2023-03-11");
    EXPECT_EQ(contents(0).allDay, 1);
    EXPECT_EQ(contents(0).start.timeSpec(), Qt::UTC); // written as it is stored
    EXPECT_EQ(contents(0).start, utc({2023, 3, 9}));
    EXPECT_EQ(contents(0).end, utc({2023, 3, 9}, {23, 59, 59}));
    EXPECT_EQ(contents(1).end, utc({2023, 3, 10}));
}

TEST_F(CalendarDataTest, AlertOfAWholeDayIsByItsMidnight)
{
    openFile(
        newCalendar({event(", all_day", "1, 1"), "UPDATE CalendarItem SET start_date = 700012800",
            "INSERT INTO Alarm VALUES (1, NULL, 32400, 1, 0, 0)"}));
    EXPECT_EQ(column(kCalendar, 7), QStringList("Alert: 2023-03-09 09:00"));
    EXPECT_EQ(contents().alarmSeconds, -32400);
}

TEST_F(CalendarDataTest, EventsStandByTheirStart)
{
    openFile(newCalendar({event(", summary", "1, 'b'"), event(", summary", "2, 'c'"),
        event(", summary", "3, 'a'"), event(", summary", "4, 'none'"),
        "UPDATE CalendarItem SET start_date = 600000000 WHERE ROWID = 3",
        "UPDATE CalendarItem SET start_date = NULL WHERE ROWID = 4"}));
    EXPECT_EQ(column(kCalendar, 0), QStringList({"none", "a", "b", "c"}));
}

TEST_F(CalendarDataTest, OnlyEventsOfThePersonAreThere)
{
    openFile(newCalendar({event(", summary", "1, 'mine'"), event(", summary, hidden", "2, 'h', 1"),
        event(", summary, calendar_scale", "3, 'birthday', 'gregorian'"),
        event(", summary, calendar_scale", "4, 'other scale', 'chinese'"),
        event(", summary", "5, 'task'"), "UPDATE CalendarItem SET entity_type = 3 WHERE ROWID = 5",
        event(", summary", "6, 'switched off'"),
        "UPDATE CalendarItem SET calendar_id = 4 WHERE ROWID = 6",
        event(", summary", "7, 'found in mail'"),
        "UPDATE CalendarItem SET calendar_id = 5 WHERE ROWID = 7",
        event(", summary", "8, 'found in text'"),
        "UPDATE CalendarItem SET calendar_id = 6 WHERE ROWID = 8",
        event(", summary", "9, 'no calendar'"),
        "UPDATE CalendarItem SET calendar_id = 77 WHERE ROWID = 9",
        event(", summary", "10, 'of no kind'"),
        "UPDATE CalendarItem SET entity_type = NULL WHERE ROWID = 10"}));
    EXPECT_EQ(
        column(kCalendar, 0), QStringList({"mine", "other scale", "no calendar", "of no kind"}));
    EXPECT_EQ(column(kCalendar, 6), QStringList({"Home", "Home", "", "Home"}));
}

TEST_F(CalendarDataTest, CalendarHasItsAccountWhereThereAreSeveral)
{
    openFile(newCalendar({event("", "1"), event("", "2"), event("", "3"),
        "UPDATE CalendarItem SET calendar_id = ROWID"}));
    EXPECT_EQ(
        column(kCalendar, 6), QStringList({"Home (iCloud)", "Calendar (iCloud)", "Team (Work)"}));
}

TEST_F(CalendarDataTest, PlaceIsATitleOrElseAnAddressAndMayNameItsEvent)
{
    openFile(newCalendar({event(", location_id", "1, 1"), event(", location_id", "2, 2"),
        event(", location_id", "3, 77"), event("", "4"), event(", location_id", "5, -1"),
        R"(INSERT INTO Location VALUES (1, 'Hall', 'x', NULL), (2, '', 'Main Street 1', NULL),
            (3, 'Pier', NULL, 3), (4, NULL, 'Quay 2', 4), (5, 'Nobody', '', -1))"}));
    EXPECT_EQ(column(kCalendar, 1), QStringList({"Hall", "Main Street 1", "Pier", "Quay 2", ""}));
}

TEST_F(CalendarDataTest, RecurrenceIsAPhraseAndASource)
{
    struct {
        const char* what = nullptr;
        const char* values = nullptr; // frequency, interval, count, cached end, end, specifier
        const char* source = nullptr;
        const char* phrase = nullptr;
        bool ends = false;
    } const rows[] = {
        {"daily", "1, 1, 0, NULL, NULL, NULL", "1*1*", "Every day"},
        {"weekly", "2, 1, 0, NULL, NULL, 'D=0MO'", "1*2*D=0MO", "Every week"},
        {"monthly", "3, 3, 0, NULL, 0, 'M=15'", "3*3*M=15", "Every 3 months"},
        {"yearly", "4, 1, 0, NULL, NULL, ''", "1*4*", "Every year"},
        {"several days", "1, 10, 0, NULL, NULL, NULL", "10*1*", "Every 10 days"},
        {"several weeks", "2, 2, 0, NULL, NULL, NULL", "2*2*", "Every 2 weeks"},
        {"several years", "4, 4, 0, NULL, NULL, NULL", "4*4*", "Every 4 years"},
        {"no interval", "1, 0, 0, NULL, NULL, NULL", "1*1*", "Every day"},
        {"interval NULL", "1, NULL, 0, NULL, NULL, NULL", "1*1*", "Every day"},
        {"interval below", "1, -3, 0, NULL, NULL, NULL", "1*1*", "Every day"},
        {"unknown frequency", "5, 1, 0, NULL, NULL, NULL", "1*5*", ""},
        {"no frequency", "NULL, 1, 0, NULL, NULL, NULL", "1*0*", ""},
        {"end", "1, 1, 0, 700777777, 700200000, NULL", "1*1*", "Every day until\n2023-03-11", true},
        {"by count", "1, 1, 4, 700200000, NULL, NULL", "1*1*", "Every day until\n2023-03-11", true},
        {"by count, end 0", "1, 1, 4, 700200000, 0, NULL", "1*1*", "Every day until\n2023-03-11",
            true},
        {"cached end without a count", "1, 1, 0, 700200000, 0, NULL", "1*1*", "Every day"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        openFile(newCalendar({event("", "1"), QString(R"(INSERT INTO Recurrence (owner_id,
            frequency, interval, count, cached_end_date, end_date, specifier) VALUES (1, %1))")
                                                  .arg(row.values)}));
        EXPECT_EQ(contents().recurrence, row.source);
        EXPECT_EQ(column(kCalendar, 5), QStringList(row.phrase));
        EXPECT_EQ(contents().recurrenceEnd.isValid(), row.ends);
    }
}

TEST_F(CalendarDataTest, FirstOfSeveralRecurrencesCounts)
{
    openFile(newCalendar({event("", "1"),
        R"(INSERT INTO Recurrence (ROWID, owner_id, frequency, interval) VALUES (8, 1, 2, 1),
            (9, 1, 1, 1))"}));
    EXPECT_EQ(contents().recurrence, "1*2*");
}

TEST_F(CalendarDataTest, OccurrenceThatWasMovedIsAnEventOfItsOwn)
{
    openFile(newCalendar({event(", summary", "1, 'series'"),
        event(", summary, orig_item_id, orig_date", "2, 'moved', 1, 700604800"),
        "INSERT INTO Recurrence (owner_id, frequency, interval) VALUES (1, 2, 1)"}));
    EXPECT_EQ(column(kCalendar, 0), QStringList({"series", "moved"}));
    EXPECT_EQ(column(kCalendar, 5), QStringList({"Every week", ""}));
}

TEST_F(CalendarDataTest, AlarmIsTheFirstThatRingsAtATime)
{
    struct {
        const char* what = nullptr;
        const char* rows = nullptr; // id, date, interval, event, proximity, disabled
        int seconds = 0;
        const char* alert = nullptr;
    } const rows[] = {
        {"none", "(1, NULL, -900, 2, 0, 0)", 0, ""},
        {"at the start", "(1, NULL, 0, 1, 0, 0)", 0, "Alert: 2023-03-08 22:26"},
        {"before", "(1, NULL, -3600, 1, NULL, NULL)", 3600, "Alert: 2023-03-08 21:26"},
        {"behind", "(1, NULL, 600, 1, 0, 0)", -600, "Alert: 2023-03-08 22:36"},
        {"first of two", "(1, NULL, -900, 1, 0, 0), (2, NULL, -60, 1, 0, 0)", 900,
            "Alert: 2023-03-08 22:11"},
        {"disabled", "(1, NULL, -900, 1, 0, 1), (2, NULL, -60, 1, 0, 0)", 60,
            "Alert: 2023-03-08 22:25"},
        {"at a place", "(1, NULL, -900, 1, 2, 0)", 0, ""},
        {"absolute", "(1, 699996400, NULL, 1, 0, 0)", 3600, "Alert: 2023-03-08 21:26"},
        {"neither", "(1, NULL, NULL, 1, 0, 0)", 0, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        openFile(newCalendar({event("", "1"), QString("INSERT INTO Alarm VALUES ") + row.rows}));
        EXPECT_EQ(contents().alarmSeconds, row.seconds);
        EXPECT_EQ(column(kCalendar, 7), QStringList(row.alert));
    }
}

TEST_F(CalendarDataTest, AlarmOutOfAllBoundsStaysANumber)
{
    openFile(newCalendar({event("", "1"), event("", "2"), event("", "3"),
        R"(INSERT INTO Alarm VALUES (1, NULL, -9223372036854775808, 1, 0, 0),
            (2, NULL, 9223372036854775807, 2, 0, 0), (3, 200000000000, NULL, 3, 0, 0))"}));
    EXPECT_EQ(contents(0).alarmSeconds, 2147483647);
    EXPECT_EQ(contents(1).alarmSeconds, -2147483647);
    EXPECT_EQ(contents(2).alarmSeconds, -2147483647);
}

TEST_F(CalendarDataTest, AttendeesAreTheOrganizerAndTheOthersWithTheirAnswers)
{
    openFile(newCalendar({event("", "1"),
        R"(INSERT INTO Identity (rowid, display_name, address, first_name, last_name) VALUES
            (4, 'Olga', 'mailto:olga@a.example', '', ''), (5, '', 'x', 'Tom', 'Baker'),
            (6, NULL, 'MAILTO:mia@a.example', NULL, NULL), (7, 'Anna', '', '', ''))",
        R"(INSERT INTO Participant (entity_type, status, identity_id, owner_id, email,
            phone_number, is_self) VALUES (7, 1, 4, 1, '', '', 0), (7, 2, 5, 1, '', '', 0),
            (7, 3, 6, 1, '', '', NULL), (7, 0, 77, 1, 'ben@a.example', '', 0),
            (7, 7, NULL, 1, NULL, '+491715550101', 0), (7, 1, NULL, 1, NULL, NULL, 0),
            (7, 1, 7, 1, '', '', 1), (8, 1, 4, 1, '', '', 0), (9, 1, 5, 1, '', '', 0))"}));
    EXPECT_EQ(column(kCalendar, 7),
        QStringList(
            "Accepted\nAttendees: Olga (Organizer), Tom Baker (Declined), mia@a.example (Maybe), "
            "ben@a.example, +491715550101"));
}

TEST_F(CalendarDataTest, MarksTellTheStateOfTheEventAndTheOwnersAnswer)
{
    struct {
        const char* what = nullptr;
        const char* status = nullptr;
        const char* people = nullptr; // entity_type, status, identity_id, owner_id, email, is_self
        const char* details = nullptr;
    } const rows[] = {
        {"none", "0", "(7, 1, 0, 1, 'b', 0)", "Attendees: b (Accepted)"},
        {"confirmed", "1", "(7, 1, 0, 1, 'b', 0)", "Attendees: b (Accepted)"},
        {"tentative", "2", "(7, 1, 0, 1, 'b', 0)", "Tentative\nAttendees: b (Accepted)"},
        {"cancelled", "3", "(7, 1, 0, 1, 'b', 0)", "Cancelled\nAttendees: b (Accepted)"},
        {"unknown", "4", "(7, 1, 0, 1, 'b', 0)", "Attendees: b (Accepted)"},
        {"invited", "0", "(8, 1, 0, 1, 'b', 0), (7, 0, 0, 1, 'a', 1)",
            "Invitation\nAttendees: b (Organizer)"},
        {"invited, no answer", "0", "(8, 1, 0, 1, 'b', 0), (7, 7, 0, 1, 'a', 1)",
            "Invitation\nAttendees: b (Organizer)"},
        {"accepted", "1", "(8, 1, 0, 1, 'b', 0), (7, 1, 0, 1, 'a', 1)",
            "Accepted\nAttendees: b (Organizer)"},
        {"declined", "3", "(8, 1, 0, 1, 'b', 0), (7, 2, 0, 1, 'a', 1)",
            "Cancelled, Declined\nAttendees: b (Organizer)"},
        {"maybe", "0", "(8, 1, 0, 1, 'b', 0), (7, 3, 0, 1, 'a', 1)",
            "Maybe\nAttendees: b (Organizer)"},
        {"the owner's own event", "0", "(8, 1, 0, 1, 'a', 1), (7, 1, 0, 1, 'a', 1)", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        openFile(newCalendar({event(", status", QString("1, %1").arg(row.status)),
            QString(R"(INSERT INTO Participant (entity_type, status, identity_id, owner_id, email,
            is_self) VALUES %1)")
                .arg(row.people)}));
        EXPECT_EQ(column(kCalendar, 7), QStringList(row.details));
    }
}

TEST_F(CalendarDataTest, FolderGivesEventsAndTasksOfOneCalendar)
{
    builder().addDatabase("HomeDomain", "Library/Calendar/Calendar.sqlitedb",
        newCalendar({event(", summary", "1, 'event'"), event(", summary", "2, 'task'"),
            "UPDATE CalendarItem SET entity_type = 3 WHERE ROWID = 2"}));
    openFolder();
    EXPECT_EQ(column(kCalendar, 0), QStringList("event"));
    EXPECT_EQ(column(30, 0), QStringList("task"));
}

TEST_F(CalendarDataTest, LooseCalendarGivesBothToo)
{
    openFile(newCalendar({event(", summary", "1, 'event'"), event(", summary", "2, 'task'"),
        "UPDATE CalendarItem SET entity_type = 3 WHERE ROWID = 2"}));
    EXPECT_EQ(column(kCalendar, 0), QStringList("event"));
    EXPECT_EQ(column(30, 0), QStringList("task"));
}

TEST_F(CalendarDataTest, TableOfIos6IsReadWithoutANotice)
{
    openFile({R"(CREATE TABLE CalendarItem (ROWID INTEGER PRIMARY KEY, summary TEXT,
            location_id INTEGER, description TEXT, start_date REAL, start_tz TEXT, end_date REAL,
            all_day INTEGER, calendar_id INTEGER, status INTEGER, url TEXT, hidden INTEGER,
            entity_type INTEGER))",
        "CREATE TABLE Store (ROWID INTEGER PRIMARY KEY, name TEXT, disabled INTEGER)",
        R"(CREATE TABLE Calendar (ROWID INTEGER PRIMARY KEY, store_id INTEGER, title TEXT,
            flags INTEGER))",
        "CREATE TABLE Location (ROWID INTEGER PRIMARY KEY, title TEXT, item_owner_id INTEGER)",
        R"(CREATE TABLE Recurrence (ROWID INTEGER PRIMARY KEY, frequency INTEGER, interval INTEGER,
            count INTEGER, cached_end_date REAL, end_date REAL, specifier TEXT, owner_id INTEGER))",
        R"(CREATE TABLE Alarm (ROWID INTEGER PRIMARY KEY, trigger_date REAL,
            trigger_interval INTEGER, owner_id INTEGER, proximity INTEGER, disabled INTEGER))",
        R"(CREATE TABLE Participant (ROWID INTEGER PRIMARY KEY, entity_type INTEGER, status INTEGER,
            identity_id INTEGER, owner_id INTEGER, email TEXT, is_self INTEGER))",
        R"(CREATE TABLE Identity (display_name TEXT, address TEXT, first_name TEXT,
            last_name TEXT))",
        R"(INSERT INTO CalendarItem (ROWID, summary, start_date, end_date, entity_type)
            VALUES (1, 'Old', 386164800, 386251200, 2))",
        "INSERT INTO Alarm (owner_id, trigger_interval) VALUES (1, -300)"});
    EXPECT_EQ(column(kCalendar, 0), QStringList("Old"));
    EXPECT_EQ(contents().alarmSeconds, 300);
    EXPECT_EQ(notices(""), QStringList());
}

TEST_F(CalendarDataTest, TableThatIsMissingIsToldAndTheRestIsThere)
{
    for (const char* table :
        {"Store", "Calendar", "Location", "Recurrence", "Alarm", "Participant", "Identity"}) {
        SCOPED_TRACE(table);
        openFile(newCalendar({event(", summary", "1, 'a'"), QString("DROP TABLE ") + table}));
        EXPECT_EQ(column(kCalendar, 0), QStringList("a"));
        EXPECT_EQ(notices(QString("no table %1.").arg(table)).size(), 1);
    }
}

TEST_F(CalendarDataTest, OddValuesCostNoEvent)
{
    openFile(newCalendar({R"(INSERT INTO CalendarItem VALUES (1, x'ff00', 'a', 3, 'b', 4, 'c', 'd',
            'e', 'f', 'g', 'h', 'i', 5, 'j', 2, 6))",
        R"(INSERT INTO CalendarItem (ROWID, entity_type, start_date) VALUES (2, 2, 9e999),
            (3, 2, -1e15))",
        R"(INSERT INTO Recurrence VALUES (1, 'a', 'b', 'c', 'd', 'e', x'ff', 1),
            (2, 9223372036854775807, 9223372036854775807, 1, 1, 1, '*;*', 2))",
        "INSERT INTO Alarm VALUES (1, 'a', 'b', 1, 'c', 'd')",
        "INSERT INTO Participant VALUES (1, 'a', 'b', 'c', 1, 'd', 'e', 'f')"}));
    EXPECT_EQ(lines(kCalendar).size(), 3);
    EXPECT_EQ(column(kCalendar, 2), QStringList({"", "", ""}));
}

} // namespace
