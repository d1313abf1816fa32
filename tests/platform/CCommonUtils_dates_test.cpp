// SPDX-License-Identifier: MIT
#include "platform/CCommonUtils.h"
#include "support/temp_tree.h"

#include <QDateTime>
#include <QString>

#include <gtest/gtest.h>

#include <limits>

namespace {

QDateTime utc(const QString& iso)
{
    return QDateTime::fromString(iso + "Z", Qt::ISODateWithMs);
}

} // namespace

TEST(BuildDateTimeBase2001, CountsFromTheStartOf2001InUtcToTheMillisecond)
{
    struct Row {
        double seconds;
        const char* date;
    };
    const Row rows[] = {
        {0.0, "2001-01-01T00:00:00.000"},
        {1.0, "2001-01-01T00:00:01.000"},
        {-1.0, "2000-12-31T23:59:59.000"},
        {0.0015, "2001-01-01T00:00:00.002"},
        {0.25, "2001-01-01T00:00:00.250"},
        {-0.25, "2000-12-31T23:59:59.750"},
        {86'400.0, "2001-01-02T00:00:00.000"},
        {-978'307'200.0, "1970-01-01T00:00:00.000"},
        {736'344'000.0, "2024-05-02T12:00:00.000"},
        {-12'496'723'200.0, "1604-12-30T00:00:00.000"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.date);
        const QDateTime date = CCommonUtils::buildDateTimeBase2001(row.seconds);
        EXPECT_EQ(date.timeSpec(), Qt::UTC);
        EXPECT_EQ(date.toString("yyyy-MM-ddThh:mm:ss.zzz"), row.date);
    }
}

TEST(BuildDateTimeBase2001, HasNoDateForWhatIsNoNumberOrTooFarOff)
{
    using Double = std::numeric_limits<double>;
    for (const double seconds : {Double::quiet_NaN(), Double::infinity(), -Double::infinity(),
             Double::max(), Double::lowest(), 9.2233720368547e15, -9.2233720368547e15}) {
        SCOPED_TRACE(seconds);
        EXPECT_FALSE(CCommonUtils::buildDateTimeBase2001(seconds).isValid());
    }
}

TEST(BuildDateTimeBase2001, FarDatesHaveTextsAndDoNoHarm)
{
    for (const double seconds : {8.9e15, -8.9e15}) {
        const QDateTime date = CCommonUtils::buildDateTimeBase2001(seconds);
        EXPECT_TRUE(date.isValid());
        EXPECT_FALSE(CCommonUtils::dateToString(date, true).isEmpty());
        EXPECT_FALSE(CCommonUtils::datetimeToMinute(date, true).isEmpty());
    }
}

// The tests run two hours east of Greenwich, without summer time.
TEST(DateTexts, ShowLocalTimeAndOnDemandUtc)
{
    struct Row {
        const char* what;
        const char* date;
        const char* localDay;
        const char* localMinute;
        const char* utcMinute;
    };
    const Row rows[] = {
        {"plain", "2024-05-01T12:30:59", "2024-05-01", "2024-05-01 14:30", "2024-05-01 12:30"},
        {"the next day", "2024-05-01T22:00:00", "2024-05-02", "2024-05-02 00:00",
            "2024-05-01 22:00"},
        {"the next year", "2023-12-31T23:05:00", "2024-01-01", "2024-01-01 01:05",
            "2023-12-31 23:05"},
        {"seconds are cut", "2024-05-01T21:59:59.999", "2024-05-01", "2024-05-01 23:59",
            "2024-05-01 21:59"},
        {"leap day", "2024-02-28T22:00:00", "2024-02-29", "2024-02-29 00:00", "2024-02-28 22:00"},
        {"no leap day", "1900-02-28T22:00:00", "1900-03-01", "1900-03-01 00:00",
            "1900-02-28 22:00"},
        {"leap day of a century", "2000-02-28T22:00:00", "2000-02-29", "2000-02-29 00:00",
            "2000-02-28 22:00"},
        {"before 1970", "1969-12-31T21:59:59", "1969-12-31", "1969-12-31 23:59",
            "1969-12-31 21:59"},
        {"a year of three digits", "0999-12-31T21:59:00", "0999-12-31", "0999-12-31 23:59",
            "0999-12-31 21:59"},
        {"last year of four digits", "9999-12-31T21:59:00", "9999-12-31", "9999-12-31 23:59",
            "9999-12-31 21:59"},
        {"a birthday without a year", "1604-02-29T12:00:00", "1604-02-29", "1604-02-29 14:00",
            "1604-02-29 12:00"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const QDateTime date = utc(row.date);
        ASSERT_TRUE(date.isValid());
        EXPECT_EQ(CCommonUtils::dateToString(date, true), row.localDay);
        EXPECT_EQ(CCommonUtils::datetimeToMinute(date, true), row.localMinute);
        EXPECT_EQ(CCommonUtils::datetimeToMinute(date, false), row.utcMinute);
        EXPECT_EQ(CCommonUtils::dateToString(date, false), QString(row.utcMinute).left(10));
    }
}

TEST(DateTexts, TakeDatesOfEveryZone)
{
    const QDate day(2024, 5, 1);
    const QTime noon(12, 0);
    EXPECT_EQ(CCommonUtils::datetimeToMinute(QDateTime(day, noon), true), "2024-05-01 12:00");
    EXPECT_EQ(CCommonUtils::datetimeToMinute(QDateTime(day, noon), false), "2024-05-01 10:00");
    const QDateTime offset(day, noon, Qt::OffsetFromUTC, -5 * 3600);
    EXPECT_EQ(CCommonUtils::datetimeToMinute(offset, true), "2024-05-01 19:00");
}

TEST(DateTexts, AreEmptyForAnInvalidDate)
{
    EXPECT_EQ(CCommonUtils::dateToString({}, true), "");
    EXPECT_EQ(CCommonUtils::dateToString({}, false), "");
    EXPECT_EQ(CCommonUtils::datetimeToMinute({}, true), "");
    EXPECT_EQ(CCommonUtils::datetimeToMinute(QDateTime(QDate(2023, 2, 29), QTime(1, 0)), true), "");
}

TEST(OnModifyDateTime, StampsEachFormOfTheText)
{
    struct Row {
        const char* text;
        const char* stamp; // in UTC
    };
    const Row rows[] = {
        {"2020-02-03T04:05:06Z", "2020-02-03T04:05:06.000Z"},
        {"2020-02-03 04:05:06Z", "2020-02-03T04:05:06.000Z"},
        {"2020-02-03T04:05:06", "2020-02-03T02:05:06.000Z"},
        {"2020-02-03 04:05:06", "2020-02-03T02:05:06.000Z"},
        {"2020-02-03T04:05", "2020-02-03T02:05:00.000Z"},
        {"2020-02-03", "2020-02-02T22:00:00.000Z"},
        {"2020-02-03T04:05:06.250Z", "2020-02-03T04:05:06.250Z"},
        {"2020-02-03T04:05:06-05:00", "2020-02-03T09:05:06.000Z"},
        {"1969-07-20T20:17:40Z", "1969-07-20T20:17:40.000Z"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        const support::TempTree tree;
        const QString path = tree.write("photo.jpg", "bytes");
        CCommonUtils::onModifyDateTime(path, row.text);
        EXPECT_EQ(QFileInfo(path).lastModified().toUTC().toString(Qt::ISODateWithMs), row.stamp);
        EXPECT_EQ(tree.read("photo.jpg"), "bytes");
    }
}

TEST(OnModifyDateTime, ChangesNothingForATextThatCannotBeRead)
{
    const support::TempTree tree;
    const QString path = tree.write("photo.jpg", "bytes");
    CCommonUtils::onModifyDateTime(path, "2020-02-03T04:05:06Z");
    const QDateTime before = QFileInfo(path).lastModified();
    for (const char* text : {"", "yesterday", "03.02.2021", "2021-02-30", "2021-02-03T25:00:00",
             "2021-02-03x04:05:06"}) {
        SCOPED_TRACE(text);
        CCommonUtils::onModifyDateTime(path, text);
        EXPECT_EQ(QFileInfo(path).lastModified(), before);
    }
}

TEST(OnModifyDateTime, StampsAWriteProtectedFile)
{
    const support::TempTree tree;
    const QString path = tree.write("photo.jpg", "bytes");
    QFile::setPermissions(path, QFileDevice::ReadOwner);
    CCommonUtils::onModifyDateTime(path, "2020-02-03T04:05:06Z");
    EXPECT_EQ(QFileInfo(path).lastModified(), utc("2020-02-03T04:05:06"));
}

TEST(OnModifyDateTime, MakesNoFile)
{
    const support::TempTree tree;
    CCommonUtils::onModifyDateTime(tree.path("absent.jpg"), "2020-02-03T04:05:06Z");
    EXPECT_TRUE(tree.list().isEmpty());
}
