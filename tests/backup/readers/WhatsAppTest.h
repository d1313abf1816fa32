// SPDX-License-Identifier: MIT
#pragma once

#include "LazyTableTest.h"
#include "model/PRWhatsappItem.h"
#include "support/message_bytes.h"

/// Makes a store of chats and shows what is read of it.
class WhatsAppTest : public LazyTableTest {
protected:
    static constexpr int kChats = 5;
    static constexpr int kFiles = 6;
    static constexpr int kBusinessChats = 7;
    inline static const QString kDomain = "AppDomainGroup-group.net.whatsapp.WhatsApp.shared";
    inline static const QString kBusiness = "AppDomainGroup-group.net.whatsapp.WhatsAppSMB.shared";
    inline static const QString kStore = "ChatStorage.sqlite";

    static QStringList tables()
    {
        return {
            R"(CREATE TABLE ZWACHATSESSION (Z_PK INTEGER PRIMARY KEY, ZCONTACTJID VARCHAR,
                ZPARTNERNAME VARCHAR, ZSESSIONTYPE INTEGER, ZREMOVED INTEGER,
                ZLASTMESSAGEDATE TIMESTAMP))",
            R"(CREATE TABLE ZWAMESSAGE (Z_PK INTEGER PRIMARY KEY, ZCHATSESSION INTEGER,
                ZMEDIAITEM INTEGER, ZMESSAGEINFO INTEGER, ZGROUPMEMBER INTEGER, ZISFROMME INTEGER,
                ZMESSAGETYPE INTEGER, ZGROUPEVENTTYPE INTEGER, ZMESSAGESTATUS INTEGER,
                ZFLAGS INTEGER, ZSORT INTEGER, ZMESSAGEDATE TIMESTAMP,
                ZSENTDATE TIMESTAMP, ZTEXT VARCHAR, ZFROMJID VARCHAR, ZTOJID VARCHAR, ZSTANZAID VARCHAR, ZPUSHNAME VARCHAR))",
            "CREATE INDEX ZWAMESSAGE_ZCHATSESSION_INDEX ON ZWAMESSAGE (ZCHATSESSION)",
            R"(CREATE TABLE ZWAMEDIAITEM (Z_PK INTEGER PRIMARY KEY, ZMESSAGE INTEGER,
                ZMEDIALOCALPATH VARCHAR, ZXMPPTHUMBPATH VARCHAR, ZTITLE VARCHAR,
                ZVCARDNAME VARCHAR, ZVCARDSTRING VARCHAR, ZMEDIAURL VARCHAR, ZLATITUDE FLOAT,
                ZLONGITUDE FLOAT, ZMETADATA BLOB))",
            R"(CREATE TABLE ZWAGROUPMEMBER (Z_PK INTEGER PRIMARY KEY, ZCHATSESSION INTEGER,
                ZMEMBERJID VARCHAR, ZCONTACTNAME VARCHAR, ZFIRSTNAME VARCHAR, ZISACTIVE INTEGER))",
            R"(CREATE TABLE ZWAPROFILEPUSHNAME (Z_PK INTEGER PRIMARY KEY, ZJID VARCHAR,
                ZPUSHNAME VARCHAR))",
            R"(CREATE TABLE ZWAMESSAGEINFO (Z_PK INTEGER PRIMARY KEY, ZMESSAGE INTEGER,
                ZRECEIPTINFO BLOB))",
        };
    }

    static QString row(const QString& table, const QString& columns, const QString& values)
    {
        return QString("INSERT INTO %1 (%2) VALUES (%3)").arg(table, columns, values);
    }

    /// Chat 1 is one with Ben, chat 2 a group with Ben and Mia; the later one has the higher
    /// number.
    static QStringList chats()
    {
        return {chat(1, ben(), "Ben Carter", 0), chat(2, "1203@g.us", "Choir", 1),
            member(21, 2, ben(), "Ben Carter"), member(22, 2, mia(), "Mia Jansen")};
    }

    static QString ben() { return "12025550114@s.whatsapp.net"; }
    static QString mia() { return "31205550120@s.whatsapp.net"; }

    static QString chat(
        int id, const QString& address, const QString& name, int kind, int removed = 0)
    {
        return row("ZWACHATSESSION",
            "Z_PK, ZCONTACTJID, ZPARTNERNAME, ZSESSIONTYPE, ZREMOVED, ZLASTMESSAGEDATE",
            QString("%1, '%2', '%3', %4, %5, %6")
                .arg(id)
                .arg(address, name)
                .arg(kind)
                .arg(removed)
                .arg(700'000'000 + id));
    }

    static QString member(
        int id, int chat, const QString& address, const QString& name, int active = 1)
    {
        return row("ZWAGROUPMEMBER", "Z_PK, ZCHATSESSION, ZMEMBERJID, ZCONTACTNAME, ZISACTIVE",
            QString("%1, %2, '%3', '%4', %5").arg(id).arg(chat).arg(address, name).arg(active));
    }

    /// 2023-03-08 20:26:40 UTC is 700,000,000 seconds after 2001 began.
    static QString message(int id, int chat, const QString& text, const QString& more = QString(),
        const QString& values = QString())
    {
        return row("ZWAMESSAGE",
            "Z_PK, ZCHATSESSION, ZTEXT, ZMESSAGEDATE, ZSORT"
                + (more.isEmpty() ? QString() : ", " + more),
            QString("%1, %2, %3, %4, %1")
                    .arg(id)
                    .arg(chat)
                    .arg(text.isNull() ? "NULL" : "'" + text + "'")
                    .arg(700'000'000 + id * 60)
                + (values.isEmpty() ? QString() : ", " + values));
    }

    /// The media of message `id`.
    static QStringList media(int id, int chat, int type, const QString& columns,
        const QString& values, const QString& text = QString())
    {
        return {message(id, chat, text, "ZMESSAGETYPE, ZMEDIAITEM",
                    QString("%1, %2").arg(type).arg(id)),
            row("ZWAMEDIAITEM", "Z_PK, ZMESSAGE, " + columns,
                QString("%1, %1, ").arg(id) + values)};
    }

    static QString blob(const QByteArray& bytes)
    {
        return "x'" + QString::fromLatin1(bytes.toHex()) + "'";
    }

    void open(const QStringList& statements)
    {
        builder().addDatabase(kDomain, kStore, tables() + statements);
        openFolder();
    }

    const PRWhatsappItem& chatItem(int row, int dataType = kChats)
    {
        static const PRWhatsappItem none;
        const PRData* set = m_opened->records.getPRData(dataType);
        const auto* item = set != nullptr && row < set->count(1)
                               ? dynamic_cast<const PRWhatsappItem*>(set->at(row, true))
                               : nullptr;
        EXPECT_NE(item, nullptr) << "no chat in row " << row;
        return item != nullptr ? *item : none;
    }

    /// "0 < Mia: text = contents of the media": its kind, whether it was sent or received, who sent
    /// it; "!" not sent, "+3" reactions, "*" to a list.
    QStringList messages(int row = 0, int dataType = kChats)
    {
        QStringList shown;
        for (const PRWhatsappMsg* each : chatItem(row, dataType).detailContent()->messages()) {
            const ChatMessage& message = each->contents();
            QString line = QString::number(message.type) + (message.fromMe ? " >" : " <");
            line += message.member.isEmpty() ? QString() : " " + message.member + ":";
            line += " " + message.content;
            if (!message.media.isEmpty()) {
                QFile file(message.media);
                EXPECT_TRUE(file.open(QIODevice::ReadOnly));
                line += " = " + QString::fromUtf8(file.readAll());
            }
            line += message.sentDone ? "" : " !";
            line += message.drawLike ? QString(" +%1").arg(message.likeCount) : QString();
            line += message.broadcast ? " *" : "";
            shown.append(line);
        }
        return shown;
    }
};
