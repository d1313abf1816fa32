// SPDX-License-Identifier: MIT
#include "Calendar.h"

#include "common.h"

#include <QJsonValue>

namespace sample {

namespace {

constexpr int kEventsOnly = 4; // Calendar.supported_entity_types
constexpr int kEvent = 2;      // CalendarItem.entity_type
constexpr int kDeleted = 2;    // CalendarItemChanges.type
constexpr int kMinute = 60;
constexpr qint64 kHour = 3600;
enum ParticipantType { Guest = 7, Organizer = 8 };

bool isDay(const QString& at)
{
    return !at.contains(' ');
}

// An invalid value, which is NULL, where the source says nothing.
QVariant moment(const QJsonValue& text, const QString& timeOfDays = "00:00:00")
{
    const QString at = text.toString();
    if (at.isEmpty()) {
        return {};
    }
    return secondsSince2001(isDay(at) ? at + ' ' + timeOfDays : at);
}

int number(bool value)
{
    return value ? 1 : 0;
}

} // namespace

Calendar::Calendar(Database& database) : m_database(database)
{
}

void Calendar::write(const QJsonObject& source)
{
    m_database.run("BEGIN");
    for (const QJsonValue& calendar : entriesOf(source["calendars"])) {
        writeCalendar(calendar.toObject());
    }
    // Last, or the rows behind it would take the place of what is left.
    for (const qint64 item : m_erased) {
        erase(item);
    }
    m_database.run("COMMIT");
}

qint64 Calendar::storeOf(const QJsonObject& calendar)
{
    const QString account = calendar["account"].toString();
    if (!m_stores.contains(account)) {
        m_stores[account] = m_database.insert(
            "Store", {{"name", account}, {"type", calendar["type"].toInt()},
                         {"disabled", number(calendar["disabled"].toBool())},
                         {"persistent_id", uuidFor("calendar store " + account)}});
    }
    return m_stores[account];
}

void Calendar::writeCalendar(const QJsonObject& source)
{
    const QString name = source["name"].toString();
    const qint64 calendar = m_database.insert(
        "Calendar", {{"store_id", storeOf(source)}, {"title", name},
                        {"flags", source["flags"].toInt()}, {"color", source["color"].toString()},
                        {"supported_entity_types", kEventsOnly}, {"display_order", ++m_calendars},
                        {"UUID", uuidFor("calendar " + name)}, {"sharing_status", 0}});
    for (const QJsonValue& event : entriesOf(source["events"])) {
        writeEvent(event.toObject(), calendar);
    }
}

void Calendar::writeEvent(const QJsonObject& source, qint64 calendar)
{
    const qint64 item = writeItem(source, calendar);
    writePlace(source, item);
    writeRecurrence(source["repeats"].toObject(), item);
    writeAlarms(source, item);
    writePeople(source, item);
    if (source["erased"].toBool()) {
        m_erased.push_back(item);
    }
}

qint64 Calendar::writeItem(const QJsonObject& source, qint64 calendar)
{
    const QString title = source["title"].toString();
    const bool allDay = isDay(source["start"].toString());
    const QString zone = allDay ? QString("_float") : source["zone"].toString("Europe/Berlin");
    const QString id = uuidFor(QString("event %1").arg(++m_events));
    const qint64 made = secondsSince2001("2023-12-01 08:00:00") + m_events * kHour;
    const bool birthday = source["birthday"].toBool();
    // Texts that are not there are NULL, as on phones.
    const auto text = [&](const char* key) { return source[QLatin1String(key)].toString(); };
    const qint64 item = m_database.insert("CalendarItem",
        {{"summary", title}, {"location_id", 0}, {"description", text("notes")},
            {"start_date", moment(source["start"])}, {"start_tz", zone},
            {"end_date", moment(source["end"], "23:59:59")}, {"end_tz", zone},
            {"all_day", number(allDay)}, {"calendar_id", calendar},
            {"orig_item_id", m_items.value(text("of"))}, {"orig_date", moment(source["instead"])},
            {"organizer_id", 0}, {"self_attendee_id", 0}, {"status", source["status"].toInt()},
            {"invitation_status", 0}, {"availability", 0}, {"url", text("url")},
            {"last_modified", made}, {"birthday_id", birthday ? 1 : -1}, {"unique_identifier", id},
            {"hidden", number(source["hidden"].toBool())},
            {"has_recurrences", number(source.contains("repeats"))},
            {"has_attendees", number(source.contains("people"))}, {"UUID", id},
            {"entity_type", kEvent}, {"creation_date", made},
            {"calendar_scale", birthday ? QString("gregorian") : QString()}});
    m_items[title] = item;
    return item;
}

void Calendar::writePlace(const QJsonObject& source, qint64 item)
{
    if (!source.contains("place")) {
        return;
    }
    const qint64 place = m_database.insert(
        "Location", {{"title", source["place"].toString()},
                        {"address", source["address"].toString()}, {"item_owner_id", item}});
    m_database.run(QByteArray("UPDATE CalendarItem SET location_id = ") + QByteArray::number(place)
                   + " WHERE ROWID = " + QByteArray::number(item));
}

// A rule by count has its last day worked out beside it.
void Calendar::writeRecurrence(const QJsonObject& source, qint64 item)
{
    if (source.isEmpty()) {
        return;
    }
    m_database.insert("Recurrence",
        {{"frequency", source["unit"].toInt()}, {"interval", source["every"].toInt(1)},
            {"week_start", 0}, {"count", source["count"].toInt()},
            {"cached_end_date", moment(source["last"])}, {"end_date", moment(source["until"])},
            {"specifier", source["rule"].toString()}, {"owner_id", item},
            {"UUID", uuidFor(QString("recurrence %1").arg(item))}});
}

void Calendar::writeAlarms(const QJsonObject& source, qint64 item)
{
    for (const char* key : {"alarmsOff", "alarms"}) {
        for (const QJsonValue& minutes : entriesOf(source[QLatin1String(key)])) {
            m_database.insert("Alarm",
                {{"trigger_interval", -kMinute * minutes.toInt()}, {"type", 0},
                    {"calendaritem_owner_id", item}, {"proximity", 0},
                    {"disabled", number(qstrcmp(key, "alarmsOff") == 0)},
                    {"UUID", uuidFor(QString("alarm %1 %2").arg(item).arg(minutes.toInt()))}});
        }
    }
}

void Calendar::writePeople(const QJsonObject& source, qint64 item)
{
    for (const QJsonValue& person : entriesOf(source["people"])) {
        const QString mail = person["mail"].toString();
        const qint64 identity = m_database.insert("Identity",
            {{"display_name", person["name"].toString()}, {"address", "mailto:" + mail}});
        m_database.insert("Participant",
            {{"entity_type", person["organizer"].toBool() ? Organizer : Guest}, {"type", 1},
                {"status", person["answer"].toInt()}, {"role", 1}, {"identity_id", identity},
                {"owner_id", item}, {"UUID", uuidFor(QString("guest %1 ").arg(item) + mail)},
                {"email", mail}, {"is_self", number(person["self"].toBool())}});
    }
}

// What is left lies in the free space of the database, and in the list of what was changed.
void Calendar::erase(qint64 item)
{
    m_database.insert(
        "CalendarItemChanges", {{"record", item}, {"type", kDeleted},
                                   {"unique_identifier", QString()}, {"entity_type", kEvent}});
    const QByteArray id = QByteArray::number(item);
    m_database.run("DELETE FROM Location WHERE item_owner_id = " + id);
    m_database.run("DELETE FROM CalendarItem WHERE ROWID = " + id);
}

} // namespace sample
