// SPDX-License-Identifier: MIT
#include "model/PRWeichatContactItem.h"

PRWeiChatContact::PRWeiChatContact() = default;

PRWeiChatContact::PRWeiChatContact(Content content) : m_content(std::move(content))
{
}

PRWeichatContactItem::PRWeichatContactItem(Record record, PRWeiChatContact::Content content)
    : PRAbstractItem(std::move(record)), m_contact(std::move(content))
{
}

PRWeichatContactItem::~PRWeichatContactItem() = default;
