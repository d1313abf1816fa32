// SPDX-License-Identifier: MIT
#pragma once

#include "backup/container/FileLocator.h"
#include "formats/Result.h"
#include "formats/sqlite.h"

#include <QTemporaryDir>

#include <memory>
#include <optional>
#include <vector>

namespace backup {

class Notices;

/// What the backup says of the device. Every text may be empty.
struct DeviceInfo {
    QString name;
    QString productType;    ///< "iPhone14,5"
    QString productVersion; ///< "17.5.1"
    QString lastBackup;     ///< ISO 8601
};

/// One file, directory or link of the device, as the manifest names it.
struct ManifestEntry {
    QString fileId; ///< 40 hexadecimal digits; anything else is no entry
    QString domain;
    QString relativePath; ///< without a leading slash, without ".."
    int flags = 0;        ///< 1 file, 2 directory, 4 link
};

/// A database of the backup, opened for reading: the payload itself, or a private copy with its
/// write-ahead log taken in, which goes away with this object.
struct OpenedDatabase {
    std::unique_ptr<QTemporaryDir> scratch; // outlives the database
    formats::Database database;
};

/// An unencrypted backup folder of iOS 10 and later. Nothing is ever written to it.
class BackupFolder final : public FileLocator {
public:
    /// `notices` outlives the folder and takes what can be passed over. The error is for what
    /// cannot: no folder, no backup, an encrypted one, a manifest that cannot be read.
    static formats::Result<std::unique_ptr<BackupFolder>> open(
        const QString& path, Notices& notices);
    ~BackupFolder() override;

    const DeviceInfo& device() const { return m_device; }

    /// The entry of a regular file or a directory; none where the manifest has none.
    std::optional<ManifestEntry> find(const QString& domain, const QString& relativePath) const;

    /// Path of an entry's payload; empty where the folder lacks it.
    QString payloadPath(const ManifestEntry& entry) const;

    /// As FileLocator says. A name that is stored in the other Unicode form is found too. A file
    /// that the manifest names and the folder lacks is told to the notices.
    QString locate(const QString& domain, const QString& relativePath) const override;
    QStringList filesBelow(const QString& domain, const QString& directory) const override;

    /// Opens a database of the device, searched for in `domain` and then by its path in all others.
    /// None where the manifest has no such file; an Error where it cannot be read.
    std::optional<formats::Result<OpenedDatabase>> openDatabase(
        const QString& domain, const QString& relativePath) const;

private:
    BackupFolder(QString path, DeviceInfo device, OpenedDatabase manifest, Notices& notices);

    QString m_path;
    DeviceInfo m_device;
    OpenedDatabase m_manifest;
    Notices* m_notices; // not owned
};

/// Opens the database at `path`: the file itself, or where a write-ahead log lies beside it
/// (`walPath`, empty for none) a private copy that has taken the log in. A log that spoils the copy
/// is left out, which the notices are told.
formats::Result<OpenedDatabase> openWithLog(
    const QString& path, const QString& walPath, Notices& notices);

} // namespace backup
