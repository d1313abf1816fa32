// SPDX-License-Identifier: MIT
#pragma once

#include "BackupWriter.h"
#include "Database.h"

#include <QHash>
#include <QJsonObject>

namespace sample {

/// Makes the chats of a Kik account and its files from kik.json.
class KikStore {
public:
    static constexpr const char* kDomain = "AppDomainGroup-group.com.kik.chat";
    /// The directory of the account.
    static QString directory();

    /// `media` is the directory of files that are not drawn.
    KikStore(Database& database, BackupWriter& backup, QString media);

    void write(const QJsonObject& source);

private:
    qint64 writeUser(const QJsonObject& source);
    void writeChat(const QJsonObject& source);
    void writeMessage(const QJsonObject& source, qint64 chat);

    Database& m_database;
    BackupWriter& m_backup;
    QString m_media;
    QHash<QString, qint64> m_people; // rows by the names in the source
};

} // namespace sample
