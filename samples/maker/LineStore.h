// SPDX-License-Identifier: MIT
#pragma once

#include "BackupWriter.h"
#include "Database.h"

#include <QHash>
#include <QJsonObject>

namespace sample {

/// Makes the chats of one LINE account, its groups and its files from line.json.
class LineStore {
public:
    static constexpr const char* kDomain = "AppDomainGroup-group.com.linecorp.line";
    /// The directory of the account.
    static QString directory();

    /// `media` is the directory of files that are not drawn.
    LineStore(Database& messages, Database& groups, BackupWriter& backup, QString media);

    void write(const QJsonObject& source);

private:
    void writePerson(const QJsonObject& source);
    void writeChat(const QJsonObject& source);
    void writeMessage(const QJsonObject& source, qint64 chat, const QString& mid);
    void writeMedia(const QJsonObject& source, const QString& mid, const QString& id);

    Database& m_groups;
    Database& m_database;
    BackupWriter& m_backup;
    QString m_media;
    QHash<QString, qint64> m_people; // rows by the names in the source
};

} // namespace sample
