// SPDX-License-Identifier: MIT
#include "model/PRSMSItem.h"

PathResolver::~PathResolver() = default;

const QString& PRSMSPiece::pieceLocation() const
{
    if (m_piece.resolver != nullptr) {
        m_piece.path = m_piece.resolver->resolve(m_piece.path);
        m_piece.resolver = nullptr;
    }
    return m_piece.path;
}

const SmsPiece& PRSMSPiece::contents() const
{
    pieceLocation(); // looks the path up
    return m_piece;
}

PRSMSChat::PRSMSChat(SmsMessage message) : m_message(std::move(message))
{
    m_pieces.reserve(static_cast<int>(m_message.pieces.size()));
    for (PRSMSPiece& piece : m_message.pieces) {
        m_pieces.append(&piece);
    }
}

PRSMSChat::PRSMSChat(const PRSMSChat& other) : PRSMSChat(SmsMessage(other.m_message))
{
}

PRSMSChat::~PRSMSChat() = default;

QString PRSMSChat::msgForEvent(const QMap<QString, QString>& /*addrIds*/) const
{
    return m_message.event;
}

PRSMSChatGroup::PRSMSChatGroup(SmsConversation conversation)
    : m_conversation(std::move(conversation))
{
    m_chats.reserve(static_cast<int>(m_conversation.chats.size()));
    for (PRSMSChat& chat : m_conversation.chats) {
        m_chats.append(&chat);
    }
}

PRSMSChatGroup::~PRSMSChatGroup() = default;

PRSMSItem::PRSMSItem(Record record, SmsConversation conversation)
    : PRAbstractItem(std::move(record)),
      m_conversation(std::make_unique<PRSMSChatGroup>(std::move(conversation)))
{
}

PRSMSItem::~PRSMSItem() = default;
