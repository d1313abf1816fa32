// SPDX-License-Identifier: MIT
#pragma once

#include "formats/Result.h"
#include "formats/sqlite.h"

#include <QTemporaryDir>

#include <memory>

namespace backup {

class Notices;

/// A database of the backup, opened for reading: the payload itself, or a private copy with its
/// write-ahead log taken in, which goes away with this object.
struct OpenedDatabase {
    std::unique_ptr<QTemporaryDir> scratch; // outlives the database
    formats::Database database;
};

/// Where the parts of a database lie.
struct DatabaseFiles {
    QString shownName;   ///< how notices and errors name it
    QString name;        ///< its original file name, by which its logs know it
    QString path;        ///< the database
    QString walPath;     ///< its write-ahead log; empty for none
    QString journalPath; ///< its rollback journal; empty for none
};

/// Opens the database itself where it has no log; else a private copy that has taken the log in. A
/// log that spoils the copy is left out, which the notices are told.
formats::Result<OpenedDatabase> openDatabaseFiles(const DatabaseFiles& files, Notices& notices);

/// Opens the database at `path`: the file itself, or where a write-ahead log lies beside it
/// (`walPath`, empty for none) or a rollback journal, as above.
formats::Result<OpenedDatabase> openWithLog(
    const QString& path, const QString& walPath, Notices& notices);

} // namespace backup
