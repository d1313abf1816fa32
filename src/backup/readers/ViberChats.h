// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/ChatMedia.h"
#include "backup/readers/SenderNames.h"
#include "backup/readers/TableChats.h"
#include "backup/readers/viber_calls.h"
#include "model/PRData.h"

namespace backup {

/// The chats of Viber, and its list of calls.
class ViberChats final : public TableChats {
public:
    static constexpr int kCallType = 13;

    ViberChats(ChatDatabase database, SenderNames names);

    static bool isOfKind(const formats::Database& database);
    static bool hasMessages(const formats::Database& database);
    static bool hasCalls(const formats::Database& database);
    /// Of messages and calls.
    static qint64 countRecords(const formats::Database& database);

    /// The list of calls, which is read when it is first asked for; stands on this object.
    std::unique_ptr<PRData> callList();

protected:
    std::vector<StoredChat> readChats() override;
    StoredMessage readMessage(const formats::Statement& row, const StoredChat& chat) override;
    bool canHaveFile(const formats::Statement& row) const override;
    std::vector<ChatFile> leftOverFiles() override;

private:
    struct Person {
        QString name;
        QString phone;
    };
    struct Attachment {
        QString name;
        QString type;
    };
    struct Place {
        double latitude = 0;
        double longitude = 0;
        QString address;
    };
    void readPhones();
    void readBook();
    void readPeople();
    void readAttachments();
    void readPlaces();
    void readCalls();
    void completeCall(ViberCall& listed) const;
    RecordList calls();
    qint64 partnerOfMessage(qint64 message) const;
    StoredChat chatOf(const QString& name, bool isGroup, const QVector<qint64>& members) const;
    void listMedia();
    void describe(const Attachment& attachment, StoredMessage& stored);

    SenderNames m_names;
    bool m_arePeopleRead = false;
    QHash<qint64, QString> m_phones; // by member
    QHash<QString, QString> m_book;  // the application's copy of the address book, by number
    QHash<qint64, Person> m_people;  // by member
    QHash<qint64, Attachment> m_attachments;
    QHash<qint64, Place> m_places;
    QHash<qint64, Call> m_calls; // by the message that shows them
    ChatMedia m_media;
    bool m_isMediaListed = false;
};

} // namespace backup
