// SPDX-License-Identifier: MIT
#pragma once

#include "backup/container/BackupFolder.h"
#include "backup/readers/OpenedBackup.h"

#include <QSet>

#include <array>
#include <vector>

namespace backup {

/// Photos, videos, sound and documents that lie among the files of apps. They are listed when one
/// of the four sets is first asked for.
class AppFiles final : public RecordSource {
public:
    static constexpr std::array kDataTypes{24, 25, 26, 35};

    /// Those that are in none of the sets that other readers have filled. `folder` and the sets of
    /// `records` outlive the object.
    AppFiles(const BackupFolder& folder, const PRBackup& records);

    /// Whether the backup has apps at all.
    bool hasApps() const { return !m_domains.isEmpty(); }

    /// One of the sets.
    std::unique_ptr<PRData> data(int dataType);

private:
    QSet<QString> filesOfChats() const;
    void list();
    void add(const QString& domain, const QString& path);
    RecordList take(std::size_t index);

    const BackupFolder& m_folder;
    QStringList m_domains;
    std::vector<const PRData*> m_chatFiles; // not owned
    bool m_isListed = false;
    std::array<RecordList, kDataTypes.size()> m_lists; // until their sets take them
};

} // namespace backup
