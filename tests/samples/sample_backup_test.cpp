// SPDX-License-Identifier: MIT
#include "formats/plist.h"
#include "formats/sqlite.h"
#include "formats/typedstream.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>
#include <vector>

namespace {

using formats::Database;
using formats::OpenMode;

const QString kBackup = SAMPLE_BACKUP;

struct Row {
    QString id;
    QString domain;
    QString path;
    qint64 flags = 0;
    QVariantMap file;

    QString payload() const { return kBackup + "/" + id.left(2) + "/" + id; }
};

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

QByteArray sha1(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1);
}

std::vector<Row> rows()
{
    std::vector<Row> all;
    const auto index = Database::open(kBackup + "/Manifest.db", OpenMode::Immutable);
    EXPECT_TRUE(index) << index.error().text().toStdString();
    auto query = index->prepare("SELECT fileID, domain, relativePath, flags, file FROM Files");
    while (query && query->next()) {
        const auto archive = formats::parsePlist(query->blob(4), query->text(2));
        EXPECT_TRUE(archive);
        all.push_back({.id = query->text(0),
            .domain = query->text(1),
            .path = query->text(2),
            .flags = query->integer(3),
            .file = formats::unarchive(*archive).toMap()});
    }
    return all;
}

Row rowOf(const QString& path)
{
    for (const Row& row : rows()) {
        if (row.path == path) {
            return row;
        }
    }
    ADD_FAILURE() << "no row of " << path.toStdString();
    return {};
}

// Copies a database and its log under their own names, as a reader does.
QString copied(const QTemporaryDir& directory, const QString& path)
{
    QString name = directory.filePath(QFileInfo(path).fileName());
    EXPECT_TRUE(QFile::copy(rowOf(path).payload(), name));
    return name;
}

qint64 number(const Database& database, const QString& sql)
{
    auto query = database.prepare(sql);
    EXPECT_TRUE(query) << sql.toStdString();
    return query && query->next() ? query->integer(0) : -1;
}

std::map<QString, QByteArray> tree(const QString& directory)
{
    std::map<QString, QByteArray> files;
    QDirIterator file(directory, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (file.hasNext()) {
        const QString path = file.next();
        files[QDir(directory).relativeFilePath(path)] = contents(path);
    }
    return files;
}

int make(const QString& directory, const QString& timeZone)
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("TZ", timeZone);
    program.setProcessEnvironment(environment);
    program.start(SAMPLE_PROGRAM, {SAMPLE_SOURCES, directory});
    EXPECT_TRUE(program.waitForFinished(60000));
    return program.exitCode();
}

TEST(SampleBackup, HasAPayloadOfTheNamedSizeAndDigestForEachFile)
{
    int files = 0;
    for (const Row& row : rows()) {
        SCOPED_TRACE(row.path.toStdString());
        EXPECT_EQ(row.file["RelativePath"].toString(), row.path);
        if (row.flags != 1) {
            EXPECT_FALSE(QFileInfo::exists(row.payload()));
            continue;
        }
        ++files;
        ASSERT_TRUE(QFileInfo::exists(row.payload()));
        EXPECT_EQ(row.file["Size"].toLongLong(), QFileInfo(row.payload()).size());
        EXPECT_EQ(row.file["Digest"].toByteArray(), sha1(contents(row.payload())));
    }
    EXPECT_GT(files, 10);
}

TEST(SampleBackup, NamesEachEntryByTheHashOfItsPlace)
{
    for (const Row& row : rows()) {
        EXPECT_EQ(row.id.toUtf8(), sha1((row.domain + "-" + row.path).toUtf8()).toHex());
    }
}

TEST(SampleBackup, HoldsNothingThatTheIndexDoesNotName)
{
    QSet<QString> expected{"Info.plist", "Manifest.plist", "Status.plist", "Manifest.db"};
    for (const Row& row : rows()) {
        if (row.flags == 1) {
            expected.insert(row.id.left(2) + "/" + row.id);
        }
    }
    QSet<QString> found;
    for (const auto& [name, bytes] : tree(kBackup)) {
        found.insert(name);
    }
    EXPECT_EQ(found, expected);
}

TEST(SampleBackup, NamesTheDirectoriesAboveEachEntry)
{
    QSet<QString> directories;
    const std::vector<Row> all = rows();
    for (const Row& row : all) {
        if (row.flags == 2) {
            directories.insert(row.domain + "-" + row.path);
        }
    }
    for (const Row& row : all) {
        const QString above = row.path.contains('/') ? row.path.section('/', 0, -2) : QString();
        EXPECT_TRUE(directories.contains(row.domain + "-" + above)) << row.path.toStdString();
    }
}

TEST(SampleBackup, SaysItsTimeZoneInALink)
{
    const Row link = rowOf("timezone/localtime");
    EXPECT_EQ(link.flags, 4);
    EXPECT_EQ(link.file["Target"].toString(), "/var/db/timezone/zoneinfo/Europe/Berlin");
}

TEST(SampleBackup, DescribesThePhoneInItsPropertyLists)
{
    const QVariantMap info = formats::readPlistFile(kBackup + "/Info.plist")->toMap();
    EXPECT_EQ(info["Device Name"].toString(), "Anna's iPhone");
    EXPECT_EQ(info["Product Version"].toString(), "17.5.1");
    const QVariantMap manifest = formats::readPlistFile(kBackup + "/Manifest.plist")->toMap();
    EXPECT_FALSE(manifest["IsEncrypted"].toBool());
    EXPECT_EQ(manifest["Lockdown"].toMap()["ProductVersion"].toString(), "17.5.1");
    const QVariantMap status = formats::readPlistFile(kBackup + "/Status.plist")->toMap();
    EXPECT_EQ(status["SnapshotState"].toString(), "finished");
}

TEST(SampleBackup, HasSoundDatabases)
{
    for (const char* path : {"Library/SMS/sms.db", "Library/AddressBook/AddressBook.sqlitedb",
             "Library/AddressBook/AddressBookImages.sqlitedb",
             "Library/CallHistoryDB/CallHistory.storedata", "Library/Calendar/Calendar.sqlitedb",
             "Container_v1/Stores/Data-local.sqlite", "Library/Safari/Bookmarks.db",
             "Library/Safari/History.db", "Media/PhotoData/Photos.sqlite",
             "Recordings/CloudRecordings.db", "Library/Voicemail/voicemail.db"}) {
        SCOPED_TRACE(path);
        const auto database = Database::open(rowOf(path).payload(), OpenMode::Immutable);
        ASSERT_TRUE(database);
        auto check = database->prepare("PRAGMA integrity_check");
        ASSERT_TRUE(check && check->next());
        EXPECT_EQ(check->text(0), "ok");
        // As on a phone: the header promises a write-ahead log.
        EXPECT_EQ(contents(rowOf(path).payload()).mid(18, 2).toHex(), "0202");
    }
}

TEST(SampleBackup, KeepsAnErasedEventInTheFreeSpaceAlone)
{
    const QString file = rowOf("Library/Calendar/Calendar.sqlitedb").payload();
    const auto calendar = Database::open(file, OpenMode::Immutable);
    ASSERT_TRUE(calendar);
    EXPECT_EQ(
        number(*calendar, "SELECT count(*) FROM CalendarItem WHERE summary = 'Blind date'"), 0);
    EXPECT_TRUE(contents(file).contains("Blind date"));
}

TEST(SampleBackup, KeepsTheNewestMessagesInTheLogAlone)
{
    const QString store = "Library/SMS/sms.db";
    const QString count = "SELECT count(*) FROM message";
    const auto stored = Database::open(rowOf(store).payload(), OpenMode::Immutable);
    ASSERT_TRUE(stored);
    EXPECT_EQ(number(*stored, count), 97);

    const QTemporaryDir directory;
    const QString copy = copied(directory, store);
    copied(directory, store + "-wal");
    const auto replayed = Database::open(copy, OpenMode::Replay);
    ASSERT_TRUE(replayed);
    EXPECT_EQ(number(*replayed, count), 100);
    auto check = replayed->prepare("PRAGMA integrity_check");
    ASSERT_TRUE(check && check->next());
    EXPECT_EQ(check->text(0), "ok");
}

TEST(SampleBackup, HasTheSameTextInTheBodyOfEachMessageThatHasBoth)
{
    const auto store = Database::open(rowOf("Library/SMS/sms.db").payload(), OpenMode::Immutable);
    ASSERT_TRUE(store);
    auto query = store->prepare("SELECT guid, text, attributedBody FROM message WHERE "
                                "text IS NOT NULL AND attributedBody IS NOT NULL");
    int messages = 0;
    while (query && query->next()) {
        const auto body = formats::parseTypedstream(query->blobView(2));
        ASSERT_TRUE(body) << query->text(0).toStdString();
        EXPECT_EQ(body->text, query->text(1));
        int units = 0;
        for (const formats::TextRun& run : body->runs) {
            units += run.length;
        }
        EXPECT_EQ(units, body->text.size());
        ++messages;
    }
    EXPECT_GT(messages, 40);
}

// Files that were purged from the phone have no path.
TEST(SampleBackup, HoldsTheFileOfEachAttachmentWithAPath)
{
    const auto store = Database::open(rowOf("Library/SMS/sms.db").payload(), OpenMode::Immutable);
    ASSERT_TRUE(store);
    QSet<QString> paths;
    for (const Row& row : rows()) {
        paths.insert("~/" + row.path);
    }
    // Without an encoder for HEIC that one picture is missing.
    auto query = store->prepare("SELECT filename FROM attachment WHERE filename IS NOT NULL "
                                "AND (total_bytes > 0 OR uti <> 'public.heic')");
    int files = 0;
    while (query && query->next()) {
        EXPECT_TRUE(paths.contains(query->text(0))) << query->text(0).toStdString();
        ++files;
    }
    EXPECT_GE(files, 9);
}

TEST(SampleBackup, IsTheSameInEveryRunAndTimeZone)
{
    const QTemporaryDir directory;
    ASSERT_EQ(make(directory.filePath("one"), "Asia/Tokyo"), 0);
    ASSERT_EQ(make(directory.filePath("two"), "America/Lima"), 0);
    const auto one = tree(directory.filePath("one"));
    EXPECT_EQ(one.size(), tree(kBackup).size());
    EXPECT_EQ(one, tree(directory.filePath("two")));
    EXPECT_EQ(one, tree(kBackup));
}

TEST(SampleBackup, IsNotMadeWhereOtherFilesLie)
{
    const QTemporaryDir directory;
    QFile other(directory.filePath("letter.txt"));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    other.close();
    EXPECT_EQ(make(directory.path(), "UTC"), 1);
    EXPECT_TRUE(other.exists());
}

} // namespace
