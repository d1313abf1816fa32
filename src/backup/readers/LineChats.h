// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/ChatMedia.h"
#include "backup/readers/SenderNames.h"
#include "backup/readers/TableChats.h"

#include <functional>
#include <optional>

namespace backup {

/// The chats of one LINE account.
class LineChats final : public TableChats {
public:
    /// Opens the database of groups beside that of messages; none where there is none.
    using OpenGroups = std::function<std::optional<formats::Result<OpenedDatabase>>(
        const QString& domain, const QString& path)>;

    LineChats(ChatDatabase database, SenderNames names, OpenGroups openGroups);

    static bool isOfKind(const formats::Database& database);
    static bool hasMessages(const formats::Database& database);
    static qint64 countRecords(const formats::Database& database);

protected:
    std::vector<StoredChat> readChats() override;
    StoredMessage readMessage(const formats::Statement& row, const StoredChat& chat) override;
    bool canHaveFile(const formats::Statement& row) const override;
    std::vector<ChatFile> leftOverFiles() override;

private:
    struct Person {
        QString shown;
        QString own; ///< as they call themselves
        QString phone;
    };
    struct Group {
        QString name;
        QStringList members; ///< their mids
    };
    void readContacts();
    void readPeople();
    void readGroups();
    void readGroupsBeside();
    void readMembers(QLatin1String entity, const QHash<qint64, QString>& mids);
    StoredChat chatWithPerson(const QString& mid) const;
    StoredChat chatOfGroup(const QString& mid) const;
    QStringList namesOf(const QStringList& mids) const;
    void listMedia();
    QString accountDirectory() const;
    StoredFile fileOf(const QString& key, const QString& name);
    void attachFile(const formats::Statement& row, const StoredChat& chat, StoredMessage& stored);

    SenderNames m_names;
    OpenGroups m_openGroups;
    QHash<QString, Person> m_people; // by mid
    QHash<qint64, QString> m_mids;   // of the rows of people
    QHash<QString, Group> m_groups;  // by mid
    QHash<qint64, QString> m_chatMids;
    QHash<QString, QString> m_titles; // of chats by mid
    ChatMedia m_media;
    ChatMedia m_previews;
    bool m_isMediaListed = false;
};

} // namespace backup
