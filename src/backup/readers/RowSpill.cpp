// SPDX-License-Identifier: MIT
// A file is a row of blocks, each as the memory has it:
//
//   BlockHead            numbers of rows and of bytes of text
//   int32_t[rows]        the conversation of each row
//   MessageRow[rows]     textStart counts from the start of the block's text
//   char[text]           UTF-8
#include "backup/readers/RowSpill.h"

#include <string_view>
#include <type_traits>

namespace backup {

namespace {

// Large enough that writing costs little, small enough to have one for each batch.
constexpr std::size_t kBlockRows = 2048;
constexpr std::size_t kBlockText = std::size_t(256) * 1024;

struct BlockHead {
    std::uint64_t rows = 0;
    std::uint64_t text = 0;
};

static_assert(std::is_trivially_copyable_v<MessageRow>);

template <typename T> bool writeAll(QTemporaryFile& file, const T* values, std::size_t count)
{
    const auto size = static_cast<qint64>(count) * static_cast<qint64>(sizeof(T));
    return file.write(reinterpret_cast<const char*>(values), size) == size;
}

template <typename T> bool readAll(QTemporaryFile& file, T* values, std::size_t count)
{
    const auto size = static_cast<qint64>(count) * static_cast<qint64>(sizeof(T));
    return file.read(reinterpret_cast<char*>(values), size) == size;
}

// The bytes of a row's subject and text.
std::size_t textSize(const MessageRow& row)
{
    return std::size_t(row.subjectSize) + row.textSize;
}

void append(ConversationRows& conversation, const MessageRow& row, std::string_view text)
{
    conversation.rows.push_back(row);
    conversation.rows.back().textStart = static_cast<std::uint32_t>(conversation.text.size());
    conversation.text.append(text.substr(row.textStart, textSize(row)));
}

} // namespace

RowSpill::RowSpill(std::size_t batches, std::size_t conversations)
    : m_batches(batches), m_sizes(conversations)
{
}

MessageRow& RowSpill::add(
    std::size_t batch, std::int32_t conversation, const formats::Statement& query)
{
    Batch& into = m_batches[batch];
    if (into.pending.rows.size() >= kBlockRows || into.pending.text.size() >= kBlockText) {
        flush(into);
    }
    into.conversations.push_back(conversation);
    MessageTable::append(query, into.pending);
    MessageRow& row = into.pending.rows.back();
    Size& size = m_sizes[static_cast<std::size_t>(conversation)];
    ++size.rows;
    size.text += textSize(row);
    return row;
}

bool RowSpill::finish()
{
    for (Batch& batch : m_batches) {
        flush(batch);
        batch.pending = {};
        batch.conversations = {};
        m_complete = m_complete && (batch.file == nullptr || batch.file->flush());
    }
    return m_complete;
}

void RowSpill::flush(Batch& batch)
{
    ConversationRows& block = batch.pending;
    if (m_complete && !block.rows.empty()) {
        if (batch.file == nullptr) {
            batch.file = std::make_unique<QTemporaryFile>();
            m_complete = batch.file->open();
        }
        const BlockHead head{.rows = block.rows.size(), .text = block.text.size()};
        QTemporaryFile& file = *batch.file;
        m_complete = m_complete && writeAll(file, &head, 1)
                     && writeAll(file, batch.conversations.data(), block.rows.size())
                     && writeAll(file, block.rows.data(), block.rows.size())
                     && writeAll(file, block.text.data(), block.text.size());
    }
    batch.conversations.clear();
    block.rows.clear();
    block.text.clear();
}

bool RowSpill::read(std::size_t batch, std::vector<ConversationRows>& into, std::size_t first)
{
    Batch& from = m_batches[batch];
    if (from.file == nullptr) {
        return true; // no row came
    }
    QTemporaryFile& file = *from.file;
    if (!file.seek(0)) {
        return false;
    }
    for (std::size_t i = 0; i < into.size(); ++i) {
        into[i].rows.reserve(m_sizes[first + i].rows);
        into[i].text.reserve(m_sizes[first + i].text);
    }
    ConversationRows block;
    std::vector<std::int32_t> conversations;
    while (!file.atEnd()) {
        BlockHead head;
        if (!readAll(file, &head, 1)) {
            return false;
        }
        conversations.resize(head.rows);
        block.rows.resize(head.rows);
        block.text.resize(head.text);
        if (!readAll(file, conversations.data(), head.rows)
            || !readAll(file, block.rows.data(), head.rows)
            || !readAll(file, block.text.data(), head.text)) {
            return false;
        }
        for (std::size_t i = 0; i < block.rows.size(); ++i) {
            append(into[static_cast<std::size_t>(conversations[i]) - first], block.rows[i],
                block.text);
        }
    }
    return true;
}

} // namespace backup
