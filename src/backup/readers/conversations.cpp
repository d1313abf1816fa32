// SPDX-License-Identifier: MIT
// Who talks with whom:
//   chat                           ROWID, style (43 group, 45 one-to-one), chat_identifier,
//   display_name chat_handle_join               chat_id, handle_id chat_message_join chat_id,
//   message_id, message_date chat_recoverable_message_join  chat_id, message_id: recently deleted,
//   gone after 30 to 40 days recoverable_message_part       chat_id, message_id: one part of a
//   message, likewise
#include "backup/readers/conversations.h"

#include "backup/readers/message_rows.h"
#include "platform/literals.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <set>

namespace backup {

namespace {

constexpr int kGroupStyle = 43;

// Marks of writing direction, which stand around names and would show as boxes in other programs.
QString withoutMarks(const QString& name)
{
    QString shown = name;
    shown.remove(QChar(0x200E)).remove(QChar(0x200F)).remove(QChar(0xFEFF));
    for (ushort mark = 0x2066; mark <= 0x2069; ++mark) {
        shown.remove(QChar(mark));
    }
    return shown.trimmed();
}

bool isEmail(const QString& address)
{
    return address.contains(QChar(u'@'));
}

// The newest live message of a chat; none where it has no message.
class NewestMessage {
public:
    explicit NewestMessage(const formats::Database& database)
    {
        const bool dated = database.columns("chat_message_join"_L1).contains("message_date"_L1);
        // The index on chat and date ends the walk at its first row that has a message.
        const QString order =
            dated ? "j.message_date DESC, j.message_id DESC"_L1 : "m.date DESC"_L1;
        auto query = database.prepare(
            "SELECT m.date FROM chat_message_join j JOIN message m ON m.ROWID = j.message_id"
            " WHERE j.chat_id = ? ORDER BY "_L1
            + order + " LIMIT 1"_L1);
        if (query) {
            m_query = std::move(*query);
        }
    }

    bool find(std::int64_t chatId, std::int64_t& date)
    {
        m_query.reset();
        m_query.bind(1, chatId);
        const bool found = m_query.next();
        date = found ? normalizedDate(m_query.integer(0)) : 0;
        return found;
    }

private:
    formats::Statement m_query;
};

// Per chat, messages that a query gives as (chat_id, message_id).
using MessagesByChat = std::map<std::int64_t, std::vector<std::int64_t>>;

MessagesByChat readPairs(const formats::Database& database, const QString& sql)
{
    MessagesByChat messages;
    auto query = database.prepare(sql); // none in a release without the tables
    while (query && query->next()) {
        messages[query->integer(0)].push_back(query->integer(1));
    }
    return messages;
}

// Kept as recently deleted, and not live in the same chat as well.
MessagesByChat readDeleted(const formats::Database& database)
{
    return readPairs(database, "SELECT r.chat_id, r.message_id FROM chat_recoverable_message_join r"
                               " WHERE NOT EXISTS (SELECT 1 FROM chat_message_join j"
                               " WHERE j.chat_id = r.chat_id AND j.message_id = r.message_id)"_L1);
}

// Live, but for single parts.
MessagesByChat readPartlyDeleted(const formats::Database& database)
{
    return readPairs(database,
        "SELECT DISTINCT p.chat_id, p.message_id FROM recoverable_message_part p"
        " WHERE p.message_id NOT IN (SELECT message_id FROM chat_recoverable_message_join)"
        " ORDER BY p.message_id"_L1);
}

qint64 countOf(const formats::Database& database, QLatin1String table)
{
    auto query = database.prepare("SELECT count(*) FROM "_L1 + table);
    return query && query->next() ? query->integer(0) : 0;
}

// Messages of no chat, by sender: ordinary up to iOS 8, later the trace of a broken
// synchronisation.
MessagesByChat readOrphans(const formats::Database& database)
{
    static constexpr std::array kJoins{"chat_message_join"_L1, "chat_recoverable_message_join"_L1};
    const QStringList tables = database.tables();
    qint64 joined = 0;
    QStringList inNoChat{"1"_L1};
    for (const QLatin1String join : kJoins) {
        if (tables.contains(join)) {
            joined += countOf(database, join);
            inNoChat.append(
                "NOT EXISTS (SELECT 1 FROM "_L1 + join + " j WHERE j.message_id = m.ROWID)"_L1);
        }
    }
    if (joined == countOf(database, "message"_L1)) {
        return {}; // as a rule; looking at each message costs a second per four million
    }
    return readPairs(database,
        "SELECT m.handle_id, m.ROWID FROM message m WHERE "_L1 + inNoChat.join(" AND "_L1));
}

std::int64_t newestOf(
    const formats::Database& database, const std::vector<std::int64_t>& messageIds)
{
    std::int64_t newest = 0;
    auto query = database.prepare("SELECT date FROM message WHERE ROWID = ?"_L1);
    for (const std::int64_t id : messageIds) {
        if (query) {
            query->reset();
            query->bind(1, id);
            newest = query->next() ? std::max(newest, normalizedDate(query->integer(0))) : newest;
        }
    }
    return newest;
}

// Chats of one address under several services are one conversation on the phone.
class ConversationList {
public:
    ConversationList(const formats::Database& database, const Handles& handles)
        : m_database(database), m_handles(handles),
          m_members(readPairs(
              database, "SELECT chat_id, handle_id FROM chat_handle_join ORDER BY rowid"_L1))
    {
        readChats();
        addChatsWithoutRow();
        addDeleted();
        addOrphans();
    }

    std::vector<Conversation> take()
    {
        std::erase_if(m_conversations, [](const Conversation& conversation) {
            return conversation.kind == ConversationKind::Chats && conversation.chatIds.empty();
        });
        std::ranges::stable_sort(m_conversations, std::ranges::greater(), &Conversation::lastDate);
        return std::move(m_conversations);
    }

private:
    // The conversation of each chat is described whether or not it has live messages: its deleted
    // ones are listed under the same names.
    void readChats()
    {
        const bool named = m_database.columns("chat"_L1).contains("display_name"_L1);
        auto chats = m_database.prepare("SELECT ROWID, style, chat_identifier, "_L1
                                        + (named ? "display_name"_L1 : "NULL"_L1)
                                        + " FROM chat ORDER BY ROWID"_L1);
        NewestMessage newest(m_database);
        while (chats && chats->next()) {
            const std::int64_t chatId = chats->integer(0);
            const QString identifier = chats->text(2);
            const bool group = chats->integer(1) == kGroupStyle;
            const std::size_t index = group ? addConversation() : oneToOne(identifier);
            Conversation& conversation = m_conversations[index];
            m_indexOfChat[chatId] = index;
            describe(conversation, chatId, group, identifier, withoutMarks(chats->text(3)));
            if (std::int64_t date = 0; newest.find(chatId, date)) {
                conversation.chatIds.push_back(chatId);
                conversation.lastDate = std::max(conversation.lastDate, date);
            }
        }
    }

    // Joins may name chats whose own row is gone; their messages are there all the same.
    void addChatsWithoutRow()
    {
        auto next =
            m_database.prepare("SELECT min(chat_id) FROM chat_message_join WHERE chat_id > ?"_L1);
        NewestMessage newest(m_database);
        std::int64_t chatId = INT64_MIN;
        while (next && next->bind(1, chatId).next() && !next->isNull(0)) {
            chatId = next->integer(0);
            next->reset();
            std::int64_t date = 0;
            if (!m_indexOfChat.contains(chatId) && newest.find(chatId, date)) {
                m_indexOfChat[chatId] = addConversation();
                Conversation& conversation = m_conversations.back();
                const QString title = QCoreApplication::translate("DataExport", "Unknown");
                describe(conversation, chatId, m_members[chatId].size() > 1, QString(), QString());
                conversation.title = conversation.title.isEmpty() ? title : conversation.title;
                conversation.chatIds.push_back(chatId);
                conversation.lastDate = date;
            }
        }
    }

    std::size_t indexOf(std::int64_t chatId)
    {
        const auto known = m_indexOfChat.find(chatId);
        if (known != m_indexOfChat.end()) {
            return known->second;
        }
        m_indexOfChat[chatId] = addConversation();
        m_conversations.back().title = QCoreApplication::translate("DataExport", "Unknown");
        return m_indexOfChat[chatId];
    }

    std::size_t addConversation()
    {
        m_conversations.emplace_back();
        return m_conversations.size() - 1;
    }

    std::size_t oneToOne(const QString& identifier)
    {
        const auto known = m_indexOfAddress.constFind(identifier.toLower());
        if (known != m_indexOfAddress.constEnd()) {
            return *known;
        }
        const std::size_t index = addConversation();
        m_indexOfAddress.insert(identifier.toLower(), index);
        return index;
    }

    void describe(Conversation& conversation, std::int64_t chatId, bool group,
        const QString& identifier, const QString& displayName)
    {
        conversation.group = group;
        std::vector<std::int64_t>& members = conversation.memberIds;
        std::ranges::copy_if(m_members[chatId], std::back_inserter(members),
            [&](std::int64_t id) { return std::ranges::find(members, id) == members.end(); });
        const bool byMembers = group && !members.empty();
        const QStringList addresses = byMembers ? addressesOf(members) : QStringList(identifier);
        conversation.phone = joined(addresses, false);
        conversation.email = joined(addresses, true);
        if (!displayName.isEmpty()) {
            conversation.title = displayName;
        }
        if (conversation.title.isEmpty()) {
            conversation.title = namesOf(members);
        }
        if (conversation.title.isEmpty()) {
            conversation.title = identifier;
        }
    }

    QStringList addressesOf(const std::vector<std::int64_t>& members) const
    {
        QStringList addresses;
        for (const std::int64_t id : members) {
            addresses.append(m_handles.at(id).address);
        }
        addresses.removeDuplicates();
        return addresses;
    }

    QString namesOf(const std::vector<std::int64_t>& members) const
    {
        QStringList names;
        for (const std::int64_t id : members) {
            names.append(m_handles.at(id).name);
        }
        names.removeDuplicates();
        return names.join(", "_L1);
    }

    // Of the addresses those that are e-mail, or those that are not.
    static QString joined(const QStringList& addresses, bool emails)
    {
        QStringList kind;
        std::ranges::copy_if(addresses, std::back_inserter(kind),
            [emails](const QString& address) { return isEmail(address) == emails; });
        return kind.join(", "_L1);
    }

    void addDeleted()
    {
        struct Ids {
            std::set<std::int64_t> whole;
            std::set<std::int64_t> parts;
        };
        std::map<std::size_t, Ids> byConversation;
        for (const auto& [chatId, messages] : readDeleted(m_database)) {
            byConversation[indexOf(chatId)].whole.insert(messages.begin(), messages.end());
        }
        for (const auto& [chatId, messages] : readPartlyDeleted(m_database)) {
            byConversation[indexOf(chatId)].parts.insert(messages.begin(), messages.end());
        }
        for (const auto& [index, ids] : byConversation) {
            Conversation deleted = m_conversations[index];
            deleted.kind = ConversationKind::Deleted;
            deleted.chatIds.clear();
            deleted.messageIds.assign(ids.whole.begin(), ids.whole.end());
            deleted.messageIds.insert(deleted.messageIds.end(), ids.parts.begin(), ids.parts.end());
            deleted.partIds.assign(ids.parts.begin(), ids.parts.end());
            deleted.lastDate = newestOf(m_database, deleted.messageIds);
            m_conversations.push_back(std::move(deleted));
        }
    }

    void addOrphans()
    {
        for (auto& [handleId, messages] : readOrphans(m_database)) {
            const Handle& handle = m_handles.at(handleId);
            const bool email = isEmail(handle.address);
            Conversation orphans{.kind = ConversationKind::Orphans,
                .messageIds = std::move(messages),
                .title = handle.name,
                .phone = email ? QString() : handle.address,
                .email = email ? handle.address : QString()};
            if (!handle.address.isEmpty()) {
                orphans.memberIds.push_back(handleId);
            }
            orphans.lastDate = newestOf(m_database, orphans.messageIds);
            m_conversations.push_back(std::move(orphans));
        }
    }

    const formats::Database& m_database;
    const Handles& m_handles;
    std::map<std::int64_t, std::vector<std::int64_t>> m_members; // by chat
    std::vector<Conversation> m_conversations;
    std::map<std::int64_t, std::size_t> m_indexOfChat;
    QHash<QString, std::size_t> m_indexOfAddress;
};

} // namespace

Handles::Handles(const formats::Database& database, const SenderNames& names)
{
    auto query = database.prepare("SELECT ROWID, id FROM handle"_L1);
    while (query && query->next()) {
        const QString address = query->text(1);
        const QString name = withoutMarks(names.nameOf(address));
        m_handles.insert(query->integer(0), {address, name.isEmpty() ? address : name});
    }
}

const Handle& Handles::at(std::int64_t rowId) const
{
    static const Handle nobody;
    const auto found = m_handles.constFind(rowId);
    return found != m_handles.constEnd() ? *found : nobody;
}

std::vector<Conversation> readConversations(
    const formats::Database& database, const Handles& handles)
{
    return ConversationList(database, handles).take();
}

} // namespace backup
