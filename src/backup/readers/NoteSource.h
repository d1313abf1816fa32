// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/OpenedBackup.h"
#include "model/PRNoteItem.h"

#include <QString>

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

namespace backup {

/// What a list of notes shows of one.
struct NoteEntry {
    QString title;
    QString folder; ///< with the folders that it lies in: "Travel / Norway"
    QString account;
    double created = 0; ///< seconds since 2001; 0: unknown
    double modified = 0;
    bool deleted = false;
    bool locked = false;

    double changed() const { return modified != 0 ? modified : created; }
};

/// What a note holds. The previews are not loaded yet.
struct NoteContent {
    QString text; ///< all of it in plain form
    std::vector<PRNoteItem::NotePiece> pieces;
};

/// A file that is attached to a note.
struct NoteFile {
    std::optional<std::size_t> note; ///< none: it is not known whose it is
    QString name;
    double created = 0;            ///< seconds since 2001; 0: unknown
    std::function<QString()> path; ///< on this computer; empty where the file is missing
    std::function<QString()> preview;
};

/// A store of notes. Their contents are loaded when they are asked for, those of one at a time.
class NoteSource : public RecordSource {
public:
    virtual const std::vector<NoteEntry>& notes() const = 0;
    virtual std::vector<NoteFile> files() = 0;

    /// Holds until another note is asked for.
    const NoteContent& content(std::size_t index);
    /// The same pieces with their previews.
    const PRNoteItem& shown(std::size_t index);

protected:
    virtual NoteContent load(std::size_t index) = 0;

private:
    static constexpr auto kNone = static_cast<std::size_t>(-1);
    std::size_t m_loadedIndex = kNone;
    NoteContent m_loaded;
    std::unique_ptr<PRNoteItem> m_shown;
};

} // namespace backup
