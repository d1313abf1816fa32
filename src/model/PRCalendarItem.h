// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRAbstractItem.h"

#include <QDateTime>

struct CalendarEvent {
    int allDay = 0;
    QDateTime start;         ///< `sortValue(2)`
    QDateTime end;           ///< `sortValue(3)`
    QString recurrence;      ///< `sortValue(5)`: "interval*frequency*specifier"
    QDateTime recurrenceEnd; ///< `sortValue(6)`; invalid: no end
    int alarmSeconds = 0;    ///< `sortValue(9)`: lead time before the start
};

/// One event; `value(0)`, `value(1)` and `value(4)` are title, place and notes.
class DATAEXPORT_EXPORT PRCalendarItem : public PRAbstractItem {
public:
    explicit PRCalendarItem(Record record = {}, CalendarEvent event = {});
    ~PRCalendarItem() override;

    QVariant sortValue(int column) const override;
    /// Not 0 for an event of whole days.
    // NOLINTNEXTLINE(readability-make-member-function-const): the signature is agreed
    int getAllDay() { return m_event.allDay; }
    const CalendarEvent& event() const { return m_event; }

private:
    CalendarEvent m_event;
};
