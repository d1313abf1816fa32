// SPDX-License-Identifier: MIT
#pragma once

#include "backup/container/opened_database.h"
#include "model/PRData.h"

#include <QString>

#include <vector>

namespace backup {

class Notices;

/// A database with the name by which notices call it.
struct NamedDatabase {
    OpenedDatabase opened;
    QString name;
};

/// A set whose records are read from its databases when they are first asked for; then these are
/// closed. The records stand on nothing but themselves.
class LazyData : public PRData {
public:
    /// One more database to read, before the records are asked for.
    void addDatabase(NamedDatabase database);

protected:
    /// `notices` outlives the set.
    LazyData(int dataType, QStringList columns, Notices& notices);

    const RecordList& records() const final;
    virtual RecordList read(
        const std::vector<NamedDatabase>& databases, Notices& notices) const = 0;

private:
    Notices& m_notices;
    mutable std::vector<NamedDatabase> m_databases;
    mutable RecordList m_records;
    mutable bool m_isRead = false;
};

} // namespace backup
