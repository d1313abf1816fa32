// SPDX-License-Identifier: MIT
#include "exporters/CFileExporter.h"
#include "exporters/file_exporter_fixture.h"
#include "support/http_server.h"
#include "support/log_messages.h"

namespace {

using FileExporter = FileExporterTest;
using support::LogMessages;

TEST_F(FileExporter, CopiesAFileUnderItsNameAndTellsWhereItIs)
{
    const QByteArray bytes = QByteArray("some bytes\0 and more", 20).repeated(5'000);
    QString name = "a.mov";
    EXPECT_TRUE(write(bytes, name));
    EXPECT_EQ(name, tree.path("out/Cat/a.mov"));
    EXPECT_EQ(contents("a.mov"), bytes);
    EXPECT_EQ(written(), QStringList("a.mov"));
}

TEST_F(FileExporter, CopiesAllSizesAroundItsChunk)
{
    for (const int size : {0, 1, 19, 20, 21, 16'383, 16'384, 16'385, 32'768, 32'769}) {
        SCOPED_TRACE(size);
        QByteArray bytes(size, 'x');
        if (size > 0) {
            bytes[size - 1] = 'y';
        }
        QString name = QString::number(size);
        EXPECT_TRUE(write(bytes, name));
        EXPECT_EQ(support::TempTree::readFile(name), bytes);
    }
}

TEST_F(FileExporter, GivesNamesTheSuffixesOfWhatTheFirstBytesTell)
{
    struct {
        const char* what = nullptr;
        QByteArray bytes;
        QString name;
        QString copy;
    } const rows[] = {
        {"nothing known", "plain text", "a.txt", "a.txt"},
        {"nothing known, no suffix", "plain text", "a", "a"},
        {"JFIF, suffix in capitals", "\xFF\xD8\xFF\xE0..JFIF", "a.JPG", "a.JPG"},
        {"JFIF, the longer suffix", "\xFF\xD8\xFF\xE0..JFIF", "a.Jpeg", "a.Jpeg"},
        {"JFIF, no suffix", "\xFF\xD8\xFF\xE0..JFIF", "photo", "photo.jpg"},
        {"JFIF, another suffix", "\xFF\xD8\xFF\xE0..JFIF", "a.png", "a.png.jpg"},
        {"Exif", "\xFF\xD8\xFF\xE1..Exif", "photo", "photo.jpg"},
        {"small letters of another kind", "..jfif", "a", "a.jpg"},
        {"GIF", "GIF89a", "a", "a.gif"},
        {"GIF, suffix in capitals", "GIF89a", "a.GIF", "a.GIF"},
        {"PNG", "\x89PNG\r\n", "a.jpg", "a.jpg.png"},
        {"PNG, suffix in capitals", "\x89PNG\r\n", "a.Png", "a.Png"},
        {"WebP", "RIFF....WEBPVP8 ", "a.jpg", "a.jpg.webp"},
        {"WebP, suffix in capitals", "RIFF....WEBPVP8 ", "a.WEBP", "a.WEBP"},
        {"property list", "bplist00", "a", "a.plist"},
        {"property list, suffix in capitals", "bplist00", "a.PList", "a.PList"},
        {"by chance within the first 20 bytes", "a text about a gif", "a.txt", "a.txt.gif"},
        {"ends at the 20th byte", "12345678901234567GIF", "a", "a.gif"},
        {"ends behind the 20th byte", "123456789012345678GIF", "a", "a"},
        {"several kinds", "JFIF GIF PNG WEBP", "a", "a.jpg.gif.png.webp"},
        {"all kinds but that of the suffix", "GIF PNG WEBP BPLIST", "a.PNG",
            "a.PNG.gif.webp.plist"},
        {"HEIC without a conversion", "....ftypheic", "a", "a"},
        {"only the last suffix counts", "GIF89a", "a.gif.txt", "a.gif.txt.gif"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const LogMessages silence; // these are no whole pictures
        QDir(tree.path("out/Cat")).removeRecursively();
        tree.makeDir("out/Cat");
        EXPECT_EQ(nameOfCopy(row.bytes, row.name), row.copy);
        EXPECT_EQ(written(), QStringList(row.copy));
        EXPECT_EQ(contents(row.copy), row.bytes);
    }
}

TEST_F(FileExporter, MakesNamesSafeAndUnique)
{
    struct {
        const char* what = nullptr;
        QString name;
        QString copy;
    } const rows[] = {
        {"plain", "a.txt", "a.txt"},
        {"taken", "a.txt", "a (2).txt"},
        {"taken again", "a.txt", "a (3).txt"},
        {"another suffix", "a.doc", "a.doc"},
        {"the number stands before the last suffix", "b.tar.gz", "b.tar.gz"},
        {"likewise", "b.tar.gz", "b.tar (2).gz"},
        {"signs that no file may have", "c/d:e?.txt", "c_d_e_.txt"},
        {"out of the category", "../x", ".._x"},
        {"a place for text", "%1 %2.txt", "%1 %2.txt"},
        {"a point at its end goes", "f.", "f"},
        {"a suffix alone", ".hidden", ".hidden"},
        {"likewise, taken", ".hidden", " (2).hidden"},
        {"empty", "", " (2)"},
        {"two points", "..", ". (2)"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(nameOfCopy("x", row.name), row.copy);
    }
}

TEST_F(FileExporter, ReportsASourceThatCannotBeRead)
{
    for (const QString& source : {QString(), tree.path("in/none"), tree.makeDir("in/folder")}) {
        SCOPED_TRACE(source.toStdString());
        const LogMessages messages;
        QString name = "a.jpg";
        EXPECT_FALSE(exporter.write(source, name));
        EXPECT_EQ(name, "a.jpg");
        EXPECT_EQ(written(), QStringList());
        EXPECT_EQ(messages.lines(), QStringList());
    }
}

TEST_F(FileExporter, ReportsAJpegThatCannotBeLoadedAndKeepsItsCopy)
{
    const LogMessages silence; // the decoder speaks
    QString name = "a.jpg";
    EXPECT_TRUE(write(encoded("JPG"), name));
    name = "b.jpg";
    const QByteArray head = encoded("JPG").left(100);
    EXPECT_FALSE(write(head, name));
    EXPECT_EQ(name, tree.path("out/Cat/b.jpg"));
    EXPECT_EQ(contents("b.jpg"), head);
    name = "c"; // no JPEG but for the letters
    EXPECT_FALSE(write("a text on JFIF", name));
    EXPECT_EQ(contents("c.jpg"), "a text on JFIF");
}

TEST_F(FileExporter, TakesAJpegWithDamagedDataForWhole)
{
    const LogMessages silence;
    QByteArray jpeg = encoded("JPG", 300);
    jpeg.truncate(jpeg.size() - 50);
    ASSERT_FALSE(QImage::fromData(jpeg).isNull());
    QString name = "a.jpg";
    EXPECT_TRUE(write(jpeg, name));
}

TEST_F(FileExporter, ChecksOtherKindsOfPicturesNot)
{
    QString name = "a";
    EXPECT_TRUE(write("\x89PNG and no more", name));
    EXPECT_EQ(name, tree.path("out/Cat/a.png"));
}

TEST_F(FileExporter, WritesBytesUnderAFreeName)
{
    EXPECT_TRUE(exporter.exportData("one", "a?.txt"));
    EXPECT_TRUE(exporter.exportData("two", "a?.txt"));
    EXPECT_TRUE(exporter.exportData("", "empty"));
    EXPECT_TRUE(exporter.exportData("\xFF\xD8 JFIF", "as it is")) << "no suffix for bytes";
    EXPECT_EQ(written(), QStringList({"a_ (2).txt", "a_.txt", "as it is", "empty"}));
    EXPECT_EQ(contents("a_.txt"), "one");
    EXPECT_EQ(contents("a_ (2).txt"), "two");
    EXPECT_EQ(contents("empty"), "");
}

TEST_F(FileExporter, SavesThePictureOfAThumbnailInTheFormatOfTheName)
{
    const QString source = tree.write("in/thumb.dat", encoded("BMP", 16));
    EXPECT_TRUE(exporter.exportThumbData(source, "a.png"));
    EXPECT_TRUE(exporter.exportThumbData(source, "a.png"));
    EXPECT_TRUE(exporter.exportThumbData(source, "b.JPG"));
    EXPECT_EQ(written(), QStringList({"a (2).png", "a.png", "b.JPG"}));
    EXPECT_TRUE(contents("a.png").startsWith("\x89PNG"));
    EXPECT_TRUE(contents("b.JPG").startsWith("\xFF\xD8"));
    EXPECT_EQ(QImage(tree.path("out/Cat/a.png")).size(), QSize(16, 16));
}

TEST_F(FileExporter, ReportsAThumbnailThatIsNoPictureOrHasNoFormat)
{
    EXPECT_FALSE(exporter.exportThumbData(tree.path("in/none"), "a.png"));
    EXPECT_FALSE(exporter.exportThumbData("", "a.png"));
    EXPECT_FALSE(exporter.exportThumbData(tree.write("in/text", "text"), "a.png"));
    EXPECT_FALSE(exporter.exportThumbData(tree.write("in/a.bmp", encoded("BMP")), "a.mov"));
    EXPECT_FALSE(exporter.exportThumbData(tree.path("in/a.bmp"), "a"));
    EXPECT_EQ(written(), QStringList());
}

TEST_F(FileExporter, GoesIntoTheDirectoryOfAParentAndBack)
{
    EXPECT_TRUE(exporter.enterDir("Trip: 1"));
    EXPECT_EQ(nameOfCopy("x", "a"), "Trip_ 1/a");
    exporter.leaveDir();
    EXPECT_EQ(nameOfCopy("x", "a"), "a");
    EXPECT_TRUE(exporter.enterDir("Trip: 1")) << "the same directory, not a new one";
    EXPECT_EQ(nameOfCopy("x", "a"), "Trip_ 1/a (2)");
    exporter.leaveDir();
    EXPECT_TRUE(exporter.enterDir("Trip? 1")) << "a name that differs in unsafe signs alone";
    EXPECT_EQ(nameOfCopy("x", "b"), "Trip_ 1/b");
    exporter.leaveDir();
    EXPECT_EQ(written(), QStringList({"Trip_ 1/", "Trip_ 1/a", "Trip_ 1/a (2)", "Trip_ 1/b", "a"}));
}

TEST_F(FileExporter, TakesADirectoryThatIsThere)
{
    tree.write("out/Cat/Trip/a", "before");
    EXPECT_TRUE(exporter.enterDir("Trip"));
    EXPECT_EQ(nameOfCopy("x", "a"), "Trip/a (2)");
}

TEST_F(FileExporter, StaysWhereItIsForAParentWithoutADirectory)
{
    tree.write("out/Cat/file", "x");
    for (const QString& name :
        {QString("."), QString(".."), QString(), QString("file"), QString(300, 'x')}) {
        SCOPED_TRACE(name.toStdString());
        const LogMessages messages;
        EXPECT_FALSE(exporter.enterDir(name));
        EXPECT_FALSE(exporter.enterDir(name));
        EXPECT_EQ(QFileInfo(exporter.uniquePath("a")).path(), tree.path("out/Cat"));
        EXPECT_EQ(messages.lines(), QStringList());
    }
    EXPECT_EQ(written(), QStringList("file"));
    EXPECT_TRUE(exporter.enterDir("/")) << "a name like others, when it is safe";
    EXPECT_EQ(nameOfCopy("x", "a"), "_/a");
}

TEST_F(FileExporter, ReportsADirectoryThatHasGone)
{
    EXPECT_TRUE(exporter.enterDir("Trip"));
    exporter.leaveDir();
    QDir(tree.path("out/Cat/Trip")).removeRecursively();
    EXPECT_FALSE(exporter.enterDir("Trip"));
    EXPECT_EQ(nameOfCopy("x", "a"), "a");
}

TEST_F(FileExporter, FetchesAnAddressIntoThePlaceOfAFile)
{
    support::HttpServer server;
    server.answer("/a", support::HttpServer::reply(200, "fetched"));
    const QString local = tree.write("in/local.jpg", "before");
    EXPECT_TRUE(exporter.exportHttpData(server.address("/a"), local));
    EXPECT_EQ(tree.read("in/local.jpg"), "fetched");
    EXPECT_EQ(contents("local.jpg"), "fetched");
}

TEST_F(FileExporter, FetchesAnAddressForAFileThatIsNotThereUnderANumber)
{
    support::HttpServer server;
    server.answer("/a", support::HttpServer::reply(200, "fetched"));
    EXPECT_TRUE(exporter.exportHttpData(server.address("/a"), tree.path("in/none.jpg")));
    EXPECT_FALSE(tree.exists("in/none.jpg"));
    EXPECT_EQ(written(), QStringList(" (2)"));
}

TEST_F(FileExporter, AsksForNothingWithoutAPlaceForIt)
{
    support::HttpServer server;
    server.answer("/a", support::HttpServer::reply(200, "fetched"));
    EXPECT_TRUE(exporter.exportHttpData(server.address("/a"), ""));
    EXPECT_TRUE(server.asked().empty());
    EXPECT_EQ(written(), QStringList());
}

TEST_F(FileExporter, CallsEachFetchASuccess)
{
    support::HttpServer server;
    EXPECT_TRUE(exporter.exportHttpData(server.address("/none"), tree.path("in/none.jpg")));
    EXPECT_TRUE(exporter.exportHttpData("no address", ""));
    const QString local = tree.write("in/local.jpg", "before");
    EXPECT_TRUE(exporter.exportHttpData(server.address("/none"), local));
    EXPECT_FALSE(tree.exists("in/local.jpg")) << "it made room for what did not come";
    EXPECT_EQ(written(), QStringList());
}

TEST_F(FileExporter, HasNothingToDoForRecordsPagesAndEnds)
{
    EXPECT_TRUE(exporter.beginItem("name"));
    EXPECT_TRUE(exporter.endItem());
    EXPECT_TRUE(exporter.copyDepend(tree.write("in/a", "x"), "a"));
    EXPECT_TRUE(exporter.beginCommonFile(QDir(tree.path())));
    EXPECT_FALSE(exporter.saveImage(QImage(1, 1, QImage::Format_RGB32), "a.png"));
    EXPECT_EQ(written(), QStringList());
    EXPECT_TRUE(exporter.endFile(false));
    EXPECT_TRUE(tree.exists("out/Cat"));
    EXPECT_TRUE(exporter.closeExport(true));
    EXPECT_TRUE(tree.exists("out/Cat"));
    EXPECT_TRUE(exporter.closeExport(false));
    EXPECT_FALSE(tree.exists("out/Cat"));
}

} // namespace
