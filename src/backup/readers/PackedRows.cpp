// SPDX-License-Identifier: MIT
// A batch is a row of
//   RowHead   chat, size
//   char[]    the row
#include "backup/readers/PackedRows.h"

#include <algorithm>
#include <cstring>

namespace backup {

namespace {

// Large enough that writing costs little, small enough to have one for each batch.
constexpr std::size_t kBlock = std::size_t(256) * 1024;

struct RowHead {
    std::uint32_t chat = 0;
    std::uint32_t size = 0;
};

RowHead headAt(const std::string& bytes, std::size_t place)
{
    RowHead head;
    std::memcpy(&head, bytes.data() + place, sizeof head);
    return head;
}

} // namespace

PackedRows::PackedRows(const std::vector<std::size_t>& counts, std::size_t batchRows)
    : m_batches(1), m_batchOf(counts.size())
{
    std::size_t rows = 0;
    for (std::size_t chat = 0; chat < counts.size(); ++chat) {
        if (rows > 0 && rows + counts[chat] > batchRows) {
            m_batches.emplace_back();
            rows = 0;
        }
        rows += counts[chat];
        m_batchOf[chat] = static_cast<std::uint32_t>(m_batches.size() - 1);
    }
}

void PackedRows::add(std::size_t chat, std::string_view row)
{
    Batch& batch = m_batches[m_batchOf[chat]];
    const RowHead head{
        .chat = static_cast<std::uint32_t>(chat), .size = static_cast<std::uint32_t>(row.size())};
    batch.pending.append(reinterpret_cast<const char*>(&head), sizeof head).append(row);
    // A single batch may stay in memory.
    if (batch.pending.size() >= kBlock && m_batches.size() > 1) {
        flush(batch);
    }
}

void PackedRows::flush(Batch& batch)
{
    if (m_complete && batch.file == nullptr) {
        batch.file = std::make_unique<QTemporaryFile>();
        m_complete = batch.file->open();
    }
    const auto size = static_cast<qint64>(batch.pending.size());
    m_complete = m_complete && batch.file->write(batch.pending.data(), size) == size;
    batch.size += batch.pending.size();
    batch.pending.clear();
}

bool PackedRows::finish()
{
    if (m_batches.size() == 1) {
        m_bytes = std::move(m_batches.front().pending);
        m_loaded = 0;
        sortOut(0);
        return true;
    }
    for (Batch& batch : m_batches) {
        if (!batch.pending.empty()) {
            flush(batch);
        }
        batch.pending = {};
        m_complete = m_complete && (batch.file == nullptr || batch.file->flush());
    }
    return m_complete;
}

bool PackedRows::load(std::size_t batch)
{
    m_loaded = kNone;
    Batch& from = m_batches[batch];
    m_bytes.resize(from.size);
    const auto size = static_cast<qint64>(from.size);
    const bool isRead =
        from.size == 0 || (from.file->seek(0) && from.file->read(m_bytes.data(), size) == size);
    if (isRead) {
        m_loaded = batch;
        sortOut(batch);
    }
    return isRead;
}

void PackedRows::sortOut(std::size_t batch)
{
    const auto [first, end] =
        std::equal_range(m_batchOf.begin(), m_batchOf.end(), static_cast<std::uint32_t>(batch));
    m_firstChat = static_cast<std::size_t>(first - m_batchOf.begin());
    m_places.assign(static_cast<std::size_t>(end - first), {});
    for (std::size_t place = 0; place < m_bytes.size();) {
        const RowHead head = headAt(m_bytes, place);
        m_places[head.chat - m_firstChat].push_back(place);
        place += sizeof head + head.size;
    }
}

bool PackedRows::read(std::size_t chat, const std::function<void(std::string_view)>& take)
{
    const std::size_t batch = m_batchOf[chat];
    if (batch != m_loaded && !load(batch)) {
        return false;
    }
    for (const std::size_t place : m_places[chat - m_firstChat]) {
        take(
            std::string_view(m_bytes).substr(place + sizeof(RowHead), headAt(m_bytes, place).size));
    }
    return true;
}

} // namespace backup
