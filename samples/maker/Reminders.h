// SPDX-License-Identifier: MIT
#pragma once

#include "Database.h"

#include <QJsonObject>

namespace sample {

/// Makes the store of reminders of one account of reminders.json.
class Reminders {
public:
    explicit Reminders(Database& database);

    void write(const QJsonObject& account);

private:
    /// Where a reminder lies; 0 for none.
    struct Place {
        qint64 list = 0;
        qint64 parent = 0;
        int order = 0;
    };
    void writeList(const QJsonObject& source);
    void writeReminder(const QJsonObject& source, const Place& place);

    Database& m_database;
    QString m_name;
    qint64 m_account = 0;
    int m_reminders = 0;
};

} // namespace sample
