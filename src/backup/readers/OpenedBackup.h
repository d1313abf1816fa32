// SPDX-License-Identifier: MIT
#pragma once

#include "backup/container/BackupFolder.h"
#include "backup/container/Notices.h"
#include "formats/Result.h"
#include "model/PRBackup.h"

#include <memory>
#include <vector>

namespace backup {

/// What records are loaded from when they are asked for. Lives as long as they do.
class RecordSource {
public:
    RecordSource() = default;
    RecordSource(const RecordSource&) = delete;
    RecordSource& operator=(const RecordSource&) = delete;
    virtual ~RecordSource() = default;
};

/// A source that has been opened, with all that its records stand on; each member stands on those
/// above it.
struct OpenedBackup {
    std::unique_ptr<Notices> notices;   ///< grows as records are loaded
    std::unique_ptr<FileLocator> files; ///< the backup folder, or what lies beside a database
    std::vector<std::unique_ptr<RecordSource>> sources;
    DeviceInfo device; ///< empty for a database file
    PRBackup records;
};

/// Opens a backup folder. What can be read is there, the rest is told in the notices.
formats::Result<OpenedBackup> openBackupFolder(const QString& path);

/// Opens a single database of a kind that is known by its tables.
formats::Result<OpenedBackup> openDatabaseFile(const QString& path);

} // namespace backup
