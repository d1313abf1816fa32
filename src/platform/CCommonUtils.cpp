// SPDX-License-Identifier: MIT
#include "platform/CCommonUtils.h"

#include "platform/literals.h"
#include "platform/local_time.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QLocale>

#include <cmath>
#include <filesystem>
#include <system_error>

namespace {

constexpr qint64 kDayMs = 86'400'000;
constexpr qint64 kMinuteMs = 60'000;
constexpr qint64 kStartOf2001Ms = 978'307'200'000;
constexpr double kFarthestMs = 9e18; // within 64 bits, also when counted from 1970
// Years of four digits; others are left to Qt.
constexpr qint64 kFirstMs = -62'135'596'800'000; // 0001-01-01
constexpr qint64 kLastMs = 253'402'300'799'999;  // 9999-12-31

constexpr int kAlwaysProbed = 8; // numbers of a file name
constexpr int kManyFiles = 100;  // of one name: then not even these

struct Day {
    int year;
    int month;
    int day;
};

// Days since 1970 to the Gregorian calendar, by counting from 1 March of the year 0, so that the
// leap day is the last of its year. The eras of 400 years have 146,097 days each.
Day calendarDay(qint64 daysSince1970)
{
    const qint64 days = daysSince1970 + 719'468;
    const qint64 era = (days >= 0 ? days : days - 146'096) / 146'097;
    const auto dayOfEra = static_cast<int>(days - era * 146'097);
    const int yearOfEra =
        (dayOfEra - dayOfEra / 1'460 + dayOfEra / 36'524 - dayOfEra / 146'096) / 365;
    const int dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const int shiftedMonth = (5 * dayOfYear + 2) / 153; // 0: March
    const int month = shiftedMonth < 10 ? shiftedMonth + 3 : shiftedMonth - 9;
    return {
        .year = static_cast<int>(yearOfEra + era * 400) + (month <= 2 ? 1 : 0),
        .month = month,
        .day = dayOfYear - (153 * shiftedMonth + 2) / 5 + 1,
    };
}

void putDigits(QChar* end, int digits, int number)
{
    for (int i = 0; i < digits; ++i) {
        *--end = QChar('0' + number % 10);
        number /= 10;
    }
}

// What a clock shows at the date, in milliseconds since 1970 as if it showed UTC.
qint64 clockAt(const QDateTime& date, bool local)
{
    static thread_local LocalTime localTime;
    if (local && date.timeSpec() == Qt::LocalTime) {
        return clockAsUtc(date);
    }
    const qint64 utcMs = date.toMSecsSinceEpoch();
    if (!local) {
        return utcMs;
    }
    const bool farOff = utcMs < kFirstMs || utcMs > kLastMs;
    return farOff ? clockAsUtc(date.toLocalTime()) : utcMs + localTime.offset(utcMs);
}

// "yyyy-MM-dd" or, of 16 characters, "yyyy-MM-dd hh:mm"
QString dateText(const QDateTime& date, bool local, bool withTime)
{
    if (!date.isValid()) {
        return {};
    }
    QString text = withTime ? QStringLiteral("yyyy-MM-dd hh:mm") : QStringLiteral("yyyy-MM-dd");
    const qint64 clockMs = clockAt(date, local);
    if (clockMs < kFirstMs || clockMs > kLastMs) {
        // Not the date's own text, which has the digits of the user's language.
        return QLocale::c().toString(QDateTime::fromMSecsSinceEpoch(clockMs, Qt::UTC), text);
    }
    const qint64 rest = clockMs % kDayMs;
    const qint64 msOfDay = rest < 0 ? rest + kDayMs : rest;
    const Day day = calendarDay((clockMs - msOfDay) / kDayMs);
    QChar* out = text.data();
    putDigits(out + 4, 4, day.year);
    putDigits(out + 7, 2, day.month);
    putDigits(out + 10, 2, day.day);
    if (withTime) {
        const auto minute = static_cast<int>(msOfDay / kMinuteMs);
        putDigits(out + 13, 2, minute / 60);
        putDigits(out + 16, 2, minute % 60);
    }
    return text;
}

bool isTaken(const QString& path)
{
    // One look at the path, where QFileInfo takes two to know of a link to nothing.
    std::error_code unused;
    const std::filesystem::path native(QFile::encodeName(path).toStdString());
    return std::filesystem::exists(std::filesystem::symlink_status(native, unused));
}

QString numberedPath(const QDir& dir, const QString& base, const QString& ext, int number)
{
    // Parts are put together, not filled in: a "%1" in a name stays.
    QString name = base;
    if (number > 1) {
        name += " ("_L1 + QString::number(number) + ")"_L1;
    }
    return dir.absoluteFilePath(name + ext);
}

// The first free path from `number` on, which becomes the number used.
QString freePath(const QDir& dir, const QString& base, const QString& ext, int& number)
{
    QString path = numberedPath(dir, base, ext, number);
    while (isTaken(path)) {
        ++number;
        path = numberedPath(dir, base, ext, number);
    }
    return path;
}

// Whether `clean` stays below the directory it is taken in, by what it says and by what lies on
// the disk: no link stands on the way to it.
bool staysBelow(const QDir& dir, const QString& clean)
{
    if (clean.isEmpty() || clean == "."_L1 || clean == ".."_L1 || clean.startsWith("../"_L1)
        || QDir::isAbsolutePath(clean)) {
        return false;
    }
    const QDir real(dir.canonicalPath());
    return QFileInfo(dir.absoluteFilePath(clean)).canonicalFilePath()
           == real.absoluteFilePath(clean);
}

} // namespace

QDateTime CCommonUtils::buildDateTimeBase2001(double seconds)
{
    const double ms = seconds * 1000.0;
    if (!(std::abs(ms) < kFarthestMs)) { // so that "nan" fails too
        return {};
    }
    return QDateTime::fromMSecsSinceEpoch(
        kStartOf2001Ms + static_cast<qint64>(std::llround(ms)), Qt::UTC);
}

QString CCommonUtils::dateToString(const QDateTime& date, bool local)
{
    return dateText(date, local, false);
}

QString CCommonUtils::datetimeToMinute(const QDateTime& date, bool local)
{
    return dateText(date, local, true);
}

QString CCommonUtils::uniqFileName(
    const QDir& dir, const QString& base, const QString& ext, int& counter)
{
    ++counter;
    return freePath(dir, base, ext, counter);
}

// Thousands of files of one name would cost millions of probes, so a number above the first few is
// remembered. It is taken up where it was handed out, since that file may not have been made, and
// only while the files before it are still there.
QString CCommonUtils::uniqFileName(const QDir& dir, const QString& base, const QString& suffix)
{
    static thread_local QHash<QString, int> handedOut; // by the path without a number
    const QString bare = numberedPath(dir, base, suffix, 1);
    const int last = handedOut.value(bare);
    const bool goesOn = last > 0 && isTaken(numberedPath(dir, base, suffix, last - 1));
    for (int number = 1; number <= kAlwaysProbed && !(goesOn && last > kManyFiles); ++number) {
        QString path = numberedPath(dir, base, suffix, number);
        if (!isTaken(path)) {
            return path;
        }
    }
    int& number = handedOut[bare];
    if (!goesOn) {
        number = kAlwaysProbed + 1;
    }
    return freePath(dir, base, suffix, number);
}

bool CCommonUtils::copyFile(const QString& src, const QDir& dir, const QString& name)
{
    const QFileInfo source(src);
    if (!source.isFile()) {
        return false;
    }
    const QFileInfo target(dir.absoluteFilePath(name));
    const QString sourcePath = source.canonicalFilePath();
    if (!target.isSymLink() && target.canonicalFilePath() == sourcePath) {
        return true; // the file itself; a link to it is replaced like any other target
    }
    QFile::remove(target.filePath());
    return QFile::copy(sourcePath, target.filePath());
}

void CCommonUtils::rmDir(const QDir& dir, const QString& name, bool* removed)
{
    const QString clean = QDir::cleanPath(name);
    const QString path = dir.absoluteFilePath(clean);
    if (staysBelow(dir, clean)) {
        QDir(path).removeRecursively(); // what became of it is asked below
    }
    if (removed != nullptr) {
        *removed = !isTaken(path);
    }
}

void CCommonUtils::onModifyDateTime(const QString& path, const QString& dateTime)
{
    const QDateTime date = QDateTime::fromString(dateTime, Qt::ISODate);
    QFile file(path);
    // Open for reading is enough for the owner, also of a write-protected copy, and makes no file.
    if (date.isValid() && file.open(QIODevice::ReadOnly)) {
        file.setFileTime(
            date, QFileDevice::FileModificationTime); // a file without it is no failure
    }
}
