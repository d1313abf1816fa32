// SPDX-License-Identifier: MIT
#include "model/PRSafariBookmarkItem.h"

#include <gtest/gtest.h>

TEST(PRSafariBookmarkItem, HasTextsAndAGroup)
{
    const PRSafariBookmarkItem item({.values = {"Title", "http://h/", "label"}}, "Reading List");
    EXPECT_EQ(item.value(0), "Title");
    EXPECT_EQ(item.value(1), "http://h/");
    EXPECT_EQ(item.value(2), "label");
    EXPECT_EQ(item.bookmarkGroup(), "Reading List");
    EXPECT_EQ(PRSafariBookmarkItem().bookmarkGroup(), "");
}
