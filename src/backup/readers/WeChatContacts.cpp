// SPDX-License-Identifier: MIT
//   Friend (userName, type, dbContactRemark, dbContactHeadImage, dbContactProfile, dbContactSocial,
//           dbContactChatRoom)
//   OpenIMContact: the same of people at work
//   type: 1 on the owner's list      dbContactHeadImage: 2 address of a small picture, 3 of a large
#include "backup/readers/WeChatContacts.h"

#include "backup/readers/WeChatMedia.h"
#include "backup/readers/table_reader.h"
#include "formats/wire_fields.h"
#include "platform/literals.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace backup {

namespace {

constexpr std::array kTables{"Friend"_L1, "OpenIMContact"_L1};
constexpr qint64 kOnList = 1; // bit of Friend.type

enum Column : int { User, Type, Remark, HeadImage, Profile, Social, ChatRoom };

std::vector<WantedColumn> wantedColumns()
{
    return {{.name = QStringLiteral("userName"), .needed = true}, {.name = QStringLiteral("type")},
        {.name = QStringLiteral("dbContactRemark"), .needed = true},
        {.name = QStringLiteral("dbContactHeadImage")},
        {.name = QStringLiteral("dbContactProfile")}, {.name = QStringLiteral("dbContactSocial")},
        {.name = QStringLiteral("dbContactChatRoom")}};
}

QString quotedAlias(const QString& nick)
{
    return nick.isEmpty() ? QString() : QChar(u'"') + nick + QChar(u'"');
}

QList<PRWeiChatContact::MemberContact> membersOf(const QString& room, const WeChatPeople& people)
{
    QList<PRWeiChatContact::MemberContact> members;
    for (const WeChatMember& member : people.membersOf(room)) {
        const WeChatName* name = people.find(member.user);
        members.append({.alias = name == nullptr ? QString() : name->nick,
            .name = people.nameInRoom(member.user, room),
            .nameId = member.user,
            .wxId = name == nullptr ? QString() : name->alias});
    }
    return members;
}

// The picture on the phone, else its address: the large one if there is one.
QString headImage(const QString& user, std::span<const unsigned char> blob,
    const WeChatContacts::Listing& listing, const QSet<QString>& pictures)
{
    const QString path = listing.pictures + QChar(u'/') + weChatHash(user) + ".pic"_L1;
    QString found =
        pictures.contains(path) ? listing.files.locate(kWeChatGroupDomain, path) : QString();
    if (!found.isEmpty()) {
        return found;
    }
    const QString large = formats::wireText(blob, 3);
    QString address = large.isEmpty() ? formats::wireText(blob, 2) : large;
    return address.startsWith("http"_L1) ? address : QString();
}

void addName(const formats::Statement& row, WeChatPeople& people)
{
    WeChatName name{.user = row.text(User)};
    readRemark(row.blobView(Remark), name);
    name.phones = phonesIn(row.blobView(Social));
    if (isWeChatRoom(name.user)) {
        people.addRoom(name.user, roomMembers(row.blobView(ChatRoom)));
    }
    people.add(name);
}

std::unique_ptr<PRAbstractItem> record(PRWeiChatContact::Content content)
{
    const QString id = content.wxNameId.isEmpty() ? content.nameID : content.wxNameId;
    Record shown{.values = {content.name, quotedAlias(content.nickName), id, content.nameID,
                     content.city + QChar(u' ') + content.country, content.phones.join(QChar(u';')),
                     content.sign}};
    return std::make_unique<PRWeichatContactItem>(std::move(shown), std::move(content));
}

} // namespace

bool WeChatContacts::isContacts(const formats::Database& database)
{
    return database.columns(kTables.front()).contains("dbContactRemark"_L1);
}

void WeChatContacts::readNames(WeChatPeople& people) const
{
    const auto take = [&people](const formats::Statement& row) { addName(row, people); };
    forEachTable([&](const TableReader& reader, QLatin1String table) {
        reader.read(table, wantedColumns(), take);
    });
}

void WeChatContacts::forEachTable(
    const std::function<void(const TableReader&, QLatin1String)>& read) const
{
    for (const NamedDatabase& database : m_databases) {
        const TableReader reader(database.opened.database, database.name, m_notices);
        const auto isThere = [&](QLatin1String table) { return reader.database().hasTable(table); };
        std::vector<QLatin1String> tables;
        std::ranges::copy_if(kTables, std::back_inserter(tables), isThere);
        for (const QLatin1String table : tables) {
            read(reader, table);
        }
    }
}

void WeChatContacts::readTable(
    const TableReader& reader, const QString& table, const Listing& listing, Contents& contents)
{
    struct Found {
        bool isWanted = false;
        PRWeiChatContact::Content content;
    };
    const QStringList paths = listing.files.filesBelow(kWeChatGroupDomain, listing.pictures);
    const QSet<QString> pictures(paths.begin(), paths.end());
    std::vector<Found> found;
    bool anyOnList = false;
    reader.read(table, wantedColumns(), [&](const formats::Statement& row) {
        const QString user = row.text(User);
        const WeChatName* name = listing.people.find(user);
        if (name == nullptr) {
            return; // without a user name
        }
        const bool isRoom = isWeChatRoom(user);
        const bool isOnList = (row.integer(Type) & kOnList) != 0;
        anyOnList = anyOnList || (isOnList && !isRoom);
        const WeChatProfile profile = weChatProfile(row.blobView(Profile));
        found.push_back({.isWanted = isOnList || isRoom || listing.chatPartners.contains(user),
            .content = {.name = listing.people.shownName(user),
                .nickName = name->nick,
                .wxNameId = name->alias,
                .nameID = user,
                .country = profile.country,
                .city = profile.city,
                .sign = profile.sign,
                .phones = name->phones,
                .room = isRoom,
                .headImage = headImage(user, row.blobView(HeadImage), listing, pictures),
                .members = membersOf(user, listing.people)}});
    });
    for (Found& contact : found) {
        if (contact.isWanted || !anyOnList) {
            contents.push_back(std::move(contact.content));
        }
    }
}

RecordList WeChatContacts::records(const Listing& listing) const
{
    Contents contents;
    forEachTable([&](const TableReader& reader, QLatin1String table) {
        readTable(reader, table, listing, contents);
    });
    std::ranges::stable_sort(contents, [](const auto& one, const auto& other) {
        return one.room != other.room ? other.room
                                      : one.name.compare(other.name, Qt::CaseInsensitive) < 0;
    });
    RecordList records;
    records.reserve(contents.size());
    for (PRWeiChatContact::Content& content : contents) {
        records.push_back(record(std::move(content)));
    }
    return records;
}

} // namespace backup
