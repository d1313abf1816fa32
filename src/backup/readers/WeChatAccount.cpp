// SPDX-License-Identifier: MIT
//   Documents/LoginInfo2.dat                       the accounts of the phone
//   Documents/<account>/DB/MM.sqlite, message_1.sqlite, ...
//     Chat_<hash>, Hello_<hash> (MesLocalID, MesSvrID, CreateTime, Des, Type, Message)
//   Documents/<account>/DB/WCDB_Contact.sqlite
//   Documents/<account>/session/session.db         SessionAbstract (UsrName, CreateTime)
// A hash is that of the user name of the other person or room. CreateTime is seconds since 1970,
// Des 0 for messages that were sent.
#include "backup/readers/WeChatAccount.h"

#include "backup/container/Notices.h"
#include "backup/readers/chat_lines.h"
#include "backup/readers/file_signature.h"
#include "backup/readers/open_beside.h"
#include "backup/readers/table_reader.h"
#include "platform/literals.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <tuple>
#include <utility>

namespace backup {

namespace {

enum Column : int { Id, ServerId, Created, Received, Type, Text };

std::vector<WantedColumn> wantedColumns()
{
    return {{.name = QStringLiteral("MesLocalID")}, {.name = QStringLiteral("MesSvrID")},
        {.name = QStringLiteral("CreateTime"), .needed = true},
        {.name = QStringLiteral("Des"), .needed = true},
        {.name = QStringLiteral("Type"), .needed = true},
        {.name = QStringLiteral("Message"), .needed = true}};
}

const QRegularExpression& chatTable()
{
    static const QRegularExpression pattern(QStringLiteral("^(?:Chat|Hello)_([0-9a-f]{32})$"));
    return pattern;
}

// Sessions of other names are lists of the application and public accounts, which keep their
// messages elsewhere.
bool isOfPeople(const QString& user)
{
    return isWeChatRoom(user) || user.startsWith("wxid_"_L1) || user.endsWith("@openim"_L1);
}

} // namespace

struct WeChatAccount::StoredMessage {
    qint64 id = 0;
    qint64 serverId = 0; ///< 0: the server never had it
    QDateTime date;
    bool fromMe = false;
    qint64 type = 0;
    QString sender; ///< user name inside a room
    QString text;
};

WeChatAccount::WeChatAccount(QString directory, const FileLocator& files, Notices& notices)
    : m_directory(std::move(directory)), m_files(files), m_notices(notices),
      m_media(files, m_directory), m_contacts(notices)
{
}

WeChatAccount::~WeChatAccount() = default;

bool WeChatAccount::isMessages(const formats::Database& database)
{
    return !database.tables().filter(chatTable()).isEmpty();
}

void WeChatAccount::add(NamedDatabase database)
{
    if (WeChatContacts::isContacts(database.opened.database)) {
        m_contacts.add(std::move(database));
    } else {
        m_messages.push_back(std::move(database));
    }
}

std::optional<NamedDatabase> WeChatAccount::openBeside(const QString& path) const
{
    auto opened = openInDomain(m_files, kWeChatDomain, path, m_notices);
    if (!opened) {
        return std::nullopt;
    }
    if (!*opened) {
        m_notices.add(opened->error().text());
        return std::nullopt;
    }
    return NamedDatabase{.opened = std::move(**opened), .name = path};
}

void WeChatAccount::load()
{
    if (m_isLoaded) {
        return;
    }
    m_isLoaded = true;
    if (m_contacts.isEmpty()) {
        if (auto beside = openBeside(m_directory + "/DB/WCDB_Contact.sqlite"_L1);
            beside && WeChatContacts::isContacts(beside->opened.database)) {
            m_contacts.add(std::move(*beside));
        }
    }
    m_contacts.readNames(m_people);
    readLoginInfo();
    const std::vector<Session> sessions = readSessions();
    for (const Session& session : sessions) {
        m_people.addUser(session.user);
    }
    findChats();
    addDeletedChats(sessions);
}

void WeChatAccount::readLoginInfo()
{
    constexpr qint64 kLargest = 1'000'000;
    QFile file(m_media.locate(QStringLiteral("Documents/LoginInfo2.dat")));
    if (file.fileName().isEmpty() || !file.open(QIODevice::ReadOnly)) {
        return;
    }
    const QByteArray bytes = file.read(kLargest);
    const auto accounts =
        accountsIn(std::span(reinterpret_cast<const unsigned char*>(bytes.constData()),
            static_cast<std::size_t>(bytes.size())));
    for (const WeChatName& account : accounts) {
        m_people.add(account);
    }
}

void WeChatAccount::findChats()
{
    QHash<QString, std::size_t> known; // by table
    for (std::size_t database = 0; database < m_messages.size(); ++database) {
        const QStringList tables =
            m_messages[database].opened.database.tables().filter(chatTable());
        for (const QString& table : tables) {
            addTable(table, database, known);
        }
    }
}

void WeChatAccount::addTable(
    const QString& table, std::size_t database, QHash<QString, std::size_t>& known)
{
    const auto lastDate = lastDateIn(database, table);
    if (!lastDate) {
        return;
    }
    const std::size_t index = known.value(table, m_chats.size());
    if (index == m_chats.size()) {
        known.insert(table, index);
        const QString hash = chatTable().match(table).captured(1);
        m_chats.push_back({.hash = hash, .table = table, .user = m_people.userOf(hash)});
    }
    Chat& chat = m_chats[index];
    chat.databases.push_back(database);
    if (dateOrder(*lastDate) > dateOrder(chat.lastDate)) {
        chat.lastDate = *lastDate;
    }
}

// None for a chat without messages. A damaged table may have some.
std::optional<QDateTime> WeChatAccount::lastDateIn(std::size_t database, const QString& table) const
{
    auto row = m_messages[database].opened.database.prepare(
        "SELECT CreateTime FROM "_L1 + table + " ORDER BY rowid DESC LIMIT 1"_L1);
    if (row && row->next()) {
        return unixDate(*row, 0);
    }
    return row && !row->failed() ? std::nullopt : std::optional(QDateTime());
}

std::vector<WeChatAccount::Session> WeChatAccount::readSessions() const
{
    const QString table = QStringLiteral("SessionAbstract");
    const std::vector<WantedColumn> columns{
        {.name = QStringLiteral("UsrName")}, {.name = QStringLiteral("CreateTime")}};
    std::vector<Session> sessions;
    const auto take = [&sessions](const formats::Statement& row) {
        sessions.push_back({.user = row.text(0), .lastDate = unixDate(row, 1)});
    };
    QStringList paths = m_files.filesBelow(kWeChatDomain, m_directory + "/UniversalSession"_L1);
    paths.append(m_directory + "/session/session.db"_L1);
    for (const QString& path : std::as_const(paths)) {
        const auto list = path.endsWith("/session.db"_L1) ? openBeside(path) : std::nullopt;
        if (list && list->opened.database.hasTable(table)) {
            TableReader(list->opened.database, list->name, m_notices).read(table, columns, take);
        }
    }
    return sessions;
}

// Each is added once: its table counts as known from then on.
void WeChatAccount::addDeletedChats(const std::vector<Session>& sessions)
{
    if (m_messages.empty()) {
        return; // nothing tells that they are gone
    }
    QSet<QString> tables;
    for (const NamedDatabase& database : m_messages) {
        const QStringList names = database.opened.database.tables();
        tables.unite(QSet<QString>(names.begin(), names.end()));
    }
    for (const Session& session : sessions) {
        const QString hash = weChatHash(session.user);
        if (isOfPeople(session.user) && !tables.contains("Chat_"_L1 + hash)
            && !tables.contains("Hello_"_L1 + hash)) {
            tables.insert("Chat_"_L1 + hash);
            m_chats.push_back({.hash = hash, .user = session.user, .lastDate = session.lastDate});
        }
    }
}

QString WeChatAccount::titleOf(const Chat& chat) const
{
    return chat.user.isEmpty() ? chat.hash : m_people.shownName(chat.user);
}

std::vector<ChatSummary> WeChatAccount::chats()
{
    load();
    std::vector<ChatSummary> summaries;
    summaries.reserve(m_chats.size());
    for (const Chat& chat : m_chats) {
        const WeChatName* person = isWeChatRoom(chat.user) ? nullptr : m_people.find(chat.user);
        const QString title = titleOf(chat);
        summaries.push_back({.id = static_cast<std::int64_t>(summaries.size()),
            .title = title,
            .name = person == nullptr || person->nick.isEmpty() ? title : person->nick,
            .phones = person == nullptr ? QString() : person->phones.join(QChar(u',')),
            .deleted = chat.table.isEmpty(),
            .lastDate = chat.lastDate});
    }
    return summaries;
}

WeChatAccount::StoredMessage WeChatAccount::storedMessage(
    const Chat& chat, const formats::Statement& row) const
{
    StoredMessage message{.id = row.integer(Id),
        .serverId = row.integer(ServerId),
        .date = unixDate(row, Created),
        .fromMe = row.integer(Received) == 0,
        .type = row.integer(Type),
        .text = row.text(Text)};
    if (message.fromMe || !(chat.user.isEmpty() || isWeChatRoom(chat.user))) {
        return message;
    }
    // Where nobody knows who the other side is, a room shows itself by the senders of its texts.
    WeChatSenderText split = splitSender(message.text);
    if (!chat.user.isEmpty() || split.sender.startsWith("wxid_"_L1)
        || m_people.find(split.sender) != nullptr) {
        message.sender = std::move(split.sender);
        message.text = std::move(split.text);
    }
    return message;
}

std::vector<WeChatAccount::StoredMessage> WeChatAccount::storedMessages(const Chat& chat) const
{
    std::vector<StoredMessage> messages;
    for (const std::size_t index : chat.databases) {
        const NamedDatabase& database = m_messages[index];
        TableReader(database.opened.database, database.name, m_notices)
            .read(chat.table, wantedColumns(), [&](const formats::Statement& row) {
                messages.push_back(storedMessage(chat, row));
            });
    }
    const auto order = [](const StoredMessage& message) {
        return std::tuple(dateOrder(message.date), message.id, message.serverId);
    };
    if (!std::ranges::is_sorted(messages, {}, order)) {
        std::ranges::stable_sort(messages, {}, order);
    }
    // A chat that has moved from one database to another may be in both.
    const auto copies = std::unique(messages.begin(), messages.end(),
        [&](const StoredMessage& one, const StoredMessage& other) {
            return one.serverId != 0 && order(one) == order(other);
        });
    messages.erase(copies, messages.end());
    return messages;
}

ChatMessage WeChatAccount::shownMessage(
    const Chat& chat, const WeChatChatFiles& files, const StoredMessage& stored) const
{
    WeChatContent content = weChatContent(stored.type, stored.text);
    const WeChatFile file = files.find(content.folder, stored.id);
    ChatMessage message{.type = static_cast<int>(content.kind),
        .fromMe = stored.fromMe,
        .date = stored.date,
        .content = std::move(content.text),
        .media = file.path.isEmpty() ? QString() : m_media.locate(file.path)};
    const bool isEvent = content.kind == MsgType::GroupEvent;
    if (!isEvent && !stored.sender.isEmpty() && stored.sender != chat.user) {
        message.member = m_people.nameInRoom(stored.sender, chat.user);
    }
    if (!message.media.isEmpty() && message.content == stickerText()) {
        message.content.clear(); // it is there to be seen
    }
    return message;
}

std::vector<PRWhatsappMsg> WeChatAccount::messages(const ChatSummary& chat)
{
    const Chat& found = m_chats[static_cast<std::size_t>(chat.id)];
    const WeChatChatFiles files = m_media.ofChat(found.hash);
    std::vector<StoredMessage> stored = storedMessages(found);
    const bool hasServerIds = std::ranges::any_of(
        stored, [](const StoredMessage& message) { return message.serverId != 0; });
    std::vector<PRWhatsappMsg> messages;
    messages.reserve(stored.size());
    for (StoredMessage& one : stored) {
        ChatMessage message = shownMessage(found, files, one);
        message.sentDone = !one.fromMe || one.serverId != 0 || !hasServerIds;
        messages.emplace_back(std::move(message));
        one.text.clear(); // not twice in memory
    }
    return messages;
}

ChatFile WeChatAccount::listedFile(
    const WeChatFile& file, const QString& name, const QString& title) const
{
    const bool isPicture =
        file.isThumbnail || file.path.endsWith(".pic"_L1) || file.path.endsWith(".pic_hd"_L1);
    QString shown = name.isEmpty() ? lastPart(file.path) : name;
    if (isPicture) {
        const QString ending = endingOfFile(m_media.locate(file.path));
        shown = ending.isEmpty() ? lastPart(file.path)
                                 : QFileInfo(shown).completeBaseName() + QChar(u'.') + ending;
    }
    return {.name = shown, .chatTitle = title, .place = {kWeChatDomain, file.path}};
}

std::vector<ChatFile> WeChatAccount::files()
{
    load();
    const QMap<QString, WeChatChatFiles> all = m_media.ofAll();
    QHash<QString, std::set<WeChatChatFiles::Place>> taken; // by chat
    QHash<QString, QString> titles;
    std::vector<ChatFile> listed;
    for (const Chat& chat : m_chats) {
        titles.insert(chat.hash, titleOf(chat));
        const auto files = all.constFind(chat.hash);
        if (files != all.constEnd()) {
            addFilesOfMessages(chat, *files, taken[chat.hash], listed);
        }
    }
    for (auto files = all.constBegin(); files != all.constEnd(); ++files) {
        addOtherFiles(*files, taken.value(files.key()), titles.value(files.key()), listed);
    }
    return listed;
}

void WeChatAccount::addFilesOfMessages(const Chat& chat, const WeChatChatFiles& files,
    std::set<WeChatChatFiles::Place>& taken, std::vector<ChatFile>& listed) const
{
    const QString title = titleOf(chat);
    for (const StoredMessage& stored : storedMessages(chat)) {
        const WeChatContent content = weChatContent(stored.type, stored.text);
        const WeChatFile file = files.find(content.folder, stored.id);
        if (file.path.isEmpty()) {
            continue;
        }
        taken.insert({content.folder, stored.id});
        if (!content.previewOnly) {
            listed.push_back(listedFile(file, documentName(content.fileName, file.path), title));
            listed.back().date = stored.date;
        }
    }
}

void WeChatAccount::addOtherFiles(const WeChatChatFiles& files,
    const std::set<WeChatChatFiles::Place>& taken, const QString& title,
    std::vector<ChatFile>& listed) const
{
    const auto places = files.places();
    for (const WeChatChatFiles::Place& place : places) {
        if (!taken.contains(place)) {
            listed.push_back(listedFile(files.find(place.first, place.second), {}, title));
        }
    }
}

RecordList WeChatAccount::contacts()
{
    load();
    QSet<QString> partners;
    for (const Chat& chat : m_chats) {
        partners.insert(chat.user);
    }
    return m_contacts.records({.people = m_people,
        .chatPartners = partners,
        .pictures = "share/"_L1 + lastPart(m_directory) + "/session/headImg"_L1,
        .files = m_files});
}

} // namespace backup
