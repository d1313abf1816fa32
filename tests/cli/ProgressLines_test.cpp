// SPDX-License-Identifier: MIT
#include "cli/ProgressLines.h"
#include "fake_console.h"

#include <gtest/gtest.h>

namespace {

void moveTo(ProgressLines& lines, double share)
{
    lines.moved({.stage = "Messages", .stageShare = share});
}

} // namespace

TEST(ProgressLines, TellsEachTenthOnce)
{
    FakeConsole console;
    ProgressLines lines(console);
    lines.stageBegan("Messages");
    for (const double share : {0.0, 0.05, 0.11, 0.15, 0.19, 0.35, 0.36, 0.99}) {
        moveTo(lines, share);
    }
    lines.stageEnded("Messages");
    EXPECT_EQ(console.errors(), "Messages: begun\nMessages: 10 %\nMessages: 30 %\n"
                                "Messages: 90 %\nMessages: 100 %\n");
}

TEST(ProgressLines, TellsTheEndOnce)
{
    FakeConsole console;
    ProgressLines lines(console);
    lines.stageBegan("Messages");
    moveTo(lines, 1.0);
    lines.stageEnded("Messages");
    EXPECT_EQ(console.errors(), "Messages: begun\nMessages: 100 %\n");
}

TEST(ProgressLines, BeginsAnewWithEachCategory)
{
    FakeConsole console;
    ProgressLines lines(console);
    lines.stageBegan("Contacts");
    lines.moved({.stage = "Contacts", .stageShare = 0.9});
    lines.stageEnded("Contacts");
    lines.stageBegan("Messages");
    console.forget();
    moveTo(lines, 0.2);
    EXPECT_EQ(console.errors(), "Messages: 20 %\n");
}
