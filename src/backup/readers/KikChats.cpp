// SPDX-License-Identifier: MIT
// cores/private/<32 hexadecimal digits>/
//   kik.sqlite
//     ZKIKMESSAGE     ZUSER -> ZKIKUSER (the chat: a person or a group), ZTYPE 1 received, 2 sent,
//                     3 and 4 notice, ZTIMESTAMP, ZRECEIVEDTIMESTAMP seconds since 2001, ZBODY
//     ZKIKUSER        ZDISPLAYNAME, ZUSERNAME, ZJID
//     ZKIKATTACHMENT  ZMESSAGE, ZCONTENT: the name of a file
//     Z_<n>MEMBERS    joins groups and people
//   content_manager/data_cache/<ZCONTENT>, attachments/<ZCONTENT>    without an ending
#include "backup/readers/KikChats.h"

#include "backup/readers/chat_lines.h"
#include "backup/readers/file_signature.h"
#include "backup/readers/media_kind.h"
#include "platform/literals.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace backup {

namespace {

constexpr QLatin1String kMembers = R"(Z_\d+MEMBERS)"_L1; // a table, and a column of it

enum Column : int { Type = 2, Body };
enum MessageType : int { Received = 1, Sent = 2, Notice = 3, OtherNotice = 4 };

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

MsgType typeOfEnding(QLatin1String ending)
{
    switch (mediaKindOf(QChar(u'.') + QString(ending))) {
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

} // namespace

KikChats::KikChats(ChatDatabase database)
    : TableChats(std::move(database), {.name = "ZKIKMESSAGE"_L1,
                                          .chat = "ZUSER"_L1,
                                          .date = "ZTIMESTAMP|ZRECEIVEDTIMESTAMP"_L1,
                                          .dateOf = cocoaDate,
                                          .columns = {{"ZTYPE"_L1, true}, {"ZBODY"_L1, true}}}),
      m_media(locator())
{
}

bool KikChats::isOfKind(const formats::Database& database)
{
    return database.hasTable("ZKIKUSER"_L1)
           && database.columns("ZKIKMESSAGE"_L1).contains("ZUSER"_L1);
}

bool KikChats::hasMessages(const formats::Database& database)
{
    return !isEmptyTable(database, "ZKIKMESSAGE"_L1);
}

qint64 KikChats::countRecords(const formats::Database& database)
{
    return countRows(database, "ZKIKMESSAGE"_L1);
}

void KikChats::readAttachments()
{
    if (!database().hasTable("ZKIKATTACHMENT"_L1)) {
        return;
    }
    const std::array<WantedColumn, 2> columns{{{"ZMESSAGE"_L1}, {"ZCONTENT"_L1}}};
    reader().read("ZKIKATTACHMENT"_L1, columns, [this](const formats::Statement& row) {
        m_attachments[row.integer(0)].append(lastPart(row.text(1)));
    });
}

std::vector<TableChats::StoredChat> KikChats::readChats()
{
    readAttachments();
    std::vector<StoredChat> chats;
    QHash<qint64, QString> names;
    const std::array<WantedColumn, 2> columns{{{"ZDISPLAYNAME"_L1}, {"ZUSERNAME"_L1}}};
    reader().read("ZKIKUSER"_L1, columns, [&](const formats::Statement& row) {
        const QString userName = plainName(row.text(1));
        const QString title = firstFilled({plainName(row.text(0)), userName});
        names.insert(row.integer(2), title);
        chats.push_back({.summary = {.id = row.integer(2), .title = title, .name = userName}});
    });
    const auto members = readJoin(reader(), findJoin(database(), kMembers, {}, kMembers));
    for (StoredChat& chat : chats) {
        const QVector<qint64> group = members.value(chat.summary.id);
        chat.isGroup = !group.isEmpty();
        QStringList people;
        std::ranges::transform(
            group, std::back_inserter(people), [&](qint64 member) { return names.value(member); });
        people.removeAll(QString());
        QString& title = chat.summary.title;
        title = firstFilled({title, people.join(", "_L1), tr("Unknown")});
        chat.summary.name = firstFilled({chat.summary.name, title});
    }
    return chats;
}

void KikChats::listMedia()
{
    if (std::exchange(m_isMediaListed, true)) {
        return;
    }
    const QString& path = place().path;
    const QString directory = path.left(path.lastIndexOf(QChar(u'/')) + 1);
    for (const QLatin1String media : {"content_manager/data_cache"_L1, "attachments"_L1}) {
        m_media.list(place().domain, directory + media, lastPart);
    }
}

// Files have no endings; their first bytes tell what they are.
TableChats::StoredFile KikChats::described(const DeviceFile& file) const
{
    const QLatin1String ending = endingOfFile(locator().locate(file.domain, file.path));
    const QString name = lastPart(file.path);
    return {.place = file,
        .name = ending.isEmpty() ? name : name + QChar(u'.') + ending,
        .type = static_cast<int>(typeOfEnding(ending))};
}

TableChats::StoredFile KikChats::fileOf(const QString& content)
{
    listMedia();
    const DeviceFile* file = m_media.find(content);
    return file != nullptr ? described(*file)
                           : StoredFile{.type = static_cast<int>(MsgType::Document)};
}

bool KikChats::canHaveFile(const formats::Statement& row) const
{
    return m_attachments.contains(row.integer(idColumn()));
}

TableChats::StoredMessage KikChats::readMessage(
    const formats::Statement& row, const StoredChat& /*chat*/)
{
    StoredMessage stored;
    ChatMessage& message = stored.message;
    const qint64 type = row.integer(Type);
    message.fromMe = type == Sent;
    message.content = row.text(Body);
    const QStringList contents = m_attachments.value(row.integer(idColumn()));
    for (const QString& content : contents) {
        stored.files.push_back(fileOf(content));
    }
    if (type == Notice || type == OtherNotice) {
        message.type = static_cast<int>(MsgType::GroupEvent);
        message.content = firstFilled({message.content, systemMessageLine()});
    } else if (!stored.files.empty()) {
        message.type = stored.files.front().type;
    } else if (message.content.isEmpty()) {
        message.type = static_cast<int>(MsgType::GroupEvent);
        message.content = unknownMessageLine();
    }
    return stored;
}

std::vector<ChatFile> KikChats::leftOverFiles()
{
    listMedia();
    std::vector<ChatFile> files;
    for (const DeviceFile& file : m_media.leftOver()) {
        StoredFile found = described(file);
        files.push_back({.name = std::move(found.name), .place = std::move(found.place)});
    }
    return files;
}

} // namespace backup
