// SPDX-License-Identifier: MIT
// {"kind": "event", "values": ["Regatta", "Kiel", "", "", "Bring gloves"],
//  "start": "2024-06-22T08:00:00Z", "end": "2024-06-22T16:00:00Z", "alarm": 3600}
#include "model/PRCalendarItem.h"
#include "recordset/Kind.h"

namespace recordset {

namespace {

constexpr std::array kFields{
    integer<&CalendarEvent::allDay>("allDay"),
    date<&CalendarEvent::start>("start"),
    date<&CalendarEvent::end>("end"),
    text<&CalendarEvent::recurrence>("recurrence"),
    date<&CalendarEvent::recurrenceEnd>("recurrenceEnd"),
    integer<&CalendarEvent::alarmSeconds>("alarm"),
};

const CalendarEvent& contentsOf(PRCalendarItem& item)
{
    return item.event();
}

} // namespace

constinit const Kind kEventKind =
    kindOf<kFields, makeItem<PRCalendarItem, CalendarEvent>, contentsOf>("event");

} // namespace recordset
