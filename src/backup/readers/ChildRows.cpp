// SPDX-License-Identifier: MIT
#include "backup/readers/ChildRows.h"

#include "backup/readers/keyed_rows.h"
#include "platform/literals.h"

#include <utility>

namespace backup {

ChildRows::ChildRows(
    const TableReader& reader, QString table, QString parent, std::vector<WantedColumn> columns)
    : m_reader(reader), m_table(std::move(table)), m_parent(std::move(parent)),
      m_columns(std::move(columns))
{
}

QString ChildRows::select() const
{
    return "SELECT "_L1 + m_reader.selection(m_table, m_columns) + ",rowid FROM "_L1 + m_table;
}

void ChildRows::read(qint64 parent, const TableReader::Take& take)
{
    if (parent == 0) {
        readOn(0, INT64_MIN, take); // no index finds both NULL and 0
        return;
    }
    if (!m_query) {
        auto query = m_reader.database().prepare(
            select() + " WHERE "_L1 + m_parent + " = ? ORDER BY rowid"_L1);
        if (!query) {
            m_reader.noteDamage();
            return;
        }
        m_query = std::move(*query);
    }
    m_query->reset();
    m_query->bind(1, parent);
    const int idColumn = static_cast<int>(m_columns.size());
    qint64 last = INT64_MIN;
    while (m_query->next()) {
        last = m_query->integer(idColumn);
        take(*m_query);
    }
    if (m_query->failed()) {
        readOn(parent, last, take);
    }
}

// The rows behind the row `last`, without the index: it may be what is damaged.
void ChildRows::readOn(qint64 parent, qint64 last, const TableReader::Take& take) const
{
    const KeyedQuery query{
        .select = select(),
        .condition = QStringLiteral("ifnull(%1,0) = %2 AND rowid > %3")
                         .arg(m_parent, QString::number(parent), QString::number(last)),
        .key = QStringLiteral("rowid"),
        .keyColumn = static_cast<int>(m_columns.size()),
    };
    if (!readByKey(m_reader.database(), query, take)) {
        m_reader.noteDamage();
    }
}

void ChildRows::readAll(const TableReader::Take& take) const
{
    m_reader.read(m_table, m_columns, take);
}

} // namespace backup
