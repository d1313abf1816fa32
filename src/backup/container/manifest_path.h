// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace backup {

/// Whether `text` can be the name of a payload: 40 lowercase hexadecimal digits.
bool isFileId(const QString& text);

/// Whether a path out of a backup stays below the folder that it is appended to, on any system:
/// neither empty nor absolute, no drive, no backslash, no NUL and no "..".
bool isSafeRelativePath(const QString& path);

/// The path, and where they differ its composed and its decomposed Unicode form.
QStringList unicodeForms(const QString& path);

/// "a/b" for "a/b/".
QString withoutTrailingSlashes(QString path);

/// Whether a regular file lies at `path` itself, and no link to one.
bool isPlainFile(const QString& path);

} // namespace backup
