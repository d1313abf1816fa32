// SPDX-License-Identifier: MIT
#include "model/PRWhatsappItem.h"

PRWhatsappChat::PRWhatsappChat(std::vector<PRWhatsappMsg> messages)
    : m_ownedMessages(std::move(messages))
{
    m_messages.reserve(static_cast<int>(m_ownedMessages.size()));
    for (PRWhatsappMsg& message : m_ownedMessages) {
        m_messages.append(&message);
    }
}

PRWhatsappChat::~PRWhatsappChat() = default;

PRWhatsappItem::PRWhatsappItem(Record record, std::vector<PRWhatsappMsg> messages)
    : PRAbstractItem(std::move(record)), m_chat(std::move(messages))
{
}

PRWhatsappItem::~PRWhatsappItem() = default;
