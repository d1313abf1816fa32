// SPDX-License-Identifier: MIT
// Contacts.data; dates are seconds since 2001
//   ZVIBERMESSAGE   ZCONVERSATION, ZDATE, ZSTATE "send", "delivered": the owner's, "received";
//                   ZTEXT, ZSYSTEMTYPE, ZPHONENUMINDEX (older ZPHONENUMBERINDEX) -> ZMEMBER,
//                   ZATTACHMENT, ZLOCATION, ZLIKESCOUNT
//   ZCONVERSATION   ZNAME, ZGROUPID, ZINTERLOCUTOR -> ZMEMBER, ZBEINGDELETED
//   ZMEMBER         ZDISPLAYFULLNAME, ZDISPLAYSHORTNAME, ZNAME
//   ZPHONENUMBER    ZPHONE, ZCANONIZEDPHONENUM, ZMEMBER
//   ZATTACHMENT     ZNAME (of the file), ZTYPE "picture", "video", "sticker", "file", ...
//   ZVIBERLOCATION  ZLATITUDE, ZLONGITUDE, ZADDRESS
//   ZABCONTACT      ZPREFIXNAME, ZMAINNAME, ZSUFFIXNAME; ZABCONTACTNUMBER ZCONTACT,
//   ZCANONIZEDPHONENUM Z_<n>...        joins ZCONVERSATION and ZMEMBER
// Files: .../Attachments/<ZNAME>
#include "backup/readers/ViberChats.h"

#include "backup/readers/call_records.h"
#include "backup/readers/chat_lines.h"
#include "backup/readers/media_kind.h"
#include "platform/literals.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <utility>

namespace backup {

namespace {

enum Column : int { State = 2, TextColumn, SystemType, Sender, AttachmentRow, LocationRow, Likes };

// Its own files, and those that it shares with its extensions.
constexpr std::array kDomains{
    "AppDomain-com.viber"_L1, "AppDomainGroup-group.viber.share.container"_L1};

struct TypeRow {
    QLatin1String name;
    MsgType type = MsgType::Document;
};

// clang-format off
constexpr std::array kTypes{
    TypeRow{"picture"_L1,        MsgType::Picture},
    TypeRow{"sticker"_L1,        MsgType::Picture},
    TypeRow{"video"_L1,          MsgType::Video},
    TypeRow{"customLocation"_L1, MsgType::Location},
    TypeRow{"file"_L1,           MsgType::Document},
};
// clang-format on

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

// Of a type that is not known the ending of the file tells what it is.
MsgType typeOf(const QString& type, const QString& fileName)
{
    const auto* const known = std::ranges::find(kTypes, type, &TypeRow::name);
    if (known != kTypes.end()) {
        return known->type;
    }
    switch (mediaKindOf(fileName)) {
    case MediaKind::Picture:
        return MsgType::Picture;
    case MediaKind::Film:
        return MsgType::Video;
    case MediaKind::Sound:
        return MsgType::Audio;
    default:
        return MsgType::Document;
    }
}

// Whether the application itself has written the message.
bool isSystemLine(const QString& systemType)
{
    return !systemType.isEmpty() && systemType != "text"_L1 && systemType != "0"_L1;
}

// Releases differ in which of the tables lists the calls.
QLatin1String callTable(const formats::Database& database)
{
    return database.hasTable("ZRECENT"_L1) ? "ZRECENT"_L1 : "ZRECENTSLINE"_L1;
}

bool isOwn(const formats::Statement& row)
{
    const QString state = row.text(State);
    if (state == "received"_L1) {
        return false;
    }
    return state == "send"_L1 || state == "delivered"_L1 || linkedRow(row, Sender) == 0;
}

bool isAttachment(const QString& path)
{
    return path.startsWith("Attachments/"_L1) || path.contains("/Attachments/"_L1);
}

// What is left of a message that has nothing but a text.
void finishText(const formats::Statement& row, ChatMessage& message)
{
    if (isSystemLine(row.text(SystemType))) {
        message.type = static_cast<int>(MsgType::GroupEvent);
        message.content = firstFilled({message.content, systemMessageLine()});
    } else if (message.content.isEmpty()) {
        message.type = static_cast<int>(MsgType::GroupEvent);
        message.content = unknownMessageLine();
    }
}

} // namespace

ViberChats::ViberChats(ChatDatabase database, SenderNames names)
    : TableChats(
        std::move(database), {.name = "ZVIBERMESSAGE"_L1,
                                 .chat = "ZCONVERSATION"_L1,
                                 .date = "ZDATE|ZSTATEDATE"_L1,
                                 .dateOf = cocoaDate,
                                 .columns = {{"ZSTATE"_L1, true}, {"ZTEXT"_L1, true},
                                     {"ZSYSTEMTYPE"_L1}, {"ZPHONENUMINDEX|ZPHONENUMBERINDEX"_L1},
                                     {"ZATTACHMENT"_L1}, {"ZLOCATION"_L1}, {"ZLIKESCOUNT"_L1}}}),
      m_names(std::move(names)), m_media(locator())
{
}

bool ViberChats::isOfKind(const formats::Database& database)
{
    return database.hasTable("ZCONVERSATION"_L1)
           && database.columns("ZVIBERMESSAGE"_L1).contains("ZCONVERSATION"_L1);
}

bool ViberChats::hasMessages(const formats::Database& database)
{
    return !isEmptyTable(database, "ZVIBERMESSAGE"_L1);
}

bool ViberChats::hasCalls(const formats::Database& database)
{
    const QLatin1String table = callTable(database);
    return database.hasTable(table) && !isEmptyTable(database, table);
}

qint64 ViberChats::countRecords(const formats::Database& database)
{
    return countRows(database, "ZVIBERMESSAGE"_L1) + countRows(database, callTable(database));
}

void ViberChats::readPhones()
{
    if (!database().hasTable("ZPHONENUMBER"_L1)) {
        return;
    }
    const std::array<WantedColumn, 2> columns{{{"ZMEMBER"_L1}, {"ZCANONIZEDPHONENUM|ZPHONE"_L1}}};
    reader().read("ZPHONENUMBER"_L1, columns, [this](const formats::Statement& row) {
        QString& phone = m_phones[row.integer(0)];
        phone = firstFilled({phone, shownPhone(row.text(1))});
    });
}

void ViberChats::readBook()
{
    if (!database().hasTable("ZABCONTACT"_L1) || !database().hasTable("ZABCONTACTNUMBER"_L1)) {
        return;
    }
    QHash<qint64, QString> names;
    const std::array<WantedColumn, 3> parts{
        {{"ZPREFIXNAME"_L1}, {"ZMAINNAME"_L1}, {"ZSUFFIXNAME"_L1}}};
    reader().read("ZABCONTACT"_L1, parts, [&](const formats::Statement& row) {
        const QStringList name{row.text(0), row.text(1), row.text(2)};
        names.insert(row.integer(3), plainName(name.join(QChar(u' ')).simplified()));
    });
    const std::array<WantedColumn, 2> numbers{{{"ZCONTACT"_L1}, {"ZCANONIZEDPHONENUM|ZPHONE"_L1}}};
    reader().read("ZABCONTACTNUMBER"_L1, numbers, [&](const formats::Statement& row) {
        if (const QString number = shownPhone(row.text(1)); !number.isEmpty()) {
            m_book.insert(number, names.value(row.integer(0)));
        }
    });
}

// As Viber shows them, as the address book calls them, as they call themselves.
void ViberChats::readPeople()
{
    if (std::exchange(m_arePeopleRead, true)) {
        return;
    }
    readPhones();
    readBook();
    const std::array<WantedColumn, 2> columns{
        {{"ZDISPLAYFULLNAME"_L1}, {"ZNAME|ZDISPLAYSHORTNAME"_L1}}};
    reader().read("ZMEMBER"_L1, columns, [this](const formats::Statement& row) {
        const QString phone = m_phones.value(row.integer(2));
        m_people.insert(
            row.integer(2), {.name = firstFilled({plainName(row.text(0)), m_names.nameOf(phone),
                                 m_book.value(phone), plainName(row.text(1)), phone}),
                                .phone = phone});
    });
}

void ViberChats::readAttachments()
{
    if (!database().hasTable("ZATTACHMENT"_L1)) {
        return;
    }
    const std::array<WantedColumn, 2> columns{{{"ZNAME"_L1}, {"ZTYPE"_L1}}};
    reader().read("ZATTACHMENT"_L1, columns, [this](const formats::Statement& row) {
        m_attachments.insert(row.integer(2), {.name = lastPart(row.text(0)), .type = row.text(1)});
    });
}

void ViberChats::readPlaces()
{
    if (!database().hasTable("ZVIBERLOCATION"_L1)) {
        return;
    }
    const std::array<WantedColumn, 3> columns{
        {{"ZLATITUDE"_L1}, {"ZLONGITUDE"_L1}, {"ZADDRESS"_L1}}};
    reader().read("ZVIBERLOCATION"_L1, columns, [this](const formats::Statement& row) {
        m_places.insert(row.integer(3),
            {.latitude = row.real(0), .longitude = row.real(1), .address = row.text(2)});
    });
}

void ViberChats::readCalls()
{
    for (const ViberCall& call : readViberCalls(reader())) {
        if (call.message != 0 && !m_calls.contains(call.message)) {
            m_calls.insert(call.message, call.call);
        }
    }
}

// A group is called as it calls itself, a person as the person is called.
TableChats::StoredChat ViberChats::chatOf(
    const QString& name, bool isGroup, const QVector<qint64>& members) const
{
    QStringList names;
    QStringList phones;
    for (const qint64 member : members) {
        const Person person = m_people.value(member);
        names.append(person.name);
        phones.append(person.phone);
    }
    names.removeAll(QString());
    phones.removeAll(QString());
    const QString people = names.join(", "_L1);
    const QString title = isGroup ? firstFilled({name, people, tr("Unknown")})
                                  : firstFilled({people, name, tr("Unknown")});
    return {.summary = {.title = title, .name = title, .phones = phones.join(QChar(u','))},
        .isGroup = isGroup};
}

std::vector<TableChats::StoredChat> ViberChats::readChats()
{
    readPeople();
    readAttachments();
    readPlaces();
    readCalls();
    const auto members =
        readJoin(reader(), findJoin(database(), R"(Z_\d+.*)"_L1, R"(.*CONVERSATIONS\d*)"_L1,
                               R"(.*(PHONENUMINDEXES|MEMBERS)\d*)"_L1));
    std::vector<StoredChat> chats;
    const std::array<WantedColumn, 4> columns{
        {{"ZNAME"_L1}, {"ZGROUPID"_L1}, {"ZINTERLOCUTOR"_L1}, {"ZBEINGDELETED"_L1}}};
    reader().read("ZCONVERSATION"_L1, columns, [&](const formats::Statement& row) {
        const qint64 id = row.integer(4);
        const qint64 partner = linkedRow(row, 2);
        const bool hasGroupId = !row.text(1).isEmpty() && row.text(1) != "0"_L1;
        const bool isGroup = hasGroupId || (partner == 0 && members.value(id).size() > 1);
        const bool isWithOne = !isGroup && partner != 0;
        StoredChat chat = chatOf(plainName(row.text(0)), isGroup,
            isWithOne ? QVector<qint64>{partner} : members.value(id));
        chat.summary.id = id;
        chat.summary.deleted = row.integer(3) != 0;
        chats.push_back(std::move(chat));
    });
    return chats;
}

void ViberChats::listMedia()
{
    if (std::exchange(m_isMediaListed, true)) {
        return;
    }
    if (!place().path.contains(QChar(u'/'))) { // a database without its device
        m_media.list(place().domain, "Attachments"_L1, lastPart);
        return;
    }
    for (const QLatin1String domain : kDomains) {
        m_media.list(domain, QString(),
            [](const QString& path) { return isAttachment(path) ? lastPart(path) : QString(); });
    }
    // The directory is not the same in all releases; the name decides.
    for (const QLatin1String domain : kDomains) {
        m_media.list(domain, QString(),
            [](const QString& path) { return isAttachment(path) ? QString() : lastPart(path); });
    }
}

void ViberChats::describe(const Attachment& attachment, StoredMessage& stored)
{
    ChatMessage& message = stored.message;
    message.type = static_cast<int>(typeOf(attachment.type, attachment.name));
    listMedia();
    const DeviceFile* file = m_media.find(attachment.name);
    if (file != nullptr) {
        stored.files = {{.place = *file, .name = attachment.name}};
    }
    if (!message.content.isEmpty()) {
        return;
    }
    if (message.type == static_cast<int>(MsgType::Document)) {
        message.content = attachment.name;
    } else if (file == nullptr && attachment.type == "sticker"_L1) {
        message.content = stickerText();
    }
}

bool ViberChats::canHaveFile(const formats::Statement& row) const
{
    return row.integer(AttachmentRow) != 0;
}

TableChats::StoredMessage ViberChats::readMessage(
    const formats::Statement& row, const StoredChat& chat)
{
    StoredMessage stored;
    ChatMessage& message = stored.message;
    message.fromMe = isOwn(row);
    message.content = row.text(TextColumn);
    if (chat.isGroup && !message.fromMe) {
        message.member = m_people.value(row.integer(Sender)).name;
    }
    message.likeCount = static_cast<int>(std::clamp<qint64>(row.integer(Likes), 0, INT32_MAX));
    message.drawLike = message.likeCount > 0;
    message.likeType = message.drawLike ? 1 : 0;

    const auto attachment = m_attachments.constFind(row.integer(AttachmentRow));
    const auto location = m_places.constFind(row.integer(LocationRow));
    const auto call = m_calls.constFind(row.integer(idColumn()));
    if (attachment != m_attachments.constEnd()) {
        describe(*attachment, stored);
    }
    if (location != m_places.constEnd()) {
        message.type = static_cast<int>(MsgType::Location);
        message.content = locationText(firstFilled({message.content, location->address}),
            location->latitude, location->longitude);
    } else if (call != m_calls.constEnd()) {
        message.type = static_cast<int>(MsgType::GroupEvent);
        message.content = callLine({.isVideo = call->service == CallService::AppVideo,
            .isMissed = call->type == CallType::Missed,
            .fromMe = call->type == CallType::Outgoing,
            .seconds = call->seconds,
            .caller = message.member});
    } else if (attachment == m_attachments.constEnd()) {
        finishText(row, message);
    }
    return stored;
}

std::vector<ChatFile> ViberChats::leftOverFiles()
{
    listMedia();
    std::vector<ChatFile> files;
    for (const DeviceFile& file : m_media.leftOver()) {
        if (isAttachment(file.path)) {
            files.push_back({.name = lastPart(file.path), .place = file});
        }
    }
    return files;
}

// Who called, or the other person of the chat that shows the call.
qint64 ViberChats::partnerOfMessage(qint64 message) const
{
    const std::array<WantedColumn, 2> columns{
        {{"ZPHONENUMINDEX|ZPHONENUMBERINDEX"_L1}, {"ZCONVERSATION"_L1}}};
    auto row = reader().prepareRow("ZVIBERMESSAGE"_L1, columns);
    if (!row || !row->bind(1, message).next()) {
        return 0;
    }
    const qint64 sender = linkedRow(*row, 0);
    const std::array<WantedColumn, 1> partner{{{"ZINTERLOCUTOR"_L1}}};
    auto chat = reader().prepareRow("ZCONVERSATION"_L1, partner);
    const bool isRead = chat && chat->bind(1, row->integer(1)).next();
    const qint64 other = isRead ? linkedRow(*chat, 0) : 0;
    return other != 0 ? other : sender;
}

// Who it was, as far as Viber's own list does not tell.
void ViberChats::completeCall(ViberCall& listed) const
{
    Call& call = listed.call;
    const Person person =
        listed.message == 0 ? Person() : m_people.value(partnerOfMessage(listed.message));
    call.storedName = firstFilled({person.name, m_book.value(shownPhone(call.addresses.value(0)))});
    if (call.addresses.isEmpty() && !person.phone.isEmpty()) {
        call.addresses.append(person.phone);
    }
}

RecordList ViberChats::calls()
{
    readPeople();
    std::vector<Call> calls;
    for (ViberCall& listed : readViberCalls(reader())) {
        completeCall(listed);
        calls.push_back(std::move(listed.call));
    }
    return callRecords(std::move(calls), m_names);
}

std::unique_ptr<PRData> ViberChats::callList()
{
    return std::make_unique<ListedData>(kCallType, callColumns(), [this] { return calls(); });
}

} // namespace backup
