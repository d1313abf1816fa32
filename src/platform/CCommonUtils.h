// SPDX-License-Identifier: MIT
#pragma once

#include "platform/export.h"

#include <QDateTime>
#include <QDir>
#include <QString>

class QImage;

/// Dates, file names, files and images, as all exporters write them. Readers of backups stand
/// outside the library and have dates written in the same way.
class DATAEXPORT_EXPORT CCommonUtils {
public:
    /// Start of 2001 in UTC plus `seconds`, to the millisecond. Invalid for what is no number or
    /// lies more than 285 million years off.
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

    /// The same from the lowest number on. After many files of one name it goes on behind the last
    /// one, so that a file taken away among them may leave its number unused.
    static QString uniqFileName(const QDir& dir, const QString& base, const QString& suffix);

    /// Copies the contents of `src` (never a link itself) to `name` in `dir`, replacing the file or
    /// link there. False leaves no partial file; without a source what is there stays.
    static bool copyFile(const QString& src, const QDir& dir, const QString& name);

    /// Removes the sub-directory `name` of `dir` with all that is in it. Removes nothing when
    /// `name` is empty, ".", or leads out of `dir`, be it by a link. `removed`, if given, tells
    /// whether nothing stands there now.
    static void rmDir(const QDir& dir, const QString& name, bool* removed);

    /// Sets the modification time of the file at `path`. `dateTime` is ISO 8601, with a T or a
    /// blank before the time, local where it names no zone; any other text changes nothing.
    static void onModifyDateTime(const QString& path, const QString& dateTime);

    /// The image in the file at `path`, told by its content whatever its name says, HEIC included,
    /// turned upright. Null where there is none.
    static QImage safeloadImage(const QString& path);

    /// The same into `image`. False leaves `image` as it was.
    static bool readThumbFileData(QImage& image, const QString& src);

    /// Writes the HEIC picture at `src` as a JPEG to `target`, upright and with its Exif. The flag
    /// is of no effect. False leaves no file, nor a part of one: the picture cannot be decoded, or
    /// `target` not be written. A build without libheif always reports false.
    static bool convertHEICFileToJPG(const QString& src, QString& target, bool flag);

    /// Called with false before a medium of a protected backup is read, and with true after it.
    /// Nothing has to be done on the systems that we serve.
    static void protectMediaFile(const QString& path, bool protect);
};
