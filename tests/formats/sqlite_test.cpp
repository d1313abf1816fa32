// SPDX-License-Identifier: MIT
#include "formats/sqlite.h"
#include "made_database.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <limits>

namespace {

using formats::Database;
using formats::OpenMode;
using formats::Statement;

class Sqlite : public testing::Test {
protected:
    QString path(const QString& name = "a.db") const { return m_directory.filePath(name); }
    Database opened(const char* sql, OpenMode mode = OpenMode::Immutable) const
    {
        madeDatabase(path(), sql);
        auto database = Database::open(path(), mode);
        EXPECT_TRUE(database);
        return std::move(*database);
    }
    QStringList files() const
    {
        return QDir(m_directory.path()).entryList(QDir::Files, QDir::Name);
    }

private:
    QTemporaryDir m_directory;
};

constexpr const char* kThree = "CREATE TABLE t (a INTEGER, b TEXT);"
                               "INSERT INTO t VALUES (1, 'x'), (2, 'y'), (3, 'z')";

TEST_F(Sqlite, OpensPathsWithSignsOfTheirOwn)
{
    for (const char* name : {"a?b.db", "a#b.db", "a%41b.db", "a b.db", "a&mode=ro.db",
             "\xC3\xA4\xE4\xBD\xA0.db", "a+b.db", "a'b\".db"}) {
        SCOPED_TRACE(name);
        const QString file = path(QString::fromUtf8(name));
        madeDatabase(file, kThree);
        for (const OpenMode mode : {OpenMode::Immutable, OpenMode::Replay}) {
            const auto database = Database::open(file, mode);
            ASSERT_TRUE(database);
            EXPECT_EQ(database->path(), file);
            EXPECT_TRUE(database->hasTable("t"));
        }
    }
}

TEST_F(Sqlite, OpensAPathThatBeginsWithTwoSlashes)
{
    madeDatabase(path(), kThree);
    EXPECT_TRUE(Database::open('/' + path(), OpenMode::Immutable));
}

TEST_F(Sqlite, ReadsAFileInWalModeAndLeavesNothingBeside)
{
    madeDatabase(path(), (std::string("PRAGMA journal_mode=WAL;") + kThree).c_str());
    ASSERT_EQ(files(), QStringList("a.db"));
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    ASSERT_EQ(file.read(20).mid(18), "\2\2");
    const auto database = Database::open(path(), OpenMode::Immutable);
    ASSERT_TRUE(database);
    auto rows = database->prepare("SELECT count(*) FROM t");
    ASSERT_TRUE(rows && rows->next());
    EXPECT_EQ(rows->integer(0), 3);
    EXPECT_EQ(files(), QStringList("a.db"));
}

TEST_F(Sqlite, TakesTheLogInOnlyWhenReplaying)
{
    const MadeDatabase writer = madeDatabase(path("w.db"), "PRAGMA journal_mode=WAL");
    run(writer, "PRAGMA wal_autocheckpoint=0; CREATE TABLE t (a); INSERT INTO t VALUES (1);");
    run(writer, "PRAGMA wal_checkpoint(TRUNCATE); INSERT INTO t VALUES (2)");
    ASSERT_TRUE(QFile::copy(path("w.db"), path()));
    ASSERT_TRUE(QFile::copy(path("w.db-wal"), path("a.db-wal")));
    const auto countRows = [this](OpenMode mode) {
        const auto database = Database::open(path(), mode);
        auto rows = database->prepare("SELECT count(*) FROM t");
        return rows && rows->next() ? rows->integer(0) : -1;
    };
    EXPECT_EQ(countRows(OpenMode::Immutable), 1);
    EXPECT_FALSE(QFile::exists(path("a.db-shm")));
    EXPECT_EQ(countRows(OpenMode::Replay), 2);
}

TEST_F(Sqlite, NamesTablesAndColumns)
{
    const Database database = opened("CREATE TABLE t (a, \"group\", b); CREATE TABLE \"o'o\" (c);"
                                     "CREATE VIEW v AS SELECT a FROM t; CREATE INDEX i ON t (a)");
    EXPECT_EQ(database.tables(), QStringList({"t", "o'o"}));
    EXPECT_TRUE(database.hasTable("t"));
    EXPECT_FALSE(database.hasTable("v"));
    EXPECT_FALSE(database.hasTable("i"));
    EXPECT_EQ(database.columns("t"), QStringList({"a", "group", "b"}));
    EXPECT_EQ(database.columns("o'o"), QStringList("c"));
    EXPECT_TRUE(database.columns("none").isEmpty());
}

TEST_F(Sqlite, RefusesViews)
{
    const Database database = opened("CREATE VIEW message AS WITH RECURSIVE n(i) AS"
                                     "(SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT i FROM n");
    EXPECT_FALSE(database.prepare("SELECT * FROM message"));
}

TEST_F(Sqlite, NamesThePathOfAQueryThatIsRefused)
{
    const Database database = opened(kThree);
    const auto query = database.prepare("SELECT nothing FROM t");
    ASSERT_FALSE(query);
    EXPECT_EQ(query.error().where, path());
    EXPECT_TRUE(query.error().what.contains("nothing"));
}

TEST_F(Sqlite, ReadsEveryTypeAsEveryOther)
{
    const Database database = opened("CREATE TABLE t (v INTEGER);"
                                     "INSERT INTO t VALUES ('12 or so'), ('word'), (2.5),"
                                     "(x'3334'), (NULL), (-9223372036854775808)");
    struct Row {
        const char* what;
        qint64 integer;
        double real;
        const char* text;
        bool null;
    };
    const Row expected[]{{"digits", 12, 12, "12 or so", false}, {"word", 0, 0, "word", false},
        {"real", 2, 2.5, "2.5", false}, {"blob", 34, 34, "34", false}, {"null", 0, 0, "", true},
        {"lowest", std::numeric_limits<qint64>::min(), -9223372036854775808.0,
            "-9223372036854775808", false}};
    auto rows = database.prepare("SELECT v, v, v, v FROM t ORDER BY rowid");
    ASSERT_TRUE(rows);
    for (const Row& row : expected) {
        SCOPED_TRACE(row.what);
        ASSERT_TRUE(rows->next());
        EXPECT_EQ(rows->isNull(0), row.null);
        EXPECT_EQ(rows->integer(0), row.integer);
        EXPECT_EQ(rows->real(1), row.real);
        EXPECT_EQ(rows->text(2).toStdString(), row.text);
        EXPECT_EQ(rows->blob(3).toStdString(), row.text);
    }
    EXPECT_FALSE(rows->next());
    EXPECT_FALSE(rows->failed());
}

TEST_F(Sqlite, ReplacesBytesThatAreNoText)
{
    const Database database =
        opened("CREATE TABLE t (v); INSERT INTO t VALUES (CAST(x'61FF62' AS TEXT))");
    auto rows = database.prepare("SELECT v FROM t");
    ASSERT_TRUE(rows && rows->next());
    EXPECT_EQ(rows->text(0), QString("a") + QChar(0xFFFD) + 'b');
    EXPECT_EQ(rows->textView(0), "a\xFF"
                                 "b");
}

TEST_F(Sqlite, ReadsEmptyBlobsAndColumnsBeyondTheLast)
{
    const Database database = opened("CREATE TABLE t (v); INSERT INTO t VALUES (x'')");
    auto rows = database.prepare("SELECT v FROM t");
    ASSERT_TRUE(rows && rows->next());
    EXPECT_FALSE(rows->isNull(0));
    EXPECT_TRUE(rows->blobView(0).empty());
    EXPECT_TRUE(rows->isNull(7));
    EXPECT_TRUE(rows->text(7).isEmpty());
}

TEST_F(Sqlite, BindsNumbersAndTexts)
{
    const Database database = opened(kThree);
    auto rows = database.prepare("SELECT a FROM t WHERE a > ? AND b < ? ORDER BY a");
    ASSERT_TRUE(rows);
    rows->bind(1, 1).bind(2, QString("z"));
    ASSERT_TRUE(rows->next());
    EXPECT_EQ(rows->integer(0), 2);
    EXPECT_FALSE(rows->next());
}

TEST_F(Sqlite, BindsAgainWithoutAReset)
{
    const Database database = opened(kThree);
    auto rows = database.prepare("SELECT b FROM t WHERE a >= ?");
    ASSERT_TRUE(rows);
    for (const int a : {1, 3}) { // the first is left amid its rows, the second read to its end
        rows->bind(1, a);
        ASSERT_TRUE(rows->next());
        EXPECT_EQ(rows->text(0), a == 1 ? "x" : "z");
        EXPECT_EQ(rows->next(), a == 1);
    }
    rows->bind(1, 2);
    ASSERT_TRUE(rows->next());
    EXPECT_EQ(rows->text(0), "y");
}

TEST_F(Sqlite, StaysAtTheEndUntilReset)
{
    const Database database = opened(kThree);
    auto rows = database.prepare("SELECT a FROM t WHERE a = ?");
    ASSERT_TRUE(rows);
    rows->bind(1, 2);
    EXPECT_TRUE(rows->next());
    EXPECT_FALSE(rows->next());
    EXPECT_FALSE(rows->next());
    rows->reset();
    ASSERT_TRUE(rows->next()) << "the parameter is kept";
    EXPECT_EQ(rows->integer(0), 2);
}

TEST_F(Sqlite, TellsOfAParameterThatIsNone)
{
    const Database database = opened(kThree);
    auto rows = database.prepare("SELECT a FROM t WHERE a = ?");
    ASSERT_TRUE(rows);
    rows->bind(2, 1).bind(1, 1);
    EXPECT_FALSE(rows->next());
    EXPECT_TRUE(rows->failed());
    EXPECT_FALSE(rows->errorText().isEmpty());
    rows->reset();
    EXPECT_FALSE(rows->failed());
    EXPECT_TRUE(rows->next());
}

TEST_F(Sqlite, HasNoRowsInAnEmptyStatement)
{
    Statement none;
    EXPECT_FALSE(none.next());
    EXPECT_FALSE(none.failed());
    EXPECT_TRUE(none.errorText().isEmpty());
}

} // namespace
