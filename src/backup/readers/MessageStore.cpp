// SPDX-License-Identifier: MIT
#include "backup/readers/MessageStore.h"

#include "backup/container/Notices.h"
#include "backup/readers/AttachmentData.h"
#include "model/PRSMSItem.h"
#include "platform/literals.h"

namespace backup {

namespace {

/// A conversation whose messages are loaded when they are asked for.
class StoredConversation final : public PRSMSItem {
public:
    StoredConversation(Record record, MessageStore& store, std::size_t index)
        : PRSMSItem(std::move(record)), m_store(store), m_index(index)
    {
    }

    const PRSMSChatGroup* detailContent() const override { return m_store.load(m_index); }

private:
    MessageStore& m_store;
    std::size_t m_index;
};

} // namespace

MessageStore::MessageStore(
    OpenedDatabase database, const SenderNames& names, const FileLocator& files, Notices& notices)
    : m_database(std::move(database)), m_files(files), m_notices(notices),
      m_handles(m_database.database, names),
      m_conversations(readConversations(m_database.database, m_handles)),
      m_rows(m_database.database, m_conversations, notices),
      m_builder(m_database.database, m_handles, files)
{
}

MessageStore::~MessageStore() = default;

bool MessageStore::isMessageStore(const formats::Database& database)
{
    const QStringList tables = database.tables();
    return tables.contains("message"_L1) && tables.contains("handle"_L1);
}

const PRSMSChatGroup* MessageStore::load(std::size_t index)
{
    if (index != m_loadedIndex) {
        m_loaded.reset(); // its memory is wanted for the next one
        const ConversationRows rows = m_rows.take(index);
        m_loaded = std::make_unique<PRSMSChatGroup>(m_builder.build(m_conversations[index], rows));
        m_loadedIndex = index;
    }
    return m_loaded.get();
}

std::unique_ptr<PRData> MessageStore::messages()
{
    RecordList records;
    records.reserve(m_conversations.size());
    for (std::size_t index = 0; index < m_conversations.size(); ++index) {
        const Conversation& conversation = m_conversations[index];
        Record record{
            .values = {conversation.title, conversation.phone, conversation.email},
            .flags = conversation.kind == ConversationKind::Deleted ? Deleted : 0,
        };
        records.push_back(std::make_unique<StoredConversation>(std::move(record), *this, index));
    }
    return std::make_unique<PRSMSData>(
        std::move(records), QStringList{"Name"_L1, "Phone"_L1, "Email"_L1});
}

std::unique_ptr<PRData> MessageStore::attachments()
{
    return std::make_unique<AttachmentData>(
        m_database.database, m_conversations, m_files, m_notices);
}

} // namespace backup
