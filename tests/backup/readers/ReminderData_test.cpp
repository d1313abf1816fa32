// SPDX-License-Identifier: MIT
#include "LazyTableTest.h"

namespace {

constexpr int kReminders = 30;
const QString kGroup = "AppDomainGroup-group.com.apple.reminders";

// 700,000,000 is 2023-03-08 20:26:40 UTC, 2 hours later on the tests' clock; 700,012,800 is
// 2023-03-09 00:00:00 UTC.
QStringList newStore(const QStringList& more)
{
    return QStringList{
               "CREATE TABLE Z_PRIMARYKEY (Z_ENT INTEGER PRIMARY KEY, Z_NAME VARCHAR)",
               R"(INSERT INTO Z_PRIMARYKEY VALUES (7, 'REMCDAccount'), (8, 'REMCDRecurrenceRule'),
            (9, 'REMCDHashtag'), (20, 'REMCDList'), (21, 'REMCDReminder'))",
               R"(CREATE TABLE ZREMCDREMINDER (Z_PK INTEGER PRIMARY KEY, Z_ENT INTEGER,
            ZTITLE VARCHAR, ZNOTES VARCHAR, ZICSURL VARCHAR, ZCOMPLETED INTEGER,
            ZCOMPLETIONDATE TIMESTAMP, ZFLAGGED INTEGER, ZPRIORITY INTEGER, ZALLDAY INTEGER,
            ZDUEDATE TIMESTAMP, ZMARKEDFORDELETION INTEGER, ZPARENTREMINDER INTEGER,
            ZLIST INTEGER, ZACCOUNT INTEGER, ZICSDISPLAYORDER INTEGER))",
               R"(CREATE TABLE ZREMCDBASELIST (Z_PK INTEGER PRIMARY KEY, Z_ENT INTEGER,
            ZNAME VARCHAR, ZMARKEDFORDELETION INTEGER))",
               R"(CREATE TABLE ZREMCDOBJECT (Z_PK INTEGER PRIMARY KEY, Z_ENT INTEGER, ZNAME VARCHAR,
            ZMARKEDFORDELETION INTEGER, ZREMINDER INTEGER, ZREMINDER3 INTEGER,
            ZREMINDER4 INTEGER))",
               "INSERT INTO ZREMCDOBJECT (Z_PK, Z_ENT, ZNAME) VALUES (1, 7, 'Cloud')",
               R"(INSERT INTO ZREMCDBASELIST VALUES (1, 20, 'Home', 0), (2, 20, 'Work', NULL),
            (3, 20, 'Gone', 1))",
           }
           + more;
}

QString reminder(const QString& columns, const QString& values)
{
    return QString("INSERT INTO ZREMCDREMINDER (Z_PK, ZTITLE, ZLIST, ZACCOUNT%1) VALUES (%2)")
        .arg(columns, values);
}

class ReminderDataTest : public LazyTableTest {};

TEST_F(ReminderDataTest, ReminderHasItsColumns)
{
    openFile(newStore({reminder(", ZNOTES, ZDUEDATE, ZPRIORITY, ZFLAGGED",
                           "5, 'Milk', 1, 1, '2 litres', 700000000, 1, 1"),
        "INSERT INTO ZREMCDOBJECT (Z_ENT, ZREMINDER4) VALUES (8, 5)"}));
    EXPECT_EQ(lines(kReminders),
        QStringList("Milk | Home | 2 litres | 2023-03-08 22:26 |  | High | Flagged, Repeats"));
    const PRData* set = m_opened->records.getPRData(kReminders);
    EXPECT_EQ(set->dataColumn(), 7);
    EXPECT_EQ(set->columnName(3), "Due date"); // the column that a page never breaks
    EXPECT_EQ(notices(""), QStringList());
}

TEST_F(ReminderDataTest, DayWithoutTimeIsTheDayThatWasWritten)
{
    openFile(newStore({reminder(", ZDUEDATE, ZALLDAY", "1, 'UTC', 1, 1, 700012800, 1"),
        // Midnight of 9 March where the clock is 2 hours ahead.
        reminder(", ZDUEDATE, ZALLDAY", "2, 'moment', 1, 1, 700005600, 1")}));
    EXPECT_EQ(column(kReminders, 3), QStringList({"2023-03-09", "2023-03-09"}));
}

TEST_F(ReminderDataTest, CompletedShowsWhenOrElseYes)
{
    openFile(newStore({reminder(", ZCOMPLETED, ZCOMPLETIONDATE", "1, 'a', 1, 1, 1, 700000000"),
        reminder(", ZCOMPLETED, ZCOMPLETIONDATE", "2, 'b', 1, 1, 1, NULL"),
        reminder(", ZCOMPLETED, ZCOMPLETIONDATE", "3, 'c', 1, 1, 0, 700000000"),
        reminder(", ZCOMPLETED, ZCOMPLETIONDATE", "4, 'd', 1, 1, NULL, NULL")}));
    EXPECT_EQ(column(kReminders, 4), QStringList({"2023-03-08 22:26", "Yes", "", ""}));
}

TEST_F(ReminderDataTest, PriorityIsAWord)
{
    QStringList reminders;
    for (const int priority : {0, 1, 4, 5, 6, 9}) {
        reminders.append(
            reminder(", ZPRIORITY", QString("%1, 'x', 1, 1, %2").arg(10 + priority).arg(priority)));
    }
    openFile(newStore(reminders));
    EXPECT_EQ(column(kReminders, 5), QStringList({"", "High", "High", "Medium", "Low", "Low"}));
}

TEST_F(ReminderDataTest, PartsStandBelowTheirReminderUnderItsName)
{
    openFile(newStore({reminder("", "1, 'Milk', 1, 1"), reminder("", "2, 'Bread', 1, 1"),
        reminder(", ZPARENTREMINDER", "3, 'Oat milk', 1, 1, 1"),
        reminder(", ZPARENTREMINDER", "4, 'Stray', 1, 1, 77"),
        reminder(", ZPARENTREMINDER", "5, 'Own', 1, 1, 5"),
        reminder(", ZPARENTREMINDER", "6, 'Ring', 1, 1, 7"),
        reminder(", ZPARENTREMINDER", "7, 'Gnir', 1, 1, 6")}));
    EXPECT_EQ(column(kReminders, 0), QStringList({"Milk", "Milk › Oat milk", "Bread", "Stray",
                                         "Own", "Ring › Gnir", "Gnir › Ring"}));
}

TEST_F(ReminderDataTest, ListsFollowOneAnotherInTheOrderOfTheStore)
{
    openFile(newStore({reminder(", ZICSDISPLAYORDER", "1, 'w', 2, 1, 0"),
        reminder(", ZICSDISPLAYORDER", "2, 'h2', 1, 1, 9"),
        reminder(", ZICSDISPLAYORDER", "3, 'h1', 1, 1, 4"), reminder("", "4, 'none', NULL, 1")}));
    EXPECT_EQ(column(kReminders, 0), QStringList({"none", "h1", "h2", "w"}));
    EXPECT_EQ(column(kReminders, 1), QStringList({"", "Home", "Home", "Work"}));
}

TEST_F(ReminderDataTest, WhatIsMarkedForDeletionOrLiesInSuchAListIsDeleted)
{
    openFile(newStore({reminder(", ZMARKEDFORDELETION", "1, 'a', 1, 1, 1"),
        reminder(", ZMARKEDFORDELETION", "2, 'b', 3, 1, 0"),
        reminder(", ZMARKEDFORDELETION", "3, 'c', 2, 1, NULL")}));
    EXPECT_EQ(lines(kReminders), QStringList({"x a | Home |  |  |  |  | ",
                                     "c | Work |  |  |  |  | ", "x b | Gone |  |  |  |  | "}));
}

TEST_F(ReminderDataTest, RuleThatWasDeletedRepeatsNothing)
{
    openFile(newStore({reminder("", "1, 'a', 1, 1"), reminder("", "2, 'b', 1, 1"),
        R"(INSERT INTO ZREMCDOBJECT (Z_ENT, ZREMINDER3, ZMARKEDFORDELETION) VALUES (8, 1, 1),
            (9, 2, 0))"}));
    EXPECT_EQ(column(kReminders, 6), QStringList({"", ""}));
}

TEST_F(ReminderDataTest, AddressFollowsTheNotes)
{
    openFile(newStore({reminder(", ZNOTES, ZICSURL", "1, 'a', 1, 1, 'n', 'https://a.example'"),
        reminder(", ZNOTES, ZICSURL", "2, 'b', 1, 1, NULL, 'https://b.example'")}));
    EXPECT_EQ(column(kReminders, 2), QStringList({"n\nhttps://a.example", "https://b.example"}));
}

TEST_F(ReminderDataTest, SeveralStoresAreReadWithTheirAccounts)
{
    const QStringList local = newStore({"UPDATE ZREMCDOBJECT SET ZNAME = 'Local' WHERE Z_PK = 1",
        reminder("", "1, 'Plants', 1, 1")});
    builder()
        .addDatabase(kGroup, "Container_v1/Stores/Data-0B.sqlite",
            newStore({reminder("", "1, 'Milk', 1, 1")}))
        .addDatabase(kGroup, "Container_v1/Stores/Data-local.sqlite", local)
        .add(kGroup, "Container_v1/Stores/Data-local.sqlite-shm", "x")
        .addDatabase("HomeDomain", "Library/Reminders/Container_v1/Stores/Data-X.sqlite",
            newStore({reminder("", "1, 'Old', 1, 1")}));
    openFolder();
    EXPECT_EQ(column(kReminders, 0), QStringList({"Milk", "Plants", "Old"}));
    EXPECT_EQ(column(kReminders, 1), QStringList({"Home (Cloud)", "Home (Local)", "Home (Cloud)"}));
}

TEST_F(ReminderDataTest, WhatThePhoneFoundInAppsIsNoReminder)
{
    openFile(
        newStore({"INSERT INTO ZREMCDOBJECT (Z_PK, Z_ENT, ZNAME) VALUES (2, 7, 'LocalInternal')",
            reminder("", "1, 'found', 1, 2"), reminder("", "2, 'mine', 1, 1")}));
    EXPECT_EQ(column(kReminders, 0), QStringList("mine"));
}

// Lists, reminders and rules in one table, with the numbered columns of iOS 13.
TEST_F(ReminderDataTest, WideTableOfIos13To15IsRead)
{
    openFile({"CREATE TABLE Z_PRIMARYKEY (Z_ENT INTEGER PRIMARY KEY, Z_NAME VARCHAR)",
        R"(INSERT INTO Z_PRIMARYKEY VALUES (4, 'REMCDAccount'), (21, 'REMCDList'),
            (22, 'REMCDRecurrenceRule'), (23, 'REMCDReminder'))",
        R"(CREATE TABLE ZREMCDOBJECT (Z_PK INTEGER PRIMARY KEY, Z_ENT INTEGER, ZACCOUNT INTEGER,
            ZMARKEDFORDELETION INTEGER, ZREMINDER INTEGER, ZREMINDER3 INTEGER, ZALLDAY INTEGER,
            ZCOMPLETED INTEGER, ZFLAGGED INTEGER, ZPRIORITY INTEGER, ZLIST INTEGER,
            ZPARENTREMINDER INTEGER, ZCOMPLETIONDATE TIMESTAMP, ZDUEDATE TIMESTAMP, ZNAME VARCHAR,
            ZTITLE VARCHAR, ZNAME1 VARCHAR, ZNOTES VARCHAR, ZTITLE1 VARCHAR))",
        "INSERT INTO ZREMCDOBJECT (Z_PK, Z_ENT, ZNAME) VALUES (1, 4, 'Local')",
        "INSERT INTO ZREMCDOBJECT (Z_PK, Z_ENT, ZNAME1) VALUES (2, 21, 'Errands')",
        R"(INSERT INTO ZREMCDOBJECT (Z_PK, Z_ENT, ZACCOUNT, ZLIST, ZTITLE1, ZNOTES, ZDUEDATE,
            ZPRIORITY) VALUES (3, 23, 1, 2, 'Post', 'stamps', 700000000, 9))",
        "INSERT INTO ZREMCDOBJECT (Z_PK, Z_ENT, ZREMINDER3) VALUES (4, 22, 3)",
        "INSERT INTO ZREMCDOBJECT (Z_PK, Z_ENT, ZTITLE) VALUES (5, 6, 'a place')"});
    EXPECT_EQ(lines(kReminders),
        QStringList("Post | Errands | stamps | 2023-03-08 22:26 |  | Low | Repeats"));
    EXPECT_EQ(notices(""), QStringList());
}

const QStringList kCalendar{
    R"(CREATE TABLE CalendarItem (ROWID INTEGER PRIMARY KEY, summary TEXT, description TEXT,
            calendar_id INTEGER, url TEXT, hidden INTEGER, entity_type INTEGER, priority INTEGER,
            due_date REAL, due_tz TEXT, due_all_day INTEGER, completion_date REAL, display_order
            INTEGER))",
    "CREATE TABLE Calendar (ROWID INTEGER PRIMARY KEY, title TEXT)",
    "CREATE TABLE Recurrence (ROWID INTEGER PRIMARY KEY, owner_id INTEGER)",
    "INSERT INTO Calendar VALUES (2, 'Events'), (3, 'DEFAULT_TASK_CALENDAR_NAME'), (4, 'Garden')"};

TEST_F(ReminderDataTest, TasksOfAnOldCalendarAreReminders)
{
    builder().addDatabase("HomeDomain", "Library/Calendar/Calendar.sqlitedb",
        kCalendar
            + QStringList{
                R"(INSERT INTO CalendarItem (ROWID, summary, calendar_id, entity_type) VALUES
            (1, 'An event', 2, 2))",
                R"(INSERT INTO CalendarItem (ROWID, summary, description, calendar_id, entity_type,
            priority, due_date, due_tz) VALUES (2, 'Call Ben', 'bike', 3, 3, 5, 700000000,
            'Europe/Berlin'), (3, 'Tea', NULL, 3, 3, 0, 700000000, '_float'))",
                R"(INSERT INTO CalendarItem (ROWID, summary, calendar_id, entity_type, due_date,
            due_all_day, completion_date) VALUES (4, 'Water', 4, 3, 700012800, 1, 700000000))",
                R"(INSERT INTO CalendarItem (ROWID, summary, calendar_id, entity_type, hidden)
            VALUES (5, 'unseen', 4, 3, 1))",
                "INSERT INTO Recurrence VALUES (1, 4), (2, 1)"});
    openFolder();
    EXPECT_EQ(lines(kReminders),
        QStringList({"Call Ben | Reminders | bike | 2023-03-08 22:26 |  | Medium | ",
            "Tea | Reminders |  | 2023-03-08 20:26 |  |  | ",
            "Water | Garden |  | 2023-03-09 | 2023-03-08 22:26 |  | Repeats"}));
}

TEST_F(ReminderDataTest, CalendarAsALooseFileGivesItsReminders)
{
    openFile(
        kCalendar + QStringList{"INSERT INTO CalendarItem (summary, entity_type) VALUES ('x', 3)"});
    EXPECT_EQ(column(kReminders, 0), QStringList("x"));
}

TEST_F(ReminderDataTest, TableThatIsMissingIsToldAndTheRestIsThere)
{
    openFile(newStore({reminder("", "1, 'a', 1, 1"), "DROP TABLE ZREMCDBASELIST"}));
    EXPECT_EQ(lines(kReminders), QStringList("a |  |  |  |  |  | "));
    EXPECT_EQ(notices("ZREMCDBASELIST").size(), 1);
}

TEST_F(ReminderDataTest, StoreWithoutEntitiesOrTitlesIsTold)
{
    openFile({"CREATE TABLE ZREMCDREMINDER (Z_PK INTEGER PRIMARY KEY, ZNOTES VARCHAR)",
        "INSERT INTO ZREMCDREMINDER VALUES (1, 'n')"});
    EXPECT_EQ(lines(kReminders), QStringList(" |  | n |  |  |  | "));
    EXPECT_EQ(notices("ZTITLE").size(), 1);
    EXPECT_EQ(notices("Z_PRIMARYKEY").size(), 1);
}

TEST_F(ReminderDataTest, StoreThatIsNoDatabaseCostsNoOther)
{
    builder()
        .add(kGroup, "Container_v1/Stores/Data-0A.sqlite", QByteArray(5000, 'x'))
        .addDatabase(kGroup, "Container_v1/Stores/Data-0B.sqlite", {"CREATE TABLE other (a)"})
        .addDatabase(kGroup, "Container_v1/Stores/Data-0C.sqlite",
            newStore({reminder("", "1, 'Milk', 1, 1")}));
    openFolder();
    EXPECT_EQ(column(kReminders, 0), QStringList("Milk"));
    EXPECT_EQ(notices("Data-0A").size(), 1);
    EXPECT_EQ(notices("Data-0B").size(), 1);
}

TEST_F(ReminderDataTest, OddValuesCostNoReminder)
{
    openFile(newStore({R"(INSERT INTO ZREMCDREMINDER VALUES (1, 'x', x'ff00', 5, 6, 'a', 'b', 'c',
            'd', 'e', 'f', 'g', 'h', 'i', 'j', 'k'))",
        "INSERT INTO ZREMCDREMINDER (Z_PK) VALUES (2)"}));
    EXPECT_EQ(lines(kReminders).size(), 2);
    EXPECT_EQ(column(kReminders, 3), QStringList({"", ""}));
}

} // namespace
