// SPDX-License-Identifier: MIT
#include "LineStore.h"

#include "common.h"
#include "core_data.h"
#include "media.h"
#include "plist_writer.h"

#include <QCryptographicHash>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <utility>

namespace sample {

namespace {

constexpr int kMessageEntity = 5;
constexpr int kChatEntity = 1;
constexpr int kUserEntity = 9;

struct Kind {
    const char* name; // in line.json
    int contentType;
};
// clang-format off
constexpr std::array kKinds{
    Kind{"",        0},
    Kind{"picture", 1},
    Kind{"film",    2},
    Kind{"voice",   3},
    Kind{"call",    6},
    Kind{"sticker", 7},
    Kind{"contact", 13},
    Kind{"file",    14},
    Kind{"line",    18},
    Kind{"place",   100},
    Kind{"album",   111},
};
// clang-format on

int contentType(const QString& kind)
{
    const auto* const known = std::find_if(
        kKinds.begin(), kKinds.end(), [&](const Kind& row) { return kind == row.name; });
    if (known == kKinds.end()) {
        fail("line.json: unknown kind " + kind);
    }
    return known->contentType;
}

// "u" and 32 digits for a person, "c" and as many for a group.
QString midOf(const QString& name, char letter)
{
    return QLatin1Char(letter)
           + QString::fromLatin1(
               QCryptographicHash::hash("line " + name.toUtf8(), QCryptographicHash::Md5).toHex());
}

qint64 milliseconds(const QString& moment)
{
    return (secondsSince2001(moment) + kUnixAt2001) * 1000;
}

// A keyed archive of a dictionary of texts.
QVariant archived(const QJsonObject& values)
{
    if (values.isEmpty()) {
        return {};
    }
    QVariantList keys;
    QVariantList texts;
    QVariantList objects;
    for (auto value = values.begin(); value != values.end(); ++value) {
        keys.append(uid(2 + static_cast<quint64>(objects.size())));
        objects.append(value.key());
        texts.append(uid(2 + static_cast<quint64>(objects.size())));
        objects.append(value->toString());
    }
    const QVariantMap root{{"NS.keys", keys}, {"NS.objects", texts},
        {"$class", uid(2 + static_cast<quint64>(objects.size()))}};
    objects.prepend(root);
    objects.append(keyedClass({"NSDictionary", "NSObject"}));
    return keyedArchive(objects);
}

} // namespace

LineStore::LineStore(Database& messages, Database& groups, BackupWriter& backup, QString media)
    : m_groups(groups), m_database(messages), m_backup(backup), m_media(std::move(media))
{
}

QString LineStore::directory()
{
    return "Library/Application Support/PrivateStore/P_" + midOf("me", 'u') + "/";
}

void LineStore::write(const QJsonObject& source)
{
    m_database.run("BEGIN");
    describeStore(m_database, "line",
        {{kChatEntity, "Chat"}, {kMessageEntity, "Message"}, {kUserEntity, "User"}});
    describeStore(m_groups, "line groups", {{1, "UnifiedGroup"}});
    for (const QJsonValue& person : entriesOf(source["people"])) {
        writePerson(person.toObject());
    }
    for (const QJsonValue& chat : entriesOf(source["chats"])) {
        writeChat(chat.toObject());
    }
    m_database.run("COMMIT");
}

void LineStore::writePerson(const QJsonObject& source)
{
    const QString key = source["key"].toString();
    const QString mid = midOf(key, 'u');
    m_people[key] = m_database.insert(
        "ZUSER", {{"Z_ENT", kUserEntity}, {"Z_OPT", 1}, {"ZISFRIEND", 1}, {"ZISREMOVED", 0},
                     {"ZADDRESSBOOKNAME", source["book"].toVariant()},
                     {"ZCUSTOMNAME", source["custom"].toVariant()}, {"ZMID", mid},
                     {"ZNAME", source["name"].toString()}});
    if (source.contains("phone")) {
        m_database.insert("ZCONTACT",
            {{"Z_ENT", 3}, {"Z_OPT", 1}, {"ZMID", mid}, {"ZNAME", source["name"].toString()},
                {"ZPHONENUMBER", source["phone"].toString()}});
    }
}

void LineStore::writeChat(const QJsonObject& source)
{
    const QString group = source["group"].toString();
    const QString mid = group.isEmpty() ? midOf(source["with"].toString(), 'u') : midOf(group, 'c');
    const qint64 chat =
        m_database.insert("ZCHAT", {{"Z_ENT", kChatEntity}, {"Z_OPT", 1}, {"ZENABLE", 1},
                                       {"ZTYPE", group.isEmpty() ? 0 : 2}, {"ZMID", mid}});
    if (!group.isEmpty()) {
        m_groups.insert(
            "ZUNIFIEDGROUP", {{"Z_ENT", 1}, {"Z_OPT", 1}, {"ZID", mid}, {"ZNAME", group}});
    }
    for (const QJsonValue& message : entriesOf(source["messages"])) {
        writeMessage(message.toObject(), chat, mid);
    }
}

void LineStore::writeMessage(const QJsonObject& source, qint64 chat, const QString& mid)
{
    const QString at = source["at"].toString();
    const QString id = QString::number(milliseconds(at));
    const int type = contentType(source["kind"].toString());
    const QString from = source["from"].toString();
    const bool own = from == "me";
    const QVariant sender = own || from.isEmpty() ? QVariant() : QVariant(m_people.value(from));
    m_database.insert("ZMESSAGE",
        {{"Z_ENT", kMessageEntity}, {"Z_OPT", 1}, {"ZCHAT", chat}, {"ZCONTENTTYPE", type},
            {"ZSENDER", sender}, {"ZSENDSTATUS", own && !source["failed"].toBool() ? 1 : 0},
            {"ZTIMESTAMP", milliseconds(at)}, {"ZLATITUDE", source["latitude"].toDouble()},
            {"ZLONGITUDE", source["longitude"].toDouble()}, {"ZID", id},
            {"ZMESSAGETYPE", own ? "S" : "R"}, {"ZTEXT", source["text"].toVariant()},
            {"ZCONTENTMETADATA", archived(source["metadata"].toObject())}});
    if (source.contains("file")) {
        writeMedia(source, mid, id);
    }
}

void LineStore::writeMedia(const QJsonObject& source, const QString& mid, const QString& id)
{
    const QString name = source["file"].toString();
    const QByteArray bytes = media(name, m_media);
    if (source["preview"].toBool()) {
        m_backup.addFile(
            kDomain, directory() + "Message Thumbnails/" + mid + "/" + id + ".thumb", bytes);
    } else {
        m_backup.addFile(kDomain,
            directory() + "Message Attachments/" + mid + "/" + id + "." + QFileInfo(name).suffix(),
            bytes);
    }
}

} // namespace sample
