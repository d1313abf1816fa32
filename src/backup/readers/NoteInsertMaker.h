// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/NoteAttachments.h"
#include "backup/readers/NoteFiles.h"
#include "backup/readers/note_content.h"

namespace backup {

class Notices;

/// What the attachments of one note look like in its text.
class NoteInsertMaker {
public:
    /// All of them outlive it. `account` names the directory of the note's files.
    NoteInsertMaker(const NoteAttachments& attachments, const NoteFiles& files, Notices& notices,
        QString title, QString account);

    NoteInsert make(const formats::NoteRun& run) const;

private:
    NoteInsert insertOf(const NoteAttachment& attachment) const;
    NoteInsert table(const NoteAttachment& attachment) const;
    std::vector<PRNoteItem::NotePiece> pictures(const NoteAttachment& attachment) const;
    std::vector<PRNoteItem::NotePiece> ownPicture(const NoteAttachment& attachment) const;
    void noteMissing(const NoteAttachment& attachment) const;

    const NoteAttachments& m_attachments;
    const NoteFiles& m_files;
    Notices& m_notices;
    QString m_title;
    QString m_account;
};

/// "Garden.png" for the title "Garden" and a file "FallbackImage.png"; `otherwise` stands for an
/// empty title.
QString nameLike(const QString& title, const QString& fileName, const QString& otherwise);

/// Tells once that a file of a note is not there.
void noteMissingFile(Notices& notices, const QString& file, const QString& noteTitle);

} // namespace backup
