// SPDX-License-Identifier: MIT
#include "backup/readers/PackedRows.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace {

using backup::PackedRows;

QStringList rowsOf(PackedRows& packed, std::size_t chat)
{
    QStringList found;
    const bool isRead = packed.read(chat, [&](std::string_view row) {
        found.append(QString::fromLatin1(row.data(), static_cast<int>(row.size())));
    });
    EXPECT_TRUE(isRead);
    return found;
}

// Rows "0", "1", ... to the chats in turn, those of each chat "<its number>-<row>".
void fill(PackedRows& packed, std::size_t chats, int rows)
{
    for (int row = 0; row < rows; ++row) {
        const std::size_t chat = static_cast<std::size_t>(row) % chats;
        packed.add(chat, std::to_string(chat) + "-" + std::to_string(row));
    }
}

TEST(PackedRows, GivesTheRowsOfEachChatInTheirOrder)
{
    for (const std::size_t batchRows : {100U, 4U, 1U}) {
        SCOPED_TRACE(batchRows);
        PackedRows packed({2, 2, 1}, batchRows);
        fill(packed, 3, 5);
        ASSERT_TRUE(packed.finish());
        EXPECT_EQ(rowsOf(packed, 0), QStringList({"0-0", "0-3"}));
        EXPECT_EQ(rowsOf(packed, 2), QStringList("2-2"));
        EXPECT_EQ(rowsOf(packed, 1), QStringList({"1-1", "1-4"}));
        EXPECT_EQ(rowsOf(packed, 0), QStringList({"0-0", "0-3"})) << "once more";
    }
}

TEST(PackedRows, HoldsRowsOfAnySize)
{
    const std::string large(700'000, 'x'); // more than is written at once
    PackedRows packed({2, 1}, 1);
    packed.add(0, large);
    packed.add(1, "");
    packed.add(0, "y");
    ASSERT_TRUE(packed.finish());
    const QStringList rows = rowsOf(packed, 0);
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows[0].size(), 700'000);
    EXPECT_EQ(rows[1], "y");
    EXPECT_EQ(rowsOf(packed, 1), QStringList(""));
}

TEST(PackedRows, ChatsMayHaveFewerRowsThanWereTold)
{
    PackedRows packed({5, 0, 5}, 5);
    ASSERT_TRUE(packed.finish());
    EXPECT_EQ(rowsOf(packed, 0), QStringList());
    EXPECT_EQ(rowsOf(packed, 1), QStringList());
    EXPECT_EQ(rowsOf(packed, 2), QStringList());
}

} // namespace
