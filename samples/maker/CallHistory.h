// SPDX-License-Identifier: MIT
#pragma once

#include "Database.h"

#include <QHash>
#include <QJsonObject>

namespace sample {

/// Makes the phone's call history from calls.json.
class CallHistory {
public:
    explicit CallHistory(Database& database);

    void write(const QJsonObject& source);

private:
    void writeCall(const QJsonObject& source);
    qint64 handle(const QString& address);

    Database& m_database;
    QHash<QString, qint64> m_handles;
};

} // namespace sample
