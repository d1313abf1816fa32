// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/RowSpill.h"
#include "backup/readers/conversations.h"
#include "backup/readers/message_rows.h"
#include "formats/sqlite.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>
#include <unordered_map>
#include <vector>

namespace backup {

class Notices;

/// Which conversation each message belongs to, by message.ROWID; 4 bytes a message.
class Membership {
public:
    static constexpr std::int32_t kNone = -1;
    static constexpr std::int32_t kSeveral = -2;

    Membership(const formats::Database& database, const std::vector<Conversation>& conversations,
        Notices& notices);

    /// A conversation's index, kNone or kSeveral.
    std::int32_t of(std::int64_t messageId) const;
    /// All conversations of a message for which `of` says kSeveral.
    const std::vector<std::int32_t>& severalOf(std::int64_t messageId) const;
    /// Number of messages that conversation `index` has here.
    std::size_t countOf(std::size_t index) const { return m_counts[index]; }
    std::size_t total() const { return m_total; }

private:
    void add(std::int64_t messageId, std::int32_t index);
    std::int32_t& slot(std::int64_t messageId);

    std::int64_t m_first = 0;
    std::vector<std::int32_t> m_dense; // from m_first on
    std::unordered_map<std::int64_t, std::int32_t> m_sparse;
    std::unordered_map<std::int64_t, std::vector<std::int32_t>> m_several;
    std::vector<std::size_t> m_counts;
    std::size_t m_total = 0;
};

/// Gets the rows of conversations out of the store. The rows of one conversation lie scattered over
/// the table: who walks all conversations in order is served by one scan of the table, however
/// often they walk; who asks here and there, by the index of each.
class ConversationRowsCache {
public:
    /// Messages that memory holds: some 100 bytes each with their text.
    static constexpr std::size_t kBatchMessages = 250'000;

    /// `batchMessages`: more than that many are put aside on disk, and held by batches of as many.
    ConversationRowsCache(const formats::Database& database,
        const std::vector<Conversation>& conversations, Notices& notices,
        std::size_t batchMessages = kBatchMessages);

    /// The rows of a conversation, in the order of date, then of arrival.
    ConversationRows take(std::size_t index);

private:
    enum class Scan { NotYet, Kept, Spilled, Failed };

    ConversationRows fetch(std::size_t index);
    ConversationRows walkIndex(const Conversation& conversation);
    std::vector<std::int64_t> idsOf(const Conversation& conversation);
    ConversationRows readMessages(const std::vector<std::int64_t>& messageIds);
    void scan();
    void planBatches();
    void scanTable();
    void scanRows(std::int64_t& lastId, bool& failed);
    void keep(const formats::Statement& row);
    void enterBatch(std::size_t batch);
    bool loadBatchOf(std::size_t index);
    void readAttachmentIds();
    void markAttachments(ConversationRows& found) const;
    bool eachRow(const QString& sql, const std::vector<std::int64_t>& keys,
        const std::function<void(const formats::Statement&)>& use);
    void noteFailure(const formats::Statement& query);

    const formats::Database& m_database;
    const std::vector<Conversation>& m_conversations;
    Notices& m_notices;
    std::size_t m_batchMessages;
    MessageTable m_table;

    std::vector<std::int64_t> m_attachmentIds; // messages with attachments, ascending
    bool m_attachmentIdsRead = false;
    std::size_t m_nextAttachment = 0; // of the scan

    Scan m_scan = Scan::NotYet;
    std::optional<Membership> m_membership; // while the scan runs
    std::vector<std::size_t> m_batchBegins; // the first conversation of each batch
    std::vector<std::uint32_t> m_batchOf;   // by conversation
    std::optional<RowSpill> m_spill;
    std::vector<ConversationRows> m_batch; // the batch that memory holds
    std::vector<bool> m_given;             // those of its rows that are no longer there
    std::size_t m_batchOffset = 0;         // its first conversation
    std::size_t m_next = 0;                // the one after the last asked for
    std::size_t m_forwardSteps = 0;
};

} // namespace backup
