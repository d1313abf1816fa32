// SPDX-License-Identifier: MIT
#pragma once

#include "LazyTableTest.h"
#include "model/PRWhatsappItem.h"

/// Shows the chats of a set as lines, and the messages of each.
class ChatTest : public LazyTableTest {
protected:
    const std::vector<PRWhatsappMsg>& messagesOf(int dataType, int row)
    {
        static const std::vector<PRWhatsappMsg> none;
        const PRData* set = m_opened->records.getPRData(dataType);
        const auto* item =
            set != nullptr ? dynamic_cast<const PRWhatsappItem*>(set->at(row, true)) : nullptr;
        EXPECT_NE(item, nullptr) << "no chat in row " << row;
        return item != nullptr ? item->detailContent()->contents() : none;
    }

    // "> [type] content" sent, "! ..." not sent, "< [type] member: content" received;
    // "{...}" what its media file holds; "+n" its likes.
    QStringList shownMessages(int dataType, int row)
    {
        QStringList shown;
        for (const PRWhatsappMsg& message : messagesOf(dataType, row)) {
            shown.append(shownMessage(message.contents()));
        }
        return shown;
    }

    static QString shownMessage(const ChatMessage& message)
    {
        QString line = message.fromMe ? (message.sentDone ? "> [" : "! [") : "< [";
        line += QString::number(message.type) + "] ";
        if (!message.member.isEmpty()) {
            line += message.member + ": ";
        }
        line += message.content;
        if (!message.media.isEmpty()) {
            QFile file(message.media);
            EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << message.media.toStdString();
            line += " {" + QString::fromUtf8(file.readAll()) + "}";
        }
        if (message.drawLike) {
            line += QString(" +%1").arg(message.likeCount);
        }
        return line;
    }

    QStringList dates(int dataType, int row)
    {
        QStringList shown;
        for (const PRWhatsappMsg& message : messagesOf(dataType, row)) {
            const QDateTime& date = message.msgDate();
            EXPECT_TRUE(!date.isValid() || date.timeSpec() == Qt::UTC);
            shown.append(date.isValid() ? date.toString(Qt::ISODateWithMs) : "-");
        }
        return shown;
    }
};

/// An address book that knows +491715550101 as Mia Holm.
inline const QStringList kChatAddressBook{
    "CREATE TABLE ABPerson (ROWID INTEGER PRIMARY KEY, First TEXT, Last TEXT, Nickname TEXT,"
    " Organization TEXT)",
    "CREATE TABLE ABMultiValue (UID INTEGER PRIMARY KEY, record_id INTEGER, property INTEGER,"
    " value TEXT)",
    "INSERT INTO ABPerson (First, Last) VALUES ('Mia', 'Holm')",
    "INSERT INTO ABMultiValue (record_id, property, value) VALUES (1, 3, '0171 5550101')"};
