// SPDX-License-Identifier: MIT
#pragma once

#include "Database.h"

#include <QJsonObject>
#include <QMap>

#include <vector>

namespace sample {

/// Makes the calendar of calendar.json.
class Calendar {
public:
    explicit Calendar(Database& database);

    void write(const QJsonObject& source);

private:
    qint64 storeOf(const QJsonObject& calendar);
    void writeCalendar(const QJsonObject& source);
    void writeEvent(const QJsonObject& source, qint64 calendar);
    qint64 writeItem(const QJsonObject& source, qint64 calendar);
    void writePlace(const QJsonObject& source, qint64 item);
    void writeRecurrence(const QJsonObject& source, qint64 item);
    void writeAlarms(const QJsonObject& source, qint64 item);
    void writePeople(const QJsonObject& source, qint64 item);
    void erase(qint64 item);

    Database& m_database;
    QMap<QString, qint64> m_stores; ///< by the names of their accounts
    QMap<QString, qint64> m_items;  ///< by title: series that others were moved out of
    std::vector<qint64> m_erased;
    int m_calendars = 0;
    int m_events = 0;
};

} // namespace sample
