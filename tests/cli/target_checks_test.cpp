// SPDX-License-Identifier: MIT
#include "cli/target_checks.h"
#include "support/temp_tree.h"

#include <QDir>

#include <gtest/gtest.h>

#include <array>

namespace {

// A backup folder with a payload, links to and into it, a record set, and targets of all sorts.
class TargetChecks : public testing::Test {
protected:
    support::TempTree tree;
    QString backup = tree.makeDir("backup");
    QString recordSet = tree.write("set.json", "{}");

    void SetUp() override
    {
        tree.write("backup/Manifest.db", "");
        tree.makeDir("empty");
        tree.write("full/.hidden", "");
        tree.link("alias", backup);
        tree.link("nowhere", tree.path("gone"));
    }

    bool isRefused(const QString& target, bool merge)
    {
        return !targetObjection(backup, tree.path(target), merge).isEmpty();
    }
};

struct Row {
    const char* what;
    QString target;
    bool refused;
    bool refusedWithMerge;
};

} // namespace

TEST_F(TargetChecks, TakesNewAndEmptyFolders)
{
    const std::array rows{
        Row{"a new folder", "new", false, false},
        Row{"a new folder in new folders", "a/b/c", false, false},
        Row{"an empty folder", "empty", false, false},
        Row{"a folder with a hidden file", "full", true, false},
        Row{"a file", "set.json", true, true},
        Row{"a link to nothing", "nowhere", true, true},
        Row{"the backup itself", "backup", true, true},
        Row{"a new folder inside the backup", "backup/x/y", true, true},
        Row{"a way round into the backup", "empty/../backup/x", true, true},
        Row{"a link to the backup", "alias", true, true},
        Row{"a new folder behind a link to the backup", "alias/x", true, true},
        Row{"a name that begins like the backup's", "backup2", false, false},
        Row{"the folder that holds the backup", "", true, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(isRefused(row.target, false), row.refused);
        EXPECT_EQ(isRefused(row.target, true), row.refusedWithMerge);
    }
}

TEST_F(TargetChecks, LetsARecordSetLieInTheTarget)
{
    EXPECT_EQ(targetObjection(recordSet, tree.path(), true), "");
}

TEST_F(TargetChecks, TakesNewFilesAloneForADump)
{
    EXPECT_EQ(newFileObjection(backup, tree.path("new.json")), "");
    EXPECT_NE(newFileObjection(backup, tree.path("set.json")), "");
    EXPECT_NE(newFileObjection(backup, tree.path("empty")), "");
    EXPECT_NE(newFileObjection(backup, tree.path("nowhere")), "");
    EXPECT_NE(newFileObjection(backup, tree.path("alias/new.json")), "");
}

TEST_F(TargetChecks, RefusesToWriteAroundItsSource)
{
    const QString inside = tree.write("out/Messages/set.json", "{}");
    EXPECT_NE(categoryObjection(inside, tree.path("out"), {0}), "");
    EXPECT_EQ(categoryObjection(inside, tree.path("out"), {1}), "");
    EXPECT_EQ(categoryObjection(recordSet, tree.path("out"), {0}), "");
}

TEST_F(TargetChecks, SeesThatACategoryIsTheSource)
{
    const QString messages = tree.makeDir("out/Messages");
    EXPECT_NE(categoryObjection(messages, tree.path("out"), {2, 0}), "");
}
