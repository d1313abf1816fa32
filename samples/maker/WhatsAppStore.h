// SPDX-License-Identifier: MIT
#pragma once

#include "BackupWriter.h"
#include "Database.h"

#include <QHash>
#include <QJsonObject>

namespace sample {

/// Makes the chats of one account of WhatsApp, its contacts, and its files from whatsapp.json.
class WhatsAppStore {
public:
    /// `media` is the directory of files that are not drawn.
    WhatsAppStore(Database& chats, Database& contacts, BackupWriter& backup, QString media);

    /// `people` are those of all accounts.
    void write(const QJsonObject& account, const QJsonValue& people);

private:
    struct Person {
        QString address;
        QString hidden; // the address that stands for a number which is not shown
        QString name;   // in the contacts
    };
    struct Chat {
        qint64 row = 0;
        QString address;
        bool isGroup = false;
        QHash<QString, qint64> members;
    };
    void writePerson(const QJsonObject& source);
    void writeChat(const QJsonObject& source);
    void writeMember(const QString& key, bool isActive, Chat& chat);
    void writeMessage(const QJsonObject& source, const Chat& chat);
    qint64 writeMedia(const QJsonObject& source, const Chat& chat, qint64 message);
    QByteArray receipts(const QJsonObject& source) const;
    QByteArray metadata(const QJsonObject& source) const;
    QString addFile(const QString& file, const QString& owner, const QString& at,
        const QString& ending = QString());
    QString text(const QJsonObject& source) const;

    Database& m_chats;
    Database& m_contacts;
    BackupWriter& m_backup;
    QString m_media;
    QString m_domain;
    QHash<QString, Person> m_people;    // by the names in the source
    QHash<QString, QString> m_answered; // address of who sent a message, by its name
    qint64 m_messages = 0;
};

} // namespace sample
