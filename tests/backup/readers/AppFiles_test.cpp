// SPDX-License-Identifier: MIT
#include "LazyTableTest.h"

namespace {

constexpr int kPhotos = 24;
constexpr int kVideos = 25;
constexpr int kSound = 26;
constexpr int kDocuments = 35;
const QString kTides = "AppDomain-org.example.tides";

class AppFilesTest : public LazyTableTest {
protected:
    QStringList all()
    {
        QStringList shown;
        for (const int dataType : {kPhotos, kVideos, kSound, kDocuments}) {
            shown += column(dataType, 0);
        }
        return shown;
    }
};

TEST_F(AppFilesTest, FileHasNameAppAndPlace)
{
    builder().add(kTides, "Documents/2024/May.PDF", "page");
    openFolder();
    EXPECT_EQ(lines(kDocuments), QStringList("May.PDF | org.example.tides | Documents/2024"));
    EXPECT_EQ(files(kDocuments), QStringList("May.PDF < org.example.tides = page"));
}

TEST_F(AppFilesTest, EndingDecidesTheSet)
{
    builder()
        .add(kTides, "Documents/a.jpg", "")
        .add(kTides, "Documents/b.HEIC", "")
        .add(kTides, "Documents/c.mov", "")
        .add(kTides, "Documents/d.m4a", "")
        .add(kTides, "Documents/e.docx", "")
        .add(kTides, "Documents/f.sqlite", "")
        .add(kTides, "Documents/g", "")
        .add(kTides, "Documents/jpg", "");
    openFolder();
    EXPECT_EQ(column(kPhotos, 0), QStringList({"a.jpg", "b.HEIC"}));
    EXPECT_EQ(column(kVideos, 0), QStringList("c.mov"));
    EXPECT_EQ(column(kSound, 0), QStringList("d.m4a"));
    EXPECT_EQ(column(kDocuments, 0), QStringList("e.docx"));
}

TEST_F(AppFilesTest, AllContainersOfAppsAreLookedThrough)
{
    builder()
        .add("AppDomainGroup-group.org.example.recipes", "Books/cake.epub", "")
        .add("AppDomainPlugin-org.example.tides.widget", "Documents/moon.png", "")
        .add("AppDomainGroup-group.com.apple.FileProvider.LocalStorage",
            "File Provider Storage/letter.txt", "")
        .add("HomeDomain", "Library/letter.txt", "")
        .add("CameraRollDomain", "Media/DCIM/100APPLE/IMG_0001.JPG", "");
    openFolder();
    EXPECT_EQ(column(kDocuments, 1),
        QStringList({"group.com.apple.FileProvider.LocalStorage", "group.org.example.recipes"}));
    EXPECT_EQ(column(kPhotos, 1), QStringList("org.example.tides.widget"));
}

TEST_F(AppFilesTest, WhatAnAppKeepsForItselfIsLeftOut)
{
    struct Row {
        QString path;
        bool isListed;
    };
    const std::vector<Row> rows{
        {"Documents/page.html", true},
        {"Documents/Library/Caches/page.html", true},
        {"Library/Application Support/photo.jpg", true},
        {"Library/Application Support/page.html", false},
        {"Library/Caches/photo.jpg", false},
        {"Library/WebKit/sound.mp3", false},
        {"Library/SplashBoard/a.png", false},
        {"tmp/photo.jpg", false},
        {"Documents/.hidden.txt", false},
        {"Documents/.trash/photo.jpg", false},
        {".photo.jpg", false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.path.toStdString());
        QTemporaryDir directory;
        BackupBuilder(directory.path()).add(kTides, row.path, "").finish();
        take(backup::openBackupFolder(directory.path()));
        EXPECT_EQ(all().size(), row.isListed ? 1 : 0);
    }
}

TEST_F(AppFilesTest, FilesOfNotesAreNotThoseOfAnApp)
{
    const QString notes = "AppDomainGroup-group.com.apple.notes";
    builder().add(notes, "Accounts/A/Media/B/photo.jpg", "");
    openFolder();
    EXPECT_EQ(column(kPhotos, 0), QStringList("photo.jpg")) << "no reader has listed it";
    BackupBuilder withStore(m_directory.filePath("with"));
    withStore.add(notes, "Accounts/A/Media/B/photo.jpg", "")
        .addDatabase(notes, "NoteStore.sqlite",
            {"CREATE TABLE ZICCLOUDSYNCINGOBJECT (Z_PK INTEGER PRIMARY KEY, Z_ENT, ZNOTEDATA)",
                "CREATE TABLE ZICNOTEDATA (Z_PK INTEGER PRIMARY KEY, ZDATA, ZNOTE)",
                "CREATE TABLE Z_PRIMARYKEY (Z_ENT INTEGER PRIMARY KEY, Z_NAME)"})
        .finish();
    take(backup::openBackupFolder(m_directory.filePath("with")));
    ASSERT_NE(m_opened->records.getPRData(28), nullptr);
    EXPECT_EQ(column(kPhotos, 0), QStringList());
}

TEST_F(AppFilesTest, WithoutAppsThereAreNoSets)
{
    builder().add("HomeDomain", "Library/letter.txt", "");
    openFolder();
    for (const int dataType : {kPhotos, kVideos, kSound, kDocuments}) {
        EXPECT_EQ(m_opened->records.getPRData(dataType), nullptr);
    }
}

} // namespace
