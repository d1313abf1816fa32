// SPDX-License-Identifier: MIT
#pragma once

#include "interchange/write_mode.h"
#include "model/PRContactItem.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

class PRData;

/// What a field table makes of one contact: the result of each handler under the key of its row.
using FieldMap = QMap<QString, QString>;
/// The largest number of values that one contact has had, by series.
using CountMap = QMap<QString, int>;

/// One line of a CSV file, whose fields go out as they are, without quotes.
class CsvRow {
public:
    void add(const QString& item);
    /// With as many commas behind it as `fields` fields need. The commas of the item count too,
    /// those within its values included.
    void addPadded(const QString& item, int fields);

    /// The row with its line end, in a string of its own size.
    QString line() const;

private:
    QString m_text;
    bool m_empty = true;
};

/// What one of the CSV layouts consists of.
struct CsvLayout {
    CountMap* maxCounts = nullptr;
    FieldMap (*contactToRecord)(const PRContactItem& contact) = nullptr;
    QString (*buildHeaderRow)() = nullptr;
    QString (*buildRow)(const FieldMap& record) = nullptr;
};

/// Reads all selected contacts into `records`, behind those that are there, and then writes the
/// header, whose width is known only now, and a row for each record. 0, or -1 for a mode other than
/// 1 and for a file that cannot be opened.
int writeCsvFile(const CsvLayout& layout, InterchangeWriteMode mode, const QString& path,
    const PRData& data, QList<FieldMap>& records);

/// The values of the properties of one kind, in their order. `valuesOf` answers for one property
/// with its values, or with none for one that does not belong to the series. Raises the series'
/// count to the number of those that do.
template <typename ValuesOf>
QStringList seriesOf(const PRContactItem& contact, PropType kind, CountMap& maxCounts,
    const QString& name, ValuesOf valuesOf)
{
    int count = 0;
    QStringList values;
    for (const PRContactProperty* property : contact.detailContent()->properties()) {
        const QStringList ofProperty =
            property->propType() == kind ? valuesOf(*property) : QStringList();
        count += ofProperty.isEmpty() ? 0 : 1;
        values += ofProperty;
    }
    if (count > maxCounts.value(name)) {
        maxCounts.insert(name, count);
    }
    return values;
}
