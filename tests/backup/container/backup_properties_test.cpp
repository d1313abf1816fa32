// SPDX-License-Identifier: MIT
#include "backup/container/Notices.h"
#include "backup/container/backup_properties.h"
#include "support/backup_builder.h"
#include "support/temp_tree.h"

#include <gtest/gtest.h>

namespace backup {

namespace {

QString text(const QString& key, const QString& value)
{
    return QString("<key>%1</key><string>%2</string>").arg(key, value);
}

QString lockdown(const QString& body)
{
    return "<key>Lockdown</key><dict>" + body + "</dict>";
}

// A folder whose property lists have these bodies; a null body is no file.
struct Folder {
    Folder(const QString& info, const QString& manifest, const QString& status = QString())
    {
        const QPair<QString, QString> lists[] = {
            {"Info.plist", info}, {"Manifest.plist", manifest}, {"Status.plist", status}};
        for (const auto& [name, body] : lists) {
            if (!body.isNull()) {
                tree.write(name, propertyList(body));
            }
        }
    }
    BackupProperties read() { return readBackupProperties(tree.path(), notices); }

    support::TempTree tree;
    Notices notices;
};

TEST(BackupProperties, TakesTheNameFromTheFirstPlaceThatHasOne)
{
    const QString deviceName = text("Device Name", "Anna");
    const QString displayName = text("Display Name", "Berta");
    const QString lockdownName = lockdown(text("DeviceName", "Carla"));
    EXPECT_EQ(Folder(deviceName + displayName, lockdownName).read().device.name, "Anna");
    EXPECT_EQ(Folder(displayName, lockdownName).read().device.name, "Berta");
    EXPECT_EQ(
        Folder(text("Device Name", "") + displayName, lockdownName).read().device.name, "Berta");
    EXPECT_EQ(Folder("", lockdownName).read().device.name, "Carla");
    EXPECT_EQ(Folder(QString(), lockdownName).read().device.name, "Carla");
    EXPECT_EQ(Folder("", "").read().device.name, "");
}

TEST(BackupProperties, TakesTheVersionFromTheManifestFirst)
{
    const QString info = text("Product Version", "17.5") + text("Product Type", "iPhone1,1");
    const QString manifest =
        lockdown(text("ProductVersion", "17.5.1") + text("ProductType", "iPhone14,5"));
    const DeviceInfo both = Folder(info, manifest).read().device;
    EXPECT_EQ(both.productVersion, "17.5.1");
    EXPECT_EQ(both.productType, "iPhone14,5");
    const DeviceInfo alone = Folder(info, QString()).read().device;
    EXPECT_EQ(alone.productVersion, "17.5");
    EXPECT_EQ(alone.productType, "iPhone1,1");
}

TEST(BackupProperties, GivesTheDateOfTheBackupInUniversalTime)
{
    Folder folder("<key>Last Backup Date</key><date>2024-05-06T07:08:09Z</date>", "");
    EXPECT_EQ(folder.read().device.lastBackup, "2024-05-06T07:08:09Z");
    EXPECT_EQ(Folder("", "").read().device.lastBackup, "");
}

TEST(BackupProperties, DecidesByTheMarkWhetherTheBackupIsEncrypted)
{
    EXPECT_TRUE(Folder("", "<key>IsEncrypted</key><true/>").read().encrypted);
    EXPECT_FALSE(Folder("", "<key>IsEncrypted</key><false/>").read().encrypted);
    // Unencrypted backups have a key bag at times.
    EXPECT_FALSE(Folder("", "<key>BackupKeyBag</key><data>AAAA</data>").read().encrypted);
    EXPECT_FALSE(Folder("", "").read().encrypted);
}

TEST(BackupProperties, KnowsOfNoEncryptionWithoutManifestPlist)
{
    EXPECT_TRUE(Folder("", "").read().knowsEncryption);
    Folder folder("", QString());
    EXPECT_FALSE(folder.read().knowsEncryption);
    EXPECT_EQ(folder.notices.sentences(),
        QStringList(
            folder.tree.path("Manifest.plist")
            + ": there is no such file; whether the backup is encrypted is told by its contents "
              "alone"));
}

TEST(BackupProperties, NeedsNoOtherPropertyList)
{
    Folder folder(QString(), "", QString());
    folder.read();
    EXPECT_EQ(folder.notices.sentences(), QStringList());
}

TEST(BackupProperties, TellsOfADamagedPropertyListAndReadsTheOthers)
{
    for (const char* name : {"Info.plist", "Manifest.plist", "Status.plist"}) {
        SCOPED_TRACE(name);
        Folder folder(text("Display Name", "Anna"), lockdown(text("DeviceName", "Anna")),
            text("SnapshotState", "finished"));
        folder.tree.write(name, "bplist00 and then nonsense");
        EXPECT_EQ(folder.read().device.name, "Anna");
        ASSERT_EQ(folder.notices.sentences().size(), 1);
        EXPECT_TRUE(folder.notices.sentences().first().contains(folder.tree.path(name)))
            << folder.notices.sentences().first().toStdString();
    }
}

TEST(BackupProperties, TellsOfAPropertyListThatIsNoDictionary)
{
    Folder folder(QString(), "");
    folder.tree.write("Info.plist", "<plist version=\"1.0\"><string>x</string></plist>");
    folder.read();
    EXPECT_EQ(folder.notices.sentences(),
        QStringList(folder.tree.path("Info.plist") + ": this property list is no dictionary"));
}

TEST(BackupProperties, TellsOfABackupThatWasBrokenOff)
{
    Folder folder("", "", text("SnapshotState", "uploading"));
    folder.read();
    EXPECT_EQ(folder.notices.sentences(),
        QStringList(
            folder.tree.path("Status.plist")
            + ": the backup was broken off (its state is \"uploading\"); files may be missing or "
              "of different age"));
}

TEST(BackupProperties, TellsNothingOfAFinishedBackup)
{
    Folder folder("", "", text("SnapshotState", "finished"));
    folder.read();
    EXPECT_EQ(folder.notices.sentences(), QStringList());
}

TEST(BackupProperties, TakesNoValueOfAForeignType)
{
    const QString info =
        "<key>Device Name</key><array/><key>Product Version</key><integer>5</integer>"
        "<key>Last Backup Date</key><array/>";
    const DeviceInfo device = Folder(info, "<key>Lockdown</key><string>x</string>").read().device;
    EXPECT_EQ(device.name, "");
    EXPECT_EQ(device.productVersion, "");
    EXPECT_EQ(device.lastBackup, "");
}

} // namespace

} // namespace backup
