// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <vector>

namespace sample {

/// One conversation of conversations.json.
struct Conversation {
    QJsonObject source;
    QString service;  ///< "iMessage" or "SMS"
    QStringList with; ///< addresses of all but the owner
    bool group = false;
    QString identifier; ///< the address, or "chat" and a number
    QString guid;
};

/// One message of conversations.json.
struct Message {
    QJsonObject source;
    const Conversation* conversation = nullptr; ///< null for one that lies in none
    qint64 seconds = 0;                         ///< since 2001
    qint64 rowId = 0;                           ///< by the order of dates, as on a phone
    QString service;
    QString guid;
    QString sender;       ///< address; empty for the owner
    QString previousGuid; ///< of the message before it in its conversation

    bool fromMe() const { return sender.isEmpty(); }
    bool has(const char* key) const { return source.contains(QLatin1String(key)); }
    QString value(const char* key) const { return source[QLatin1String(key)].toString(); }
};

/// What conversations.json holds, with all references resolved.
class Conversations {
public:
    explicit Conversations(const QJsonObject& source);

    const QJsonObject& source() const { return m_source; }
    const std::vector<Conversation>& conversations() const { return m_conversations; }
    /// By date.
    const std::vector<Message>& messages() const { return m_messages; }
    /// The message whose "id" is `id`.
    const Message& message(const QString& id) const;

private:
    void addConversation(const QJsonObject& source);
    void addMessages(const Conversation* conversation, const QJsonObject& source);
    void order();

    QJsonObject m_source;
    std::vector<Conversation> m_conversations;
    std::vector<Message> m_messages;
};

} // namespace sample
