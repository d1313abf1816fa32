// SPDX-License-Identifier: MIT
//   2024-05-01T12:30:00Z           UTC
//   2024-05-01T14:30:00.250+02:00  with an offset (also +0200 and +02), a fraction of 1 to 9 digits
//   2024-05-01T14:30               local time; the seconds may be left out
//   +012024-05-01T12:30:00Z        a year beyond 0000 to 9999 has a sign and 6 to 9 digits
// Years count through 0000, which is 1 BC; QDate has no year 0 and calls it -1.
#include "recordset/iso_date.h"

#include <limits>

namespace recordset {

namespace {

constexpr qint64 kMsOfDay = 86'400'000;
constexpr qint64 kJulianDayOf1970 = 2'440'588;
// A day of slack on either side, for the offset.
constexpr qint64 kLastDay = std::numeric_limits<qint64>::max() / kMsOfDay - 2;

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

class Scanner {
public:
    explicit Scanner(std::string_view text) : m_rest(text) {}

    bool atEnd() const { return m_rest.empty(); }
    bool startsWith(char character) const { return m_rest.starts_with(character); }

    bool skip(char character)
    {
        const bool found = startsWith(character);
        m_rest.remove_prefix(found ? 1 : 0);
        return found;
    }

    /// -1 unless at least `least` digits follow; takes at most `most`, which is 9 or less.
    int number(std::size_t least, std::size_t most)
    {
        int value = 0;
        m_digits = 0;
        while (m_digits < most && !m_rest.empty() && isDigit(m_rest.front())) {
            value = value * 10 + (m_rest.front() - '0');
            m_rest.remove_prefix(1);
            ++m_digits;
        }
        return m_digits < least ? -1 : value;
    }
    int number(std::size_t digits) { return number(digits, digits); }

    /// How many digits the last number had.
    std::size_t digits() const { return m_digits; }

private:
    std::string_view m_rest;
    std::size_t m_digits = 0;
};

// None of the readers below looks back: a part that is wrong gives an invalid date or time.

std::optional<int> readYear(Scanner& scanner)
{
    const bool before = scanner.startsWith('-');
    const bool isSigned = scanner.skip('-') || scanner.skip('+');
    const int year = isSigned ? scanner.number(6, 9) : scanner.number(4);
    if (year < 0) {
        return std::nullopt;
    }
    const int counted = before ? -year : year;
    return counted > 0 ? counted : counted - 1;
}

QDate readDay(Scanner& scanner)
{
    const std::optional<int> year = readYear(scanner);
    const bool dash = scanner.skip('-');
    const int month = scanner.number(2);
    const bool secondDash = scanner.skip('-');
    const int day = scanner.number(2);
    return year && dash && secondDash ? QDate(*year, month, day) : QDate();
}

// What is finer than a millisecond is cut off. -1: no digits.
int readMilliseconds(Scanner& scanner)
{
    qint64 value = scanner.number(1, 9);
    for (std::size_t digits = scanner.digits(); digits < 9; ++digits) {
        value *= 10;
    }
    return value < 0 ? -1 : static_cast<int>(value / 1'000'000);
}

QTime readTime(Scanner& scanner)
{
    const int hour = scanner.number(2);
    if (!scanner.skip(':')) {
        return {};
    }
    const int minute = scanner.number(2);
    const int second = scanner.skip(':') ? scanner.number(2) : 0;
    const bool fraction = scanner.skip('.') || scanner.skip(',');
    return {hour, minute, second, fraction ? readMilliseconds(scanner) : 0};
}

// "Z", "+02", "+0200" or "+02:00", in milliseconds, up to the end of the text.
std::optional<qint64> readOffset(Scanner& scanner)
{
    if (scanner.skip('Z')) {
        return scanner.atEnd() ? std::optional<qint64>(0) : std::nullopt;
    }
    const bool west = scanner.startsWith('-');
    if (!scanner.skip('-') && !scanner.skip('+')) {
        return std::nullopt;
    }
    const int hours = scanner.number(2);
    const bool colon = scanner.skip(':');
    const int minutes = colon || !scanner.atEnd() ? scanner.number(2) : 0;
    if (!scanner.atEnd() || !QTime::isValid(hours, minutes, 0)) {
        return std::nullopt;
    }
    const qint64 offset = (hours * 60 + minutes) * qint64(60'000);
    return west ? -offset : offset;
}

} // namespace

std::optional<QDateTime> momentFrom(std::string_view text)
{
    if (text.empty()) {
        return QDateTime();
    }
    Scanner scanner(text);
    const QDate day = readDay(scanner);
    const bool separator = scanner.skip('T');
    const QTime time = readTime(scanner);
    if (!separator || !day.isValid() || !time.isValid()) {
        return std::nullopt;
    }
    const qint64 days = day.toJulianDay() - kJulianDayOf1970;
    if (qAbs(days) > kLastDay) {
        return std::nullopt;
    }
    if (scanner.atEnd()) {
        const QDateTime local(day, time, Qt::LocalTime);
        return local.isValid() ? std::optional(local.toUTC()) : std::nullopt;
    }
    const std::optional<qint64> offset = readOffset(scanner);
    if (!offset) {
        return std::nullopt;
    }
    return QDateTime::fromMSecsSinceEpoch(
        days * kMsOfDay + time.msecsSinceStartOfDay() - *offset, Qt::UTC);
}

QString isoText(const QDateTime& moment)
{
    if (!moment.isValid()) {
        return {};
    }
    const QDateTime utc = QDateTime::fromMSecsSinceEpoch(moment.toMSecsSinceEpoch(), Qt::UTC);
    const QDate day = utc.date();
    const QTime time = utc.time();
    const int year = day.year() > 0 ? day.year() : day.year() + 1;
    const bool isPlain = year >= 0 && year <= 9999;
    QString text = isPlain ? QString::asprintf("%04d", year) : QString::asprintf("%+07d", year);
    text += QString::asprintf("-%02d-%02dT%02d:%02d:%02d", day.month(), day.day(), time.hour(),
        time.minute(), time.second());
    if (time.msec() != 0) {
        text += QString::asprintf(".%03d", time.msec());
    }
    return text + QChar(u'Z');
}

} // namespace recordset
