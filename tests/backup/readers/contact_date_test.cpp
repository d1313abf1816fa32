// SPDX-License-Identifier: MIT
#include "backup/readers/contact_date.h"
#include "support/backup_builder.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

TEST(ContactDateTest, SecondsBecomeNoonOfTheDayInUtc)
{
    struct Row {
        const char* what = nullptr;
        QString stored;
        QString seconds;
    };
    const std::vector<Row> rows{
        {"noon", "504878400", "504878400"},
        {"noon with decimals", "504878400.0", "504878400"},
        {"midnight", "504835200", "504878400"},
        {"last second", "504921599.9", "504878400"},
        {"first second of the next day", "504921600", "504964800"},
        {"before 2001", "-16070400.0", "-16027200"},
        {"9 January 1604", "-12527438400.0", "-12527438400"},
        {"day in letters", "1990-04-01", "-339336000"},
        {"0 is none", "0", ""},
        {"no number", "soon", ""},
        {"nothing", "", ""},
        {"no finite number", "inf", ""},
        {"no number at all", "nan", ""},
        {"beyond all years", "1e300", ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(backup::contactDate(row.stored), row.seconds);
    }
}

QByteArray calendarDay(const QString& calendar, const QString& numbers)
{
    return propertyList("<key>calendarIdentifier</key><string>" + calendar + "</string>" + numbers);
}

QString integer(const QString& key, int value)
{
    return QString("<key>%1</key><integer>%2</integer>").arg(key).arg(value);
}

TEST(AlternateBirthdayTest, DayOfAnotherCalendarIsText)
{
    struct Row {
        const char* what = nullptr;
        QByteArray stored;
        QString label;
        QString text;
    };
    const QString day = integer("month", 4) + integer("day", 8);
    const std::vector<Row> rows{
        // 2024 is the 41st year of the 78th cycle, the year of the dragon: jia-chen.
        {"Chinese", calendarDay("chinese", day + integer("era", 78) + integer("year", 41)),
            "Chinese birthday", "Month 4, day 8, 2024 (jia-chen)"},
        {"Chinese without cycle", calendarDay("chinese", day + integer("year", 60)),
            "Chinese birthday", "Month 4, day 8, gui-hai"},
        {"Chinese leap month", calendarDay("chinese", day + "<key>isLeapMonth</key><true/>"),
            "Chinese birthday", "Leap month 4, day 8"},
        {"Hebrew",
            calendarDay("hebrew", integer("month", 8) + integer("day", 13) + integer("year", 5750)),
            "Hebrew birthday", "13 Nisan 5750"},
        {"Islamic", calendarDay("islamic-civil", integer("month", 9) + integer("day", 1)),
            "Islamic birthday", "1 Ramadan"},
        {"month beyond the year", calendarDay("islamic", integer("month", 99) + integer("day", 1)),
            "Islamic birthday", "1 99"},
        {"another one", calendarDay("coptic", day + integer("year", 1700)), "birthday (coptic)",
            "1700-4-8"},
        {"a text", "5th of the 5th", "birthday", "5th of the 5th"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const AltBirthday birthday = backup::alternateBirthday(row.stored);
        EXPECT_NE(birthday.type, 0);
        EXPECT_EQ(birthday.label, row.label);
        EXPECT_EQ(birthday.desc, row.text);
    }
}

TEST(AlternateBirthdayTest, WhatSaysNoDayIsNone)
{
    for (const QByteArray& stored :
        {QByteArray(), calendarDay("chinese", integer("year", 4)), calendarDay("hebrew", {}),
            calendarDay("chinese", integer("month", -1) + integer("day", 3)),
            QByteArray("bplist00\xFF"), QByteArray("\x01\x02", 2)}) {
        SCOPED_TRACE(stored.toStdString());
        EXPECT_EQ(backup::alternateBirthday(stored).type, 0);
    }
}

} // namespace
