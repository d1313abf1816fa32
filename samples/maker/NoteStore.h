// SPDX-License-Identifier: MIT
#pragma once

#include "BackupWriter.h"
#include "Database.h"
#include "note_bodies.h"

#include <QHash>
#include <QJsonObject>

#include <vector>

namespace sample {

/// Makes the phone's store of notes from notes.json.
class NoteStore {
public:
    /// Files of notes go into `backup` and are looked up in the folder `mediaFolder`.
    NoteStore(Database& database, BackupWriter& backup, QString mediaFolder);

    void write(const QJsonObject& source);

private:
    struct Place {
        qint64 row = 0;
        qint64 account = 0;
    };

    qint64 insert(const char* kind, const QString& identifier, Database::Row row);
    void writeKinds();
    void writeFolder(const QJsonObject& source, qint64 account, qint64 parent);
    void writeNote(const QJsonObject& source);
    void writeText(qint64 note, const QJsonObject& source);
    std::vector<NoteStretch> stretches(qint64 note, const QJsonObject& source);
    NoteStretch insertion(qint64 note, const QJsonObject& line);
    QString attachment(qint64 note, const QJsonObject& line);
    qint64 writeMedia(const QString& made, const QString& name);
    void writePreview(qint64 attachment, const QJsonObject& line);
    void writeDrawing(const QString& identifier, const QString& made);
    void addFile(const QString& path, const QByteArray& bytes);

    Database& m_database;
    BackupWriter& m_backup;
    QString m_mediaFolder;
    QHash<qint64, QString> m_accountIds;
    QHash<QString, Place> m_folders;  // by name
    QHash<QString, qint64> m_highest; // by kind
    QString m_noteName;               // what identifiers in the note begin with
    QString m_accountId;              // of the note
    qint64 m_changed = 0;             // when the note was
    int m_inserted = 0;               // in the note
};

} // namespace sample
