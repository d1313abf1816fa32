// SPDX-License-Identifier: MIT
#pragma once

#include "BackupWriter.h"
#include "Database.h"

#include <QJsonObject>
#include <QString>

#include <map>

namespace sample {

/// Makes an account of WeChat, its databases and its files, from wechat.json.
class WeChat {
public:
    /// Where things are made: `scratch` is for databases, `schemas` has their definitions, and
    /// `media` the files that are not drawn.
    struct Folders {
        QString scratch;
        QString schemas;
        QString media;
    };
    WeChat(BackupWriter& backup, Folders folders);

    void write(const QJsonObject& source);

private:
    Database& database(const QString& path, const QString& schema);
    void addFile(const QString& path, const QByteArray& bytes);
    void writePeople(const QJsonObject& source);
    void writePicture(const QJsonObject& person);
    void writeChat(const QJsonObject& chat);
    void writeSession(const QString& with, qint64 seconds);
    void writeMessage(Database& database, const QString& table, int id, const QString& with,
        const QJsonObject& source);
    void writeFiles(const QString& with, int id, const QJsonObject& source);
    void addMedia(
        const QString& folder, const QString& with, const QString& name, const QString& from);

    BackupWriter& m_backup;
    Folders m_folders;
    QString m_account;                       // the hash of the owner
    std::map<QString, Database> m_databases; // by their paths in the account's directory
};

} // namespace sample
