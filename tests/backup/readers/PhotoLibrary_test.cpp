// SPDX-License-Identifier: MIT
#include "LazyTableTest.h"

namespace {

constexpr int kPhotos = 21;
constexpr int kShared = 22;
constexpr int kVideos = 23;
const QString kCameraRoll = "CameraRollDomain";
const QString kLibrary = "Media/PhotoData/Photos.sqlite";

/// Tables of a library, in the form of one release.
struct Release {
    const char* what = nullptr;
    QString assets;
    QString join;
    QString album; ///< column of the joining table
    QString asset;
};

const Release kNew{"17", "ZASSET", "Z_28ASSETS", "Z_28ALBUMS", "Z_3ASSETS"};

QStringList tables(const Release& release = kNew)
{
    return {QString(R"(CREATE TABLE %1 (Z_PK INTEGER PRIMARY KEY, ZDIRECTORY VARCHAR,
            ZFILENAME VARCHAR, ZKIND INTEGER, ZKINDSUBTYPE INTEGER, ZDATECREATED TIMESTAMP,
            ZTRASHEDSTATE INTEGER, ZHIDDEN INTEGER, ZFAVORITE INTEGER, ZVISIBILITYSTATE INTEGER,
            ZSAVEDASSETTYPE INTEGER))")
                .arg(release.assets),
        R"(CREATE TABLE ZADDITIONALASSETATTRIBUTES (Z_PK INTEGER PRIMARY KEY, ZASSET INTEGER,
            ZORIGINALFILENAME VARCHAR))",
        R"(CREATE TABLE ZGENERICALBUM (Z_PK INTEGER PRIMARY KEY, ZTITLE VARCHAR, ZKIND INTEGER,
            ZTRASHEDSTATE INTEGER))",
        QString("CREATE TABLE %1 (%2 INTEGER, %3 INTEGER, Z_FOK_3ASSETS INTEGER,"
                " PRIMARY KEY (%2, %3))")
            .arg(release.join, release.album, release.asset),
        // Others have names of the same kind.
        R"(CREATE TABLE Z_3MEMORIESBEINGCURATEDASSETS (Z_3CURATEDASSETS INTEGER,
            Z_44MEMORIES INTEGER))",
        "CREATE TABLE Z_1ASSETS (Z_1MOMENTS INTEGER, Z_3ASSETS INTEGER)"};
}

// 2023-03-08 20:26:40 UTC is 700,000,000 seconds after 2001 began.
QString asset(
    int id, const QString& file, const QString& more = QString(), const QString& values = QString())
{
    return QString("INSERT INTO ZASSET (Z_PK, ZDIRECTORY, ZFILENAME, ZDATECREATED%4) VALUES"
                   " (%1, '%2', '%3', 700000000 + %1 * 60%5)")
        .arg(id)
        .arg(file.section('/', 0, -2), file.section('/', -1), more.isEmpty() ? "" : ", " + more,
            values.isEmpty() ? "" : ", " + values);
}

QString originalName(int id, const QString& name)
{
    return QString("INSERT INTO ZADDITIONALASSETATTRIBUTES (ZASSET, ZORIGINALFILENAME)"
                   " VALUES (%1, '%2')")
        .arg(id)
        .arg(name);
}

QString album(int id, const QString& title, int kind = 2, int trashed = 0)
{
    return QString("INSERT INTO ZGENERICALBUM VALUES (%1, '%2', %3, %4)")
        .arg(id)
        .arg(title)
        .arg(kind)
        .arg(trashed);
}

QString inAlbum(int album, int asset)
{
    return QString("INSERT INTO Z_28ASSETS VALUES (%1, %2, 0)").arg(album).arg(asset);
}

class PhotoLibraryTest : public LazyTableTest {
protected:
    // A file below Media/ whose contents are its own name.
    void add(const QString& path)
    {
        builder().add(kCameraRoll, "Media/" + path, path.section('/', -1).toUtf8());
    }

    void open(const QStringList& statements)
    {
        builder().addDatabase(kCameraRoll, kLibrary, tables() + statements);
        openFolder();
    }
};

TEST_F(PhotoLibraryTest, PhotoHasNameAlbumsDateTypeAndMarks)
{
    add("DCIM/100APPLE/IMG_0001.HEIC");
    open({asset(0, "DCIM/100APPLE/IMG_0001.HEIC", "ZKIND, ZFAVORITE, ZHIDDEN", "0, 1, 1"),
        album(7, "Norway"), album(8, "Boats"), inAlbum(8, 0), inAlbum(7, 0)});
    EXPECT_EQ(lines(kPhotos), QStringList("IMG_0001.HEIC | Norway, Boats | 2023-03-08 22:26 | Photo"
                                          " | Favourite, Hidden"));
    EXPECT_EQ(files(kPhotos), QStringList("IMG_0001.HEIC < Norway = IMG_0001.HEIC"));
    EXPECT_EQ(file(kPhotos, 0).getDetailInfoDateTime(), "2023-03-08T20:26:40Z");
    EXPECT_EQ(lines(kVideos), QStringList());
    EXPECT_EQ(lines(kShared), QStringList());
    EXPECT_EQ(notices("Photo"), QStringList());
    EXPECT_EQ(notices("library"), QStringList());
}

TEST_F(PhotoLibraryTest, EachReleaseNamesItsTablesInItsOwnWay)
{
    const std::vector<Release> releases{
        {"11", "ZGENERICASSET", "Z_20ASSETS", "Z_20ALBUMS", "Z_27ASSETS"},
        {"12", "ZGENERICASSET", "Z_23ASSETS", "Z_23ALBUMS", "Z_30ASSETS"},
        {"13", "ZGENERICASSET", "Z_26ASSETS", "Z_26ALBUMS", "Z_34ASSETS"},
        {"14", "ZASSET", "Z_26ASSETS", "Z_26ALBUMS", "Z_3ASSETS"},
        {"26", "ZASSET", "Z_33ASSETS", "Z_33ALBUMS", "Z_3ASSETS"},
        {"one to come", "ZASSET", "Z_101ASSETS", "Z_101ALBUMS", "Z_9ASSETS"},
    };
    for (const Release& release : releases) {
        SCOPED_TRACE(release.what);
        openFile(tables(release) << QString("INSERT INTO %1 (Z_PK, ZDIRECTORY, ZFILENAME, ZKIND)"
                                            " VALUES (5, 'DCIM/100APPLE', 'IMG_0001.JPG', 0)")
                                        .arg(release.assets)
                                 << album(3, "Norway")
                                 << QString("INSERT INTO %1 VALUES (3, 5, 0)").arg(release.join));
        EXPECT_EQ(lines(kPhotos), QStringList("IMG_0001.JPG | Norway |  | Photo | "));
    }
}

TEST_F(PhotoLibraryTest, TypeFollowsFromKindAndSubtype)
{
    struct Row {
        QString kinds; ///< kind, subtype
        QString type;
    };
    const std::vector<Row> rows{{"0, 0", "Photo"}, {"0, NULL", "Photo"}, {"0, 1", "Panorama"},
        {"0, 2", "Live Photo"}, {"0, 10", "Screenshot"}, {"0, 77", "Photo"}, {"1, 0", "Video"},
        {"1, 101", "Slow motion"}, {"1, 102", "Time-lapse"}};
    QStringList statements = tables();
    QStringList types;
    int id = 0;
    for (const Row& row : rows) {
        ++id;
        statements.append(
            asset(id, QString("DCIM/100APPLE/%1").arg(id), "ZKIND, ZKINDSUBTYPE", row.kinds));
        types.append(row.type);
    }
    openFile(statements);
    EXPECT_EQ(column(kPhotos, 3) + column(kVideos, 3), types);
    EXPECT_EQ(column(kVideos, 3).size(), 3);
}

TEST_F(PhotoLibraryTest, OldestComesFirst)
{
    openFile(tables() << asset(3, "DCIM/100APPLE/C.JPG") << asset(1, "DCIM/100APPLE/A.JPG")
                      << asset(9, "DCIM/100APPLE/D.JPG") << asset(2, "DCIM/100APPLE/B.JPG")
                      << "UPDATE ZASSET SET ZDATECREATED = 5 WHERE Z_PK = 9");
    EXPECT_EQ(column(kPhotos, 0), QStringList({"D.JPG", "A.JPG", "B.JPG", "C.JPG"}));
}

TEST_F(PhotoLibraryTest, NameIsThatOfTheOriginalWithTheEndingOfTheFile)
{
    struct Row {
        QString file;
        QString original;
        QString shown;
    };
    const std::vector<Row> rows{
        {"A.JPG", "Sunset.jpg", "Sunset.jpg"},
        {"A.jpeg", "Sunset.JPG", "Sunset.JPG"},
        {"A.tiff", "Scan 1.tif", "Scan 1.tif"},
        {"A.JPG", "IMG_2.HEIC", "IMG_2.JPG"},
        {"A.JPG", "Dr. Who", "Dr.JPG"},
        {"A.JPG", "", "A.JPG"},
        {"A.JPG", "..", "A.JPG"},
        {"A.JPG", "../../etc/B.JPG", "B.JPG"},
        {"A", "Sunset.jpg", "Sunset.jpg"},
    };
    QStringList statements = tables();
    QStringList shown;
    int id = 0;
    for (const Row& row : rows) {
        ++id;
        statements << asset(id, "DCIM/100APPLE/" + row.file) << originalName(id, row.original);
        shown.append(row.shown);
    }
    openFile(statements);
    EXPECT_EQ(column(kPhotos, 0), shown);
}

TEST_F(PhotoLibraryTest, ParentIsTheOldestAlbumOfTheOwnerElseTheDirectory)
{
    for (const char* name : {"A", "B", "C", "D", "E"}) {
        add(QString("DCIM/101APPLE/%1.JPG").arg(name));
    }
    open({asset(1, "DCIM/101APPLE/A.JPG"), asset(2, "DCIM/101APPLE/B.JPG"),
        asset(3, "DCIM/101APPLE/C.JPG"), asset(4, "DCIM/101APPLE/D.JPG"),
        asset(5, "DCIM/101APPLE/E.JPG"), album(10, "Later"), album(9, "Norway"),
        album(11, "Smart", 1605), album(12, "Gone", 2, 1), album(13, ".."), album(14, "Later"),
        inAlbum(10, 1), inAlbum(9, 1), inAlbum(14, 1), inAlbum(11, 2), inAlbum(12, 3),
        inAlbum(13, 4), inAlbum(999, 5)});
    EXPECT_EQ(files(kPhotos),
        QStringList({"A.JPG < Norway = A.JPG", "B.JPG < 101APPLE = B.JPG",
            "C.JPG < 101APPLE = C.JPG", "D.JPG < _ = D.JPG", "E.JPG < 101APPLE = E.JPG"}));
    EXPECT_EQ(column(kPhotos, 1), QStringList({"Norway, Later", "", "", "..", ""}));
}

TEST_F(PhotoLibraryTest, TrashedOnesAreDeleted)
{
    add("DCIM/100APPLE/A.JPG");
    open({asset(1, "DCIM/100APPLE/A.JPG", "ZTRASHEDSTATE", "1")});
    EXPECT_EQ(lines(kPhotos), QStringList("x A.JPG |  | 2023-03-08 22:27 | Photo | "));
}

TEST_F(PhotoLibraryTest, EditedVersionStandsBeforeItsOriginal)
{
    add("DCIM/100APPLE/IMG_0001.HEIC");
    add("DCIM/100APPLE/IMG_0001.AAE");
    add("PhotoData/Mutations/DCIM/100APPLE/IMG_0001/Adjustments/FullSizeRender.jpg");
    add("PhotoData/Mutations/DCIM/100APPLE/IMG_0001/Adjustments/PenultimateFullSizeRender.jpg");
    add("PhotoData/Mutations/DCIM/100APPLE/IMG_0001/Adjustments/Adjustments.plist");
    add("PhotoData/Mutations/DCIM/101APPLE/IMG_0001/Adjustments/FullSizeRender.mov");
    add("DCIM/101APPLE/IMG_0001.MOV");
    open({asset(1, "DCIM/100APPLE/IMG_0001.HEIC"),
        asset(2, "DCIM/101APPLE/IMG_0001.MOV", "ZKIND", "1")});
    EXPECT_EQ(files(kPhotos), QStringList({"IMG_0001 (edited).jpg < 100APPLE = FullSizeRender.jpg",
                                  "IMG_0001.HEIC < 100APPLE = IMG_0001.HEIC"}));
    EXPECT_EQ(column(kPhotos, 4), QStringList({"Edited", ""}));
    EXPECT_EQ(files(kVideos), QStringList({"IMG_0001 (edited).mov < 101APPLE = FullSizeRender.mov",
                                  "IMG_0001.MOV < 101APPLE = IMG_0001.MOV"}));
}

TEST_F(PhotoLibraryTest, FilmOfALivePhotoStandsBesideIt)
{
    add("DCIM/100APPLE/IMG_0001.HEIC");
    add("DCIM/100APPLE/IMG_0001.MOV");
    add("DCIM/100APPLE/IMG_0002.JPG");
    add("DCIM/100APPLE/IMG_0002.MOV");
    open({asset(1, "DCIM/100APPLE/IMG_0001.HEIC", "ZKINDSUBTYPE", "2"),
        originalName(1, "Waves.HEIC"), asset(2, "DCIM/100APPLE/IMG_0002.JPG", "ZKINDSUBTYPE", "2"),
        asset(3, "DCIM/100APPLE/IMG_0002.MOV", "ZKIND", "1")});
    EXPECT_EQ(files(kPhotos),
        QStringList({"Waves.HEIC < 100APPLE = IMG_0001.HEIC", "Waves.MOV < 100APPLE = IMG_0001.MOV",
            "IMG_0002.JPG < 100APPLE = IMG_0002.JPG"}));
    EXPECT_EQ(files(kVideos), QStringList("IMG_0002.MOV < 100APPLE = IMG_0002.MOV"));
}

TEST_F(PhotoLibraryTest, SharedOnesAreASetOfTheirOwn)
{
    const QString directory = "PhotoData/PhotoCloudSharingData/168/AB-1/100CLOUD";
    add(directory + "/IMG_0001.JPG");
    add(directory + "/IMG_0002.MP4");
    add("DCIM/100APPLE/IMG_0003.JPG");
    open({asset(1, "/var/mobile/Media/" + directory + "/IMG_0001.JPG"),
        asset(2, directory + "/IMG_0002.MP4", "ZKIND", "1"),
        asset(3, "DCIM/100APPLE/IMG_0003.JPG", "ZSAVEDASSETTYPE", "4"),
        asset(4, "gone/IMG_0004.JPG", "ZSAVEDASSETTYPE, ZVISIBILITYSTATE", "4, 2"),
        album(1, "Family", 1505), album(2, "Mine"), inAlbum(1, 1), inAlbum(2, 1), inAlbum(1, 2)});
    EXPECT_EQ(files(kShared),
        QStringList({"IMG_0001.JPG < Family = IMG_0001.JPG", "IMG_0002.MP4 < Family = IMG_0002.MP4",
            "IMG_0003.JPG < 100APPLE = IMG_0003.JPG", "IMG_0004.JPG < gone = -"}));
    EXPECT_EQ(lines(kPhotos), QStringList());
    EXPECT_EQ(lines(kVideos), QStringList());
}

TEST_F(PhotoLibraryTest, FilesWithoutARowAreListedToo)
{
    add("DCIM/100APPLE/IMG_0001.JPG");
    add("DCIM/100APPLE/IMG_0002.HEIC");
    add("DCIM/100APPLE/IMG_0003.MOV");
    add("DCIM/100APPLE/IMG_0003.AAE");
    add("DCIM/100APPLE/.IMG_0004.JPG");
    add("PhotoData/PhotoCloudSharingData/1/2/100CLOUD/IMG_0005.MOV");
    open({asset(1, "DCIM/100APPLE/IMG_0001.JPG")});
    EXPECT_EQ(column(kPhotos, 0), QStringList({"IMG_0001.JPG", "IMG_0002.HEIC"}));
    EXPECT_EQ(files(kVideos), QStringList("IMG_0003.MOV < 100APPLE = IMG_0003.MOV"));
    EXPECT_EQ(files(kShared), QStringList("IMG_0005.MOV < 100CLOUD = IMG_0005.MOV"));
}

TEST_F(PhotoLibraryTest, WithoutALibraryTheFilesAreThere)
{
    add("DCIM/100APPLE/IMG_0001.HEIC");
    add("DCIM/100APPLE/IMG_0001.MOV");
    add("DCIM/100APPLE/IMG_0002.MP4");
    add("DCIM/100APPLE/IMG_0002.JPG");
    add("PhotoData/Mutations/DCIM/100APPLE/IMG_0001/Adjustments/FullSizeRender.jpg");
    openFolder();
    EXPECT_EQ(files(kPhotos),
        QStringList({"IMG_0001 (edited).jpg < 100APPLE = FullSizeRender.jpg",
            "IMG_0001.HEIC < 100APPLE = IMG_0001.HEIC", "IMG_0001.MOV < 100APPLE = IMG_0001.MOV",
            "IMG_0002.JPG < 100APPLE = IMG_0002.JPG"}));
    EXPECT_EQ(files(kVideos), QStringList("IMG_0002.MP4 < 100APPLE = IMG_0002.MP4"));
    EXPECT_EQ(file(kPhotos, 0).getDetailInfoDateTime(), "");
}

TEST_F(PhotoLibraryTest, LibraryOfAnUnknownFormLeavesTheFiles)
{
    add("DCIM/100APPLE/IMG_0001.JPG");
    builder().addDatabase(kCameraRoll, kLibrary, {"CREATE TABLE Photo (directory, filename)"});
    openFolder();
    EXPECT_EQ(column(kPhotos, 0), QStringList("IMG_0001.JPG"));
    EXPECT_EQ(notices("Photos.sqlite").size(), 1);
}

TEST_F(PhotoLibraryTest, WithoutPhotosThereIsNoSet)
{
    openFolder();
    for (const int dataType : {kPhotos, kShared, kVideos}) {
        EXPECT_EQ(m_opened->records.getPRData(dataType), nullptr);
    }
}

TEST_F(PhotoLibraryTest, MissingOnesAreListedAndCountedOnce)
{
    open({asset(1, "DCIM/100APPLE/A.JPG"), asset(2, "DCIM/100APPLE/../../B.JPG"),
        asset(3, "DCIM/100APPLE/C.MOV", "ZKIND", "1"),
        asset(4, "DCIM/100APPLE/D.JPG", "ZVISIBILITYSTATE", "2"), asset(5, "/Volumes/Disk/E.JPG")});
    EXPECT_EQ(column(kPhotos, 0), QStringList({"A.JPG", "B.JPG", "E.JPG"}));
    EXPECT_EQ(column(kVideos, 0), QStringList("C.MOV"));
    EXPECT_EQ(files(kPhotos).first(), "A.JPG < 100APPLE = -");
    EXPECT_EQ(notices("not in the backup"),
        QStringList("Photos and videos of the library that are not in the backup: 4"));
}

TEST_F(PhotoLibraryTest, WhereOnlyThePreviewIsThereItIsTaken)
{
    add("PhotoData/Thumbnails/V2/PhotoData/CPLAssets/group1/X.HEIC/5003.JPG");
    add("PhotoData/Thumbnails/V2/PhotoData/CPLAssets/group1/X.HEIC/5005.JPG");
    open({asset(1, "PhotoData/CPLAssets/group1/X.HEIC"), originalName(1, "IMG_0001.HEIC")});
    EXPECT_EQ(files(kPhotos), QStringList("IMG_0001.jpg < group1 = 5005.JPG"));
    EXPECT_EQ(notices("previews"),
        QStringList("Photos and videos of which the backup has small previews only: 1"));
}

TEST_F(PhotoLibraryTest, PreviewIsTheLastResort)
{
    add("DCIM/100APPLE/A.JPG");
    add("DCIM/100APPLE/B.JPG");
    add("PhotoData/Thumbnails/V2/DCIM/100APPLE/A.JPG/5005.JPG");
    open({asset(1, "DCIM/100APPLE/A.JPG"), asset(2, "DCIM/100APPLE/B.JPG")});
    EXPECT_EQ(file(kPhotos, 0).thumbnail(),
        builder().payloadPath(
            kCameraRoll, "Media/PhotoData/Thumbnails/V2/DCIM/100APPLE/A.JPG/5005.JPG"));
    EXPECT_EQ(file(kPhotos, 1).thumbnail(), "");
}

TEST_F(PhotoLibraryTest, PathOfADownloadedFileReplacesThatOfTheBackup)
{
    add("DCIM/100APPLE/A.JPG");
    open({asset(1, "DCIM/100APPLE/A.JPG")});
    PRAbstractItem* item = m_opened->records.getPRData(kPhotos)->at(0, true);
    dynamic_cast<PRFileItem&>(*item).setFilePath("/tmp/b.jpg");
    EXPECT_EQ(file(kPhotos, 0).filePath(), "/tmp/b.jpg");
}

TEST_F(PhotoLibraryTest, OddValuesCostNoPhoto)
{
    openFile(tables() << R"(INSERT INTO ZASSET VALUES (1, NULL, NULL, NULL, 'x', 'soon', NULL, NULL,
            NULL, NULL, NULL), (2, x'ff', 7, 9, 1e300, 9e999, 5, 5, 5, 0, 'a'))"
                      << "INSERT INTO Z_28ASSETS VALUES (NULL, NULL, NULL), ('a', 2, 1)");
    EXPECT_EQ(column(kPhotos, 2), QStringList({"", ""}));
}

TEST_F(PhotoLibraryTest, LibraryWithAssetsAloneIsRead)
{
    openFile({"CREATE TABLE ZGENERICASSET (Z_PK INTEGER PRIMARY KEY, ZDIRECTORY, ZFILENAME, ZKIND,"
              " ZDATECREATED)",
        "INSERT INTO ZGENERICASSET VALUES (1, 'DCIM/100APPLE', 'IMG_0001.JPG', 0, 700000000)"});
    EXPECT_EQ(lines(kPhotos), QStringList("IMG_0001.JPG |  | 2023-03-08 22:26 | Photo | "));
    EXPECT_EQ(notices("has no"), QStringList());
}

TEST_F(PhotoLibraryTest, TruncatedLibraryNeverCrashes)
{
    QStringList statements = tables() << album(1, "Norway");
    for (int id = 1; id <= 300; ++id) {
        statements << asset(id, QString("DCIM/100APPLE/IMG_%1.JPG").arg(id)) << inAlbum(1, id);
    }
    const QByteArray whole = databaseBytes(statements).file;
    for (int size = 4096; size < whole.size(); size += 3777) {
        SCOPED_TRACE(size);
        writeFile(m_directory.filePath("cut.db"), whole.left(size));
        auto opened = backup::openDatabaseFile(m_directory.filePath("cut.db"));
        if (opened) {
            EXPECT_LE(opened->records.getPRData(kPhotos)->count(1), 300);
        }
    }
}

} // namespace
