// SPDX-License-Identifier: MIT
#include "Reminders.h"

#include "common.h"
#include "core_data.h"

#include <QJsonValue>

namespace sample {

namespace {

enum EntityNumber { BaseList = 2, List = 3, Reminder = 11, Object = 14, Account = 15, Rule = 30 };

constexpr qint64 kHour = 3600;

// An invalid value, which is NULL, where the source says nothing. A day stands as its midnight.
QVariant moment(const QJsonValue& text)
{
    const QString at = text.toString();
    if (at.isEmpty()) {
        return {};
    }
    return secondsSince2001(at.contains(' ') ? at : at + " 00:00:00");
}

} // namespace

Reminders::Reminders(Database& database) : m_database(database)
{
}

void Reminders::write(const QJsonObject& account)
{
    m_name = account["name"].toString();
    m_database.run("BEGIN");
    describeStore(m_database, "reminders " + m_name,
        {{BaseList, "REMCDBaseList"}, {List, "REMCDList"}, {Reminder, "REMCDReminder"},
            {Object, "REMCDObject"}, {Account, "REMCDAccount"}, {Rule, "REMCDRecurrenceRule"}});
    m_account = m_database.insert("ZREMCDOBJECT",
        {{"Z_ENT", Account}, {"Z_OPT", 1}, {"ZMARKEDFORDELETION", 0}, {"ZNAME", m_name},
            {"ZIDENTIFIER", uuidBytesFor("account of reminders " + m_name)}});
    for (const QJsonValue& list : entriesOf(account["lists"])) {
        writeList(list.toObject());
    }
    m_database.run("COMMIT");
}

void Reminders::writeList(const QJsonObject& source)
{
    const QString name = source["name"].toString();
    const qint64 list = m_database.insert("ZREMCDBASELIST",
        {{"Z_ENT", List}, {"Z_OPT", 1}, {"ZISGROUP", 0},
            {"ZMARKEDFORDELETION", source["deleted"].toBool() ? 1 : 0}, {"ZACCOUNT", m_account},
            {"ZNAME", name}, {"ZIDENTIFIER", uuidBytesFor("list " + m_name + " " + name)}});
    int order = 0;
    for (const QJsonValue& reminder : entriesOf(source["reminders"])) {
        writeReminder(reminder.toObject(), {.list = list, .order = ++order});
    }
}

void Reminders::writeReminder(const QJsonObject& source, const Place& place)
{
    const QString due = source["due"].toString();
    const QVariant completed = moment(source["completed"]);
    const qint64 made = secondsSince2001("2024-02-01 08:00:00") + ++m_reminders * kHour;
    const QVariant parent = place.parent == 0 ? QVariant() : QVariant(place.parent);
    const auto number = [&](const char* key) { return source[QLatin1String(key)].toInt(); };
    const auto flag = [&](const char* key) { return source[QLatin1String(key)].toBool() ? 1 : 0; };
    const auto text = [&](const char* key) { return source[QLatin1String(key)].toString(); };
    const qint64 row = m_database.insert("ZREMCDREMINDER",
        {{"Z_ENT", Reminder}, {"Z_OPT", 1},
            {"ZALLDAY", !due.isEmpty() && !due.contains(' ') ? 1 : 0},
            {"ZCOMPLETED", completed.isValid() ? 1 : 0}, {"ZFLAGGED", flag("flagged")},
            {"ZICSDISPLAYORDER", place.order}, {"ZMARKEDFORDELETION", flag("deleted")},
            {"ZPRIORITY", number("priority")}, {"ZACCOUNT", m_account}, {"ZLIST", place.list},
            {"ZPARENTREMINDER", parent}, {"ZCOMPLETIONDATE", completed}, {"ZCREATIONDATE", made},
            {"ZDISPLAYDATEDATE", moment(source["due"])}, {"ZDUEDATE", moment(source["due"])},
            {"ZLASTMODIFIEDDATE", made}, {"ZNOTES", text("notes")},
            {"ZTIMEZONE", due.contains(' ') ? QString("Europe/Berlin") : QString()},
            {"ZTITLE", text("title")}, {"ZICSURL", text("url")},
            {"ZIDENTIFIER", uuidBytesFor(QString("reminder %1 %2").arg(m_name).arg(m_reminders))}});
    if (source["repeats"].toBool()) {
        m_database.insert("ZREMCDOBJECT", {{"Z_ENT", Rule}, {"Z_OPT", 1}, {"ZREMINDER4", row},
                                              {"ZMARKEDFORDELETION", 0}, {"ZINTERVAL", 1}});
    }
    int order = 0;
    for (const QJsonValue& part : entriesOf(source["parts"])) {
        writeReminder(part.toObject(), {.list = place.list, .parent = row, .order = ++order});
    }
}

} // namespace sample
