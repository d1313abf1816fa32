// SPDX-License-Identifier: MIT
#include "model/PRAbstractItem.h"

#include <QString>
#include <QVariant>

#include <gtest/gtest.h>

#include <set>

TEST(PRAbstractItem, ReadsItsColumnsAndNothingBesideThem)
{
    const PRAbstractItem item({.values = {"name", "", "third"}});
    EXPECT_EQ(item.value(0), "name");
    EXPECT_EQ(item.value(1), "");
    EXPECT_EQ(item.value(2), "third");
    EXPECT_EQ(item.value(3), "");
    EXPECT_EQ(item.value(-1), "");
    EXPECT_EQ(item.sortValue(2), QVariant(QString("third")));
    EXPECT_EQ(item.sortValue(3).toString(), "");
}

TEST(PRAbstractItem, HasTheFlagsOneTwoEightAndSixteen)
{
    struct Row {
        int flags;
        std::set<int> set;
    };
    const Row rows[] = {
        {0, {}},
        {Deleted, {1}},
        {InCalendarRange, {2}},
        {Locked, {8}},
        {PartlySelected, {16}},
        {Deleted | Locked, {1, 8}},
        {Deleted | InCalendarRange | Locked | PartlySelected, {1, 2, 8, 16}},
        {-1, {1, 2, 8, 16}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.flags);
        const PRAbstractItem item({.flags = row.flags});
        for (int number = -2; number <= 64; ++number) {
            EXPECT_EQ(item.flag(number), row.set.contains(number)) << number;
        }
    }
}

TEST(PRAbstractItem, NumbersOfTheFlagsAreFixed)
{
    EXPECT_EQ(Deleted, 1);
    EXPECT_EQ(InCalendarRange, 2);
    EXPECT_EQ(Locked, 8);
    EXPECT_EQ(PartlySelected, 16);
}

TEST(PRAbstractItem, HasAParentOnlyWhereOneIsNamed)
{
    PRAbstractItem alone;
    EXPECT_EQ(alone.parentItem(), nullptr);

    PRAbstractItem file({.values = {"a.jpg"}, .parent = "Album"});
    ASSERT_NE(file.parentItem(), nullptr);
    EXPECT_EQ(file.parentItem()->value(0), "Album");
    EXPECT_EQ(file.parentItem()->parentItem(), nullptr);
    EXPECT_EQ(file.parentItem(), file.parentItem());

    PRAbstractItem unnamed({.parent = ""});
    ASSERT_NE(unnamed.parentItem(), nullptr);
    EXPECT_EQ(unnamed.parentItem()->value(0), "");
}

TEST(PRAbstractItem, IsSelectedUntilTheUserSaysOtherwise)
{
    PRAbstractItem item;
    EXPECT_TRUE(item.isSelected());
    item.setSelected(false);
    EXPECT_FALSE(item.isSelected());
    EXPECT_FALSE(PRAbstractItem({.selected = false}).isSelected());
}
