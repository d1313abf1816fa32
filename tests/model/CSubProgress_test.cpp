// SPDX-License-Identifier: MIT
#include "model/CSubProgress.h"
#include "support/recording_progress.h"

#include <QStringList>

#include <gtest/gtest.h>

using support::RecordingProgress;

TEST(CSubProgress, WithoutAParentIsNeverCancelled)
{
    CSubProgress sub(nullptr, 100);
    EXPECT_TRUE(sub.finish());
    sub.initRange(10);
    EXPECT_EQ(sub.range(), 10);
    EXPECT_TRUE(sub.step(5.0));
    EXPECT_TRUE(sub.step(0.0));
    EXPECT_TRUE(sub.step(50.0));
    EXPECT_TRUE(sub.finish());
    sub.setAttachStage(true);
}

TEST(CSubProgress, MapsItsScaleOntoItsShare)
{
    RecordingProgress parent;
    CSubProgress sub(&parent, 300);
    sub.initRange(100);
    EXPECT_TRUE(sub.step(25.0));
    EXPECT_TRUE(sub.step(0.5));
    EXPECT_EQ(parent.calls(), QStringList({"step 75", "step 1.5"}));
}

TEST(CSubProgress, RangeIsTheValueLastPassed)
{
    RecordingProgress parent;
    CSubProgress sub(&parent, 300);
    EXPECT_EQ(sub.range(), 0);
    sub.initRange(100);
    EXPECT_EQ(sub.range(), 100);
    sub.initRange(7);
    EXPECT_EQ(sub.range(), 7);
    EXPECT_TRUE(parent.calls().isEmpty());
}

TEST(CSubProgress, PollsTheParentWithoutMoving)
{
    RecordingProgress parent;
    CSubProgress sub(&parent, 300);
    EXPECT_TRUE(sub.step(0.0)); // before the first stage too
    sub.initRange(100);
    EXPECT_TRUE(sub.step(0.0));
    parent.cancel();
    EXPECT_FALSE(sub.step(0.0));
    EXPECT_EQ(parent.calls(), QStringList({"step 0", "step 0", "step 0"}));
}

TEST(CSubProgress, EachStageStandsForTheWholeShare)
{
    RecordingProgress parent;
    parent.initRange(300);
    CSubProgress sub(&parent, 100);
    sub.initRange(10);
    EXPECT_TRUE(sub.step(10.0));
    EXPECT_TRUE(sub.finish());
    EXPECT_DOUBLE_EQ(parent.position(), 100.0);
    sub.initRange(2);
    EXPECT_TRUE(sub.step(1.0));
    EXPECT_DOUBLE_EQ(parent.position(), 150.0);
    EXPECT_TRUE(sub.finish());
    EXPECT_DOUBLE_EQ(parent.position(), 200.0);
    sub.initRange(50);
    EXPECT_TRUE(sub.finish());
    EXPECT_DOUBLE_EQ(parent.position(), 300.0);
}

TEST(CSubProgress, FinishPassesOnWhatIsLeftOfTheStage)
{
    RecordingProgress parent;
    CSubProgress sub(&parent, 100);
    sub.initRange(10);
    sub.step(3.0);
    EXPECT_TRUE(sub.finish());
    EXPECT_TRUE(sub.finish()); // nothing is left
    EXPECT_EQ(parent.calls(), QStringList({"step 30", "step 70", "step 0"}));
}

TEST(CSubProgress, NeverPassesOnMoreThanTheShare)
{
    RecordingProgress parent;
    CSubProgress sub(&parent, 100);
    sub.initRange(10);
    sub.step(8.0);
    sub.step(8.0);
    sub.step(8.0);
    EXPECT_TRUE(sub.finish());
    EXPECT_EQ(parent.calls(), QStringList({"step 80", "step 20", "step 0", "step 0"}));
}

TEST(CSubProgress, NeverMovesBackwardsForAHairOfRounding)
{
    for (int records = 1; records <= 1'000; ++records) {
        RecordingProgress parent;
        CSubProgress sub(&parent, 33);
        sub.initRange(100);
        for (int record = 0; record < records; ++record) {
            sub.step(100.0 / records);
        }
        sub.step(0.0);
        sub.finish();
        ASSERT_NEAR(parent.position(), 33.0, 1e-9) << records;
        for (const QString& call : parent.calls()) {
            ASSERT_FALSE(call.startsWith("step -")) << records;
        }
    }
}

TEST(CSubProgress, ARangeOfZeroMovesOnlyAtItsEnd)
{
    RecordingProgress parent;
    CSubProgress sub(&parent, 100);
    sub.initRange(0);
    EXPECT_TRUE(sub.step(5.0));
    EXPECT_TRUE(sub.finish());
    EXPECT_EQ(parent.calls(), QStringList({"step 0", "step 100"}));
}

TEST(CSubProgress, AShareOfZeroPollsOnly)
{
    RecordingProgress parent;
    CSubProgress sub(&parent, 0);
    sub.initRange(100);
    EXPECT_TRUE(sub.step(50.0));
    EXPECT_TRUE(sub.finish());
    EXPECT_EQ(parent.callsWithoutPolls(), QStringList());
    EXPECT_EQ(parent.steps(), 2);
}

TEST(CSubProgress, StaysCancelledThroughLaterStages)
{
    RecordingProgress parent(2);
    CSubProgress sub(&parent, 100);
    sub.initRange(10);
    EXPECT_TRUE(sub.step(1.0));
    EXPECT_FALSE(sub.step(1.0));
    EXPECT_FALSE(sub.step(1.0));
    EXPECT_FALSE(sub.finish());
    sub.initRange(10);
    EXPECT_FALSE(sub.step(1.0));
    EXPECT_FALSE(sub.step(0.0));
    EXPECT_FALSE(sub.finish());
}

TEST(CSubProgress, StaysCancelledWhenTheParentForgets)
{
    class Forgetful : public CIProgressCallback {
    public:
        void initRange(int /*range*/) override {}
        int range() override { return 100; }
        bool step(double /*amount*/) override { return ++m_steps != 1; }
        bool finish() override { return true; }
        void setAttachStage(bool /*attachStage*/) override {}

    private:
        int m_steps = 0;
    };
    Forgetful parent;
    CSubProgress sub(&parent, 100);
    sub.initRange(10);
    EXPECT_FALSE(sub.step(1.0));
    EXPECT_FALSE(sub.step(1.0));
    EXPECT_FALSE(sub.finish());
}

TEST(CSubProgress, FinishNoticesACancel)
{
    RecordingProgress parent;
    CSubProgress sub(&parent, 100);
    sub.initRange(10);
    parent.cancel();
    EXPECT_FALSE(sub.finish());
}

TEST(CSubProgress, ACancelGoesThroughAllLevels)
{
    RecordingProgress host;
    host.initRange(1'000);
    CSubProgress category(&host, 300);
    category.initRange(300);
    CSubProgress format(&category, category.range() / 3);
    format.initRange(100);
    EXPECT_TRUE(format.step(50.0));
    EXPECT_DOUBLE_EQ(host.position(), 50.0);
    host.cancel();
    EXPECT_FALSE(format.step(0.0));
    EXPECT_FALSE(format.finish());
    EXPECT_FALSE(category.finish());
    EXPECT_DOUBLE_EQ(host.position(), 300.0);
}

TEST(CSubProgress, TellsTheParentOfTheAttachmentStage)
{
    RecordingProgress parent;
    CSubProgress sub(&parent, 100);
    sub.setAttachStage(true);
    EXPECT_EQ(parent.calls(), QStringList("setAttachStage true"));
}

TEST(CSubProgress, LeavesTheParentsScaleAlone)
{
    RecordingProgress parent;
    {
        CSubProgress sub(&parent, 100);
        sub.initRange(10);
    }
    EXPECT_TRUE(parent.calls().isEmpty()); // neither a new scale nor an end
}
