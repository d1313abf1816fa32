// SPDX-License-Identifier: MIT
#pragma once

#include "backup/container/BackupFolder.h"
#include "backup/readers/NoteAttachments.h"
#include "backup/readers/NoteFiles.h"
#include "backup/readers/NoteSource.h"
#include "backup/readers/note_rows.h"

#include <QHash>

#include <optional>
#include <vector>

namespace backup {

/// The store of notes of iOS 9 and later, NoteStore.sqlite. At opening it reads the list of notes;
/// attachments are read when one is first asked for, texts note by note.
class NoteStore final : public NoteSource {
public:
    /// `files` and `notices` outlive the store.
    NoteStore(OpenedDatabase database, const FileLocator& files, Notices& notices);

    static bool isNoteStore(const formats::Database& database);

    const std::vector<NoteEntry>& notes() const override { return m_rows.entries; }
    std::vector<NoteFile> files() override;

protected:
    NoteContent load(std::size_t index) override;

private:
    const NoteAttachments& attachments();
    void noteDamage() const;
    std::optional<QByteArray> body(const NoteRow& row);
    NoteContent damaged(std::size_t index, const QString& why);
    void addFiles(std::vector<NoteFile>& files, const NoteAttachment& attachment,
        std::optional<std::size_t> note);
    QString mediaPath(
        const NoteAttachment& attachment, const QString& account, const QString& noteTitle) const;

    OpenedDatabase m_database;
    const FileLocator& m_locator;
    Notices& m_notices;
    NoteRows m_rows;
    NoteFiles m_files;
    formats::Statement m_bodies;
    std::optional<NoteAttachments> m_attachments;
};

} // namespace backup
