// SPDX-License-Identifier: MIT
#include "LazyTableTest.h"

namespace {

constexpr int kRingtones = 32;

const QByteArray kNames = propertyList(R"(<key>Ringtones</key><dict>
    <key>ABCD.m4r</key><dict><key>Name</key><string>Harbour</string>
        <key>Total Time</key><integer>28400</integer></dict>
    <key>EFGH.m4r</key><string>odd</string>
    <key>GONE.m4r</key><dict><key>Name</key><string>Gone</string></dict>
</dict>)");

class RingtonesTest : public LazyTableTest {};

TEST_F(RingtonesTest, NameAndDurationComeFromTheList)
{
    for (const char* domain : {"TonesDomain", "MediaDomain"}) {
        SCOPED_TRACE(domain);
        BackupBuilder backup(m_directory.filePath(domain));
        backup.add(domain, "Media/iTunes_Control/Ringtones/ABCD.m4r", "tone")
            .add(domain, "Media/iTunes_Control/Ringtones/EFGH.m4r", "other")
            .add(domain, "Media/Purchases/77.m4r", "bought")
            .add(domain, "Media/Purchases/77.jpg", "cover")
            .add(domain, "Media/iTunes_Control/iTunes/Ringtones.plist", kNames)
            .finish();
        take(backup::openBackupFolder(m_directory.filePath(domain)));
        EXPECT_EQ(
            lines(kRingtones), QStringList({"77.m4r | ", "EFGH.m4r | ", "Harbour.m4r | 0:00:28"}));
        EXPECT_EQ(files(kRingtones),
            QStringList({"77.m4r = bought", "EFGH.m4r = other", "Harbour.m4r = tone"}));
    }
}

TEST_F(RingtonesTest, DamagedListLeavesTheTones)
{
    builder()
        .add("TonesDomain", "Media/iTunes_Control/Ringtones/ABCD.m4r", "tone")
        .add("TonesDomain", "Media/iTunes_Control/iTunes/Ringtones.plist", "bplist00");
    openFolder();
    EXPECT_EQ(lines(kRingtones), QStringList("ABCD.m4r | "));
}

TEST_F(RingtonesTest, WithoutTonesThereIsNoSet)
{
    builder().add("TonesDomain", "Media/iTunes_Control/iTunes/Ringtones.plist", kNames);
    openFolder();
    EXPECT_EQ(m_opened->records.getPRData(kRingtones), nullptr);
}

} // namespace
