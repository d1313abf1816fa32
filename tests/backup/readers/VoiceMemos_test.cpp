// SPDX-License-Identifier: MIT
#include "LazyTableTest.h"

namespace {

constexpr int kMemos = 31;
const QString kPlace = "Media/Recordings/";

const QStringList kTables{
    R"(CREATE TABLE ZCLOUDRECORDING (Z_PK INTEGER PRIMARY KEY, ZDATE TIMESTAMP, ZDURATION FLOAT,
            ZCUSTOMLABEL VARCHAR, ZCUSTOMLABELFORSORTING VARCHAR, ZENCRYPTEDTITLE VARCHAR,
            ZPATH VARCHAR, ZFOLDER INTEGER, ZEVICTIONDATE TIMESTAMP))",
    "CREATE TABLE ZFOLDER (Z_PK INTEGER PRIMARY KEY, ZENCRYPTEDNAME VARCHAR)",
    "INSERT INTO ZFOLDER VALUES (4, 'Choir'), (5, '..')"};

const QStringList kOldTables{
    R"(CREATE TABLE ZRECORDING (Z_PK INTEGER PRIMARY KEY, ZDATE TIMESTAMP, ZDURATION FLOAT,
            ZCUSTOMLABEL VARCHAR, ZPATH VARCHAR))"};

/// `values`: title, label for sorting, label, path, folder, eviction date
QString memo(int id, const QString& values)
{
    return QString("INSERT INTO ZCLOUDRECORDING (Z_PK, ZDATE, ZDURATION, ZENCRYPTEDTITLE,"
                   " ZCUSTOMLABELFORSORTING, ZCUSTOMLABEL, ZPATH, ZFOLDER, ZEVICTIONDATE)"
                   " VALUES (%1, 700000000 + %1 * 60, 61.6, %2)")
        .arg(id)
        .arg(values);
}

class VoiceMemosTest : public LazyTableTest {
protected:
    void add(const QString& name)
    {
        builder().add("MediaDomain", kPlace + name, name.section('/', -1).toUtf8());
    }

    void open(const QStringList& statements)
    {
        builder().addDatabase("MediaDomain", kPlace + "CloudRecordings.db", kTables + statements);
        openFolder();
    }
};

TEST_F(VoiceMemosTest, MemoHasNameFolderDateAndDuration)
{
    add("20230308 222640-AB.m4a");
    open({memo(0, "'Alto', NULL, NULL, '20230308 222640-AB.m4a', 4, NULL")});
    EXPECT_EQ(lines(kMemos), QStringList("Alto.m4a | Choir | 2023-03-08 22:26 | 0:01:02"));
    EXPECT_EQ(files(kMemos), QStringList("Alto.m4a < Choir = 20230308 222640-AB.m4a"));
    EXPECT_EQ(file(kMemos, 0).getDetailInfoDateTime(), "2023-03-08T20:26:40Z");
}

TEST_F(VoiceMemosTest, TitleIsTheFirstThatIsThere)
{
    for (const char* name : {"1.m4a", "2.m4a", "3.m4a", "4.qta", "5.m4a"}) {
        add(name);
    }
    open({memo(1, "'A', 'B', 'C', '/var/mobile/Media/Recordings/1.m4a', NULL, NULL"),
        memo(2, "NULL, 'B', 'C', '2.m4a', NULL, NULL"),
        memo(3, "NULL, NULL, 'C', 'file:///x/3.m4a', 99, NULL"),
        memo(4, "NULL, NULL, NULL, '4.qta', 5, NULL"),
        memo(5, "'Mr. X', NULL, NULL, '5.m4a', NULL, NULL")});
    EXPECT_EQ(files(kMemos), QStringList({"A.m4a = 1.m4a", "B.m4a = 2.m4a", "C.m4a = 3.m4a",
                                 "4.qta < _ = 4.qta", "Mr. X.m4a = 5.m4a"}));
}

TEST_F(VoiceMemosTest, EvictedOnesAreDeletedAndPlaceHoldersLeftOut)
{
    add("1.m4a");
    open({memo(1, "'A', NULL, NULL, '1.m4a', NULL, 700000000"),
        memo(2, "'B', NULL, NULL, NULL, NULL, NULL"), memo(3, "'C', NULL, NULL, '', NULL, NULL")});
    EXPECT_EQ(lines(kMemos), QStringList("x A.m4a |  | 2023-03-08 22:27 | 0:01:02"));
}

TEST_F(VoiceMemosTest, GroupContainerIsAPlaceToo)
{
    const QString group = "AppDomainGroup-group.com.apple.VoiceMemos.shared";
    builder()
        .addDatabase(group, "Recordings/CloudRecordings.db",
            kTables + QStringList{memo(1, "'A', NULL, NULL, '1.m4a', NULL, NULL")})
        .add(group, "Recordings/1.m4a", "new");
    openFolder();
    EXPECT_EQ(files(kMemos), QStringList("A.m4a = new"));
    EXPECT_EQ(m_opened->records.getPRData(26), nullptr) << "they are no files of an app";
}

TEST_F(VoiceMemosTest, RecordingThatTwoStoresKnowIsListedOnce)
{
    add("1.m4a");
    add("2.m4a");
    builder().addDatabase("MediaDomain", kPlace + "Recordings.db",
        kOldTables + QStringList{R"(INSERT INTO ZRECORDING VALUES
                    (1, 600000000, 5, 'Old name', '/var/mobile/Media/Recordings/1.m4a'),
                    (2, 600000000, 7, 'Old', '/var/mobile/Media/Recordings/2.m4a'))"});
    open({memo(1, "'New name', NULL, NULL, '1.m4a', NULL, NULL")});
    EXPECT_EQ(files(kMemos), QStringList({"Old.m4a = 2.m4a", "New name.m4a = 1.m4a"}));
}

TEST_F(VoiceMemosTest, FilesWithoutARowAreListedAndPiecesOfEditsAreNot)
{
    add("1.m4a");
    add("2.m4a");
    add("1.composition/fragments/0.m4a");
    add("1.waveform");
    open({memo(1, "'A', NULL, NULL, '1.m4a', NULL, NULL")});
    EXPECT_EQ(files(kMemos), QStringList({"2.m4a = 2.m4a", "A.m4a = 1.m4a"}));
}

TEST_F(VoiceMemosTest, WithoutAStoreTheFilesAreThere)
{
    add("1.m4a");
    openFolder();
    EXPECT_EQ(lines(kMemos), QStringList("1.m4a |  |  | "));
}

TEST_F(VoiceMemosTest, MissingOnesAreCountedOnce)
{
    open({memo(1, "'A', NULL, NULL, '1.m4a', NULL, NULL"),
        memo(2, "'B', NULL, NULL, '2.m4a', NULL, NULL")});
    EXPECT_EQ(files(kMemos), QStringList({"A.m4a = -", "B.m4a = -"}));
    EXPECT_EQ(
        notices("not in the backup"), QStringList("Recordings that are not in the backup: 2"));
}

TEST_F(VoiceMemosTest, LooseStoreFindsTheFilesBesideIt)
{
    writeFile(m_directory.filePath("1.m4a"), "sound");
    openFile(kTables + QStringList{memo(1, "'A', NULL, NULL, '1.m4a', NULL, NULL")});
    EXPECT_EQ(files(kMemos), QStringList("A.m4a = sound"));
    EXPECT_EQ(notices("not in the backup"), QStringList());
}

TEST_F(VoiceMemosTest, OddValuesCostNoMemo)
{
    openFile(kTables + QStringList{R"(INSERT INTO ZCLOUDRECORDING (ZDATE, ZDURATION, ZPATH) VALUES
            ('soon', 'long', '..'), (9e999, -4, 7), (NULL, 1e300, x'ff'))"});
    EXPECT_EQ(column(kMemos, 3), QStringList({"", "", ""}));
}

} // namespace
