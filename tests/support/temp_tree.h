// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace support {

/// A directory of its own for one test, with short ways to fill it and to look at it. All paths are
/// relative to it. It goes when the test ends.
class TempTree {
public:
    TempTree() { EXPECT_TRUE(m_directory.isValid()); }

    QDir dir() const { return {m_directory.path()}; }
    QString path(const QString& relative = {}) const
    {
        return relative.isEmpty() ? m_directory.path() : m_directory.filePath(relative);
    }

    /// Makes the file, and the directories on the way to it, and returns its full path.
    QString write(const QString& relative, const QByteArray& contents) const
    {
        QString target = path(relative);
        EXPECT_TRUE(QDir().mkpath(QFileInfo(target).path()));
        QFile file(target);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << target.toStdString();
        EXPECT_EQ(file.write(contents), contents.size());
        return target;
    }

    /// Makes the directory and returns its full path.
    QString makeDir(const QString& relative) const
    {
        EXPECT_TRUE(QDir().mkpath(path(relative)));
        return path(relative);
    }

    /// Makes a symbolic link at `relative` to `target`, which is taken as it is written.
    QString link(const QString& relative, const QString& target) const
    {
        EXPECT_TRUE(QFile::link(target, path(relative)));
        return path(relative);
    }

    /// The bytes of the file; a missing file is a failure of the test.
    QByteArray read(const QString& relative) const { return readFile(path(relative)); }

    static QByteArray readFile(const QString& fullPath)
    {
        QFile file(fullPath);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << fullPath.toStdString();
        return file.readAll();
    }

    bool exists(const QString& relative) const { return QFileInfo::exists(path(relative)); }

    /// All that lies below, sorted: files and links as "a/b.txt", directories as "a/". Links are
    /// not followed.
    QStringList list() const
    {
        QStringList entries;
        QDirIterator entry(m_directory.path(),
            QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
            QDirIterator::Subdirectories);
        while (entry.hasNext()) {
            const QString relative = dir().relativeFilePath(entry.next());
            const QFileInfo info = entry.fileInfo();
            entries.append(
                info.isDir() && !info.isSymLink() ? relative + QLatin1Char('/') : relative);
        }
        entries.sort();
        return entries;
    }

private:
    QTemporaryDir m_directory;
};

} // namespace support
