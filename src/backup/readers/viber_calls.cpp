// SPDX-License-Identifier: MIT
// ZRECENT       ZDATE seconds since 2001, ZDURATION seconds, ZCALLTYPE, ZCALLLOGMESSAGE a row of
//               ZVIBERMESSAGE; which of the two tables has a column differs between releases
// ZRECENTSLINE  what several calls have in common; ZRECENT may lead to it
#include "backup/readers/viber_calls.h"

#include "backup/readers/table_reader.h"
#include "platform/literals.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <cmath>

namespace backup {

namespace {

struct CallTypeRow {
    QLatin1String name;
    CallType type = CallType::Incoming;
    bool isVideo = false;
};

// clang-format off
constexpr std::array kTypes{
    CallTypeRow{"missed"_L1,                    CallType::Missed},
    CallTypeRow{"missed_with_video"_L1,         CallType::Missed,   true},
    CallTypeRow{"outgoing_viber"_L1,            CallType::Outgoing},
    CallTypeRow{"outgoing_viber_with_video"_L1, CallType::Outgoing, true},
    CallTypeRow{"incoming"_L1,                  CallType::Incoming},
    CallTypeRow{"incoming_with_video"_L1,       CallType::Incoming, true},
};
// clang-format on

enum Column : int { Date, Duration, TypeName, Message, Number, Line, Id };

constexpr int kShortestNumber = 7;                 // digits
constexpr double kLongestCall = 365.0 * 24 * 3600; // seconds

struct RecentRow {
    QDateTime date;
    qint64 seconds = 0;
    QString typeName;
    qint64 message = 0;
    QString number;
    qint64 line = 0;
    qint64 id = 0;
};

// A type that is not in the table tells the same by its beginning and its end.
CallTypeRow typeOf(const QString& name)
{
    const auto* const known = std::ranges::find(kTypes, name, &CallTypeRow::name);
    if (known != kTypes.end()) {
        return *known;
    }
    return {.type = name.startsWith("missed"_L1)     ? CallType::Missed
                    : name.startsWith("outgoing"_L1) ? CallType::Outgoing
                                                     : CallType::Incoming,
        .isVideo = name.endsWith("video"_L1)};
}

// The column may also hold the row of a table.
QString numberOf(const QString& text)
{
    return text.startsWith(QChar(u'+')) || text.size() >= kShortestNumber ? text : QString();
}

qint64 secondsOf(double stored)
{
    return stored > 0 && stored < kLongestCall ? std::llround(stored) : 0;
}

std::vector<RecentRow> readRows(const TableReader& store, const QString& table)
{
    std::vector<RecentRow> rows;
    if (!store.database().hasTable(table)) {
        return rows;
    }
    const std::array<WantedColumn, 6> columns{{{"ZDATE"_L1}, {"ZDURATION"_L1}, {"ZCALLTYPE"_L1},
        {"ZCALLLOGMESSAGE"_L1}, {"ZCANONIZEDPHONENUM|ZPHONE|ZPHONENUMBER|ZPHONENUM"_L1},
        {"ZRECENTSLINE|ZRECENTLINE|ZLINE"_L1}}};
    store.read(table, columns, [&](const formats::Statement& row) {
        rows.push_back({.date = cocoaDate(row, Date),
            .seconds = secondsOf(row.real(Duration)),
            .typeName = row.text(TypeName),
            .message = row.integer(Message),
            .number = numberOf(row.text(Number)),
            .line = row.integer(Line),
            .id = row.integer(Id)});
    });
    return rows;
}

// What the call lacks it has in common with the others of its line.
void complete(RecentRow& call, const RecentRow& line)
{
    call.date = call.date.isValid() ? call.date : line.date;
    call.typeName = call.typeName.isEmpty() ? line.typeName : call.typeName;
    call.message = call.message == 0 ? line.message : call.message;
    call.number = call.number.isEmpty() ? line.number : call.number;
}

ViberCall callOf(const RecentRow& row)
{
    const CallTypeRow type = typeOf(row.typeName);
    ViberCall made{.call = {.date = row.date,
                       .seconds = type.type == CallType::Missed ? 0 : row.seconds,
                       .type = type.type,
                       .service = type.isVideo ? CallService::AppVideo : CallService::App,
                       .app = "com.viber"_L1},
        .message = row.message};
    if (!row.number.isEmpty()) {
        made.call.addresses.append(row.number);
    }
    return made;
}

} // namespace

std::vector<ViberCall> readViberCalls(const TableReader& store)
{
    std::vector<RecentRow> rows = readRows(store, "ZRECENT"_L1);
    const std::vector<RecentRow> lines = readRows(store, "ZRECENTSLINE"_L1);
    QHash<qint64, RecentRow> byId;
    for (const RecentRow& line : lines) {
        byId.insert(line.id, line);
    }
    if (!store.database().hasTable("ZRECENT"_L1)) {
        rows = lines;
    }
    std::vector<ViberCall> calls;
    for (RecentRow& row : rows) {
        complete(row, byId.value(row.line));
        if (row.date.isValid() || !row.typeName.isEmpty()) {
            calls.push_back(callOf(row));
        }
    }
    return calls;
}

} // namespace backup
