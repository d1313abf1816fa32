// SPDX-License-Identifier: MIT
#pragma once

#include "backup/container/opened_database.h"
#include "backup/readers/ChatApp.h"
#include "backup/readers/WhatsAppChatBuilder.h"
#include "backup/readers/WhatsAppFiles.h"
#include "backup/readers/WhatsAppPeople.h"
#include "backup/readers/table_reader.h"
#include "backup/readers/whatsapp_rows.h"

#include <QSet>

#include <optional>

namespace backup {

class Notices;

/// Where an account of WhatsApp keeps its files.
struct WhatsAppPlace {
    QString domain;
    QString name;                          ///< how notices call the database of the chats
    WhatsAppPeople::OpenBeside openBeside; ///< opens another database of the account
};

/// An account of WhatsApp or of WhatsApp Business. People and groups are read with the first list.
class WhatsApp final : public ChatApp {
public:
    /// `files` and `notices` outlive the object.
    WhatsApp(OpenedDatabase database, WhatsAppPlace place, SenderNames names,
        const FileLocator& files, Notices& notices);

    std::vector<ChatSummary> chats() override;
    std::vector<PRWhatsappMsg> messages(const ChatSummary& chat) override;
    std::vector<ChatFile> files() override;

private:
    struct Chat {
        ChatSummary summary;
        WhatsAppChatFacts facts;
        QString address;
    };
    void list();
    void readMembers();
    std::vector<Chat> readSessions();
    Chat chatOf(const formats::Statement& session) const;
    Chat lostChat(qint64 id);
    void describe(Chat& chat, const QString& name, qint64 kind) const;
    QString titleOf(const Chat& chat, const QString& name, qint64 kind) const;
    std::vector<ChatFile> filesOf(const Chat& chat, int& missing);
    std::optional<ChatFile> fileOf(const WhatsAppRow& row, int& missing) const;
    void addLeftOver(const QSet<QString>& taken, std::vector<ChatFile>& found) const;

    OpenedDatabase m_opened;
    WhatsAppPlace m_place;
    SenderNames m_names;
    Notices& m_notices;
    TableReader m_reader;
    WhatsAppFiles m_files;
    WhatsAppRows m_rows;

    std::optional<WhatsAppPeople> m_people; // once they are listed
    WhatsAppMembers m_members;
    QHash<qint64, QStringList> m_memberAddresses; // of those who are still there, by chat
    QHash<qint64, QStringList> m_formerAddresses; // of those who have left
    std::vector<Chat> m_chats;                    // the one with the newest message first
};

} // namespace backup
