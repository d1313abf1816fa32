// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace formats {
class Database;
}

namespace backup {

class TableReader;

/// One reminder as a store has it, its dates as they are shown.
struct Reminder {
    qint64 id = 0;
    qint64 parentId = 0; ///< of the reminder that it is a part of; 0 for none
    qint64 listId = 0;
    qint64 order = 0; ///< among those of its list
    QString list;
    QString account;
    QString title;
    QString notes;
    QString due;
    bool completed = false;
    QString completedAt; ///< may be empty
    qint64 priority = 0; ///< 0 none, 1 (high) to 9 (low)
    bool flagged = false;
    bool repeats = false;
    bool deleted = false; ///< or its list is
};

/// A store of iOS 13 and later; one account's.
bool isReminderStore(const formats::Database& database);
/// The calendar of iOS 6 and later, in which reminders lay until iOS 12.
bool isCalendarWithTasks(const formats::Database& database);

/// The reminders of a store of either kind, as they lie in it.
std::vector<Reminder> readReminders(const TableReader& store);

} // namespace backup
