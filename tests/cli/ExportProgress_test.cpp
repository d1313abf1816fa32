// SPDX-License-Identifier: MIT
#include "cli/ExportProgress.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace {

// Writes down what it is told; of the positions the last one alone.
class RecordingView final : public ProgressView {
public:
    void stageBegan(const QString& stage) override { events.append("begin " + stage); }
    void moved(const ProgressState& state) override { last = state; }
    void stageEnded(const QString& stage) override { events.append("end " + stage); }

    QStringList events;
    ProgressState last;
};

// Two categories of one and three records; time and cancel are the test's.
class ExportProgressTest : public testing::Test {
protected:
    RecordingView view;
    qint64 nowMs = 5000;
    bool cancel = false;
    int cancelCalls = 0;
    ExportProgress progress{
        {{.name = "Contacts", .records = 1}, {.name = "Messages", .records = 3}}, &view,
        {.isCancelled = [this] { return cancel; },
            .onCancel = [this] { ++cancelCalls; },
            .clock = [this] { return nowMs; }}};

    void SetUp() override { progress.initRange(400); }
};

} // namespace

TEST_F(ExportProgressTest, FindsTheCategoryByThePosition)
{
    progress.step(50.0);
    EXPECT_EQ(view.last.stage, "Contacts");
    progress.step(50.0);
    EXPECT_EQ(view.last.stage, "Messages");
    progress.finish();
    const QStringList expected{"begin Contacts", "end Contacts", "begin Messages", "end Messages"};
    EXPECT_EQ(view.events, expected);
}

TEST_F(ExportProgressTest, CountsTheShareOfTheCategoryAndOfAll)
{
    progress.step(250.0);
    EXPECT_DOUBLE_EQ(view.last.stageShare, 0.5);
    EXPECT_DOUBLE_EQ(view.last.share, 0.625);
    EXPECT_DOUBLE_EQ(view.last.records, 2.5);
}

TEST_F(ExportProgressTest, MeasuresTimeFromTheStartOfTheScale)
{
    nowMs += 1500;
    progress.step(1.0);
    EXPECT_EQ(view.last.elapsedMs, 1500);
}

TEST_F(ExportProgressTest, EndsACategoryWhoseStepsAddUpToAlmostAll)
{
    for (int i = 0; i < 3; ++i) {
        progress.step(100.0 / 3.0 - 1e-9);
    }
    EXPECT_EQ(view.events.last(), "begin Messages");
}

TEST_F(ExportProgressTest, PassesSeveralCategoriesInOneStep)
{
    progress.step(400.0);
    EXPECT_EQ(view.events.size(), 4);
}

TEST_F(ExportProgressTest, NeverMovesPastTheEnd)
{
    progress.step(399.0);
    progress.step(100.0);
    progress.step(100.0);
    EXPECT_EQ(view.events.size(), 4);
    EXPECT_LE(view.last.share, 1.0);
}

TEST_F(ExportProgressTest, SaysFalseFromACancelOn)
{
    EXPECT_TRUE(progress.step(0.0));
    cancel = true;
    EXPECT_FALSE(progress.step(0.0));
    cancel = false;
    EXPECT_FALSE(progress.step(0.0));
    EXPECT_FALSE(progress.finish());
    EXPECT_TRUE(progress.wasCancelled());
    EXPECT_EQ(cancelCalls, 1);
}

TEST_F(ExportProgressTest, StaysWhereTheCancelWasSeen)
{
    progress.step(50.0);
    cancel = true;
    progress.step(50.0);
    progress.finish();
    EXPECT_EQ(view.events, QStringList{"begin Contacts"});
    EXPECT_DOUBLE_EQ(view.last.share, 0.125);
}

TEST_F(ExportProgressTest, NoCancelIsNoCancel)
{
    progress.finish();
    EXPECT_FALSE(progress.wasCancelled());
    EXPECT_EQ(cancelCalls, 0);
}

TEST_F(ExportProgressTest, CallsTheSecondScaleAttachments)
{
    progress.step(400.0);
    nowMs += 9000;
    progress.initRange(1000);
    progress.setAttachStage(true);
    EXPECT_EQ(progress.range(), 1000);
    nowMs += 100;
    progress.step(250.0);
    EXPECT_EQ(view.last.stage, "Attachments");
    EXPECT_DOUBLE_EQ(view.last.share, 0.25);
    EXPECT_DOUBLE_EQ(view.last.stageShare, 0.25);
    EXPECT_EQ(view.last.elapsedMs, 100);
    progress.finish();
    EXPECT_EQ(view.events.mid(4), (QStringList{"begin Attachments", "end Attachments"}));
}

TEST(ExportProgressWithoutView, StillTellsOfACancel)
{
    bool cancel = false;
    ExportProgress progress({{.name = "Messages", .records = 1}}, nullptr,
        {.isCancelled = [&cancel] { return cancel; }, .clock = [] { return 0; }});
    progress.initRange(100);
    EXPECT_TRUE(progress.step(50.0));
    cancel = true;
    EXPECT_FALSE(progress.step(50.0));
}
