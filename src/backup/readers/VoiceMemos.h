// SPDX-License-Identifier: MIT
#pragma once

#include "backup/container/FileLocator.h"
#include "backup/readers/LazyData.h"

namespace backup {

/// The recordings of the phone's owner, oldest first: data type 31.
class VoiceMemos final : public LazyData {
public:
    static constexpr int kDataType = 31;

    /// Both outlive the set.
    VoiceMemos(const FileLocator& files, Notices& notices);

    static bool isRecordings(const formats::Database& database);
    /// Whether there are recordings, be there a database or not.
    static bool hasFiles(const FileLocator& files);

protected:
    RecordList read(const std::vector<NamedDatabase>& databases, Notices& notices) const override;

private:
    const FileLocator& m_files;
};

} // namespace backup
