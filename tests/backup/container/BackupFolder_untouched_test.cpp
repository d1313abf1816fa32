// SPDX-License-Identifier: MIT
// A backup is the only copy of a lost phone at times: reading it leaves no trace in its folder.
#include "backup/container/BackupFolder.h"
#include "backup/container/Notices.h"
#include "support/backup_builder.h"
#include "support/temp_tree.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDirIterator>

#include <gtest/gtest.h>

namespace backup {

namespace {

const QString kHome = "HomeDomain";
const QStringList kRows = {"CREATE TABLE t (n INTEGER)", "INSERT INTO t VALUES (1)"};
const QStringList kMore = {"INSERT INTO t VALUES (2)"};

// Path, size, time and contents of all that lies below a folder, and of itself.
QStringList listing(const support::TempTree& tree)
{
    QStringList lines{QFileInfo(tree.path()).lastModified().toString(Qt::ISODateWithMs)};
    QDirIterator all(tree.path(),
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
        QDirIterator::Subdirectories);
    while (all.hasNext()) {
        const QFileInfo entry(all.next());
        const QByteArray contents =
            entry.isFile() ? support::TempTree::readFile(entry.filePath()) : QByteArray();
        lines.append(QString("%1 %2 %3 %4")
                         .arg(entry.filePath(), QString::number(entry.size()),
                             entry.lastModified().toString(Qt::ISODateWithMs),
                             QCryptographicHash::hash(contents, QCryptographicHash::Sha1).toHex()));
    }
    lines.sort();
    return lines;
}

// A backup with each kind of database that there is, and a log beside its manifest.
void fill(const support::TempTree& tree)
{
    BackupBuilder(tree.path())
        .addDatabase(kHome, "plain.db", kRows)
        .addDatabaseWithLog(kHome, "logged.db", kRows, kMore)
        .add(kHome, "marked.db", databaseBytes(kRows, kMore).file)
        .addDatabase(kHome, "journaled.db", kRows)
        .add(kHome, "journaled.db-journal", QByteArray(512, '\0'))
        .finish();
    const QString insertion =
        "INSERT INTO Files VALUES ('" + BackupBuilder::fileId("D", "p") + "', 'D', 'p', 1, NULL)";
    const DatabaseBytes manifest = withLog(tree.read("Manifest.db"), {insertion});
    tree.write("Manifest.db", manifest.file);
    tree.write("Manifest.db-wal", manifest.log);
}

void readAll(const support::TempTree& tree)
{
    Notices notices;
    const auto folder = BackupFolder::open(tree.path(), notices);
    ASSERT_TRUE(folder) << folder.error().text().toStdString();
    EXPECT_TRUE((*folder)->find("D", "p")) << "the log beside the manifest is not read";
    EXPECT_EQ((*folder)->filesBelow(kHome, "").size(), 6);
    for (const char* name : {"plain.db", "logged.db", "marked.db", "journaled.db"}) {
        SCOPED_TRACE(name);
        const auto opened = (*folder)->openDatabase(kHome, name);
        ASSERT_TRUE(opened && *opened);
        auto rows = (*opened)->database.prepare("SELECT * FROM t");
        ASSERT_TRUE(rows);
        EXPECT_TRUE(rows->next());
    }
    EXPECT_EQ(notices.sentences(), QStringList());
}

void setWritable(const support::TempTree& tree, bool writable)
{
    const QFileDevice::Permissions read = QFileDevice::ReadOwner | QFileDevice::ExeOwner;
    QStringList folders{tree.path()};
    QDirIterator all(
        tree.path(), QDir::AllEntries | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (all.hasNext()) {
        folders.append(all.next());
    }
    for (const QString& path : folders) {
        QFile::setPermissions(path, writable ? read | QFileDevice::WriteOwner : read);
    }
}

TEST(BackupFolder, LeavesEverythingAsItIs)
{
    const support::TempTree tree;
    fill(tree);
    const QStringList before = listing(tree);
    readAll(tree);
    EXPECT_EQ(listing(tree), before);
}

TEST(BackupFolder, ReadsAFolderThatMayNotBeWritten)
{
    const support::TempTree tree;
    fill(tree);
    setWritable(tree, false);
    const QStringList before = listing(tree);
    readAll(tree);
    EXPECT_EQ(listing(tree), before);
    setWritable(tree, true);
}

} // namespace

} // namespace backup
