// SPDX-License-Identifier: MIT
#include "support/backup_builder.h"

#include "formats/sqlite.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <memory>
#include <utility>

namespace {

enum Flags { RegularFile = 1, Directory = 2, Link = 4 };

const QStringList kManifestSchema = {
    R"(CREATE TABLE Files (fileID TEXT PRIMARY KEY, domain TEXT, relativePath TEXT,
                           flags INTEGER, file BLOB))",
    "CREATE INDEX FilesDomainIdx ON Files(domain)",
    "CREATE INDEX FilesRelativePathIdx ON Files(relativePath)",
    "CREATE INDEX FilesFlagsIdx ON Files(flags)",
    "CREATE TABLE Properties (key TEXT PRIMARY KEY, value BLOB)",
};

using Handle = std::unique_ptr<sqlite3, formats::CloseDatabase>;

Handle createDatabase(const QString& path)
{
    sqlite3* handle = nullptr;
    EXPECT_EQ(sqlite3_open(path.toUtf8().constData(), &handle), SQLITE_OK) << path.toStdString();
    // Nobody needs these files after a crash.
    sqlite3_exec(handle, "PRAGMA synchronous = OFF", nullptr, nullptr, nullptr);
    return Handle(handle);
}

void run(const Handle& database, const QStringList& statements)
{
    for (const QString& statement : statements) {
        EXPECT_EQ(
            sqlite3_exec(database.get(), statement.toUtf8().constData(), nullptr, nullptr, nullptr),
            SQLITE_OK)
            << statement.toStdString() << ": " << sqlite3_errmsg(database.get());
    }
}

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString entry(const QString& key, const QString& text)
{
    return QString("<key>%1</key><string>%2</string>\n").arg(key, text.toHtmlEscaped());
}

} // namespace

BackupBuilder::BackupBuilder(QString directory) : m_directory(std::move(directory))
{
}

BackupBuilder& BackupBuilder::add(
    const QString& domain, const QString& path, const QByteArray& bytes)
{
    writeFile(payloadPath(domain, path), bytes);
    return addMissing(domain, path);
}

BackupBuilder& BackupBuilder::addMissing(const QString& domain, const QString& path)
{
    return addRow(fileId(domain, path), domain, path, RegularFile);
}

BackupBuilder& BackupBuilder::addDirectory(const QString& domain, const QString& path)
{
    return addRow(fileId(domain, path), domain, path, Directory);
}

BackupBuilder& BackupBuilder::addLink(const QString& domain, const QString& path)
{
    return addRow(fileId(domain, path), domain, path, Link);
}

BackupBuilder& BackupBuilder::addRow(
    const QString& fileId, const QString& domain, const QString& path, int flags)
{
    m_rows.push_back({fileId, domain, path, flags});
    return *this;
}

BackupBuilder& BackupBuilder::addDatabase(
    const QString& domain, const QString& path, const QStringList& statements)
{
    return add(domain, path, databaseBytes(statements).file);
}

BackupBuilder& BackupBuilder::addDatabaseWithLog(const QString& domain, const QString& path,
    const QStringList& statements, const QStringList& logged)
{
    const DatabaseBytes bytes = databaseBytes(statements, logged);
    return add(domain, path, bytes.file).add(domain, path + "-wal", bytes.log);
}

BackupBuilder& BackupBuilder::encrypted()
{
    m_encrypted = true;
    return *this;
}

BackupBuilder& BackupBuilder::device(const QString& name, const QString& version)
{
    m_deviceName = name;
    m_version = version;
    return *this;
}

BackupBuilder& BackupBuilder::snapshotState(const QString& state)
{
    m_state = state;
    return *this;
}

void BackupBuilder::finish()
{
    writePropertyLists();
    if (m_encrypted) {
        writeFile(m_directory + "/Manifest.db", QByteArray(4096, '\x5A'));
    } else {
        writeManifest();
    }
}

QString BackupBuilder::fileId(const QString& domain, const QString& path)
{
    const QByteArray name = (domain + "-" + path).toUtf8();
    return QCryptographicHash::hash(name, QCryptographicHash::Sha1).toHex();
}

QString BackupBuilder::payloadPath(const QString& domain, const QString& path) const
{
    const QString id = fileId(domain, path);
    return m_directory + "/" + id.left(2) + "/" + id;
}

void BackupBuilder::writeManifest() const
{
    QDir().mkpath(m_directory);
    const Handle database = createDatabase(m_directory + "/Manifest.db");
    run(database, kManifestSchema + QStringList{"BEGIN"});
    sqlite3_stmt* handle = nullptr;
    ASSERT_EQ(sqlite3_prepare_v2(database.get(),
                  "INSERT INTO Files (fileID, domain, relativePath, flags) VALUES (?, ?, ?, ?)", -1,
                  &handle, nullptr),
        SQLITE_OK);
    formats::Statement insertion(handle);
    for (const Row& row : m_rows) {
        insertion.bind(1, row.fileId).bind(2, row.domain).bind(3, row.path).bind(4, row.flags);
        insertion.next();
        EXPECT_FALSE(insertion.failed()) << insertion.errorText().toStdString();
        insertion.reset();
    }
    run(database, {"COMMIT"});
}

void BackupBuilder::writePropertyLists() const
{
    writeFile(m_directory + "/Info.plist",
        propertyList(entry("Device Name", m_deviceName) + entry("Display Name", m_deviceName)
                     + entry("Product Type", "iPhone14,5") + entry("Product Version", m_version)
                     + "<key>Last Backup Date</key><date>2024-05-06T07:08:09Z</date>\n"));
    writeFile(m_directory + "/Manifest.plist",
        propertyList(QString("<key>IsEncrypted</key><%1/>\n").arg(m_encrypted ? "true" : "false")
                     + entry("Version", "10.0") + "<key>Lockdown</key><dict>\n"
                     + entry("DeviceName", m_deviceName) + entry("ProductType", "iPhone14,5")
                     + entry("ProductVersion", m_version) + "</dict>\n"));
    writeFile(m_directory + "/Status.plist",
        propertyList("<key>IsFullBackup</key><false/>\n" + entry("Version", "3.3")
                     + entry("BackupState", "new") + entry("SnapshotState", m_state)));
}

DatabaseBytes databaseBytes(const QStringList& statements, const QStringList& logged)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("database");
    {
        const Handle database = createDatabase(path);
        run(database, {"BEGIN"});
        run(database, statements);
        run(database, {"COMMIT"});
    }
    const QByteArray file = bytesOf(path);
    return logged.isEmpty() ? DatabaseBytes{.file = file, .log = {}} : withLog(file, logged);
}

DatabaseBytes withLog(const QByteArray& file, const QStringList& logged)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("database");
    writeFile(path, file);
    const Handle database = createDatabase(path);
    run(database, {"PRAGMA journal_mode = WAL", "PRAGMA wal_autocheckpoint = 0"});
    run(database, logged);
    // Read while the database is open: closing it would take the log in.
    return {.file = bytesOf(path), .log = bytesOf(path + "-wal")};
}

void writeFile(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    EXPECT_EQ(file.write(bytes), bytes.size()) << path.toStdString();
}

QByteArray propertyList(const QString& body)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>\n"
           + body.toUtf8() + "</dict></plist>\n";
}
