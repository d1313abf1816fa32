// SPDX-License-Identifier: MIT
#pragma once

#include "formats/Result.h"

#include <QString>

#include <span>
#include <vector>

namespace formats {

/// What a paragraph of a note is; other numbers are ordinary text.
enum NoteStyle : int {
    PlainParagraph = -1,
    NoteTitle = 0,
    NoteHeading = 1,
    NoteSubheading = 2,
    Monospaced = 4,
    DottedList = 100,
    DashedList = 101,
    NumberedList = 102,
    CheckedList = 103,
};

/// A stretch of a note with the same attributes.
struct NoteRun {
    int length = 0; ///< UTF-16 units
    int style = PlainParagraph;
    int indent = 0;
    bool done = false; ///< the box of a checklist
    bool quote = false;
    QString link;
    QString attachment; ///< its identifier, where U+FFFC stands for one
    QString attachmentType;
};

struct NoteBody {
    QString text;
    std::vector<NoteRun> runs; ///< in order; together no longer than the text
};

/// Rows of cells, all of the same length.
using NoteTable = std::vector<std::vector<QString>>;

/// Reads the compressed body of a note.
Result<NoteBody> parseNoteBody(std::span<const unsigned char> bytes);

/// Reads the compressed data of a table in a note. Where its structure does not hold, a single
/// column with all the texts that it has; an Error where it has none.
Result<NoteTable> parseNoteTable(std::span<const unsigned char> bytes);

} // namespace formats
