// SPDX-License-Identifier: MIT
#pragma once

#include "backup/container/BackupFolder.h"
#include "backup/readers/OpenedBackup.h"

#include <array>

namespace backup {

/// Photos, videos, sound and documents that lie among the files of apps. They are listed when one
/// of the four sets is first asked for.
class AppFiles final : public RecordSource {
public:
    static constexpr std::array kDataTypes{24, 25, 26, 35};

    /// Those of the apps with these domains. `folder` outlives the object.
    AppFiles(const BackupFolder& folder, QStringList domains);

    /// The domains of apps whose files are looked through: all but those of which another reader
    /// has filled a set.
    static QStringList domains(const BackupFolder& folder, const PRBackup& records);

    /// One of the sets.
    std::unique_ptr<PRData> data(int dataType);

private:
    void list();
    void add(const QString& domain, const QString& path);
    RecordList take(std::size_t index);

    const BackupFolder& m_folder;
    QStringList m_domains;
    bool m_isListed = false;
    std::array<RecordList, kDataTypes.size()> m_lists; // until their sets take them
};

} // namespace backup
