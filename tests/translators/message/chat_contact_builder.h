// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRWeichatContactItem.h"

#include <memory>
#include <utility>

using ChatContact = PRWeiChatContact::Content;
using Member = PRWeiChatContact::MemberContact;

/// A record of the contact.
inline std::unique_ptr<PRWeichatContactItem> chatContact(
    ChatContact content, int flags = 0, bool selected = true)
{
    return std::make_unique<PRWeichatContactItem>(
        Record{.values = {"not shown"}, .flags = flags, .selected = selected}, std::move(content));
}

/// One with a text in each place.
inline ChatContact mia()
{
    return {.name = "Mia",
        .nickName = "mimi",
        .wxNameId = "mia.huber",
        .nameID = "wxid_1",
        .country = "Germany",
        .city = "Kiel",
        .sign = "At sea",
        .phones = {"+49 1", "+49 2"}};
}
