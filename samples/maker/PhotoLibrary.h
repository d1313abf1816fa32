// SPDX-License-Identifier: MIT
#pragma once

#include "BackupWriter.h"
#include "Database.h"

#include <QHash>
#include <QJsonObject>

namespace sample {

/// Makes the photo library and its files from media.json.
class PhotoLibrary {
public:
    /// `media` is the directory of files that are not drawn.
    PhotoLibrary(Database& database, BackupWriter& backup, QString media);

    void write(const QJsonObject& source);

private:
    void writeAlbum(const QJsonObject& source);
    void writePhoto(const QJsonObject& source);
    void writeFiles(const QJsonObject& source);
    void writeFile(const QString& path, const QString& from);

    Database& m_database;
    BackupWriter& m_backup;
    QString m_media;
    QHash<QString, qint64> m_albums; // by title
    int m_photos = 0;
};

} // namespace sample
