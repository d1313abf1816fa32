// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/NoteSource.h"
#include "formats/sqlite.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace backup {

/// One row of a note.
struct NoteRow {
    qint64 id = 0;
    qint64 bodyId = 0; ///< row of ZICNOTEDATA; 0: the text never came to the phone
    QString snippet;   ///< beginning of the text
    QString accountId; ///< names the directory of its files
};

/// The notes of a store; both lists have one entry for each note, in the same order.
struct NoteRows {
    std::vector<NoteEntry> entries;
    std::vector<NoteRow> rows;
    QStringList accountIds; ///< of all accounts
    int leftOut = 0;        ///< notes without anything to show, neither text nor title
    bool damaged = false;   ///< some rows could not be read
};

NoteRows readNoteRows(const formats::Database& database);

} // namespace backup
