// SPDX-License-Identifier: MIT
#include "backup/container/BackupFolder.h"
#include "backup/container/Notices.h"
#include "support/backup_builder.h"
#include "support/file_limits.h"
#include "support/temp_tree.h"

#include <gtest/gtest.h>

namespace backup {

namespace {

QString errorOf(const QString& path)
{
    Notices notices;
    const auto folder = BackupFolder::open(path, notices);
    return folder ? QString("no error") : folder.error().text();
}

TEST(OpenBackupFolder, TellsWhatTheBackupSaysOfTheDevice)
{
    const support::TempTree tree;
    BackupBuilder(tree.path()).device("Anna's <iPhone>", "17.5.1").finish();
    Notices notices;
    const auto folder = BackupFolder::open(tree.path(), notices);
    ASSERT_TRUE(folder) << folder.error().text().toStdString();
    const DeviceInfo& device = (*folder)->device();
    EXPECT_EQ(device.name, "Anna's <iPhone>");
    EXPECT_EQ(device.productVersion, "17.5.1");
    EXPECT_EQ(device.productType, "iPhone14,5");
    EXPECT_EQ(device.lastBackup, "2024-05-06T07:08:09Z");
    EXPECT_EQ(notices.sentences(), QStringList());
}

TEST(OpenBackupFolder, NeedsTheManifestAlone)
{
    const support::TempTree tree;
    BackupBuilder(tree.path()).finish();
    for (const char* name : {"Info.plist", "Manifest.plist", "Status.plist"}) {
        QFile::remove(tree.path(name));
    }
    EXPECT_EQ(errorOf(tree.path()), "no error");
}

TEST(OpenBackupFolder, RefusesWhatIsNoFolder)
{
    const support::TempTree tree;
    const QString file = tree.write("Manifest.db", "x");
    EXPECT_EQ(errorOf(tree.path("none")), tree.path("none") + ": there is no such folder");
    EXPECT_EQ(
        errorOf(file), file + ": this is a file; a backup is the folder that holds Manifest.db");
}

TEST(OpenBackupFolder, RefusesAFolderThatMayNotBeRead)
{
    const support::TempTree tree;
    const QString closed = tree.makeDir("closed");
    QFile::setPermissions(tree.path(), static_cast<QFile::Permissions>(0x7755));
    QFile::setPermissions(closed, QFileDevice::Permissions());
    QString error;
    {
        const support::AsAnybody rights;
        if (!rights.holds()) {
            GTEST_SKIP() << "this user may read everything";
        }
        error = errorOf(closed);
    }
    QFile::setPermissions(
        closed, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    EXPECT_EQ(error, closed + ": this folder cannot be read");
}

TEST(OpenBackupFolder, RefusesAFolderThatIsNoBackup)
{
    const support::TempTree tree;
    tree.write("holiday.jpg", "x");
    tree.makeDir("folder");
    EXPECT_EQ(
        errorOf(tree.path()), tree.path() + ": this is no backup folder, it has no Manifest.db");
}

TEST(OpenBackupFolder, KnowsABackupOfAnOldSystem)
{
    const support::TempTree tree;
    tree.write("Manifest.mbdb", QByteArray("mbdb\x05\x00", 6));
    EXPECT_EQ(errorOf(tree.path()), tree.path() + ": backups of iOS 9 and older cannot be read");
}

TEST(OpenBackupFolder, NamesTheBackupsThatAFolderHolds)
{
    const support::TempTree tree;
    BackupBuilder(tree.path("b%2")).finish();
    BackupBuilder(tree.path("a%1")).finish();
    tree.write("old/Manifest.mbdb", "x");
    tree.makeDir("other");
    EXPECT_EQ(errorOf(tree.path()),
        tree.path()
            + ": this is no backup folder, but holds some; choose one of them: a%1, b%2, old");
}

TEST(OpenBackupFolder, NamesTenOfManyBackups)
{
    const support::TempTree tree;
    for (int i = 10; i < 22; ++i) {
        tree.write(QString("%2-%1/Manifest.db").arg(i), "x");
    }
    const QString error = errorOf(tree.path());
    EXPECT_TRUE(error.endsWith("%2-18, %2-19 and 2 more")) << error.toStdString();
}

TEST(OpenBackupFolder, KnowsABackupThatWasNotFinished)
{
    const support::TempTree tree;
    tree.write("Snapshot/Manifest.db", "x");
    EXPECT_EQ(errorOf(tree.path()),
        tree.path()
            + ": the backup was not finished, only its folder Snapshot has a Manifest.db; back up "
              "the device once more");
}

TEST(OpenBackupFolder, PrefersTheFinishedBackupBesideASnapshot)
{
    const support::TempTree tree;
    BackupBuilder(tree.path()).finish();
    tree.write("Snapshot/Manifest.db", "x");
    EXPECT_EQ(errorOf(tree.path()), "no error");
}

TEST(OpenBackupFolder, RefusesAnEncryptedBackup)
{
    const support::TempTree tree;
    BackupBuilder(tree.path()).encrypted().finish();
    EXPECT_EQ(errorOf(tree.path()),
        tree.path("Manifest.plist")
            + ": the backup is encrypted; only backups without a password can be read");
}

TEST(OpenBackupFolder, RefusesAnEncryptedBackupWhoseManifestIsPlain)
{
    const support::TempTree tree;
    BackupBuilder(tree.path()).finish();
    tree.write("Manifest.plist", propertyList("<key>IsEncrypted</key><true/>"));
    EXPECT_EQ(errorOf(tree.path()),
        tree.path("Manifest.plist")
            + ": the backup is encrypted; only backups without a password can be read");
}

TEST(OpenBackupFolder, TellsADamagedManifestFromOneThatMayBeEncrypted)
{
    const support::TempTree tree;
    BackupBuilder(tree.path()).encrypted().finish();
    tree.write("Manifest.plist", propertyList("<key>IsEncrypted</key><false/>"));
    EXPECT_EQ(errorOf(tree.path()),
        tree.path("Manifest.db") + ": the manifest is damaged, it is no SQLite database");
    QFile::remove(tree.path("Manifest.plist"));
    EXPECT_EQ(errorOf(tree.path()),
        tree.path("Manifest.db")
            + ": the manifest is damaged or encrypted, it is no SQLite database");
}

TEST(OpenBackupFolder, NamesTheManifestThatCannotBeRead)
{
    const support::TempTree sound;
    BackupBuilder builder(sound.path());
    for (int i = 0; i < 500; ++i) {
        builder.addMissing("HomeDomain", QString::number(i));
    }
    builder.finish();
    const QByteArray bytes = sound.read("Manifest.db");
    ASSERT_GT(bytes.size(), 8 * 4096);
    QByteArray spoilt = bytes;
    spoilt.replace(100, 3996, QByteArray(3996, '\xFF'));

    struct Row {
        const char* what;
        QByteArray manifest;
        QString expected;
    };
    const QString unreadable = "this is not a database that can be read (%1)";
    const Row rows[] = {
        {"empty", "", "the manifest is empty"},
        {"cut within the magic", bytes.left(10),
            "the manifest is damaged, it is no SQLite database"},
        {"cut within the header", bytes.left(50),
            unreadable.arg("database disk image is malformed")},
        {"cut in the middle", bytes.left(bytes.size() / 2),
            unreadable.arg("database disk image is malformed")},
        {"damaged schema", spoilt, unreadable.arg("database disk image is malformed")},
        {"another database", databaseBytes({"CREATE TABLE t (n)"}).file,
            "this is no manifest of a backup: it has no table Files"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        sound.write("Manifest.db", row.manifest);
        EXPECT_EQ(errorOf(sound.path()), sound.path("Manifest.db") + ": " + row.expected);
    }
}

TEST(OpenBackupFolder, RefusesAManifestThatIsAFolder)
{
    const support::TempTree tree;
    tree.makeDir("Manifest.db");
    EXPECT_EQ(
        errorOf(tree.path()), tree.path("Manifest.db") + ": this is not a file that can be read");
}

TEST(OpenBackupFolder, PassesOnWhatThePropertyListsTell)
{
    const support::TempTree tree;
    BackupBuilder(tree.path()).snapshotState("uploading").finish();
    Notices notices;
    ASSERT_TRUE(BackupFolder::open(tree.path(), notices));
    ASSERT_EQ(notices.sentences().size(), 1);
    EXPECT_TRUE(notices.sentences().first().contains("broken off"));
}

TEST(OpenBackupFolder, LooksAtNoRowYet)
{
    const support::TempTree tree;
    BackupBuilder(tree.path()).addMissing("HomeDomain", "../x").finish();
    Notices notices;
    ASSERT_TRUE(BackupFolder::open(tree.path(), notices));
    EXPECT_EQ(notices.sentences(), QStringList());
}

} // namespace

} // namespace backup
