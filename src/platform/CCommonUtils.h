// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QDir>
#include <QString>

/// Dates, file names and files, as all exporters write them.
class CCommonUtils {
public:
    /// Start of 2001 in UTC plus `seconds`, to the millisecond.
    static QDateTime buildDateTimeBase2001(double seconds);

    /// "yyyy-MM-dd"; `local` false leaves the date in UTC. Empty for an invalid date.
    static QString dateToString(const QDateTime& date, bool local);

    /// "yyyy-MM-dd hh:mm", likewise.
    static QString datetimeToMinute(const QDateTime& date, bool local);

    /// Full path in `dir` of the first free name among base + ext, base + " (2)" + ext, ... with a
    /// number above `counter` (0: none was used yet); `counter` becomes the number used. A file or
    /// a directory makes a name taken.
    static QString uniqFileName(
        const QDir& dir, const QString& base, const QString& ext, int& counter);

    /// The same from the lowest number on.
    static QString uniqFileName(const QDir& dir, const QString& base, const QString& suffix);

    /// Copies the contents of `src` (never a link itself) to `name` in `dir`, replacing what is
    /// there. False leaves no partial file.
    static bool copyFile(const QString& src, const QDir& dir, const QString& name);

    /// Removes the sub-directory `name` of `dir` with all that is in it. Removes nothing when
    /// `name` is empty, ".", or leads out of `dir`. `removed`, if given, tells whether it is gone.
    static void rmDir(const QDir& dir, const QString& name, bool* removed);
};
