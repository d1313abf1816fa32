// SPDX-License-Identifier: MIT
#pragma once

#include "BackupWriter.h"
#include "Database.h"

#include <QHash>
#include <QJsonObject>

namespace sample {

/// Makes the chats and the calls of Viber, and its files from viber.json.
class ViberStore {
public:
    static constexpr const char* kDomain = "AppDomainGroup-group.viber.share.container";

    /// `media` is the directory of files that are not drawn.
    ViberStore(Database& database, BackupWriter& backup, QString media);

    void write(const QJsonObject& source);

private:
    void writePerson(const QJsonObject& source);
    void writeChat(const QJsonObject& source);
    void writeMessage(const QJsonObject& source, qint64 chat);
    QVariant attachment(const QJsonObject& source, const QString& at);
    QVariant location(const QJsonObject& source);
    void writeCall(const QJsonObject& source, qint64 message);

    Database& m_database;
    BackupWriter& m_backup;
    QString m_media;
    QHash<QString, qint64> m_people; // rows by the names in the source
};

} // namespace sample
