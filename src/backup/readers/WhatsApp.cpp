// SPDX-License-Identifier: MIT
//   ZWACHATSESSION   Z_PK, ZCONTACTJID, ZPARTNERNAME, ZSESSIONTYPE, ZREMOVED 1: deleted,
//                    ZLASTMESSAGEDATE (seconds since 2001)
//   ZWAGROUPMEMBER   Z_PK, ZCHATSESSION, ZMEMBERJID, ZCONTACTNAME, ZISACTIVE 0: has left
//   ZWAMESSAGE       see whatsapp_rows.cpp
#include "backup/readers/WhatsApp.h"

#include "backup/container/Notices.h"
#include "backup/readers/chat_lines.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <utility>

namespace backup {

namespace {

// ZSESSIONTYPE
enum Session : int { Private = 0, Group = 1, Broadcast = 2, Status = 3 };

constexpr QLatin1String kSessions = "ZWACHATSESSION"_L1;
constexpr QLatin1String kMembers = "ZWAGROUPMEMBER"_L1;
constexpr QLatin1String kMedia = "Media/"_L1;
constexpr QLatin1String kProfile = "Profile/"_L1;

enum SessionColumn : int { Address, Name, Kind, Removed, LastDate, SessionId };

// Types of which a small likeness says something where the file itself was never downloaded:
// pictures, films, sounds, documents, GIFs, stickers, and what is shown once.
constexpr std::array kFileTypes{1, 2, 3, 8, 11, 15, 38, 39, 53, 54};

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

QString userOf(const QString& address)
{
    return address.section(QChar(u'@'), 0, 0);
}

// A path is listed in one Unicode form and may be named in the other.
QString pathKey(const QString& path)
{
    return path.normalized(QString::NormalizationForm_C);
}

// "491715550101" of "Message/Media/491715550101@s.whatsapp.net/a/b/x.jpg", of
// "Media/Profile/491715550101-1700000000.jpg" too; empty for files of nobody
QString userOfPath(const QString& path)
{
    const int begin = path.indexOf(kMedia);
    if (begin < 0) {
        return {};
    }
    QString rest = path.mid(begin + kMedia.size());
    if (!rest.startsWith(kProfile)) {
        return userOf(rest.section(QChar(u'/'), 0, 0));
    }
    rest.remove(0, kProfile.size());
    return rest.left(std::max(0, rest.lastIndexOf(QChar(u'-'))));
}

QString nameOf(const QString& title, const QString& path)
{
    return isThumbnail(path) ? QFileInfo(lastPart(path)).completeBaseName() + ".jpg"_L1
                             : documentName(title, path);
}

} // namespace

WhatsApp::WhatsApp(OpenedDatabase database, WhatsAppPlace place, SenderNames names,
    const FileLocator& files, Notices& notices)
    : m_opened(std::move(database)), m_place(std::move(place)), m_names(std::move(names)),
      m_notices(notices), m_reader(m_opened.database, m_place.name, notices),
      m_files(files, m_place.domain), m_rows(m_opened.database, m_reader)
{
}

std::vector<ChatSummary> WhatsApp::chats()
{
    list();
    std::vector<ChatSummary> summaries;
    summaries.reserve(m_chats.size());
    for (const Chat& chat : m_chats) {
        summaries.push_back(chat.summary);
    }
    return summaries;
}

void WhatsApp::list()
{
    if (m_people) {
        return;
    }
    m_people.emplace(m_reader, m_names, m_place.openBeside, m_notices);
    readMembers();
    std::vector<Chat> sessions = readSessions();
    std::map<qint64, qint64> counts = m_rows.counts();
    for (Chat& session : sessions) {
        if (counts.erase(session.summary.id) > 0) {
            m_chats.push_back(std::move(session));
        }
    }
    // Of chats whose own rows are gone.
    for (const auto& [id, count] : counts) {
        m_chats.push_back(lostChat(id));
    }
    std::ranges::stable_sort(m_chats, std::ranges::greater(),
        [](const Chat& chat) { return dateOrder(chat.summary.lastDate); });
    std::vector<qint64> order;
    for (const Chat& chat : m_chats) {
        order.push_back(chat.summary.id);
    }
    m_rows.setOrder(order);
}

void WhatsApp::readMembers()
{
    enum Column : int { Session, Member, ContactName, FirstName, IsActive, Id };
    static const std::array columns{WantedColumn{.name = "ZCHATSESSION"_L1},
        WantedColumn{.name = "ZMEMBERJID"_L1}, WantedColumn{.name = "ZCONTACTNAME"_L1},
        WantedColumn{.name = "ZFIRSTNAME"_L1}, WantedColumn{.name = "ZISACTIVE"_L1}};
    if (!m_opened.database.hasTable(kMembers)) {
        return;
    }
    m_reader.read(kMembers, columns, [this](const formats::Statement& row) {
        QString name = row.text(ContactName);
        if (name.trimmed().isEmpty()) {
            name = row.text(FirstName);
        }
        WhatsAppMember member{.address = row.text(Member), .name = std::move(name)};
        const bool isActive = row.isNull(IsActive) || row.integer(IsActive) != 0;
        (isActive ? m_memberAddresses : m_formerAddresses)[row.integer(Session)].append(
            member.address);
        m_members.insert(row.integer(Id), member);
    });
}

// The names of chats with one person come before those that groups know of the same.
std::vector<WhatsApp::Chat> WhatsApp::readSessions()
{
    static const std::array columns{WantedColumn{.name = "ZCONTACTJID"_L1, .needed = true},
        WantedColumn{.name = "ZPARTNERNAME"_L1}, WantedColumn{.name = "ZSESSIONTYPE"_L1},
        WantedColumn{.name = "ZREMOVED"_L1}, WantedColumn{.name = "ZLASTMESSAGEDATE"_L1}};
    m_reader.read(kSessions, columns, [this](const formats::Statement& row) {
        if (row.integer(Kind) == Private && isPerson(row.text(Address))) {
            m_people->addName(row.text(Address), row.text(Name));
        }
    });
    for (const WhatsAppMember& member : std::as_const(m_members)) {
        m_people->addName(member.address, member.name);
    }
    std::vector<Chat> sessions;
    m_reader.read(kSessions, columns,
        [&](const formats::Statement& row) { sessions.push_back(chatOf(row)); });
    return sessions;
}

WhatsApp::Chat WhatsApp::chatOf(const formats::Statement& session) const
{
    Chat chat{
        .summary = {.id = session.integer(SessionId),
            .deleted = session.integer(Removed) != 0,
            .lastDate = cocoaDate(session, LastDate)},
        .facts = {},
        .address = session.text(Address),
    };
    describe(chat, cleanName(session.text(Name)), session.integer(Kind));
    return chat;
}

// A chat of which only the messages are left. Where all that were received are of one person, and
// of no member of a group, it is taken for one with that person.
WhatsApp::Chat WhatsApp::lostChat(qint64 id)
{
    QSet<QString> senders;
    bool hasMembers = m_memberAddresses.contains(id) || m_formerAddresses.contains(id);
    QDateTime newest;
    const auto take = [&](const WhatsAppRow& row) {
        hasMembers |= row.numbers.member > 0;
        if (!row.numbers.fromMe && row.has(WhatsAppText::Sender)) {
            senders.insert(row.text(WhatsAppText::Sender));
        }
        if (const QDateTime date = row.date(); dateOrder(date) > dateOrder(newest)) {
            newest = date;
        }
    };
    m_rows.read(id, take, [] {}); // what comes once more changes nothing
    const bool isPrivate = id != WhatsAppRows::kNoChat && !hasMembers && senders.size() == 1;
    Chat chat{.summary = {.id = id, .lastDate = newest},
        .facts = {},
        .address = isPrivate ? *senders.cbegin() : QString()};
    describe(chat, QString(), isPrivate ? Private : Group);
    return chat;
}

// Who takes part in a chat that the application calls `name`.
void WhatsApp::describe(Chat& chat, const QString& name, qint64 kind) const
{
    chat.facts.isPrivate = kind == Private && isPerson(chat.address);
    chat.facts.isBroadcast = kind == Broadcast;
    chat.summary.title = titleOf(chat, name, kind);
    chat.summary.name = chat.summary.title;
    if (chat.facts.isPrivate) {
        chat.facts.partner = chat.summary.title;
    }
    QStringList numbers{m_people->numberOf(chat.address)};
    const QStringList members =
        chat.facts.isPrivate ? QStringList() : m_memberAddresses.value(chat.summary.id);
    for (const QString& member : members) {
        numbers.append(m_people->numberOf(member));
    }
    numbers.removeAll(QString());
    numbers.removeDuplicates();
    chat.summary.phones = numbers.join(QChar(u','));
}

QString WhatsApp::titleOf(const Chat& chat, const QString& name, qint64 kind) const
{
    const bool isOne = isPerson(chat.address); // in kinds of chats that are not known, too
    if (chat.facts.isPrivate || (isOne && name.isEmpty() && kind != Status)) {
        return m_people->nameOf(chat.address, name);
    }
    if (!name.isEmpty()) {
        return name;
    }
    if (kind == Status) {
        return tr("Status");
    }
    const qint64 id = chat.summary.id;
    const QStringList addresses =
        m_memberAddresses.contains(id) ? m_memberAddresses[id] : m_formerAddresses.value(id);
    QStringList members;
    for (const QString& member : addresses) {
        members.append(m_people->nameOf(member));
    }
    members.removeAll(QString());
    members.removeDuplicates();
    return members.isEmpty() ? tr("Unknown") : members.join(", "_L1);
}

std::vector<PRWhatsappMsg> WhatsApp::messages(const ChatSummary& chat)
{
    list();
    const auto known =
        std::ranges::find(m_chats, chat.id, [](const Chat& each) { return each.summary.id; });
    const WhatsAppChatFacts facts = known != m_chats.end() ? known->facts : WhatsAppChatFacts();
    WhatsAppChatBuilder builder(facts, *m_people, m_members, m_files);
    m_rows.read(
        chat.id, [&](const WhatsAppRow& row) { builder.add(row); }, [&] { builder.clear(); });
    return builder.take();
}

std::vector<ChatFile> WhatsApp::files()
{
    list();
    std::vector<ChatFile> found;
    QSet<QString> taken;
    int missing = 0;
    for (const Chat& chat : m_chats) {
        std::vector<ChatFile> files = filesOf(chat, missing);
        for (ChatFile& file : files) {
            taken.insert(pathKey(file.place.path));
            found.push_back(std::move(file));
        }
    }
    addLeftOver(taken, found);
    if (missing > 0) {
        m_notices.add(tr("%1: files of messages that are not in the backup: %2")
                          .arg(m_place.name, QString::number(missing)));
    }
    return found;
}

std::vector<ChatFile> WhatsApp::filesOf(const Chat& chat, int& missing)
{
    std::vector<std::pair<WhatsAppOrder, ChatFile>> ordered;
    int missingHere = 0;
    const auto take = [&](const WhatsAppRow& row) {
        if (!row.has(WhatsAppText::MediaPath) && !row.has(WhatsAppText::Thumbnail)) {
            return;
        }
        if (auto file = fileOf(row, missingHere)) {
            file->chatTitle = chat.summary.title;
            file->deleted = chat.summary.deleted;
            ordered.emplace_back(row.numbers.order, std::move(*file));
        }
    };
    m_rows.read(chat.summary.id, take, [&] {
        ordered.clear();
        missingHere = 0;
    });
    missing += missingHere;
    std::ranges::stable_sort(ordered, {}, [](const auto& each) { return each.first.key(); });
    std::vector<ChatFile> files;
    files.reserve(ordered.size());
    for (auto& [order, file] : ordered) {
        files.push_back(std::move(file));
    }
    return files;
}

std::optional<ChatFile> WhatsApp::fileOf(const WhatsAppRow& row, int& missing) const
{
    const int type = row.numbers.type;
    const bool isFile = std::ranges::find(kFileTypes, type) != kFileTypes.end();
    const QString path = row.text(WhatsAppText::MediaPath);
    if (!isFile && path.isEmpty()) {
        return std::nullopt; // the picture of a link or of a map
    }
    DeviceFile place = m_files.find(path);
    if (place.path.isEmpty()) {
        place = m_files.find(row.text(WhatsAppText::Thumbnail));
    }
    if (place.path.isEmpty()) {
        missing += path.isEmpty() ? 0 : 1;
        return std::nullopt;
    }
    constexpr int kDocument = 8;
    QString name =
        nameOf(type == kDocument ? row.text(WhatsAppText::Title) : QString(), place.path);
    return ChatFile{.name = std::move(name), .place = std::move(place), .date = row.date()};
}

void WhatsApp::addLeftOver(const QSet<QString>& taken, std::vector<ChatFile>& found) const
{
    QHash<QString, const Chat*> chats;
    for (const Chat& chat : m_chats) {
        if (!chat.address.isEmpty()) {
            chats.insert(userOf(chat.address), &chat);
        }
    }
    std::vector<DeviceFile> files = m_files.all();
    for (DeviceFile& file : files) {
        if (isThumbnail(file.path) || taken.contains(pathKey(file.path))) {
            continue;
        }
        const Chat* chat = chats.value(userOfPath(file.path));
        found.push_back({.name = lastPart(file.path),
            .chatTitle = chat != nullptr ? chat->summary.title : QString(),
            .deleted = chat != nullptr && chat->summary.deleted,
            .place = std::move(file)});
    }
}

} // namespace backup
