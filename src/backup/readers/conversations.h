// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/SenderNames.h"
#include "formats/sqlite.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

namespace backup {

/// One row of `handle`: an address under one service.
struct Handle {
    QString address; ///< phone number, e-mail address, short code
    QString name;    ///< from the address book, else the address
};

/// The persons of a store by handle.ROWID.
class Handles {
public:
    Handles() = default;
    Handles(const formats::Database& database, const SenderNames& names);

    /// Empty texts for a number that no handle has.
    const Handle& at(std::int64_t rowId) const;

private:
    QHash<std::int64_t, Handle> m_handles;
};

/// What a conversation is made of.
enum class ConversationKind {
    Chats,   ///< live messages of one chat, or of the chats that the phone shows as one
    Deleted, ///< messages of them that the phone keeps as recently deleted
    Orphans, ///< messages of one person that belong to no chat
};

/// One conversation as the phone lists it.
struct Conversation {
    ConversationKind kind = ConversationKind::Chats;
    std::vector<std::int64_t> chatIds;
    std::vector<std::int64_t> messageIds; ///< of the other two kinds
    std::vector<std::int64_t> partIds;    ///< live messages of which a part is deleted, ascending
    std::vector<std::int64_t> memberIds;  ///< handle.ROWID
    bool group = false;
    QString title;
    QString phone; ///< several, of a group, with ", " between them
    QString email;
    std::int64_t lastDate = 0; ///< nanoseconds since 2001
};

/// All conversations that have messages, the one with the newest message first.
std::vector<Conversation> readConversations(
    const formats::Database& database, const Handles& handles);

} // namespace backup
