// SPDX-License-Identifier: MIT
#include "backup/readers/open_beside.h"

#include "backup/container/BackupFolder.h"
#include "platform/literals.h"

namespace backup {

std::optional<formats::Result<OpenedDatabase>> openBeside(
    const FileLocator& files, const QString& domain, const QString& path, Notices& notices)
{
    if (const auto* device = dynamic_cast<const BackupFolder*>(&files)) {
        return device->openDatabase(domain, path);
    }
    const QString found = files.locate(domain, path);
    if (found.isEmpty()) {
        return std::nullopt;
    }
    return openWithLog(found, files.locate(domain, path + "-wal"_L1), notices);
}

std::optional<formats::Result<OpenedDatabase>> openInDomain(
    const FileLocator& files, const QString& domain, const QString& path, Notices& notices)
{
    const auto* device = dynamic_cast<const BackupFolder*>(&files);
    const bool isElsewhere = device != nullptr && !device->find(domain, path);
    return isElsewhere ? std::nullopt : openBeside(files, domain, path, notices);
}

} // namespace backup
