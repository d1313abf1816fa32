// SPDX-License-Identifier: MIT
//   chinese    Month 4, day 8, 1990 (geng-wu)    era: cycle of 60 years, year: 1 to 60 in it
//   hebrew     13 Nisan 5750
//   islamic-*  12 Ramadan 1410
#include "backup/readers/contact_date.h"

#include "formats/cocoa_values.h"
#include "formats/plist.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QDate>
#include <QTime>
#include <QVariantMap>

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace backup {

namespace {

constexpr double kDay = 86400;
constexpr double kNoon = kDay / 2;

enum AltBirthdayType : int { Chinese = 1, Hebrew = 2, Islamic = 3, Other = 4 };

constexpr std::array kStems{"jia", "yi", "bing", "ding", "wu", "ji", "geng", "xin", "ren", "gui"};
constexpr std::array kBranches{
    "zi", "chou", "yin", "mao", "chen", "si", "wu", "wei", "shen", "you", "xu", "hai"};
constexpr std::array kHebrewMonths{"Tishri", "Heshvan", "Kislev", "Tevet", "Shevat", "Adar I",
    "Adar", "Nisan", "Iyar", "Sivan", "Tamuz", "Av", "Elul"};
constexpr std::array kIslamicMonths{"Muharram", "Safar", "Rabiʻ I", "Rabiʻ II", "Jumada I",
    "Jumada II", "Rajab", "Shaʻban", "Ramadan", "Shawwal", "Dhuʻl-Qiʻdah", "Dhuʻl-Hijjah"};

constexpr int kCycle = 60;
// The first cycle began 2636 years before our reckoning.
constexpr int kYearBeforeFirstCycle = -2637;

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

/// A date of another calendar; 0 for a part that is not known.
struct OtherDate {
    QString calendar;
    int era = 0;
    int year = 0;
    int month = 0;
    bool isLeapMonth = false;
    int day = 0;
};

// "1990 (geng-wu)"; the year of the cycle alone has the name alone.
QString chineseYear(const OtherDate& date)
{
    if (date.year < 1 || date.year > kCycle) {
        return date.year > 0 ? QString::number(date.year) : QString();
    }
    const auto year = static_cast<std::size_t>(date.year - 1);
    QString name = QStringLiteral("%1-%2").arg(QLatin1String(kStems.at(year % kStems.size())),
        QLatin1String(kBranches.at(year % kBranches.size())));
    if (date.era < 1 || date.era > 2 * kCycle) {
        return name;
    }
    return QStringLiteral("%1 (%2)")
        .arg((date.era - 1) * kCycle + date.year + kYearBeforeFirstCycle)
        .arg(name);
}

QString chineseText(const OtherDate& date)
{
    const char* pattern = date.isLeapMonth
                              ? QT_TRANSLATE_NOOP("DataExport", "Leap month %1, day %2")
                              : QT_TRANSLATE_NOOP("DataExport", "Month %1, day %2");
    const QString day = tr(pattern).arg(QString::number(date.month), QString::number(date.day));
    const QString year = chineseYear(date);
    return year.isEmpty() ? day : day + ", "_L1 + year;
}

// "13 Nisan 5750"; a month without a name is a number.
QString namedText(const OtherDate& date, std::span<const char* const> months)
{
    const auto index = static_cast<std::size_t>(date.month - 1);
    QStringList parts{QString::number(date.day),
        index < months.size() ? QString::fromUtf8(months[index]) : QString::number(date.month)};
    if (date.year > 0) {
        parts.append(QString::number(date.year));
    }
    return parts.join(QChar(u' '));
}

// "5-12-29", for a calendar that we do not know.
QString numberText(const OtherDate& date)
{
    QStringList parts;
    if (date.year > 0) {
        parts.append(QString::number(date.year));
    }
    parts << QString::number(date.month) << QString::number(date.day);
    return parts.join(QChar(u'-'));
}

AltBirthday birthdayOf(const OtherDate& date)
{
    const QString calendar = date.calendar.toLower();
    if (calendar == "chinese"_L1) {
        return {.type = Chinese, .label = tr("Chinese birthday"), .desc = chineseText(date)};
    }
    if (calendar == "hebrew"_L1) {
        return {
            .type = Hebrew, .label = tr("Hebrew birthday"), .desc = namedText(date, kHebrewMonths)};
    }
    if (calendar.startsWith("islamic"_L1)) {
        return {.type = Islamic,
            .label = tr("Islamic birthday"),
            .desc = namedText(date, kIslamicMonths)};
    }
    const QString name = date.calendar.isEmpty() ? QString() : " ("_L1 + date.calendar + ")"_L1;
    return {.type = Other, .label = tr("birthday") + name, .desc = numberText(date)};
}

// A text that people can read; empty for bytes.
QString readable(const QByteArray& stored)
{
    QString text = formats::utf8Text({stored.constData(), static_cast<std::size_t>(stored.size())});
    const bool isText = std::ranges::all_of(text, [](QChar c) {
        return c != QChar::ReplacementCharacter
               && (c.isSpace() || c.category() != QChar::Other_Control);
    });
    return isText ? text.simplified() : QString();
}

} // namespace

QString contactDate(const QString& stored)
{
    bool isNumber = false;
    double seconds = stored.toDouble(&isNumber);
    if (!isNumber) {
        const QDateTime noon(
            QDate::fromString(stored.trimmed().left(10), Qt::ISODate), QTime(12, 0), Qt::UTC);
        return noon.isValid() ? QString::number(noon.toSecsSinceEpoch() - 978'307'200) : QString();
    }
    // 0 is none: it would be the first second of 2001.
    if (seconds == 0 || !formats::dateFromCocoaSeconds(seconds).isValid()) {
        return {};
    }
    seconds = std::floor(seconds / kDay) * kDay + kNoon;
    return QString::number(static_cast<qint64>(seconds));
}

AltBirthday alternateBirthday(const QByteArray& stored)
{
    if (stored.isEmpty()) {
        return {};
    }
    const auto list = formats::parsePlist(stored, "AlternateBirthday"_L1);
    if (!list) {
        const QString text = readable(stored);
        return text.isEmpty() ? AltBirthday()
                              : AltBirthday{.type = Other, .label = tr("birthday"), .desc = text};
    }
    const QVariant archived = formats::unarchive(*list);
    const QVariantMap keys = archived.isValid() ? archived.toMap() : list->toMap();
    const OtherDate date{.calendar = keys.value("calendarIdentifier"_L1).toString(),
        .era = keys.value("era"_L1).toInt(),
        .year = keys.value("year"_L1).toInt(),
        .month = keys.value("month"_L1).toInt(),
        .isLeapMonth = keys.value("isLeapMonth"_L1).toBool(),
        .day = keys.value("day"_L1).toInt()};
    return date.month > 0 && date.day > 0 ? birthdayOf(date) : AltBirthday();
}

QString withPlainLineEnds(QString text)
{
    text.replace("\r\n"_L1, "\n"_L1);
    for (const char16_t other : {u'\r', u'\u2028', u'\u2029'}) {
        text.replace(QChar(other), QChar(u'\n'));
    }
    return text;
}

} // namespace backup
