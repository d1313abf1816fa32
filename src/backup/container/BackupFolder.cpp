// SPDX-License-Identifier: MIT
// A backup folder.
//   Info.plist, Manifest.plist, Status.plist   what was backed up, and how the run ended
//   Manifest.db                                the index of all files
//   3d/3d0d7e5fb2ce288813306e4d4636395e047a3d28  a payload, in a folder of its first two digits;
//                                              some tools put all payloads beside the index
//   Snapshot/                                  a run that was not finished
#include "backup/container/BackupFolder.h"

#include "backup/container/Notices.h"
#include "backup/container/manifest_path.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <utility>

namespace backup {

namespace {

using formats::Done;
using formats::Error;
using formats::Result;

constexpr int kBackupsNamed = 10;

const QByteArray kSqliteMagic("SQLite format 3\0", 16);

bool hasManifest(const QDir& folder)
{
    return folder.exists(QStringLiteral("Manifest.db"));
}

bool hasOldManifest(const QDir& folder)
{
    return folder.exists(QStringLiteral("Manifest.mbdb"));
}

QStringList backupsIn(const QDir& parent)
{
    QStringList backups;
    const QStringList names = parent.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString& name : names) {
        const QDir folder(parent.filePath(name));
        if (hasManifest(folder) || hasOldManifest(folder)) {
            backups.append(name);
        }
    }
    return backups;
}

QString enumeration(const QStringList& names)
{
    const QString shown = QStringList(names.mid(0, kBackupsNamed)).join(QStringLiteral(", "));
    return names.size() <= kBackupsNamed
               ? shown
               : QStringLiteral("%1 and %2 more")
                     .arg(shown, QString::number(names.size() - kBackupsNamed));
}

// What a folder is that has no manifest.
QString withoutManifest(const QDir& folder)
{
    if (hasOldManifest(folder)) {
        return QStringLiteral("backups of iOS 9 and older cannot be read");
    }
    if (hasManifest(QDir(folder.filePath(QStringLiteral("Snapshot"))))) {
        return QStringLiteral("the backup was not finished, only its folder Snapshot has a "
                              "Manifest.db; back up the device once more");
    }
    const QStringList backups = backupsIn(folder);
    if (!backups.isEmpty()) {
        return QStringLiteral("this is no backup folder, but holds some; choose one of them: ")
               + enumeration(backups);
    }
    return QStringLiteral("this is no backup folder, it has no Manifest.db");
}

Done checkFolder(const QString& path)
{
    const QFileInfo folder(path);
    if (!folder.exists()) {
        return Error{.where = path, .what = QStringLiteral("there is no such folder")};
    }
    if (!folder.isDir()) {
        return Error{.where = path,
            .what =
                QStringLiteral("this is a file; a backup is the folder that holds Manifest.db")};
    }
    if (!folder.isReadable() || !folder.isExecutable()) {
        return Error{.where = path, .what = QStringLiteral("this folder cannot be read")};
    }
    if (!hasManifest(QDir(path))) {
        return Error{.where = path, .what = withoutManifest(QDir(path))};
    }
    return std::monostate();
}

Error encrypted(const QDir& folder)
{
    return {.where = folder.filePath(QStringLiteral("Manifest.plist")),
        .what = QStringLiteral("the backup is encrypted; only backups without a password can be "
                               "read")};
}

// An encrypted manifest and a spoilt one look alike; the property list tells them apart.
Done checkManifestFile(const QString& path, bool surelyPlain)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return Error{.where = path, .what = QStringLiteral("this is not a file that can be read")};
    }
    if (file.size() == 0) {
        return Error{.where = path, .what = QStringLiteral("the manifest is empty")};
    }
    if (file.read(kSqliteMagic.size()) == kSqliteMagic) {
        return std::monostate();
    }
    return Error{.where = path,
        .what = surelyPlain ? QStringLiteral("the manifest is damaged, it is no SQLite database")
                            : QStringLiteral(
                                "the manifest is damaged or encrypted, it is no SQLite database")};
}

QString shownName(const ManifestEntry& entry)
{
    return entry.domain + QLatin1Char('/') + entry.relativePath;
}

QString storedName(const ManifestEntry& entry)
{
    return entry.fileId.left(2) + QLatin1Char('/') + entry.fileId;
}

} // namespace

BackupFolder::BackupFolder(QString path, DeviceInfo device, Manifest manifest, Notices& notices)
    : m_path(std::move(path)), m_device(std::move(device)), m_manifest(std::move(manifest)),
      m_notices(&notices)
{
}

Result<std::unique_ptr<BackupFolder>> BackupFolder::open(const QString& path, Notices& notices)
{
    if (const Done check = checkFolder(path); !check) {
        return check.error();
    }
    const QDir folder(path);
    const BackupProperties properties = readBackupProperties(path, notices);
    if (properties.encrypted) {
        return encrypted(folder);
    }
    const QString manifestPath = folder.filePath(QStringLiteral("Manifest.db"));
    if (const Done file = checkManifestFile(manifestPath, properties.knowsEncryption); !file) {
        return file.error();
    }
    auto manifest = Manifest::open(manifestPath, notices);
    if (!manifest) {
        return manifest.error();
    }
    return std::unique_ptr<BackupFolder>(
        new BackupFolder(folder.absolutePath(), properties.device, std::move(*manifest), notices));
}

std::optional<ManifestEntry> BackupFolder::find(
    const QString& domain, const QString& relativePath) const
{
    return m_manifest.find(domain, relativePath);
}

QString BackupFolder::payloadPath(const ManifestEntry& entry) const
{
    if (entry.flags != ManifestEntry::RegularFile || !isFileId(entry.fileId)) {
        return {};
    }
    const QDir folder(m_path);
    QString nested = folder.filePath(storedName(entry));
    // A link in place of a payload could lead anywhere on this computer.
    if (isPlainFile(nested) && !QFileInfo(folder.filePath(entry.fileId.left(2))).isSymLink()) {
        return nested;
    }
    const QString flat = folder.filePath(entry.fileId);
    return isPlainFile(flat) ? flat : QString();
}

QString BackupFolder::locate(const QString& domain, const QString& relativePath) const
{
    const auto entry = find(domain, relativePath);
    if (!entry || entry->flags != ManifestEntry::RegularFile) {
        return {};
    }
    QString path = payloadPath(*entry);
    if (path.isEmpty()) {
        m_notices->addOneOfMany(
            QStringLiteral("%1: the manifest names this file, and the backup folder lacks it")
                .arg(shownName(*entry)),
            QStringLiteral("%1 more files are named by the manifest and missing in the backup "
                           "folder"));
    }
    return path;
}

QStringList BackupFolder::filesBelow(const QString& domain, const QString& directory) const
{
    return m_manifest.filesBelow(domain, directory);
}

std::optional<Result<OpenedDatabase>> BackupFolder::openDatabase(
    const QString& domain, const QString& relativePath) const
{
    auto entry = find(domain, relativePath);
    if (!entry || entry->flags != ManifestEntry::RegularFile) {
        entry = m_manifest.findInAnyDomain(relativePath);
    }
    if (!entry) {
        return std::nullopt;
    }
    const QString path = payloadPath(*entry);
    if (path.isEmpty()) {
        return Error{.where = shownName(*entry),
            .what = QStringLiteral("its file %1 is missing in the backup folder")
                        .arg(storedName(*entry))};
    }
    // The logs are files of the device like any other, with names of their own in the folder.
    const DatabaseFiles files{.shownName = shownName(*entry),
        .name = QFileInfo(entry->relativePath).fileName(),
        .path = path,
        .walPath = locate(entry->domain, entry->relativePath + QStringLiteral("-wal")),
        .journalPath = locate(entry->domain, entry->relativePath + QStringLiteral("-journal"))};
    return openDatabaseFiles(files, *m_notices);
}

} // namespace backup
