// SPDX-License-Identifier: MIT
#include "WhatsAppStore.h"

#include "common.h"
#include "core_data.h"
#include "media.h"

#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <array>
#include <utility>

namespace sample {

namespace {

constexpr int kMediaEntity = 8;
constexpr int kMessageEntity = 9;
constexpr int kDelivered = 6;
constexpr int kNotSent = 9;
constexpr int kForwarded = 0x180;

struct Kind {
    const char* name = nullptr;
    int type = 0;
};
// clang-format off
constexpr std::array kKinds{
    Kind{"picture", 1}, Kind{"film", 2},      Kind{"sound", 3},   Kind{"cards", 4},    Kind{"place", 5},    Kind{"group", 6},
    Kind{"link", 7},    Kind{"document", 8},  Kind{"notice", 10}, Kind{"gif", 11},     Kind{"deleted", 14}, Kind{"sticker", 15},
    Kind{"template", 20}, Kind{"poll", 46},
};
// clang-format on

int typeOf(const QString& kind)
{
    if (kind.isEmpty()) {
        return 0;
    }
    const auto* const found =
        std::ranges::find_if(kKinds, [&](const Kind& each) { return kind == each.name; });
    if (found == kKinds.end()) {
        fail("whatsapp.json: there is no kind " + kind);
    }
    return found->type;
}

QByteArray varint(quint64 value)
{
    QByteArray bytes;
    for (; value >= 0x80; value >>= 7) {
        bytes.append(static_cast<char>((value & 0x7F) | 0x80));
    }
    return bytes.append(static_cast<char>(value));
}

// A field of a message of bytes, which holds a text or another message.
QByteArray field(quint64 number, const QByteArray& content)
{
    return varint(number << 3 | 2) + varint(static_cast<quint64>(content.size())) + content;
}

QString stanzaOf(const QString& at)
{
    return "3EB0" + uuidFor("whatsapp " + at).remove('-').left(16);
}

QString card(const QJsonValue& source)
{
    const QString name = source[0].toString();
    return "BEGIN:VCARD\nVERSION:3.0\nN:" + name.section(' ', 1) + ";" + name.section(' ', 0, 0)
           + ";;;\nFN:" + name + "\nitem1.TEL:" + source[1].toString() + "\nEND:VCARD";
}

QVariant orNull(const QString& text)
{
    return text.isEmpty() ? QVariant() : QVariant(text);
}

} // namespace

WhatsAppStore::WhatsAppStore(
    Database& chats, Database& contacts, BackupWriter& backup, QString media)
    : m_chats(chats), m_contacts(contacts), m_backup(backup), m_media(std::move(media))
{
}

void WhatsAppStore::write(const QJsonObject& account, const QJsonValue& people)
{
    m_domain = account["domain"].toString();
    m_chats.run("BEGIN");
    m_contacts.run("BEGIN");
    describeStore(m_chats, m_domain,
        {{4, "WAChatSession"}, {kMediaEntity, "WAMediaItem"}, {kMessageEntity, "WAMessage"}});
    describeStore(m_contacts, m_domain + " contacts", {{1, "WAAddressBookContact"}});
    for (const QJsonValue& person : entriesOf(people)) {
        writePerson(person.toObject());
    }
    for (const QJsonValue& chat : entriesOf(account["chats"])) {
        writeChat(chat.toObject());
    }
    for (const QJsonValue& file : entriesOf(account["leftOver"])) {
        const QString name = file["file"].toString();
        addFile(name, m_people[file["of"].toString()].address, "left over " + name);
    }
    m_contacts.run("COMMIT");
    m_chats.run("COMMIT");
}

void WhatsAppStore::writePerson(const QJsonObject& source)
{
    const QString number = source["number"].toString();
    const QString hidden = source["hidden"].toString();
    const Person person{.address = number + "@s.whatsapp.net",
        .hidden = hidden.isEmpty() ? QString() : hidden + "@lid",
        .name = source["contact"].toString()};
    m_people[source["key"].toString()] = person;
    if (!person.name.isEmpty()) {
        m_contacts.insert("ZWAADDRESSBOOKCONTACT",
            {{"Z_ENT", 1}, {"Z_OPT", 1}, {"ZFULLNAME", person.name},
                {"ZLID", orNull(person.hidden)}, {"ZPHONENUMBER", "+" + number},
                {"ZWHATSAPPID", person.address}});
    }
    if (source.contains("chosen")) {
        m_chats.insert("ZWAPROFILEPUSHNAME", {{"Z_ENT", 13}, {"Z_OPT", 1}, {"ZJID", person.address},
                                                 {"ZPUSHNAME", source["chosen"].toString()}});
    }
}

void WhatsAppStore::writeChat(const QJsonObject& source)
{
    const std::vector<QJsonValue> messages = entriesOf(source["messages"]);
    const QString with = source["with"].toString(source["hidden"].toString());
    const Person& other = m_people[with];
    Chat chat{.isGroup = source.contains("group")};
    int kind = 0;
    if (chat.isGroup) {
        kind = 1;
        chat.address = source["group"].toString() + "@g.us";
    } else if (source.contains("list")) {
        kind = 2;
        chat.address = source["list"].toString() + "@broadcast";
    } else {
        chat.address = source.contains("hidden") ? other.hidden : other.address;
    }
    chat.row = m_chats.insert("ZWACHATSESSION",
        {{"Z_ENT", 4}, {"Z_OPT", 1}, {"ZARCHIVED", 0}, {"ZCONTACTJID", chat.address},
            {"ZLASTMESSAGEDATE", secondsSince2001(messages.back()["at"].toString())},
            {"ZMESSAGECOUNTER", static_cast<int>(messages.size())},
            {"ZPARTNERNAME", source["title"].toString(other.name)},
            {"ZREMOVED", source["deleted"].toBool() ? 1 : 0}, {"ZSESSIONTYPE", kind}});
    for (const QJsonValue& key : entriesOf(source["with"])) {
        writeMember(key.toString(), true, chat);
    }
    for (const QJsonValue& key : entriesOf(source["left"])) {
        writeMember(key.toString(), false, chat);
    }
    for (const QJsonValue& message : messages) {
        writeMessage(message.toObject(), chat);
    }
}

void WhatsAppStore::writeMember(const QString& key, bool isActive, Chat& chat)
{
    const Person& person = m_people[key];
    chat.members[key] = m_chats.insert("ZWAGROUPMEMBER",
        {{"Z_ENT", 6}, {"Z_OPT", 1}, {"ZCHATSESSION", chat.row},
            {"ZCONTACTNAME", orNull(person.name)}, {"ZISACTIVE", isActive ? 1 : 0}, {"ZISADMIN", 0},
            {"ZMEMBERJID", person.address}});
}

// Captions stand with the media, persons of an event in the text.
QString WhatsAppStore::text(const QJsonObject& source) const
{
    QStringList persons;
    for (const QJsonValue& key : entriesOf(source["persons"])) {
        persons.append(m_people[key.toString()].address);
    }
    const bool hasCaption = source.contains("file") || source.contains("likeness");
    return !persons.isEmpty() ? persons.join(',')
           : hasCaption       ? QString()
                              : source["text"].toString();
}

void WhatsAppStore::writeMessage(const QJsonObject& source, const Chat& chat)
{
    const qint64 number = ++m_messages;
    const QString at = source["at"].toString();
    const QString from = source["from"].toString();
    const bool own = from == "me";
    const qint64 moment = secondsSince2001(at);
    const int state = source["failed"].toBool() ? kNotSent : kDelivered;
    if (source.contains("id")) {
        m_answered[source["id"].toString()] = stanzaOf(at) + " " + m_people[from].address;
    }
    const qint64 media = writeMedia(source, chat, number);
    const QByteArray info = receipts(source);
    const qint64 infoRow =
        info.isEmpty()
            ? 0
            : m_chats.insert("ZWAMESSAGEINFO",
                {{"Z_ENT", 11}, {"Z_OPT", 1}, {"ZMESSAGE", number}, {"ZRECEIPTINFO", info}});
    m_chats.insert("ZWAMESSAGE",
        {{"Z_PK", number}, {"Z_ENT", kMessageEntity}, {"Z_OPT", 1}, {"ZCHATSESSION", chat.row},
            {"ZFLAGS", source["forwarded"].toBool() ? kForwarded : 0},
            {"ZFROMJID", own ? QVariant() : QVariant(chat.address)},
            {"ZGROUPEVENTTYPE", source["event"].toInt()},
            {"ZGROUPMEMBER", chat.isGroup && !own ? QVariant(chat.members[from]) : QVariant()},
            {"ZISFROMME", own ? 1 : 0}, {"ZMEDIAITEM", media != 0 ? QVariant(media) : QVariant()},
            {"ZMESSAGEDATE", moment},
            {"ZMESSAGEINFO", infoRow != 0 ? QVariant(infoRow) : QVariant()},
            {"ZMESSAGESTATUS", own ? state : 0},
            {"ZMESSAGETYPE", typeOf(source["kind"].toString())}, {"ZSENTDATE", moment},
            {"ZSORT", number}, {"ZSTANZAID", stanzaOf(at)}, {"ZSTARRED", 0},
            {"ZTEXT", orNull(text(source))},
            {"ZTOJID", own ? QVariant(chat.address) : QVariant()}});
}

qint64 WhatsAppStore::writeMedia(const QJsonObject& source, const Chat& chat, qint64 message)
{
    const QString at = source["at"].toString();
    const QString file = source["file"].toString();
    const QString likeness = source["likeness"].toString();
    const QByteArray bytes = metadata(source);
    QStringList names;
    QStringList cards;
    for (const QJsonValue& each : entriesOf(source["cards"])) {
        names.append(each[0].toString());
        cards.append(card(each));
    }
    const bool isPlace = source.contains("latitude");
    if (file.isEmpty() && likeness.isEmpty() && bytes.isEmpty() && cards.isEmpty() && !isPlace) {
        return 0;
    }
    const QString title = source["name"].toString(
        file.isEmpty() && likeness.isEmpty() ? QString() : source["text"].toString());
    return m_chats.insert("ZWAMEDIAITEM",
        {{"Z_ENT", kMediaEntity}, {"Z_OPT", 1}, {"ZLATITUDE", source["latitude"].toDouble()},
            {"ZLONGITUDE", source["longitude"].toDouble()},
            {"ZMEDIALOCALPATH", orNull(file.isEmpty() ? file : addFile(file, chat.address, at))},
            {"ZXMPPTHUMBPATH",
                orNull(
                    likeness.isEmpty() ? likeness : addFile(likeness, chat.address, at, "thumb"))},
            {"ZMESSAGE", message}, {"ZMETADATA", bytes.isEmpty() ? QVariant() : QVariant(bytes)},
            {"ZTITLE", orNull(isPlace ? source["address"].toString() : title)},
            {"ZVCARDNAME",
                orNull(isPlace ? source["name"].toString() : names.join("_$!<Name-Separator>!$_"))},
            {"ZVCARDSTRING", orNull(cards.join("_$!<VCard-Separator>!$_"))}});
}

QByteArray WhatsAppStore::metadata(const QJsonObject& source) const
{
    const QString answered = m_answered.value(source["answers"].toString());
    return answered.isEmpty() ? QByteArray()
                              : field(5, answered.section(' ', 0, 0).toUtf8())
                                    + field(6, answered.section(' ', 1).toUtf8());
}

QByteArray WhatsAppStore::receipts(const QJsonObject& source) const
{
    QByteArray reactions;
    for (const QJsonValue& each : entriesOf(source["reactions"])) {
        const QString who = each[0].toString();
        const QByteArray emoji = each[1].toString().toUtf8();
        reactions += who == "me"
                         ? field(2, field(2, emoji))
                         : field(1, field(2, m_people[who].address.toUtf8()) + field(3, emoji));
    }
    QByteArray info = reactions.isEmpty() ? QByteArray() : field(7, reactions);
    if (source.contains("question")) {
        QByteArray poll = field(2, source["question"].toString().toUtf8());
        for (const QJsonValue& option : entriesOf(source["options"])) {
            poll += field(3, field(1, option.toString().toUtf8()));
        }
        info += field(8, poll);
    }
    return info;
}

// Gives the path by which a row names the file.
QString WhatsAppStore::addFile(
    const QString& file, const QString& owner, const QString& at, const QString& ending)
{
    const QString id = uuidFor("whatsapp file " + at).toLower();
    QString path = "Media/" + owner + "/" + id.left(1) + "/" + id.mid(1, 1) + "/" + id + "."
                   + (ending.isEmpty() ? QFileInfo(file).suffix() : ending);
    m_backup.addFile(m_domain, "Message/" + path, media(file, m_media));
    return path;
}

} // namespace sample
