// SPDX-License-Identifier: MIT
#include "BackupWriter.h"

#include "Database.h"
#include "common.h"
#include "plist_writer.h"

#include <QCryptographicHash>

namespace sample {

namespace {

// Type and permissions as the file system has them.
constexpr int kFileMode = 0100644;
constexpr int kDirectoryMode = 0040755;
constexpr int kLinkMode = 0120755;

constexpr int kMobileUser = 501;

QByteArray sha1(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1);
}

QString fileIdOf(const QString& domain, const QString& path)
{
    return sha1((domain + "-" + path).toUtf8()).toHex();
}

} // namespace

BackupWriter::BackupWriter(QString directory, qint64 moment)
    : m_directory(std::move(directory)), m_moment(moment)
{
}

void BackupWriter::addFile(
    const QString& domain, const QString& path, const QByteArray& bytes, qint64 modified)
{
    addParents(domain, path);
    m_entries[{domain, path}] = {.kind = File,
        .size = bytes.size(),
        .digest = sha1(bytes),
        .modified = modified != 0 ? modified : m_moment};
    const QString id = fileIdOf(domain, path);
    writeFile(m_directory + "/" + id.left(2) + "/" + id, bytes);
}

void BackupWriter::addDirectory(const QString& domain, const QString& path)
{
    addParents(domain, path);
    m_entries[{domain, path}] = {.kind = Directory, .modified = m_moment};
}

void BackupWriter::addLink(const QString& domain, const QString& path, const QString& target)
{
    addParents(domain, path);
    m_entries[{domain, path}] = {.kind = Link, .target = target, .modified = m_moment};
}

// The domain itself is a directory too, with an empty path.
void BackupWriter::addParents(const QString& domain, const QString& path)
{
    m_entries[{domain, ""}] = {.kind = Directory, .modified = m_moment};
    for (int slash = path.indexOf('/'); slash >= 0; slash = path.indexOf('/', slash + 1)) {
        m_entries[{domain, path.left(slash)}] = {.kind = Directory, .modified = m_moment};
    }
}

// 1: the MBFile, 2: its path, 3: digest of a file or target of a link, last: the class.
QByteArray BackupWriter::description(const QString& path, const Entry& entry, int inode)
{
    const bool hasThird = entry.kind != Directory;
    const int mode = entry.kind == File   ? kFileMode
                     : entry.kind == Link ? kLinkMode
                                          : kDirectoryMode;
    QVariantMap file{
        {"RelativePath", uid(2)},
        {"Mode", mode},
        {"Size", entry.size},
        {"InodeNumber", inode},
        {"UserID", kMobileUser},
        {"GroupID", kMobileUser},
        {"Birth", entry.modified},
        {"LastModified", entry.modified},
        {"LastStatusChange", entry.modified},
        {"ProtectionClass", entry.kind == File ? 3 : 0},
        {"Flags", 0},
        {"$class", uid(hasThird ? 4 : 3)},
    };
    QVariantList rest{path};
    if (entry.kind == File) {
        file["Digest"] = uid(3);
        rest.append(entry.digest);
    }
    if (entry.kind == Link) {
        file["Target"] = uid(3);
        rest.append(entry.target);
    }
    rest.append(keyedClass({"MBFile", "NSObject"}));
    return keyedArchive(QVariantList{file} + rest);
}

void BackupWriter::writeIndex(const QString& schema) const
{
    Database index(m_directory + "/Manifest.db", schema, Database::Journal::Delete);
    index.run("PRAGMA user_version = 2; BEGIN;");
    int inode = 1000;
    for (const auto& [place, entry] : m_entries) {
        const auto& [domain, path] = place;
        index.insert("Files", {{"fileID", fileIdOf(domain, path)}, {"domain", domain},
                                  {"relativePath", path}, {"flags", static_cast<int>(entry.kind)},
                                  {"file", description(path, entry, ++inode)}});
    }
    index.run("COMMIT;");
}

} // namespace sample
