// SPDX-License-Identifier: MIT
#include "formats/cocoa_values.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using formats::dateFromCocoaSeconds;
using formats::urlText;
using formats::utf8Text;

TEST(CocoaDate, CountsSecondsSince2001InUtc)
{
    struct Row {
        double seconds;
        const char* date;
    };
    const Row rows[]{{0, "2001-01-01T00:00:00.000Z"}, {0.25, "2001-01-01T00:00:00.250Z"},
        {-1, "2000-12-31T23:59:59.000Z"}, {700'000'000, "2023-03-08T20:26:40.000Z"},
        {63'113'904'000, "4001-01-01T00:00:00.000Z"}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.date);
        EXPECT_EQ(
            dateFromCocoaSeconds(row.seconds).toString(Qt::ISODateWithMs).toStdString(), row.date);
    }
}

TEST(CocoaDate, IsInvalidForWhatIsNoDate)
{
    using Limits = std::numeric_limits<double>;
    for (const double seconds : {Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(),
             Limits::max(), 1e18, -1e18}) {
        SCOPED_TRACE(seconds);
        EXPECT_FALSE(dateFromCocoaSeconds(seconds).isValid());
    }
}

TEST(UrlText, StaysAsItStandsWithoutABase)
{
    EXPECT_EQ(urlText({}, "http://a.b/%C3%A4 x"), "http://a.b/%C3%A4 x");
}

TEST(UrlText, IsSeenFromItsBase)
{
    EXPECT_EQ(urlText("http://a.b/c/d", "../e?f=1"), "http://a.b/e?f=1");
}

TEST(Utf8Text, KeepsALeadingMarkWhichRangesCount)
{
    EXPECT_EQ(utf8Text("\xEF\xBB\xBF\xEF\xBB\xBF"
                       "a"),
        QString(QChar(0xFEFF)) + QChar(0xFEFF) + 'a');
}

TEST(Utf8Text, ReplacesBytesThatAreNone)
{
    EXPECT_EQ(utf8Text("a\xFF"
                       "b"),
        QString("a") + QChar(0xFFFD) + 'b');
}

TEST(Utf8Text, KeepsNulInside)
{
    EXPECT_EQ(utf8Text({"a\0b", 3}).size(), 3);
}

} // namespace
