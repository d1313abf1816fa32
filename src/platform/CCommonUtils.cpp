// SPDX-License-Identifier: MIT
#include "platform/CCommonUtils.h"

#include "platform/literals.h"
#include "platform/local_time.h"

#include <QFile>
#include <QFileInfo>

#include <cmath>

namespace {

constexpr qint64 kDayMs = 86'400'000;
constexpr qint64 kMinuteMs = 60'000;
constexpr qint64 kStartOf2001Ms = 978'307'200'000;
// Years of four digits; others are left to Qt.
constexpr qint64 kFirstMs = -62'135'596'800'000; // 0001-01-01
constexpr qint64 kLastMs = 253'402'300'799'999;  // 9999-12-31

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

// "yyyy-MM-dd" or, of 16 characters, "yyyy-MM-dd hh:mm"
QString dateText(const QDateTime& date, bool local, bool withTime)
{
    if (!date.isValid()) {
        return {};
    }
    static thread_local LocalTime localTime;
    const qint64 utcMs = date.toMSecsSinceEpoch();
    const qint64 clockMs = local ? utcMs + localTime.offset(utcMs) : utcMs;
    if (clockMs < kFirstMs || clockMs > kLastMs) {
        return (local ? date.toLocalTime() : date.toUTC())
            .toString(withTime ? QStringLiteral("yyyy-MM-dd hh:mm") : QStringLiteral("yyyy-MM-dd"));
    }
    const qint64 rest = clockMs % kDayMs;
    const qint64 msOfDay = rest < 0 ? rest + kDayMs : rest;
    const Day day = calendarDay((clockMs - msOfDay) / kDayMs);
    QString text = withTime ? QStringLiteral("yyyy-MM-dd hh:mm") : QStringLiteral("yyyy-MM-dd");
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
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

// Whether `name` stays below the directory it is taken in.
bool leadsOut(const QString& name)
{
    const QString clean = QDir::cleanPath(name);
    return clean.isEmpty() || clean == "."_L1 || clean == ".."_L1 || clean.startsWith("../"_L1)
           || QDir::isAbsolutePath(clean);
}

} // namespace

QDateTime CCommonUtils::buildDateTimeBase2001(double seconds)
{
    return QDateTime::fromMSecsSinceEpoch(
        kStartOf2001Ms + static_cast<qint64>(std::llround(seconds * 1000.0)), Qt::UTC);
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
    for (;;) {
        ++counter;
        // Parts are put together, not filled in: a "%1" in a name stays.
        QString name = base;
        if (counter > 1) {
            name += " ("_L1 + QString::number(counter) + ")"_L1;
        }
        QString path = dir.absoluteFilePath(name + ext);
        if (!isTaken(path)) {
            return path;
        }
    }
}

QString CCommonUtils::uniqFileName(const QDir& dir, const QString& base, const QString& suffix)
{
    int counter = 0;
    return uniqFileName(dir, base, suffix, counter);
}

bool CCommonUtils::copyFile(const QString& src, const QDir& dir, const QString& name)
{
    const QString target = dir.absoluteFilePath(name);
    const QFileInfo source(src);
    if (!source.isFile() || source.canonicalFilePath() == QFileInfo(target).canonicalFilePath()) {
        return source.isFile();
    }
    QFile::remove(target);
    return QFile::copy(source.canonicalFilePath(), target);
}

void CCommonUtils::rmDir(const QDir& dir, const QString& name, bool* removed)
{
    const bool gone = !leadsOut(name) && QDir(dir.absoluteFilePath(name)).removeRecursively();
    if (removed != nullptr) {
        *removed = gone;
    }
}
