// SPDX-License-Identifier: MIT
#include "exporters/FileProgress.h"
#include "support/recording_progress.h"

#include <gtest/gtest.h>

namespace {

using support::RecordingProgress;

TEST(FileProgress, PassesStepsOnAsPartsOfItsUnits)
{
    RecordingProgress parent;
    FileProgress progress(&parent, 300);
    progress.setTotal(1000);
    EXPECT_TRUE(progress.step(100));
    EXPECT_TRUE(progress.step(0.0));
    EXPECT_TRUE(progress.step(850));
    EXPECT_EQ(parent.calls(), QStringList({"step 30", "step 0", "step 255"}));
}

TEST(FileProgress, StandsForAHundredUnitsUntilItIsToldItsTotal)
{
    RecordingProgress parent;
    FileProgress progress(&parent, 50);
    progress.step(10);
    EXPECT_EQ(parent.calls(), QStringList("step 5"));
}

TEST(FileProgress, StopsAtItsTotal)
{
    RecordingProgress parent;
    FileProgress progress(&parent, 100);
    progress.setTotal(1000);
    progress.step(900);
    progress.step(100); // what is left, to the byte
    progress.step(16'384);
    progress.step(1);
    EXPECT_EQ(parent.calls(), QStringList({"step 90", "step 10", "step 0", "step 0"}));

    RecordingProgress grownParent;
    FileProgress grown(&grownParent, 100);
    grown.setTotal(1000);
    grown.step(16'384);
    EXPECT_EQ(grownParent.calls(), QStringList("step 100"));
}

TEST(FileProgress, GoesBackToATotalThatItHasPassed)
{
    RecordingProgress parent;
    FileProgress progress(&parent, 100);
    progress.step(90); // of the 100 at the start
    progress.setTotal(60);
    progress.step(10);
    progress.step(10);
    EXPECT_EQ(parent.calls(), QStringList({"step 90", "step -50", "step 0"}));
}

TEST(FileProgress, CountsATotalOf0As1)
{
    RecordingProgress parent;
    FileProgress progress(&parent, 100);
    progress.setTotal(0);
    progress.step(16'384);
    EXPECT_EQ(parent.calls(), QStringList("step 100"));
}

TEST(FileProgress, TakesTotalsAboveFourGigabytes)
{
    RecordingProgress parent;
    FileProgress progress(&parent, 100);
    progress.setTotal(Q_INT64_C(8) << 30);
    progress.step(static_cast<double>(Q_INT64_C(2) << 30));
    EXPECT_EQ(parent.calls(), QStringList("step 25"));
}

TEST(FileProgress, BeginsAnewWithARange)
{
    RecordingProgress parent;
    FileProgress progress(&parent, 100);
    progress.setTotal(1000);
    progress.step(500);
    progress.initRange(200);
    progress.step(50);
    EXPECT_EQ(parent.calls(), QStringList({"step 50", "step 25"}));
}

TEST(FileProgress, TakesARangeOf0As1)
{
    RecordingProgress parent;
    FileProgress progress(&parent, 100);
    progress.initRange(0);
    progress.step(0.5);
    EXPECT_EQ(parent.calls(), QStringList("step 50"));
}

TEST(FileProgress, FinishPassesOnWhatIsLeft)
{
    RecordingProgress parent;
    FileProgress progress(&parent, 100);
    progress.setTotal(1000);
    progress.step(250);
    EXPECT_TRUE(progress.finish());
    EXPECT_TRUE(progress.finish());
    EXPECT_EQ(parent.calls(), QStringList({"step 25", "step 75", "step 0"}));
}

TEST(FileProgress, HasTheRange1WhateverItsTotal)
{
    RecordingProgress parent;
    FileProgress progress(&parent, 100);
    progress.initRange(500);
    EXPECT_EQ(progress.range(), 1);
}

TEST(FileProgress, SwallowsTheStage)
{
    RecordingProgress parent;
    FileProgress progress(&parent, 100);
    progress.setAttachStage(true);
    EXPECT_EQ(parent.calls(), QStringList());
}

TEST(FileProgress, HandsTheCancelOfItsParentDownAndCountsOn)
{
    RecordingProgress parent(2);
    FileProgress progress(&parent, 100);
    progress.setTotal(100);
    EXPECT_TRUE(progress.step(10));
    EXPECT_FALSE(progress.step(10));
    EXPECT_FALSE(progress.finish());
    EXPECT_EQ(parent.calls(), QStringList({"step 10", "step 10", "step 80"}));
}

TEST(FileProgress, NeedsNoParent)
{
    FileProgress progress(nullptr, 100);
    EXPECT_TRUE(progress.step(1e9));
    EXPECT_TRUE(progress.step(0.0));
    EXPECT_TRUE(progress.finish());
}

} // namespace
