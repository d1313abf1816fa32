// SPDX-License-Identifier: MIT
#include "cli/Table.h"

#include <gtest/gtest.h>

TEST(Table, MakesEachColumnAsWideAsItsWidestCell)
{
    Table table({Align::Right, Align::Left, Align::Right});
    table.addRow({"No.", "Category", "Records"});
    table.addRow({"0", "Messages", "12"});
    const QStringList expected{"No.  Category  Records", "  0  Messages       12"};
    EXPECT_EQ(table.lines(), expected);
}

TEST(Table, LeavesNoBlanksAtTheEndOfALine)
{
    Table table({Align::Left, Align::Left});
    table.addRow({"a", "long"});
    table.addRow({"b", "x"});
    const QStringList expected{"a  long", "b  x"};
    EXPECT_EQ(table.lines(), expected);
}
