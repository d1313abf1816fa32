// SPDX-License-Identifier: MIT
#pragma once

#include "formats/sqlite.h"

#include <queue>

#include <functional>
#include <vector>

namespace backup {

/// Reads the rows that lie between damaged pages of a table. It begins in the middle of a gap and
/// goes to both sides until it meets damage; that leaves smaller gaps. No row is given twice.
class GapReader {
public:
    using Take = std::function<void(const formats::Statement&)>;

    /// `rows` is the query of the table without conditions, with the row's id in `idColumn`.
    /// `database` and `take` outlive the object.
    GapReader(
        const formats::Database& database, const QString& rows, int idColumn, const Take& take);

    /// Ids of which none was read yet; `end` is behind the last one.
    void add(qint64 begin, qint64 end);
    /// The same where damage hides how far the ids go: they are tried in ever larger steps.
    void addAllFrom(qint64 begin);

    /// Reads all that can be found.
    void read();

private:
    struct Gap {
        qint64 begin = 0;
        qint64 end = 0;

        // Small ones are read first: large ones may hold nothing at all.
        bool operator<(const Gap& other) const { return end - begin > other.end - other.begin; }
    };
    using Query = formats::Result<formats::Statement>;
    bool read(Query& query, Gap gap, qint64& last) const;

    Query m_upwards;
    Query m_downwards;
    int m_idColumn;
    const Take& m_take;
    std::priority_queue<Gap, std::vector<Gap>> m_gaps;
};

} // namespace backup
