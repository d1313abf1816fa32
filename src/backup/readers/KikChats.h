// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/ChatMedia.h"
#include "backup/readers/TableChats.h"

namespace backup {

/// The chats of one Kik account.
class KikChats final : public TableChats {
public:
    explicit KikChats(ChatDatabase database);

    static bool isOfKind(const formats::Database& database);
    static bool hasMessages(const formats::Database& database);
    static qint64 countRecords(const formats::Database& database);

protected:
    std::vector<StoredChat> readChats() override;
    StoredMessage readMessage(const formats::Statement& row, const StoredChat& chat) override;
    bool canHaveFile(const formats::Statement& row) const override;
    std::vector<ChatFile> leftOverFiles() override;

private:
    void readAttachments();
    void listMedia();
    StoredFile fileOf(const QString& content);
    StoredFile described(const DeviceFile& file) const;

    QHash<qint64, QStringList> m_attachments; // names of the files of a message
    ChatMedia m_media;
    bool m_isMediaListed = false;
};

} // namespace backup
