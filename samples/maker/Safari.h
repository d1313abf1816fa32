// SPDX-License-Identifier: MIT
#pragma once

#include "Database.h"

#include <QHash>
#include <QJsonObject>
#include <QJsonValue>

namespace sample {

/// Makes Safari's bookmarks, with the reading list, from safari.json.
class SafariBookmarks {
public:
    explicit SafariBookmarks(Database& database);

    void write(const QJsonObject& source);

private:
    qint64 writeFolder(qint64 parent, const QString& title, int special);
    void writeEntries(qint64 folder, const QJsonValue& entries);
    void writeReadingList(qint64 folder, const QJsonValue& entries);
    Database::Row rowOf(const QJsonObject& source, qint64 folder);

    Database& m_database;
    int m_order = 0;
};

/// Makes Safari's history from safari.json.
class SafariHistory {
public:
    explicit SafariHistory(Database& database);

    void write(const QJsonObject& source);

private:
    qint64 page(const QString& address);
    void writeVisit(const QJsonObject& source);
    qint64 writeHop(const QString& address, qint64 seconds, qint64 destination);

    Database& m_database;
    QHash<QString, qint64> m_pages;
    int m_visits = 0;
};

} // namespace sample
