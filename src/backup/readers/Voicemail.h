// SPDX-License-Identifier: MIT
#pragma once

#include "backup/container/FileLocator.h"
#include "backup/readers/LazyData.h"
#include "backup/readers/SenderNames.h"

namespace backup {

/// The messages on the answering machine, newest first: data type 4.
class Voicemail final : public LazyData {
public:
    static constexpr int kDataType = 4;

    /// Both references outlive the set.
    Voicemail(SenderNames names, const FileLocator& files, Notices& notices);

    static bool isVoicemail(const formats::Database& database);
    /// Whether there are sounds of it, be there a database or not.
    static bool hasFiles(const FileLocator& files);

protected:
    RecordList read(const std::vector<NamedDatabase>& databases, Notices& notices) const override;

private:
    SenderNames m_names;
    const FileLocator& m_files;
};

} // namespace backup
