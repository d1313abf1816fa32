// SPDX-License-Identifier: MIT
#pragma once

#include "formats/sqlite.h"

#include <QDateTime>
#include <QString>

#include <QLatin1String>
#include <functional>
#include <span>

namespace backup {

class Notices;

/// A column of a table as a reader wants it.
struct WantedColumn {
    QString name;          ///< "ZTITLE1|ZTITLE": the first that has a value other than 0 and ""
    bool needed = false;   ///< each release has it: that it is missing is told
    bool sizeOnly = false; ///< not its value but the number of its bytes, of which none is read
};

/// Reads whole tables of one database, in whatever form a release has them.
class TableReader {
public:
    /// `name` is how notices call the database; all three outlive the reader.
    TableReader(const formats::Database& database, const QString& name, Notices& notices)
        : m_database(database), m_name(name), m_notices(notices)
    {
    }

    const formats::Database& database() const { return m_database; }

    using Take = std::function<void(const formats::Statement&)>;

    /// Gives each row to `take`, in the order of their ids, with the wanted columns in their order;
    /// a column that the table lacks is NULL; behind them stands the row's id. Around damaged
    /// pages the rows before the first one come first, then those behind the last one from their
    /// end on, then those in between. That something is missing is told to the notices.
    void read(const QString& table, std::span<const WantedColumn> columns, const Take& take) const;

    /// Prepares the query of one row: its id is parameter 1, the columns are as above.
    formats::Result<formats::Statement> prepareRow(
        const QString& table, std::span<const WantedColumn> columns) const;

    /// SQL for the wanted columns in their order; one that the table lacks is NULL.
    QString selection(const QString& table, std::span<const WantedColumn> columns) const;

    /// Tells that the database is damaged.
    void noteDamage() const;

private:
    const formats::Database& m_database;
    const QString& m_name;
    Notices& m_notices;
};

/// Seconds since 2001, or since 1970, in a column. Invalid for none: NULL, 0, and what is no
/// number.
QDateTime cocoaDate(const formats::Statement& row, int column);
QDateTime unixDate(const formats::Statement& row, int column);

/// The row that a column leads to; 0 for none, for which a database may have NULL, 0 or -1.
qint64 linkedRow(const formats::Statement& row, int column);

/// The number of rows of a table; of a damaged one about that.
qint64 countRows(const formats::Database& database, const QString& table);

/// What a date is sorted by: milliseconds since 1970, the smallest number where there is none.
qint64 dateOrder(const QDateTime& date);

} // namespace backup
