// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QString>

/// How an event comes again, as the text of an RRULE. `source` is "interval*frequency*specifier",
/// such as "2*2*D=0MO"; `start` is the day of the event, `end` the last day of the recurrence,
/// invalid where it has none. Empty for a source of another form or frequency.
QString recurrenceRule(const QString& source, const QDate& start, const QDate& end);
