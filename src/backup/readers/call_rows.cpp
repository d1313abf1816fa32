// SPDX-License-Identifier: MIT
// CallHistory.storedata, iOS 8 and later:
//   ZCALLRECORD   ZADDRESS (bytes of UTF-8 at first, text later), ZDATE (seconds since 2001),
//                 ZDURATION, ZORIGINATED, ZANSWERED, ZCALLTYPE, ZSERVICE_PROVIDER, ZCALL_CATEGORY
//   ZHANDLE       ZVALUE: the participants of a call, joined by
//   Z_2REMOTEPARTICIPANTHANDLES  (Z_2REMOTEPARTICIPANTCALLS, Z_4REMOTEPARTICIPANTHANDLES); the
//                 numbers in these names differ
// call_history.db, iOS 7 and earlier:
//   call          address, date (seconds since 1970), duration, flags, name, answered (late)
#include "backup/readers/call_rows.h"

#include "backup/readers/table_reader.h"
#include "platform/literals.h"

#include <QHash>
#include <QRegularExpression>

#include <array>
#include <cmath>
#include <optional>

namespace backup {

namespace {

enum CallTypeNumber : int { OtherApp = 0, Telephone = 1, VideoCall = 8, AudioCall = 16 };
enum CallCategory : int { AudioCategory = 1, VideoCategory = 2 };
enum OldFlag : int { OutgoingFlag = 1, FaceTimeFlag = 16 };

constexpr double kLongestCall = 1e9; // seconds; more is no duration

qint64 duration(const formats::Statement& row, int column)
{
    const double seconds = row.real(column);
    return seconds >= 0 && seconds < kLongestCall ? static_cast<qint64>(seconds) : 0;
}

// `answered` is none where the store does not say.
CallType typeOf(bool outgoing, std::optional<bool> answered, qint64 seconds)
{
    if (outgoing) {
        return CallType::Outgoing;
    }
    return answered.value_or(seconds > 0) ? CallType::Incoming : CallType::Missed;
}

std::optional<bool> answer(const formats::Statement& row, int column)
{
    return row.isNull(column) ? std::nullopt : std::optional(row.integer(column) != 0);
}

CallService faceTimeOf(qint64 type, qint64 category)
{
    if (type == VideoCall || category == VideoCategory) {
        return CallService::FaceTimeVideo;
    }
    return type == AudioCall || category == AudioCategory ? CallService::FaceTimeAudio
                                                          : CallService::FaceTime;
}

CallService serviceOf(qint64 type, const QString& provider, qint64 category)
{
    if (provider == "com.apple.FaceTime"_L1
        || (provider.isEmpty() && (type == VideoCall || type == AudioCall))) {
        return faceTimeOf(type, category);
    }
    const bool phone =
        provider == "com.apple.Telephony"_L1 || (provider.isEmpty() && type != OtherApp);
    return phone ? CallService::Phone : CallService::App;
}

using Participants = QHash<qint64, QStringList>; // by ZCALLRECORD.Z_PK

QString matching(const QStringList& names, const QString& pattern)
{
    const QStringList found = names.filter(QRegularExpression(pattern));
    return found.isEmpty() ? QString() : found.first();
}

Participants readParticipants(const TableReader& store)
{
    const formats::Database& database = store.database();
    const QString join = matching(database.tables(), R"(^Z_\d+REMOTEPARTICIPANTHANDLES$)"_L1);
    Participants participants;
    if (join.isEmpty() || !database.hasTable("ZHANDLE"_L1)) {
        return participants; // a release that does not know them
    }
    QHash<qint64, QString> handles;
    const std::array handleColumns{
        WantedColumn{"Z_PK"_L1}, WantedColumn{"ZVALUE|ZNORMALIZEDVALUE"_L1, true}};
    store.read("ZHANDLE"_L1, handleColumns, [&](const formats::Statement& row) {
        handles.insert(row.integer(0), row.text(1).trimmed());
    });
    const QStringList columns = database.columns(join);
    const std::array joinColumns{
        WantedColumn{matching(columns, R"(^Z_\d+REMOTEPARTICIPANTCALLS$)"_L1)},
        WantedColumn{matching(columns, R"(^Z_\d+REMOTEPARTICIPANTHANDLES$)"_L1)}};
    store.read(join, joinColumns, [&](const formats::Statement& row) {
        const QString address = handles.value(row.integer(1));
        QStringList& all = participants[row.integer(0)];
        if (!address.isEmpty() && !all.contains(address)) {
            all.append(address);
        }
    });
    return participants;
}

std::vector<Call> readNewCalls(const TableReader& store)
{
    enum Column : int {
        Id,
        Address,
        Name,
        Date,
        Duration,
        Originated,
        Answered,
        Type,
        Provider,
        Category
    };
    const std::array columns{WantedColumn{"Z_PK"_L1}, WantedColumn{"ZADDRESS"_L1, true},
        WantedColumn{"ZNAME"_L1}, WantedColumn{"ZDATE"_L1, true},
        WantedColumn{"ZDURATION"_L1, true}, WantedColumn{"ZORIGINATED"_L1, true},
        WantedColumn{"ZANSWERED"_L1, true}, WantedColumn{"ZCALLTYPE"_L1},
        WantedColumn{"ZSERVICE_PROVIDER"_L1}, WantedColumn{"ZCALL_CATEGORY"_L1}};
    const Participants participants = readParticipants(store);
    std::vector<Call> calls;
    store.read("ZCALLRECORD"_L1, columns, [&](const formats::Statement& row) {
        Call call{.addresses = participants.value(row.integer(Id)),
            .storedName = row.text(Name).trimmed(),
            .date = cocoaDate(row, Date),
            .seconds = duration(row, Duration),
            .app = row.text(Provider)};
        const QString address = row.text(Address).trimmed();
        if (call.addresses.size() < 2 && !address.isEmpty()) {
            call.addresses = QStringList{address};
        }
        call.type = typeOf(row.integer(Originated) != 0, answer(row, Answered), call.seconds);
        // A release without the column knew calls by phone only.
        const qint64 type = row.isNull(Type) ? qint64{Telephone} : row.integer(Type);
        call.service = serviceOf(type, call.app, row.integer(Category));
        calls.push_back(std::move(call));
    });
    return calls;
}

std::vector<Call> readOldCalls(const TableReader& store)
{
    enum Column : int { Address, Name, Date, Duration, Flags, Answered };
    const std::array columns{WantedColumn{"address"_L1, true}, WantedColumn{"name"_L1},
        WantedColumn{"date"_L1, true}, WantedColumn{"duration"_L1, true},
        WantedColumn{"flags"_L1, true}, WantedColumn{"answered"_L1}};
    std::vector<Call> calls;
    store.read("call"_L1, columns, [&](const formats::Statement& row) {
        Call call{.storedName = row.text(Name).trimmed(),
            .date = unixDate(row, Date),
            .seconds = duration(row, Duration)};
        const QString address = row.text(Address).trimmed();
        if (!address.isEmpty()) {
            call.addresses = QStringList{address};
        }
        const qint64 flags = row.integer(Flags);
        call.type = typeOf((flags & OutgoingFlag) != 0, answer(row, Answered), call.seconds);
        if ((flags & FaceTimeFlag) != 0) {
            call.service = CallService::FaceTime; // with or without a picture is not stored
        }
        calls.push_back(std::move(call));
    });
    return calls;
}

} // namespace

bool isCallHistory(const formats::Database& database)
{
    return database.hasTable("ZCALLRECORD"_L1);
}

bool isOldCallHistory(const formats::Database& database)
{
    return database.columns("call"_L1).contains("duration"_L1);
}

std::vector<Call> readCalls(const TableReader& store)
{
    return isCallHistory(store.database()) ? readNewCalls(store) : readOldCalls(store);
}

} // namespace backup
