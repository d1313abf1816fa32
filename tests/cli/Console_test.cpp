// SPDX-License-Identifier: MIT
#include "cli/Console.h"
#include "fake_console.h"

#include <gtest/gtest.h>

TEST(Console, KeepsResultsAndRemarksApart)
{
    FakeConsole console;
    console.print("result");
    console.note("remark");
    EXPECT_EQ(console.output(), "result\n");
    EXPECT_EQ(console.errors(), "remark\n");
}

TEST(Console, PutsTheNameOfTheProgramBeforeErrors)
{
    FakeConsole console;
    console.error("no such file");
    EXPECT_EQ(console.errors(), "dataexport: no such file\n");
}

TEST(Console, LeavesOutRemarksButNotErrorsWhenQuiet)
{
    FakeConsole console;
    console.setVerbosity(Verbosity::Quiet);
    console.note("remark");
    console.error("failed");
    EXPECT_EQ(console.errors(), "dataexport: failed\n");
}

TEST(Console, WritesUtf8)
{
    FakeConsole console;
    console.print(QString::fromUtf8("Zoë 😀"));
    EXPECT_EQ(console.output(), QByteArray("Zo\xC3\xAB \xF0\x9F\x98\x80\n"));
}

TEST(Console, LetsNoControlCharacterReachTheTerminal)
{
    FakeConsole console;
    console.print("a\x1b[31mb\x07");
    EXPECT_EQ(console.output(), QByteArray("a\xEF\xBF\xBD[31mb\xEF\xBF\xBD\n"));
}

TEST(Console, WipesALongerStatusLineWithBlanks)
{
    FakeConsole console(true);
    console.showStatus("12345");
    console.forget();
    console.showStatus("ab");
    EXPECT_EQ(console.errors(), "\rab   ");
}

TEST(Console, TakesTheStatusLineAwayBeforeALine)
{
    FakeConsole console(true);
    console.showStatus("1234");
    console.forget();
    console.note("remark");
    EXPECT_EQ(console.errors(), "\r    \rremark\n");
}

TEST(Console, WipesNothingWhereNoStatusLineIs)
{
    FakeConsole console(true);
    console.clearStatus();
    EXPECT_EQ(console.errors(), "");
}

TEST(Console, WipesNoFurtherThanATerminalThatHasBecomeNarrow)
{
    FakeConsole console(true, 80);
    console.showStatus(QString(70, 'x'));
    console.setColumns(20);
    console.forget();
    console.showStatus("ab");
    EXPECT_EQ(console.errors(), "\rab" + QByteArray(17, ' '));
}
