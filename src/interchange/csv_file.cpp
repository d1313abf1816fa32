// SPDX-License-Identifier: MIT
#include "interchange/csv_file.h"

#include "interchange/field_tables.h"
#include "interchange/utf8_stream.h"
#include "platform/literals.h"

#include <QFile>
#include <QTextStream>

namespace {

QStringList recordsToRows(const CsvLayout& layout, const QList<FieldMap>& records)
{
    QStringList rows;
    rows.reserve(records.size());
    for (const FieldMap& record : records) {
        rows.append(layout.buildRow(record));
    }
    return rows;
}

} // namespace

void CsvRow::add(const QString& item)
{
    if (!m_empty) {
        m_text += QChar(u',');
    }
    m_empty = false;
    m_text += item;
}

void CsvRow::addPadded(const QString& item, int fields)
{
    add(item);
    const int missing = fields - item.count(QChar(u',')) - 1;
    for (int i = 0; i < missing; ++i) {
        m_text += QChar(u',');
    }
}

QString CsvRow::line() const
{
    QString text;
    text.reserve(m_text.size() + 2);
    text += m_text;
    text += "\r\n"_L1;
    return text;
}

int writeCsvFile(const CsvLayout& layout, InterchangeWriteMode mode, const QString& path,
    const PRData& data, QList<FieldMap>& records)
{
    if (mode != OneFile) {
        return -1;
    }
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return -1;
    }
    layout.maxCounts->clear();
    forEachSelectedContact(data, [&](const PRContactItem& contact) {
        records.append(layout.contactToRecord(contact)); // counts the values of each series
    });
    const QString header = layout.buildHeaderRow();
    const QStringList rows = recordsToRows(layout, records);

    QTextStream stream(&file);
    if (!setUtf8(stream)) {
        return -1;
    }
    stream << header;
    for (const QString& row : rows) {
        stream << row;
    }
    stream.flush();
    return 0;
}
