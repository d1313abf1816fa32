// SPDX-License-Identifier: MIT
#include "WeChatTest.h"

namespace {

const QByteArray kChoir =
    "<RoomData><Member "
    "UserName=\"wxid_b\"><DisplayName>Bass</DisplayName><InviterUserName/></Member>"
    "<Member UserName=\"wxid_a\"/></RoomData>";

TEST_F(WeChatTest, ContactHasTheTextsOfItsBlobs)
{
    addContacts({row({.user = "wxid_a",
        .nick = "Annie",
        .remark = "Ann",
        .alias = "ann_1990",
        .headImage = wireField(2, "http://x/small") + wireField(3, "http://x/large"),
        .profile = QByteArray::fromHex("0802") + wireField(2, "DE") + wireField(3, "Niedersachsen")
                   + wireField(4, "Emden") + wireField(5, "Sing!"),
        .social = wireField(1, "+49 171 5550101") + wireField(2, "no number")
                  + wireField(5, wireField(1, "01715550102"))})});
    openFolder();
    ASSERT_EQ(
        lines(kContacts), QStringList("Ann | \"Annie\" | ann_1990 | wxid_a | Emden Niedersachsen DE"
                                      " | +49 171 5550101;01715550102 | Sing!"));
    const PRWeiChatContact ann = contact(0);
    EXPECT_EQ(ann.name(), "Ann");
    EXPECT_EQ(ann.nickName(), "Annie");
    EXPECT_EQ(ann.wxNameId(), "ann_1990");
    EXPECT_EQ(ann.nameID(), "wxid_a");
    EXPECT_EQ(ann.country(), "DE");
    EXPECT_EQ(ann.city(), "Emden Niedersachsen");
    EXPECT_EQ(ann.sign(), "Sing!");
    EXPECT_EQ(ann.phones(), QStringList({"+49 171 5550101", "01715550102"}));
    EXPECT_EQ(ann.HeadImage(), "http://x/large");
    EXPECT_FALSE(ann.isRoom());
    EXPECT_TRUE(ann.members().isEmpty());
}

TEST_F(WeChatTest, PictureOnThePhoneComesBeforeItsAddress)
{
    addContacts({row({.user = "wxid_a", .headImage = wireField(2, "http://x/small")}),
        row({.user = "wxid_b", .headImage = wireField(2, "http://x/small")}),
        row({.user = "wxid_c", .headImage = wireField(2, "file:///etc/passwd")})});
    builder().add("AppDomainGroup-group.com.tencent.xin",
        "share/" + hash("wxid_owner") + "/session/headImg/" + hash("wxid_a") + ".pic", "picture");
    openFolder();
    QFile picture(contact(0).HeadImage());
    ASSERT_TRUE(picture.open(QIODevice::ReadOnly));
    EXPECT_EQ(picture.readAll(), "picture");
    EXPECT_EQ(contact(1).HeadImage(), "http://x/small");
    EXPECT_EQ(contact(2).HeadImage(), "");
}

TEST_F(WeChatTest, RoomHasItsMembers)
{
    addContacts({row({.user = "wxid_a", .nick = "Annie", .remark = "Ann", .alias = "ann_1990"}),
        row({.user = "7@chatroom",
            .nick = "Choir",
            .room = wireField(1, "wxid_a;wxid_b;wxid_c") + wireField(6, kChoir)})});
    openFolder();
    ASSERT_EQ(column(kContacts, 0), QStringList({"Ann", "Choir"})) << "rooms stand last";
    EXPECT_TRUE(contact(1).isRoom());
    QStringList members;
    const QList<PRWeiChatContact::MemberContact> people = contact(1).members();
    for (const auto& member : people) {
        members.append(
            QStringList{member.name, member.alias, member.wxId, member.nameId}.join('/'));
    }
    EXPECT_EQ(
        members, QStringList({"Bass///wxid_b", "Ann/Annie/ann_1990/wxid_a", "wxid_c///wxid_c"}));
}

TEST_F(WeChatTest, ListHasFriendsRoomsAndThoseWithAChat)
{
    addContacts({row({.user = "wxid_a", .nick = "Bit 1"}),
        row({.user = "wxid_b", .nick = "Stranger", .type = 4}),
        row({.user = "wxid_c", .nick = "Chat", .type = 0}),
        row({.user = "wxid_d", .nick = "Blocked", .type = 9}),
        row({.user = "7@chatroom", .nick = "Room", .type = 2})});
    addMessages("MM.sqlite", chat("wxid_c", {{.id = 1, .text = "x"}}));
    openFolder();
    EXPECT_EQ(column(kContacts, 0), QStringList({"Bit 1", "Blocked", "Chat", "Room"}));
}

TEST_F(WeChatTest, EverybodyIsListedWhereNobodyIsMarked)
{
    addContacts({row({.user = "wxid_a", .nick = "a", .type = 0}),
        row({.user = "wxid_b", .nick = "B", .type = 2})});
    openFolder();
    EXPECT_EQ(column(kContacts, 0), QStringList({"a", "B"}));
}

TEST_F(WeChatTest, PeopleAtWorkHaveATableOfTheirOwn)
{
    addContacts({row({.user = "wxid_a", .nick = "Ann"}),
        friendTable().first().replace("TABLE Friend", "TABLE OpenIMContact"),
        row({.user = "5@openim", .nick = "Work"}, "OpenIMContact")});
    openFolder();
    EXPECT_EQ(column(kContacts, 0), QStringList({"Ann", "Work"}));
}

TEST_F(WeChatTest, DamagedBlobsReadAsFarAsTheyGo)
{
    QString damaged = row({.user = "wxid_a"});
    damaged.replace(blob(wireField(1, "") + wireField(2, "") + wireField(3, "")),
        blob(wireField(1, "Ann") + QByteArray::fromHex("1A7F41")));
    addContacts({damaged,
        "INSERT INTO Friend (userName, type, dbContactRemark) VALUES ('wxid_b', 1, 'text'),"
        " ('wxid_c', 1, NULL), (NULL, 1, NULL), ('', 1, NULL)",
        row({.user = "7@chatroom",
            .nick = "Choir",
            .room = wireField(6, "<RoomData><Member Us")})});
    openFolder();
    EXPECT_EQ(column(kContacts, 0), QStringList({"Ann", "wxid_b", "wxid_c", "Choir"}));
    EXPECT_TRUE(contact(3).members().isEmpty());
    EXPECT_EQ(notices("Contact"), QStringList());
}

TEST_F(WeChatTest, NobodyHasThousandsOfNumbers)
{
    QByteArray social;
    for (int number = 0; number < 5000; ++number) {
        social += wireField(2, "+4930" + QByteArray::number(100'000 + number));
    }
    addContacts({row({.user = "wxid_a", .social = social})});
    openFolder();
    const QStringList phones = contact(0).phones();
    EXPECT_GT(phones.size(), 9);
    EXPECT_LT(phones.size(), 100);
}

TEST_F(WeChatTest, OlderTableLacksColumns)
{
    builder().addDatabase(kDomain, account() + "/DB/WCDB_Contact.sqlite",
        {"CREATE TABLE Friend (userName TEXT, dbContactRemark BLOB)",
            "INSERT INTO Friend VALUES ('wxid_a', " + blob(wireField(1, "Ann")) + ")"});
    openFolder();
    EXPECT_EQ(lines(kContacts), QStringList("Ann | \"Ann\" | wxid_a | wxid_a |   |  | "));
}

} // namespace
