// SPDX-License-Identifier: MIT
#include "CallHistory.h"

#include "common.h"
#include "core_data.h"

#include <QJsonArray>

#include <algorithm>
#include <array>

namespace sample {

namespace {

constexpr int kRecordEntity = 2;
constexpr int kHandleEntity = 4;
enum HandleType { PhoneNumber = 2, MailAddress = 3 };

struct Service {
    const char* name; // in calls.json
    const char* provider;
    int callType;
    int category;
};
// clang-format off
constexpr std::array kServices{
    Service{"",               "com.apple.Telephony", 1,  1},
    Service{"FaceTime audio", "com.apple.FaceTime",  16, 1},
    Service{"FaceTime video", "com.apple.FaceTime",  8,  2},
};
// clang-format on

HandleType typeOf(const QString& address)
{
    return address.contains('@') ? MailAddress : PhoneNumber;
}

} // namespace

CallHistory::CallHistory(Database& database) : m_database(database)
{
}

void CallHistory::write(const QJsonObject& source)
{
    m_database.run("BEGIN");
    describeStore(m_database, "calls",
        {{1, "CallDBProperties"}, {kRecordEntity, "CallRecord"}, {3, "EmergencyMediaItem"},
            {kHandleEntity, "Handle"}});
    for (const QJsonValue& call : entriesOf(source["calls"])) {
        writeCall(call.toObject());
    }
    m_database.run("COMMIT");
}

void CallHistory::writeCall(const QJsonObject& source)
{
    const QString at = source["at"].toString();
    const QString name = source["service"].toString();
    const auto* const known = std::find_if(kServices.begin(), kServices.end(),
        [&](const Service& service) { return name == service.name; });
    const bool isApp = known == kServices.end();
    const std::vector<QJsonValue> with = entriesOf(source["with"]);
    const QString address = with.empty() ? QString() : with.front().toString();
    const bool out = source["out"].toBool();
    const int seconds = source["seconds"].toInt();
    const qint64 call = m_database.insert("ZCALLRECORD",
        {{"Z_ENT", kRecordEntity}, {"Z_OPT", 1}, {"ZANSWERED", !out && seconds > 0 ? 1 : 0},
            {"ZCALL_CATEGORY", isApp ? 1 : known->category},
            {"ZCALLTYPE", isApp ? 0 : known->callType},
            {"ZHANDLE_TYPE", static_cast<int>(typeOf(address))}, {"ZJUNKCONFIDENCE", 0},
            {"ZORIGINATED", out ? 1 : 0}, {"ZREAD", 1}, {"ZDATE", secondsSince2001(at)},
            {"ZDURATION", seconds}, {"ZADDRESS", address},
            {"ZISO_COUNTRY_CODE", with.empty() ? QString() : QString("de")},
            {"ZLOCATION", source["place"].toString("<<RecentsNumberLocationNotFound>>")},
            {"ZSERVICE_PROVIDER", isApp ? name : QString(known->provider)},
            {"ZUNIQUE_ID", uuidFor("call " + at)}});
    for (const QJsonValue& person : with) {
        m_database.insert("Z_2REMOTEPARTICIPANTHANDLES",
            {{"Z_2REMOTEPARTICIPANTCALLS", call},
                {"Z_4REMOTEPARTICIPANTHANDLES", handle(person.toString())}});
    }
}

qint64 CallHistory::handle(const QString& address)
{
    qint64& row = m_handles[address];
    if (row == 0) {
        row = m_database.insert("ZHANDLE",
            {{"Z_ENT", kHandleEntity}, {"Z_OPT", 1}, {"ZTYPE", static_cast<int>(typeOf(address))},
                {"ZNORMALIZEDVALUE", address}, {"ZVALUE", address}});
    }
    return row;
}

} // namespace sample
