// SPDX-License-Identifier: MIT
#pragma once

#include "backup/container/FileLocator.h"
#include "backup/readers/wechat_message.h"
#include "platform/literals.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

namespace backup {

/// A file of a message: the best of those that the phone has of it.
struct WeChatFile {
    QString path;             ///< on the device; empty where there is none
    bool isThumbnail = false; ///< the full file was not downloaded
};

/// The files of the messages of one chat, by the numbers of the messages.
class WeChatChatFiles {
public:
    /// `path` is that of a file in a folder of the chat.
    void add(WeChatFolder folder, const QString& path);

    WeChatFile find(WeChatFolder folder, qint64 message) const;

    /// A folder, and the number of a message that has files in it.
    using Place = std::pair<WeChatFolder, qint64>;
    QList<Place> places() const { return m_paths.keys(); }

private:
    QMap<Place, QStringList> m_paths; // of all that belong to a message
};

/// Where an account keeps the files of its messages.
class WeChatMedia {
public:
    /// `directory` is that of the account; `files` outlives the object.
    WeChatMedia(const FileLocator& files, QString directory);

    WeChatChatFiles ofChat(const QString& chatHash) const;
    /// Those of all chats by their hashes.
    QMap<QString, WeChatChatFiles> ofAll() const;

    /// The path on this computer; empty where the file is not there.
    QString locate(const QString& path) const;

private:
    const FileLocator& m_files;
    QString m_directory;
};

/// The domain of the application, and that of what it shares with its extensions.
inline constexpr QLatin1String kWeChatDomain = "AppDomain-com.tencent.xin"_L1;
inline constexpr QLatin1String kWeChatGroupDomain = "AppDomainGroup-group.com.tencent.xin"_L1;

} // namespace backup
