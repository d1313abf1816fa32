// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/MessageFiles.h"
#include "backup/readers/conversations.h"
#include "backup/readers/message_rows.h"
#include "model/PRSMSItem.h"

#include <QString>

#include <cstdint>
#include <vector>

namespace backup {

/// Makes the objects of the record model out of the rows of one conversation. What a row leaves
/// open (events, edits, attachments, the texts that reactions speak of) is looked up in the store.
class ConversationBuilder {
public:
    /// All of them outlive the builder.
    ConversationBuilder(
        const formats::Database& database, const Handles& handles, const FileLocator& files);

    SmsConversation build(const Conversation& conversation, const ConversationRows& rows);

private:
    class Run; // the work on one conversation

    const Handles& m_handles;
    MessageFiles m_files;
    formats::Statement m_details;     // one message by its id
    formats::Statement m_idOfGuid;    // a message's id by its guid
    formats::Statement m_emoji;       // a reaction's emoji
    formats::Statement m_deletedPart; // the texts of deleted parts of a message
};

} // namespace backup
