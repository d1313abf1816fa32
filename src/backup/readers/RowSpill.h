// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/message_rows.h"

#include <QTemporaryFile>

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace backup {

/// Rows of a scan that are more than memory should hold: put aside on disk by batches of
/// conversations, and read back a batch at a time, as often as they are wanted. The files have no
/// name and are gone with the object.
class RowSpill {
public:
    explicit RowSpill(std::size_t batches);

    /// Adds the current row of a query of `MessageTable`. The result holds until the next call.
    MessageRow& add(std::size_t batch, std::int32_t conversation, const formats::Statement& query);
    /// Ends the writing. False where the disk did not take all of it: then nothing is to be read.
    bool finish();

    /// A row, with its subject and text at the start of `text`.
    using Use = std::function<void(
        std::int32_t conversation, const MessageRow& row, std::string_view text)>;
    /// All rows of a batch, in the order in which they came. False where they cannot be read.
    bool read(std::size_t batch, const Use& use);

private:
    struct Batch {
        std::unique_ptr<QTemporaryFile> file; // made when the first block is full
        std::vector<std::int32_t> conversations;
        ConversationRows pending;
    };
    void flush(Batch& batch);

    std::vector<Batch> m_batches;
    bool m_complete = true;
};

} // namespace backup
