// SPDX-License-Identifier: MIT
#include "formats/sqlite.h"
#include "made_database.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using formats::Database;
using formats::OpenMode;

constexpr const char* kManyPages =
    "PRAGMA page_size=1024; CREATE TABLE t (a INTEGER PRIMARY KEY, b TEXT);"
    "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2000)"
    "INSERT INTO t SELECT i, hex(randomblob(50)) FROM n";

class SqliteDamage : public testing::Test {
protected:
    QString path() const { return m_directory.filePath("a.db"); }
    void write(const QByteArray& contents) const
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
    }
    QString errorOfOpen() const
    {
        const auto database = Database::open(path(), OpenMode::Immutable);
        if (!database) {
            EXPECT_EQ(database.error().where, path());
        }
        return database ? "none" : database.error().what;
    }
    QByteArray manyPages() const
    {
        madeDatabase(path(), kManyPages);
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir m_directory;
};

TEST_F(SqliteDamage, FindsNoFile)
{
    EXPECT_EQ(errorOfOpen(), "there is no such file");
    EXPECT_FALSE(QFile::exists(path())) << "it must not be made";
}

TEST_F(SqliteDamage, FindsADirectory)
{
    ASSERT_TRUE(QDir().mkpath(path()));
    EXPECT_EQ(errorOfOpen(), "this is not a file that can be read");
}

TEST_F(SqliteDamage, OpensAnEmptyFileAsADatabaseWithoutTables)
{
    write("");
    const auto database = Database::open(path(), OpenMode::Immutable);
    ASSERT_TRUE(database);
    EXPECT_TRUE(database->tables().isEmpty());
}

TEST_F(SqliteDamage, RefusesWhatIsNoDatabase)
{
    for (const QByteArray& contents : {QByteArray("hello"), QByteArray(5000, 'x'),
             QByteArray("SQLite format 3\0", 16), QByteArray(4096, '\0')}) {
        SCOPED_TRACE(contents.left(16).toStdString());
        write(contents);
        EXPECT_TRUE(errorOfOpen().startsWith("this is not a database that can be read ("))
            << errorOfOpen().toStdString();
    }
}

TEST_F(SqliteDamage, RefusesAFileThatIsCut)
{
    const QByteArray whole = manyPages();
    ASSERT_GT(whole.size(), 100 * 1024);
    for (const int size : {50, 600, 1024, 50 * 1024, whole.size() - 1024}) {
        SCOPED_TRACE(size);
        write(whole.left(size));
        EXPECT_NE(errorOfOpen(), "none");
    }
}

TEST_F(SqliteDamage, EndsAtADamagedPageAndTells)
{
    QByteArray contents = manyPages();
    for (int i = 50 * 1024; i < 51 * 1024; ++i) {
        contents[i] = static_cast<char>(i * 7);
    }
    write(contents);
    const auto database = Database::open(path(), OpenMode::Immutable);
    ASSERT_TRUE(database);
    auto rows = database->prepare("SELECT a, b FROM t");
    ASSERT_TRUE(rows);
    int count = 0;
    while (rows->next()) {
        ++count;
    }
    EXPECT_GT(count, 100);
    EXPECT_LT(count, 2000);
    EXPECT_TRUE(rows->failed());
    EXPECT_TRUE(rows->errorText().contains("malformed")) << rows->errorText().toStdString();
    EXPECT_FALSE(rows->next()) << "it does not begin anew";
    EXPECT_TRUE(rows->failed());
}

TEST_F(SqliteDamage, RefusesADamagedSchema)
{
    madeDatabase(path(), "CREATE TABLE t (a)");
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    QByteArray contents = file.readAll();
    contents.replace("CREATE TABLE", "CREATE TABEL");
    file.seek(0);
    file.write(contents);
    file.close();
    EXPECT_NE(errorOfOpen(), "none");
}

} // namespace
