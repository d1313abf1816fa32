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
        {"calendar", access_to::exportCalendarIcs()},
        {"files", access_to::exportFile()},
        {"chat contacts", access_to::exportWeichatContact()},
        {"chats", access_to::exportWhatsapp()},
        {"chat page", access_to::exportWhatsappHtml()},
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

TEST_F(UnwrittenEntries, ServeAllTypesButMessagesContactsTablesAndBookmarks)
{
    const QVector<int> written{0, 2, 3, 13, 27, 30, 33, 34};
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
