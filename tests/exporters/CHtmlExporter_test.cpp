// SPDX-License-Identifier: MIT
#include "exporters/CHtmlExporter.h"
#include "platform/OvResourceMgr.h"
#include "support/temp_tree.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImage>
#include <QTranslator>

#include <gtest/gtest.h>

#include <functional>
#include <unistd.h>

using support::TempTree;

namespace {

const QByteArray kBeforeTitle =
    R"(<!DOCTYPE html PUBLIC "-//W3C//DTD XHTML 1.0 Transitional//EN" "http://www.w3.org/TR/xhtml1/DTD/xhtml1-transitional.dtd"><html><head><meta http-equiv="Content-Type" content="text/html; charset=utf-8"><title>)";
const QByteArray kPageBegin = kBeforeTitle + "Anna's Notes</title></head><body>";
const QByteArray kPageEnd = "</body></html>";
const char* const kPage = "Notes/Anna's Notes.html";

bool open(CHtmlExporter& exporter, const TempTree& tree)
{
    return exporter.openExport(tree.dir(), "Anna", "Notes");
}

// The page with this body, written in one go.
QByteArray pageOf(const QString& body)
{
    const TempTree tree;
    CHtmlExporter exporter;
    EXPECT_TRUE(open(exporter, tree));
    EXPECT_TRUE(exporter.write(body));
    EXPECT_TRUE(exporter.closeExport(true));
    return tree.read(kPage);
}

QImage redImage()
{
    QImage image(2, 3, QImage::Format_RGB32);
    image.fill(Qt::red);
    return image;
}

// Everything else in the title would be no text of ours.
class Translated final : public QTranslator {
public:
    Translated() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char* /*context*/, const char* /*text*/, const char* /*hint*/,
        int /*count*/) const override
    {
        return "translated %1 %2";
    }
};

// The images of the product in `root`, until the end of the test.
class ResourceRoot {
public:
    explicit ResourceRoot(const QString& root)
    {
        OvResourceMgr::instance()->setProductResourceRoot(root);
    }
    ResourceRoot(const ResourceRoot&) = delete;
    ResourceRoot& operator=(const ResourceRoot&) = delete;
    ~ResourceRoot() { OvResourceMgr::instance()->setProductResourceRoot({}); }
};

} // namespace

TEST(CHtmlExporter, FramesThePageWithoutALineBreak)
{
    EXPECT_EQ(pageOf("<p>Body</p>"), kPageBegin + "<p>Body</p>" + kPageEnd);
}

TEST(CHtmlExporter, PutsTheHeadTextBehindTheTitleAsItIs)
{
    const TempTree tree;
    CHtmlExporter exporter;
    exporter.setHeadText("<style>a { width:80%; }\n%1 %2</style>");
    EXPECT_TRUE(open(exporter, tree));
    exporter.setHeadText("too late");
    EXPECT_TRUE(exporter.closeExport(true));
    EXPECT_EQ(tree.read(kPage), kBeforeTitle
                                    + "Anna's Notes</title><style>a { width:80%; }\n%1 %2</style>"
                                      "</head><body></body></html>");
}

TEST(CHtmlExporter, NamesFileAndTitleAlikeSafelyAndInEnglish)
{
    struct {
        const char* what = nullptr;
        QString owner;
        QString category;
        QString file;
        QByteArray title;
    } const rows[] = {
        {"a slash", "A/B", "Notes", "Notes/A_B's Notes.html", "A_B's Notes"},
        {"all that no file may hold", "\\:\"*?<>|\r\n", "Notes", "Notes/__________'s Notes.html",
            "__________'s Notes"},
        {"a folder in the category", "Anna", "Old/Notes", "Old/Notes/Anna's Old_Notes.html",
            "Anna's Old_Notes"},
        {"place marks", "%2 %1", "%1", "%1/%2 %1's %1.html", "%2 %1's %1"},
        {"what a page would escape", "A & B", "Notes", "Notes/A & B's Notes.html", "A & B's Notes"},
        {"other letters", QString::fromUtf8("Ä😀"), "Notes",
            QString::fromUtf8("Notes/Ä😀's Notes.html"), "\xC3\x84\xF0\x9F\x98\x80's Notes"},
        {"no owner", "", "Notes", "Notes/'s Notes.html", "'s Notes"},
    };
    const Translated translated;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const TempTree tree;
        CHtmlExporter exporter;
        EXPECT_TRUE(exporter.openExport(tree.dir(), row.owner, row.category));
        EXPECT_TRUE(exporter.closeExport(true));
        EXPECT_EQ(
            tree.read(row.file), kBeforeTitle + row.title + "</title></head><body></body></html>");
    }
}

TEST(CHtmlExporter, ReplacesAPageOfThatName)
{
    const TempTree tree;
    tree.write(kPage, QByteArray(10'000, 'x'));
    CHtmlExporter exporter;
    EXPECT_TRUE(open(exporter, tree));
    EXPECT_TRUE(exporter.closeExport(true));
    EXPECT_EQ(tree.read(kPage), kPageBegin + kPageEnd);
    EXPECT_EQ(tree.list(), QStringList({"Notes/", kPage}));
}

TEST(CHtmlExporter, ReplacesTheFilesBesideAPageOfThatName)
{
    const TempTree tree;
    for (const QByteArray contents : {"the first", "2nd"}) {
        const QString source = tree.write("source", contents);
        CHtmlExporter exporter;
        EXPECT_TRUE(open(exporter, tree));
        EXPECT_TRUE(exporter.copyDepend(source, "copied"));
        EXPECT_TRUE(exporter.exportData(contents, "written"));
        EXPECT_TRUE(exporter.closeExport(true));
        EXPECT_EQ(tree.read("Notes/image/copied"), contents);
        EXPECT_EQ(tree.read("Notes/image/written"), contents);
    }
}

TEST(CHtmlExporter, OpensInASubDirectoryToo)
{
    const TempTree tree;
    CHtmlExporter exporter;
    EXPECT_TRUE(exporter.openExport(tree.dir(), "Anna", "Notes", "HTML"));
    EXPECT_TRUE(exporter.exportData("x", "file"));
    EXPECT_TRUE(exporter.closeExport(true));
    EXPECT_EQ(tree.list(), QStringList({"Notes/", "Notes/HTML/", "Notes/HTML/Anna's Notes.html",
                               "Notes/HTML/image/", "Notes/HTML/image/file"}));
}

TEST(CHtmlExporter, WithoutFilesLeavesNoDirectoryForThem)
{
    const TempTree tree;
    CHtmlExporter exporter;
    EXPECT_TRUE(open(exporter, tree));
    EXPECT_TRUE(exporter.write("text"));
    EXPECT_TRUE(exporter.closeExport(true));
    EXPECT_EQ(tree.list(), QStringList({"Notes/", kPage}));
}

TEST(CHtmlExporter, MakesTheDirectoryWithEachKindOfFileAndAgainWhereItIsGone)
{
    const TempTree tree;
    const QString source = tree.write("source", "x");
    tree.write("DataExport/deleted.png", "x");
    const ResourceRoot root(tree.path());
    struct {
        const char* what = nullptr;
        std::function<void(CHtmlExporter&)> add;
    } const rows[] = {
        {"bytes", [](CHtmlExporter& exporter) { exporter.exportData("x", "file"); }},
        {"an image", [](CHtmlExporter& exporter) { exporter.saveImage(redImage(), "file.png"); }},
        {"a copy", [&](CHtmlExporter& exporter) { exporter.copyDepend(source, "file"); }},
        {"a copy of nothing", [](CHtmlExporter& exporter) { exporter.copyDepend("/no", "file"); }},
        {"a resource",
            [](CHtmlExporter& exporter) { exporter.copyResource("deleted.png", "file"); }},
        {"the mark", [](CHtmlExporter& exporter) { exporter.copyDeletedIcon(); }},
    };
    CHtmlExporter exporter;
    EXPECT_TRUE(open(exporter, tree));
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_FALSE(tree.exists("Notes/image"));
        row.add(exporter);
        EXPECT_TRUE(tree.exists("Notes/image"));
        EXPECT_TRUE(QDir(tree.path("Notes/image")).removeRecursively());
    }
}

TEST(CHtmlExporter, WritesBytesBesideThePage)
{
    const TempTree tree;
    CHtmlExporter exporter;
    EXPECT_TRUE(open(exporter, tree));
    EXPECT_TRUE(exporter.exportData(QByteArray("\0\r\n\xFF", 4), "a.bin"));
    EXPECT_TRUE(exporter.exportData("", "empty"));
    EXPECT_EQ(tree.read("Notes/image/a.bin"), QByteArray("\0\r\n\xFF", 4));
    EXPECT_EQ(tree.read("Notes/image/empty"), "");
    EXPECT_FALSE(exporter.exportData("x", "no/such/folder"));
    EXPECT_FALSE(exporter.exportData("x", QString(300, 'x')));
}

TEST(CHtmlExporter, DoesNotSeeThatADiskIsFull)
{
    const TempTree tree;
    tree.makeDir("Notes/image");
    tree.link("Notes/image/full", "/dev/full"); // can be opened, and takes nothing
    tree.link(kPage, "/dev/full");
    CHtmlExporter exporter;
    EXPECT_TRUE(open(exporter, tree));
    EXPECT_TRUE(exporter.exportData("x", "full"));
    EXPECT_TRUE(exporter.write(QString(100'000, 'x')));
    EXPECT_TRUE(exporter.write("y"));
    EXPECT_TRUE(exporter.closeExport(true));
}

TEST(CHtmlExporter, SavesAnImageInTheFormatOfItsSuffix)
{
    const TempTree tree;
    CHtmlExporter exporter;
    EXPECT_TRUE(open(exporter, tree));
    EXPECT_TRUE(exporter.saveImage(redImage(), "a.png"));
    EXPECT_TRUE(exporter.saveImage(redImage(), "a.jpg_thumb.png"));
    EXPECT_TRUE(exporter.saveImage(redImage(), "a.bmp"));
    EXPECT_TRUE(tree.read("Notes/image/a.png").startsWith("\x89PNG"));
    EXPECT_TRUE(tree.read("Notes/image/a.jpg_thumb.png").startsWith("\x89PNG"));
    EXPECT_TRUE(tree.read("Notes/image/a.bmp").startsWith("BM"));
    EXPECT_EQ(
        QImage(tree.path("Notes/image/a.png")).convertToFormat(QImage::Format_RGB32), redImage());
}

TEST(CHtmlExporter, DoesNotSeeThatAnImageCouldNotBeSaved)
{
    const TempTree tree;
    CHtmlExporter exporter;
    EXPECT_TRUE(open(exporter, tree));
    EXPECT_TRUE(exporter.saveImage(redImage(), "a.unknown"));
    EXPECT_TRUE(exporter.saveImage(redImage(), "no/such/folder.png"));
    EXPECT_TRUE(exporter.saveImage(QImage(), "null.png"));
    EXPECT_EQ(tree.list(), QStringList({"Notes/", kPage, "Notes/image/"}));
}

TEST(CHtmlExporter, CopiesAFileBesideThePage)
{
    const TempTree tree;
    const QString source = tree.write("source.jpg", "picture");
    CHtmlExporter exporter;
    EXPECT_TRUE(open(exporter, tree));
    EXPECT_TRUE(exporter.copyDepend(source, "name.jpg"));
    EXPECT_EQ(tree.read("Notes/image/name.jpg"), "picture");
    EXPECT_FALSE(exporter.copyDepend(tree.path("missing"), "missing"));
    EXPECT_FALSE(exporter.copyDepend("", "empty"));
    EXPECT_EQ(tree.list(),
        QStringList({"Notes/", kPage, "Notes/image/", "Notes/image/name.jpg", "source.jpg"}));
}

TEST(CHtmlExporter, FailsEachFileWhereTheDirectoryCannotBeMade)
{
    const TempTree tree;
    tree.write("Notes/image", "a file");
    const QString source = tree.write("source", "x");
    CHtmlExporter exporter;
    EXPECT_TRUE(open(exporter, tree));
    EXPECT_FALSE(exporter.exportData("x", "a"));
    EXPECT_FALSE(exporter.copyDepend(source, "a"));
    EXPECT_TRUE(exporter.saveImage(redImage(), "a.png"));
    EXPECT_TRUE(exporter.closeExport(true));
    EXPECT_EQ(tree.read("Notes/image"), "a file");
    EXPECT_EQ(tree.read(kPage), kPageBegin + kPageEnd);
}

TEST(CHtmlExporter, CopiesImagesOfTheProductFromTheirFolder)
{
    const TempTree tree;
    tree.write("res/DataExport/deleted.png", "mark");
    tree.write("res/DataExport/%1/like.png", "like");
    const ResourceRoot root(tree.path("res"));
    CHtmlExporter exporter;
    EXPECT_TRUE(open(exporter, tree));
    exporter.copyDeletedIcon();
    exporter.copyResource("%1/like.png", "other.png");
    exporter.copyResource("missing.png", "missing.png");
    EXPECT_EQ(QDir(tree.path("Notes/image")).entryList(QDir::Files),
        QStringList({"deleted.png", "other.png"}));
    EXPECT_EQ(tree.read("Notes/image/deleted.png"), "mark");
    EXPECT_EQ(tree.read("Notes/image/other.png"), "like");
}

TEST(CHtmlExporter, SharesTheNamesOfItsDirectoryAndOfTheMark)
{
    EXPECT_EQ(kImageDirectory, QString("image"));
    EXPECT_EQ(kDeletedIcon, QString("deleted.png"));
}

TEST(CHtmlExporter, AnswersForAllElseAsTheBaseDoes)
{
    const TempTree tree;
    CHtmlExporter exporter;
    EXPECT_TRUE(exporter.openCommonExport(tree.dir(), "Anna", "Notes", ""));
    EXPECT_TRUE(exporter.beginItem("name"));
    EXPECT_TRUE(exporter.endItem());
    EXPECT_FALSE(exporter.exportThumbData("source", "name"));
    EXPECT_FALSE(exporter.exportHttpData("http://h/", "path"));
    EXPECT_EQ(tree.list(), QStringList("Notes/"));
}

TEST(CHtmlExporter, WriteLeavesTheResultAlone)
{
    const TempTree tree;
    CHtmlExporter exporter;
    EXPECT_TRUE(open(exporter, tree));
    QString result = "before";
    EXPECT_TRUE(exporter.write("text", result));
    EXPECT_EQ(result, "before");
}

TEST(CHtmlExporter, WithoutAFileToOpenFails)
{
    const TempTree tree;
    tree.makeDir(kPage);
    CHtmlExporter exporter;
    EXPECT_FALSE(open(exporter, tree));
    CHtmlExporter tooLong;
    EXPECT_FALSE(tooLong.openExport(tree.dir(), QString(300, 'x'), "Notes"));
    EXPECT_EQ(tree.list(), QStringList({"Notes/", "Notes/Anna's Notes.html/"}));
}

TEST(CHtmlExporter, AFailedPageGetsNoEndAndGoesButItsFilesStay)
{
    const TempTree tree;
    CHtmlExporter exporter;
    EXPECT_TRUE(open(exporter, tree));
    EXPECT_TRUE(exporter.write("text"));
    EXPECT_TRUE(exporter.exportData("x", "file"));
    // A second name keeps what the page was when it was removed.
    const QByteArray second = QFile::encodeName(tree.path("second"));
    ASSERT_EQ(::link(QFile::encodeName(tree.path(kPage)).constData(), second.constData()), 0);
    EXPECT_TRUE(exporter.endFile(false));
    EXPECT_EQ(tree.list(), QStringList({"Notes/", "Notes/image/", "Notes/image/file", "second"}));
    EXPECT_EQ(tree.read("second"), kPageBegin + "text");
}

TEST(CHtmlExporter, ClosingWithoutSuccessRemovesTheCategoryWithTheFiles)
{
    const TempTree tree;
    CHtmlExporter exporter;
    EXPECT_TRUE(open(exporter, tree));
    EXPECT_TRUE(exporter.exportData("x", "file"));
    EXPECT_TRUE(exporter.closeExport(false));
    EXPECT_EQ(tree.list(), QStringList());
}

TEST(CHtmlExporter, ThatWasNeverOpenedClosesWithoutATrace)
{
    CHtmlExporter exporter;
    EXPECT_TRUE(exporter.closeExport(false));
}

TEST(CHtmlExporter, EndsThePageOnDisk)
{
    const TempTree tree;
    CHtmlExporter exporter;
    EXPECT_TRUE(open(exporter, tree));
    EXPECT_TRUE(exporter.write("text"));
    EXPECT_TRUE(exporter.endFile(true));
    EXPECT_EQ(tree.read(kPage), kPageBegin + "text" + kPageEnd); // while the exporter is alive
}

namespace {

// What a stream makes of all text in one piece.
QByteArray inOneWrite(const QString& text)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QTextStream stream(&buffer);
    stream.setCodec("UTF-8");
    stream << text;
    stream.flush();
    return buffer.data();
}

const QChar kHigh(0xD83D);
const QChar kLow(0xDE00);

} // namespace

TEST(CHtmlExporterText, IsUtf8WithoutAMarkWhateverIsInIt)
{
    EXPECT_EQ(pageOf(QString::fromUtf8("aäא😀\r\n") + QChar(0) + QChar(0xFEFF) + "%1"),
        kPageBegin + QByteArray("a\xC3\xA4\xD7\x90\xF0\x9F\x98\x80\r\n\0\xEF\xBB\xBF%1", 17)
            + kPageEnd);
}

TEST(CHtmlExporterText, OfAnySizeIsWrittenAsInOnePiece)
{
    for (const int size :
        {0, 1, 16'383, 16'384, 16'385, 32'767, 32'768, 32'769, 65'535, 65'536, 65'537, 200'000}) {
        SCOPED_TRACE(size);
        QString text(size, 'x');
        for (int i = 0; i < size; i += 7) {
            text[i] = QChar(0x20AC); // of three bytes
        }
        EXPECT_TRUE(pageOf(text) == kPageBegin + text.toUtf8() + kPageEnd);
    }
}

TEST(CHtmlExporterText, KeepsPairsAndHalvesThatStandAtTheEdgeOfAPiece)
{
    const QString rows[] = {QString(kHigh) + kLow, QString(kHigh), QString(kLow),
        QString(kHigh) + kHigh, QString(kHigh) + kHigh + kLow, QString(kLow) + kHigh,
        QString(kLow) + kLow, QString(kHigh) + kLow + kLow};
    for (const QString& units : rows) {
        SCOPED_TRACE(
            QByteArray::fromRawData(reinterpret_cast<const char*>(units.utf16()), units.size() * 2)
                .toHex()
                .toStdString());
        for (int before = 32'768 - 4; before <= 32'768 + 1; ++before) {
            SCOPED_TRACE(before);
            const QString text = QString(before, 'x') + units;
            EXPECT_TRUE(pageOf(text + "y") == kPageBegin + inOneWrite(text + "y") + kPageEnd);
            EXPECT_TRUE(pageOf(text) == kPageBegin + inOneWrite(text + QString(kPageEnd)));
        }
    }
}

TEST(CHtmlExporterText, OfPairsAloneIsWholeAtAnyOffset)
{
    QString pairs;
    for (int i = 0; i < 50'000; ++i) {
        pairs += kHigh;
        pairs += kLow;
    }
    const QByteArray bytes = QByteArray("\xF0\x9F\x98\x80").repeated(50'000);
    EXPECT_TRUE(pageOf(pairs) == kPageBegin + bytes + kPageEnd);
    EXPECT_TRUE(pageOf("x" + pairs) == kPageBegin + "x" + bytes + kPageEnd);
}

TEST(CHtmlExporterText, JoinsAPairThatComesInTwoWrites)
{
    const TempTree tree;
    CHtmlExporter exporter;
    EXPECT_TRUE(open(exporter, tree));
    EXPECT_TRUE(exporter.write(QString(40'000, 'x') + kHigh));
    EXPECT_TRUE(exporter.write(QString(kLow) + "y"));
    EXPECT_TRUE(exporter.closeExport(true));
    EXPECT_TRUE(
        tree.read(kPage) == kPageBegin + QByteArray(40'000, 'x') + "\xF0\x9F\x98\x80y" + kPageEnd);
}
