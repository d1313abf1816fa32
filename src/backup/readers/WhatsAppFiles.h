// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/DeviceFileItem.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace backup {

/// The files of an account of WhatsApp that the backup has. They are listed when the first one is
/// asked for: to look up each file that a message names would take longer than to read them all.
class WhatsAppFiles {
public:
    /// `files` outlives the object.
    WhatsAppFiles(const FileLocator& files, QString domain);

    /// Where the file of a message lies, named as its row names it; no path where it is missing.
    DeviceFile find(const QString& named) const;
    /// Its path on this computer; empty where it is missing.
    QString locate(const QString& named) const;

    /// All that people sent and that their profiles show, stickers and wallpapers, in order.
    std::vector<DeviceFile> all() const;

private:
    QStringList paths() const;
    bool has(const QString& path) const;

    const FileLocator& m_files;
    QString m_domain;
    mutable bool m_isListed = false;
    mutable std::vector<uint> m_hashes; // of the paths, ascending
};

/// Whether the file is a small likeness of another one.
bool isThumbnail(const QString& path);

} // namespace backup
