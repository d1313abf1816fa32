// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <span>
#include <vector>

namespace backup {

/// How somebody is called, and a room as well.
struct WeChatName {
    QString user;   ///< "wxid_…", "…@chatroom": the name that never changes
    QString alias;  ///< WeChat id, which a person may choose
    QString nick;   ///< as the person calls itself
    QString remark; ///< as the owner calls it
    QStringList phones;

    /// The first that is there of remark, nick and user name.
    QString shown() const;
};

/// Somebody in a room.
struct WeChatMember {
    QString user;
    QString roomName; ///< by which the person goes in this room; often empty
};

/// What a contact tells about itself.
struct WeChatProfile {
    QString country;
    QString city; ///< with its province
    QString sign;
};

/// Whether a user name is that of a room.
bool isWeChatRoom(const QString& user);

/// The name by which files and tables know a user: 32 hexadecimal digits.
QString weChatHash(const QString& user);

/// Fills in what the blob dbContactRemark tells.
void readRemark(std::span<const unsigned char> remark, WeChatName& name);

/// The people of dbContactChatRoom.
std::vector<WeChatMember> roomMembers(std::span<const unsigned char> chatRoom);

/// dbContactProfile
WeChatProfile weChatProfile(std::span<const unsigned char> profile);

/// Texts of dbContactSocial that are telephone numbers.
QStringList phonesIn(std::span<const unsigned char> social);

/// The names of all accounts that LoginInfo2.dat knows.
std::vector<WeChatName> accountsIn(std::span<const unsigned char> loginInfo);

/// All names that an account knows.
class WeChatPeople {
public:
    /// The first name of a user counts.
    void add(const WeChatName& name);
    /// Somebody of whom no more than the user name is known: the hash leads to it.
    void addUser(const QString& user);
    void addRoom(const QString& user, const std::vector<WeChatMember>& members);

    /// Null for somebody unknown.
    const WeChatName* find(const QString& user) const;
    /// The user name that belongs to a hash; empty where none does.
    QString userOf(const QString& hash) const { return m_users.value(hash); }
    /// What to call a person or a room; never empty for a user name that is not. A room without a
    /// name is called by its members.
    QString shownName(const QString& user) const;
    /// What to call a person inside a room.
    QString nameInRoom(const QString& user, const QString& room) const;
    const std::vector<WeChatMember>& membersOf(const QString& room) const;

private:
    QString namesOfMembers(const QString& room) const;

    QHash<QString, WeChatName> m_names; // by user name
    QHash<QString, QString> m_users;    // by hash
    QHash<QString, std::vector<WeChatMember>> m_rooms;
    QHash<QString, QHash<QString, QString>> m_roomNames;
};

} // namespace backup
