// SPDX-License-Identifier: MIT
// D = Library/Application Support/PrivateStore/P_<own mid>; a mid is "u..." of a person, "c..." of
// a group, "r..." of a room
//
//   D/Messages/Line.sqlite
//     ZMESSAGE  ZCHAT, ZSENDER (NULL: the owner's, or the application's own line), ZTIMESTAMP
//               milliseconds since 1970, ZCONTENTTYPE, ZTEXT, ZLATITUDE, ZLONGITUDE, ZSENDSTATUS 1
//               sent, ZID, ZCONTENTMETADATA keyed archive
//     ZCHAT     ZMID, ZTYPE 0 person, else group or room
//     ZUSER     ZMID, ZCUSTOMNAME, ZADDRESSBOOKNAME, ZNAME
//     ZCONTACT  ZMID, ZPHONENUMBER
//     ZGROUP    ZID (a mid), ZNAME; Z_<n>MEMBERS joins groups or chats and people   (older)
//   D/Messages/UnifiedGroup.sqlite
//     ZUNIFIEDGROUP  ZID (a mid), ZNAME                                             (newer)
//   D/Message Attachments/<chat's mid>/<ZID>.<ending>
//   D/Message Thumbnails/<chat's mid>/<ZID>.thumb      JPEG
#include "backup/readers/LineChats.h"

#include "backup/readers/chat_lines.h"
#include "formats/cocoa_values.h"
#include "formats/plist.h"
#include "platform/literals.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <utility>

namespace backup {

namespace {

constexpr QLatin1String kAttachments = "Message Attachments/"_L1;
constexpr QLatin1String kPreviews = "Message Thumbnails/"_L1;
// Its other domain may have the media of the account.
constexpr std::array kDomains{
    "AppDomainGroup-group.com.linecorp.line"_L1, "AppDomain-jp.naver.line"_L1};

constexpr QLatin1String kMembers = R"(Z_\d+MEMBERS)"_L1; // a table, and a column of it

enum ContentType : int {
    Text = 0,
    Picture = 1,
    Film = 2,
    Voice = 3,
    Call = 6,
    Sticker = 7,
    ContactCard = 13,
    File = 14,
    AlbumOrPost = 16,
    SystemLine = 18,
    Place = 100,
    Album = 111,
    AlbumPicture = 112,
};

struct KindRow {
    int contentType = 0;
    MsgType type = MsgType::Text;
    const char* words = nullptr; ///< for a message without a text
};

// clang-format off
constexpr std::array kKinds{
    KindRow{Text,         MsgType::Text},
    KindRow{Picture,      MsgType::Picture},
    KindRow{Film,         MsgType::Video},
    KindRow{Voice,        MsgType::Audio},
    KindRow{Call,         MsgType::GroupEvent},
    KindRow{Sticker,      MsgType::Picture},
    KindRow{ContactCard,  MsgType::ContactCard, QT_TRANSLATE_NOOP("DataExport", "[Contact]")},
    KindRow{File,         MsgType::Document},
    KindRow{AlbumOrPost,  MsgType::Other,       QT_TRANSLATE_NOOP("DataExport", "[Album or post]")},
    KindRow{SystemLine,   MsgType::GroupEvent},
    KindRow{Place,        MsgType::Location},
    KindRow{Album,        MsgType::Other,       QT_TRANSLATE_NOOP("DataExport", "[Album]")},
    KindRow{AlbumPicture, MsgType::Picture},
};
constexpr std::array kWithFiles{Picture, Film, Voice, Sticker, File, AlbumPicture};
// clang-format on

enum Column : int {
    SenderRow = 2, // behind chat and date
    Content,
    TextColumn,
    Latitude,
    Longitude,
    SendStatus,
    Id,
    Metadata,
};

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

QDateTime unixMillisecondsDate(const formats::Statement& row, int column)
{
    constexpr double startOf2001 = 978'307'200; // seconds since 1970
    const double seconds = row.real(column) / 1000;
    return seconds == 0 ? QDateTime() : formats::dateFromCocoaSeconds(seconds - startOf2001);
}

// "<chat's mid>/<ZID>" of a path below the directory.
QString keyBelow(QLatin1String directory, const QString& path)
{
    const int begin = path.lastIndexOf(directory);
    if (begin < 0 || (begin > 0 && path.at(begin - 1) != QChar(u'/'))) {
        return {};
    }
    const QString key = path.mid(begin + directory.size());
    const int point = key.lastIndexOf(QChar(u'.'));
    return key.left(point > key.lastIndexOf(QChar(u'/')) ? point : key.size());
}

QVariantMap metadataOf(const formats::Statement& row)
{
    QByteArray stored = row.blob(Metadata);
    if (stored.startsWith('\x01')) { // the mark of what the store keeps itself, not in a file
        stored.remove(0, 1);
    }
    const auto list = formats::parsePlist(stored, QString());
    if (!list) {
        return {};
    }
    const QVariantMap values = formats::unarchive(*list).toMap();
    return values.isEmpty() ? list->toMap() : values;
}

// What the metadata say of the call: DURATION milliseconds, TYPE "V" with pictures, RESULT.
QString callText(const QVariantMap& metadata, const ChatMessage& message)
{
    constexpr int second = 1000;
    const QString result = metadata.value("RESULT"_L1).toString();
    const qint64 ms = metadata.value("DURATION"_L1).toLongLong();
    if (!metadata.contains("TYPE"_L1) && result.isEmpty() && ms == 0) {
        return tr("[Call]");
    }
    return callLine({.isVideo = metadata.value("TYPE"_L1).toString() == "V"_L1,
        .isMissed = !message.fromMe && ms == 0 && !result.isEmpty() && result != "NORMAL"_L1,
        .fromMe = message.fromMe,
        .seconds = ms / second,
        .caller = message.member});
}

// What stands in the bubble, or in the line without one.
void addContents(const formats::Statement& row, const KindRow& kind, ChatMessage& message)
{
    QString& text = message.content;
    switch (kind.contentType) {
    case Call:
        text = callText(metadataOf(row), message);
        break;
    case Place:
        text = locationText(text, row.real(Latitude), row.real(Longitude));
        break;
    case ContactCard:
        text =
            firstFilled({text, metadataOf(row).value("displayName"_L1).toString(), tr(kind.words)});
        break;
    case Sticker:
        text = firstFilled({text, stickerText()});
        break;
    case SystemLine:
        text = firstFilled({text, systemMessageLine()});
        break;
    case AlbumOrPost:
    case Album:
        text = firstFilled({text, tr(kind.words)});
        break;
    default:
        break;
    }
}

} // namespace

LineChats::LineChats(ChatDatabase database, SenderNames names, OpenGroups openGroups)
    : TableChats(
        std::move(database), {.name = "ZMESSAGE"_L1,
                                 .chat = "ZCHAT"_L1,
                                 .date = "ZTIMESTAMP"_L1,
                                 .dateOf = unixMillisecondsDate,
                                 .columns = {{"ZSENDER"_L1, true}, {"ZCONTENTTYPE"_L1, true},
                                     {"ZTEXT"_L1, true}, {"ZLATITUDE"_L1}, {"ZLONGITUDE"_L1},
                                     {"ZSENDSTATUS"_L1}, {"ZID"_L1}, {"ZCONTENTMETADATA"_L1}}}),
      m_names(std::move(names)), m_openGroups(std::move(openGroups)), m_media(locator()),
      m_previews(locator())
{
}

bool LineChats::isOfKind(const formats::Database& database)
{
    return database.hasTable("ZCHAT"_L1) && database.hasTable("ZUSER"_L1)
           && database.columns("ZMESSAGE"_L1).contains("ZCONTENTTYPE"_L1);
}

bool LineChats::hasMessages(const formats::Database& database)
{
    return !isEmptyTable(database, "ZMESSAGE"_L1);
}

qint64 LineChats::countRecords(const formats::Database& database)
{
    return countRows(database, "ZMESSAGE"_L1);
}

void LineChats::readContacts()
{
    if (!database().hasTable("ZCONTACT"_L1)) {
        return;
    }
    const std::array<WantedColumn, 3> columns{{{"ZMID"_L1}, {"ZNAME"_L1}, {"ZPHONENUMBER"_L1}}};
    reader().read("ZCONTACT"_L1, columns, [this](const formats::Statement& row) {
        if (const QString mid = row.text(0); !mid.isEmpty()) {
            m_people.insert(mid, {.own = plainName(row.text(1)), .phone = shownPhone(row.text(2))});
        }
    });
}

// As the owner calls them, as the address book does, as they call themselves.
void LineChats::readPeople()
{
    readContacts();
    const std::array<WantedColumn, 4> columns{
        {{"ZMID"_L1}, {"ZCUSTOMNAME"_L1}, {"ZADDRESSBOOKNAME"_L1}, {"ZNAME"_L1}}};
    reader().read("ZUSER"_L1, columns, [this](const formats::Statement& row) {
        // Who has lost the mid must not be taken for all others who have.
        const QString mid = firstFilled({row.text(0), QString::number(row.integer(4))});
        m_mids.insert(row.integer(4), mid);
        Person& person = m_people[mid];
        person.own = firstFilled({plainName(row.text(3)), person.own});
        person.shown = firstFilled({plainName(row.text(1)), plainName(row.text(2)),
            m_names.nameOf(person.phone), person.own, person.phone});
    });
}

void LineChats::readGroups()
{
    const std::array<WantedColumn, 2> columns{{{"ZID"_L1}, {"ZNAME"_L1}}};
    QHash<qint64, QString> mids;
    if (database().hasTable("ZGROUP"_L1)) {
        reader().read("ZGROUP"_L1, columns, [&](const formats::Statement& row) {
            mids.insert(row.integer(2), row.text(0));
            m_groups[row.text(0)].name = plainName(row.text(1));
        });
    }
    readMembers("GROUPS"_L1, mids);
    readMembers("CHATS"_L1, m_chatMids);
    readGroupsBeside();
}

void LineChats::readMembers(QLatin1String entity, const QHash<qint64, QString>& mids)
{
    const auto members =
        readJoin(reader(), findJoin(database(), kMembers, R"(Z_\d+.*)"_L1 + entity, kMembers));
    for (auto row = members.begin(); row != members.end(); ++row) {
        QStringList& group = m_groups[mids.value(row.key())].members;
        for (const qint64 member : row.value()) {
            group.append(m_mids.value(member));
        }
    }
}

void LineChats::readGroupsBeside()
{
    const QString path =
        place().path.left(place().path.lastIndexOf(QChar(u'/')) + 1) + "UnifiedGroup.sqlite"_L1;
    const auto opened = m_openGroups(place().domain, path);
    if (!opened || !*opened) {
        return;
    }
    auto query =
        (*opened)->database.prepare("SELECT ZID, ZNAME FROM ZUNIFIEDGROUP ORDER BY Z_PK"_L1);
    while (query && query->next()) {
        Group& group = m_groups[query->text(0)];
        group.name = firstFilled({plainName(query->text(1)), group.name});
    }
}

QStringList LineChats::namesOf(const QStringList& mids) const
{
    QStringList names;
    for (const QString& mid : mids) {
        const QString name = m_people.value(mid).shown;
        if (!name.isEmpty()) {
            names.append(name);
        }
    }
    return names;
}

TableChats::StoredChat LineChats::chatWithPerson(const QString& mid) const
{
    const Person person = m_people.value(mid);
    const QString title = firstFilled({person.shown, person.own, person.phone, tr("Unknown")});
    return {.summary = {
                .title = title, .name = firstFilled({person.own, title}), .phones = person.phone}};
}

TableChats::StoredChat LineChats::chatOfGroup(const QString& mid) const
{
    const Group group = mid.isEmpty() ? Group() : m_groups.value(mid);
    const QString title =
        firstFilled({group.name, namesOf(group.members).join(", "_L1), tr("Unknown")});
    QStringList phones;
    for (const QString& member : group.members) {
        phones.append(m_people.value(member).phone);
    }
    phones.removeAll(QString());
    return {.summary = {.title = title, .name = title, .phones = phones.join(QChar(u','))},
        .isGroup = true};
}

std::vector<TableChats::StoredChat> LineChats::readChats()
{
    readPeople();
    const std::array<WantedColumn, 2> columns{{{"ZMID"_L1, true}, {"ZTYPE"_L1}}};
    QHash<qint64, bool> groups;
    reader().read("ZCHAT"_L1, columns, [&](const formats::Statement& row) {
        const QString mid = row.text(0);
        m_chatMids.insert(row.integer(2), mid);
        groups.insert(row.integer(2),
            row.integer(1) != 0 || mid.startsWith(QChar(u'c')) || mid.startsWith(QChar(u'r')));
    });
    readGroups();
    std::vector<StoredChat> chats;
    for (auto chat = m_chatMids.begin(); chat != m_chatMids.end(); ++chat) {
        chats.push_back(
            groups.value(chat.key()) ? chatOfGroup(chat.value()) : chatWithPerson(chat.value()));
        chats.back().summary.id = chat.key();
        m_titles.insert(chat.value(), chats.back().summary.title);
    }
    return chats;
}

QString LineChats::accountDirectory() const
{
    const QString& path = place().path;
    const int messages = path.lastIndexOf("Messages/"_L1);
    return path.left(std::max(messages, 0));
}

void LineChats::listMedia()
{
    if (std::exchange(m_isMediaListed, true)) {
        return;
    }
    const QString directory = accountDirectory();
    QStringList domains{place().domain};
    if (!directory.isEmpty()) {
        domains += QStringList(kDomains.begin(), kDomains.end());
        domains.removeDuplicates();
    }
    // The oldest releases have no directory for the account.
    const bool isAnywhere = directory.isEmpty() && place().path.contains(QChar(u'/'));
    for (const QString& domain : qAsConst(domains)) {
        m_media.list(domain, isAnywhere ? QString() : directory + kAttachments,
            [](const QString& path) { return keyBelow(kAttachments, path); });
        m_previews.list(domain, isAnywhere ? QString() : directory + kPreviews,
            [](const QString& path) { return keyBelow(kPreviews, path); });
    }
}

TableChats::StoredFile LineChats::fileOf(const QString& key, const QString& name)
{
    listMedia();
    if (const DeviceFile* file = m_media.find(key)) {
        return {.place = *file, .name = documentName(name, file->path)};
    }
    if (const DeviceFile* preview = m_previews.find(key)) {
        return {.place = *preview, .name = lastPart(key) + ".jpg"_L1};
    }
    return {};
}

void LineChats::attachFile(
    const formats::Statement& row, const StoredChat& chat, StoredMessage& stored)
{
    const bool isDocument = row.integer(Content) == File;
    const QString name = isDocument ? metadataOf(row).value("FILE_NAME"_L1).toString() : QString();
    StoredFile file = fileOf(m_chatMids.value(chat.summary.id) + QChar(u'/') + row.text(Id), name);
    if (isDocument) {
        stored.message.content = firstFilled({stored.message.content, name, file.name});
    }
    stored.files.push_back(std::move(file));
}

bool LineChats::canHaveFile(const formats::Statement& row) const
{
    return std::ranges::find(kWithFiles, row.integer(Content)) != kWithFiles.end();
}

TableChats::StoredMessage LineChats::readMessage(
    const formats::Statement& row, const StoredChat& chat)
{
    const qint64 content = row.integer(Content);
    const auto* const kind = std::ranges::find(kKinds, content, &KindRow::contentType);
    const qint64 sender = linkedRow(row, SenderRow);
    StoredMessage stored;
    ChatMessage& message = stored.message;
    message.fromMe = sender == 0 && content != SystemLine;
    message.sentDone = !message.fromMe || row.isNull(SendStatus) || row.integer(SendStatus) == 1;
    message.content = row.text(TextColumn);
    if (chat.isGroup && sender != 0) {
        message.member = m_people.value(m_mids.value(sender)).shown;
    }
    const bool isKnown =
        kind != kKinds.end() && (kind->contentType != Text || !message.content.isEmpty());
    if (isKnown) {
        message.type = static_cast<int>(kind->type);
        addContents(row, *kind, message);
    } else if (message.content.isEmpty()) {
        message.type = static_cast<int>(MsgType::GroupEvent);
        message.content = unknownMessageLine();
    }
    if (canHaveFile(row)) {
        attachFile(row, chat, stored);
    }
    return stored;
}

std::vector<ChatFile> LineChats::leftOverFiles()
{
    listMedia();
    std::vector<ChatFile> files;
    for (const DeviceFile& file : m_media.leftOver()) {
        const QString key = keyBelow(kAttachments, file.path);
        files.push_back({.name = lastPart(file.path),
            .chatTitle = m_titles.value(key.left(key.indexOf(QChar(u'/')))),
            .place = file});
    }
    return files;
}

} // namespace backup
