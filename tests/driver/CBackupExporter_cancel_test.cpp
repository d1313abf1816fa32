// SPDX-License-Identifier: MIT
// What a cancel at each single step leaves of the calls and of the files. In the rows a star marks
// the step that is the first to answer false.
#include "driver/CBackupExporter.h"
#include "driver/driver_fixture.h"
#include "support/recording_progress.h"

#include <vector>

namespace {

using support::RecordingProgress;

struct CancelRow {
    const char* calls = nullptr;
    int pageConversations = 0; // -1: no file
    int csvRows = 0;           // likewise
};

class Cancel : public DriverTest {
protected:
    // Cancels at the first step, at the second, ... until the run is complete.
    void expectRows(PRBackup& backup, const QVector<int>& types, const std::vector<CancelRow>& rows)
    {
        int cancelAt = 0;
        for (const CancelRow& row : rows) {
            SCOPED_TRACE(++cancelAt);
            QDir(root().filePath("Messages")).removeRecursively();
            RecordingProgress progress(cancelAt);
            EXPECT_TRUE(
                CBackupExporter().exportBackup(&backup, root(), &progress, types, false, "Anna"));
            EXPECT_EQ(progress.calls().join(", ").toStdString(),
                QString(row.calls).remove('*').toStdString());
            EXPECT_EQ(pageConversations(), row.pageConversations);
            EXPECT_EQ(csvRows(), row.csvRows);
        }
        EXPECT_EQ(QString(rows.back().calls).count("step"), cancelAt - 1)
            << "the last row is the complete run";
    }
};

TEST_F(Cancel, WithoutAttachmentsEndsTheLoopAndFinishes)
{
    PRBackup backup;
    backup.add(smsSet(2));
    backup.add(plainSet(3, 1));
    // The conversations of the page, its end, the rows of the CSV, its end, the category's end;
    // type 3. A category's end passes on what is left of its weight, cancelled or not.
    expectRows(backup, {0, 3},
        {
            {"initRange 300, step 50*, step 50, step 0, step 100, finish", 0, -1},
            {"initRange 300, step 50, step 50*, step 0, step 0, step 100, finish", 1, -1},
            {"initRange 300, step 50, step 50, step 0*, step 0, step 100, finish", 2, -1},
            {"initRange 300, step 50, step 50, step 0, step 50*, step 50, step 0, finish", 2, 0},
            {"initRange 300, step 50, step 50, step 0, step 50, step 50*, step 0, step 0, finish",
                2, 1},
            {"initRange 300, step 50, step 50, step 0, step 50, step 50, step 0*, step 0, finish",
                2, 2},
            {"initRange 300, step 50, step 50, step 0, step 50, step 50, step 0, step 0*, finish",
                2, 2},
            {"initRange 300, step 50, step 50, step 0, step 50, step 50, step 0, step 0, "
             "step 100*, step 0, finish",
                2, 2},
            {"initRange 300, step 50, step 50, step 0, step 50, step 50, step 0, step 0, "
             "step 100, step 0*, finish",
                2, 2},
            {"initRange 300, step 50, step 50, step 0, step 50, step 50, step 0, step 0, "
             "step 100, step 0, finish",
                2, 2},
        });
}

TEST_F(Cancel, WithAttachmentsIsSeenAgainAtTheirHeadAndLeavesOutTheFinish)
{
    PRBackup backup;
    backup.add(smsSet(1));
    backup.add(plainSet(15, 2));
    expectRows(backup, {0, 15},
        {
            {"initRange 300, step 50*, step 0, step 0, step 50, step 0", 0, -1},
            {"initRange 300, step 50, step 0*, step 0, step 50, step 0", 1, -1},
            {"initRange 300, step 50, step 0, step 50*, step 0, step 0, step 0", 1, 0},
            {"initRange 300, step 50, step 0, step 50, step 0*, step 0, step 0", 1, 1},
            {"initRange 300, step 50, step 0, step 50, step 0, step 0*, step 0", 1, 1},
            {"initRange 300, step 50, step 0, step 50, step 0, step 0, "
             "step 0*, step 200, step 0",
                1, 1},
            {"initRange 300, step 50, step 0, step 50, step 0, step 0, "
             "step 0, step 0*, step 200, step 0",
                1, 1},
            {"initRange 300, step 50, step 0, step 50, step 0, step 0, "
             "step 0, step 0, step 200*, step 0",
                1, 1},
            {"initRange 300, step 50, step 0, step 50, step 0, step 0, "
             "step 0, step 0, step 200, step 0*",
                1, 1},
            // From here on the run goes to its end.
            {"initRange 300, step 50, step 0, step 50, step 0, step 0, "
             "step 0, step 0, step 200, "
             "step 0, initRange 200, setAttachStage true, step 0*, "
             "step 0, finish",
                1, 1},
            {"initRange 300, step 50, step 0, step 50, step 0, step 0, "
             "step 0, step 0, step 200, "
             "step 0, initRange 200, setAttachStage true, step 0, "
             "step 0*, finish",
                1, 1},
            {"initRange 300, step 50, step 0, step 50, step 0, step 0, "
             "step 0, step 0, step 200, "
             "step 0, initRange 200, setAttachStage true, step 0, "
             "step 0, finish",
                1, 1},
        });
}

TEST_F(Cancel, OfAllTypesEndsBehindTheCategoryInHand)
{
    PRBackup backup;
    for (int type = 0; type < 36; ++type) {
        backup.add(plainSet(type, type + 1));
    }
    QStringList steps;
    for (const int type : kTableOrder) {
        SCOPED_TRACE(type);
        steps += stepsOf(type, type + 1);
        RecordingProgress progress(steps.size()); // at the end of this category
        EXPECT_TRUE(CBackupExporter().exportBackup(&backup, root(), &progress, false, "Anna"));
        const QStringList headOfAttachments{"step 0"};
        EXPECT_EQ(roundedSteps(progress.calls()),
            roundedSteps(QStringList{"initRange 66600"} + steps + headOfAttachments));
    }
}

} // namespace
