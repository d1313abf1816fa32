// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace sample {

/// A stretch of a note with the same attributes. A line break belongs to the paragraph that it
/// ends.
struct NoteStretch {
    QString text;
    int style = -1; ///< 0 title, 1 heading, 2 subheading, 4 monospaced, 100 to 103 lists
    int indent = 0;
    bool done = false; ///< the box of a checklist
    bool quote = false;
    int weight = 0; ///< 1 bold, 2 italic, 3 both
    QString link;
    QString attachment; ///< identifier of what stands here
    QString attachmentType;
};

/// The body of a note as the store has it.
QByteArray noteBody(const std::vector<NoteStretch>& stretches);

/// The data of a table in a note; all rows have the same number of cells.
QByteArray noteTable(const std::vector<QStringList>& rows);

QByteArray gzipped(const QByteArray& bytes);

} // namespace sample
