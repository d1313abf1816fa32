// SPDX-License-Identifier: MIT
// Calendar.sqlitedb, iOS 6 and later; all dates are seconds since 2001.
//   Store         ROWID, name, disabled
//   Calendar      ROWID, store_id, title, flags
//   CalendarItem  entity_type 2: summary, description, url, location_id, start_date, start_tz,
//                 end_date, all_day, calendar_id, status, hidden, calendar_scale
//   Location      ROWID, title, address, item_owner_id
//   Recurrence    owner_id: interval, frequency, specifier, count, end_date, cached_end_date
//   Alarm         calendaritem_owner_id (iOS 6: owner_id): trigger_interval, trigger_date,
//                 disabled, proximity
//   Participant   owner_id: entity_type 7 guest, 8 organizer; identity_id, status, is_self, email
//   Identity      rowid, display_name, address, first_name, last_name
#include "backup/readers/calendar_rows.h"

#include "backup/readers/table_reader.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QHash>
#include <QTimeZone>

#include <algorithm>
#include <array>
#include <limits>

namespace backup {

namespace {

constexpr int kEvent = 2; // CalendarItem.entity_type
enum ParticipantType { AttendeeType = 7, OrganizerType = 8 };

// The birthdays of contacts, each beginning in the year of birth.
constexpr QLatin1String kBirthdayScale = "gregorian"_L1;

// Calendar.flags of "Found in Mail" and "Found in Natural Language": what the phone suggests.
constexpr std::array<qint64, 2> kSuggestions{262149, 524295};

struct CalendarRow {
    QString title;
    QString account;
    bool isShown = true;
};

struct StoreRow {
    QString name;
    bool disabled = false;
};

struct AlarmRow {
    bool hasInterval = false;
    qint64 interval = 0; // seconds behind the start
    QDateTime date;      // in place of an interval
};

/// What the events of a calendar refer to, by the id of the event where nothing else is said.
struct Surroundings {
    QHash<qint64, CalendarRow> calendars;  // by their own id
    QHash<qint64, QString> places;         // by their own id
    QHash<qint64, QString> placesOfEvents; // of events that name no place
    QHash<qint64, RecurrenceRow> recurrences;
    QHash<qint64, AlarmRow> alarms;
    QHash<qint64, Invitation> invitations;
};

/// Zones by their names, each looked up once.
class Zones {
public:
    /// The moment as the clock of the zone shows it; that of this machine where the zone is not
    /// known. `_float` is no zone: the clock's time is stored as if it were UTC.
    QDateTime inZone(const QDateTime& utc, const QString& name)
    {
        if (!utc.isValid()) {
            return {};
        }
        if (name == "_float"_L1) {
            const QDateTime floating(utc.date(), utc.time(), Qt::LocalTime);
            return floating.isValid() ? floating : utc; // an hour that the clock leaps over
        }
        const QTimeZone& known = zone(name);
        return known.isValid() ? utc.toTimeZone(known) : utc.toLocalTime();
    }

private:
    const QTimeZone& zone(const QString& name)
    {
        auto found = m_zones.find(name);
        if (found == m_zones.end()) {
            const QByteArray id = name.toUtf8();
            found = m_zones.insert(name, m_known.contains(id) ? QTimeZone(id) : QTimeZone());
        }
        return *found;
    }

    // A list of its own: to ask QTimeZone for a name that it lacks makes one each time.
    const QList<QByteArray> m_known = QTimeZone::availableTimeZoneIds();
    QHash<QString, QTimeZone> m_zones;
};

QHash<qint64, StoreRow> readStores(const TableReader& calendar)
{
    QHash<qint64, StoreRow> stores;
    const std::array columns{
        WantedColumn{"ROWID"_L1}, WantedColumn{"name"_L1, true}, WantedColumn{"disabled"_L1}};
    calendar.read("Store"_L1, columns, [&](const formats::Statement& row) {
        stores.insert(row.integer(0), {.name = row.text(1), .disabled = row.integer(2) != 0});
    });
    return stores;
}

void readCalendars(const TableReader& calendar, Surroundings& around)
{
    const QHash<qint64, StoreRow> stores = readStores(calendar);
    const std::array columns{WantedColumn{"ROWID"_L1}, WantedColumn{"store_id"_L1},
        WantedColumn{"title"_L1, true}, WantedColumn{"flags"_L1}};
    calendar.read("Calendar"_L1, columns, [&](const formats::Statement& row) {
        const StoreRow store = stores.value(row.integer(1));
        QString title = row.text(2);
        if (title == "DEFAULT_CALENDAR_NAME"_L1) {
            title = QCoreApplication::translate("DataExport", "Calendar");
        }
        const bool isSuggested =
            std::ranges::find(kSuggestions, row.integer(3)) != kSuggestions.end();
        around.calendars.insert(row.integer(0),
            {.title = title, .account = store.name, .isShown = !store.disabled && !isSuggested});
    });
}

void readPlaces(const TableReader& calendar, Surroundings& around)
{
    const std::array columns{WantedColumn{"ROWID"_L1}, WantedColumn{"title"_L1, true},
        WantedColumn{"address"_L1}, WantedColumn{"item_owner_id"_L1}};
    calendar.read("Location"_L1, columns, [&](const formats::Statement& row) {
        const QString title = row.text(1);
        const QString place = title.isEmpty() ? row.text(2) : title;
        around.places.insert(row.integer(0), place);
        if (row.integer(3) > 0) {
            around.placesOfEvents.insert(row.integer(3), place);
        }
    });
}

// A rule by number of times has its last day worked out beside it.
void readRecurrences(const TableReader& calendar, Surroundings& around)
{
    enum Column : int { Owner, Interval, Frequency, Specifier, Count, End, CachedEnd };
    const std::array columns{WantedColumn{"owner_id"_L1, true}, WantedColumn{"interval"_L1, true},
        WantedColumn{"frequency"_L1, true}, WantedColumn{"specifier"_L1}, WantedColumn{"count"_L1},
        WantedColumn{"end_date"_L1}, WantedColumn{"cached_end_date"_L1}};
    calendar.read("Recurrence"_L1, columns, [&](const formats::Statement& row) {
        if (around.recurrences.contains(row.integer(Owner))) {
            return; // the first one counts
        }
        QDateTime end = cocoaDate(row, End);
        if (!end.isValid() && row.integer(Count) > 0) {
            end = cocoaDate(row, CachedEnd);
        }
        around.recurrences.insert(
            row.integer(Owner), {.interval = std::max<qint64>(row.integer(Interval), 1),
                                    .frequency = row.integer(Frequency),
                                    .specifier = row.text(Specifier),
                                    .end = end});
    });
}

void readAlarms(const TableReader& calendar, Surroundings& around)
{
    enum Column : int { Owner, Interval, Date, Disabled, Proximity };
    const std::array columns{WantedColumn{"calendaritem_owner_id|owner_id"_L1, true},
        WantedColumn{"trigger_interval"_L1, true}, WantedColumn{"trigger_date"_L1},
        WantedColumn{"disabled"_L1}, WantedColumn{"proximity"_L1}};
    calendar.read("Alarm"_L1, columns, [&](const formats::Statement& row) {
        const AlarmRow alarm{.hasInterval = !row.isNull(Interval),
            .interval = row.integer(Interval),
            .date = cocoaDate(row, Date)};
        const bool rings = row.integer(Disabled) == 0 && row.integer(Proximity) == 0
                           && (alarm.hasInterval || alarm.date.isValid());
        if (rings && !around.alarms.contains(row.integer(Owner))) {
            around.alarms.insert(row.integer(Owner), alarm);
        }
    });
}

QHash<qint64, QString> readIdentities(const TableReader& calendar)
{
    QHash<qint64, QString> names;
    const std::array columns{WantedColumn{"display_name"_L1, true}, WantedColumn{"first_name"_L1},
        WantedColumn{"last_name"_L1}, WantedColumn{"address"_L1}};
    calendar.read("Identity"_L1, columns, [&](const formats::Statement& row) {
        QString name = row.text(0);
        if (name.isEmpty()) {
            name = (row.text(1) + QChar(u' ') + row.text(2)).trimmed();
        }
        if (name.isEmpty()) {
            name = row.text(3);
            name.remove("mailto:"_L1, Qt::CaseInsensitive);
        }
        names.insert(row.integer(static_cast<int>(columns.size())), name);
    });
    return names;
}

Answer answerOf(qint64 status)
{
    const bool isAnswer = status >= 1 && status <= 3;
    return isAnswer ? static_cast<Answer>(status) : Answer::Open;
}

void readInvitations(const TableReader& calendar, Surroundings& around)
{
    enum Column : int { Owner, Type, Identity, Status, Self, Mail, Phone };
    const std::array columns{WantedColumn{"owner_id"_L1, true}, WantedColumn{"entity_type"_L1},
        WantedColumn{"identity_id"_L1}, WantedColumn{"status"_L1}, WantedColumn{"is_self"_L1},
        WantedColumn{"email"_L1}, WantedColumn{"phone_number"_L1}};
    const QHash<qint64, QString> names = readIdentities(calendar);
    calendar.read("Participant"_L1, columns, [&](const formats::Statement& row) {
        Invitation& invitation = around.invitations[row.integer(Owner)];
        const bool isSelf = row.integer(Self) != 0;
        const Answer answer = answerOf(row.integer(Status));
        QString name = names.value(row.integer(Identity));
        for (const int column : {Mail, Phone}) {
            name = name.isEmpty() ? row.text(column) : name;
        }
        if (row.integer(Type) == OrganizerType && !isSelf) {
            invitation.organizer = name;
        } else if (row.integer(Type) == AttendeeType && isSelf) {
            invitation.own = answer;
        } else if (row.integer(Type) == AttendeeType && !name.isEmpty()) {
            invitation.guests.push_back({.name = name, .answer = answer});
        }
    });
}

enum Column : int {
    Id,
    Type,
    Title,
    Notes,
    Address,
    Location,
    Start,
    Zone,
    End,
    AllDay,
    Calendar,
    Status,
    Hidden,
    Scale,
};

QString withAddress(const QString& notes, const QString& address)
{
    return notes.isEmpty() || address.isEmpty() ? notes + address : notes + QChar(u'\n') + address;
}

std::optional<int> leadOf(const AlarmRow& alarm, const QDateTime& start)
{
    if (!alarm.hasInterval && !start.isValid()) {
        return std::nullopt;
    }
    using Seconds = std::numeric_limits<int>;
    const auto bounded = [](qint64 seconds) {
        return static_cast<int>(std::clamp<qint64>(seconds, -Seconds::max(), Seconds::max()));
    };
    return alarm.hasInterval ? -bounded(alarm.interval) : bounded(alarm.date.secsTo(start));
}

EventStatus statusOf(qint64 status)
{
    const bool isKnown = status >= 0 && status <= 3;
    return isKnown ? static_cast<EventStatus>(status) : EventStatus::None;
}

void setTimes(EventRow& event, const formats::Statement& row, Zones& zones)
{
    const QString zone = row.text(Zone);
    // Whole days are stored as if the clock showed UTC, and stay so.
    const auto shown = [&](const QDateTime& utc) {
        return event.allDay ? utc : zones.inZone(utc, zone);
    };
    event.start = shown(cocoaDate(row, Start));
    event.end = shown(cocoaDate(row, End));
    if (event.recurrence) {
        event.recurrenceEnd = shown(event.recurrence->end);
    }
}

EventRow eventOf(const formats::Statement& row, const Surroundings& around, Zones& zones)
{
    const qint64 id = row.integer(Id);
    const CalendarRow calendar = around.calendars.value(row.integer(Calendar));
    EventRow event{.title = row.text(Title),
        .place = around.places.value(row.integer(Location), around.placesOfEvents.value(id)),
        .notes = withAddress(row.text(Notes), row.text(Address)),
        .calendar = calendar.title,
        .account = calendar.account,
        .allDay = row.integer(AllDay) != 0,
        .status = statusOf(row.integer(Status)),
        .invitation = around.invitations.value(id)};
    if (const auto found = around.recurrences.constFind(id); found != around.recurrences.cend()) {
        event.recurrence = *found;
    }
    setTimes(event, row, zones);
    if (const auto found = around.alarms.constFind(id); found != around.alarms.cend()) {
        event.leadSeconds = leadOf(*found, event.start);
    }
    return event;
}

// Since iOS 13 all rows are events, and some do not say so.
bool isShown(const formats::Statement& row, const Surroundings& around)
{
    const bool isEvent = row.isNull(Type) || row.integer(Type) == kEvent;
    return isEvent && row.integer(Hidden) == 0 && row.text(Scale) != kBirthdayScale
           && around.calendars.value(row.integer(Calendar)).isShown;
}

} // namespace

bool isCalendar(const formats::Database& database)
{
    return database.columns("CalendarItem"_L1).contains("start_date"_L1);
}

std::vector<EventRow> readEvents(const TableReader& calendar)
{
    const std::array columns{WantedColumn{"ROWID"_L1, true}, WantedColumn{"entity_type"_L1, true},
        WantedColumn{"summary"_L1, true}, WantedColumn{"description"_L1, true},
        WantedColumn{"url"_L1}, WantedColumn{"location_id"_L1}, WantedColumn{"start_date"_L1, true},
        WantedColumn{"start_tz"_L1}, WantedColumn{"end_date"_L1, true},
        WantedColumn{"all_day"_L1, true}, WantedColumn{"calendar_id"_L1, true},
        WantedColumn{"status"_L1}, WantedColumn{"hidden"_L1}, WantedColumn{"calendar_scale"_L1}};
    Surroundings around;
    readCalendars(calendar, around);
    readPlaces(calendar, around);
    readRecurrences(calendar, around);
    readAlarms(calendar, around);
    readInvitations(calendar, around);
    Zones zones;
    std::vector<EventRow> events;
    calendar.read("CalendarItem"_L1, columns, [&](const formats::Statement& row) {
        if (isShown(row, around)) {
            events.push_back(eventOf(row, around, zones));
        }
    });
    return events;
}

} // namespace backup
