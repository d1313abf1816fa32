// SPDX-License-Identifier: MIT
#include "backup/readers/keyed_rows.h"

#include "platform/literals.h"

#include <queue>

#include <cstdint>
#include <numeric>
#include <optional>
#include <vector>

namespace backup {

namespace {

// A damaged page is tried once for each key that could be on it; a table of which nothing can be
// read costs as many tries as this.
constexpr int kMostTries = 20'000;
constexpr qint64 kWidest = qint64(1) << 40;

using Take = std::function<void(const formats::Statement&)>;
using Query = formats::Result<formats::Statement>;

QString sqlOf(const KeyedQuery& query, const QString& range)
{
    QString sql = query.select;
    QString link = " WHERE "_L1;
    if (!query.condition.isEmpty()) {
        sql += link + QChar(u'(') + query.condition + QChar(u')');
        link = " AND "_L1;
    }
    if (!range.isEmpty()) {
        sql += link + range;
    }
    return sql + " ORDER BY "_L1 + query.key;
}

// Reads what lies between damaged pages: it begins in the middle of a gap and goes to both sides
// until it meets damage; that leaves smaller gaps.
class GapReader {
public:
    GapReader(const formats::Database& database, const KeyedQuery& query, const Take& take)
        : m_keyColumn(query.keyColumn), m_take(take)
    {
        const QString sql = sqlOf(query, query.key + " >= ? AND "_L1 + query.key + " < ?"_L1);
        m_upwards = database.prepare(sql);
        m_downwards = database.prepare(sql + " DESC"_L1);
    }

    // Keys of which none was read yet; `end` is behind the last one.
    void add(qint64 begin, qint64 end)
    {
        if (begin < end) {
            m_gaps.push({.begin = begin, .end = end});
        }
    }

    // The same where damage hides how far the keys go: they are tried in ever larger steps.
    void addAllFrom(qint64 begin)
    {
        const qint64 last = begin <= INT64_MAX - kWidest ? kWidest : 0;
        for (qint64 width = 1; width < last; width *= 2) {
            add(begin, begin + width);
            begin += width;
        }
    }

    void read()
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

private:
    struct Gap {
        qint64 begin = 0;
        qint64 end = 0;

        // Small ones are read first: large ones may hold nothing at all.
        bool operator<(const Gap& other) const { return end - begin > other.end - other.begin; }
    };

    // False where damage ended the reading; `last` is then the key of the row before, and unchanged
    // if there was none.
    bool read(Query& query, Gap gap, qint64& last) const
    {
        if (!query || gap.begin == gap.end) {
            return true;
        }
        query->bind(1, gap.begin).bind(2, gap.end);
        while (query->next()) {
            last = query->integer(m_keyColumn);
            m_take(*query);
        }
        return !query->failed();
    }

    Query m_upwards = formats::Error();
    Query m_downwards = formats::Error();
    int m_keyColumn;
    const Take& m_take;
    std::priority_queue<Gap> m_gaps;
};

} // namespace

bool readByKey(const formats::Database& database, const KeyedQuery& query, const Take& take)
{
    // No sorting by anything else: it would ask for all rows before it gives the first one.
    const QString sql = sqlOf(query, QString());
    std::optional<qint64> last;
    auto forwards = database.prepare(sql);
    while (forwards && forwards->next()) {
        last = forwards->integer(query.keyColumn);
        take(*forwards);
    }
    if (forwards && !forwards->failed()) {
        return true;
    }
    const qint64 lastRead = last.value_or(INT64_MIN);
    std::optional<qint64> first;
    auto backwards = database.prepare(sql + " DESC"_L1);
    while (backwards && backwards->next() && backwards->integer(query.keyColumn) > lastRead) {
        first = backwards->integer(query.keyColumn);
        take(*backwards);
    }
    if (!backwards || !backwards->failed()) {
        return false;
    }
    GapReader between(database, query, take);
    const qint64 begin = last ? *last + 1 : 0; // nobody counts from below
    if (first) {
        between.add(begin, *first);
    } else {
        between.addAllFrom(begin);
    }
    between.read();
    return false;
}

} // namespace backup
