// SPDX-License-Identifier: MIT
#pragma once

#include "backup/container/BackupFolder.h"
#include "backup/readers/NoteSource.h"

#include <vector>

namespace backup {

class Notices;

/// The store of notes of iOS 4 to 8, notes.sqlite; on later phones it keeps the notes of mail
/// accounts. At opening it reads the list of notes, texts note by note.
class OldNoteStore final : public NoteSource {
public:
    /// `notices` outlives the store.
    OldNoteStore(OpenedDatabase database, Notices& notices);

    static bool isOldNoteStore(const formats::Database& database);

    const std::vector<NoteEntry>& notes() const override { return m_notes; }
    /// None: it is not known where a backup would have them.
    std::vector<NoteFile> files() override { return {}; }

protected:
    NoteContent load(std::size_t index) override;

private:
    void readNotes();
    void add(const formats::Statement& row);
    QString attachmentName(qint64 note, const QString& contentId);

    OpenedDatabase m_database;
    Notices& m_notices;
    std::vector<NoteEntry> m_notes;
    std::vector<qint64> m_ids;
    formats::Statement m_bodies;
    formats::Statement m_attachments;
};

} // namespace backup
