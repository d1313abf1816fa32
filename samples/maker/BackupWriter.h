// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <map>
#include <utility>

namespace sample {

/// The folder of one backup: payloads by their ids, and the index of them all.
class BackupWriter {
public:
    /// `moment` (seconds since 1970) is when the backup was made, and the date of each entry that
    /// has none of its own.
    BackupWriter(QString directory, qint64 moment);

    /// Writes the payload. The directories above it get entries as well.
    void addFile(
        const QString& domain, const QString& path, const QByteArray& bytes, qint64 modified = 0);
    void addDirectory(const QString& domain, const QString& path);
    void addLink(const QString& domain, const QString& path, const QString& target);

    /// Writes Manifest.db, last.
    void writeIndex(const QString& schema) const;

private:
    enum Kind { File = 1, Directory = 2, Link = 4 };
    struct Entry {
        Kind kind = File;
        int size = 0;
        QByteArray digest;
        QString target;
        qint64 modified = 0; // seconds since 1970
    };
    void addParents(const QString& domain, const QString& path);
    static QByteArray description(const QString& path, const Entry& entry, int inode);

    QString m_directory;
    qint64 m_moment;
    std::map<std::pair<QString, QString>, Entry> m_entries; // by domain and path
};

} // namespace sample
