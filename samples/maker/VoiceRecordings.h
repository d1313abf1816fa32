// SPDX-License-Identifier: MIT
#pragma once

#include "BackupWriter.h"
#include "Database.h"

#include <QJsonObject>

namespace sample {

/// Makes the voice memos and their files from media.json.
class VoiceMemos {
public:
    static constexpr const char* kDomain = "AppDomainGroup-group.com.apple.VoiceMemos.shared";

    /// `media` is the directory of files that are not drawn.
    VoiceMemos(Database& database, BackupWriter& backup, QString media);

    void write(const QJsonObject& source);

private:
    void writeMemo(const QJsonObject& source, qint64 folder);

    Database& m_database;
    BackupWriter& m_backup;
    QString m_media;
};

/// Makes the answering machine and its sounds from media.json.
class Voicemail {
public:
    Voicemail(Database& database, BackupWriter& backup);

    void write(const QJsonObject& source);

private:
    Database& m_database;
    BackupWriter& m_backup;
};

} // namespace sample
