// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace formats {
class Database;
}

namespace backup {

class TableReader;

/// What an invited person answered; `Open` is no answer.
enum class Answer { Open = 0, Accepted = 1, Declined = 2, Maybe = 3 };

struct Guest {
    QString name;
    Answer answer = Answer::Open;
};

/// The people of an event without the owner of the phone.
struct Invitation {
    QString organizer; ///< empty where the owner is that, or nobody
    std::vector<Guest> guests;
    std::optional<Answer> own; ///< of the owner, where he is among the guests
};

/// Of a rule what people are shown, and the text that other programs read.
struct RecurrenceRow {
    qint64 interval = 1;
    qint64 frequency = 0; ///< 1 daily, 2 weekly, 3 monthly, 4 yearly
    QString specifier;
    QDateTime end; ///< UTC, as it is stored; invalid for none
};

enum class EventStatus { None = 0, Confirmed = 1, Tentative = 2, Cancelled = 3 };

/// One event as a calendar has it.
struct EventRow {
    QString title;
    QString place;
    QString notes;
    QString calendar;
    QString account;
    bool allDay = false;
    /// In the zone of the event: their days are those that its rule means. A floating time is
    /// local, a whole day is UTC.
    QDateTime start;
    QDateTime end;
    QDateTime recurrenceEnd;
    std::optional<RecurrenceRow> recurrence;
    std::optional<int> leadSeconds; ///< from the alarm to the start; none: no alarm
    EventStatus status = EventStatus::None;
    Invitation invitation;
};

/// The calendar of iOS 6 and later.
bool isCalendar(const formats::Database& database);

/// The events that the calendar shows as its own, as they lie in it: no tasks, no birthdays of
/// contacts, no suggestions, nothing hidden or of an account that is switched off.
std::vector<EventRow> readEvents(const TableReader& calendar);

} // namespace backup
