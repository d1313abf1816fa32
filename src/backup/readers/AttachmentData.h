// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/MessageFiles.h"
#include "backup/readers/conversations.h"
#include "model/PRData.h"

#include <vector>

namespace backup {

class Notices;

/// The files of messages as records, each in a directory named for its conversation. The list is
/// read when it is first asked for, the path of a file when that is.
class AttachmentData final : public PRData {
public:
    /// All of them outlive the data set.
    AttachmentData(const formats::Database& database,
        const std::vector<Conversation>& conversations, const FileLocator& files, Notices& notices);

protected:
    const RecordList& records() const override;

private:
    void read() const;
    void noteNeverDownloaded(int count) const;
    void add(const AttachmentRow& attachment, const Record& record, const QString& date) const;

    const formats::Database& m_database;
    const std::vector<Conversation>& m_conversations;
    const FileLocator& m_locator;
    MessageFiles m_files;
    Notices& m_notices;
    mutable RecordList m_loaded;
    mutable bool m_isLoaded = false;
};

} // namespace backup
