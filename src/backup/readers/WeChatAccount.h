// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/ChatApp.h"
#include "backup/readers/LazyData.h"
#include "backup/readers/WeChatContacts.h"
#include "backup/readers/WeChatMedia.h"
#include "backup/readers/wechat_contact.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <optional>
#include <set>
#include <vector>

namespace backup {

/// One account of WeChat: its chats, which lie in several databases, and its contacts.
class WeChatAccount final : public ChatApp {
public:
    /// `directory` is that of the account on the device: "Documents/" and the hash of its user
    /// name. `files` and `notices` outlive the account.
    WeChatAccount(QString directory, const FileLocator& files, Notices& notices);
    ~WeChatAccount() override;

    /// Whether a database has tables of chats.
    static bool isMessages(const formats::Database& database);

    const QString& directory() const { return m_directory; }

    /// One more database, of messages or of contacts, before anything is asked for.
    void add(NamedDatabase database);

    std::vector<ChatSummary> chats() override;
    std::vector<PRWhatsappMsg> messages(const ChatSummary& chat) override;
    std::vector<ChatFile> files() override;

    /// People and rooms.
    RecordList contacts();

private:
    /// A chat: tables of one name in one or more of the databases.
    struct Chat {
        QString hash;                       ///< of the user name of the other person or room
        QString table;                      ///< empty for a chat that is gone
        std::vector<std::size_t> databases; ///< that have such a table
        QString user;                       ///< empty where nobody with this hash is known
        QDateTime lastDate;
    };
    struct StoredMessage;
    /// A chat as the list of chats has it.
    struct Session {
        QString user;
        QDateTime lastDate;
    };

    void load();
    void readLoginInfo();
    std::optional<NamedDatabase> openBeside(const QString& path) const;
    void findChats();
    void addTable(const QString& table, std::size_t database, QHash<QString, std::size_t>& known);
    std::optional<QDateTime> lastDateIn(std::size_t database, const QString& table) const;
    std::vector<Session> readSessions() const;
    void addDeletedChats(const std::vector<Session>& sessions);
    QString titleOf(const Chat& chat) const;
    StoredMessage storedMessage(const Chat& chat, const formats::Statement& row) const;
    std::vector<StoredMessage> storedMessages(const Chat& chat) const;
    ChatMessage shownMessage(
        const Chat& chat, const WeChatChatFiles& files, const StoredMessage& stored) const;
    ChatFile listedFile(const WeChatFile& file, const QString& name, const QString& title) const;
    void addFilesOfMessages(const Chat& chat, const WeChatChatFiles& files,
        std::set<WeChatChatFiles::Place>& taken, std::vector<ChatFile>& listed) const;
    void addOtherFiles(const WeChatChatFiles& files, const std::set<WeChatChatFiles::Place>& taken,
        const QString& title, std::vector<ChatFile>& listed) const;

    QString m_directory;
    const FileLocator& m_files;
    Notices& m_notices;
    WeChatMedia m_media;
    std::vector<NamedDatabase> m_messages;
    WeChatContacts m_contacts;
    bool m_isLoaded = false;
    WeChatPeople m_people;
    std::vector<Chat> m_chats;
};

} // namespace backup
