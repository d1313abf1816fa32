// SPDX-License-Identifier: MIT
#include "backup/container/Notices.h"
#include "backup/readers/ChildRows.h"
#include "support/backup_builder.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>

namespace {

class ChildRowsTest : public testing::Test {
protected:
    void open(const QByteArray& bytes)
    {
        writeFile(m_directory.filePath("x.db"), bytes);
        auto database =
            formats::Database::open(m_directory.filePath("x.db"), formats::OpenMode::Immutable);
        ASSERT_TRUE(database.has_value());
        m_database.emplace(std::move(*database));
        m_reader.emplace(*m_database, m_name, m_notices);
        m_rows.emplace(*m_reader, "t", "parent", std::vector<backup::WantedColumn>{{"a"}});
    }

    QStringList rowsOf(qint64 parent)
    {
        QStringList shown;
        m_rows->read(parent, [&](const formats::Statement& row) {
            shown.append(QString::number(row.integer(1)) + " " + row.text(0));
        });
        return shown;
    }

    QTemporaryDir m_directory;
    std::optional<formats::Database> m_database;
    QString m_name = "x.db";
    backup::Notices m_notices;
    std::optional<backup::TableReader> m_reader;
    std::optional<backup::ChildRows> m_rows;
};

TEST_F(ChildRowsTest, EachParentHasItsOwnInTheOrderOfIds)
{
    open(databaseBytes({"CREATE TABLE t (id INTEGER PRIMARY KEY, parent, a)",
                           "INSERT INTO t VALUES (4, 1, 'd'), (2, 1, 'b'), (3, 2, 'c')"})
             .file);
    EXPECT_EQ(rowsOf(1), QStringList({"2 b", "4 d"}));
    EXPECT_EQ(rowsOf(2), QStringList("3 c"));
    EXPECT_EQ(rowsOf(7), QStringList());
    EXPECT_EQ(rowsOf(1), QStringList({"2 b", "4 d"}));
}

TEST_F(ChildRowsTest, ZeroStandsForNone)
{
    open(databaseBytes({"CREATE TABLE t (id INTEGER PRIMARY KEY, parent, a)",
                           "INSERT INTO t VALUES (1, NULL, 'a'), (2, 0, 'b'), (3, 2, 'c')"})
             .file);
    EXPECT_EQ(rowsOf(0), QStringList({"1 a", "2 b"}));
}

TEST_F(ChildRowsTest, AnyDamagedPageCostsItsOwnRowsOnly)
{
    QStringList statements{"CREATE TABLE t (id INTEGER PRIMARY KEY, parent INTEGER, a)",
        "CREATE INDEX i ON t (parent)"};
    for (int i = 1; i <= 2000; ++i) {
        statements.append(
            QString("INSERT INTO t VALUES (%1, %2, '%3')").arg(i).arg(1 + i % 2).arg(i, 40));
    }
    const QByteArray whole = databaseBytes(statements).file;
    const int pages = whole.size() / 4096;
    for (int page = 3; page < pages; ++page) { // behind the roots of table and index
        SCOPED_TRACE(page);
        QByteArray bytes = whole;
        bytes.replace(page * 4096, 4096, QByteArray(4096, '\xFF'));
        m_rows.reset();
        m_reader.reset();
        open(bytes);
        QStringList rows = rowsOf(1);
        EXPECT_GT(rows.size(), 900);
        EXPECT_EQ(rows.removeDuplicates(), 0);
        EXPECT_LE(m_notices.sentences().size(), 1);
    }
}

} // namespace
