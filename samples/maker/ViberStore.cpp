// SPDX-License-Identifier: MIT
#include "ViberStore.h"

#include "common.h"
#include "core_data.h"
#include "media.h"

#include <QFileInfo>

#include <utility>

namespace sample {

namespace {

constexpr int kConversationEntity = 7;
constexpr int kMemberEntity = 12;
constexpr int kMessageEntity = 16;

} // namespace

ViberStore::ViberStore(Database& database, BackupWriter& backup, QString media)
    : m_database(database), m_backup(backup), m_media(std::move(media))
{
}

void ViberStore::write(const QJsonObject& source)
{
    m_database.run("BEGIN");
    describeStore(m_database, "viber",
        {{kConversationEntity, "Conversation"}, {kMemberEntity, "Member"},
            {kMessageEntity, "ViberMessage"}});
    for (const QJsonValue& person : entriesOf(source["people"])) {
        writePerson(person.toObject());
    }
    for (const QJsonValue& chat : entriesOf(source["chats"])) {
        writeChat(chat.toObject());
    }
    m_database.run("COMMIT");
}

void ViberStore::writePerson(const QJsonObject& source)
{
    const qint64 member = m_database.insert("ZMEMBER",
        {{"Z_ENT", kMemberEntity}, {"Z_OPT", 1}, {"ZDISPLAYFULLNAME", source["shown"].toVariant()},
            {"ZNAME", source["name"].toVariant()}});
    m_people[source["key"].toString()] = member;
    const QString phone = source["phone"].toString();
    m_database.insert("ZPHONENUMBER", {{"Z_ENT", 13}, {"Z_OPT", 1}, {"ZMEMBER", member},
                                          {"ZCANONIZEDPHONENUM", phone}, {"ZPHONE", phone}});
}

void ViberStore::writeChat(const QJsonObject& source)
{
    const std::vector<QJsonValue> with = entriesOf(source["with"]);
    const bool isGroup = source.contains("group");
    const QVariant partner =
        isGroup ? QVariant() : QVariant(m_people.value(with.front().toString()));
    const qint64 chat = m_database.insert(
        "ZCONVERSATION", {{"Z_ENT", kConversationEntity}, {"Z_OPT", 1},
                             {"ZBEINGDELETED", source["deleted"].toBool() ? 1 : 0},
                             {"ZFAVORITE", 0}, {"ZINTERLOCUTOR", partner},
                             {"ZGROUPID", isGroup ? QVariant("55500012345678") : QVariant()},
                             {"ZNAME", source["group"].toVariant()}});
    for (const QJsonValue& person : with) {
        m_database.insert(
            "Z_7PHONENUMINDEXES", {{"Z_7CONVERSATIONS", chat},
                                      {"Z_12PHONENUMINDEXES", m_people.value(person.toString())}});
    }
    for (const QJsonValue& message : entriesOf(source["messages"])) {
        writeMessage(message.toObject(), chat);
    }
}

void ViberStore::writeMessage(const QJsonObject& source, qint64 chat)
{
    const QString at = source["at"].toString();
    const QString from = source["from"].toString();
    const bool own = from == "me";
    const qint64 message = m_database.insert("ZVIBERMESSAGE",
        {{"Z_ENT", kMessageEntity}, {"Z_OPT", 1}, {"ZBEINGDELETED", 0},
            {"ZLIKESCOUNT", source["likes"].toInt()},
            {"ZATTACHMENT", source.contains("type") ? attachment(source, at) : QVariant()},
            {"ZCONVERSATION", chat}, {"ZLOCATION", location(source)},
            {"ZPHONENUMINDEX", own ? QVariant() : QVariant(m_people.value(from))},
            {"ZDATE", secondsSince2001(at)}, {"ZSTATEDATE", secondsSince2001(at)},
            {"ZSTATE", own ? "delivered" : "received"},
            {"ZSYSTEMTYPE", source["event"].toVariant()}, {"ZTEXT", source["text"].toVariant()}});
    if (source.contains("call")) {
        writeCall(source, message);
    }
}

QVariant ViberStore::attachment(const QJsonObject& source, const QString& at)
{
    const QString file = source["file"].toString();
    const QString ending = file.isEmpty() ? QString("png") : QFileInfo(file).suffix();
    const QString name = source["name"].toString(uuidFor("viber " + at) + "." + ending);
    const QByteArray bytes = file.isEmpty() ? QByteArray() : media(file, m_media);
    if (!file.isEmpty()) {
        m_backup.addFile("AppDomain-com.viber", "Documents/Attachments/" + name, bytes);
    }
    return m_database.insert(
        "ZATTACHMENT", {{"Z_ENT", 2}, {"Z_OPT", 1}, {"ZFILESIZE", bytes.size()}, {"ZNAME", name},
                           {"ZTYPE", source["type"].toString()}});
}

QVariant ViberStore::location(const QJsonObject& source)
{
    if (!source.contains("latitude")) {
        return {};
    }
    return m_database.insert("ZVIBERLOCATION",
        {{"Z_ENT", 17}, {"Z_OPT", 1}, {"ZLATITUDE", source["latitude"].toDouble()},
            {"ZLONGITUDE", source["longitude"].toDouble()},
            {"ZADDRESS", source["address"].toVariant()}});
}

void ViberStore::writeCall(const QJsonObject& source, qint64 message)
{
    m_database.insert("ZRECENT", {{"Z_ENT", 14}, {"Z_OPT", 1}, {"ZCALLLOGMESSAGE", message},
                                     {"ZDURATION", source["seconds"].toInt()},
                                     {"ZDATE", secondsSince2001(source["at"].toString())},
                                     {"ZCALLTYPE", source["call"].toString()}});
}

} // namespace sample
