// SPDX-License-Identifier: MIT
#include "backup/readers/table_reader.h"

#include "backup/container/Notices.h"
#include "backup/readers/keyed_rows.h"
#include "formats/cocoa_values.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QStringList>

namespace backup {

namespace {

constexpr double kStartOf2001 = 978'307'200; // seconds since 1970

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

// Names come from tables that the database defines, and are foreign text.
QString quoted(QString name)
{
    return QChar(u'"') + name.replace(QChar(u'"'), R"("")"_L1) + QChar(u'"');
}

// Those of the names that the table has, a comma behind each. Of several the first with a value is
// asked for, and 0 is none; "+" keeps the text "0" from being taken for it.
QString availableOf(const QStringList& names, const QStringList& available)
{
    const QString form = names.size() > 1 ? "nullif(nullif(+%1,''),0),"_L1 : "%1,"_L1;
    QString found;
    for (const QString& name : names) {
        if (available.contains(name)) {
            found += form.arg(quoted(name));
        }
    }
    return found;
}

} // namespace

QString TableReader::selection(const QString& table, std::span<const WantedColumn> columns) const
{
    const QStringList available = m_database.columns(table);
    QStringList selected;
    for (const WantedColumn& column : columns) {
        const QStringList names = column.name.split(QChar(u'|'));
        const QString found = availableOf(names, available);
        if (found.isEmpty() && column.needed) {
            m_notices.add(
                tr("%1 has no column %2; it is read as empty.").arg(m_name, names.first()));
        }
        const QString value = "coalesce("_L1 + found + "NULL,NULL)"_L1;
        selected.append(column.sizeOnly && !found.isEmpty()
                            ? "length("_L1 + quoted(names.first()) + QChar(u')')
                            : value);
    }
    return selected.join(QChar(u','));
}

void TableReader::noteDamage() const
{
    m_notices.add(tr("%1 is damaged; what can be read of it is there.").arg(m_name));
}

void TableReader::read(
    const QString& table, std::span<const WantedColumn> columns, const Take& take) const
{
    if (!m_database.hasTable(table)) {
        m_notices.add(tr("%1 has no table %2.").arg(m_name, table));
        return;
    }
    const KeyedQuery query{
        .select = "SELECT "_L1 + selection(table, columns) + ",rowid FROM "_L1 + quoted(table),
        .condition = {},
        .key = QStringLiteral("rowid"),
        .keyColumn = static_cast<int>(columns.size()),
    };
    if (!readByKey(m_database, query, take)) {
        noteDamage();
    }
}

formats::Result<formats::Statement> TableReader::prepareRow(
    const QString& table, std::span<const WantedColumn> columns) const
{
    return m_database.prepare("SELECT "_L1 + selection(table, columns) + " FROM "_L1 + quoted(table)
                              + " WHERE rowid = ?"_L1);
}

QDateTime cocoaDate(const formats::Statement& row, int column)
{
    const double seconds = row.real(column);
    return seconds == 0 ? QDateTime() : formats::dateFromCocoaSeconds(seconds);
}

QDateTime unixDate(const formats::Statement& row, int column)
{
    const double seconds = row.real(column);
    return seconds == 0 ? QDateTime() : formats::dateFromCocoaSeconds(seconds - kStartOf2001);
}

qint64 linkedRow(const formats::Statement& row, int column)
{
    const qint64 id = row.integer(column);
    return id == -1 ? 0 : id;
}

qint64 countRows(const formats::Database& database, const QString& table)
{
    // Where a damaged page ends the count, the last id tells about as much.
    for (const QLatin1String number : {"count(*)"_L1, "max(rowid)"_L1}) {
        auto query = database.prepare("SELECT "_L1 + number + " FROM "_L1 + quoted(table));
        if (query && query->next()) {
            return query->integer(0);
        }
    }
    return 0;
}

qint64 dateOrder(const QDateTime& date)
{
    return date.isValid() ? date.toMSecsSinceEpoch() : INT64_MIN;
}

} // namespace backup
