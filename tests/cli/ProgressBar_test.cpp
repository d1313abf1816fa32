// SPDX-License-Identifier: MIT
#include "cli/ProgressBar.h"
#include "fake_console.h"

#include <gtest/gtest.h>

#include <array>

namespace {

ProgressState halfOfMessages()
{
    return {
        .stage = "Messages", .stageShare = 0.5, .share = 0.5, .records = 300.0, .elapsedMs = 3000};
}

struct Row {
    const char* what;
    int width;
    std::string text;
};

} // namespace

TEST(ProgressBarText, LeavesOutWhatDoesNotFit)
{
    const std::array rows{
        Row{"all of it", 100,
            "Messages  [====================                    ]   50 %  100/s  0:03 left"},
        Row{"a shorter bar", 50, "Messages  [======       ]   50 %  100/s  0:03 left"},
        Row{"no rate", 43, "Messages  [======       ]   50 %  0:03 left"},
        Row{"no time", 34, "Messages  [=======        ]   50 %"},
        Row{"no bar", 25, "Messages   50 %"},
        Row{"not even all of that", 6, "Messag"},
        Row{"no room", 0, ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(progressBarText(halfOfMessages(), row.width).toStdString(), row.text);
        EXPECT_LE(progressBarText(halfOfMessages(), row.width).size(), row.width);
    }
}

TEST(ProgressBarText, GuessesNothingInTheFirstSecond)
{
    ProgressState state = halfOfMessages();
    state.elapsedMs = 999;
    EXPECT_FALSE(progressBarText(state, 100).contains("left"));
    state.elapsedMs = 5000;
    state.share = 0.0;
    EXPECT_FALSE(progressBarText(state, 100).contains("left"));
}

TEST(ProgressBarText, ShowsHoursWhereThereAreAny)
{
    ProgressState state = halfOfMessages();
    state.elapsedMs = 3'725'000; // an hour, two minutes, five seconds
    EXPECT_TRUE(progressBarText(state, 100).endsWith("1:02:05 left"));
}

TEST(ProgressBarText, ShowsSlowRatesWithATenth)
{
    ProgressState state = halfOfMessages();
    state.records = 4.5;
    EXPECT_TRUE(progressBarText(state, 100).contains("  1.5/s  "));
}

TEST(ProgressBar, IsDrawnAtMostTenTimesASecond)
{
    FakeConsole console(true);
    qint64 nowMs = 0;
    ProgressBar bar(console, [&nowMs] { return nowMs; });
    for (nowMs = 0; nowMs < 1000; ++nowMs) {
        bar.moved(halfOfMessages());
    }
    EXPECT_EQ(console.errors().count('\r'), 10);
}

TEST(ProgressBar, IsNarrowerThanTheTerminalOfTheMoment)
{
    FakeConsole console(true, 60);
    qint64 nowMs = 0;
    ProgressBar bar(console, [&nowMs] { return nowMs; });
    bar.moved(halfOfMessages());
    EXPECT_EQ(console.errors().size(), 60); // the return and 59 characters
    console.setColumns(30);
    console.forget();
    nowMs = 1000;
    bar.moved(halfOfMessages());
    EXPECT_LE(console.errors().size(), 30);
}

TEST(ProgressBar, LeavesAnEmptyLine)
{
    FakeConsole console(true, 40);
    {
        ProgressBar bar(console, [] { return 0; });
        bar.moved(halfOfMessages());
        console.forget();
    }
    EXPECT_EQ(console.errors().trimmed(), "");
    EXPECT_TRUE(console.errors().endsWith(" \r"));
}
