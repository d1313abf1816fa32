// SPDX-License-Identifier: MIT
// What samples/backup/media.json says, as it comes out of the sample backup.
#include "LazyTableTest.h"

#include <QImageReader>

namespace {

class SampleMediaTest : public LazyTableTest {
protected:
    void SetUp() override
    {
        take(backup::openBackupFolder(QStringLiteral(DATAEXPORT_BUILD_DIR "/samples/backup")));
    }
};

TEST_F(SampleMediaTest, PhotosStandByDateWithTheirAlbums)
{
    const QStringList photos = lines(21);
    // 14 pictures of the camera roll, 2 from iCloud, an edited version, the film of a Live Photo,
    // and a file that the library does not know.
    ASSERT_EQ(photos.size(), 19);
    EXPECT_EQ(photos.first(), "DSC_4711.JPG |  | 2022-08-01 13:11 | Photo | ");
    EXPECT_EQ(photos.last(), "IMG_0017.JPG |  |  | Photo | ");
    EXPECT_TRUE(photos.contains(
        "IMG_0006.MOV | Norway, Choir <summer> | 2023-07-16 21:20 | Live Photo | "));
    EXPECT_TRUE(
        photos.contains("IMG_0004 (edited).jpg | Norway | 2023-07-15 10:12 | Photo | Edited"));
    EXPECT_TRUE(photos.contains("Rehearsal: day 1.jpeg | Choir <summer> | 2023-09-02 19:15"
                                " | Photo | "));
    EXPECT_TRUE(photos.contains("IMG_0010.PNG |  | 2023-12-25 11:00 | Screenshot | "));
    EXPECT_EQ(photos.filter(QRegularExpression("^x ")),
        QStringList("x IMG_0011.JPG |  | 2024-01-06 17:21 | Photo | "));
}

TEST_F(SampleMediaTest, PhotosAreInTheBackupAndCanBeDrawn)
{
    int drawn = 0;
    for (int row = 0; row < lines(21).size(); ++row) {
        const PRFileItem& photo = file(21, row);
        SCOPED_TRACE(photo.value(0).toStdString());
        QImageReader reader(photo.filePath());
        reader.setDecideFormatFromContent(true);
        drawn += reader.canRead() ? 1 : 0;
    }
    // All but the HEIC, which needs a library, and the film.
    EXPECT_GE(drawn, 17);
}

TEST_F(SampleMediaTest, PreviewTakesThePlaceOfAPhotoInICloud)
{
    EXPECT_TRUE(lines(21).contains("IMG_7392.jpg |  | 2022-08-02 11:30 | Photo | "));
    EXPECT_EQ(notices("previews only"),
        QStringList("Photos and videos of which the backup has small previews only: 1"));
}

TEST_F(SampleMediaTest, VideosAndSharedPhotosAreSetsOfTheirOwn)
{
    EXPECT_EQ(lines(23), QStringList({"IMG_0005.MOV | Norway | 2023-07-15 12:01 | Video | ",
                             "IMG_0014.MOV |  | 2024-03-30 16:05 | Slow motion | "}));
    EXPECT_EQ(lines(22), QStringList({"IMG_0001.JPG | Hoffmanns | 2024-05-12 18:00 | Photo | ",
                             "IMG_0002.JPG | Hoffmanns | 2024-05-12 18:02 | Photo | "}));
}

TEST_F(SampleMediaTest, RecordingsHaveTitlesAndWords)
{
    EXPECT_EQ(lines(31), QStringList({"Alto, bars 1–16.caf | Choir | 2024-03-14 21:45 | 0:00:02",
                             "New recording 2.caf |  | 2024-04-22 09:31 | 0:00:02",
                             "x Ideas / cake.caf |  | 2024-05-02 23:05 | 0:00:02"}));
    EXPECT_EQ(lines(4),
        QStringList({"x +491715550188 2024-05-21 19.40.amr | +491715550188 | 2024-05-21 19:40"
                     " | 0:00:02 | ",
            "Lena Hoffmann 2024-05-07 10.12.amr | +491715550101 | 2024-05-07 10:12 | 0:00:02"
            " | Good morning, it's Lena. Call me back when you can!"}));
    EXPECT_EQ(lines(32), QStringList({"QZRT.m4r | ", "Ship's bell.m4r | 0:00:02"}));
    EXPECT_EQ(notices("Recordings that"), QStringList());
}

TEST_F(SampleMediaTest, FilesOfAppsStandByTheirKind)
{
    EXPECT_EQ(lines(24), QStringList({"cake.png | org.example.recipes | Documents/Photos",
                             "Neuharlingersiel.png | org.example.tides | Documents"}));
    EXPECT_EQ(lines(25), QStringList("ferry.mov | org.example.tides | Documents/Films"));
    EXPECT_EQ(lines(26), QStringList("timer.caf | org.example.recipes | Documents"));
    EXPECT_EQ(lines(35), QStringList({"ticket.pdf | org.example.tides | Documents",
                             "sofia.vcf | group.com.apple.FileProvider.LocalStorage"
                             " | File Provider Storage/Contacts"}));
}

} // namespace
