// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRAbstractItem.h"

#include <QDateTime>
#include <QList>

#include <memory>
#include <vector>

/// Kinds of a chat message. Other numbers occur and are plain text.
enum class MsgType : int {
    Text = 0,
    Picture = 1,
    Video = 2,
    Audio = 3,
    ContactCard = 4,
    Location = 5,
    GroupEvent = 6,
    Other = 7,
    Document = 8,
};

struct ChatMessage {
    bool checked = true;
    int type = 0; ///< a `MsgType`
    bool fromMe = false;
    bool sentDone = true;
    QDateTime date;
    QString content;
    QString member;         ///< the sender's name inside a group
    QString media;          ///< path or address of the media file
    bool thumbData = false; ///< the media is stored in the form of a thumbnail
    bool broadcast = false;
    bool drawLike = false;
    int likeType = 0;
    int likeCount = 0;
};

/// One message of a chat application.
class DATAEXPORT_EXPORT PRWhatsappMsg {
public:
    explicit PRWhatsappMsg(ChatMessage message = {}) : m_message(std::move(message)) {}

    bool isChecked() const { return m_message.checked; }
    MsgType type() const { return static_cast<MsgType>(m_message.type); }
    bool isFromMe() const { return m_message.fromMe; }
    bool isSentDone() const { return m_message.sentDone; }
    const QDateTime& msgDate() const { return m_message.date; }
    const QString& content() const { return m_message.content; }
    const QString& member() const { return m_message.member; }
    const QString& media() const { return m_message.media; }
    /// Replaces the address by the path of a downloaded file, for good.
    void setMedia(const QString& path) { m_message.media = path; }
    bool isReadThumbFileData() const { return m_message.thumbData; }
    bool isBroadcast() const { return m_message.broadcast; }
    bool isDrawLike() const { return m_message.drawLike; }
    int getLikeType() const { return m_message.likeType; }
    int getLikeCount() const { return m_message.likeCount; }
    const ChatMessage& contents() const { return m_message; }

private:
    ChatMessage m_message;
};

/// The messages of one chat, in output order.
class DATAEXPORT_EXPORT PRWhatsappChat {
public:
    explicit PRWhatsappChat(std::vector<PRWhatsappMsg> messages = {});
    PRWhatsappChat(const PRWhatsappChat&) = delete;
    PRWhatsappChat& operator=(const PRWhatsappChat&) = delete;
    ~PRWhatsappChat();

    const QList<PRWhatsappMsg*>& messages() const { return m_messages; }
    const std::vector<PRWhatsappMsg>& contents() const { return m_ownedMessages; }

private:
    std::vector<PRWhatsappMsg> m_ownedMessages;
    QList<PRWhatsappMsg*> m_messages; // into m_ownedMessages
};

/// One chat; `value(0)` to `value(2)` are title, name and phone text.
class DATAEXPORT_EXPORT PRWhatsappItem : public PRAbstractItem {
public:
    explicit PRWhatsappItem(Record record = {}, std::vector<PRWhatsappMsg> messages = {});
    ~PRWhatsappItem() override;

    /// Never null. For data type 14 the messages must stay valid for the whole export, since their
    /// media may be fetched between two rounds.
    virtual const PRWhatsappChat* detailContent() const { return &m_chat; }

private:
    PRWhatsappChat m_chat;
};
