// SPDX-License-Identifier: MIT
#include "formats/sqlite.h"
#include "support/backup_builder.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

TEST(BackupBuilder, NamesPayloadsByTheHashOfDomainAndPath)
{
    // The well-known names of two files that every backup has.
    EXPECT_EQ(BackupBuilder::fileId("HomeDomain", "Library/SMS/sms.db"),
        "3d0d7e5fb2ce288813306e4d4636395e047a3d28");
    EXPECT_EQ(BackupBuilder::fileId("HomeDomain", "Library/AddressBook/AddressBook.sqlitedb"),
        "31bb7ba8914766d4ba40d6dfb6113c8b614be442");
}

TEST(BackupBuilder, WritesPayloadsAndManifest)
{
    const QTemporaryDir directory;
    BackupBuilder builder(directory.path());
    builder.add("HomeDomain", "a/b", "bytes").addMissing("HomeDomain", "a/c").finish();

    QFile payload(builder.payloadPath("HomeDomain", "a/b"));
    ASSERT_TRUE(payload.open(QIODevice::ReadOnly));
    EXPECT_EQ(payload.readAll(), "bytes");
    EXPECT_FALSE(QFile::exists(builder.payloadPath("HomeDomain", "a/c")));

    auto manifest =
        formats::Database::open(directory.filePath("Manifest.db"), formats::OpenMode::Immutable);
    ASSERT_TRUE(manifest) << manifest.error().text().toStdString();
    auto rows = manifest->prepare("SELECT relativePath, flags FROM Files ORDER BY relativePath");
    ASSERT_TRUE(rows && rows->next());
    EXPECT_EQ(rows->text(0), "a/b");
    EXPECT_EQ(rows->integer(1), 1);
    ASSERT_TRUE(rows->next());
    EXPECT_EQ(rows->text(0), "a/c");
}

TEST(BackupBuilder, LeavesLoggedStatementsInTheLog)
{
    const QTemporaryDir directory;
    const DatabaseBytes bytes = databaseBytes(
        {"CREATE TABLE t (n)", "INSERT INTO t VALUES (1)"}, {"INSERT INTO t VALUES (2)"});
    writeFile(directory.filePath("alone"), bytes.file);
    writeFile(directory.filePath("both"), bytes.file);
    writeFile(directory.filePath("both-wal"), bytes.log);

    auto alone = formats::Database::open(directory.filePath("alone"), formats::OpenMode::Immutable);
    auto both = formats::Database::open(directory.filePath("both"), formats::OpenMode::Replay);
    ASSERT_TRUE(alone && both);
    auto countAlone = alone->prepare("SELECT count(*) FROM t");
    auto countBoth = both->prepare("SELECT count(*) FROM t");
    ASSERT_TRUE(countAlone->next() && countBoth->next());
    EXPECT_EQ(countAlone->integer(0), 1);
    EXPECT_EQ(countBoth->integer(0), 2);
}

} // namespace
