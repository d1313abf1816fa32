// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/DeviceFileItem.h"

#include <QHash>
#include <QStringList>

namespace backup {

/// The files of the camera roll that the backup has: originals, edited versions, previews. Made for
/// one listing; it holds the paths of all originals.
class PhotoFiles {
public:
    /// `files` outlives the object.
    explicit PhotoFiles(const FileLocator& files);

    /// Where an original lies, and from now on it is not left over. No path where it is missing.
    DeviceFile take(const QString& path);
    /// The same for one that nobody has taken yet.
    DeviceFile takeUntaken(const QString& path);
    /// Paths of the originals that nobody has taken, in order.
    QStringList leftOver() const;

    /// The edited versions of an original: a picture, a film, or both.
    std::vector<DeviceFile> editedVersions(const QString& directory, const QString& fileName) const;

    /// The largest preview of an original, which may be missing itself.
    static QString previewOf(const FileLocator& files, const QString& path);

    bool isEmpty() const { return m_originals.isEmpty(); }

private:
    struct Original {
        QString domain;
        bool isTaken = false;
    };

    const FileLocator& m_files;
    QHash<QString, Original> m_originals;             // by path
    QHash<QString, std::vector<DeviceFile>> m_edited; // by directory and name without ending
};

} // namespace backup
