// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/message_rows.h"

#include <QTemporaryFile>

#include <cstdint>
#include <memory>
#include <vector>

namespace backup {

/// Rows of a scan that are more than memory should hold: put aside on disk by batches of
/// conversations, and read back a batch at a time, as often as they are wanted. The files have no
/// name and are gone with the object.
class RowSpill {
public:
    RowSpill(std::size_t batches, std::size_t conversations);

    /// Adds the current row of a query of `MessageTable`. The result holds until the next call.
    MessageRow& add(std::size_t batch, std::int32_t conversation, const formats::Statement& query);
    /// Ends the writing. False where the disk did not take all of it: then nothing is to be read.
    bool finish();

    /// Hands the rows of a batch out to its conversations, of which `into` begins with number
    /// `first`, in the order in which they came. False where they cannot be read.
    bool read(std::size_t batch, std::vector<ConversationRows>& into, std::size_t first);

private:
    struct Size {
        std::size_t rows = 0;
        std::size_t text = 0; // bytes
    };
    struct Batch {
        std::unique_ptr<QTemporaryFile> file; // made when the first block is full
        std::vector<std::int32_t> conversations;
        ConversationRows pending;
    };
    void flush(Batch& batch);

    std::vector<Batch> m_batches;
    std::vector<Size> m_sizes; // by conversation
    bool m_complete = true;
};

} // namespace backup
