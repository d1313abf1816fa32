// SPDX-License-Identifier: MIT
#include "KikStore.h"

#include "common.h"
#include "core_data.h"
#include "media.h"

#include <utility>

namespace sample {

namespace {

constexpr int kUserEntity = 5;
constexpr int kMessageEntity = 4;
constexpr int kAttachmentEntity = 1;

} // namespace

KikStore::KikStore(Database& database, BackupWriter& backup, QString media)
    : m_database(database), m_backup(backup), m_media(std::move(media))
{
}

QString KikStore::directory()
{
    return "cores/private/" + uuidFor("kik account").remove('-').toLower() + "/";
}

void KikStore::write(const QJsonObject& source)
{
    m_database.run("BEGIN");
    describeStore(m_database, "kik",
        {{kAttachmentEntity, "KikAttachment"}, {kMessageEntity, "KikMessage"},
            {kUserEntity, "KikUser"}});
    for (const QJsonValue& person : entriesOf(source["people"])) {
        m_people[person["key"].toString()] = writeUser(person.toObject());
    }
    for (const QJsonValue& chat : entriesOf(source["chats"])) {
        writeChat(chat.toObject());
    }
    m_database.run("COMMIT");
}

qint64 KikStore::writeUser(const QJsonObject& source)
{
    const QString user = source["user"].toString();
    return m_database.insert("ZKIKUSER",
        {{"Z_ENT", kUserEntity}, {"Z_OPT", 1}, {"ZDISPLAYNAME", source["name"].toVariant()},
            {"ZGROUPTAG", source["tag"].toVariant()},
            {"ZJID", user.isEmpty() ? source["name"].toString() : user + "@kik.example.com"},
            {"ZUSERNAME", source["user"].toVariant()}});
}

void KikStore::writeChat(const QJsonObject& source)
{
    const QJsonObject group = source["group"].toObject();
    const qint64 chat =
        group.isEmpty() ? m_people.value(source["with"].toString()) : writeUser(group);
    for (const QJsonValue& member : entriesOf(group["members"])) {
        m_database.insert(
            "Z_5MEMBERS", {{"Z_5GROUPS", chat}, {"Z_5MEMBERS", m_people.value(member.toString())}});
    }
    for (const QJsonValue& message : entriesOf(source["messages"])) {
        writeMessage(message.toObject(), chat);
    }
}

void KikStore::writeMessage(const QJsonObject& source, qint64 chat)
{
    const QString at = source["at"].toString();
    const int type = source["from"].toString() == "me" ? 2 : source["notice"].toBool() ? 3 : 1;
    const qint64 message = m_database.insert("ZKIKMESSAGE",
        {{"Z_ENT", kMessageEntity}, {"Z_OPT", 1}, {"ZSTATE", 0}, {"ZTYPE", type}, {"ZUSER", chat},
            {"ZRECEIVEDTIMESTAMP", secondsSince2001(at)}, {"ZTIMESTAMP", secondsSince2001(at)},
            {"ZBODY", source["text"].toVariant()}, {"ZSTANZAID", uuidFor("kik stanza " + at)}});
    if (source.contains("file")) {
        const QString name = uuidFor("kik file " + at).toLower();
        m_database.insert("ZKIKATTACHMENT", {{"Z_ENT", kAttachmentEntity}, {"Z_OPT", 1},
                                                {"ZMESSAGE", message}, {"ZCONTENT", name}});
        m_backup.addFile(kDomain, directory() + "content_manager/data_cache/" + name,
            media(source["file"].toString(), m_media));
    }
}

} // namespace sample
