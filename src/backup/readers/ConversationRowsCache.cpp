// SPDX-License-Identifier: MIT
#include "backup/readers/ConversationRowsCache.h"

#include "backup/container/Notices.h"
#include "platform/literals.h"

#include <QCoreApplication>

#include <sqlite3.h>

#include <algorithm>
#include <set>

namespace backup {

namespace {

// Messages that one scan keeps: some 100 bytes each with their text.
constexpr std::size_t kBatchMessages = 500'000;
// A table that would need more scans than this is read by the index.
constexpr std::size_t kMostScans = 6;
// Who has asked for this many conversations in a row will ask for the rest as well.
constexpr std::size_t kStepsBeforeScan = 3;
// Beyond a damaged page reading goes on behind it; pages hold few rows.
constexpr std::int64_t kLargestSkip = 8;

std::int64_t largestMessageId(const formats::Database& database)
{
    auto query = database.prepare("SELECT max(ROWID) FROM message"_L1);
    return query && query->next() ? query->integer(0) : 0;
}

struct InBatch {
    static void call(sqlite3_context* context, int /*count*/, sqlite3_value** values)
    {
        const auto& test =
            *static_cast<std::function<bool(std::int64_t)>*>(sqlite3_user_data(context));
        sqlite3_result_int(context, test(sqlite3_value_int64(values[0])) ? 1 : 0);
    }
};

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
    const std::vector<Conversation>& conversations, Notices& notices)
    : m_database(database), m_conversations(conversations), m_notices(notices), m_table(database)
{
}

ConversationRows ConversationRowsCache::take(std::size_t index)
{
    readAttachmentIds();
    ConversationRows found = fetch(index);
    for (MessageRow& row : found.rows) {
        if (std::ranges::binary_search(m_attachmentIds, row.id)) {
            row.bits |= HasAttachments;
        }
    }
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
    if ((index < m_batchBegin || index >= m_batchEnd) && worthAScan(index)) {
        scanFrom(index);
    }
    if (index < m_batchBegin || index >= m_batchEnd) {
        return walkIndex(conversation);
    }
    ConversationRows& kept = m_batch[index - m_batchOffset];
    if (m_keepsAll) {
        return kept;
    }
    // Given away: the memory is wanted for the objects that are made of it.
    m_batchBegin = index + 1;
    return std::move(kept);
}

bool ConversationRowsCache::worthAScan(std::size_t index)
{
    if (m_forwardSteps < kStepsBeforeScan && m_conversations.size() > kStepsBeforeScan) {
        return false;
    }
    if (!m_membership) {
        m_membership.emplace(m_database, m_conversations, m_notices);
    }
    return m_membership->total() <= kBatchMessages * kMostScans && index < m_conversations.size();
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

void ConversationRowsCache::scanFrom(std::size_t index)
{
    m_batch.clear();
    m_batchOffset = index;
    m_batchBegin = index;
    m_batchEnd = index;
    std::size_t messages = 0;
    while (m_batchEnd < m_conversations.size()) {
        messages += m_membership->countOf(m_batchEnd);
        if (messages > kBatchMessages && m_batchEnd > index) {
            break;
        }
        ++m_batchEnd;
    }
    m_keepsAll = m_membership->total() <= kBatchMessages;
    m_batch.resize(m_batchEnd - m_batchBegin);
    for (std::size_t i = 0; i < m_batch.size(); ++i) {
        m_batch[i].rows.reserve(m_membership->countOf(m_batchBegin + i));
    }
    // A damaged page ends a scan; another one starts behind it.
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

bool ConversationRowsCache::isInBatch(std::int64_t messageId) const
{
    const auto inRange = [this](std::int32_t index) {
        return index >= static_cast<std::int32_t>(m_batchBegin)
               && index < static_cast<std::int32_t>(m_batchEnd);
    };
    const std::int32_t index = m_membership->of(messageId);
    return index == Membership::kSeveral
               ? std::ranges::any_of(m_membership->severalOf(messageId), inRange)
               : inRange(index);
}

// Rows above `lastId`, which becomes that of the last row read.
void ConversationRowsCache::scanRows(std::int64_t& lastId, bool& failed)
{
    // Rows of other conversations are passed over before their columns are looked at.
    std::function<bool(std::int64_t)> test = [&](std::int64_t id) {
        lastId = id;
        return isInBatch(id);
    };
    sqlite3_create_function_v2(m_database.handle(), "in_batch", 1, SQLITE_UTF8, &test,
        InBatch::call, nullptr, nullptr, nullptr);
    auto query =
        m_database.prepare(m_table.select("message m WHERE m.ROWID > ? AND in_batch(m.ROWID)"_L1));
    if (!query) {
        m_notices.add(query.error().text());
        failed = false;
        return;
    }
    query->bind(1, lastId);
    while (query->next()) {
        keep(*query);
    }
    noteFailure(*query);
    failed = query->failed();
}

void ConversationRowsCache::keep(const formats::Statement& row)
{
    const std::int64_t id = row.integer(0);
    const auto add = [&](std::int32_t index) {
        const auto at = static_cast<std::size_t>(index);
        if (at >= m_batchBegin && at < m_batchEnd) {
            MessageTable::append(row, m_batch[at - m_batchOffset]);
        }
    };
    const std::int32_t index = m_membership->of(id);
    if (index == Membership::kSeveral) {
        std::ranges::for_each(m_membership->severalOf(id), add);
    } else {
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

void ConversationRowsCache::noteFailure(const formats::Statement& query)
{
    if (query.failed()) {
        m_notices.add(QCoreApplication::translate(
            "DataExport", "%1: some messages cannot be read, the database is damaged (%2).")
                          .arg(m_database.path(), query.errorText()));
    }
}

} // namespace backup
