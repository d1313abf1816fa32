// SPDX-License-Identifier: MIT
#include "model/PRCalendarItem.h"

namespace {

enum Column : int { Start = 2, End = 3, Recurrence = 5, RecurrenceEnd = 6, Alarm = 9 };

} // namespace

PRCalendarItem::PRCalendarItem(Record record, CalendarEvent event)
    : PRAbstractItem(std::move(record)), m_event(std::move(event))
{
}

PRCalendarItem::~PRCalendarItem() = default;

QVariant PRCalendarItem::sortValue(int column) const
{
    switch (column) {
    case Start:
        return m_event.start;
    case End:
        return m_event.end;
    case Recurrence:
        return m_event.recurrence;
    case RecurrenceEnd:
        return m_event.recurrenceEnd;
    case Alarm:
        return m_event.alarmSeconds;
    default:
        return PRAbstractItem::sortValue(column);
    }
}
