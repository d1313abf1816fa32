// SPDX-License-Identifier: MIT
#include "platform/OvProductInfo.h"

#include <gtest/gtest.h>

TEST(OvProductInfo, IsOneObjectWithTheDefaultBrand)
{
    EXPECT_EQ(OvProductInfo::instance(), OvProductInfo::instance());
    EXPECT_EQ(OvProductInfo::instance()->brand(), "default");
}
