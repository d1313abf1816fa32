// SPDX-License-Identifier: MIT
#include "platform/local_time.h"

#include <QDateTime>

namespace {

constexpr qint64 kDay = 86'400'000;
constexpr qint64 kWeek = 7 * kDay;

// By the clock that Qt shows, not by its `offsetFromUtc`: that is computed back from the clock, and
// takes the wrong one of two hours where a zone has set its standard time back.
qint64 askQt(qint64 utcMs)
{
    return clockAsUtc(QDateTime::fromMSecsSinceEpoch(utcMs, Qt::LocalTime)) - utcMs;
}

qint64 startOfWeek(qint64 utcMs)
{
    const qint64 rest = utcMs % kWeek;
    return utcMs - (rest < 0 ? rest + kWeek : rest);
}

// First moment in (low, high] whose offset is not that of `low`, where that of `high` differs.
qint64 changeBetween(qint64 low, qint64 high)
{
    const qint64 before = askQt(low);
    while (high - low > 1) {
        const qint64 middle = low + (high - low) / 2;
        if (askQt(middle) == before) {
            low = middle;
        } else {
            high = middle;
        }
    }
    return high;
}

} // namespace

qint64 clockAsUtc(const QDateTime& date)
{
    return QDateTime(date.date(), date.time(), Qt::UTC).toMSecsSinceEpoch();
}

qint64 LocalTime::offset(qint64 utcMs)
{
    if (utcMs >= m_lastStart && utcMs < m_last.end) {
        return m_last.offset;
    }
    const auto after = m_stretches.upper_bound(utcMs);
    if (after != m_stretches.begin()) {
        const auto found = std::prev(after);
        if (utcMs < found->second.end) {
            m_lastStart = found->first;
            m_last = found->second;
            return m_last.offset;
        }
    }
    return learn(utcMs);
}

// Walks the week around the moment a day at a time (no zone has changed twice within a day) and
// keeps each stretch of one offset.
qint64 LocalTime::learn(qint64 utcMs)
{
    const qint64 week = startOfWeek(utcMs);
    qint64 start = week;
    qint64 offset = askQt(start);
    qint64 answer = offset;
    const auto keep = [&](qint64 end) {
        m_stretches[start] = {.end = end, .offset = offset};
        if (utcMs >= start && utcMs < end) {
            answer = offset;
        }
    };
    for (qint64 day = week; day < week + kWeek; day += kDay) {
        if (askQt(day + kDay) != offset) {
            const qint64 change = changeBetween(day < start ? start : day, day + kDay);
            keep(change);
            start = change;
            offset = askQt(change);
        }
    }
    keep(week + kWeek);
    return answer;
}
