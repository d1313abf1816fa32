// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/ChatApp.h"
#include "backup/readers/OpenedBackup.h"
#include "model/PRData.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace backup {

/// The data types that the records of a chat application fill.
struct ChatTypes {
    int chats = 0;
    int files = 0;
};

/// The chats of an application in all its accounts. Their list is read when it is first asked for;
/// the messages of a chat are loaded when they are, and held until those of the next one are.
class ChatStore final : public RecordSource {
public:
    ChatStore(ChatTypes types, const FileLocator& files);
    ~ChatStore() override;

    ChatTypes types() const { return m_types; }

    /// One more account, before the chats are asked for.
    void add(std::unique_ptr<ChatApp> app);

    /// Never null. Holds until the next call.
    const PRWhatsappChat* load(std::size_t index);

    /// The chats, the one with the newest message first; they load through this store.
    std::unique_ptr<PRData> chats();
    /// The files that came with their messages, each in a directory named for its chat.
    std::unique_ptr<PRData> files();

private:
    struct StoredChat {
        ChatApp* app = nullptr;
        ChatSummary summary;
    };
    RecordList listChats();
    RecordList listFiles();

    ChatTypes m_types;
    const FileLocator& m_files;
    std::vector<std::unique_ptr<ChatApp>> m_apps;
    std::vector<StoredChat> m_chats; // in the order of their records
    std::size_t m_loadedIndex = SIZE_MAX;
    std::unique_ptr<PRWhatsappChat> m_loaded;
};

/// Adds an account to the application of these types, and its records to those of the backup.
void addChatApp(std::unique_ptr<ChatApp> app, ChatTypes types, OpenedBackup& opened);

} // namespace backup
