// SPDX-License-Identifier: MIT
#pragma once

#include "backup/container/FileLocator.h"
#include "backup/container/Manifest.h"
#include "backup/container/backup_properties.h"
#include "backup/container/opened_database.h"
#include "formats/Result.h"

#include <memory>
#include <optional>

namespace backup {

class Notices;

/// An unencrypted backup folder of iOS 10 and later. Nothing is ever written to it. For one thread.
class BackupFolder final : public FileLocator {
public:
    /// `notices` outlives the folder and takes what can be passed over. The error is for what
    /// cannot: no folder, no backup, an encrypted one, a manifest that cannot be read.
    static formats::Result<std::unique_ptr<BackupFolder>> open(
        const QString& path, Notices& notices);

    const DeviceInfo& device() const { return m_device; }

    /// The entry of a regular file or a directory; none where the manifest has none. A name that is
    /// stored in the other Unicode form is found too.
    std::optional<ManifestEntry> find(const QString& domain, const QString& relativePath) const;

    /// Path of an entry's payload; empty where the folder lacks it.
    QString payloadPath(const ManifestEntry& entry) const;

    /// As FileLocator says, with the names that `find` finds. A file that the manifest names and
    /// the folder lacks is told to the notices.
    QString locate(const QString& domain, const QString& relativePath) const override;
    QStringList filesBelow(const QString& domain, const QString& directory) const override;

    /// Names of the domains that begin with `begin`, in order.
    QStringList domains(const QString& begin) const { return m_manifest.domains(begin); }

    /// Opens a database of the device, searched for in `domain` and then by its path in all others,
    /// where the path may stand at the end of a longer one. None where the manifest has no such
    /// file; an Error where it cannot be read.
    std::optional<formats::Result<OpenedDatabase>> openDatabase(
        const QString& domain, const QString& relativePath) const;

private:
    BackupFolder(QString path, DeviceInfo device, Manifest manifest, Notices& notices);

    QString m_path;
    DeviceInfo m_device;
    mutable Manifest m_manifest; // its queries are reused
    Notices* m_notices;          // not owned
};

} // namespace backup
