// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/WhatsAppFiles.h"
#include "backup/readers/WhatsAppPeople.h"
#include "backup/readers/whatsapp_row.h"
#include "formats/whatsapp_data.h"
#include "model/PRWhatsappItem.h"

#include <QHash>
#include <QString>

#include <cstdint>
#include <vector>

namespace backup {

/// A member of a group, by ZWAGROUPMEMBER.Z_PK.
struct WhatsAppMember {
    QString address;
    QString name; ///< what the application calls the person
};
using WhatsAppMembers = QHash<qint64, WhatsAppMember>;

/// What is known of a chat beside its messages.
struct WhatsAppChatFacts {
    QString partner; ///< name of the other one; empty where there are several
    bool isPrivate = false;
    bool isBroadcast = false; ///< a list of people who all get what is sent
};

/// Makes the messages of one chat out of rows of `WhatsAppRows`.
class WhatsAppChatBuilder {
public:
    /// All of them outlive the builder.
    WhatsAppChatBuilder(const WhatsAppChatFacts& chat, const WhatsAppPeople& people,
        const WhatsAppMembers& members, const WhatsAppFiles& files);

    void add(const WhatsAppRow& row);
    /// Forgets what was added.
    void clear();

    /// The messages in their order. Ends the building.
    std::vector<PRWhatsappMsg> take();

private:
    /// A message that answers another one.
    struct Quote {
        std::size_t message = 0;
        std::uint64_t stanza = 0; // hash of the other one's id
        QString sender;
        QString text; // where the other one is not there
    };

    ChatMessage messageOf(const WhatsAppRow& row);
    void addContent(const WhatsAppRow& row, ChatMessage& message);
    void addEvent(const WhatsAppRow& row, const char* line, ChatMessage& message);
    void addMedia(const WhatsAppRow& row, ChatMessage& message) const;
    void addRelations(const WhatsAppRow& row);
    void addReceipts(const WhatsAppRow& row, ChatMessage& message);
    QString textOf(const WhatsAppRow& row, int type) const;
    QString senderOf(const WhatsAppRow& row) const;
    QString senderAddress(const WhatsAppRow& row) const;
    QString shownName(const QString& address) const;
    QString actorOf(const WhatsAppRow& row, const QString& named) const;
    QString quotedSender(const Quote& quote, const ChatMessage* quoted) const;
    QString quoteLine(const Quote& quote, const ChatMessage* quoted) const;
    void addMarks();
    void resolveQuotes();
    void sort();

    const WhatsAppChatFacts& m_chat;
    const WhatsAppPeople& m_people;
    const WhatsAppMembers& m_members;
    const WhatsAppFiles& m_files;
    const QString m_you;

    std::vector<ChatMessage> m_messages;
    std::vector<WhatsAppOrder> m_order;   // of each message
    std::vector<std::uint64_t> m_stanzas; // hashes of their ids; 0 for none
    std::vector<Quote> m_quotes;
    std::vector<std::size_t> m_forwardedOnes;
};

} // namespace backup
