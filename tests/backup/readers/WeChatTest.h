// SPDX-License-Identifier: MIT
#pragma once

#include "LazyTableTest.h"
#include "backup/readers/wechat_contact.h"
#include "model/PRWeichatContactItem.h"
#include "model/PRWhatsappItem.h"

/// A field of a message of protocol buffers that holds text, or another message; of less than 16
/// KB.
inline QByteArray wireField(int number, const QByteArray& text)
{
    QByteArray field;
    field.append(static_cast<char>(number << 3 | 2));
    if (text.size() >= 0x80) {
        field.append(static_cast<char>(text.size() % 0x80 + 0x80));
        field.append(static_cast<char>(text.size() / 0x80));
    } else {
        field.append(static_cast<char>(text.size()));
    }
    return field + text;
}

inline QString blob(const QByteArray& bytes)
{
    return "x'" + QString::fromLatin1(bytes.toHex()) + "'";
}

/// Makes an account of WeChat, "wxid_owner", with chats and contacts.
class WeChatTest : public LazyTableTest {
protected:
    static constexpr int kChats = 14;
    static constexpr int kFiles = 15;
    static constexpr int kContacts = 16;
    static constexpr auto kDomain = "AppDomain-com.tencent.xin";

    static QString hash(const QString& user) { return backup::weChatHash(user); }
    static QString account() { return "Documents/" + hash("wxid_owner"); }

    /// Statements that make the table of a chat and put in messages.
    struct Message {
        int id = 0;
        int type = 1;
        QString text;
        bool fromMe = false;
        int serverId = -1; ///< -1: one of its own
    };
    static QStringList chat(
        const QString& user, const std::vector<Message>& messages, const QString& prefix = "Chat_")
    {
        const QString table = prefix + hash(user);
        QStringList statements{
            "CREATE TABLE " + table
            + " (TableVer INTEGER, MesLocalID INTEGER PRIMARY KEY AUTOINCREMENT,"
              " MesSvrID INTEGER, CreateTime INTEGER, Message TEXT, Status INTEGER,"
              " ImgStatus INTEGER, Type INTEGER, Des INTEGER)"};
        for (const Message& message : messages) {
            statements.append(QString("INSERT INTO %1 VALUES (1, %2, %3, %4, '%5', 2, 1, %6, %7)")
                                  .arg(table)
                                  .arg(message.id)
                                  .arg(message.serverId < 0 ? 9000 + message.id : message.serverId)
                                  .arg(1'600'000'000 + 60 * message.id)
                                  .arg(QString(message.text).replace('\'', "''"))
                                  .arg(message.type)
                                  .arg(message.fromMe ? 0 : 1));
        }
        return statements;
    }

    static QStringList friendTable()
    {
        return {"CREATE TABLE Friend (userName TEXT PRIMARY KEY, type INTEGER, certificationFlag"
                " INTEGER, imgStatus INTEGER, encodeUserName TEXT, dbContactRemark BLOB,"
                " dbContactLocal BLOB, dbContactHeadImage BLOB, dbContactProfile BLOB,"
                " dbContactSocial BLOB, dbContactChatRoom BLOB, dbContactOther BLOB)"};
    }
    struct Friend {
        QString user;
        QByteArray nick;
        QByteArray remark;
        QByteArray alias;
        int type = 1;
        QByteArray headImage;
        QByteArray profile;
        QByteArray social;
        QByteArray room;
    };
    static QString row(const Friend& person, const QString& table = "Friend")
    {
        const QByteArray remark =
            wireField(1, person.nick) + wireField(2, person.alias) + wireField(3, person.remark);
        return QString("INSERT INTO %1 (userName, type, dbContactRemark, dbContactHeadImage,"
                       " dbContactProfile, dbContactSocial, dbContactChatRoom) VALUES"
                       " ('%2', %3, %4, %5, %6, %7, %8)")
            .arg(table, person.user, QString::number(person.type), blob(remark),
                blob(person.headImage), blob(person.profile), blob(person.social),
                blob(person.room));
    }

    void addMessages(const QString& name, const QStringList& statements)
    {
        builder().addDatabase(kDomain, account() + "/DB/" + name, statements);
    }
    void addContacts(const QStringList& rows)
    {
        builder().addDatabase(kDomain, account() + "/DB/WCDB_Contact.sqlite", friendTable() + rows);
    }
    /// A file of a message; its contents are its name.
    void addFile(const QString& folder, const QString& user, const QString& name)
    {
        builder().add(
            kDomain, account() + "/" + folder + "/" + hash(user) + "/" + name, name.toUtf8());
    }

    const PRWhatsappChat& conversation(int row)
    {
        static const PRWhatsappChat none;
        const PRData* set = m_opened->records.getPRData(kChats);
        const auto* item = set != nullptr && row < set->count(1)
                               ? dynamic_cast<const PRWhatsappItem*>(set->at(row, true))
                               : nullptr;
        EXPECT_NE(item, nullptr) << "no chat in row " << row;
        return item != nullptr ? *item->detailContent() : none;
    }

    /// "0 > text": the kind, "<" received or ">" sent ("!" was not), the sender, the text, and
    /// behind " = " what the media file holds.
    QStringList conversationLines(int row)
    {
        QStringList shown;
        const QList<PRWhatsappMsg*>& messages = conversation(row).messages();
        for (const PRWhatsappMsg* message : messages) {
            QString line = QString::number(static_cast<int>(message->type()))
                           + (message->isFromMe() ? " >" : " <")
                           + (message->isSentDone() ? " " : "! ");
            line += message->member().isEmpty() ? "" : "[" + message->member() + "] ";
            line += message->content();
            QFile media(message->media());
            if (!message->media().isEmpty()) {
                line += " = ";
                line += media.open(QIODevice::ReadOnly) ? media.readAll() : QByteArray("-");
            }
            shown.append(line);
        }
        return shown;
    }

    PRWeiChatContact contact(int row)
    {
        PRData* set = m_opened->records.getPRData(kContacts);
        auto* item = set != nullptr && row < set->count(1)
                         ? dynamic_cast<PRWeichatContactItem*>(set->at(row, true))
                         : nullptr;
        EXPECT_NE(item, nullptr) << "no contact in row " << row;
        return item != nullptr ? *item->detailContent() : PRWeiChatContact();
    }
};
