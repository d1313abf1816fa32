// SPDX-License-Identifier: MIT
#include "cli/target_checks.h"

#include "model/PRBackup.h"
#include "platform/literals.h"

#include <QDir>
#include <QFileInfo>

namespace {

// The path without links and dots, of what may not be there yet: its last parts are kept as they
// are below the deepest folder that exists.
QString realPath(const QString& path)
{
    QString existing = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    QString rest;
    while (!QFileInfo::exists(existing) && !QDir(existing).isRoot()) {
        const QFileInfo place(existing);
        rest = "/"_L1 + place.fileName() + rest;
        existing = place.path();
    }
    return QDir::cleanPath(QFileInfo(existing).canonicalFilePath() + rest);
}

bool liesIn(const QString& path, const QString& folder)
{
    const QString inner = realPath(path);
    const QString outer = realPath(folder);
    return inner == outer || outer == "/"_L1 || inner.startsWith(outer + "/"_L1);
}

bool liesInSource(const QString& target, const QString& source)
{
    return QFileInfo(source).isDir() && liesIn(target, source);
}

} // namespace

QString targetObjection(const QString& source, const QString& target, bool merge)
{
    if (target.isEmpty()) {
        return QStringLiteral("TARGET is empty");
    }
    const QFileInfo place(target);
    if ((place.exists() || place.isSymLink()) && !place.isDir()) {
        return target + ": is not a folder"_L1;
    }
    if (liesInSource(target, source)) {
        return target + ": lies inside the backup, to which nothing is written"_L1;
    }
    const bool holdsSomething = !QDir(target).isEmpty(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    if (place.exists() && holdsSomething && !merge) {
        return target + ": is not empty (--merge writes to it nevertheless)"_L1;
    }
    return {};
}

QString newFileObjection(const QString& source, const QString& target)
{
    if (target.isEmpty()) {
        return QStringLiteral("FILE is empty");
    }
    const QFileInfo place(target);
    if (place.exists() || place.isSymLink()) {
        return target + ": exists, and is not overwritten"_L1;
    }
    if (liesInSource(target, source)) {
        return target + ": lies inside the backup, to which nothing is written"_L1;
    }
    return {};
}

QString categoryObjection(
    const QString& source, const QString& target, const QVector<int>& dataTypes)
{
    const QDir root(target);
    for (const int dataType : dataTypes) {
        const QString folder = root.filePath(PRBackup::dataTypeName(dataType));
        if (liesIn(source, folder)) {
            return source + ": lies in "_L1 + folder + ", to which the export would write"_L1;
        }
    }
    return {};
}
