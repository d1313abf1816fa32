// SPDX-License-Identifier: MIT
//   Title   | Place | Starts           | Ends             | Notes  | Repeats
//   Choir   | Hall  | 2024-06-04 19:30 | 2024-06-04 21:00 | Scores | Every 2 weeks until
//           |       |                  |                  |        | 2024-07-16
//   Holiday |       | 2024-08-01       | 2024-08-14       |        |
//
// and behind them Calendar ("Home (iCloud)") and Details, a line each:
//   Cancelled, Declined
//   Attendees: Lena (Organizer), Tom (Accepted)
//   Alert: 2024-06-04 19:15
// With more columns, or a word before it in its line, a date would break at its hyphens on a screen
// of usual width.
#include "backup/readers/CalendarData.h"

#include "backup/readers/calendar_rows.h"
#include "backup/readers/table_reader.h"
#include "model/PRCalendarItem.h"
#include "platform/CCommonUtils.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>
#include <array>

namespace backup {

namespace {

constexpr qint64 kDayMs = 86'400'000;

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

QString dateText(const QDateTime& date, bool allDay)
{
    return allDay ? CCommonUtils::dateToString(date, false)
                  : CCommonUtils::datetimeToMinute(date, true);
}

// Whole days end a second before midnight, or at the midnight behind them.
QString endText(const EventRow& event)
{
    const bool atMidnight =
        event.allDay && event.end > event.start && event.end.toMSecsSinceEpoch() % kDayMs == 0;
    return dateText(atMidnight ? event.end.addSecs(-1) : event.end, event.allDay);
}

// The texts for every interval of 1 and for longer ones.
struct FrequencyRow {
    const char* each = nullptr;
    const char* nth = nullptr;
};

// clang-format off
constexpr std::array kFrequencies{ // from 1 on
    FrequencyRow{QT_TRANSLATE_NOOP("DataExport", "Every day"),   QT_TRANSLATE_NOOP("DataExport", "Every %1 days")},
    FrequencyRow{QT_TRANSLATE_NOOP("DataExport", "Every week"),  QT_TRANSLATE_NOOP("DataExport", "Every %1 weeks")},
    FrequencyRow{QT_TRANSLATE_NOOP("DataExport", "Every month"), QT_TRANSLATE_NOOP("DataExport", "Every %1 months")},
    FrequencyRow{QT_TRANSLATE_NOOP("DataExport", "Every year"),  QT_TRANSLATE_NOOP("DataExport", "Every %1 years")},
};
// clang-format on

QString frequencyText(const std::optional<RecurrenceRow>& recurrence)
{
    const auto count = static_cast<qint64>(kFrequencies.size());
    if (!recurrence || recurrence->frequency < 1 || recurrence->frequency > count) {
        return {};
    }
    const FrequencyRow& frequency =
        kFrequencies.at(static_cast<std::size_t>(recurrence->frequency - 1));
    return recurrence->interval == 1 ? tr(frequency.each)
                                     : tr(frequency.nth).arg(recurrence->interval);
}

// The last day as its own zone has it: often the end of that day.
QString untilText(const EventRow& event)
{
    const QDateTime day(event.recurrenceEnd.date(), QTime(0, 0), Qt::UTC);
    return CCommonUtils::dateToString(day, false);
}

QString repeatsText(const EventRow& event)
{
    const QString frequency = frequencyText(event.recurrence);
    const QString until = untilText(event);
    return frequency.isEmpty() || until.isEmpty() ? frequency
                                                  : tr("%1 until\n%2").arg(frequency, until);
}

QString answerText(Answer answer)
{
    switch (answer) {
    case Answer::Accepted:
        return tr("Accepted");
    case Answer::Declined:
        return tr("Declined");
    case Answer::Maybe:
        return tr("Maybe");
    case Answer::Open:
        break;
    }
    return {};
}

QString withRemark(const QString& text, const QString& remark)
{
    return remark.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, remark);
}

// An organizer who is among the guests too stands there once.
QString attendeesText(const Invitation& invitation)
{
    QStringList people;
    if (!invitation.organizer.isEmpty()) {
        people.append(withRemark(invitation.organizer, tr("Organizer")));
    }
    for (const Guest& guest : invitation.guests) {
        if (guest.name != invitation.organizer) {
            people.append(withRemark(guest.name, answerText(guest.answer)));
        }
    }
    return people.isEmpty() ? QString() : tr("Attendees: %1").arg(people.join(", "_L1));
}

QString marksText(const EventRow& event)
{
    QStringList marks;
    if (event.status == EventStatus::Cancelled) {
        marks.append(tr("Cancelled"));
    } else if (event.status == EventStatus::Tentative) {
        marks.append(tr("Tentative"));
    }
    if (event.invitation.own && !event.invitation.organizer.isEmpty()) {
        const QString answer = answerText(*event.invitation.own);
        marks.append(answer.isEmpty() ? tr("Invitation") : answer);
    }
    return marks.join(", "_L1);
}

QString alertText(const EventRow& event)
{
    if (!event.leadSeconds || !event.start.isValid()) {
        return {};
    }
    // Whole days begin at midnight of whatever clock, which stands as UTC.
    const QDateTime alert = event.start.addSecs(-qint64(*event.leadSeconds));
    return tr("Alert: %1").arg(CCommonUtils::datetimeToMinute(alert, !event.allDay));
}

QString detailsText(const EventRow& event)
{
    QStringList details{marksText(event), attendeesText(event.invitation), alertText(event)};
    details.removeAll(QString());
    return details.join(QChar(u'\n'));
}

// "1*2*D=0MO,0WE", the form that the writer of events reads.
QString recurrenceSource(const std::optional<RecurrenceRow>& recurrence)
{
    if (!recurrence) {
        return {};
    }
    return QString::number(recurrence->interval) + QChar(u'*')
           + QString::number(recurrence->frequency) + QChar(u'*') + recurrence->specifier;
}

std::unique_ptr<PRAbstractItem> record(const EventRow& event, bool withAccount)
{
    const QString calendar = withAccount && !event.account.isEmpty()
                                 ? withRemark(event.calendar, event.account)
                                 : event.calendar;
    return std::make_unique<PRCalendarItem>(
        Record{.values = {event.title, event.place, dateText(event.start, event.allDay),
                   endText(event), event.notes, repeatsText(event), calendar, detailsText(event)},
            .flags = InCalendarRange},
        CalendarEvent{.allDay = event.allDay ? 1 : 0,
            .start = event.start,
            .end = event.end,
            .recurrence = recurrenceSource(event.recurrence),
            .recurrenceEnd = event.recurrenceEnd,
            .alarmSeconds = event.leadSeconds.value_or(0)});
}

} // namespace

CalendarData::CalendarData(Notices& notices)
    : LazyData(kDataType,
        {tr("Title"), tr("Place"), tr("Starts"), tr("Ends"), tr("Notes"), tr("Repeats"),
            tr("Calendar"), tr("Details")},
        notices)
{
}

RecordList CalendarData::read(const std::vector<NamedDatabase>& databases, Notices& notices) const
{
    std::vector<EventRow> events;
    for (const NamedDatabase& store : databases) {
        std::vector<EventRow> more =
            readEvents(TableReader(store.opened.database, store.name, notices));
        std::ranges::move(more, std::back_inserter(events));
    }
    std::ranges::stable_sort(
        events, std::less(), [](const EventRow& event) { return dateOrder(event.start); });
    QSet<QString> accounts;
    for (const EventRow& event : events) {
        accounts.insert(event.account);
    }
    accounts.remove(QString());
    RecordList records;
    records.reserve(events.size());
    for (const EventRow& event : events) {
        records.push_back(record(event, accounts.size() > 1));
    }
    return records;
}

} // namespace backup
