// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/LazyData.h"
#include "backup/readers/OpenedBackup.h"

#include <array>
#include <optional>

namespace backup {

/// The camera roll: photos, videos, and those of shared albums. All of it is listed when one of its
/// sets is first asked for, the place of a file when that is.
class PhotoLibrary final : public RecordSource {
public:
    static constexpr int kPhotos = 21;
    static constexpr int kShared = 22;
    static constexpr int kVideos = 23;

    /// `database` may be none: then the files alone tell what there is. Both references outlive the
    /// library.
    PhotoLibrary(std::optional<NamedDatabase> database, const FileLocator& files, Notices& notices);

    /// Whether there are files of a camera roll.
    static bool hasFiles(const FileLocator& files);

    /// One of the three sets.
    std::unique_ptr<PRData> data(int dataType);

private:
    void list();
    RecordList take(int dataType);

    std::optional<NamedDatabase> m_database;
    const FileLocator& m_files;
    Notices& m_notices;
    bool m_isListed = false;
    std::array<RecordList, 3> m_lists; // from kPhotos on, until their sets take them
};

} // namespace backup
