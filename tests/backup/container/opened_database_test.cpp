// SPDX-License-Identifier: MIT
#include "backup/container/Notices.h"
#include "backup/container/opened_database.h"
#include "support/backup_builder.h"
#include "support/temp_tree.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace backup {

namespace {

const QStringList kTwoRows = {
    "CREATE TABLE t (n INTEGER)", "INSERT INTO t VALUES (1)", "INSERT INTO t VALUES (2)"};
const QStringList kThirdRow = {"INSERT INTO t VALUES (3)"};

qint64 numberFrom(const OpenedDatabase& opened, const QString& sql)
{
    auto query = opened.database.prepare(sql);
    EXPECT_TRUE(query) << query.error().text().toStdString();
    return query && query->next() ? query->integer(0) : -1;
}

qint64 rowsIn(const OpenedDatabase& opened)
{
    return numberFrom(opened, "SELECT count(*) FROM t");
}

// A database that needs many pages, so that one page of another spoils it.
QStringList manyRows(const QString& table)
{
    return {"CREATE TABLE " + table + " (n INTEGER, body TEXT)",
        "CREATE INDEX " + table + "_index ON " + table + "(body)",
        "WITH RECURSIVE c(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM c WHERE n < 500) INSERT INTO "
            + table + " SELECT n, hex(randomblob(100)) FROM c"};
}

// What a database leaves on disk that was killed within a transaction.
DatabaseBytes killedInTransaction(const support::TempTree& tree)
{
    const QString path = tree.write("killed", databaseBytes(manyRows("t")).file);
    sqlite3* database = nullptr;
    EXPECT_EQ(sqlite3_open(path.toUtf8().constData(), &database), SQLITE_OK);
    // A cache of few pages spills the changes into the file before the end.
    EXPECT_EQ(sqlite3_exec(database,
                  "PRAGMA cache_size = 2; BEGIN; DELETE FROM t WHERE n % 2; UPDATE t SET body = ''",
                  nullptr, nullptr, nullptr),
        SQLITE_OK);
    DatabaseBytes bytes{.file = tree.read("killed"), .log = tree.read("killed-journal")};
    sqlite3_close(database);
    return bytes;
}

TEST(OpenWithLog, ReadsAFileWithoutLogInPlace)
{
    const support::TempTree tree;
    const QString path = tree.write("x.db", databaseBytes(kTwoRows).file);
    Notices notices;
    const auto opened = openWithLog(path, "", notices);
    ASSERT_TRUE(opened) << opened.error().text().toStdString();
    EXPECT_EQ(opened->database.path(), path);
    EXPECT_EQ(opened->scratch, nullptr);
    EXPECT_EQ(rowsIn(*opened), 2);
}

TEST(OpenWithLog, TakesTheLogIn)
{
    const support::TempTree tree;
    const DatabaseBytes bytes = databaseBytes(kTwoRows, kThirdRow);
    const QString path = tree.write("x.db", bytes.file);
    const QString log = tree.write("x.db-wal", bytes.log);
    Notices notices;
    const auto opened = openWithLog(path, log, notices);
    ASSERT_TRUE(opened) << opened.error().text().toStdString();
    EXPECT_EQ(rowsIn(*opened), 3);
    EXPECT_EQ(notices.sentences(), QStringList());
}

TEST(OpenWithLog, FindsALogThatLiesElsewhereUnderAnotherName)
{
    const support::TempTree tree;
    const DatabaseBytes bytes = databaseBytes(kTwoRows, kThirdRow);
    const QString path = tree.write("ab/cd", bytes.file);
    const QString log = tree.write("ef/gh", bytes.log);
    Notices notices;
    const auto opened = openWithLog(path, log, notices);
    ASSERT_TRUE(opened) << opened.error().text().toStdString();
    EXPECT_EQ(rowsIn(*opened), 3);
}

TEST(OpenWithLog, LeavesTheFilesAsTheyAre)
{
    const support::TempTree tree;
    const DatabaseBytes bytes = databaseBytes(kTwoRows, kThirdRow);
    const QString path = tree.write("x.db", bytes.file);
    const QString log = tree.write("x.db-wal", bytes.log);
    Notices notices;
    {
        const auto opened = openWithLog(path, log, notices);
        ASSERT_TRUE(opened);
        EXPECT_EQ(rowsIn(*opened), 3);
    }
    EXPECT_EQ(tree.read("x.db"), bytes.file);
    EXPECT_EQ(tree.read("x.db-wal"), bytes.log);
    EXPECT_EQ(tree.dir().entryList(QDir::Files), QStringList({"x.db", "x.db-wal"}));
}

TEST(OpenWithLog, RemovesThePrivateCopyInTheEnd)
{
    const support::TempTree tree;
    const DatabaseBytes bytes = databaseBytes(kTwoRows, kThirdRow);
    const QString path = tree.write("x.db", bytes.file);
    const QString log = tree.write("x.db-wal", bytes.log);
    Notices notices;
    QString scratch;
    {
        const auto opened = openWithLog(path, log, notices);
        ASSERT_TRUE(opened);
        scratch = opened->scratch->path();
        EXPECT_TRUE(QFileInfo::exists(scratch + "/x.db"));
        // Nobody else may read what is in a backup.
        EXPECT_EQ(
            QFileInfo(scratch).permissions() & (QFileDevice::ReadGroup | QFileDevice::ReadOther),
            QFileDevice::Permissions());
    }
    EXPECT_FALSE(QFileInfo::exists(scratch));
}

TEST(OpenWithLog, TakesAnEmptyOrMissingLogForNone)
{
    const support::TempTree tree;
    const QString path = tree.write("x.db", databaseBytes(kTwoRows).file);
    for (const QString& log : {tree.write("x.db-wal", ""), tree.path("none")}) {
        Notices notices;
        const auto opened = openWithLog(path, log, notices);
        ASSERT_TRUE(opened);
        EXPECT_EQ(opened->scratch, nullptr);
    }
}

TEST(OpenWithLog, OpensADatabaseMarkedForALogThatHasNone)
{
    const support::TempTree tree;
    const QString path = tree.write("x.db", databaseBytes(kTwoRows, kThirdRow).file);
    Notices notices;
    const auto opened = openWithLog(path, "", notices);
    ASSERT_TRUE(opened) << opened.error().text().toStdString();
    EXPECT_EQ(rowsIn(*opened), 2);
    EXPECT_EQ(tree.dir().entryList(QDir::Files), QStringList("x.db"));
}

TEST(OpenWithLog, CopiesAFileThatMayOnlyBeRead)
{
    const support::TempTree tree;
    const DatabaseBytes bytes = databaseBytes(kTwoRows, kThirdRow);
    const QString path = tree.write("x.db", bytes.file);
    const QString log = tree.write("x.db-wal", bytes.log);
    QFile::setPermissions(path, QFileDevice::ReadOwner);
    QFile::setPermissions(log, QFileDevice::ReadOwner);
    Notices notices;
    const auto opened = openWithLog(path, log, notices);
    ASSERT_TRUE(opened) << opened.error().text().toStdString();
    EXPECT_EQ(rowsIn(*opened), 3);
    EXPECT_TRUE(QFile::permissions(opened->database.path()) & QFileDevice::WriteOwner);
}

TEST(OpenWithLog, LeavesOutTheLogOfAnotherDatabase)
{
    const support::TempTree tree;
    const QString path = tree.write("x.db", databaseBytes(manyRows("t")).file);
    const QString log = tree.write("x.db-wal",
        databaseBytes({"CREATE TABLE other (n)"}, {"INSERT INTO other VALUES (1)"}).log);
    Notices notices;
    const auto opened = openWithLog(path, log, notices);
    ASSERT_TRUE(opened) << opened.error().text().toStdString();
    EXPECT_EQ(rowsIn(*opened), 500);
    EXPECT_EQ(notices.sentences(),
        QStringList(
            path + ": its log does not fit and is left out; the newest changes are missing"));
}

TEST(OpenWithLog, KeepsTheLogWhereTheDatabaseIsNoBetterWithoutIt)
{
    const support::TempTree tree;
    DatabaseBytes bytes = databaseBytes(
        manyRows("t") + QStringList("CREATE TABLE late (n)"), {"INSERT INTO late VALUES (1)"});
    // A page in the middle that neither the log nor the test needs.
    bytes.file.replace(4096 * 10, 4096, QByteArray(4096, '\xFF'));
    const QString path = tree.write("x.db", bytes.file);
    const QString log = tree.write("x.db-wal", bytes.log);
    Notices notices;
    const auto opened = openWithLog(path, log, notices);
    ASSERT_TRUE(opened) << opened.error().text().toStdString();
    EXPECT_EQ(numberFrom(*opened, "SELECT count(*) FROM late"), 1);
    EXPECT_EQ(notices.sentences(), QStringList());
}

TEST(OpenWithLog, RollsBackWhatAJournalHolds)
{
    const support::TempTree tree;
    const DatabaseBytes bytes = killedInTransaction(tree);
    const QString path = tree.write("x.db", bytes.file);
    Notices notices;
    {
        const auto torn = openWithLog(path, "", notices);
        ASSERT_FALSE(torn && rowsIn(*torn) == 500) << "the journal has no part in this";
    }
    tree.write("x.db-journal", bytes.log);
    const auto opened = openWithLog(path, "", notices);
    ASSERT_TRUE(opened) << opened.error().text().toStdString();
    EXPECT_EQ(rowsIn(*opened), 500);
    EXPECT_EQ(tree.read("x.db"), bytes.file);
    EXPECT_EQ(tree.read("x.db-journal"), bytes.log);
}

TEST(OpenWithLog, NamesTheFileThatCannotBeRead)
{
    const support::TempTree tree;
    const QString log = tree.write("log", "not empty");
    struct Row {
        const char* what;
        QString path;
        QString expected;
    };
    const Row rows[] = {
        {"no file", tree.path("none.db"), "there is no such file"},
        {"a folder", tree.makeDir("folder"), "this is not a file that can be read"},
        {"no database", tree.write("text.db", "Dear diary"),
            "this is not a database that can be read (file is not a database)"},
    };
    for (const Row& row : rows) {
        for (const QString& walPath : {QString(), log}) {
            SCOPED_TRACE(row.what);
            Notices notices;
            const auto opened = openWithLog(row.path, walPath, notices);
            ASSERT_FALSE(opened);
            EXPECT_EQ(opened.error().text(), row.path + ": " + row.expected);
            EXPECT_EQ(notices.sentences(), QStringList());
        }
    }
}

TEST(OpenDatabaseFiles, TellsWhereItCannotBeCopiedTo)
{
    const support::TempTree tree;
    const DatabaseBytes bytes = databaseBytes(kTwoRows, kThirdRow);
    Notices notices;
    const auto opened = openDatabaseFiles({.shownName = "HomeDomain/x",
                                              .name = QString(300, 'x'),
                                              .path = tree.write("x", bytes.file),
                                              .walPath = tree.write("x-wal", bytes.log)},
        notices);
    // A name that no file system takes.
    ASSERT_FALSE(opened);
    EXPECT_EQ(opened.error().where, "HomeDomain/x");
    EXPECT_TRUE(opened.error().what.startsWith("it cannot be copied to " + QDir::tempPath()))
        << opened.error().what.toStdString();
}

} // namespace

} // namespace backup
