// SPDX-License-Identifier: MIT
#include "recordset/iso_date.h"

#include <QDateTime>

#include <gtest/gtest.h>

#include <string_view>

using recordset::isoText;
using recordset::momentFrom;

namespace {

QDateTime utc(int year, int month, int day, int hour, int minute, int second = 0, int ms = 0)
{
    return {QDate(year, month, day), QTime(hour, minute, second, ms), Qt::UTC};
}

} // namespace

// Local time is two hours ahead of UTC, see main.cpp.
TEST(MomentFrom, ReadsIso8601)
{
    struct Row {
        const char* what;
        std::string_view text;
        QDateTime moment;
    };
    const Row rows[] = {
        {"UTC", "2024-05-01T12:30:00Z", utc(2024, 5, 1, 12, 30)},
        {"offset to the east", "2024-05-01T12:30:00+02:00", utc(2024, 5, 1, 10, 30)},
        {"offset to the west, over midnight", "2024-05-01T20:30:00-05:45", utc(2024, 5, 2, 2, 15)},
        {"offset without a colon", "2024-05-01T12:30:00+0200", utc(2024, 5, 1, 10, 30)},
        {"offset of hours", "2024-05-01T12:30:00+02", utc(2024, 5, 1, 10, 30)},
        {"no zone is local time", "2024-05-01T12:30:00", utc(2024, 5, 1, 10, 30)},
        {"no seconds", "2024-05-01T12:30Z", utc(2024, 5, 1, 12, 30)},
        {"milliseconds", "2024-05-01T12:30:00.250Z", utc(2024, 5, 1, 12, 30, 0, 250)},
        {"tenths", "2024-05-01T12:30:00.2Z", utc(2024, 5, 1, 12, 30, 0, 200)},
        {"finer than milliseconds", "2024-05-01T12:30:00.999999Z", utc(2024, 5, 1, 12, 30, 0, 999)},
        {"comma before the fraction", "2024-05-01T12:30:00,250Z", utc(2024, 5, 1, 12, 30, 0, 250)},
        {"milliseconds in local time", "2024-05-01T12:30:00.001", utc(2024, 5, 1, 10, 30, 0, 1)},
        {"leap day", "2024-02-29T00:00:00Z", utc(2024, 2, 29, 0, 0)},
        {"start of 1970", "1970-01-01T00:00:00Z", utc(1970, 1, 1, 0, 0)},
        {"before 1970", "1969-12-31T23:59:59.999Z", utc(1969, 12, 31, 23, 59, 59, 999)},
        {"year 0000 is 1 BC", "0000-06-01T00:00:00Z", utc(-1, 6, 1, 0, 0)},
        {"year of five digits", "+012024-01-01T00:00:00Z", utc(12024, 1, 1, 0, 0)},
        {"year before 0000", "-000044-03-15T12:00:00Z", utc(-45, 3, 15, 12, 0)},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const std::optional<QDateTime> moment = momentFrom(row.text);
        ASSERT_TRUE(moment.has_value());
        EXPECT_TRUE(moment->isValid());
        EXPECT_EQ(moment->toMSecsSinceEpoch(), row.moment.toMSecsSinceEpoch());
        EXPECT_EQ(moment->timeSpec(), Qt::UTC);
    }
}

TEST(MomentFrom, TakesAnEmptyTextForAnInvalidMoment)
{
    const std::optional<QDateTime> moment = momentFrom("");
    ASSERT_TRUE(moment.has_value());
    EXPECT_FALSE(moment->isValid());
}

TEST(MomentFrom, RefusesWhatIsNoDateAndTime)
{
    const std::string_view texts[] = {"2024-05-01", "12:30:00", "2024-05-01 12:30:00Z",
        "2024-05-01t12:30:00z", "2024-5-1T12:30:00Z", "24-05-01T12:30:00Z", "20240501T123000Z",
        "2024-13-01T12:30:00Z", "2023-02-29T12:30:00Z", "2024-05-01T24:00:00Z",
        "2024-05-01T12:60:00Z", "2024-05-01T12:30:61Z", "2024-05-01T12Z", "2024-05-01T12:30:00.Z",
        "2024-05-01T12:30:00+2:00", "2024-05-01T12:30:00+25:00", "2024-05-01T12:30:00+02:60",
        "2024-05-01T12:30:00+02:", "2024-05-01T12:30:00Z ", " 2024-05-01T12:30:00Z",
        "2024-05-01T12:30:00ZZ", "2024-05-01T12:30:00 UTC", "2024-05-01T12:30:00+",
        "+2024-05-01T12:30:00Z", "12024-05-01T12:30:00Z", "+999999999-01-01T00:00:00Z",
        "2024-05-01T-1:30:00Z", "yesterday", "1714566600"};
    for (const std::string_view text : texts) {
        SCOPED_TRACE(text);
        EXPECT_FALSE(momentFrom(text).has_value());
    }
}

TEST(IsoText, WritesUtcAndMillisecondsOnlyWhenThereAreSome)
{
    EXPECT_EQ(isoText(utc(2024, 5, 1, 12, 30)), "2024-05-01T12:30:00Z");
    EXPECT_EQ(isoText(utc(2024, 5, 1, 12, 30, 9, 7)), "2024-05-01T12:30:09.007Z");
    EXPECT_EQ(
        isoText(QDateTime(QDate(2024, 5, 1), QTime(1, 30), Qt::LocalTime)), "2024-04-30T23:30:00Z");
    EXPECT_EQ(isoText(QDateTime()), "");
}

TEST(IsoText, WritesEveryMomentSoThatItReadsBack)
{
    const qint64 moments[] = {0, -1, 1, 253402300799999, 253402300800000, -62167219200000,
        -62167219200001, -210866803200000, 8640000000000000, -8640000000000000,
        9223372036000000000 / 10 * 9};
    for (const qint64 ms : moments) {
        SCOPED_TRACE(ms);
        const QString text = isoText(QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC));
        SCOPED_TRACE(text.toStdString());
        const std::optional<QDateTime> read = momentFrom(text.toStdString());
        ASSERT_TRUE(read.has_value());
        EXPECT_TRUE(read->isValid());
        EXPECT_EQ(read->toMSecsSinceEpoch(), ms);
    }
}
