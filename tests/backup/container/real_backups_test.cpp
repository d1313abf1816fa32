// SPDX-License-Identifier: MIT
// Backups of real devices, which are not part of the repository.
#include "backup/container/BackupFolder.h"
#include "backup/container/Notices.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace backup {

namespace {

struct RealBackup {
    QString folder;
    QString name;
    QString productType;
    QString version;
    QString lastBackup;
    bool mostlyAbsent = false;
};

const RealBackup kBackups[] = {
    {"ios-13.3", "Generic iOS 13.3", "iPhone8,2", "13.3", "2020-08-12T06:36:20Z"},
    {"ios-14.0-beta", "iPhone", "iPhone8,2", "14.0", "2020-08-12T07:56:38Z"},
    {"ios-14.3-manifest-mostly-absent", "iPhone", "iPhone9,3", "14.3", "2021-12-03T19:33:13Z",
        true},
};

QString realData()
{
    const QString set = qEnvironmentVariable("DATAEXPORT_TEST_DATA");
    return set.isEmpty() ? QString(DATAEXPORT_SOURCE_DIR "/../shared/data") : set;
}

QString pathOf(const RealBackup& backup)
{
    return realData() + "/backups/" + backup.folder;
}

class RealBackups : public testing::Test {
protected:
    void SetUp() override
    {
        if (!QFileInfo::exists(pathOf(kBackups[0]))) {
            GTEST_SKIP() << "no backups of real devices at " << realData().toStdString();
        }
    }
};

std::unique_ptr<BackupFolder> open(const RealBackup& backup, Notices& notices)
{
    auto folder = BackupFolder::open(pathOf(backup), notices);
    EXPECT_TRUE(folder) << folder.error().text().toStdString();
    return folder ? std::move(*folder) : nullptr;
}

TEST_F(RealBackups, TellTheirDevice)
{
    for (const RealBackup& backup : kBackups) {
        SCOPED_TRACE(backup.folder.toStdString());
        Notices notices;
        const auto folder = open(backup, notices);
        ASSERT_TRUE(folder);
        EXPECT_EQ(folder->device().name, backup.name);
        EXPECT_EQ(folder->device().productType, backup.productType);
        EXPECT_EQ(folder->device().productVersion, backup.version);
        EXPECT_EQ(folder->device().lastBackup, backup.lastBackup);
    }
}

void expectTable(const BackupFolder& folder, const QString& path, const QString& table)
{
    SCOPED_TRACE(path.toStdString());
    const auto opened = folder.openDatabase("HomeDomain", path);
    ASSERT_TRUE(opened && *opened);
    EXPECT_TRUE((*opened)->database.hasTable(table));
}

TEST_F(RealBackups, OpenTheirDatabases)
{
    for (const RealBackup& backup : kBackups) {
        SCOPED_TRACE(backup.folder.toStdString());
        Notices notices;
        const auto folder = open(backup, notices);
        ASSERT_TRUE(folder);
        expectTable(*folder, "Library/SMS/sms.db", "message");
        if (!backup.mostlyAbsent) {
            expectTable(*folder, "Library/AddressBook/AddressBook.sqlitedb", "ABPerson");
        }
    }
}

TEST_F(RealBackups, TellOfADatabaseThatIsMissing)
{
    Notices notices;
    const auto folder = open(kBackups[2], notices);
    ASSERT_TRUE(folder);
    const auto opened =
        folder->openDatabase("HomeDomain", "Library/AddressBook/AddressBook.sqlitedb");
    ASSERT_TRUE(opened);
    ASSERT_FALSE(*opened);
    EXPECT_EQ(opened->error().text(),
        "HomeDomain/Library/AddressBook/AddressBook.sqlitedb: its file "
        "31/31bb7ba8914766d4ba40d6dfb6113c8b614be442 is missing in the backup folder");
}

} // namespace

} // namespace backup
