// SPDX-License-Identifier: MIT
#pragma once

#include "formats/sqlite.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace backup {

/// Bits of a MessageRow.
enum RowBit : std::uint8_t {
    FromMe = 1,
    SentDone = 2,
    IMessage = 4,
    NeedsDetails = 8, ///< an event, an edited message, an app's: the rest of its row is wanted
    HasAttachments = 16,
};

/// What most messages consist of, in 40 bytes. A million of them are read in a few seconds and
/// as many as fit are kept; the objects of the record model are made for one conversation at a
/// time.
struct MessageRow {
    std::int64_t id = 0;           // message.ROWID
    std::int64_t date = 0;         // nanoseconds since 2001; 0: not set
    std::uint32_t textStart = 0;   // into ConversationRows::text: subject, then text
    std::uint32_t textSize = 0;    // bytes of the text; of a reaction: of the target's guid
    std::uint32_t subjectSize = 0; // bytes
    std::int32_t handle = 0;       // handle.ROWID
    std::int16_t reaction = 0;     // associated_message_type
    std::uint8_t bits = 0;         // RowBits
};

/// The rows of one conversation, in the order in which they were read.
struct ConversationRows {
    std::vector<MessageRow> rows;
    std::string text; // UTF-8
};

/// Nanoseconds since 2001 of a date of either unit: seconds up to iOS 10, nanoseconds since.
std::int64_t normalizedDate(std::int64_t stored);

/// The `message` table, whatever columns its release has.
class MessageTable {
public:
    explicit MessageTable(const formats::Database& database);

    bool hasColumn(const QString& name) const { return m_columns.contains(name); }
    /// "m.name", or "NULL" where the release has no such column.
    QString column(const QString& name) const;

    /// A query of the columns that `append` reads, over `m` for the table.
    QString select(const QString& fromAndWhere) const;

    /// Adds the current row of such a query to `conversation`.
    static void append(const formats::Statement& query, ConversationRows& conversation);

private:
    QStringList m_columns;
};

} // namespace backup
