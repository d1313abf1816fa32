// SPDX-License-Identifier: MIT
#pragma once

#include "formats/sqlite.h"
#include "platform/literals.h"

#include <QString>
#include <QStringList>

#include <initializer_list>
#include <optional>

namespace backup {

/// Number of a kind of rows ("ICNote") in the stores whose tables begin with Z; it differs from
/// store to store.
std::optional<qint64> entityNumber(const formats::Database& database, QLatin1String name);

/// The columns of a table, which differ from release to release.
class TableColumns {
public:
    TableColumns(const formats::Database& database, const QString& table)
        : m_names(database.columns(table))
    {
    }

    bool has(QLatin1String name) const { return m_names.contains(name); }

    /// SQL for the first of the columns of `alias` that the table has and that holds something;
    /// NULL and 0 count as nothing.
    QString firstOf(const QString& alias, std::initializer_list<QLatin1String> names) const;

    /// The columns whose whole name matches.
    QStringList matching(const QString& pattern) const;

private:
    QStringList m_names;
};

} // namespace backup
