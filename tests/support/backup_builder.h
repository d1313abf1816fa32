// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

/// Writes a small backup folder: payloads at once, the manifest and the property lists by `finish`.
///
///   BackupBuilder(dir.path())
///       .device("Anna's iPhone", "17.5.1")
///       .addDatabase("HomeDomain", "Library/SMS/sms.db", {"CREATE TABLE message (text TEXT)"})
///       .add("MediaDomain", "Library/SMS/Attachments/00/00/A/cat.jpg", bytes)
///       .finish();
///
/// What goes wrong is a failure of the running test. A test that needs an odd property list writes
/// its own over the finished one.
class BackupBuilder {
public:
    explicit BackupBuilder(QString directory);

    /// A regular file with its payload.
    BackupBuilder& add(const QString& domain, const QString& path, const QByteArray& bytes);
    /// A regular file that the manifest names and the folder lacks.
    BackupBuilder& addMissing(const QString& domain, const QString& path);
    BackupBuilder& addDirectory(const QString& domain, const QString& path);
    BackupBuilder& addLink(const QString& domain, const QString& path);
    /// A row of the manifest as it stands, however odd; no payload.
    BackupBuilder& addRow(
        const QString& fileId, const QString& domain, const QString& path, int flags);

    /// A database that the statements have made.
    BackupBuilder& addDatabase(
        const QString& domain, const QString& path, const QStringList& statements);
    /// A database whose second statements have reached its write-ahead log only; adds `path` and
    /// `path`-wal.
    BackupBuilder& addDatabaseWithLog(const QString& domain, const QString& path,
        const QStringList& statements, const QStringList& logged);

    /// The property list says that the backup is encrypted, and the manifest is no database.
    BackupBuilder& encrypted();
    /// Name and iOS version in all property lists; "iPhone" and "17.5.1" where it is not called.
    BackupBuilder& device(const QString& name, const QString& version);
    /// State of the run, "finished" where it is not called.
    BackupBuilder& snapshotState(const QString& state);
    void finish();

    /// Name of the payload file: 40 hexadecimal digits.
    static QString fileId(const QString& domain, const QString& path);
    /// Path of the payload, whether it is there or not.
    QString payloadPath(const QString& domain, const QString& path) const;

private:
    struct Row {
        QString fileId;
        QString domain;
        QString path;
        int flags;
    };

    void writeManifest() const;
    void writePropertyLists() const;

    QString m_directory;
    QString m_deviceName = "iPhone";
    QString m_version = "17.5.1";
    QString m_state = "finished";
    bool m_encrypted = false;
    std::vector<Row> m_rows;
};

/// A database and its write-ahead log as files.
struct DatabaseBytes {
    QByteArray file;
    QByteArray log; ///< empty where all is in the file
};

/// Runs the statements on a new database. The second ones end up in the write-ahead log.
DatabaseBytes databaseBytes(const QStringList& statements, const QStringList& logged = {});

/// The database after the statements have reached a write-ahead log.
DatabaseBytes withLog(const QByteArray& file, const QStringList& logged);

/// Writes a file, and the folders that it needs.
void writeFile(const QString& path, const QByteArray& bytes);

/// An XML property list around the body of its dictionary: "<key>A</key><true/>".
QByteArray propertyList(const QString& body);
