// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/table_reader.h"

#include <optional>
#include <vector>

namespace backup {

/// The rows of a table that belong to one row of another, for many of those in turn.
class ChildRows {
public:
    /// `parent` is the column that leads to the other table. `reader` outlives this.
    ChildRows(const TableReader& reader, QString table, QString parent,
        std::vector<WantedColumn> columns);

    /// Gives the rows that belong to row `parent` to `take`, as TableReader::read does; 0 stands
    /// for those that belong to none.
    void read(qint64 parent, const TableReader::Take& take);

    /// Gives all rows of the table to `take`.
    void readAll(const TableReader::Take& take) const;

private:
    QString select() const;
    void readOn(qint64 parent, qint64 last, const TableReader::Take& take) const;

    const TableReader& m_reader;
    QString m_table;
    QString m_parent;
    std::vector<WantedColumn> m_columns;
    std::optional<formats::Statement> m_query; // prepared once, for all parents
};

} // namespace backup
