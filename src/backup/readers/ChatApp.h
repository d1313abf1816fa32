// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/DeviceFileItem.h"
#include "model/PRWhatsappItem.h"

#include <QDateTime>
#include <QString>

#include <cstdint>
#include <vector>

namespace backup {

/// A chat as its application lists it.
struct ChatSummary {
    std::int64_t id = 0; ///< as the application counts its chats
    QString title;
    QString name;   ///< of the other person; of a group its own
    QString phones; ///< several are separated by commas; empty where the application knows none
    bool deleted = false;
    QDateTime lastDate; ///< of the newest message; invalid where that is unknown
};

/// A file that came with a message.
struct ChatFile {
    QString name;      ///< for people
    QString chatTitle; ///< empty where no chat is known
    bool deleted = false;
    DeviceFile place;
    QDateTime date; ///< invalid where it is unknown
};

/// The chats of one account in one chat application. What cannot be read is told to the notices
/// that the application's reader was given.
class ChatApp {
public:
    ChatApp() = default;
    ChatApp(const ChatApp&) = delete;
    ChatApp& operator=(const ChatApp&) = delete;
    virtual ~ChatApp() = default;

    /// The chats that have messages, in any order. Called once.
    virtual std::vector<ChatSummary> chats() = 0;

    /// The messages of a chat in the order in which it shows them. The text of a picture, film or
    /// sound is its caption.
    virtual std::vector<PRWhatsappMsg> messages(const ChatSummary& chat) = 0;

    /// The files of all messages, chat by chat, and within a chat in the order of the messages.
    virtual std::vector<ChatFile> files() = 0;
};

} // namespace backup
