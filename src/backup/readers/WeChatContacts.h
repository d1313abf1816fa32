// SPDX-License-Identifier: MIT
#pragma once

#include "backup/container/FileLocator.h"
#include "backup/readers/LazyData.h"
#include "backup/readers/wechat_contact.h"
#include "model/PRWeichatContactItem.h"

#include <QSet>
#include <QString>

#include <functional>
#include <vector>

namespace backup {

class TableReader;

/// The contact databases of one account of WeChat.
class WeChatContacts {
public:
    /// `notices` outlives the object.
    explicit WeChatContacts(Notices& notices) : m_notices(notices) {}

    static bool isContacts(const formats::Database& database);

    void add(NamedDatabase database) { m_databases.push_back(std::move(database)); }
    bool isEmpty() const { return m_databases.empty(); }

    /// The names of all people and rooms that the databases know.
    void readNames(WeChatPeople& people) const;

    /// What the records of contacts are made with.
    struct Listing {
        const WeChatPeople& people;
        const QSet<QString>& chatPartners; ///< user names
        QString pictures;                  ///< the directory of head images in the group's domain
        const FileLocator& files;
    };
    /// A record for each person of the owner's list, for whom there is a chat with, and for each
    /// room, by name and rooms last. Where nobody is marked as of that list, everybody is.
    RecordList records(const Listing& listing) const;

private:
    using Contents = std::vector<PRWeiChatContact::Content>;
    static void readTable(const TableReader& reader, const QString& table, const Listing& listing,
        Contents& contents);
    void forEachTable(const std::function<void(const TableReader&, QLatin1String)>& read) const;

    Notices& m_notices;
    std::vector<NamedDatabase> m_databases;
};

} // namespace backup
