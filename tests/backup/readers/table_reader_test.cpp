// SPDX-License-Identifier: MIT
#include "backup/container/Notices.h"
#include "backup/readers/table_reader.h"
#include "support/backup_builder.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <optional>

namespace {

using backup::WantedColumn;

class TableReaderTest : public testing::Test {
protected:
    void open(const QByteArray& bytes)
    {
        writeFile(m_directory.filePath("x.db"), bytes);
        auto database =
            formats::Database::open(m_directory.filePath("x.db"), formats::OpenMode::Immutable);
        ASSERT_TRUE(database.has_value());
        m_database.emplace(std::move(*database));
    }

    // The values of the rows with ", " between them.
    QStringList rows(std::span<const WantedColumn> columns)
    {
        QStringList shown;
        const backup::TableReader reader(*m_database, m_name, m_notices);
        reader.read("t", columns, [&](const formats::Statement& row) {
            QStringList values;
            for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
                values.append(row.isNull(i) ? "NULL" : row.text(i));
            }
            shown.append(values.join(", "));
        });
        return shown;
    }

    QTemporaryDir m_directory;
    std::optional<formats::Database> m_database;
    QString m_name = "x.db";
    backup::Notices m_notices;
};

TEST_F(TableReaderTest, RowsComeInTheOrderOfTheirIds)
{
    open(databaseBytes({"CREATE TABLE t (id INTEGER PRIMARY KEY, a)",
                           "INSERT INTO t VALUES (9, 'x'), (2, 'y'), (-5, 'z')"})
             .file);
    EXPECT_EQ(rows(std::array{WantedColumn{"a"}}), QStringList({"z", "y", "x"}));
}

TEST_F(TableReaderTest, FirstOfSeveralColumnsThatHasAValueCounts)
{
    open(databaseBytes(
        {"CREATE TABLE t (b, c)", "INSERT INTO t VALUES ('b', 'c'), (NULL, 'c'), (NULL, NULL)"})
             .file);
    EXPECT_EQ(rows(std::array{WantedColumn{"a|b|c"}}), QStringList({"b", "c", "NULL"}));
}

TEST_F(TableReaderTest, ZeroAndNoTextAreNoValueWhereAnotherColumnMayHaveOne)
{
    open(databaseBytes({"CREATE TABLE t (b, c, d TEXT)",
                           "INSERT INTO t VALUES (0, 5, '0'), ('', 'c', ''), (0.0, 7, NULL)"})
             .file);
    EXPECT_EQ(rows(std::array{WantedColumn{"b|c"}, WantedColumn{"d|c"}, WantedColumn{"b"}}),
        QStringList({"5, 0, 0", "c, c, ", "7, 7, 0.0"}));
}

TEST_F(TableReaderTest, MissingColumnIsNullAndToldWhereItIsNeeded)
{
    open(databaseBytes({"CREATE TABLE t (a)", "INSERT INTO t VALUES (1), (2)"}).file);
    EXPECT_EQ(rows(std::array{WantedColumn{"a", true}, WantedColumn{"b"}, WantedColumn{"c", true}}),
        QStringList({"1, NULL, NULL", "2, NULL, NULL"}));
    EXPECT_EQ(m_notices.sentences(), QStringList("x.db has no column c; it is read as empty."));
}

TEST_F(TableReaderTest, MissingTableIsTold)
{
    open(databaseBytes({"CREATE TABLE other (a)"}).file);
    EXPECT_EQ(rows(std::array{WantedColumn{"a"}}), QStringList());
    EXPECT_EQ(m_notices.sentences(), QStringList("x.db has no table t."));
}

TEST_F(TableReaderTest, NamesWithQuotesAreNames)
{
    open(databaseBytes({R"(CREATE TABLE t ("a"" ,b" TEXT))", "INSERT INTO t VALUES ('x')"}).file);
    EXPECT_EQ(rows(std::array{WantedColumn{"a\" ,b"}}), QStringList("x"));
}

TEST_F(TableReaderTest, RowsOnBothSidesOfADamagedPageAreReadOnce)
{
    QStringList statements{"CREATE TABLE t (id INTEGER PRIMARY KEY, a)"};
    for (int i = 1; i <= 2000; ++i) {
        statements.append(QString("INSERT INTO t VALUES (%1, '%2')").arg(i).arg(i, 40));
    }
    QByteArray bytes = databaseBytes(statements).file;
    const int page = bytes.size() / 4096 / 2;
    bytes.replace(page * 4096, 4096, QByteArray(4096, '\xFF'));
    open(bytes);
    QStringList ids = rows(std::array{WantedColumn{"id"}});
    EXPECT_EQ(ids.first(), "1");
    EXPECT_TRUE(ids.contains("2000"));
    EXPECT_GT(ids.size(), 1800);
    EXPECT_LT(ids.size(), 2000);
    EXPECT_EQ(ids.removeDuplicates(), 0);
    EXPECT_EQ(
        m_notices.sentences(), QStringList("x.db is damaged; what can be read of it is there."));
}

TEST_F(TableReaderTest, LinkToNoRowIsNullZeroOrMinusOne)
{
    open(databaseBytes({"CREATE TABLE t (a)", "INSERT INTO t VALUES (NULL), (0), (-1), (7)"}).file);
    QList<qint64> links;
    backup::TableReader(*m_database, m_name, m_notices)
        .read("t", std::array{WantedColumn{"a"}},
            [&](const formats::Statement& row) { links.append(backup::linkedRow(row, 0)); });
    EXPECT_EQ(links, QList<qint64>({0, 0, 0, 7}));
}

TEST_F(TableReaderTest, RowsOfADamagedTableAreCountedRoughly)
{
    QStringList statements{"CREATE TABLE t (id INTEGER PRIMARY KEY, a)"};
    for (int i = 1; i <= 2000; ++i) {
        statements.append(QString("INSERT INTO t VALUES (%1, '%2')").arg(i).arg(i, 40));
    }
    QByteArray bytes = databaseBytes(statements).file;
    open(bytes);
    EXPECT_EQ(backup::countRows(*m_database, "t"), 2000);
    EXPECT_EQ(backup::countRows(*m_database, "none"), 0);
    const int page = bytes.size() / 4096 / 2;
    bytes.replace(page * 4096, 4096, QByteArray(4096, '\xFF'));
    open(bytes);
    EXPECT_EQ(backup::countRows(*m_database, "t"), 2000);
}

} // namespace
