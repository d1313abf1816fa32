// SPDX-License-Identifier: MIT
#include "MessageStore.h"

#include "common.h"
#include "media.h"
#include "message_bodies.h"

#include <QFileInfo>
#include <QJsonArray>

#include <algorithm>
#include <array>

namespace sample {

namespace {

constexpr int kOneToOne = 45;
constexpr int kGroup = 43;
constexpr int kSticker = 1000;
constexpr int kTransferDone = 5;
constexpr qint64 kSecondsToRead = 45;
constexpr qint64 kSecondsToDeliver = 2;

// From this release on, own messages have their text in the body alone.
const char* const kBodyAloneSince = "2022-09-12 00:00:00";

struct EventKind {
    const char* name;
    int itemType;
    int action;
    int shareStatus;
};
// clang-format off
constexpr std::array kEvents{
    EventKind{"added",           1, 0, 0},
    EventKind{"removed",         1, 1, 0},
    EventKind{"renamed",         2, 0, 0},
    EventKind{"left",            3, 0, 0},
    EventKind{"changed photo",   3, 1, 0},
    EventKind{"removed photo",   3, 2, 0},
    EventKind{"shared location", 4, 0, 0},
    EventKind{"hid location",    4, 0, 1},
    EventKind{"kept audio",      5, 0, 0},
};

struct FileKind {
    const char* suffix;
    const char* mimeType;
    const char* uti;
};
constexpr std::array kFileKinds{
    FileKind{"jpg",     "image/jpeg",       "public.jpeg"},
    FileKind{"jpeg",    "image/jpeg",       "public.jpeg"},
    FileKind{"png",     "image/png",        "public.png"},
    FileKind{"heic",    "image/heic",       "public.heic"},
    FileKind{"mov",     "video/quicktime",  "com.apple.quicktime-movie"},
    FileKind{"caf",     "audio/x-caf",      "com.apple.coreaudio-format"},
    FileKind{"pdf",     "application/pdf",  "com.adobe.pdf"},
    FileKind{"vcf",     "text/vcard",       "public.vcard"},
    FileKind{"loc.vcf", "text/x-vlocation", "public.vlocation"},
};

struct Country {
    const char* prefix;
    const char* code;
};
constexpr std::array kCountries{
    Country{"+49", "de"},
    Country{"+44", "gb"},
    Country{"+1",  "us"},
};
// clang-format on

qint64 nanoseconds(qint64 seconds)
{
    return seconds * 1'000'000'000;
}

qint64 nanosecondsAt(const QString& moment)
{
    return nanoseconds(secondsSince2001(moment));
}

QVariant countryOf(const QString& address)
{
    const auto* const found = std::ranges::find_if(
        kCountries, [&](const Country& country) { return address.startsWith(country.prefix); });
    return found != kCountries.end() ? QVariant(found->code) : QVariant();
}

const FileKind& kindOf(const QString& name)
{
    const QFileInfo file(name);
    const QString suffix = name.endsWith(".loc.vcf") ? "loc.vcf" : file.suffix().toLower();
    const auto* const found = std::ranges::find_if(
        kFileKinds, [&](const FileKind& kind) { return suffix == kind.suffix; });
    if (found == kFileKinds.end()) {
        fail("no kind of file is known for " + name);
    }
    return *found;
}

// Below the folder of attachments: two levels by the id's first byte, then the id.
QString attachmentPath(const QString& guid, const QString& name)
{
    const QString id = uuidFor("folder of " + guid);
    const QString first = id.left(2).toLower();
    const int second = first.right(1).toInt(nullptr, 16);
    return QString("Library/SMS/Attachments/%1/%2/%3/%4")
        .arg(first)
        .arg(second, 2, 10, QLatin1Char('0'))
        .arg(id, name);
}

int partsOf(const AttributedText& body)
{
    return body.runs.empty() ? 0 : body.runs.back().attributes.front().second.toInt() + 1;
}

void append(Database::Row& row, const Database::Row& more)
{
    row.insert(row.end(), more.begin(), more.end());
}

} // namespace

MessageStore::MessageStore(
    const Conversations& source, Database& database, BackupWriter& backup, QString mediaFolder)
    : m_source(source), m_database(database), m_backup(backup),
      m_mediaFolder(std::move(mediaFolder)), m_ownPhone(source.source()["phone"].toString()),
      m_ownMail(source.source()["mail"].toString())
{
}

// What was written since `lastCheckpoint` lies in the log alone.
void MessageStore::write()
{
    const qint64 checkpoint = secondsSince2001(m_source.source()["lastCheckpoint"].toString());
    m_database.run("BEGIN");
    m_database.insert("_SqliteDatabaseProperties",
        {{"key", "_UniqueIdentifier"}, {"value", uuidFor("message store")}});
    for (const Conversation& conversation : m_source.conversations()) {
        writeConversation(conversation);
    }
    bool inLog = false;
    for (const Message& message : m_source.messages()) {
        if (!inLog && message.seconds >= checkpoint) {
            inLog = true;
            erase();
            m_database.run("COMMIT");
            m_database.checkpoint();
            m_database.run("BEGIN");
        }
        writeMessage(message);
    }
    m_database.run("COMMIT");
}

qint64 MessageStore::handle(const QString& address, const QString& service)
{
    qint64& row = m_handles[service + " " + address];
    if (row == 0) {
        row = m_database.insert(
            "handle", {{"id", address}, {"country", countryOf(address)}, {"service", service}});
    }
    return row;
}

void MessageStore::writeConversation(const Conversation& conversation)
{
    const QString room = conversation.group ? conversation.identifier : QString();
    const QString group = uuidFor("group " + conversation.guid);
    const qint64 chat = m_database.insert(
        "chat", {{"guid", conversation.guid}, {"style", conversation.group ? kGroup : kOneToOne},
                    {"state", 3}, {"account_id", uuidFor("account " + conversation.service)},
                    {"chat_identifier", conversation.identifier},
                    {"service_name", conversation.service}, {"room_name", room},
                    {"account_login", "P:" + m_ownPhone}, {"last_addressed_handle", m_ownPhone},
                    {"display_name", conversation.source["name"].toString()}, {"group_id", group},
                    {"is_archived", conversation.source["archived"].toBool() ? 1 : 0},
                    {"is_filtered", conversation.source["filtered"].toBool() ? 1 : 0},
                    {"successful_query", 1}, {"original_group_id", group}});
    m_chats[&conversation] = chat;
    for (const QString& address : conversation.with) {
        m_database.insert("chat_handle_join",
            {{"chat_id", chat}, {"handle_id", handle(address, conversation.service)}});
    }
}

void MessageStore::writeMessage(const Message& message)
{
    Database::Row row{{"ROWID", message.rowId}, {"guid", message.guid}, {"version", 10},
        {"date", nanoseconds(message.seconds)}, {"is_finished", 1}};
    addSender(row, message);
    addState(row, message);
    if (message.has("event")) {
        addEvent(row, message);
    } else {
        addText(row, message);
        addReference(row, message);
        addChanges(row, message);
    }
    m_database.insert("message", row);
    placeMessage(message);
    writeFiles(message);
}

void MessageStore::addSender(Database::Row& row, const Message& message)
{
    // An own message names the other person, one to a group nobody.
    const bool toOne = message.conversation != nullptr && !message.conversation->group;
    const QString address =
        message.fromMe() ? (toOne ? message.conversation->identifier : QString()) : message.sender;
    const QVariant room = message.conversation != nullptr && message.conversation->group
                              ? QVariant(message.conversation->identifier)
                              : QVariant();
    append(row, {{"handle_id", address.isEmpty() ? 0 : handle(address, message.service)},
                    {"service", message.service}, {"is_from_me", message.fromMe() ? 1 : 0},
                    {"account", message.service == "SMS" ? "P:" + m_ownPhone : "E:" + m_ownMail},
                    {"account_guid", uuidFor("account " + message.service)},
                    {"destination_caller_id", m_ownPhone}, {"cache_roomnames", room}});
}

void MessageStore::addState(Database::Row& row, const Message& message) const
{
    const int error = message.source["error"].toInt();
    const bool sent = message.fromMe() && error == 0;
    const bool delivered = sent && message.service == "iMessage";
    const bool read = !message.fromMe() && !message.has("unread");
    append(row,
        {{"error", error}, {"is_sent", sent ? 1 : 0}, {"is_read", read ? 1 : 0},
            {"is_delivered", delivered || !message.fromMe() ? 1 : 0},
            {"date_read", read ? nanoseconds(message.seconds + kSecondsToRead) : 0},
            {"date_delivered", delivered ? nanoseconds(message.seconds + kSecondsToDeliver) : 0},
            {"was_downgraded", message.has("downgraded") ? 1 : 0}});
    if (message.has("audio")) {
        append(row, {{"is_audio_message", 1}, {"is_played", 1}, {"is_expirable", 1},
                        {"date_played", nanoseconds(message.seconds + kSecondsToRead)}});
    }
}

void MessageStore::addText(Database::Row& row, const Message& message) const
{
    if (message.has("unsent")) {
        return;
    }
    const QString text = currentText(message, m_source);
    const QString place = message.value("stored");
    const bool newOwn = message.fromMe() && message.service == "iMessage"
                        && message.seconds >= secondsSince2001(kBodyAloneSince);
    const bool bodyAlone =
        place == "body" || message.has("edits") || (newOwn && !message.has("tapback"));
    const AttributedText body = bodyOf(message, text);
    append(row, {{"text", bodyAlone ? QString() : text}, {"part_count", partsOf(body)},
                    {"subject", message.has("subject") ? message.value("subject") : QString()},
                    {"cache_has_attachments", message.has("files") ? 1 : 0},
                    {"has_dd_results", message.has("link") ? 1 : 0}});
    if (place != "text") {
        append(row, {{"attributedBody", typedstream(body)}});
    }
    if (message.has("effect")) {
        append(row, {{"expressive_send_style_id", message.value("effect")}});
    }
    if (message.has("link")) {
        append(row, {{"balloon_bundle_id", "com.apple.messages.URLBalloonProvider"},
                        {"payload_data", linkPreviewOf(message)}});
    }
}

void MessageStore::addEvent(Database::Row& row, const Message& message)
{
    const QString name = message.value("event");
    const auto* const kind =
        std::ranges::find_if(kEvents, [&](const EventKind& event) { return name == event.name; });
    if (kind == kEvents.end()) {
        fail("no event is called \"" + name + "\"");
    }
    const QString other = message.value("other");
    const bool otherIsOwner = other.isEmpty() || other == "me";
    append(row, {{"item_type", kind->itemType}, {"group_action_type", kind->action},
                    {"other_handle", otherIsOwner ? 0 : handle(other, message.service)},
                    {"share_status", kind->shareStatus},
                    {"group_title", message.has("title") ? message.value("title") : QString()}});
}

void MessageStore::addReference(Database::Row& row, const Message& message) const
{
    if (message.service == "iMessage" && !message.previousGuid.isEmpty()) {
        append(row, {{"reply_to_guid", message.previousGuid}});
    }
    if (message.has("replyTo")) {
        const Message& first = m_source.message(message.value("replyTo"));
        append(row,
            {{"thread_originator_guid", first.guid},
                {"thread_originator_part", QString("0:0:%1").arg(originalText(first).size())}});
    }
    if (message.has("on")) {
        const Message& target = m_source.message(message.value("on"));
        const int type = message.has("tapback") ? tapbackType(message) : kSticker;
        append(row, {{"associated_message_guid",
                         QString("p:%1/%2").arg(message.source["part"].toInt()).arg(target.guid)},
                        {"associated_message_type", type},
                        {"associated_message_range_length", originalText(target).size()},
                        {"associated_message_emoji",
                            type % 1000 == 6 ? message.value("tapback") : QString()}});
    }
}

void MessageStore::addChanges(Database::Row& row, const Message& message) const
{
    const QByteArray summary = summaryOf(message);
    if (summary.isEmpty()) {
        return;
    }
    const QString moment =
        message.has("unsent")
            ? message.value("unsent")
            : message.source["edits"].toArray().last().toObject()["at"].toString();
    append(row, {{"message_summary_info", summary}, {"date_edited", nanosecondsAt(moment)}});
}

// In its conversation, among the deleted ones of it, or nowhere.
void MessageStore::placeMessage(const Message& message)
{
    if (message.conversation == nullptr) {
        return;
    }
    const qint64 chat = m_chats[message.conversation];
    const QString deleted =
        message.source["deleted"].toString(message.conversation->source["deleted"].toString());
    if (!deleted.isEmpty()) {
        m_database.insert(
            "chat_recoverable_message_join", {{"chat_id", chat}, {"message_id", message.rowId},
                                                 {"delete_date", nanosecondsAt(deleted)}});
        return;
    }
    m_database.insert("chat_message_join", {{"chat_id", chat}, {"message_id", message.rowId},
                                               {"message_date", nanoseconds(message.seconds)}});
    if (message.has("removedPart")) {
        writeRemovedPart(message, chat);
    }
}

void MessageStore::writeRemovedPart(const Message& message, qint64 chat)
{
    const QJsonObject part = message.source["removedPart"].toObject();
    const QString text = part["text"].toString();
    const AttributedText body{.text = text,
        .runs = {{.length = text.size(),
            .attributes = {{"__kIMMessagePartAttributeName", part["part"].toInt()}}}}};
    m_database.insert("recoverable_message_part",
        {{"chat_id", chat}, {"message_id", message.rowId}, {"part_index", part["part"].toInt()},
            {"delete_date", nanosecondsAt(part["at"].toString())},
            {"part_text", typedstream(body)}});
}

void MessageStore::writeFiles(const Message& message)
{
    const QJsonArray sources = message.source["files"].toArray();
    int number = 0;
    for (const MessageFile& file : filesOf(message)) {
        const QJsonObject source = sources[number++].toObject();
        const FileKind& kind = kindOf(file.name);
        const QString path = attachmentPath(file.guid, file.name);
        const bool purged = source["purged"].toBool();
        const QByteArray bytes =
            purged ? QByteArray() : media(source["file"].toString(), m_mediaFolder);
        const int size = purged ? source["size"].toInt() : bytes.size();
        const bool sticker = message.has("sticker");
        const qint64 row = m_database.insert("attachment",
            {{"guid", file.guid}, {"original_guid", file.guid}, {"created_date", message.seconds},
                {"start_date", message.seconds}, {"filename", purged ? QString() : "~/" + path},
                {"uti", kind.uti}, {"mime_type", kind.mimeType},
                {"transfer_state", purged ? 0 : kTransferDone},
                {"is_outgoing", message.fromMe() ? 1 : 0}, {"transfer_name", file.name},
                {"total_bytes", size}, {"is_sticker", sticker ? 1 : 0}});
        m_database.insert(
            "message_attachment_join", {{"message_id", message.rowId}, {"attachment_id", row}});
        if (!bytes.isEmpty()) {
            m_backup.addFile("MediaDomain", path, bytes, message.seconds + kUnixAt2001);
        }
    }
}

// Deleted for good: the rows are gone, what is left of them lies in free space of the file.
void MessageStore::erase()
{
    for (const Message& message : m_source.messages()) {
        if (!message.has("erased")) {
            continue;
        }
        const QByteArray row = QByteArray::number(message.rowId);
        m_database.run("DELETE FROM chat_message_join WHERE message_id = " + row);
        m_database.run("DELETE FROM message WHERE ROWID = " + row);
        m_database.insert("deleted_messages", {{"guid", message.guid}});
    }
}

} // namespace sample
