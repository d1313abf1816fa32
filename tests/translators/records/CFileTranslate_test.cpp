// SPDX-License-Identifier: MIT
#include "exporters/CFileExporter.h"
#include "exporters/CHtmlExporter.h"
#include "support/file_limits.h"
#include "support/heic_maker.h"
#include "support/recording_progress.h"
#include "translators/records/file_translate_fixture.h"

#include <QDateTime>

namespace {

using support::LogMessages;
using support::RecordingProgress;
using FileTranslate = FileTranslateTest;

TEST_F(FileTranslate, WantsAnExporterOfFiles)
{
    add(file("a", {.data = "bytes"}));
    PRData data(kDocuments, std::move(records));
    const LogMessages messages;
    CHtmlExporter exporter;
    RecordingProgress progress;
    EXPECT_FALSE(CFileTranslate(&data).translate(&exporter, &progress, false, false));
    EXPECT_FALSE(CFileTranslate(&data).translate(nullptr, nullptr, false, false));
    const QString line = QString(kLine) + "CFileExporter not exist";
    EXPECT_EQ(messages.lines(), QStringList({line, line}));
    EXPECT_EQ(progress.calls(), QStringList());
}

TEST_F(FileTranslate, WritesBytesBeforeAnythingElse)
{
    add(file("a.txt", {.data = "bytes", .path = source("a", "source")}));
    EXPECT_EQ(run(), QStringList());
    EXPECT_EQ(written(), QStringList("a.txt"));
    EXPECT_EQ(contents("a.txt"), "bytes");
}

TEST_F(FileTranslate, CopiesTheSourceWhereThereAreNoBytes)
{
    add(file("a.txt", {.path = source("a", "source"),
                          .thumbFile = source("b", "x"),
                          .thumbnail = source("c", "y")}),
        file("a.txt", {.path = source("a", "source")}));
    EXPECT_EQ(run(), QStringList());
    EXPECT_EQ(written(), QStringList({"a (2).txt", "a.txt"}));
    EXPECT_EQ(contents("a.txt"), "source");
}

TEST_F(FileTranslate, DecodesASourceInTheFormOfAThumbnail)
{
    FileContent thumb{.path = source("a", encoded("BMP"))};
    thumb.thumbToMedia = true;
    add(file("a.png", std::move(thumb)));
    EXPECT_EQ(run(), QStringList());
    EXPECT_EQ(written(), QStringList("a.png"));
    EXPECT_TRUE(contents("a.png").startsWith("\x89PNG"));
}

TEST_F(FileTranslate, CopiesASourceInTheFormOfAThumbnailThatCannotBeDecoded)
{
    FileContent thumb{.path = source("a", "no picture")};
    thumb.thumbToMedia = true;
    add(file("a.png", std::move(thumb)));
    EXPECT_EQ(run(), QStringList("isThumbToMedia exportThumbData failed a.png"));
    EXPECT_EQ(written(), QStringList("a.png"));
    EXPECT_EQ(contents("a.png"), "no picture");
}

TEST_F(FileTranslate, TakesTheThumbnailOfAnAddress)
{
    add(file("a.jpg", {.path = "http://h/a", .thumbFile = source("a", "thumb 1")}),
        file("b.JPG", {.path = "https://h/b", .thumbFile = source("b", "thumb 2")}),
        file("c %2", {.path = "httpx", .thumbFile = source("c", "thumb 3")}));
    EXPECT_EQ(run(), QStringList());
    EXPECT_EQ(written(), QStringList({"a.jpg", "b.JPG.jpg", "c %2.jpg"}));
    EXPECT_EQ(contents("b.JPG.jpg"), "thumb 2");
}

TEST_F(FileTranslate, TellsOfAnAddressWithoutThumbnailAndTakesTheLastOne)
{
    add(file("a.jpg", {.path = "http://h/a", .thumbnail = source("t", "last")}),
        file("b.mov", {.path = "http://h/b", .thumbFile = tree.path("none")}));
    const QString last = tree.path("out/Cat/b.mov");
    EXPECT_EQ(run(),
        QStringList({"http exportData 1 thumbFilePath failed a.jpg",
            "http export failed http://h/a", "exportData failed \n src http://h/a \n des a.jpg ",
            "http exportData 2 thumbFilePath failed b.mov.jpg", "http export failed http://h/b",
            "exportData failed \n src http://h/b \n des b.mov ",
            "thumbnail copy failed \n src  \n des " + last + " "}));
    EXPECT_EQ(written(), QStringList("a.jpg"));
    EXPECT_EQ(contents("a.jpg"), "last");
}

TEST_F(FileTranslate, AddressesInCapitalsArePaths)
{
    add(file("a.jpg",
        {.path = "HTTP://h/a", .thumbFile = source("a", "x"), .thumbnail = source("b", "last")}));
    EXPECT_EQ(run(), QStringList("exportData failed \n src HTTP://h/a \n des a.jpg "));
    EXPECT_EQ(contents("a.jpg"), "last");
}

TEST_F(FileTranslate, AnAddressWithItsPictureDecodedTakesItsThumbnailToo)
{
    FileContent content{.path = "http://h/a", .thumbFile = source("a", "thumb")};
    content.thumbToMedia = true;
    add(file("a.jpg", std::move(content)));
    EXPECT_EQ(run(), QStringList("isThumbToMedia exportThumbData failed a.jpg"));
    EXPECT_EQ(contents("a.jpg"), "thumb");
}

TEST_F(FileTranslate, ASourceThatIsGoneLeavesTheLastThumbnail)
{
    const QString gone = tree.path("in/gone");
    add(file("a: 1.mov", {.path = gone, .thumbnail = source("t", "last")}));
    EXPECT_EQ(run(), QStringList("exportData failed \n src " + gone + " \n des a: 1.mov "));
    EXPECT_EQ(written(), QStringList("a_ 1.mov"));
    EXPECT_EQ(contents("a_ 1.mov"), "last");
}

TEST_F(FileTranslate, TheLastThumbnailHasAFreeNameThatIsSafe)
{
    add(file("a/b.mov", {.data = "1"}), file("a/b.mov", {.thumbnail = source("t", "last")}));
    EXPECT_EQ(run(), QStringList("exportData failed \n src  \n des a/b.mov "));
    EXPECT_EQ(written(), QStringList({"a_b (2).mov", "a_b.mov"}));
    EXPECT_EQ(contents("a_b (2).mov"), "last");
}

TEST_F(FileTranslate, ARecordWithNothingAtAllLeavesLinesAlone)
{
    add(file("ä.mov", {}), file("b.mov", {.data = "next"}));
    EXPECT_EQ(run(), QStringList({"exportData failed \n src  \n des ä.mov ",
                         "thumbnail copy failed \n src  \n des " + tree.path("out/Cat/ä.mov ")}));
    EXPECT_EQ(written(), QStringList("b.mov"));
}

TEST_F(FileTranslate, AJpegThatCannotBeLoadedStaysBesideItsThumbnail)
{
    const QByteArray head = encoded("JPG").left(200);
    const QString path = source("a", head);
    add(file("a.jpg", {.path = path, .thumbnail = source("t", "last")}));
    QStringList lines = run();
    lines = lines.filter("exportData");
    EXPECT_EQ(lines, QStringList("exportData failed \n src " + path + " \n des "
                                 + tree.path("out/Cat/a.jpg") + " "));
    EXPECT_EQ(written(), QStringList({"a (2).jpg", "a.jpg"}));
    EXPECT_EQ(contents("a.jpg"), head);
    EXPECT_EQ(contents("a (2).jpg"), "last");
}

TEST_F(FileTranslate, BytesThatCannotBeWrittenFallBackToTheSource)
{
    add(file("a", {.data = QByteArray(2'000, 'x'), .path = source("a", "source")}));
    const support::LargestFile limit(1'000);
    EXPECT_EQ(run(), QStringList("exportDepends failed a"));
    EXPECT_EQ(written(), QStringList("a"));
    EXPECT_EQ(contents("a"), "source");
}

TEST_F(FileTranslate, AFullDiskLeavesNoPartOfAnyFile)
{
    const QByteArray large(40'000, 'x');
    add(file("a", {.data = large}), file("b", {.path = source("b", large)}),
        file("c", {.path = source("c", large), .thumbnail = source("t", large)}),
        file("d", {.data = "small"}));
    QStringList lines;
    {
        const support::LargestFile limit(20'000);
        lines = run();
    }
    EXPECT_EQ(written(), QStringList("d"));
    EXPECT_EQ(lines.filter("exportDepends failed").size(), 1);
    EXPECT_EQ(lines.filter("exportData failed").size(), 3);
    EXPECT_EQ(lines.filter("thumbnail copy failed").size(), 3);
}

TEST_F(FileTranslate, PutsFilesBelowTheirParents)
{
    add(fileOf("Trip", "a", {.data = "1"}), fileOf("Trip", "b", {.path = source("b", "2")}),
        file("c", {.data = "3"}), fileOf("..", "d", {.data = "4"}),
        fileOf("Trip", "e", {.path = tree.path("none"), .thumbnail = source("t", "5")}));
    run();
    EXPECT_EQ(written(), QStringList({"Trip/", "Trip/a", "Trip/b", "Trip/e", "c", "d"}));
}

TEST_F(FileTranslate, StampsCopiesOfPhotosWithTheirDates)
{
    const auto stamped = [this](int dataType) {
        QDir(tree.path("out")).removeRecursively();
        FileContent content{.path = source("a", "x")};
        content.detailDate = "2020-02-03 04:05:06";
        add(file("a.heic", std::move(content)));
        EXPECT_EQ(run(nullptr, dataType), QStringList());
        return QFileInfo(tree.path("out/Cat/a.heic")).lastModified().toString(Qt::ISODate)
               == "2020-02-03T04:05:06";
    };
    for (const int type : {21, 22, 23}) {
        EXPECT_TRUE(stamped(type)) << type;
    }
    for (const int type : {1, 24, 25, 35}) {
        EXPECT_FALSE(stamped(type)) << type;
    }
}

TEST_F(FileTranslate, RecordsThatAreNoFilesAreCountedAndPassedOver)
{
    add(std::make_unique<PRAbstractItem>(), file("a", {.data = "1234"}),
        std::make_unique<PRAbstractItem>());
    RecordingProgress progress;
    EXPECT_EQ(run(&progress), QStringList("2 AbItem not FileItem"));
    EXPECT_EQ(progress.calls(), QStringList({"step 0", "step 0", "step 300", "step 0"}));
    EXPECT_EQ(written(), QStringList("a"));
}

TEST_F(FileTranslate, NoFilesAtAllAreNoFailure)
{
    RecordingProgress progress;
    EXPECT_EQ(run(&progress), QStringList());
    EXPECT_EQ(progress.calls(), QStringList());
    add(std::make_unique<PRAbstractItem>());
    EXPECT_EQ(run(&progress), QStringList("1 AbItem not FileItem"));
    EXPECT_EQ(progress.calls(), QStringList("step 0"));
    EXPECT_EQ(written(), QStringList());
}

TEST_F(FileTranslate, WithoutFilesLeavesTheExporterItsProgress)
{
    CFileExporter exporter;
    ASSERT_TRUE(exporter.openExport(QDir(tree.path("out")), "Anna", "Cat"));
    RecordingProgress progress;
    exporter.setProgress(&progress);
    const LogMessages silence;
    PRData none(kDocuments);
    EXPECT_TRUE(CFileTranslate(&none).translate(&exporter, nullptr, false, false));
    EXPECT_TRUE(exporter.exportData("12", "a"));
    EXPECT_EQ(progress.calls(), QStringList("step 2"));
}

TEST_F(FileTranslate, MovesAHundredUnitsForEachRecordByTheirBytes)
{
    // 40,000 bytes: a tenth, then four tenths and a half in chunks of 16,384.
    add(file("a", {.data = QByteArray(4'000, 'x')}),
        file("b", {.path = source("b", QByteArray(16'000, 'x'))}),
        file("c", {.data = QByteArray(20'000, 'x'), .path = source("c", "not counted")}),
        file("d", {.path = tree.path("none")}));
    RecordingProgress progress;
    run(&progress);
    EXPECT_EQ(progress.calls(),
        QStringList({"step 0", "step 40", "step 0", "step 160", "step 0", "step 200", "step 0"}));
}

TEST_F(FileTranslate, ACancelWithinAFileTakesItAwayAndEndsTheWork)
{
    add(file("a", {.data = "1"}),
        file("b", {.path = source("b", QByteArray(50'000, 'x')), .thumbnail = source("t", "last")}),
        file("c", {.data = "3"}));
    RecordingProgress progress(5); // polls before two records, the bytes of the first, two chunks
    EXPECT_EQ(run(&progress, kPhotos), QStringList("Export user canceled"));
    EXPECT_EQ(written(), QStringList("a"));
}

TEST_F(FileTranslate, ACancelWithinAJpegLeavesItsThumbnail)
{
    const QString path = source("b", encoded("JPG"));
    add(file("b.jpg", {.path = path, .thumbnail = source("t", "last")}), file("c", {.data = "3"}));
    RecordingProgress progress(2);
    EXPECT_EQ(run(&progress), QStringList({"exportData failed \n src " + path + " \n des "
                                               + tree.path("out/Cat/b.jpg") + " ",
                                  "Export user canceled"}));
    EXPECT_EQ(written(), QStringList("b.jpg"));
    EXPECT_EQ(contents("b.jpg"), "last");
}

TEST_F(FileTranslate, ACancelAtTheHeadWritesNothing)
{
    add(file("a", {.data = "1"}));
    RecordingProgress progress(1);
    EXPECT_EQ(run(&progress), QStringList("Export user canceled"));
    EXPECT_EQ(written(), QStringList());
}

TEST_F(FileTranslate, ConvertsHeicWhereThatIsAskedFor)
{
    const QByteArray heic = support::makeHeic(QImage(64, 64, QImage::Format_RGB32));
    if (heic.isEmpty()) {
        GTEST_SKIP() << "no encoder for HEIC";
    }
    add(file("a.heic", {.path = source("a", heic)}));
    run(nullptr, kPhotos, false);
    EXPECT_EQ(written(), QStringList("a.heic"));
    add(file("b.heic", {.path = source("a", heic)}));
    run(nullptr, kPhotos, true);
    EXPECT_EQ(written(), QStringList({"a.heic", "b.heic", "b.jpg"}));
}

} // namespace
