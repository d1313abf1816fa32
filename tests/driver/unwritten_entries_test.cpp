// SPDX-License-Identifier: MIT
// Categories that have no writer yet.
#include "driver/driver_fixture.h"
#include "driver/exporter_access.h"
#include "support/recording_progress.h"

namespace {

using UnwrittenEntries = DriverTest;

TEST_F(UnwrittenEntries, FailWithoutATrace)
{
    struct {
        const char* what;
        access_to::Entry entry;
    } const rows[] = {
        {"files", access_to::exportFile()},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        PRContactData data(plainRecords(2));
        CBackupExporter exporter;
        support::RecordingProgress progress;
        EXPECT_FALSE(row.entry(&data, root(), "Anna", "Cat", &progress, &exporter, true));
        EXPECT_EQ(progress.calls(), QStringList());
        EXPECT_EQ(tree(), QStringList());
    }
}

TEST_F(UnwrittenEntries, ServeAllFiles)
{
    const QVector<int> written{0, 2, 3, 5, 7, 9, 11, 13, 14, 16, 17, 19, 27, 29, 30, 33, 34};
    for (int type = 0; type < 36; ++type) {
        if (written.contains(type)) {
            continue;
        }
        SCOPED_TRACE(type);
        PRBackup backup;
        backup.add(plainSet(type, 1));
        EXPECT_TRUE(
            CBackupExporter().exportBackup(&backup, root(), nullptr, {type}, false, "Anna"));
        EXPECT_EQ(tree(), QStringList());
    }
}

} // namespace
