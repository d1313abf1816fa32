// SPDX-License-Identifier: MIT
#include "translators/records/recurrence_rule.h"

#include <gtest/gtest.h>

namespace {

// June 2024 begins with a Saturday.
struct RuleRow {
    const char* what = nullptr;
    const char* source = nullptr;
    QDate start{2024, 6, 3}; // a Monday
    QDate end;
    const char* rule = nullptr;
};

void expectRules(std::initializer_list<RuleRow> rows)
{
    for (const RuleRow& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(recurrenceRule(row.source, row.start, row.end), row.rule);
    }
}

TEST(RecurrenceRule, HasThreeFieldsOrIsNone)
{
    expectRules({
        {.what = "nothing", .source = "", .rule = ""},
        {.what = "one field", .source = "1", .rule = ""},
        {.what = "two fields", .source = "1*1", .rule = ""},
        {.what = "three, the last empty", .source = "1*1*", .rule = "FREQ=DAILY"},
        {.what = "what comes fourth is not read",
            .source = "1*2*D=0TU*S=3",
            .rule = "FREQ=WEEKLY;BYDAY=TU"},
        {.what = "blanks around numbers", .source = " 2 * 1 *", .rule = "FREQ=DAILY;INTERVAL=2"},
    });
}

TEST(RecurrenceRule, ForAnyOtherFrequencyIsNone)
{
    for (const char* source : {"1*0*", "1*5*", "1*-1*", "1**", "1*daily*", "1*1.5*"}) {
        EXPECT_EQ(recurrenceRule(source, {2024, 6, 3}, {2024, 7, 3}), "") << source;
    }
}

TEST(RecurrenceRule, WithoutAnEndHasNoCountInAnyFrequency)
{
    expectRules({
        {.what = "daily", .source = "1*1*", .rule = "FREQ=DAILY"},
        {.what = "weekly", .source = "1*2*D=0MO", .rule = "FREQ=WEEKLY;BYDAY=MO"},
        {.what = "weekly, 7 days more",
            .source = "1*2*D=0MO",
            .start = {2024, 6, 7},
            .rule = "FREQ=WEEKLY;BYDAY=MO"},
        {.what = "monthly, day", .source = "1*3*M=3", .rule = "FREQ=MONTHLY;BYMONTHDAY=3"},
        {.what = "monthly, weekday",
            .source = "1*3*D=+1MO",
            .rule = "FREQ=MONTHLY;BYDAY=MO;BYSETPOS=1"},
        {.what = "yearly, day",
            .source = "1*4*M=3;O=6",
            .rule = "FREQ=YEARLY;BYMONTHDAY=3;BYMONTH=6"},
        {.what = "yearly, weekday",
            .source = "1*4*D=+1MO;O=6",
            .rule = "FREQ=YEARLY;BYDAY=MO;BYMONTH=6;BYSETPOS=1"},
    });
}

TEST(RecurrenceRule, ThatEndsOnItsFirstDayOrBeforeHasNoCount)
{
    for (const QDate& end : {QDate(2024, 6, 3), QDate(2024, 6, 2), QDate(2023, 1, 1)}) {
        for (const char* source : {"1*1*", "1*2*D=0WE", "1*3*M=3", "1*4*M=3;O=6"}) {
            EXPECT_FALSE(recurrenceRule(source, {2024, 6, 3}, end).contains("COUNT")) << source;
        }
    }
    // 7 days are added for the count alone, not for the question whether there is one.
    EXPECT_EQ(recurrenceRule("1*2*D=0WE", {2024, 6, 7}, {2024, 6, 4}), "FREQ=WEEKLY;BYDAY=WE");
}

TEST(RecurrenceRule, OfAnEventWithoutAStartHasNoCount)
{
    EXPECT_EQ(recurrenceRule("2*3*D=+1MO", {}, {2024, 6, 3}),
        "FREQ=MONTHLY;INTERVAL=2;BYDAY=MO;BYSETPOS=1");
}

TEST(RecurrenceRule, IntervalStandsAboveOneAndNoughtDividesAsOne)
{
    expectRules({
        {.what = "1", .source = "1*1*", .end = {2024, 6, 8}, .rule = "FREQ=DAILY;COUNT=6"},
        {.what = "2",
            .source = "2*1*",
            .end = {2024, 6, 8},
            .rule = "FREQ=DAILY;COUNT=3;INTERVAL=2"},
        {.what = "5",
            .source = "5*1*",
            .end = {2024, 6, 8},
            .rule = "FREQ=DAILY;COUNT=2;INTERVAL=5"},
        {.what = "longer than the recurrence",
            .source = "6*1*",
            .end = {2024, 6, 8},
            .rule = "FREQ=DAILY;COUNT=1;INTERVAL=6"},
        {.what = "other parts of a daily rule are not written",
            .source = "2*1*D=+1MO;M=4;O=5;S=6",
            .end = {2024, 6, 8},
            .rule = "FREQ=DAILY;COUNT=3;INTERVAL=2"},
        {.what = "0", .source = "0*1*", .end = {2024, 6, 8}, .rule = "FREQ=DAILY;COUNT=6"},
        {.what = "0 weekly", .source = "0*2*", .end = {2024, 6, 17}, .rule = "FREQ=WEEKLY;COUNT=3"},
        {.what = "0 monthly",
            .source = "0*3*M=3",
            .end = {2024, 8, 3},
            .rule = "FREQ=MONTHLY;COUNT=3;BYMONTHDAY=3"},
        {.what = "0 yearly",
            .source = "0*4*M=3;O=6",
            .end = {2026, 6, 3},
            .rule = "FREQ=YEARLY;COUNT=3;BYMONTHDAY=3;BYMONTH=6"},
        {.what = "no number", .source = "x*1*", .end = {2024, 6, 8}, .rule = "FREQ=DAILY;COUNT=6"},
        {.what = "negative", .source = "-2*1*", .end = {2024, 6, 8}, .rule = "FREQ=DAILY;COUNT=-1"},
        {.what = "largest, weekly",
            .source = "2147483647*2*",
            .end = {2024, 6, 8},
            .rule = "FREQ=WEEKLY;COUNT=1;INTERVAL=2147483647"},
        {.what = "smallest",
            .source = "-2147483648*3*M=3",
            .end = {2024, 7, 8},
            .rule = "FREQ=MONTHLY;COUNT=1;BYMONTHDAY=3"},
    });
}

// 3 June 2024 is a Monday, the 5th a Wednesday, the 7th a Friday.
TEST(RecurrenceRule, WeeklyCountsTheWeeksAndTheEventBesideThem)
{
    expectRules({
        {.what = "no weekday",
            .source = "1*2*",
            .end = {2024, 6, 24},
            .rule = "FREQ=WEEKLY;COUNT=4"},
        {.what = "a day short of a week",
            .source = "1*2*",
            .end = {2024, 6, 23},
            .rule = "FREQ=WEEKLY;COUNT=3"},
        {.what = "the event's own weekday",
            .source = "1*2*D=0MO",
            .end = {2024, 6, 24},
            .rule = "FREQ=WEEKLY;COUNT=4;BYDAY=MO"},
        // 2 + 16 / 7
        {.what = "later in the week than the event",
            .source = "1*2*D=0WE",
            .end = {2024, 6, 19},
            .rule = "FREQ=WEEKLY;COUNT=4;BYDAY=WE"},
        // 2 + (12 + 7) / 7
        {.what = "earlier in the week: 7 days more",
            .source = "1*2*D=0WE",
            .start = {2024, 6, 7},
            .end = {2024, 6, 19},
            .rule = "FREQ=WEEKLY;COUNT=4;BYDAY=WE"},
        // 2 + (7 + 7) / 7: with 6 more it would be one less
        {.what = "earlier in the week, a week before the end",
            .source = "1*2*D=0WE",
            .start = {2024, 6, 7},
            .end = {2024, 6, 14},
            .rule = "FREQ=WEEKLY;COUNT=4;BYDAY=WE"},
        // 2 + (12 + 7) / 14
        {.what = "with an interval",
            .source = "2*2*D=0WE",
            .start = {2024, 6, 7},
            .end = {2024, 6, 19},
            .rule = "FREQ=WEEKLY;COUNT=3;INTERVAL=2;BYDAY=WE"},
        {.what = "interval behind COUNT, BYDAY last",
            .source = "3*2*D=0MO",
            .end = {2024, 8, 5},
            .rule = "FREQ=WEEKLY;COUNT=4;INTERVAL=3;BYDAY=MO"},
        {.what = "other parts are not written",
            .source = "1*2*D=0MO;M=4;O=5;S=6",
            .end = {2024, 6, 10},
            .rule = "FREQ=WEEKLY;COUNT=2;BYDAY=MO"},
    });
}

TEST(RecurrenceRule, OfSeveralWeekdaysTheLastOneStands)
{
    expectRules({
        {.what = "two", .source = "1*2*D=0MO,0WE", .rule = "FREQ=WEEKLY;BYDAY=WE"},
        {.what = "two parts", .source = "1*2*D=0WE;D=0FR", .rule = "FREQ=WEEKLY;BYDAY=FR"},
        {.what = "all of a working week",
            .source = "1*3*D=0MO,0TU,0WE,0TH,0FR;S=-1",
            .rule = "FREQ=MONTHLY;BYDAY=FR;BYSETPOS=-1"},
    });
}

TEST(RecurrenceRule, WeekdayIsReadFromTheEndOfItsPart)
{
    struct {
        const char* part = nullptr;
        const char* byDay = nullptr;
    } const rows[] = {
        {"D=0MO", "MO"},
        {"D=0TU", "TU"},
        {"D=0WE", "WE"},
        {"D=0TH", "TH"},
        {"D=0FR", "FR"},
        {"D=0SA", "SA"},
        {"D=0SU", "SU"},
        {"DSU", "SU"},
        // What is no weekday is a Monday.
        {"D=0XX", "MO"},
        {"D=0fr", "MO"},
        {"D", "MO"},
        {"D=", "MO"},
        {"D=0FR,", "MO"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(recurrenceRule(QString("1*2*") + row.part, {2024, 6, 3}, {}),
            QString("FREQ=WEEKLY;BYDAY=") + row.byDay)
            << row.part;
    }
}

TEST(RecurrenceRule, PlusMakesAPositionAndMinusNone)
{
    expectRules({
        {.what = "+", .source = "1*3*D=+2TU", .rule = "FREQ=MONTHLY;BYDAY=TU;BYSETPOS=2"},
        {.what = "two digits",
            .source = "1*3*D=+12TU",
            .rule = "FREQ=MONTHLY;BYDAY=TU;BYSETPOS=12"},
        {.what = "-", .source = "1*3*D=-1FR", .rule = "FREQ=MONTHLY;BYDAY=FR"},
        {.what = "each code of the part is taken out",
            .source = "1*3*D=+1FRFR",
            .rule = "FREQ=MONTHLY;BYDAY=FR;BYSETPOS=1"},
        {.what = "two places are no number",
            .source = "1*3*D=+1MO,+3MO",
            .rule = "FREQ=MONTHLY;BYDAY=MO"},
        {.what = "a later + overwrites S",
            .source = "1*3*S=4;D=+2TU",
            .rule = "FREQ=MONTHLY;BYDAY=TU;BYSETPOS=2"},
        {.what = "a later part without + leaves S",
            .source = "1*3*S=4;D=0TU",
            .rule = "FREQ=MONTHLY;BYDAY=TU;BYSETPOS=4"},
        {.what = "a later S overwrites +",
            .source = "1*3*D=+2TU;S=-1",
            .rule = "FREQ=MONTHLY;BYDAY=TU;BYSETPOS=-1"},
        {.what = "a + without a number unsets S",
            .source = "1*3*S=4;D=+TU",
            .rule = "FREQ=MONTHLY;BYDAY=TU"},
    });
}

TEST(RecurrenceRule, PartsAreKnownByTheirFirstLetterWithItsCase)
{
    expectRules({
        {.what = "unknown letters",
            .source = "1*3*W=3;Y=100;X;;M=7",
            .rule = "FREQ=MONTHLY;BYMONTHDAY=7"},
        {.what = "small letters", .source = "1*3*m=7;d=0MO;s=1", .rule = "FREQ=MONTHLY"},
        {.what = "a blank before", .source = "1*3* M=7", .rule = "FREQ=MONTHLY"},
        {.what = "of several days the first",
            .source = "1*3*M=1,15",
            .rule = "FREQ=MONTHLY;BYMONTHDAY=1"},
        {.what = "of several months the first",
            .source = "1*4*O=6,12;M=5",
            .rule = "FREQ=YEARLY;BYMONTHDAY=5;BYMONTH=6"},
        {.what = "last day", .source = "1*3*M=-1", .rule = "FREQ=MONTHLY;BYMONTHDAY=-1"},
        {.what = "later ones overwrite",
            .source = "1*4*M=1;O=2;M=3;O=4",
            .rule = "FREQ=YEARLY;BYMONTHDAY=3;BYMONTH=4"},
        {.what = "a list of positions is no number",
            .source = "1*3*S=1,2;M=3",
            .rule = "FREQ=MONTHLY;BYMONTHDAY=3"},
        {.what = "no numbers", .source = "1*4*M=;O=x;S=", .rule = "FREQ=YEARLY"},
    });
}

TEST(RecurrenceRule, MonthlyByDayCountsMonths)
{
    expectRules({
        {.what = "ends on the day",
            .source = "1*3*M=3",
            .end = {2024, 9, 3},
            .rule = "FREQ=MONTHLY;COUNT=4;BYMONTHDAY=3"},
        {.what = "ends before the day",
            .source = "1*3*M=3",
            .end = {2024, 9, 2},
            .rule = "FREQ=MONTHLY;COUNT=3;BYMONTHDAY=3"},
        {.what = "starts before the day: one more",
            .source = "1*3*M=15",
            .end = {2024, 9, 15},
            .rule = "FREQ=MONTHLY;COUNT=5;BYMONTHDAY=15"},
        {.what = "starts behind the day",
            .source = "1*3*M=2",
            .end = {2024, 9, 2},
            .rule = "FREQ=MONTHLY;COUNT=4;BYMONTHDAY=2"},
        {.what = "with a remainder the end's day is not asked for",
            .source = "2*3*M=3",
            .end = {2024, 9, 2},
            .rule = "FREQ=MONTHLY;COUNT=2;INTERVAL=2;BYMONTHDAY=3"},
        {.what = "without one it is",
            .source = "2*3*M=3",
            .end = {2024, 8, 2},
            .rule = "FREQ=MONTHLY;COUNT=1;INTERVAL=2;BYMONTHDAY=3"},
        {.what = "over a year's end",
            .source = "1*3*M=3",
            .end = {2025, 2, 3},
            .rule = "FREQ=MONTHLY;COUNT=9;BYMONTHDAY=3"},
        {.what = "the day goes before the weekday",
            .source = "1*3*D=0TU;M=3",
            .end = {2024, 9, 2},
            .rule = "FREQ=MONTHLY;COUNT=3;BYMONTHDAY=3;BYDAY=TU"},
        {.what = "all parts in their order",
            .source = "2*3*S=5;O=4;D=0TU;M=3",
            .end = {2024, 10, 3},
            .rule = "FREQ=MONTHLY;COUNT=3;INTERVAL=2;BYMONTHDAY=3;BYDAY=TU;BYSETPOS=5"},
        {.what = "starts behind the day and ends in the month",
            .source = "1*3*M=10",
            .start = {2024, 6, 11},
            .end = {2024, 6, 30},
            .rule = "FREQ=MONTHLY;COUNT=1;BYMONTHDAY=10"},
        {.what = "the month is not written",
            .source = "1*3*M=3;O=6",
            .end = {2024, 9, 3},
            .rule = "FREQ=MONTHLY;COUNT=4;BYMONTHDAY=3"},
    });
}

TEST(RecurrenceRule, MonthlyWithoutADayHasNoCountAlthoughItEnds)
{
    expectRules({
        {.what = "nothing", .source = "1*3*", .end = {2024, 9, 3}, .rule = "FREQ=MONTHLY"},
        {.what = "a position alone",
            .source = "2*3*S=2",
            .end = {2024, 9, 3},
            .rule = "FREQ=MONTHLY;INTERVAL=2;BYSETPOS=2"},
    });
}

// Of a date's day less its day of the week, with 6 where a calendar has 7: see the days below.
//   Monday  3 June 2024: 3 - 1 = 2   -> 2 - 0 + 1 = 3
//   Saturday 1 June:     1 - 6 = -5  -> 1
//   Monday 10 June:     10 - 1 = 9   -> 9 - 6 + 1 = 4
//   Sunday 30 June:     30 - 7 = 23  -> 23 - 18 + 1 = 6
//   Monday 15 July:     15 - 1 = 14  -> 14 - 12 + 1 = 3
TEST(RecurrenceRule, FactorOfTheWeekIndexIsSixAndNotSeven)
{
    struct {
        QDate start;
        int index = 0;
    } const rows[] = {
        {{2024, 6, 3}, 3}, {{2024, 6, 1}, 1}, {{2024, 6, 6}, 3}, {{2024, 6, 10}, 4},
        {{2024, 6, 30}, 6}, {{2024, 7, 15}, 3}, {{2024, 7, 1}, 1}, // 1 - 1 = 0
        {{2024, 7, 7}, 1},                                         // Sunday
        {{2024, 7, 8}, 2},                                         // 8 - 1 = 7
        {{2024, 7, 9}, 2},                                         // 9 - 2 = 7
        {{2024, 9, 8}, 2},                                         // Sunday: 8 - 7 = 1
        {{2024, 9, 2}, 2},                                         // 2 - 1 = 1
        {{2024, 9, 30}, 6},                                        // 30 - 1 = 29 -> 29 - 24 + 1
    };
    // A position of `index + 1` still comes, one of `index` on the start's own weekday does not.
    const char* const codes[] = {"", "MO", "TU", "WE", "TH", "FR", "SA", "SU"};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.start.toString(Qt::ISODate).toStdString());
        const auto count = [&](int position) {
            const QString source =
                QString("2*3*D=0%1;S=%2").arg(codes[row.start.dayOfWeek()]).arg(position);
            const QString rule = recurrenceRule(source, row.start, row.start.addDays(31));
            return rule.section("COUNT=", 1).section(';', 0, 0).toInt();
        };
        EXPECT_EQ(count(row.index), 1);
        EXPECT_EQ(count(row.index + 1), 2);
    }
}

TEST(RecurrenceRule, MonthlyByWeekdayComparesPositionsAndThenWeekdays)
{
    // Week index of 3 June 2024, a Monday: 3. Of 7 August, a Wednesday: 7 - 3 = 4 -> 5.
    expectRules({
        {.what = "behind neither",
            .source = "1*3*D=+3MO",
            .end = {2024, 8, 7},
            .rule = "FREQ=MONTHLY;COUNT=3;BYDAY=MO;BYSETPOS=3"},
        {.what = "same position, later weekday than the start",
            .source = "1*3*D=+3TU",
            .end = {2024, 8, 7},
            .rule = "FREQ=MONTHLY;COUNT=4;BYDAY=TU;BYSETPOS=3"},
        {.what = "later position than the start",
            .source = "1*3*D=+4MO",
            .end = {2024, 8, 7},
            .rule = "FREQ=MONTHLY;COUNT=4;BYDAY=MO;BYSETPOS=4"},
        {.what = "the end's weekday is earlier",
            .source = "1*3*D=+5TH",
            .end = {2024, 8, 7},
            .rule = "FREQ=MONTHLY;COUNT=3;BYDAY=TH;BYSETPOS=5"},
        {.what = "the end's weekday is the same",
            .source = "1*3*D=+5WE",
            .end = {2024, 8, 7},
            .rule = "FREQ=MONTHLY;COUNT=4;BYDAY=WE;BYSETPOS=5"},
        {.what = "later position than the end",
            .source = "1*3*D=+6MO",
            .end = {2024, 8, 7},
            .rule = "FREQ=MONTHLY;COUNT=3;BYDAY=MO;BYSETPOS=6"},
        {.what = "with a remainder the end is not asked for",
            .source = "3*3*D=+6MO",
            .end = {2024, 8, 7},
            .rule = "FREQ=MONTHLY;COUNT=2;INTERVAL=3;BYDAY=MO;BYSETPOS=6"},
        {.what = "last one",
            .source = "1*3*D=0FR;S=-1",
            .end = {2024, 8, 30},
            .rule = "FREQ=MONTHLY;COUNT=3;BYDAY=FR;BYSETPOS=-1"},
    });
}

TEST(RecurrenceRule, YearlyByDayComparesMonthsAndThenDays)
{
    expectRules({
        {.what = "the day itself",
            .source = "1*4*M=3;O=6",
            .end = {2027, 6, 3},
            .rule = "FREQ=YEARLY;COUNT=4;BYMONTHDAY=3;BYMONTH=6"},
        {.what = "month behind the start's",
            .source = "1*4*M=1;O=7",
            .end = {2027, 7, 1},
            .rule = "FREQ=YEARLY;COUNT=5;BYMONTHDAY=1;BYMONTH=7"},
        {.what = "day behind the start's in its month",
            .source = "1*4*M=4;O=6",
            .end = {2027, 6, 4},
            .rule = "FREQ=YEARLY;COUNT=5;BYMONTHDAY=4;BYMONTH=6"},
        {.what = "month behind the end's",
            .source = "1*4*M=3;O=6",
            .end = {2027, 5, 31},
            .rule = "FREQ=YEARLY;COUNT=3;BYMONTHDAY=3;BYMONTH=6"},
        {.what = "day behind the end's in its month",
            .source = "1*4*M=3;O=6",
            .end = {2027, 6, 2},
            .rule = "FREQ=YEARLY;COUNT=3;BYMONTHDAY=3;BYMONTH=6"},
        {.what = "with a remainder the end is not asked for",
            .source = "2*4*M=3;O=6",
            .end = {2027, 5, 1},
            .rule = "FREQ=YEARLY;COUNT=2;INTERVAL=2;BYMONTHDAY=3;BYMONTH=6"},
        {.what = "without a month",
            .source = "1*4*M=9",
            .end = {2027, 6, 2},
            .rule = "FREQ=YEARLY;COUNT=4;BYMONTHDAY=9"},
        {.what = "all parts in their order, the day before the weekday",
            .source = "3*4*S=1;O=6;D=0TU;M=3",
            .end = {2030, 6, 2},
            .rule = "FREQ=YEARLY;COUNT=2;INTERVAL=3;BYMONTHDAY=3;BYDAY=TU;BYMONTH=6;BYSETPOS=1"},
    });
}

TEST(RecurrenceRule, YearlyByWeekdayComparesMonthsPositionsAndWeekdays)
{
    // Week index of 3 June 2024, a Monday: 3. Of 2 June 2027, a Wednesday: 2 - 3 = -1 -> 1.
    expectRules({
        {.what = "the day itself",
            .source = "1*4*D=+3MO;O=6",
            .end = {2027, 7, 1},
            .rule = "FREQ=YEARLY;COUNT=4;BYDAY=MO;BYMONTH=6;BYSETPOS=3"},
        {.what = "month behind the start's",
            .source = "1*4*D=+1MO;O=7",
            .end = {2027, 8, 1},
            .rule = "FREQ=YEARLY;COUNT=5;BYDAY=MO;BYMONTH=7;BYSETPOS=1"},
        {.what = "position behind the start's",
            .source = "1*4*D=+4MO;O=6",
            .end = {2027, 7, 1},
            .rule = "FREQ=YEARLY;COUNT=5;BYDAY=MO;BYMONTH=6;BYSETPOS=4"},
        {.what = "weekday behind the start's",
            .source = "1*4*D=+3TU;O=6",
            .end = {2027, 7, 1},
            .rule = "FREQ=YEARLY;COUNT=5;BYDAY=TU;BYMONTH=6;BYSETPOS=3"},
        {.what = "month behind the end's",
            .source = "1*4*D=+3MO;O=6",
            .end = {2027, 5, 1},
            .rule = "FREQ=YEARLY;COUNT=3;BYDAY=MO;BYMONTH=6;BYSETPOS=3"},
        {.what = "position behind the end's",
            .source = "1*4*D=+3MO;O=6",
            .end = {2027, 6, 2},
            .rule = "FREQ=YEARLY;COUNT=3;BYDAY=MO;BYMONTH=6;BYSETPOS=3"},
        {.what = "weekday behind the end's",
            .source = "1*4*D=+1TH;O=6",
            .end = {2027, 6, 2},
            .rule = "FREQ=YEARLY;COUNT=3;BYDAY=TH;BYMONTH=6;BYSETPOS=1"},
        {.what = "the end's own weekday",
            .source = "1*4*D=+1WE;O=6",
            .end = {2027, 6, 2},
            .rule = "FREQ=YEARLY;COUNT=4;BYDAY=WE;BYMONTH=6;BYSETPOS=1"},
        {.what = "with a remainder the end is not asked for",
            .source = "2*4*D=+3MO;O=6",
            .end = {2027, 6, 2},
            .rule = "FREQ=YEARLY;COUNT=2;INTERVAL=2;BYDAY=MO;BYMONTH=6;BYSETPOS=3"},
    });
}

TEST(RecurrenceRule, YearlyWithoutADayHasNoCountAlthoughItEnds)
{
    expectRules({
        {.what = "nothing", .source = "1*4*", .end = {2027, 6, 3}, .rule = "FREQ=YEARLY"},
        {.what = "a month alone",
            .source = "2*4*O=6;S=1",
            .end = {2027, 6, 3},
            .rule = "FREQ=YEARLY;INTERVAL=2;BYMONTH=6;BYSETPOS=1"},
    });
}

} // namespace
