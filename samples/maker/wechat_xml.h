// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QString>

namespace sample {

/// What the table of a chat holds of a message.
struct WeChatMessage {
    int type = 1;
    QString text; ///< or XML, without the name of the sender
};

/// The message of an entry of wechat.json.
WeChatMessage weChatMessage(const QJsonObject& source);

} // namespace sample
