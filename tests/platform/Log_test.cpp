// SPDX-License-Identifier: MIT
#include "platform/Log.h"
#include "support/log_messages.h"

#include <gtest/gtest.h>

using support::LogMessages;

TEST(Log, GivesEachTagItsCategory)
{
    const LogMessages messages;
    Log("CBackupExporter", 1, "a");
    Log("HEIC", 1, "b");
    Log("FileExport", 2, "c");
    EXPECT_EQ(messages.lines(), QStringList({"dataexport.CBackupExporter|info|a",
                                    "dataexport.HEIC|info|b", "dataexport.FileExport|warning|c"}));
}

TEST(Log, FillsTextsAndNumbersInThePrintfWay)
{
    const LogMessages messages;
    Log("CBackupExporter", 1, "onDownloadChatAttach %s HttpCode %d", "http://h/ä \"x\" %s", 404);
    EXPECT_EQ(messages.lines(),
        QStringList({QString::fromUtf8("dataexport.CBackupExporter|info|onDownloadChatAttach "
                                       "http://h/ä \"x\" %s HttpCode 404")}));
}

TEST(Log, KeepsLineFeedsAndBlanksOfItsFormat)
{
    const LogMessages messages;
    Log("FileExport", 2, "exportData failed \n src %s \n des %s ", "a", "b");
    EXPECT_EQ(messages.lines(),
        QStringList({"dataexport.FileExport|warning|exportData failed \n src a \n des b "}));
}
