// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <vector>

namespace formats {
class Database;
}

namespace backup {

class TableReader;

/// How a call came about.
enum class CallType { Incoming, Outgoing, Missed };

/// What carried a call.
enum class CallService { Phone, FaceTime, FaceTimeAudio, FaceTimeVideo, App, AppVideo };

/// One call as a store has it.
struct Call {
    QStringList addresses; ///< numbers or e-mail addresses; none where they were withheld
    QString storedName;
    QDateTime date;
    qint64 seconds = 0; ///< its duration
    CallType type = CallType::Incoming;
    CallService service = CallService::Phone;
    QString app; ///< of CallService::App and AppVideo: its identifier; may be empty
};

/// The store of iOS 8 and later, and the one before it.
bool isCallHistory(const formats::Database& database);
bool isOldCallHistory(const formats::Database& database);

/// The calls of a store of either kind, in no order.
std::vector<Call> readCalls(const TableReader& store);

} // namespace backup
