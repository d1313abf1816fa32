// SPDX-License-Identifier: MIT
#include "exporters/page_text.h"
#include "model/PRNoteItem.h"
#include "support/recording_page.h"
#include "support/temp_tree.h"
#include "translators/records/note_cell.h"

#include <QImage>

#include <gtest/gtest.h>

namespace {

using Piece = PRNoteItem::NotePiece;

// SHA-1 of the path and the label one after the other, as sha1sum has it.
const char* const kAJpgKnot = "689c1c2cf8c2c436bbf742c2295a9f7d921acca1";  // "/n/a.jpgKnot"
const char* const kAHeicKnot = "8be7dc7ad0196b7946b617802c2e93ab62e2dc20"; // "/n/a.heicKnot"

QImage picture(int width, int height = 10)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    return image;
}

struct Drawn {
    std::string cell;
    QStringList files;
    QList<QImage> images;
};

Drawn draw(std::vector<Piece> pieces)
{
    const PRNoteItem note({}, std::move(pieces));
    RecordingPage exporter;
    Page page;
    drawNoteCell(page, note, &exporter);
    EXPECT_EQ(exporter.writes.size(), 0);
    return {page.text().toStdString(), exporter.files, exporter.images};
}

// The cell of one picture.
std::string pictureCell(const std::string& name, const std::string& shown)
{
    return R"(<td><a href="Image/)" + name + R"(" target='_blank'><img src = "Image/)" + shown
           + R"("></a>&nbsp;<br></td>)";
}

// Of a piece that is drawn as a picture, the name of its file behind the point.
std::string extensionOf(const QString& content, const QString& label, const QString& sourcePath)
{
    const Drawn drawn = draw({{.kind = 1,
        .content = content,
        .label = label,
        .sourcePath = sourcePath,
        .preview = picture(10)}});
    EXPECT_FALSE(drawn.files.isEmpty());
    const QString copy = drawn.files.value(0);
    return copy.mid(copy.lastIndexOf(" as ") + 4 + 41).toStdString();
}

TEST(NoteCell, OfTextsHasAParagraphForEach)
{
    EXPECT_EQ(draw({{.content = "Rope"}, {.content = ""}, {.content = "Tea"}}).cell,
        "<td><p>Rope</p><p></p><p>Tea</p></td>");
}

TEST(NoteCell, EscapesItsTexts)
{
    EXPECT_EQ(draw({{.content = "<b> & \"c\"\n %1"}}).cell,
        "<td><p>&lt;b&gt; &amp; &quot;c&quot;<br> %1</p></td>");
}

TEST(NoteCell, PassesOverPiecesOfOtherKindsAndPicturesWithoutPreview)
{
    const Drawn drawn = draw({{.kind = 2, .content = "a", .preview = picture(10)},
        {.kind = -1, .content = "b"}, {.kind = 1, .content = "/n/a.jpg", .sourcePath = "/n/b.jpg"},
        {.content = "text", .preview = picture(10)}});
    EXPECT_EQ(drawn.cell, "<td><p>text</p></td>");
    EXPECT_EQ(drawn.files, QStringList());
}

TEST(NotePicture, WithoutASourceWhoseFileIsNoWiderThanItsPreviewNeedsNoThumbnail)
{
    const support::TempTree tree;
    for (const int width : {99, 100}) {
        SCOPED_TRACE(width);
        const QString path = tree.path("a.png");
        ASSERT_TRUE(picture(width).save(path));
        const Drawn drawn = draw({{.kind = 1, .content = path, .preview = picture(100)}});
        ASSERT_EQ(drawn.files.size(), 1);
        const QString name = drawn.files[0].section(" as ", 1);
        EXPECT_EQ(drawn.files[0], "copy " + path + " as " + name);
        EXPECT_EQ(drawn.cell, pictureCell(name.toStdString(), name.toStdString()));
    }
}

TEST(NotePicture, WithoutASourceThatCannotBeLoadedCountsAsNoWidth)
{
    const Drawn drawn =
        draw({{.kind = 1, .content = "/n/a.jpg", .label = "Knot", .preview = picture(1)}});
    const std::string name = std::string(kAJpgKnot) + ".jpg";
    EXPECT_EQ(drawn.cell, pictureCell(name, name));
    EXPECT_EQ(drawn.files, QStringList("copy /n/a.jpg as " + QString::fromStdString(name)));
}

TEST(NotePicture, WithoutASourceWhoseFileIsWiderHasAThumbnail)
{
    const support::TempTree tree;
    const QString path = tree.path("a.png");
    ASSERT_TRUE(picture(101).save(path));
    const Drawn drawn = draw({{.kind = 1, .content = path, .preview = picture(100)}});
    ASSERT_EQ(drawn.files.size(), 2);
    const QString name = drawn.files[0].section(" as ", 1);
    EXPECT_EQ(drawn.files[1], "save 100x10 as " + name + "_thumb.png");
    EXPECT_EQ(drawn.cell, pictureCell(name.toStdString(), name.toStdString() + "_thumb.png"));
}

TEST(NotePicture, IsComparedWithWhatIsShownNotWithItsPreview)
{
    const support::TempTree tree;
    const QString path = tree.path("a.png");
    ASSERT_TRUE(picture(146).save(path));
    EXPECT_EQ(draw({{.kind = 1, .content = path, .preview = picture(146)}}).files.size(), 2);
    ASSERT_TRUE(picture(145).save(path));
    EXPECT_EQ(draw({{.kind = 1, .content = path, .preview = picture(146)}}).files.size(), 1);
}

TEST(NotePicture, WithASourceAlwaysHasAThumbnailAndLeadsToTheSource)
{
    const Drawn drawn = draw({{.kind = 1,
        .content = "/n/a.jpg",
        .label = "Knot",
        .sourcePath = "/n/a.heic",
        .preview = picture(20)}});
    const std::string name = std::string(kAHeicKnot) + ".heic";
    EXPECT_EQ(drawn.cell, pictureCell(name, name + "_thumb.png"));
    EXPECT_EQ(drawn.files, QStringList({"copy /n/a.heic as " + QString::fromStdString(name),
                               "save 20x10 as " + QString::fromStdString(name) + "_thumb.png"}));
}

TEST(NotePicture, IsShownAtMost145PixelsWide)
{
    struct {
        int width = 0;
        int height = 0;
        QSize shown;
    } const rows[] = {{1, 10, {1, 10}}, {145, 10, {145, 10}}, {146, 10, {145, 10}},
        {290, 100, {145, 50}}, {1450, 3, {145, 1}}, {5000, 1, {145, 1}}, {100, 5000, {100, 5000}}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.width);
        const Drawn drawn = draw(
            {{.kind = 1, .sourcePath = "/n/a.heic", .preview = picture(row.width, row.height)}});
        ASSERT_EQ(drawn.images.size(), 1);
        EXPECT_EQ(drawn.images[0].size(), row.shown);
    }
}

TEST(NotePicture, IsScaledSmoothly)
{
    QImage stripes(290, 2, QImage::Format_RGB32);
    for (int x = 0; x < stripes.width(); ++x) {
        stripes.setPixelColor(x, 0, x % 2 == 0 ? Qt::black : Qt::white);
        stripes.setPixelColor(x, 1, x % 2 == 0 ? Qt::black : Qt::white);
    }
    const Drawn drawn = draw({{.kind = 1, .sourcePath = "/n/a.heic", .preview = stripes}});
    const int grey = drawn.images.value(0).pixelColor(70, 0).red();
    EXPECT_GT(grey, 100); // a pixel taken as it is would be black or white
    EXPECT_LT(grey, 155);
}

TEST(NotePicture, OfItsOwnSizeIsNotCopied)
{
    const QImage preview = picture(145);
    const Drawn drawn = draw({{.kind = 1, .sourcePath = "/n/a.heic", .preview = preview}});
    EXPECT_EQ(drawn.images.value(0).constBits(), preview.constBits());
}

TEST(NotePicture, TakesItsExtensionFromTheFirstNameThatHasOne)
{
    struct {
        const char* what = nullptr;
        const char* content = nullptr;
        const char* label = nullptr;
        const char* source = nullptr;
        const char* extension = nullptr;
    } const rows[] = {
        {"without a source the content", "/n/a.jpg", "b.gif", "", "jpg"},
        {"then the label", "/n/a", "b.gif", "", "gif"},
        {"then png", "/n/a", "b", "", "png"},
        {"with a source the label", "/n/a.jpg", "b.gif", "/n/c.heic", "gif"},
        {"then the source", "/n/a.jpg", "b", "/n/c.heic", "heic"},
        {"then png, not the content", "/n/a.jpg", "b", "/n/c", "png"},
        {"nothing is known", "", "", "", "png"},
        {"behind the last point", "/n/a.tar.gz", "", "", "gz"},
        {"capitals stay", "/n/a.JPG", "", "", "JPG"},
        {"a point in a folder is none", "/n.d/a", "", "", "png"},
        {"a point at the end is none", "/n/a.", "b.gif", "", "gif"},
        {"a hidden file's name is its suffix", "/n/.jpg", "b.gif", "", "jpg"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(extensionOf(row.content, row.label, row.source), row.extension);
    }
}

TEST(NotePicture, IsNamedByTheHashOfItsSourceAndLabelInUtf8)
{
    const Drawn drawn =
        draw({{.kind = 1, .content = "/n/ä😀", .label = "Ü.png", .preview = picture(1)}});
    EXPECT_TRUE(drawn.files.value(0).endsWith(" as afd9617017d56cb33034fa19d8556d0f241d1c8c.png"))
        << drawn.files.value(0).toStdString(); // "/n/ä😀Ü.png"
}

TEST(NotePicture, OfOneSourceTextAndLabelHasOneName)
{
    // Only the sum of both counts: this is the text "/n/a.jpgKnot" again.
    const Drawn drawn =
        draw({{.kind = 1, .content = "/n/a.jpg", .label = "Knot", .preview = picture(1)},
            {.kind = 1, .content = "/n/a.jp", .label = "gKnot", .preview = picture(1)}});
    EXPECT_EQ(drawn.files, QStringList({QString("copy /n/a.jpg as %1.jpg").arg(kAJpgKnot),
                               QString("copy /n/a.jp as %1.jp").arg(kAJpgKnot)}));
}

TEST(NotePicture, WritesItsNameUnescaped)
{
    const std::string extension = R"('>"&<)";
    const Drawn drawn = draw({{.kind = 1,
        .content = QString::fromStdString("/n/a." + extension),
        .preview = picture(1)}});
    const std::string name = drawn.files.value(0).section(" as ", 1).toStdString();
    EXPECT_EQ(name.substr(41), extension);
    EXPECT_EQ(drawn.cell, pictureCell(name, name));
}

TEST(NotePicture, StandsAmongTheTextsInTheirOrder)
{
    const std::string name = std::string(kAJpgKnot) + ".jpg";
    const std::string cell = pictureCell(name, name);
    EXPECT_EQ(draw({{.content = "before"},
                       {.kind = 1, .content = "/n/a.jpg", .label = "Knot", .preview = picture(1)},
                       {.content = "behind"}})
                  .cell,
        "<td><p>before</p>" + cell.substr(4, cell.size() - 9) + "<p>behind</p></td>");
}

} // namespace
