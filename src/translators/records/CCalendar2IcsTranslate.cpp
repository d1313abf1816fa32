// SPDX-License-Identifier: MIT
//   BEGIN:VCALENDAR
//   PRODID:-//orvendale//Tessavon//EN
//   VERSION:2.0
//   BEGIN:VEVENT
//   SUMMARY:Choir, rehearsal
//   LOCATION:Church hall
//   DESCRIPTION:Bring the scores\nand water
//   DTSTART:20240604T193000
//   DTEND:20240604T210000
//   BEGIN:VALARM
//   TRIGGER:-PT15M
//   ACTION:DISPLAY
//   DESCRIPTION:Reminder
//   END:VALARM
//   RRULE:FREQ=WEEKLY;COUNT=4;BYDAY=TU
//   END:VEVENT
//   END:VCALENDAR
//
// Each line ends in a carriage return and a line feed, but for the last, which has no end. No line
// is folded, and commas and semicolons stand as they are. Times are local and name no zone.
#include "translators/records/CCalendar2IcsTranslate.h"

#include "exporters/CIDataExporter.h"
#include "model/PRCalendarItem.h"
#include "model/PRData.h"
#include "platform/literals.h"
#include "translators/record_loop.h"
#include "translators/records/recurrence_rule.h"

#include <QLocale>

namespace {

constexpr QLatin1String kLineEnd = "\r\n"_L1;
constexpr QLatin1String kHeader =
    "BEGIN:VCALENDAR\r\nPRODID:-//orvendale//Tessavon//EN\r\nVERSION:2.0\r\n"_L1;
constexpr QLatin1String kEventOpen = "BEGIN:VEVENT\r\n"_L1;
constexpr QLatin1String kAlarm = "BEGIN:VALARM\r\n"
                                 "TRIGGER:-PT%1M\r\n"
                                 "ACTION:DISPLAY\r\n"
                                 "DESCRIPTION:Reminder\r\n"
                                 "END:VALARM"_L1;
constexpr QLatin1String kEventClose = "END:VEVENT\r\n"_L1;
constexpr QLatin1String kFooter = "END:VCALENDAR"_L1;

enum Column : int {
    Title = 0,
    Place = 1,
    Start = 2,
    End = 3,
    Notes = 4,
    Recurring = 5,
    RecurrenceEnd = 6,
    Alarm = 9,
};

// An event of whole days stands as it is stored, and has its time of day too. A day and a time
// without a valid zone would be given as text all the same.
QString dateText(PRCalendarItem* item, int column)
{
    const QDateTime stored = item->sortValue(column).toDateTime();
    if (!stored.isValid()) {
        return {};
    }
    const QDateTime shown = item->getAllDay() == 0 ? stored.toLocalTime() : stored;
    return QLocale::c()
        .toString(shown, QStringLiteral("yyyyMMdd hhmmss"))
        .trimmed()
        .replace(QChar(u' '), QChar(u'T'));
}

QString notesText(const PRCalendarItem* item)
{
    return item->value(Notes).replace(QChar(u'\n'), R"(\n)"_L1);
}

// Each event has one, an event without an alarm too. The sign of an alarm behind the start comes
// second: -PT-15M.
QString alarmText(int minutes)
{
    return QString(kAlarm).arg(minutes);
}

QString rruleText(const PRCalendarItem* item)
{
    const QDateTime end = item->sortValue(RecurrenceEnd).toDateTime();
    return recurrenceRule(item->sortValue(Recurring).toString(),
        item->sortValue(Start).toDateTime().date(), end.isValid() ? end.date() : QDate());
}

bool isWanted(const PRCalendarItem* item)
{
    return item != nullptr && (item->flag(InCalendarRange) || item->flag(PartlySelected));
}

} // namespace

CCalendar2IcsTranslate::CCalendar2IcsTranslate(PRData* data)
    : m_columnPrefix{{Title, "SUMMARY:"_L1}, {Place, "LOCATION:"_L1}, {Notes, "DESCRIPTION:"_L1},
        {Start, "DTSTART:"_L1}, {End, "DTEND:"_L1}, {Alarm, "TRIGGER:"_L1},
        {Recurring, "RRULE:"_L1}},
      m_columnOrder{Title, Place, Notes, Start, End, Alarm, Recurring}, m_data(data)
{
}

// What a write answers is not asked for: a calendar goes on without a line that is lost.
bool CCalendar2IcsTranslate::translate(
    CIDataExporter* exporter, const QString& /*title*/, CIProgressCallback* progress)
{
    const QList<int> rows = m_data->recoverList();
    if (rows.isEmpty()) {
        return true; // not even an empty calendar
    }
    const double unit = progressUnit(progress, rows.size());
    writeHeader(exporter);
    for (const int row : rows) {
        if (progress != nullptr && !progress->step(unit)) {
            break;
        }
        auto* item = dynamic_cast<PRCalendarItem*>(m_data->at(row, true));
        if (isWanted(item)) {
            writeEvent(exporter, item);
        }
    }
    exporter->write(kFooter);
    return true;
}

void CCalendar2IcsTranslate::writeHeader(CIDataExporter* exporter) const
{
    exporter->write(kHeader);
}

void CCalendar2IcsTranslate::writeEvent(CIDataExporter* exporter, PRCalendarItem* item) const
{
    exporter->write(kEventOpen);
    for (const int column : m_columnOrder) {
        const QString value = fieldText(item, column);
        if (!value.isEmpty()) {
            // The alarm is a block of its own, and no line has its prefix.
            const QString prefix = column == Alarm ? QString() : m_columnPrefix.value(column);
            exporter->write(prefix + value + kLineEnd);
        }
    }
    exporter->write(kEventClose);
}

QString CCalendar2IcsTranslate::fieldText(PRCalendarItem* item, int column) const
{
    switch (column) {
    case Start:
    case End:
        return dateText(item, column);
    case Notes:
        return notesText(item);
    case Recurring:
        return rruleText(item);
    case Alarm:
        return alarmText(item->sortValue(Alarm).toInt() / 60);
    default:
        return item->value(column);
    }
}
