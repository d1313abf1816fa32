// SPDX-License-Identifier: MIT
#include "WeChat.h"

#include "common.h"
#include "media.h"
#include "wechat_xml.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QRegularExpression>
#include <QStringList>

#include <utility>

namespace sample {

namespace {

constexpr auto kDomain = "AppDomain-com.tencent.xin";
constexpr auto kGroupDomain = "AppDomainGroup-group.com.tencent.xin";

QString hash(const QString& user)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(user.toUtf8(), QCryptographicHash::Md5).toHex());
}

// A field of a message of protocol buffers that holds text or another message.
QByteArray field(int number, const QByteArray& text)
{
    QByteArray bytes;
    bytes.append(static_cast<char>(number << 3 | 2));
    int size = text.size();
    while (size >= 0x80) {
        bytes.append(static_cast<char>(size % 0x80 + 0x80));
        size /= 0x80;
    }
    bytes.append(static_cast<char>(size));
    return bytes + text;
}

QByteArray field(int number, const QJsonValue& text)
{
    return field(number, text.toString().toUtf8());
}

// No sound at all in the form that the application has: there is no encoder.
QByteArray silence()
{
    return {"\x02#!SILK_V3\xFF\xFF", 12};
}

qint64 unixSeconds(const QJsonValue& moment)
{
    return secondsSince2001(moment.toString()) + kUnixAt2001;
}

QByteArray phones(const QJsonObject& person)
{
    QByteArray bytes;
    for (const QJsonValue& phone : entriesOf(person["phones"])) {
        bytes += field(1, field(1, phone));
    }
    return bytes;
}

QByteArray members(const QJsonObject& room)
{
    QStringList users;
    QString xml = "<RoomData>";
    for (const QJsonValue& member : entriesOf(room["members"])) {
        users.append(member[0].toString());
        xml += QString("<Member UserName=\"%1\"><DisplayName>%2</DisplayName></Member>")
                   .arg(member[0].toString(), member[1].toString().toHtmlEscaped());
    }
    return field(1, users.join(';').toUtf8()) + field(6, (xml + "</RoomData>").toUtf8());
}

QByteArray remark(const QJsonObject& person)
{
    return field(1, person["nick"]) + field(2, person["alias"]) + field(3, person["remark"]);
}

} // namespace

WeChat::WeChat(BackupWriter& backup, Folders folders)
    : m_backup(backup), m_folders(std::move(folders))
{
}

void WeChat::write(const QJsonObject& source)
{
    const QJsonObject owner = source["owner"].toObject();
    m_account = hash(owner["user"].toString());
    m_backup.addFile(kDomain, "Documents/LoginInfo2.dat",
        field(1, field(1, owner["user"]) + field(2, owner["alias"]) + field(3, owner["nick"])));
    writePeople(source);
    for (const QJsonValue& chat : entriesOf(source["chats"])) {
        writeChat(chat.toObject());
    }
    Database& session = database("session/session.db", "WeChatSession");
    for (const QJsonValue& chat : entriesOf(source["deletedChats"])) {
        session.insert("SessionAbstract",
            {{"UsrName", chat["with"].toString()}, {"CreateTime", unixSeconds(chat["at"])}});
    }
    for (const QJsonValue& file : entriesOf(source["otherFiles"])) {
        addMedia(file["path"].toString(), file["with"].toString(), file["name"].toString(),
            file["from"].toString());
    }
    for (auto& [path, made] : m_databases) {
        made.checkpoint();
        addFile(path, made.mainFile());
    }
}

Database& WeChat::database(const QString& path, const QString& schema)
{
    const auto found = m_databases.find(path);
    if (found != m_databases.end()) {
        return found->second;
    }
    return m_databases
        .try_emplace(path, m_folders.scratch + "/wechat-" + path.section('/', -1),
            m_folders.schemas + "/" + schema + ".sql", Database::Journal::WriteAheadLog)
        .first->second;
}

void WeChat::addFile(const QString& path, const QByteArray& bytes)
{
    m_backup.addFile(kDomain, "Documents/" + m_account + "/" + path, bytes);
}

void WeChat::addMedia(
    const QString& folder, const QString& with, const QString& name, const QString& from)
{
    addFile(folder + "/" + hash(with) + "/" + name, media(from, m_folders.media));
}

void WeChat::writePeople(const QJsonObject& source)
{
    Database& contacts = database("DB/WCDB_Contact.sqlite", "WeChatContacts");
    for (const QJsonValue& entry : entriesOf(source["people"])) {
        const QJsonObject person = entry.toObject();
        const QString user = person["user"].toString();
        if (person["work"].toBool()) {
            contacts.insert("OpenIMContact",
                {{"userName", user}, {"type", 1}, {"dbContactRemark", remark(person)}});
        } else {
            contacts.insert("Friend",
                {{"userName", user}, {"type", person["type"].toInt(1)},
                    {"dbContactRemark", remark(person)},
                    {"dbContactProfile", field(2, person["country"]) + field(3, person["province"])
                                             + field(4, person["city"]) + field(5, person["sign"])},
                    {"dbContactSocial", phones(person)}});
        }
        writePicture(person);
    }
    for (const QJsonValue& room : entriesOf(source["rooms"])) {
        contacts.insert("Friend", {{"userName", room["user"].toString()}, {"type", 2},
                                      {"dbContactRemark", remark(room.toObject())},
                                      {"dbContactChatRoom", members(room.toObject())}});
    }
}

void WeChat::writePicture(const QJsonObject& person)
{
    const QString picture = person["picture"].toString();
    if (!picture.isEmpty()) {
        const QString name = hash(person["user"].toString()) + ".pic";
        m_backup.addFile(kGroupDomain, "share/" + m_account + "/session/headImg/" + name,
            media(picture, m_folders.media));
    }
}

void WeChat::writeChat(const QJsonObject& chat)
{
    const QString with = chat["with"].toString();
    const QString table =
        (chat["stranger"].toBool() ? QString("Hello_") : QString("Chat_")) + hash(with);
    Database& store = database("DB/" + chat["store"].toString() + ".sqlite", "WeChatMessages");
    QString definition = QString::fromUtf8(readFile(m_folders.schemas + "/WeChatMessages.sql"));
    definition.remove(QRegularExpression("--[^\n]*"));
    store.run(definition.replace("Chat_" + hash("filehelper"), table).simplified().toUtf8());
    int id = 0;
    for (const QJsonValue& message : entriesOf(chat["messages"])) {
        writeMessage(store, table, ++id, with, message.toObject());
        writeFiles(with, id, message.toObject());
    }
    writeSession(with, unixSeconds(chat["messages"].toArray().last()["at"]));
}

void WeChat::writeSession(const QString& with, qint64 seconds)
{
    database("session/session.db", "WeChatSession")
        .insert(
            "SessionAbstract", {{"UsrName", with}, {"CreateTime", seconds}, {"unreadcount", 0}});
}

void WeChat::writeMessage(Database& database, const QString& table, int id, const QString& with,
    const QJsonObject& source)
{
    const QString from = source["from"].toString(with);
    const bool isLine = source.contains("system") || source.contains("recalled")
                        || source.contains("added") || source.contains("pat");
    WeChatMessage message = weChatMessage(source);
    if (with.endsWith("chatroom") && from != "me" && !isLine) {
        message.text.prepend(from + ":\n");
    }
    const qint64 seconds = unixSeconds(source["at"]);
    database.insert(table.toLatin1().constData(),
        {{"MesLocalID", id}, {"MesSvrID", source["notSent"].toBool() ? 0 : seconds * 4096 + id},
            {"CreateTime", seconds}, {"Message", message.text}, {"Status", from == "me" ? 2 : 4},
            {"ImgStatus", 1}, {"Type", message.type}, {"Des", from == "me" ? 0 : 1}});
}

void WeChat::writeFiles(const QString& with, int id, const QJsonObject& source)
{
    const auto add = [&](const char* folder, const QString& ending, const QJsonValue& from) {
        if (!from.toString().isEmpty()) {
            addMedia(folder, with, QString::number(id) + ending, from.toString());
        }
    };
    if (source.contains("picture")) {
        add("Img", ".pic", source["picture"]);
        add("Img", ".pic_thum", source["preview"]);
    }
    if (source.contains("video")) {
        add("Video", ".mp4", source["video"]);
        add("Video", ".video_thum", source["preview"]);
    }
    if (source.contains("voice")) {
        addFile("Audio/" + hash(with) + "/" + QString::number(id) + ".aud", silence());
    }
    add("OpenData", "." + source["name"].toString().section('.', -1), source["document"]);
    add("OpenData", ".pic_thum", source["link"]["preview"]);
}

} // namespace sample
