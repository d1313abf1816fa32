// SPDX-License-Identifier: MIT
#pragma once

#include "backup/container/BackupFolder.h"
#include "backup/readers/ConversationBuilder.h"
#include "backup/readers/ConversationRowsCache.h"
#include "backup/readers/OpenedBackup.h"
#include "backup/readers/conversations.h"

#include <memory>
#include <vector>

class PRData;
class PRSMSChatGroup;

namespace backup {

/// An opened store of messages. At opening it reads the list of conversations; the messages of one
/// are loaded when they are asked for, and held until the next one is.
class MessageStore final : public RecordSource {
public:
    /// `files` and `notices` outlive the store.
    MessageStore(OpenedDatabase database, const SenderNames& names, const FileLocator& files,
        Notices& notices);
    ~MessageStore() override;

    /// Whether the database has the tables of a store of messages.
    static bool isMessageStore(const formats::Database& database);

    const formats::Database& database() const { return m_database.database; }
    const std::vector<Conversation>& conversations() const { return m_conversations; }

    /// Never null; empty where the messages cannot be read, which the notices tell. Holds until the
    /// next call.
    const PRSMSChatGroup* load(std::size_t index);

    /// The conversations as data type 0; they load through this store.
    std::unique_ptr<PRData> messages();
    /// The files of the messages as data type 1, listed when they are first asked for.
    std::unique_ptr<PRData> attachments();

private:
    OpenedDatabase m_database;
    const FileLocator& m_files;
    Notices& m_notices;
    Handles m_handles;
    std::vector<Conversation> m_conversations;
    ConversationRowsCache m_rows;
    ConversationBuilder m_builder;
    std::size_t m_loadedIndex = SIZE_MAX;
    std::unique_ptr<PRSMSChatGroup> m_loaded;
};

} // namespace backup
