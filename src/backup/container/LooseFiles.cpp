// SPDX-License-Identifier: MIT
#include "backup/container/LooseFiles.h"

#include "backup/container/manifest_path.h"

#include <QDirIterator>
#include <QFileInfo>

namespace backup {

namespace {

// "a/b/c", "b/c", "c"
QStringList tailsOf(const QString& path)
{
    QStringList tails;
    const QStringList parts = path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    for (int first = 0; first < parts.size(); ++first) {
        tails.append(parts.mid(first).join(QLatin1Char('/')));
    }
    return tails;
}

// A link may stand for what lies elsewhere in the directory, and for nothing outside.
bool liesBelow(const QDir& directory, const QString& path)
{
    const QString root = directory.canonicalPath();
    return !root.isEmpty()
           && QFileInfo(path).canonicalFilePath().startsWith(
               root.endsWith(QLatin1Char('/')) ? root : root + QLatin1Char('/'));
}

// The names under which the device's path may lie below a directory, the likeliest first.
QStringList candidatesFor(const QString& path)
{
    QStringList candidates;
    if (isSafeRelativePath(path)) {
        const QStringList tails = tailsOf(path);
        for (const QString& tail : tails) {
            candidates += unicodeForms(tail);
        }
    }
    return candidates;
}

// The first candidate that is accepted, as a path on this computer.
template <typename Accepts>
QString firstCandidate(const QDir& directory, const QString& path, Accepts accepts)
{
    const QStringList candidates = candidatesFor(path);
    for (const QString& candidate : candidates) {
        QString found = directory.filePath(candidate);
        if (accepts(QFileInfo(found)) && liesBelow(directory, found)) {
            return found;
        }
    }
    return {};
}

QStringList plainFilesBelow(const QString& folder)
{
    QStringList paths;
    const QDir root(folder);
    QDirIterator files(
        folder, QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        paths.append(root.relativeFilePath(files.next()));
    }
    paths.sort();
    return paths;
}

} // namespace

QString LooseFiles::locate(const QString& /*domain*/, const QString& relativePath) const
{
    return firstCandidate(
        m_directory, relativePath, [](const QFileInfo& file) { return file.isFile(); });
}

QStringList LooseFiles::filesBelow(const QString& /*domain*/, const QString& directory) const
{
    const QString shown = withoutTrailingSlashes(directory);
    const QString folder =
        firstCandidate(m_directory, shown, [](const QFileInfo& file) { return file.isDir(); });
    QStringList paths;
    if (!folder.isEmpty()) {
        paths = plainFilesBelow(folder);
    }
    for (QString& path : paths) {
        path.prepend(shown + QLatin1Char('/'));
    }
    return paths;
}

} // namespace backup
