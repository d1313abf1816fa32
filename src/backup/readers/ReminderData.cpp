// SPDX-License-Identifier: MIT
//   Title           | List         | Notes | Due date         | Completed | Priority | Marks
//   Milk            | Shop (Cloud) |       | 2024-05-01 12:30 |           | High     | Flagged
//   Milk › Oat milk | Shop (Cloud) |       | 2024-05-01       | Yes       |          | Repeats
// Column 3 is the one that the page of this data type never breaks: a date.
#include "backup/readers/ReminderData.h"

#include "backup/readers/reminder_rows.h"
#include "backup/readers/table_reader.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QHash>
#include <QSet>

#include <algorithm>
#include <tuple>

namespace backup {

namespace {

constexpr qint64 kMediumPriority = 5;

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

QString priorityText(qint64 priority)
{
    if (priority <= 0) {
        return {};
    }
    if (priority == kMediumPriority) {
        return tr("Medium");
    }
    return priority < kMediumPriority ? tr("High") : tr("Low");
}

QString completedText(const Reminder& reminder)
{
    if (!reminder.completed) {
        return {};
    }
    return reminder.completedAt.isEmpty() ? tr("Yes") : reminder.completedAt;
}

// In one column, or the date would have to break on a screen of usual width.
QString marksText(const Reminder& reminder)
{
    QStringList marks;
    if (reminder.flagged) {
        marks.append(tr("Flagged"));
    }
    if (reminder.repeats) {
        marks.append(tr("Repeats"));
    }
    return marks.join(", "_L1);
}

QString listText(const Reminder& reminder, bool withAccount)
{
    return withAccount && !reminder.account.isEmpty()
               ? QStringLiteral("%1 (%2)").arg(reminder.list, reminder.account)
               : reminder.list;
}

/// A reminder in its place: below the one that it is a part of.
struct Placed {
    Reminder reminder;
    QString title;
    // By these it is sorted.
    qint64 list = 0;
    qint64 order = 0;
    qint64 id = 0;
    bool isPart = false;
};

Placed placed(const Reminder& reminder, const QHash<qint64, const Reminder*>& byId)
{
    const Reminder* parent = byId.value(reminder.parentId);
    const bool isPart = parent != nullptr && parent != &reminder;
    const Reminder& top = isPart ? *parent : reminder;
    return {.reminder = reminder,
        .title =
            isPart ? parent->title + QStringLiteral(" \u203A ") + reminder.title : reminder.title,
        .list = top.listId,
        .order = top.order,
        .id = top.id,
        .isPart = isPart};
}

// Those of one store; ids are its own.
std::vector<Placed> inOrder(const std::vector<Reminder>& reminders)
{
    QHash<qint64, const Reminder*> byId;
    for (const Reminder& reminder : reminders) {
        byId.insert(reminder.id, &reminder);
    }
    std::vector<Placed> all;
    all.reserve(reminders.size());
    for (const Reminder& reminder : reminders) {
        all.push_back(placed(reminder, byId));
    }
    std::ranges::stable_sort(all, std::less(), [](const Placed& one) {
        return std::tuple(
            one.list, one.order, one.id, one.isPart, one.reminder.order, one.reminder.id);
    });
    return all;
}

std::unique_ptr<PRAbstractItem> record(const Placed& one, bool withAccount)
{
    const Reminder& reminder = one.reminder;
    return std::make_unique<PRAbstractItem>(
        Record{.values = {one.title, listText(reminder, withAccount), reminder.notes, reminder.due,
                   completedText(reminder), priorityText(reminder.priority), marksText(reminder)},
            .flags = reminder.deleted ? Deleted : 0});
}

} // namespace

ReminderData::ReminderData(Notices& notices)
    : LazyData(kDataType,
        {tr("Title"), tr("List"), tr("Notes"), tr("Due date"), tr("Completed"), tr("Priority"),
            tr("Marks")},
        notices)
{
}

RecordList ReminderData::read(const std::vector<NamedDatabase>& databases, Notices& notices) const
{
    std::vector<Placed> all;
    for (const NamedDatabase& store : databases) {
        const TableReader reader(store.opened.database, store.name, notices);
        std::ranges::move(inOrder(readReminders(reader)), std::back_inserter(all));
    }
    QSet<QString> accounts;
    for (const Placed& one : all) {
        accounts.insert(one.reminder.account);
    }
    accounts.remove(QString());
    RecordList records;
    records.reserve(all.size());
    for (const Placed& one : all) {
        records.push_back(record(one, accounts.size() > 1));
    }
    return records;
}

} // namespace backup
