// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

/// Output trees as they are compared and kept.
namespace golden {

/// Contents of all files by their relative path. A directory with nothing in it stands as its path
/// and a slash, without contents; the repository keeps it by a file ".keep", which is no part of
/// the tree.
using Tree = QMap<QString, QByteArray>;

Tree readTree(const QString& directory);

/// Replaces all that is in `directory`. False when something could not be written.
bool writeTree(const QString& directory, const Tree& tree);

/// One text for each path that is missing, is not expected or has other contents, with the first
/// line that differs; a page counts as one tag a line. Files named ".png" that are pictures compare
/// by pixels. Empty: the trees are the same.
QStringList differences(const Tree& expected, const Tree& actual);

} // namespace golden
