// SPDX-License-Identifier: MIT
#include "backup/container/manifest_path.h"
#include "support/temp_tree.h"

#include <gtest/gtest.h>

namespace backup {

namespace {

TEST(FileId, IsFortyLowercaseHexadecimalDigits)
{
    struct Row {
        const char* what;
        QString text;
        bool expected;
    };
    const Row rows[] = {
        {"a real one", "3d0d7e5fb2ce288813306e4d4636395e047a3d28", true},
        {"upper case", "3D0D7E5FB2CE288813306E4D4636395E047A3D28", false},
        {"too short", "3d0d7e5fb2ce288813306e4d4636395e047a3d2", false},
        {"too long", "3d0d7e5fb2ce288813306e4d4636395e047a3d280", false},
        {"empty", "", false},
        {"a path of the right length", "../../../../../../../../../../etc/passwd", false},
        {"a letter that is no digit", "3d0d7e5fb2ce288813306e4d4636395e047a3d2g", false},
        {"a line break at the end", "3d0d7e5fb2ce288813306e4d4636395e047a3d28\n", false},
        {"digits of another script", QString(40, QChar(0x0663)), false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(isFileId(row.text), row.expected);
    }
}

TEST(SafeRelativePath, StaysBelowAFolderOnAnySystem)
{
    struct Row {
        const char* what;
        QString path;
        bool expected;
    };
    const Row rows[] = {
        {"a usual path", "Library/SMS/sms.db", true},
        {"points within a name", "Documents/a..b/...c", true},
        {"hidden file", ".config", true},
        {"a colon later on", "Documents/at 10:30", true},
        {"empty", "", false},
        {"absolute", "/etc/passwd", false},
        {"a step up at the start", "../x", false},
        {"a step up inside", "Message/../x", false},
        {"a step up at the end", "Message/..", false},
        {"nothing but a step up", "..", false},
        {"a drive", "C:/x", false},
        {"a drive without a slash", "c:x", false},
        {"a step up by backslashes", R"(Message\..\x)", false},
        {"a share", R"(\\server\share)", false},
        {"NUL", QString("a") + QChar(0) + "b", false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(isSafeRelativePath(row.path), row.expected);
    }
}

TEST(UnicodeForms, AreOneWhereNothingDiffers)
{
    EXPECT_EQ(unicodeForms("plain"), QStringList("plain"));
}

TEST(UnicodeForms, BeginWithTheGivenOne)
{
    const QString composed = QString::fromUtf8("\xC3\xA9");    // é
    const QString decomposed = QString::fromUtf8("e\xCC\x81"); // e, acute
    EXPECT_EQ(unicodeForms(composed), QStringList({composed, decomposed}));
    EXPECT_EQ(unicodeForms(decomposed), QStringList({decomposed, composed}));
}

TEST(PlainFile, IsNeitherALinkNorAFolder)
{
    const support::TempTree tree;
    tree.write("file", "x");
    tree.makeDir("folder");
    tree.link("link", tree.path("file"));
    EXPECT_TRUE(isPlainFile(tree.path("file")));
    EXPECT_FALSE(isPlainFile(tree.path("link")));
    EXPECT_FALSE(isPlainFile(tree.path("folder")));
    EXPECT_FALSE(isPlainFile(tree.path("none")));
}

} // namespace

} // namespace backup
