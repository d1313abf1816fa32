// SPDX-License-Identifier: MIT
// Blobs of the table Friend, messages of protocol buffers:
//   dbContactRemark     1 nickname   2 WeChat id   3 remark
//   dbContactProfile    2 country    3 province    4 city      5 signature
//   dbContactSocial     telephone numbers, somewhere
//   dbContactChatRoom   1 "wxid_a;wxid_b"          6 <RoomData><Member UserName="wxid_a">
//                                                       <DisplayName>Ann</DisplayName></Member>
// LoginInfo2.dat: 1, repeated { 1 user name   2 WeChat id   3 display name }
#include "backup/readers/wechat_contact.h"

#include "backup/readers/XmlTexts.h"
#include "backup/readers/chat_lines.h"
#include "formats/wire_fields.h"
#include "platform/literals.h"

#include <QCryptographicHash>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>
#include <utility>

namespace backup {

namespace {

using formats::WireFields;
using formats::wireText;
using Bytes = std::span<const unsigned char>;

constexpr int kMostNames = 4;   // of a room that is called by its members
constexpr int kMostPhones = 50; // of a person; more are damage, each is compared with all others

bool isPhone(const QString& text)
{
    static const QRegularExpression number(QStringLiteral("^\\+?[0-9][0-9 ()-]{5,18}[0-9]$"));
    return number.match(text).hasMatch();
}

void addPhones(Bytes message, int depth, QStringList& phones)
{
    WireFields fields(message);
    for (auto field = fields.next(); field && phones.size() < kMostPhones; field = fields.next()) {
        const QString text = formats::textOf(field->bytes).trimmed();
        if (!isPhone(text) && depth > 0) {
            addPhones(field->bytes, depth - 1, phones);
        } else if (isPhone(text) && !phones.contains(text)) {
            phones.append(text);
        }
    }
}

std::vector<WeChatMember> membersOfXml(const QString& xml)
{
    std::vector<WeChatMember> members;
    QXmlStreamReader reader(xml.trimmed());
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (reader.name() == "Member"_L1) {
            members.push_back({.user = reader.attributes().value("UserName"_L1).toString()});
        } else if (reader.name() == "DisplayName"_L1 && !members.empty()) {
            members.back().roomName = plainName(elementText(reader));
        }
    }
    std::erase_if(members, [](const WeChatMember& member) { return member.user.isEmpty(); });
    return members;
}

} // namespace

QString WeChatName::shown() const
{
    if (!remark.isEmpty()) {
        return remark;
    }
    return nick.isEmpty() ? user : nick;
}

bool isWeChatRoom(const QString& user)
{
    return user.endsWith("@chatroom"_L1) || user.endsWith("@im.chatroom"_L1);
}

QString weChatHash(const QString& user)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(user.toUtf8(), QCryptographicHash::Md5).toHex());
}

void readRemark(Bytes remark, WeChatName& name)
{
    name.nick = plainName(wireText(remark, 1));
    name.alias = wireText(remark, 2).trimmed();
    name.remark = plainName(wireText(remark, 3));
}

std::vector<WeChatMember> roomMembers(Bytes chatRoom)
{
    std::vector<WeChatMember> members = membersOfXml(wireText(chatRoom, 6));
    // Newer members can be missing in one of the two lists.
    const QStringList users = wireText(chatRoom, 1).split(QChar(u';'), Qt::SkipEmptyParts);
    QHash<QString, bool> known;
    for (const WeChatMember& member : members) {
        known.insert(member.user, true);
    }
    for (const QString& user : users) {
        if (!known.contains(user)) {
            known.insert(user, true);
            members.push_back({.user = user});
        }
    }
    return members;
}

WeChatProfile weChatProfile(Bytes profile)
{
    const QString city = wireText(profile, 4).trimmed();
    const QString province = wireText(profile, 3).trimmed();
    return {.country = wireText(profile, 2).trimmed(),
        .city = (city + QChar(u' ') + province).trimmed(),
        .sign = wireText(profile, 5).trimmed()};
}

QStringList phonesIn(Bytes social)
{
    constexpr int kNested = 2; // lists of entries
    QStringList phones;
    addPhones(social, kNested, phones);
    return phones;
}

std::vector<WeChatName> accountsIn(Bytes loginInfo)
{
    std::vector<WeChatName> accounts;
    WireFields fields(loginInfo);
    while (const auto field = fields.next()) {
        if (field->number == 1 && field->isBytes) {
            accounts.push_back({.user = wireText(field->bytes, 1),
                .alias = wireText(field->bytes, 2),
                .nick = plainName(wireText(field->bytes, 3))});
        }
    }
    std::erase_if(accounts, [](const WeChatName& account) { return account.user.isEmpty(); });
    return accounts;
}

void WeChatPeople::add(const WeChatName& name)
{
    if (name.user.isEmpty() || m_names.contains(name.user)) {
        return;
    }
    addUser(name.user);
    m_names.insert(name.user, name);
}

void WeChatPeople::addUser(const QString& user)
{
    m_users.insert(weChatHash(user), user);
}

void WeChatPeople::addRoom(const QString& user, const std::vector<WeChatMember>& members)
{
    QHash<QString, QString>& names = m_roomNames[user];
    for (const WeChatMember& member : members) {
        names.insert(member.user, member.roomName);
        addUser(member.user);
    }
    m_rooms.insert(user, members);
}

const WeChatName* WeChatPeople::find(const QString& user) const
{
    const auto found = m_names.constFind(user);
    return found == m_names.constEnd() ? nullptr : &*found;
}

QString WeChatPeople::shownName(const QString& user) const
{
    const WeChatName* name = find(user);
    QString shown = name == nullptr ? user : name->shown();
    if (shown != user || !isWeChatRoom(user)) {
        return shown;
    }
    QString members = namesOfMembers(user);
    return members.isEmpty() ? shown : members;
}

QString WeChatPeople::nameInRoom(const QString& user, const QString& room) const
{
    const WeChatName* name = find(user);
    if (name != nullptr && !name->remark.isEmpty()) {
        return name->remark;
    }
    const auto roomNames = m_roomNames.constFind(room);
    QString inRoom = roomNames == m_roomNames.constEnd() ? QString() : roomNames->value(user);
    if (!inRoom.isEmpty()) {
        return inRoom;
    }
    return name == nullptr ? user : name->shown(); // a room in a room has no members here
}

const std::vector<WeChatMember>& WeChatPeople::membersOf(const QString& room) const
{
    static const std::vector<WeChatMember> nobody;
    const auto found = m_rooms.constFind(room);
    return found == m_rooms.constEnd() ? nobody : *found;
}

QString WeChatPeople::namesOfMembers(const QString& room) const
{
    QStringList names;
    for (const WeChatMember& member : membersOf(room)) {
        if (names.size() == kMostNames) {
            names.append(QString(QChar(0x2026)));
            break;
        }
        names.append(nameInRoom(member.user, room));
    }
    return names.join(", "_L1);
}

} // namespace backup
