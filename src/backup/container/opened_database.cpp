// SPDX-License-Identifier: MIT
#include "backup/container/opened_database.h"

#include "backup/container/Notices.h"

#include <QFile>
#include <QFileInfo>

#include <utility>

namespace backup {

namespace {

using formats::Database;
using formats::Error;
using formats::OpenMode;
using formats::Result;

// A log of no bytes is what a database leaves that was closed in order.
bool hasBytes(const QString& path)
{
    return !path.isEmpty() && QFileInfo(path).size() > 0;
}

bool copyOwned(const QString& from, const QString& to)
{
    // Backups are kept read-only at times, and a copy takes the permissions with it.
    return QFile::copy(from, to)
           && QFile::setPermissions(to, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

// The error speaks of the database by the name that its user knows.
Result<OpenedDatabase> opened(
    const DatabaseFiles& files, const QString& path, std::unique_ptr<QTemporaryDir> scratch)
{
    auto database = Database::open(path, scratch ? OpenMode::Replay : OpenMode::Immutable);
    if (!database) {
        return Error{.where = files.shownName, .what = database.error().what};
    }
    return OpenedDatabase{.scratch = std::move(scratch), .database = std::move(*database)};
}

// The logs keep the database's name with their endings: SQLite finds them by that alone.
Result<std::unique_ptr<QTemporaryDir>> copyWithLogs(const DatabaseFiles& files)
{
    auto scratch = std::make_unique<QTemporaryDir>();
    const QString copy = scratch->filePath(files.name);
    const bool copied =
        scratch->isValid() && copyOwned(files.path, copy)
        && (files.walPath.isEmpty() || copyOwned(files.walPath, copy + QStringLiteral("-wal")))
        && (files.journalPath.isEmpty()
            || copyOwned(files.journalPath, copy + QStringLiteral("-journal")));
    if (!copied) {
        return Error{.where = files.shownName,
            .what = QStringLiteral("it cannot be copied to %1").arg(QFileInfo(copy).path())};
    }
    return scratch;
}

bool isSound(const Result<OpenedDatabase>& opened)
{
    if (!opened) {
        return false;
    }
    auto check = opened->database.prepare(QStringLiteral("PRAGMA quick_check(1)"));
    return check && check->next() && check->text(0) == QStringLiteral("ok");
}

} // namespace

Result<OpenedDatabase> openDatabaseFiles(const DatabaseFiles& files, Notices& notices)
{
    DatabaseFiles used = files;
    if (!hasBytes(used.walPath)) {
        used.walPath.clear();
    }
    if (!hasBytes(used.journalPath)) {
        used.journalPath.clear();
    }
    const bool hasLog = !used.walPath.isEmpty() || !used.journalPath.isEmpty();
    if (!hasLog || !QFileInfo(used.path).isFile()) {
        return opened(used, used.path, nullptr);
    }
    auto scratch = copyWithLogs(used);
    if (!scratch) {
        return scratch.error();
    }
    const QString copy = (*scratch)->filePath(used.name);
    auto replayed = opened(used, copy, std::move(*scratch));
    if (isSound(replayed)) {
        return replayed;
    }
    // SQLite takes in any log with sound checksums, that of another database too. But where the
    // check fails without the log as well (it knows no foreign functions), the log is not to blame.
    auto alone = opened(used, used.path, nullptr);
    if (replayed && !isSound(alone)) {
        return replayed;
    }
    if (alone) {
        notices.add(QStringLiteral("%1: its log does not fit and is left out; the newest changes "
                                   "are missing")
                        .arg(files.shownName));
    }
    return alone;
}

Result<OpenedDatabase> openWithLog(const QString& path, const QString& walPath, Notices& notices)
{
    const DatabaseFiles files{.shownName = path,
        .name = QFileInfo(path).fileName(),
        .path = path,
        .walPath = walPath,
        .journalPath = path + QStringLiteral("-journal")};
    return openDatabaseFiles(files, notices);
}

} // namespace backup
