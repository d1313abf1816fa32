// SPDX-License-Identifier: MIT
// Cancels, disks that are full, sources and targets that cannot be had, and HEIC pictures.
#include "exporters/CFileExporter.h"
#include "exporters/file_exporter_fixture.h"
#include "support/acting_progress.h"
#include "support/file_limits.h"
#include "support/heic_maker.h"
#include "support/log_messages.h"
#include "support/recording_progress.h"
#include "support/small_disk.h"

namespace {

using support::ActingProgress;
using support::LogMessages;
using support::RecordingProgress;

constexpr int kChunk = 16'384;

class FileExporterFaults : public FileExporterTest {
protected:
    void convert() { exporter.setConvertHeic(true); }
};

TEST_F(FileExporterFaults, EachChunkIsAStep)
{
    RecordingProgress progress;
    exporter.setProgress(&progress);
    QString name = "a";
    EXPECT_TRUE(write(QByteArray(2 * kChunk + 5, 'x'), name));
    EXPECT_EQ(progress.calls(), QStringList({"step 16384", "step 16384", "step 5"}));
    progress.clearCalls();
    EXPECT_TRUE(write("", name));
    EXPECT_EQ(progress.calls(), QStringList()) << "an empty file";
}

TEST_F(FileExporterFaults, BytesFromMemoryAreOneStepWhateverComesOfThem)
{
    RecordingProgress progress(1);
    exporter.setProgress(&progress);
    EXPECT_TRUE(exporter.exportData(QByteArray(3 * kChunk, 'x'), "a"));
    EXPECT_FALSE(exporter.exportData("12", QString(300, 'x'))) << "no such name";
    EXPECT_EQ(progress.calls(), QStringList({"step 49152", "step 2"}));
    EXPECT_EQ(written(), QStringList("a"));
}

TEST_F(FileExporterFaults, ACancelTakesTheCopyAwayAndIsNoFailure)
{
    for (int at = 1; at <= 3; ++at) {
        SCOPED_TRACE(at);
        RecordingProgress progress(at);
        exporter.setProgress(&progress);
        QString name = "a.mov";
        EXPECT_TRUE(write(QByteArray(2 * kChunk + 5, 'x'), name));
        EXPECT_EQ(name, tree.path("out/Cat/a.mov"));
        EXPECT_EQ(progress.steps(), at);
        EXPECT_EQ(written(), QStringList());
    }
}

TEST_F(FileExporterFaults, ACancelledJpegFailsItsCheck)
{
    const LogMessages silence;
    RecordingProgress progress(1);
    exporter.setProgress(&progress);
    QString name = "a";
    EXPECT_FALSE(write(encoded("JPG"), name));
    EXPECT_EQ(name, tree.path("out/Cat/a.jpg"));
    EXPECT_EQ(written(), QStringList());
}

TEST_F(FileExporterFaults, AFullDiskTakesTheCopyAwayAndIsAFailure)
{
    const QByteArray bytes(5 * kChunk, 'x');
    const QString source = tree.write("in/a", bytes);
    for (const int room : {0, 1, kChunk, kChunk + 1, 5 * kChunk - 1}) {
        SCOPED_TRACE(room);
        const support::LargestFile limit(static_cast<rlim_t>(room));
        QString name = "a.mov";
        EXPECT_FALSE(exporter.write(source, name));
        EXPECT_EQ(name, tree.path("out/Cat/a.mov"));
        EXPECT_FALSE(exporter.exportData(bytes, "b"));
        EXPECT_EQ(written(), QStringList());
    }
    QString name = "a.mov";
    EXPECT_TRUE(exporter.write(source, name)) << "when there is room";
}

TEST_F(FileExporterFaults, ARealFullDiskKeepsNoPartAndHasItsRoomAgain)
{
    const support::SmallDisk disk(tree.path("out/Cat"), 4 * kChunk);
    if (!disk.isThere()) {
        GTEST_SKIP() << "no disk can be mounted";
    }
    const QByteArray tooMuch(5 * kChunk, 'x');
    QString name = "a.mov";
    EXPECT_FALSE(write(tooMuch, name));
    EXPECT_EQ(name, tree.path("out/Cat/a.mov"));
    EXPECT_FALSE(exporter.exportData(tooMuch, "b"));
    EXPECT_EQ(written(), QStringList());
    EXPECT_EQ(nameOfCopy(tooMuch.left(3 * kChunk), "c"), "c");
    EXPECT_EQ(contents("c").size(), 3 * kChunk);
    name = "d"; // a part of it has room beside the other
    EXPECT_FALSE(write(tooMuch.left(2 * kChunk), name));
    EXPECT_EQ(written(), QStringList("c"));
}

// A part of it would show as a picture that is grey below.
TEST_F(FileExporterFaults, AFullDiskLeavesNoPartOfAThumbnail)
{
    const LogMessages silence; // some encoders speak
    const QString small = tree.write("in/small", encoded("BMP"));
    const QString large = tree.write("in/large", encoded("BMP", 500));
    for (const char* name : {"a.png", "a.jpg", "a.bmp"}) {
        SCOPED_TRACE(name);
        {
            const support::LargestFile limit(60);
            EXPECT_FALSE(exporter.exportThumbData(small, name));
            EXPECT_FALSE(exporter.exportThumbData(large, name));
        }
        EXPECT_EQ(written(), QStringList());
    }
    EXPECT_TRUE(exporter.exportThumbData(small, "a.png")) << "when there is room";
}

TEST_F(FileExporterFaults, AFullDiskFailsTheCheckOfAJpegToo)
{
    const LogMessages silence;
    const QString source = tree.write("in/a", encoded("JPG", 200));
    const support::LargestFile limit(700);
    QString name = "a.jpg";
    EXPECT_FALSE(exporter.write(source, name));
    EXPECT_EQ(written(), QStringList());
}

// Nothing lies at the first address of a process, so that reading there is an error.
TEST_F(FileExporterFaults, ASourceThatOpensAndCannotBeReadLeavesNoCopy)
{
    RecordingProgress progress;
    exporter.setProgress(&progress);
    QString name = "a.mov";
    EXPECT_FALSE(exporter.write("/proc/self/mem", name));
    EXPECT_EQ(name, tree.path("out/Cat/a.mov")) << "a copy was begun";
    EXPECT_EQ(written(), QStringList());
    EXPECT_EQ(progress.calls(), QStringList());
}

TEST_F(FileExporterFaults, AFileThatGrowsIsCopiedToItsPresentEnd)
{
    const QString source = tree.write("in/a", QByteArray(kChunk, 'x'));
    int times = 0;
    ActingProgress progress([&source, &times] {
        QFile file(source);
        if (++times <= 2 && file.open(QIODevice::Append)) {
            file.write(QByteArray(100, 'y'));
        }
    });
    exporter.setProgress(&progress);
    QString name = "a";
    EXPECT_TRUE(exporter.write(source, name));
    EXPECT_EQ(contents("a"), QByteArray(kChunk, 'x') + QByteArray(200, 'y'));
    EXPECT_EQ(progress.position(), kChunk + 200);
}

TEST_F(FileExporterFaults, AFileThatShrinksIsCopiedAsFarAsItWasRead)
{
    const int whole = 100 * kChunk;
    const QString source = tree.write("in/a", QByteArray(whole, 'x'));
    ActingProgress progress([&source] { QFile::resize(source, 10); });
    exporter.setProgress(&progress);
    QString name = "a";
    EXPECT_TRUE(exporter.write(source, name));
    const int copied = contents("a").size();
    EXPECT_GE(copied, kChunk);
    EXPECT_LT(copied, whole);
    EXPECT_EQ(copied % kChunk, 0);
    EXPECT_EQ(progress.position(), copied);
}

TEST_F(FileExporterFaults, EachChunkIsAStepInAFileOfManyToo)
{
    RecordingProgress progress;
    exporter.setProgress(&progress);
    const QByteArray bytes = QByteArray(50 * kChunk, 'x') + QByteArray(40 * kChunk + 5, 'y');
    QString name = "a";
    EXPECT_TRUE(write(bytes, name));
    EXPECT_EQ(contents("a"), bytes);
    QStringList steps;
    for (int chunk = 0; chunk < 90; ++chunk) {
        steps += "step 16384";
    }
    EXPECT_EQ(progress.calls(), steps + QStringList("step 5"));
}

TEST_F(FileExporterFaults, AFullDiskHasAStepForEachChunkThatFitted)
{
    RecordingProgress progress;
    exporter.setProgress(&progress);
    const QString source = tree.write("in/a", QByteArray(5 * kChunk, 'x'));
    const support::LargestFile limit(2 * kChunk + 100);
    QString name = "a";
    EXPECT_FALSE(exporter.write(source, name));
    EXPECT_EQ(progress.calls(), QStringList({"step 16384", "step 16384"}));
}

TEST_F(FileExporterFaults, AFileThatVanishesWhileItIsReadIsCopied)
{
    const QByteArray bytes(3 * kChunk, 'x');
    const QString source = tree.write("in/a", bytes);
    ActingProgress progress([&source] { QFile::remove(source); });
    exporter.setProgress(&progress);
    QString name = "a";
    EXPECT_TRUE(exporter.write(source, name));
    EXPECT_EQ(contents("a"), bytes);
}

TEST_F(FileExporterFaults, WithoutPermissionNothingIsReadOrWritten)
{
    const QString readable = tree.write("in/readable", "x");
    const QString secret = tree.write("in/secret", "x");
    QFile::setPermissions(tree.path(), static_cast<QFile::Permissions>(0x7755));
    QFile::setPermissions(tree.path("out"), static_cast<QFile::Permissions>(0x5555));
    QFile::setPermissions(tree.path("out/Cat"), static_cast<QFile::Permissions>(0x5555));
    QFile::setPermissions(secret, {});
    {
        const support::AsAnybody rights;
        QString name = "a.txt";
        EXPECT_FALSE(exporter.write(secret, name));
        EXPECT_FALSE(exporter.write(readable, name));
        EXPECT_EQ(name, "a.txt") << "no copy was begun";
        EXPECT_FALSE(exporter.exportData("x", "a"));
        EXPECT_FALSE(exporter.enterDir("Trip"));
        CFileExporter another;
        EXPECT_FALSE(another.openExport(QDir(tree.path("out")), "Anna", "Other"));
    }
    QFile::setPermissions(tree.path("out/Cat"), static_cast<QFile::Permissions>(0x7777));
    QFile::setPermissions(tree.path("out"), static_cast<QFile::Permissions>(0x7777));
    EXPECT_EQ(written(), QStringList());
}

TEST_F(FileExporterFaults, AJpegWhoseCopyCannotBeBegunIsLookedForUnderItsName)
{
    const QString source = tree.write("in/a", encoded("JPG"));
    QString name = tree.write("there.jpg", encoded("JPG")) + QString(250, 'x') + ".jpg";
    EXPECT_FALSE(exporter.write(source, name));
    QDir(tree.path("out/Cat")).removeRecursively();
    name = tree.path("there.jpg"); // a name that is a path, though no copy was made
    EXPECT_TRUE(exporter.write(source, name));
    EXPECT_EQ(name, tree.path("there.jpg"));
}

TEST_F(FileExporterFaults, HeicComesOutAsItIsUnlessJpegIsAskedFor)
{
    const QByteArray heic("\0\0\0\x18"
                          "ftypheic and so on",
        22);
    EXPECT_EQ(nameOfCopy(heic, "a.HEIC"), "a.HEIC");
    EXPECT_EQ(written(), QStringList("a.HEIC"));
    EXPECT_EQ(exporter.unconverted(), QStringList());
}

TEST_F(FileExporterFaults, HeicComesOutTwiceWhereJpegIsAskedFor)
{
    const QByteArray heic = support::makeHeic(QImage(64, 64, QImage::Format_RGB32));
    if (heic.isEmpty()) {
        GTEST_SKIP() << "no encoder for HEIC";
    }
    convert();
    const LogMessages messages;
    EXPECT_EQ(nameOfCopy(heic, "a.b.HEIC"), "a.b.HEIC");
    EXPECT_EQ(nameOfCopy(heic, "a.b.HEIC"), "a.b (2).HEIC");
    EXPECT_EQ(written(), QStringList({"a.b (2).HEIC", "a.b (2).jpg", "a.b.HEIC", "a.b.jpg"}));
    EXPECT_EQ(contents("a.b.HEIC"), heic);
    EXPECT_EQ(QImage(tree.path("out/Cat/a.b.jpg")).size(), QSize(64, 64));
    const QString line = "dataexport.HEIC|info|HEIC file: " + tree.path("in/source");
    EXPECT_EQ(messages.lines(), QStringList({line, line}));
    EXPECT_EQ(exporter.unconverted(), QStringList());
}

TEST_F(FileExporterFaults, HeicThatCannotBeConvertedComesOutAsItIsAndIsNamed)
{
    convert();
    const LogMessages messages;
    const QByteArray heic("\0\0\0\x18"
                          "ftypheic and so on",
        22);
    QString name = "a.heic";
    EXPECT_TRUE(write(heic, name));
    EXPECT_EQ(written(), QStringList("a.heic"));
    EXPECT_EQ(contents("a.heic"), heic);
    EXPECT_EQ(exporter.unconverted(), QStringList(tree.path("out/Cat/a.heic")));
    EXPECT_EQ(messages.lines().size(), 1);
}

TEST_F(FileExporterFaults, HeicIsToldByItsNameAnywhereInTheFirst20Bytes)
{
    convert();
    const LogMessages messages;
    for (const char* bytes :
        {"HEIC", "a heic by chance", "1234567890123456heic", "12345678901234567heic"}) {
        nameOfCopy(bytes, "a");
    }
    const QString copies = tree.path("out/Cat/a");
    EXPECT_EQ(exporter.unconverted(), QStringList({copies, copies + " (2)", copies + " (3)"}))
        << "the last one ends behind them";
    EXPECT_EQ(messages.lines().size(), 3);
}

TEST_F(FileExporterFaults, AFileThatIsNoHeicIsNotConverted)
{
    convert();
    const LogMessages messages;
    EXPECT_EQ(nameOfCopy("plain text", "a.heic"), "a.heic");
    EXPECT_EQ(nameOfCopy("....ftypmif1", "b.heic"), "b.heic");
    EXPECT_EQ(messages.lines(), QStringList());
    EXPECT_EQ(exporter.unconverted(), QStringList());
}

TEST_F(FileExporterFaults, HeicThatCannotBeCopiedEitherIsNotNamedAsACopy)
{
    convert();
    const LogMessages silence;
    const QByteArray heic = "....ftypheic" + QByteArray(2'000, 'x');
    const QString source = tree.write("in/a", heic);
    {
        const support::LargestFile limit(1'000);
        QString name = "a.heic";
        EXPECT_FALSE(exporter.write(source, name));
    }
    EXPECT_EQ(written(), QStringList());
    EXPECT_EQ(exporter.unconverted(), QStringList());
}

// The four bytes behind the name of the kind are a version of its own, which no decoder minds.
TEST_F(FileExporterFaults, TheCheckOfAJpegReplacesTheResultOfAConversion)
{
    QByteArray heic = support::makeHeic(QImage(64, 64, QImage::Format_RGB32));
    if (heic.isEmpty()) {
        GTEST_SKIP() << "no encoder for HEIC";
    }
    heic.replace(12, 4, "jfif");
    convert();
    const LogMessages silence;
    QString name = "a.heic";
    EXPECT_FALSE(write(heic, name));
    EXPECT_EQ(written(), QStringList({"a.heic.jpg", "a.jpg"}));
    EXPECT_EQ(contents("a.heic.jpg"), heic);
    EXPECT_FALSE(QImage(tree.path("out/Cat/a.jpg")).isNull());
}

// The conversion alone worked: its result stands, and `name` stays what it was.
TEST_F(FileExporterFaults, AConversionIsTheResultWhereTheCopyCannotBeBegun)
{
    const QByteArray heic = support::makeHeic(QImage(64, 64, QImage::Format_RGB32));
    if (heic.isEmpty()) {
        GTEST_SKIP() << "no encoder for HEIC";
    }
    convert();
    const LogMessages silence;
    // As long as a name can be with the suffix of the JPEG, and too long with its own.
    QString name = QString(251, 'x') + ".heic-old";
    const QString given = name;
    EXPECT_TRUE(write(heic, name));
    EXPECT_EQ(name, given);
    EXPECT_EQ(written(), QStringList(QString(251, 'x') + ".jpg"));
}

} // namespace
