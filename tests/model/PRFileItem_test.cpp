// SPDX-License-Identifier: MIT
#include "model/PRFileItem.h"

#include <gtest/gtest.h>

TEST(PRFileItem, HasWhatItIsFilledWith)
{
    PRFileItem item({.values = {"a.jpg"}}, {.data = "bytes",
                                               .path = "http://h/a",
                                               .thumbFile = "/t/thumb",
                                               .thumbnail = "/t/small",
                                               .thumbToMedia = true,
                                               .detailDate = "2024-05-01 12:00:00"});
    EXPECT_EQ(item.value(0), "a.jpg");
    EXPECT_EQ(item.fileData(), "bytes");
    EXPECT_EQ(item.filePath(), "http://h/a");
    EXPECT_EQ(item.thumbFilePath(), "/t/thumb");
    EXPECT_EQ(item.thumbnail(), "/t/small");
    EXPECT_TRUE(item.isThumbToMedia());
    EXPECT_EQ(item.getDetailInfoDateTime(), "2024-05-01 12:00:00");
}

TEST(PRFileItem, IsEmptyByDefault)
{
    PRFileItem item;
    EXPECT_TRUE(item.fileData().isEmpty());
    EXPECT_EQ(item.filePath(), "");
    EXPECT_EQ(item.thumbFilePath(), "");
    EXPECT_EQ(item.thumbnail(), "");
    EXPECT_FALSE(item.isThumbToMedia());
    EXPECT_EQ(item.getDetailInfoDateTime(), "");
}

TEST(PRFileItem, KeepsTheLocalPathOnceItIsSet)
{
    PRFileItem item({}, {.path = "http://h/a"});
    item.setFilePath("/downloads/a.jpg");
    EXPECT_EQ(item.filePath(), "/downloads/a.jpg");
    item.setFilePath("/downloads/b.jpg");
    EXPECT_EQ(item.filePath(), "/downloads/b.jpg");
}
