// SPDX-License-Identifier: MIT
#pragma once

#include "BackupWriter.h"
#include "Conversations.h"
#include "Database.h"

#include <QHash>

namespace sample {

/// Makes the phone's store of messages from conversations.json.
class MessageStore {
public:
    /// Files of messages go into `backup` and are looked up in the folder `mediaFolder`.
    MessageStore(
        const Conversations& source, Database& database, BackupWriter& backup, QString mediaFolder);

    void write();

private:
    qint64 handle(const QString& address, const QString& service);
    void writeConversation(const Conversation& conversation);
    void writeMessage(const Message& message);
    void writeFiles(const Message& message);
    void placeMessage(const Message& message);
    void writeRemovedPart(const Message& message, qint64 chat);
    void erase();

    void addSender(Database::Row& row, const Message& message);
    void addText(Database::Row& row, const Message& message) const;
    void addState(Database::Row& row, const Message& message) const;
    void addEvent(Database::Row& row, const Message& message);
    void addReference(Database::Row& row, const Message& message) const;
    void addChanges(Database::Row& row, const Message& message) const;

    const Conversations& m_source;
    Database& m_database;
    BackupWriter& m_backup;
    QString m_mediaFolder;
    QString m_ownPhone;
    QString m_ownMail;
    QHash<QString, qint64> m_handles; // by service and address
    QHash<const Conversation*, qint64> m_chats;
};

} // namespace sample
