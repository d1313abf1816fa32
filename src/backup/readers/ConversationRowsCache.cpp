// SPDX-License-Identifier: MIT
#include "backup/readers/ConversationRowsCache.h"

#include "backup/container/Notices.h"
#include "platform/literals.h"

#include <QCoreApplication>

#include <algorithm>
#include <set>

namespace backup {

namespace {

// Who has asked for this many conversations in a row will ask for the rest as well.
constexpr std::size_t kStepsBeforeScan = 3;
// Beyond a damaged page reading goes on behind it; pages hold few rows.
constexpr std::int64_t kLargestSkip = 8;

std::int64_t largestMessageId(const formats::Database& database)
{
    auto query = database.prepare("SELECT max(ROWID) FROM message"_L1);
    return query && query->next() ? query->integer(0) : 0;
}

} // namespace

Membership::Membership(const formats::Database& database,
    const std::vector<Conversation>& conversations, Notices& notices)
    : m_counts(conversations.size())
{
    std::unordered_map<std::int64_t, std::int32_t> indexOfChat;
    for (std::size_t index = 0; index < conversations.size(); ++index) {
        for (const std::int64_t chatId : conversations[index].chatIds) {
            indexOfChat[chatId] = static_cast<std::int32_t>(index);
        }
    }
    auto range = database.prepare("SELECT min(ROWID), max(ROWID), count(*) FROM message"_L1);
    if (range && range->next()) {
        m_first = range->integer(0);
        const std::int64_t span = range->integer(1) - m_first + 1;
        if (span / 8 <= range->integer(2)) {
            m_dense.assign(static_cast<std::size_t>(span), kNone);
        }
    }
    auto joins = database.prepare("SELECT message_id, chat_id FROM chat_message_join"_L1);
    while (joins && joins->next()) {
        const auto chat = indexOfChat.find(joins->integer(1));
        if (chat != indexOfChat.end()) {
            add(joins->integer(0), chat->second);
        }
    }
    if (joins && joins->failed()) {
        notices.add(QCoreApplication::translate("DataExport",
            "%1: the table of conversations is damaged (%2); some messages may be missing.")
                        .arg(database.path(), joins->errorText()));
    }
}

std::int32_t Membership::of(std::int64_t messageId) const
{
    const auto offset = static_cast<std::uint64_t>(messageId - m_first);
    if (offset < m_dense.size()) {
        return m_dense[offset];
    }
    const auto found = m_sparse.find(messageId);
    return found != m_sparse.end() ? found->second : kNone;
}

const std::vector<std::int32_t>& Membership::severalOf(std::int64_t messageId) const
{
    return m_several.at(messageId);
}

std::int32_t& Membership::slot(std::int64_t messageId)
{
    const auto offset = static_cast<std::uint64_t>(messageId - m_first);
    return offset < m_dense.size() ? m_dense[offset]
                                   : m_sparse.try_emplace(messageId, kNone).first->second;
}

// A message may lie in several chats, and twice in chats that are shown as one.
void Membership::add(std::int64_t messageId, std::int32_t index)
{
    std::int32_t& first = slot(messageId);
    if (first == index) {
        return;
    }
    if (first == kNone) {
        first = index;
    } else {
        std::vector<std::int32_t>& all = m_several[messageId];
        if (first != kSeveral) {
            all.push_back(first);
            first = kSeveral;
        }
        if (std::ranges::find(all, index) != all.end()) {
            return;
        }
        all.push_back(index);
    }
    ++m_counts[static_cast<std::size_t>(index)];
    ++m_total;
}

ConversationRowsCache::ConversationRowsCache(const formats::Database& database,
    const std::vector<Conversation>& conversations, Notices& notices, std::size_t batchMessages)
    : m_database(database), m_conversations(conversations), m_notices(notices),
      m_batchMessages(batchMessages), m_table(database)
{
}

ConversationRows ConversationRowsCache::take(std::size_t index)
{
    readAttachmentIds();
    ConversationRows found = fetch(index);
    const auto order = [](const MessageRow& row) { return std::pair(row.date, row.id); };
    if (!std::ranges::is_sorted(found.rows, {}, order)) {
        std::ranges::sort(found.rows, {}, order);
    }
    return found;
}

ConversationRows ConversationRowsCache::fetch(std::size_t index)
{
    const Conversation& conversation = m_conversations[index];
    m_forwardSteps = index == m_next ? m_forwardSteps + 1 : 0;
    m_next = index + 1;
    if (conversation.kind != ConversationKind::Chats) {
        return readMessages(conversation.messageIds);
    }
    const bool inOrder =
        m_forwardSteps >= kStepsBeforeScan || m_conversations.size() <= kStepsBeforeScan;
    if (m_scan == Scan::NotYet && inOrder) {
        scan();
    }
    if (m_scan == Scan::Kept) {
        return m_batch[index];
    }
    if (m_scan == Scan::Spilled && loadBatchOf(index)) {
        // Given away: the memory is wanted for the objects that are made of it.
        m_given[index - m_batchOffset] = true;
        return std::move(m_batch[index - m_batchOffset]);
    }
    return walkIndex(conversation);
}

ConversationRows ConversationRowsCache::walkIndex(const Conversation& conversation)
{
    ConversationRows found;
    const bool complete = eachRow(
        m_table.select(
            "chat_message_join j JOIN message m ON m.ROWID = j.message_id WHERE j.chat_id = ?"_L1),
        conversation.chatIds,
        [&](const formats::Statement& row) { MessageTable::append(row, found); });
    if (!complete) {
        return readMessages(idsOf(conversation));
    }
    markAttachments(found);
    // A message in two chats of the conversation is there once.
    std::ranges::sort(found.rows, {}, &MessageRow::id);
    const auto sameId = [](const MessageRow& a, const MessageRow& b) { return a.id == b.id; };
    found.rows.erase(std::unique(found.rows.begin(), found.rows.end(), sameId), found.rows.end());
    return found;
}

// One by one where a damaged page has ended the walk: the others can still be read.
std::vector<std::int64_t> ConversationRowsCache::idsOf(const Conversation& conversation)
{
    std::set<std::int64_t> ids;
    eachRow("SELECT message_id FROM chat_message_join WHERE chat_id = ?"_L1, conversation.chatIds,
        [&](const formats::Statement& row) { ids.insert(row.integer(0)); });
    return {ids.begin(), ids.end()};
}

ConversationRows ConversationRowsCache::readMessages(const std::vector<std::int64_t>& messageIds)
{
    ConversationRows found;
    eachRow(m_table.select("message m WHERE m.ROWID = ?"_L1), messageIds,
        [&](const formats::Statement& row) { MessageTable::append(row, found); });
    markAttachments(found);
    return found;
}

// The rows that a query gives for each key. False when some could not be read.
bool ConversationRowsCache::eachRow(const QString& sql, const std::vector<std::int64_t>& keys,
    const std::function<void(const formats::Statement&)>& use)
{
    auto query = m_database.prepare(sql);
    if (!query) {
        m_notices.add(query.error().text());
        return false;
    }
    bool complete = true;
    for (const std::int64_t key : keys) {
        query->reset();
        query->bind(1, static_cast<qint64>(key));
        while (query->next()) {
            use(*query);
        }
        noteFailure(*query);
        complete = complete && !query->failed();
    }
    return complete;
}

void ConversationRowsCache::scan()
{
    m_membership.emplace(m_database, m_conversations, m_notices);
    planBatches();
    if (m_batchBegins.size() == 1) {
        enterBatch(0);
        for (std::size_t i = 0; i < m_batch.size(); ++i) {
            m_batch[i].rows.reserve(m_membership->countOf(i));
        }
        m_scan = Scan::Kept;
    } else {
        m_spill.emplace(m_batchBegins.size(), m_conversations.size());
        m_scan = Scan::Spilled;
    }
    scanTable();
    if (m_spill && !m_spill->finish()) {
        m_spill.reset();
        m_scan = Scan::Failed; // no room on the disk: the index serves, slower
    }
    m_membership.reset();
}

// As many neighbouring conversations as memory should hold; at least one.
void ConversationRowsCache::planBatches()
{
    m_batchBegins = {0};
    m_batchOf.resize(m_conversations.size());
    std::size_t messages = 0;
    for (std::size_t index = 0; index < m_conversations.size(); ++index) {
        messages += m_membership->countOf(index);
        if (messages > m_batchMessages && index > m_batchBegins.back()) {
            m_batchBegins.push_back(index);
            messages = m_membership->countOf(index);
        }
        m_batchOf[index] = static_cast<std::uint32_t>(m_batchBegins.size() - 1);
    }
}

void ConversationRowsCache::enterBatch(std::size_t batch)
{
    m_batchOffset = m_batchBegins[batch];
    const std::size_t end =
        batch + 1 < m_batchBegins.size() ? m_batchBegins[batch + 1] : m_conversations.size();
    m_batch.clear(); // first: two batches are never there together
    m_batch.resize(end - m_batchOffset);
    m_given.assign(m_batch.size(), false);
}

// Makes the batch of a conversation the one that memory holds. False where it cannot be read back.
bool ConversationRowsCache::loadBatchOf(std::size_t index)
{
    const std::size_t at = index - m_batchOffset; // wraps where it lies before
    if (at < m_batch.size() && !m_given[at]) {
        return true;
    }
    const std::size_t batch = m_batchOf[index];
    enterBatch(batch);
    const bool complete = m_spill->read(batch, m_batch, m_batchOffset);
    if (!complete) {
        m_batch.clear();
    }
    return complete;
}

// A damaged page ends a scan; another one starts behind it.
void ConversationRowsCache::scanTable()
{
    std::int64_t lastId = INT64_MIN;
    bool failed = false;
    scanRows(lastId, failed);
    if (failed) {
        const std::int64_t largest = largestMessageId(m_database);
        std::int64_t skip = 1;
        for (std::int64_t from = std::max<std::int64_t>(lastId, 0); from < largest;) {
            std::int64_t reached = from;
            scanRows(reached, failed);
            skip = reached > from ? 1 : std::min(skip * 2, kLargestSkip);
            from = failed ? reached + skip : largest;
        }
    }
}

// Rows above `lastId`, which becomes that of the last row read.
void ConversationRowsCache::scanRows(std::int64_t& lastId, bool& failed)
{
    auto query = m_database.prepare(m_table.select("message m WHERE m.ROWID > ?"_L1));
    if (!query) {
        m_notices.add(query.error().text());
        failed = false;
        return;
    }
    query->bind(1, lastId);
    while (query->next()) {
        lastId = query->integer(0);
        keep(*query);
    }
    noteFailure(*query);
    failed = query->failed();
}

void ConversationRowsCache::keep(const formats::Statement& row)
{
    const std::int64_t id = row.integer(0);
    while (m_nextAttachment < m_attachmentIds.size() && m_attachmentIds[m_nextAttachment] < id) {
        ++m_nextAttachment;
    }
    const bool hasAttachments =
        m_nextAttachment < m_attachmentIds.size() && m_attachmentIds[m_nextAttachment] == id;
    const auto add = [&](std::int32_t index) {
        const auto at = static_cast<std::size_t>(index);
        MessageRow* kept = nullptr;
        if (m_spill) {
            kept = &m_spill->add(m_batchOf[at], index, row);
        } else {
            MessageTable::append(row, m_batch[at]);
            kept = &m_batch[at].rows.back();
        }
        kept->bits = static_cast<std::uint8_t>(kept->bits | (hasAttachments ? HasAttachments : 0));
    };
    const std::int32_t index = m_membership->of(id);
    if (index == Membership::kSeveral) {
        std::ranges::for_each(m_membership->severalOf(id), add);
    } else if (index != Membership::kNone) {
        add(index);
    }
}

void ConversationRowsCache::readAttachmentIds()
{
    if (m_attachmentIdsRead) {
        return;
    }
    m_attachmentIdsRead = true;
    auto query = m_database.prepare(
        "SELECT DISTINCT message_id FROM message_attachment_join ORDER BY message_id"_L1);
    while (query && query->next()) {
        m_attachmentIds.push_back(query->integer(0));
    }
}

void ConversationRowsCache::markAttachments(ConversationRows& found) const
{
    for (MessageRow& row : found.rows) {
        if (std::ranges::binary_search(m_attachmentIds, row.id)) {
            row.bits |= HasAttachments;
        }
    }
}

void ConversationRowsCache::noteFailure(const formats::Statement& query)
{
    if (query.failed()) {
        m_notices.add(QCoreApplication::translate(
            "DataExport", "%1: some messages cannot be read, the database is damaged (%2).")
                          .arg(m_database.path(), query.errorText()));
    }
}

} // namespace backup
