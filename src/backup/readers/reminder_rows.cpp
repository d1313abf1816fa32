// SPDX-License-Identifier: MIT
// Container_v1/Stores/Data-*.sqlite, one for each account; all dates are seconds since 2001.
//   iOS 16 and later                        iOS 13 to 15
//   ZREMCDREMINDER  the reminders           ZREMCDOBJECT, Z_ENT of REMCDReminder; title ZTITLE1
//   ZREMCDBASELIST  the lists               ZREMCDOBJECT, Z_ENT of REMCDList; name ZNAME1
//   ZREMCDOBJECT    Z_ENT of REMCDAccount (ZNAME), of REMCDRecurrenceRule: its reminder stands in
//                   ZREMINDER or ZREMINDER1, 2, ..., whichever the release took
//   Z_PRIMARYKEY    Z_NAME of an entity -> Z_ENT
// Calendar.sqlitedb, iOS 6 to 12
//   CalendarItem    entity_type 3: summary, description, due_date, due_tz, due_all_day,
//                   completion_date, priority, calendar_id
//   Calendar        ROWID, title
//   Recurrence      owner_id
#include "backup/readers/reminder_rows.h"

#include "backup/readers/table_reader.h"
#include "platform/CCommonUtils.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <array>

namespace backup {

namespace {

constexpr int kTask = 3; // CalendarItem.entity_type
constexpr qint64 kDayMs = 86'400'000;

// Holds what the phone found in other apps, and not what a person wrote.
constexpr QLatin1String kInternalAccount = "LocalInternal"_L1;

// A day without a time is midnight of its own clock, read as if that showed UTC. What is no
// midnight is the moment at which the day began where the phone was.
QString dayText(const QDateTime& date)
{
    const bool isMidnight = date.isValid() && date.toMSecsSinceEpoch() % kDayMs == 0;
    return CCommonUtils::dateToString(date, !isMidnight);
}

QString dueText(const QDateTime& date, bool allDay, bool floating)
{
    return allDay ? dayText(date) : CCommonUtils::datetimeToMinute(date, !floating);
}

struct List {
    QString name;
    bool deleted = false;
};

/// What the reminders of a store refer to.
struct Surroundings {
    QHash<qint64, List> lists;
    QHash<qint64, QString> accounts;
    QSet<qint64> repeating; // reminders
};

QHash<QString, qint64> readEntities(const TableReader& store)
{
    QHash<QString, qint64> entities;
    const std::array columns{WantedColumn{"Z_NAME"_L1}, WantedColumn{"Z_ENT"_L1}};
    store.read("Z_PRIMARYKEY"_L1, columns,
        [&](const formats::Statement& row) { entities.insert(row.text(0), row.integer(1)); });
    return entities;
}

// "ZREMINDER|ZREMINDER1|...": a rule has a value in one of them alone.
QString columnsOfRule(const formats::Database& database)
{
    return database.columns("ZREMCDOBJECT"_L1)
        .filter(QRegularExpression(R"(^ZREMINDER\d*$)"_L1))
        .join(QChar(u'|'));
}

// Accounts and rules, and until iOS 15 the lists.
void readObjects(
    const TableReader& store, const QHash<QString, qint64>& entities, Surroundings& around)
{
    enum Column : int { Id, Entity, Account, ListName, Deleted, Reminder };
    const std::array columns{WantedColumn{"Z_PK"_L1}, WantedColumn{"Z_ENT"_L1, true},
        WantedColumn{"ZNAME"_L1}, WantedColumn{"ZNAME1|ZNAME"_L1},
        WantedColumn{"ZMARKEDFORDELETION"_L1}, WantedColumn{columnsOfRule(store.database())}};
    const qint64 account = entities.value("REMCDAccount"_L1, -1);
    const qint64 list = entities.value("REMCDList"_L1, -1);
    const qint64 rule = entities.value("REMCDRecurrenceRule"_L1, -1);
    store.read("ZREMCDOBJECT"_L1, columns, [&](const formats::Statement& row) {
        const qint64 entity = row.integer(Entity);
        const bool deleted = row.integer(Deleted) != 0;
        if (entity == account) {
            around.accounts.insert(row.integer(Id), row.text(Account));
        } else if (entity == list) {
            around.lists.insert(row.integer(Id), {row.text(ListName), deleted});
        } else if (entity == rule && !deleted) {
            around.repeating.insert(row.integer(Reminder));
        }
    });
}

void readLists(const TableReader& store, Surroundings& around)
{
    const std::array columns{WantedColumn{"Z_PK"_L1}, WantedColumn{"ZNAME"_L1, true},
        WantedColumn{"ZMARKEDFORDELETION"_L1}};
    store.read("ZREMCDBASELIST"_L1, columns, [&](const formats::Statement& row) {
        around.lists.insert(row.integer(0), {row.text(1), row.integer(2) != 0});
    });
}

enum Column : int {
    Id,
    Entity,
    Parent,
    ListId,
    Account,
    Order,
    Title,
    Notes,
    Address,
    DueDate,
    AllDay,
    Completed,
    CompletionDate,
    Priority,
    Flagged,
    Deleted,
};

QString withAddress(const QString& notes, const QString& address)
{
    return notes.isEmpty() || address.isEmpty() ? notes + address : notes + QChar(u'\n') + address;
}

Reminder storedReminder(const formats::Statement& row, const Surroundings& around)
{
    const List list = around.lists.value(row.integer(ListId));
    return {.id = row.integer(Id),
        .parentId = row.integer(Parent),
        .listId = row.integer(ListId),
        .order = row.integer(Order),
        .list = list.name,
        .account = around.accounts.value(row.integer(Account)),
        .title = row.text(Title),
        .notes = withAddress(row.text(Notes), row.text(Address)),
        .due = dueText(cocoaDate(row, DueDate), row.integer(AllDay) != 0, false),
        .completed = row.integer(Completed) != 0,
        .completedAt = CCommonUtils::datetimeToMinute(cocoaDate(row, CompletionDate), true),
        .priority = row.integer(Priority),
        .flagged = row.integer(Flagged) != 0,
        .repeats = around.repeating.contains(row.integer(Id)),
        .deleted = row.integer(Deleted) != 0 || list.deleted};
}

std::vector<Reminder> readStore(const TableReader& store)
{
    const bool ownTable = store.database().hasTable("ZREMCDREMINDER"_L1);
    const QString title = ownTable ? QStringLiteral("ZTITLE") : QStringLiteral("ZTITLE1|ZTITLE");
    const std::array columns{WantedColumn{"Z_PK"_L1, true}, WantedColumn{"Z_ENT"_L1, !ownTable},
        WantedColumn{"ZPARENTREMINDER"_L1}, WantedColumn{"ZLIST"_L1, true},
        WantedColumn{"ZACCOUNT"_L1}, WantedColumn{"ZICSDISPLAYORDER"_L1}, WantedColumn{title, true},
        WantedColumn{"ZNOTES"_L1, true}, WantedColumn{"ZICSURL"_L1},
        WantedColumn{"ZDUEDATE"_L1, true}, WantedColumn{"ZALLDAY"_L1},
        WantedColumn{"ZCOMPLETED"_L1, true}, WantedColumn{"ZCOMPLETIONDATE"_L1},
        WantedColumn{"ZPRIORITY"_L1}, WantedColumn{"ZFLAGGED"_L1},
        WantedColumn{"ZMARKEDFORDELETION"_L1}};
    const QHash<QString, qint64> entities = readEntities(store);
    Surroundings around;
    readObjects(store, entities, around);
    if (ownTable) {
        readLists(store, around);
    }
    const qint64 entity = entities.value("REMCDReminder"_L1, -1);
    std::vector<Reminder> reminders;
    const QString table =
        ownTable ? QStringLiteral("ZREMCDREMINDER") : QStringLiteral("ZREMCDOBJECT");
    store.read(table, columns, [&](const formats::Statement& row) {
        Reminder reminder = storedReminder(row, around);
        if ((ownTable || row.integer(Entity) == entity) && reminder.account != kInternalAccount) {
            reminders.push_back(std::move(reminder));
        }
    });
    return reminders;
}

QHash<qint64, List> readCalendars(const TableReader& calendar)
{
    QHash<qint64, List> lists;
    const std::array columns{WantedColumn{"ROWID"_L1}, WantedColumn{"title"_L1, true}};
    calendar.read("Calendar"_L1, columns, [&](const formats::Statement& row) {
        QString title = row.text(1);
        if (title == "DEFAULT_TASK_CALENDAR_NAME"_L1) {
            title = QCoreApplication::translate("DataExport", "Reminders");
        }
        lists.insert(row.integer(0), {title});
    });
    return lists;
}

QSet<qint64> readRepeating(const TableReader& calendar)
{
    QSet<qint64> items;
    const std::array columns{WantedColumn{"owner_id"_L1, true}};
    calendar.read("Recurrence"_L1, columns,
        [&](const formats::Statement& row) { items.insert(row.integer(0)); });
    return items;
}

/// The columns of `CalendarItem` that tell of a task.
enum TaskColumn : int {
    TaskId,
    TaskType,
    TaskList,
    TaskOrder,
    TaskTitle,
    TaskNotes,
    TaskAddress,
    TaskDueDate,
    TaskZone,
    TaskAllDay,
    TaskCompletionDate,
    TaskPriority,
    TaskHidden,
};

std::vector<Reminder> readCalendar(const TableReader& calendar)
{
    const std::array columns{WantedColumn{"ROWID"_L1, true}, WantedColumn{"entity_type"_L1},
        WantedColumn{"calendar_id"_L1, true}, WantedColumn{"display_order"_L1},
        WantedColumn{"summary"_L1, true}, WantedColumn{"description"_L1}, WantedColumn{"url"_L1},
        WantedColumn{"due_date"_L1, true}, WantedColumn{"due_tz"_L1},
        WantedColumn{"due_all_day"_L1}, WantedColumn{"completion_date"_L1, true},
        WantedColumn{"priority"_L1}, WantedColumn{"hidden"_L1}};
    const QHash<qint64, List> lists = readCalendars(calendar);
    const QSet<qint64> repeating = readRepeating(calendar);
    std::vector<Reminder> reminders;
    calendar.read("CalendarItem"_L1, columns, [&](const formats::Statement& row) {
        if (row.integer(TaskType) != kTask || row.integer(TaskHidden) != 0) {
            return;
        }
        const QDateTime completion = cocoaDate(row, TaskCompletionDate);
        const bool floating = row.text(TaskZone) == "_float"_L1;
        reminders.push_back({.id = row.integer(TaskId),
            .listId = row.integer(TaskList),
            .order = row.integer(TaskOrder),
            .list = lists.value(row.integer(TaskList)).name,
            .title = row.text(TaskTitle),
            .notes = withAddress(row.text(TaskNotes), row.text(TaskAddress)),
            .due = dueText(cocoaDate(row, TaskDueDate), row.integer(TaskAllDay) != 0, floating),
            .completed = completion.isValid(),
            .completedAt = CCommonUtils::datetimeToMinute(completion, true),
            .priority = row.integer(TaskPriority),
            .repeats = repeating.contains(row.integer(TaskId))});
    });
    return reminders;
}

} // namespace

bool isReminderStore(const formats::Database& database)
{
    const QStringList tables = database.tables();
    return tables.contains("ZREMCDREMINDER"_L1) || tables.contains("ZREMCDOBJECT"_L1);
}

bool isCalendarWithTasks(const formats::Database& database)
{
    return database.columns("CalendarItem"_L1).contains("entity_type"_L1);
}

std::vector<Reminder> readReminders(const TableReader& store)
{
    return isReminderStore(store.database()) ? readStore(store) : readCalendar(store);
}

} // namespace backup
