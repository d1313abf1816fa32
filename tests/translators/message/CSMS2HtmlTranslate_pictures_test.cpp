// SPDX-License-Identifier: MIT
// Attachments: the picture of one, where it comes from and how large it is; else its icon and name.
#include "support/temp_tree.h"
#include "translators/message/sms_page.h"

namespace {

using Pictures = QList<QPair<QString, QByteArray>>;

PRSMSPiece picture(int width, int height)
{
    return PRSMSPiece({.type = "image/png", .data = imageBytes(width, height)});
}

DrawnConversation drawnPiece(const SmsPiece& piece)
{
    return drawn(conversationOf(chatsOf({{.pieces = {PRSMSPiece(piece)}}})));
}

// The picture beside the page; a size of 0 where there is no picture or an empty file.
QImage pictureOf(const SmsPiece& piece)
{
    const Pictures pictures = drawnPiece(piece).pictures;
    EXPECT_LE(pictures.size(), 1);
    return pictures.isEmpty() ? QImage() : QImage::fromData(pictures.first().second);
}

TEST(SmsPagePicture, StandsInARowWithoutABubble)
{
    EXPECT_EQ(drawnMessage({.pieces = {picture(9, 9)}}).toStdString(),
        R"(<div class="main-left"><table><tr><td><img src="image/0.png" /></td><td></td>)"
        "</tr></table></div>");
    EXPECT_EQ(drawnMessage({.fromMe = true, .pieces = {picture(9, 9)}}).toStdString(),
        R"(<div class="main-right"><table><tr><td><img src="image/0.png" /></td><td></td>)"
        "</tr></table></div>");
}

TEST(SmsPagePicture, ShowsAFailureAndNeitherDeletionNorKind)
{
    EXPECT_EQ(
        drawnMessage(
            {.fromMe = true, .sentDone = false, .normalSMS = false, .pieces = {picture(9, 9)}},
            Deleted)
            .toStdString(),
        R"(<div class="main-right"><table><tr><td><img src="image/0.png" /></td>)"
        R"(<td><img src="image/exclamation.png" /></td></tr></table></div>)");
    EXPECT_EQ(
        drawnMessage({.sentDone = false, .normalSMS = false, .pieces = {picture(9, 9)}}, Deleted)
            .toStdString(),
        R"(<div class="main-left"><table><tr><td><img src="image/0.png" /></td>)"
        R"(<td><img src="image/exclamation.png" /></td></tr></table></div>)");
}

TEST(SmsPagePicture, UpToTheLargestSizeIsAnEmptyFile)
{
    for (const QSize size : {QSize(250, 250), QSize(1, 1), QSize(250, 1), QSize(1, 250)}) {
        SCOPED_TRACE(testing::Message() << size.width() << " x " << size.height());
        const auto made =
            drawn(conversationOf(chatsOf({{.pieces = {picture(size.width(), size.height())}}})));
        EXPECT_EQ(made.pictures, (Pictures{{"0.png", QByteArray()}}));
        EXPECT_TRUE(made.text.contains(receivedPicture("image/0.png")));
    }
}

TEST(SmsPagePicture, AboveTheLargestSizeIsAPngThatFits)
{
    struct {
        QSize size;
        QSize fitted;
    } const rows[] = {
        {{251, 10}, {250, 9}},
        {{10, 251}, {9, 250}},
        {{251, 251}, {250, 250}},
        {{250, 251}, {249, 250}},
        {{500, 300}, {250, 150}},
        {{300, 500}, {150, 250}},
        {{1000, 1}, {250, 1}},
        {{1, 1000}, {1, 250}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.size.width() << " x " << row.size.height());
        const auto made = drawn(
            conversationOf(chatsOf({{.pieces = {picture(row.size.width(), row.size.height())}}})));
        ASSERT_EQ(made.pictures.size(), 1);
        EXPECT_EQ(made.pictures.first().first, "0.png");
        const QByteArray bytes = made.pictures.first().second;
        EXPECT_TRUE(bytes.startsWith("\x89PNG\r\n"));
        const QImage image = QImage::fromData(bytes);
        EXPECT_EQ(image.size(), row.fitted);
        EXPECT_EQ(image.pixel(0, 0), qRgb(200, 40, 40));
    }
}

TEST(SmsPagePicture, IsScaledSmoothly)
{
    QImage stripes(500, 500, QImage::Format_RGB32);
    for (int x = 0; x < stripes.width(); ++x) {
        for (int y = 0; y < stripes.height(); ++y) {
            stripes.setPixel(x, y, x % 2 == 0 ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
        }
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    ASSERT_TRUE(stripes.save(&buffer, "PNG"));
    const QImage image = pictureOf({.type = "image/png", .data = bytes});
    ASSERT_EQ(image.size(), QSize(250, 250));
    const int grey = qGray(image.pixel(100, 100));
    EXPECT_GT(grey, 64) << "neither black";
    EXPECT_LT(grey, 192) << "nor white";
}

TEST(SmsPagePicture, OfAnyTypeIsAPictureByItsBytes)
{
    for (const char* type : {"", "video/mp4", "application/pdf", "text/html", "TEXT/PLAIN"}) {
        SCOPED_TRACE(type);
        EXPECT_EQ(pictureOf({.type = type, .data = imageBytes(300, 300)}).width(), 250);
        EXPECT_EQ(pictureOf({.type = type,
                                .location = true,
                                .data = imageBytes(300, 300, "BMP"),
                                .info = "not shown"})
                      .width(),
            250);
    }
}

// The sources have heights of 10, 20, 30 and 40 at a width of 250.
TEST(SmsPagePicture, ComesFromTheFirstPlaceThatHasOne)
{
    const support::TempTree tree;
    const QString noPicture = tree.write("no_picture", "text");
    const QString file = tree.write("file.jpg", imageBytes(500, 40));
    const QString preview = tree.write("preview.HeiC", imageBytes(500, 60));
    const QString heic = tree.write("photo.heic", "not readable");
    tree.write("photo.heicthumb.jpg", imageBytes(500, 80));
    const QString capitals = tree.path("photo.HEIC"); // itself is not there
    tree.write("photo.HEICthumb.jpg", imageBytes(500, 80));
    const QString jpeg = tree.path("photo.jpg");
    tree.write("photo.jpgthumb.jpg", imageBytes(500, 80));
    tree.write("thumb.jpg", imageBytes(500, 80));
    const QByteArray data = imageBytes(500, 20);
    struct {
        const char* what = nullptr;
        SmsPiece piece;
        int height = 0; // 0: none of them
    } const rows[] = {
        {"bytes before all", {.data = data, .path = file, .preview = preview}, 10},
        {"file", {.data = "text", .path = file, .preview = preview}, 20},
        {"preview of a file that is none", {.path = noPicture, .preview = preview}, 30},
        {"preview of a missing file", {.path = "/nonexistent.jpg", .preview = preview}, 30},
        {"preview alone", {.preview = preview}, 30},
        {"thumbnail of a preview that cannot be read", {.path = noPicture, .preview = heic}, 40},
        {"thumbnail in capitals", {.preview = capitals}, 40},
        {"no thumbnail of another preview", {.preview = jpeg}, 0},
        {"no thumbnail of the file", {.path = heic}, 0},
        {"no thumbnail of the empty name", {.preview = ""}, 0},
        {"nothing anywhere", {.data = "text", .path = noPicture, .preview = noPicture}, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(pictureOf(row.piece).height(), row.height);
        EXPECT_EQ(drawnPiece(row.piece).pictures.size(), row.height == 0 ? 0 : 1);
    }
}

TEST(SmsPagePicture, HidesIconAndName)
{
    EXPECT_EQ(drawnMessage({.pieces = {PRSMSPiece({.type = "image/png",
                                .location = true,
                                .data = imageBytes(9, 9),
                                .info = "a.png"})}}),
        receivedPicture("image/0.png"));
}

TEST(SmsPagePicture, ThatIsCutOffOrTooLargeForMemoryIsNone)
{
    const QByteArray whole = imageBytes(300, 300);
    QByteArray huge = whole;
    huge.replace(16, 8, QByteArray("\x7F\xFF\xFF\xFF\x7F\xFF\xFF\xFF", 8)); // its width and height
    for (const QByteArray& data : {whole.left(20), huge, QByteArray("\x89PNG\r\n\x1a\n")}) {
        EXPECT_EQ(drawnMessage({.pieces = {PRSMSPiece({.type = "image/png", .data = data})}}),
            receivedIconBubble("image/picture.png", ""));
    }
}

TEST(SmsPagePicture, NumbersRunThroughThePageAndCountLoadedOnesAlone)
{
    PRSMSData data;
    CSMS2HtmlTranslate translator(&data);
    PageSink sink(0, true);
    const auto first = conversationOf(chatsOf({
        {.pieces = {picture(9, 9), PRSMSPiece({.type = "image/png", .data = "broken"})}},
        {.itemType = 1, .pieces = {picture(9, 9)}},
        {.pieces = {picture(300, 9)}},
    }));
    const auto second = conversationOf(
        chatsOf({{.checked = false, .pieces = {picture(9, 9)}}, {.pieces = {picture(9, 9)}}}),
        PartlySelected);
    EXPECT_TRUE(translator.writeItem(&sink, first.get()));
    EXPECT_TRUE(translator.writeItem(&sink, second.get()));
    ASSERT_EQ(sink.pictures().size(), 3);
    EXPECT_EQ(sink.pictures().at(0).first, "0.png");
    EXPECT_EQ(sink.pictures().at(1).first, "1.png");
    EXPECT_EQ(sink.pictures().at(2).first, "2.png");
    ASSERT_EQ(sink.writes().size(), 2) << "a picture that cannot be written is no failure";
    EXPECT_TRUE(sink.writes().at(0).contains(receivedPicture("image/0.png")));
    EXPECT_TRUE(sink.writes().at(0).contains(receivedPicture("image/1.png")));
    EXPECT_TRUE(sink.writes().at(1).contains(receivedPicture("image/2.png")));
}

TEST(SmsPagePicture, NumbersHaveNoLimitOfDigits)
{
    std::vector<PRSMSPiece> pieces(1'001, picture(1, 1));
    std::vector<PRSMSChat> chats;
    chats.emplace_back(SmsMessage{.pieces = std::move(pieces)});
    const auto made = drawn(conversationOf(std::move(chats)));
    ASSERT_EQ(made.pictures.size(), 1'001);
    EXPECT_EQ(made.pictures.last().first, "1000.png");
}

TEST(SmsPageIcon, IsThatOfTheFirstWordInTheType)
{
    struct {
        const char* what = nullptr;
        const char* type = nullptr;
        bool location = false;
        const char* icon = nullptr; // empty: none
    } const rows[] = {
        {"picture", "image/jpeg", false, "image/picture.png"},
        {"video", "video/quicktime", false, "image/video.png"},
        {"audio", "audio/amr", false, "image/audio.png"},
        {"inside", "application/x-image", false, "image/picture.png"},
        {"picture before video", "video-image", false, "image/picture.png"},
        {"picture before audio", "audio-image", false, "image/picture.png"},
        {"video before audio", "audio-video", false, "image/video.png"},
        {"capitals", "Image/jpeg VIDEO/mp4 Audio/amr", false, ""},
        {"another type", "application/pdf", false, ""},
        {"no type", "", false, ""},
        {"place on a map", "text/x-vlocation", true, "image/location.png"},
        {"place without a type", "", true, "image/location.png"},
        {"place in capitals", "IMAGE", true, "image/location.png"},
        {"picture of a place", "image/png", true, "image/picture.png"},
        {"video of a place", "video/mp4", true, "image/video.png"},
        {"audio of a place", "audio/amr", true, "image/audio.png"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const QString icon = row.icon;
        const SmsPiece nameless{.type = row.type, .location = row.location};
        EXPECT_EQ(drawnMessage({.pieces = {PRSMSPiece(nameless)}}),
            icon.isEmpty() ? QString() : receivedIconBubble(icon, ""));
        SmsPiece named = nameless;
        named.info = "<name>\n";
        const QString name = "&lt;name&gt;<br>";
        EXPECT_EQ(drawnMessage({.pieces = {PRSMSPiece(named)}}),
            icon.isEmpty() ? receivedBubble(name) : receivedIconBubble(icon, name));
    }
}

} // namespace
