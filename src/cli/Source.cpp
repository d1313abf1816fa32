// SPDX-License-Identifier: MIT
#include "cli/Source.h"

#include "recordset/recordset.h"

#include <QFile>
#include <QFileInfo>

#include <string_view>

namespace {

using namespace std::string_view_literals;

constexpr std::string_view kDatabaseStart = "SQLite format 3\0"sv; // the zero belongs to it

bool isDatabase(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return false; // the record set's reader finds the words for it
    }
    const QByteArray start = file.read(static_cast<qint64>(kDatabaseStart.size()));
    return std::string_view(start.constData(), static_cast<std::size_t>(start.size()))
           == kDatabaseStart;
}

formats::Result<Source> withoutOwner(formats::Result<backup::OpenedBackup> opened)
{
    if (!opened) {
        return opened.error();
    }
    return Source{.owner = {}, .opened = std::move(*opened)};
}

} // namespace

QStringList Source::notices() const
{
    return opened.notices ? opened.notices->sentences() : QStringList();
}

formats::Result<Source> openSource(const QString& path)
{
    const QFileInfo place(path);
    if (!place.exists()) {
        return formats::Error{.where = path, .what = QStringLiteral("no such file or folder")};
    }
    if (place.isDir()) {
        return withoutOwner(backup::openBackupFolder(path));
    }
    if (isDatabase(path)) {
        return withoutOwner(backup::openDatabaseFile(path));
    }
    formats::Result<recordset::RecordSet> set = recordset::load(path);
    if (!set) {
        return set.error();
    }
    Source source;
    source.owner = set->owner;
    source.opened.records = std::move(set->records);
    return source;
}
