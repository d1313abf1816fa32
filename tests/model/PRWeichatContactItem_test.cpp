// SPDX-License-Identifier: MIT
#include "model/PRWeichatContactItem.h"

#include <QStringList>

#include <gtest/gtest.h>

TEST(PRWeichatContactItem, HasWhatItIsFilledWith)
{
    PRWeichatContactItem item({.values = {"Anna"}},
        {.name = "Anna",
            .nickName = "An",
            .wxNameId = "wx",
            .nameID = "id",
            .country = "DE",
            .city = "Bonn",
            .sign = "hello",
            .phones = {"+49 1", "+49 2"},
            .room = true,
            .headImage = "http://h/a",
            .members = {{.alias = "a", .name = "n", .nameId = "i", .wxId = "w"}, {}}});
    EXPECT_EQ(item.value(0), "Anna");
    ASSERT_NE(item.detailContent(), nullptr);
    const PRWeiChatContact& contact = *item.detailContent();
    EXPECT_EQ(contact.name(), "Anna");
    EXPECT_EQ(contact.nickName(), "An");
    EXPECT_EQ(contact.wxNameId(), "wx");
    EXPECT_EQ(contact.nameID(), "id");
    EXPECT_EQ(contact.country(), "DE");
    EXPECT_EQ(contact.city(), "Bonn");
    EXPECT_EQ(contact.sign(), "hello");
    EXPECT_EQ(contact.phones(), QStringList({"+49 1", "+49 2"}));
    EXPECT_TRUE(contact.isRoom());
    EXPECT_EQ(contact.HeadImage(), "http://h/a");
    const QList<PRWeiChatContact::MemberContact> members = contact.members();
    ASSERT_EQ(members.size(), 2);
    EXPECT_EQ(members.at(0).alias, "a");
    EXPECT_EQ(members.at(0).name, "n");
    EXPECT_EQ(members.at(0).nameId, "i");
    EXPECT_EQ(members.at(0).wxId, "w");
    EXPECT_EQ(members.at(1).name, "");
}

TEST(PRWeichatContactItem, IsAPersonWithoutMembersByDefault)
{
    PRWeichatContactItem item;
    EXPECT_FALSE(item.detailContent()->isRoom());
    EXPECT_TRUE(item.detailContent()->members().isEmpty());
    EXPECT_TRUE(item.detailContent()->phones().isEmpty());
    EXPECT_EQ(item.detailContent()->HeadImage(), "");
}
