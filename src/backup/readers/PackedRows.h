// SPDX-License-Identifier: MIT
#pragma once

#include <QTemporaryFile>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace backup {

/// Rows of many chats that come mixed, as bytes: more than memory should hold are put aside on disk
/// by batches of neighbouring chats, and read back a batch at a time, as often as they are wanted.
/// The files have no name and are gone with the object.
class PackedRows {
public:
    static constexpr std::size_t kBatchRows = 25'000;

    /// `counts`: how many rows each chat has at most.
    explicit PackedRows(const std::vector<std::size_t>& counts, std::size_t batchRows = kBatchRows);

    void add(std::size_t chat, std::string_view row);
    /// Ends the adding. False where the disk did not take all of it: then nothing is to be read.
    bool finish();

    /// Gives the rows of a chat to `take`, in the order in which they came. False, with none given,
    /// where they cannot be read.
    bool read(std::size_t chat, const std::function<void(std::string_view)>& take);

private:
    struct Batch {
        std::unique_ptr<QTemporaryFile> file; // made when there is much to write
        std::string pending;
        std::size_t size = 0; // bytes
    };
    void flush(Batch& batch);
    bool load(std::size_t batch);
    void sortOut(std::size_t batch);

    std::vector<Batch> m_batches;
    std::vector<std::uint32_t> m_batchOf; // by chat
    bool m_complete = true;

    static constexpr std::size_t kNone = SIZE_MAX;
    std::size_t m_loaded = kNone; // the batch that memory holds
    std::string m_bytes;
    std::vector<std::vector<std::size_t>> m_places; // in these bytes, by chat of the batch
    std::size_t m_firstChat = 0;                    // of the batch
};

} // namespace backup
