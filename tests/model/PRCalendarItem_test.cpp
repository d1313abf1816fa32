// SPDX-License-Identifier: MIT
#include "model/PRCalendarItem.h"

#include <QDateTime>
#include <QString>
#include <QVariant>

#include <gtest/gtest.h>

namespace {

QDateTime day(int number)
{
    return {QDate(2024, 5, number), QTime(12, 0), Qt::UTC};
}

} // namespace

TEST(PRCalendarItem, HasTypedValuesInFiveColumns)
{
    PRCalendarItem item({.values = {"Title", "Place", "start", "end", "Notes", "recurs", "until",
                             "7", "8", "alarm"}},
        {.allDay = 1,
            .start = day(1),
            .end = day(2),
            .recurrence = "1*2*",
            .recurrenceEnd = day(3),
            .alarmSeconds = 900});
    EXPECT_EQ(item.sortValue(2), QVariant(day(1)));
    EXPECT_EQ(item.sortValue(3), QVariant(day(2)));
    EXPECT_EQ(item.sortValue(5), QVariant(QString("1*2*")));
    EXPECT_EQ(item.sortValue(6), QVariant(day(3)));
    EXPECT_EQ(item.sortValue(9), QVariant(900));
    EXPECT_EQ(item.getAllDay(), 1);
}

TEST(PRCalendarItem, ShowsItsTextsInAllColumns)
{
    const PRCalendarItem item({.values = {"Title", "Place", "start", "end", "Notes"}},
        {.start = day(1), .recurrence = "1*2*"});
    EXPECT_EQ(item.value(0), "Title");
    EXPECT_EQ(item.value(2), "start");
    EXPECT_EQ(item.value(5), "");
    for (const int column : {0, 1, 4}) {
        EXPECT_EQ(item.sortValue(column), QVariant(item.value(column))) << column;
    }
}

TEST(PRCalendarItem, IsASingleTimedEventWithoutAlarmByDefault)
{
    PRCalendarItem item;
    EXPECT_EQ(item.getAllDay(), 0);
    EXPECT_FALSE(item.sortValue(2).toDateTime().isValid());
    EXPECT_EQ(item.sortValue(5).toString(), "");
    EXPECT_FALSE(item.sortValue(6).toDateTime().isValid());
    EXPECT_EQ(item.sortValue(9).toInt(), 0);
}
