// SPDX-License-Identifier: MIT
// {"kind": "chatContact", "name": "Hikers", "room": true, "headImage": "hikers.jpg",
//  "members": [
//   {"name": "Ben", "alias": "ben", "wxId": "wx_ben"}
// ]}
#include "model/PRWeichatContactItem.h"
#include "recordset/Kind.h"

namespace recordset {

namespace {

using Contact = PRWeiChatContact::Content;
using RoomMember = PRWeiChatContact::MemberContact;

constexpr std::array kMemberFields{
    text<&RoomMember::alias>("alias"),
    text<&RoomMember::name>("name"),
    text<&RoomMember::nameId>("nameId"),
    text<&RoomMember::wxId>("wxId"),
};

constexpr std::array kFields{
    text<&Contact::name>("name"),
    text<&Contact::nickName>("nickName"),
    text<&Contact::wxNameId>("wxNameId"),
    text<&Contact::nameID>("nameID"),
    text<&Contact::country>("country"),
    text<&Contact::city>("city"),
    text<&Contact::sign>("sign"),
    textList<&Contact::phones>("phones"),
    flag<&Contact::room>("room"),
    path<&Contact::headImage>("headImage"),
    list<&Contact::members, kMemberFields>("members"),
};

const Contact& contentsOf(PRWeichatContactItem& item)
{
    return item.detailContent()->contents();
}

} // namespace

constinit const Kind kChatContactKind =
    kindOf<kFields, makeItem<PRWeichatContactItem, Contact>, contentsOf>("chatContact");

} // namespace recordset
