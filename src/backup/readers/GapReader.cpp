// SPDX-License-Identifier: MIT
#include "backup/readers/GapReader.h"

#include "platform/literals.h"

#include <cstdint>
#include <numeric>

namespace backup {

namespace {

constexpr QLatin1String kInGap = " WHERE rowid >= ? AND rowid < ? ORDER BY rowid"_L1;

// A damaged page is tried once for each id that could be on it; a table of which nothing can be
// read costs as many tries as this.
constexpr int kMostTries = 20'000;
constexpr qint64 kWidest = qint64(1) << 40;

} // namespace

GapReader::GapReader(
    const formats::Database& database, const QString& rows, int idColumn, const Take& take)
    : m_upwards(database.prepare(rows + kInGap)),
      m_downwards(database.prepare(rows + kInGap + " DESC"_L1)), m_idColumn(idColumn), m_take(take)
{
}

void GapReader::add(qint64 begin, qint64 end)
{
    if (begin < end) {
        m_gaps.push({.begin = begin, .end = end});
    }
}

void GapReader::addAllFrom(qint64 begin)
{
    const qint64 last = begin <= INT64_MAX - kWidest ? kWidest : 0;
    for (qint64 width = 1; width < last; width *= 2) {
        add(begin, begin + width);
        begin += width;
    }
}

void GapReader::read()
{
    for (int tries = 0; tries < kMostTries && !m_gaps.empty(); ++tries) {
        const Gap gap = m_gaps.top();
        m_gaps.pop();
        const qint64 middle = std::midpoint(gap.begin, gap.end);
        qint64 highest = middle;
        if (!read(m_upwards, {.begin = middle, .end = gap.end}, highest)) {
            add(highest + 1, gap.end);
        }
        qint64 lowest = middle;
        if (!read(m_downwards, {.begin = gap.begin, .end = middle}, lowest)) {
            add(gap.begin, lowest);
        }
    }
}

// False where damage ended the reading; `last` is then the id of the row before, and unchanged if
// there was none.
bool GapReader::read(Query& query, Gap gap, qint64& last) const
{
    if (!query || gap.begin == gap.end) {
        return true;
    }
    query->bind(1, gap.begin).bind(2, gap.end);
    while (query->next()) {
        last = query->integer(m_idColumn);
        m_take(*query);
    }
    return !query->failed();
}

} // namespace backup
