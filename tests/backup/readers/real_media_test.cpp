// SPDX-License-Identifier: MIT
// Photo libraries and empty phones that were really used. They lie beside the project, or where
// DATAEXPORT_TEST_DATA says; the tests are passed over where they are absent.
#include "LazyTableTest.h"

#include <QDir>
#include <QFileInfo>

namespace {

class RealMedia : public LazyTableTest {
protected:
    bool open(const QString& path)
    {
        const QString directory = qEnvironmentVariable(
            "DATAEXPORT_TEST_DATA", QStringLiteral(DATAEXPORT_SOURCE_DIR "/../shared/data"));
        m_file = QDir(directory).filePath(path);
        if (!QFileInfo::exists(m_file)) {
            return false;
        }
        take(QFileInfo(m_file).isDir() ? backup::openBackupFolder(m_file)
                                       : backup::openDatabaseFile(m_file));
        return true;
    }

    QString m_file;
};

TEST_F(RealMedia, LibraryOfTheKindOfIos13IsRead)
{
    if (!open("databases/photos-macos10.15/Photos.sqlite")) {
        GTEST_SKIP() << "there is no " << m_file.toStdString();
    }
    const QStringList shared = lines(22);
    const QStringList videos = lines(23);
    EXPECT_EQ(lines(21).size() + shared.size() + videos.size(), 29);
    EXPECT_EQ(videos.size() + shared.filter(".MP4").size(), 8);
    EXPECT_EQ(shared.size(), 6);
    EXPECT_EQ(shared.filter("osxphotos").size(), 6);
    EXPECT_EQ(lines(21).filter("Photo Shoot").size(), 1);
    EXPECT_EQ(notices("not in the backup"),
        QStringList("Photos and videos of the library that are not in the backup: 29"));
}

TEST_F(RealMedia, LibraryOfTheKindOfIos16IsRead)
{
    if (!open("databases/photos-macos13/Photos.sqlite")) {
        GTEST_SKIP() << "there is no " << m_file.toStdString();
    }
    const QStringList photos = lines(21);
    EXPECT_EQ(photos.size(), 16);
    EXPECT_EQ(photos.filter(QRegularExpression("^x ")).size(), 2);
    EXPECT_EQ(photos.filter("Hidden").size(), 1);
    EXPECT_EQ(photos.filter("Pumpkin Farm").size(), 3);
    EXPECT_EQ(photos.filter("Pumkins1.jpg"),
        QStringList("Pumkins1.jpg | Pumpkin Farm, Test Album | 2018-09-28 21:35 | Photo | "));
}

TEST_F(RealMedia, NewIphonesHaveStoresWithNothingInThem)
{
    for (const char* backup : {"backups/ios-13.3", "backups/ios-14.0-beta"}) {
        SCOPED_TRACE(backup);
        if (!open(backup)) {
            GTEST_SKIP() << "there is no " << m_file.toStdString();
        }
        for (const int dataType : {4, 21, 22, 23, 31}) {
            EXPECT_NE(m_opened->records.getPRData(dataType), nullptr) << dataType;
            EXPECT_EQ(lines(dataType), QStringList());
        }
        EXPECT_EQ(m_opened->records.getPRData(32), nullptr);
        EXPECT_EQ(notices("Photos.sqlite"), QStringList());
        EXPECT_EQ(notices("Recordings.db"), QStringList());
        EXPECT_EQ(notices("voicemail.db"), QStringList());
    }
}

TEST_F(RealMedia, ManifestWithoutPayloadsStillListsWhatItNames)
{
    if (!open("backups/ios-14.3-manifest-mostly-absent")) {
        GTEST_SKIP() << "there is no " << m_file.toStdString();
    }
    const QStringList photos = column(21, 0);
    EXPECT_TRUE(photos.contains("IMG_0051.PNG"));
    EXPECT_TRUE(photos.contains("IMG_0011.HEIC"));
    EXPECT_TRUE(photos.contains("IMG_0011.MOV")) << "the film of a Live Photo";
    EXPECT_EQ(column(23, 0), QStringList());
    EXPECT_EQ(column(22, 0), QStringList());
    EXPECT_EQ(column(6, 0).filter("current_wallpaper.jpg").size(), 1);
}

} // namespace
