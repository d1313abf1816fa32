// SPDX-License-Identifier: MIT
#include "backup/readers/keyed_rows.h"
#include "support/backup_builder.h"

#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <vector>

namespace {

/// A table of rows of 500 bytes, eight to a page, of which some pages are overwritten.
class KeyedRowsTest : public testing::Test {
protected:
    static constexpr int kRows = 2000;
    static constexpr int kPage = 4096;

    static QByteArray table()
    {
        QStringList statements{"CREATE TABLE t (id INTEGER PRIMARY KEY, a)"};
        for (int id = 1; id <= kRows; ++id) {
            statements.append(
                QString("INSERT INTO t VALUES (%1, '<%1>%2')").arg(id).arg(QString(500, 'x')));
        }
        return databaseBytes(statements).file;
    }

    // The table without the pages of these rows.
    static QByteArray without(const std::vector<int>& rowsOfPages)
    {
        QByteArray bytes = table();
        for (const int row : rowsOfPages) {
            const int place = bytes.indexOf("<" + QByteArray::number(row) + ">");
            EXPECT_GT(place, 0);
            bytes.replace(place / kPage * kPage, kPage, QByteArray(kPage, '\xFF'));
        }
        return bytes;
    }

    // The keys that are read.
    QList<qint64> keys(const QByteArray& bytes, const QString& condition = QString())
    {
        const QString path = m_directory.filePath("x.db");
        writeFile(path, bytes);
        const auto database = formats::Database::open(path, formats::OpenMode::Immutable);
        EXPECT_TRUE(database.has_value());
        QList<qint64> found;
        m_isWhole = backup::readByKey(*database,
            {.select = "SELECT a, id FROM t", .condition = condition, .key = "id", .keyColumn = 1},
            [&](const formats::Statement& row) { found.append(row.integer(1)); });
        return found;
    }

    QTemporaryDir m_directory;
    bool m_isWhole = false;
};

TEST_F(KeyedRowsTest, RowsThatFulfilTheConditionComeInOrder)
{
    EXPECT_EQ(keys(table(), "id < 3 OR id = 1000"), QList<qint64>({1, 2, 1000}));
    EXPECT_TRUE(m_isWhole);
}

TEST_F(KeyedRowsTest, DamagedPagesLoseOnlyTheirOwnRows)
{
    struct Row {
        const char* what = nullptr;
        std::vector<int> damaged;
    };
    const std::vector<Row> cases{{"far apart", {100, 1000, 1900}}, {"first and last", {1, kRows}},
        {"first", {1, 500}}, {"last", {1500, kRows}},
        {"a run of pages", {700, 708, 716, 724, 732, 740, 1200}}};
    for (const Row& each : cases) {
        SCOPED_TRACE(each.what);
        const QList<qint64> read = keys(without(each.damaged));
        EXPECT_FALSE(m_isWhole);
        EXPECT_EQ(QSet<qint64>(read.begin(), read.end()).size(), read.size());
        EXPECT_GE(read.size(), kRows - 8 * static_cast<int>(each.damaged.size()));
        for (const int row : each.damaged) {
            EXPECT_FALSE(read.contains(row));
        }
    }
}

TEST_F(KeyedRowsTest, ConditionHoldsBetweenDamagedPages)
{
    const QList<qint64> read = keys(without({100, 1000, 1900}), "id % 2 = 0 OR id = 501");
    EXPECT_TRUE(read.contains(500));
    EXPECT_TRUE(read.contains(501));
    EXPECT_FALSE(read.contains(503));
    EXPECT_GE(read.size(), kRows / 2 - 3 * 4);
}

TEST_F(KeyedRowsTest, TableWithoutAnyReadableRowEndsSoon)
{
    QByteArray bytes = table();
    bytes.replace(kPage, bytes.size() - kPage, QByteArray(bytes.size() - kPage, '\xFF'));
    EXPECT_EQ(keys(bytes), QList<qint64>());
    EXPECT_FALSE(m_isWhole);
}

} // namespace
