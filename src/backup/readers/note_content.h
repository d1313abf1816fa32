// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/NoteSource.h"
#include "formats/note_body.h"

#include <QString>

#include <functional>
#include <vector>

namespace backup {

/// What stands in a note at the place of an attachment.
struct NoteInsert {
    QString text; ///< shown in the line, or with line breaks as lines of its own
    std::vector<PRNoteItem::NotePiece> pictures;
};

/// `run` has the identifier and the type of the attachment.
using NoteInserts = std::function<NoteInsert(const formats::NoteRun& run)>;

/// The note as text and pictures in its order. Each stretch of text between pictures is a piece.
NoteContent noteContent(const formats::NoteBody& body, const NoteInserts& inserts);

/// A note that is text alone.
NoteContent plainContent(const QString& text);

/// The pieces one after the other; of a picture its name in brackets.
QString plainText(const std::vector<PRNoteItem::NotePiece>& pieces);

} // namespace backup
