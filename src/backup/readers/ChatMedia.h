// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/DeviceFileItem.h"

#include <QHash>
#include <QString>

#include <vector>

namespace backup {

/// The files of an application's media directories, by what its messages know of their names.
class ChatMedia {
public:
    /// The key of a path; empty for a file that is none of the media.
    using KeyOf = QString (*)(const QString& path);

    /// `files` outlives this.
    explicit ChatMedia(const FileLocator& files) : m_files(files) {}

    /// Lists the files below a directory of the device. Of two with one key the one that was
    /// listed first is found.
    void list(const QString& domain, const QString& directory, KeyOf keyOf);

    /// The file of a message; null where there is none. Holds until more are listed.
    const DeviceFile* find(const QString& key);

    /// What `find` never gave, in the order in which it was listed.
    std::vector<DeviceFile> leftOver() const;

private:
    struct Entry {
        DeviceFile place;
        bool isFound = false;
    };
    const FileLocator& m_files;
    std::vector<Entry> m_entries;
    QHash<QString, std::size_t> m_byKey;
};

} // namespace backup
