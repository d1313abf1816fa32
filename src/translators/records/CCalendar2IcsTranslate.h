// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QMap>
#include <QString>

class CIDataExporter;
class CIProgressCallback;
class PRCalendarItem;
class PRData;

/// The selected events as one iCalendar text. Made on the stack of an entry, lives for one run. The
/// data set is not owned.
class CCalendar2IcsTranslate final {
public:
    explicit CCalendar2IcsTranslate(PRData* data);

    /// Always true, whatever could be written: the result is no measure of it. Nothing at all is
    /// written without a selected record; a cancel ends the events and not the calendar. `progress`
    /// may be null.
    bool translate(CIDataExporter* exporter, const QString& title, CIProgressCallback* progress);

private:
    void writeHeader(CIDataExporter* exporter) const;
    void writeEvent(CIDataExporter* exporter, PRCalendarItem* item) const;
    QString fieldText(PRCalendarItem* item, int column) const;

    QMap<int, QString> m_columnPrefix; ///< by column of the record
    QList<int> m_columnOrder;
    PRData* m_data;
};
