// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRAbstractItem.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QMap>

#include <memory>
#include <vector>

/// Turns a path on the device into one on this computer. Outlives the records that hold it.
class DATAEXPORT_EXPORT PathResolver {
public:
    PathResolver() = default;
    PathResolver(const PathResolver&) = delete;
    PathResolver& operator=(const PathResolver&) = delete;
    virtual ~PathResolver();

    /// Empty where the file is not there.
    virtual QString resolve(const QString& devicePath) const = 0;
};

struct SmsPiece {
    QString type;          ///< "text/plain", or a type that holds "image", "video" or "audio"
    bool location = false; ///< a place on a map, sent as a small text file
    QByteArray data;       ///< UTF-8 text, or the bytes of a picture
    QString path;          ///< the file
    /// Where given, `path` is one on the device, looked up when it is first asked for.
    const PathResolver* resolver = nullptr;
    QString preview; ///< a picture of it
    QString info;    ///< its name for people
};

/// One attachment of a message, or one part of its text.
class DATAEXPORT_EXPORT PRSMSPiece {
public:
    explicit PRSMSPiece(SmsPiece piece = {}) : m_piece(std::move(piece)) {}

    const QString& pieceType() const { return m_piece.type; }
    bool isLocation() const { return m_piece.location; }
    const QByteArray& pieceData() const { return m_piece.data; }
    const QString& pieceLocation() const;
    const QString& piecePreviewFile() const { return m_piece.preview; }
    const QString& pieceInfo() const { return m_piece.info; }
    /// All of it, with the path looked up.
    const SmsPiece& contents() const;

private:
    mutable SmsPiece m_piece;
};

struct SmsMessage {
    bool checked = true;
    bool fromMe = false;
    bool sentDone = true;
    bool normalSMS = true; ///< false: iMessage
    QDateTime date;
    int itemType = 0; ///< 0 has content; any other number is an event line
    QString event;    ///< ready text of an event line
    QString subject;
    QString content;
    QString addr; ///< the sender's address
    std::vector<PRSMSPiece> pieces;
};

/// One message of a conversation.
class DATAEXPORT_EXPORT PRSMSChat {
public:
    explicit PRSMSChat(SmsMessage message = {});
    PRSMSChat(const PRSMSChat& other);
    PRSMSChat(PRSMSChat&&) noexcept = default;
    PRSMSChat& operator=(const PRSMSChat&) = delete;
    PRSMSChat& operator=(PRSMSChat&&) noexcept = default;
    ~PRSMSChat();

    bool isChecked() const { return m_message.checked; }
    bool isFromMe() const { return m_message.fromMe; }
    /// False when sending did not complete.
    bool isSentDone() const { return m_message.sentDone; }
    bool isNormalSMS() const { return m_message.normalSMS; }
    QDateTime msgDate() const { return m_message.date; }
    int itemType() const { return m_message.itemType; }
    /// Ready text of an event line; the reader has already put the names in.
    QString msgForEvent(const QMap<QString, QString>& addrIds) const;
    const QString& subject() const { return m_message.subject; }
    const QString& content() const { return m_message.content; }
    const QString& addr() const { return m_message.addr; }
    const QList<PRSMSPiece*>& pieces() const { return m_pieces; }
    const SmsMessage& contents() const { return m_message; }

private:
    SmsMessage m_message;
    QList<PRSMSPiece*> m_pieces; // into m_message
};

struct SmsConversation {
    QMap<QString, QString> addrIds; ///< sender's address to the name to show
    std::vector<PRSMSChat> chats;
};

/// The messages of one conversation, in output order.
class DATAEXPORT_EXPORT PRSMSChatGroup {
public:
    explicit PRSMSChatGroup(SmsConversation conversation = {});
    PRSMSChatGroup(const PRSMSChatGroup&) = delete;
    PRSMSChatGroup& operator=(const PRSMSChatGroup&) = delete;
    ~PRSMSChatGroup();

    const QList<PRSMSChat*>& chats() const { return m_chats; }
    const QMap<QString, QString>& addrIds() const { return m_conversation.addrIds; }
    const SmsConversation& contents() const { return m_conversation; }

private:
    SmsConversation m_conversation;
    QList<PRSMSChat*> m_chats; // into m_conversation
};

/// One conversation; `value(0)` to `value(2)` are name, phone and email.
class DATAEXPORT_EXPORT PRSMSItem : public PRAbstractItem {
public:
    explicit PRSMSItem(Record record = {}, SmsConversation conversation = {});
    ~PRSMSItem() override;

    /// Never null. A reader of a large store overrides it to load the conversation when it is asked
    /// for; the result then holds until the next conversation of the same store is asked for.
    virtual const PRSMSChatGroup* detailContent() const { return m_conversation.get(); }

private:
    std::unique_ptr<PRSMSChatGroup> m_conversation;
};
