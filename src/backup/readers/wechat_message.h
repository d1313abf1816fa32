// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRWhatsappItem.h"

#include <QString>

namespace backup {

/// The directory in which the file of a message lies.
enum class WeChatFolder { None, Pictures, Voice, Videos, Attachments };

/// What a message of the table is to a reader.
struct WeChatContent {
    MsgType kind = MsgType::Text;
    QString text;
    WeChatFolder folder = WeChatFolder::None;
    QString fileName;         ///< of a document, as its sender called it
    bool previewOnly = false; ///< the file is a small picture of what a link leads to
};

/// `type` is that of the table; `message` its text or XML, without the name of the sender.
WeChatContent weChatContent(qint64 type, const QString& message);

/// A text of a room, "user_name:\ntext".
struct WeChatSenderText {
    QString sender; ///< user name; empty where none stands before the text
    QString text;
};
WeChatSenderText splitSender(const QString& message);

} // namespace backup
