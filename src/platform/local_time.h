// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <map>

class QDateTime;

/// What the date's own clock shows, in milliseconds since 1970 as if it showed UTC.
qint64 clockAsUtc(const QDateTime& date);

/// Offsets of the local time zone, as `QDateTime` has them, asked once for each stretch of time in
/// which they do not change: Qt's own answer costs a hundred times as much as the rest of a date.
class LocalTime {
public:
    /// Milliseconds to add to the moment `utcMs` (since 1970, UTC) for the local clock.
    qint64 offset(qint64 utcMs);

private:
    struct Stretch {
        qint64 end; // exclusive
        qint64 offset;
    };
    qint64 learn(qint64 utcMs);

    std::map<qint64, Stretch> m_stretches; // by their start
    qint64 m_lastStart = 0;
    Stretch m_last = {.end = 0, .offset = 0};
};
