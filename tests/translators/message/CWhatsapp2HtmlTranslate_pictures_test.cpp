// SPDX-License-Identifier: MIT
// The pictures of chats: which are shown, how large they are, how they are numbered.
#include "support/temp_tree.h"
#include "translators/message/chat_page.h"

namespace {

class ChatPictures : public testing::Test {
protected:
    // What is beside the page of one message.
    QByteArray fileOf(const ChatMessage& message) const
    {
        const auto pictures = drawnChat(chatOf({message})).pictures;
        EXPECT_LE(pictures.size(), 1);
        return pictures.isEmpty() ? QByteArray() : pictures.first().second;
    }

    QImage pictureOf(const ChatMessage& message) const { return QImage::fromData(fileOf(message)); }

    QString picture(const QString& name, int width, int height, const char* format = "PNG") const
    {
        return tree.write(name, imageBytes(width, height, format));
    }

    // Lies on its side: `width` and `height` are those of the file, which says "turn me right".
    QString lyingPicture(int width, int height) const
    {
        QByteArray bytes = imageBytes(width, height, "JPEG");
        bytes.insert(2, QByteArray::fromHex("ffe1 0022 457869660000 4d4d002a00000008"
                                            "0001 0112 0003 00000001 00060000 00000000"));
        return tree.write("lying.jpg", bytes);
    }

    support::TempTree tree;
};

TEST_F(ChatPictures, StandInTheBubbleBesideTheText)
{
    const QString path = picture("a.png", 9, 9);
    EXPECT_EQ(drawnMessage({.media = path}), receivedIconBubble("image/0.png", ""));
    EXPECT_EQ(drawnMessage({.content = "<a>", .media = path}),
        receivedIconBubble("image/0.png", "&lt;a&gt;"));
}

TEST_F(ChatPictures, OfAllTypesButEventsAreShown)
{
    const QString path = picture("a.png", 9, 9);
    for (const int type : {0, 1, 2, 3, 4, 5, 7, 8, 9, -1}) {
        SCOPED_TRACE(type);
        EXPECT_EQ(
            drawnMessage({.type = type, .media = path}), receivedIconBubble("image/0.png", ""));
    }
    EXPECT_EQ(fileOf({.type = 6, .media = path}), QByteArray());
}

TEST_F(ChatPictures, AreRealFilesThatFitWhateverTheirSize)
{
    struct {
        QSize size;
        QSize fitted;
    } const rows[] = {
        {{1, 1}, {1, 1}},
        {{100, 100}, {100, 100}},
        {{250, 250}, {250, 250}},
        {{251, 10}, {250, 9}},
        {{10, 251}, {9, 250}},
        {{251, 251}, {250, 250}},
        {{250, 251}, {249, 250}},
        {{500, 300}, {250, 150}},
        {{1000, 1}, {250, 1}},
        {{1, 1000}, {1, 250}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.size.width() << " x " << row.size.height());
        const QByteArray file =
            fileOf({.media = picture("a.png", row.size.width(), row.size.height())});
        EXPECT_TRUE(file.startsWith("\x89PNG\r\n\x1a\n"));
        EXPECT_EQ(QImage::fromData(file).size(), row.fitted);
        EXPECT_EQ(QImage::fromData(file).pixel(0, 0), qRgb(200, 40, 40));
    }
}

TEST_F(ChatPictures, HaveTheBytesOfTheSmoothlyScaledPicture)
{
    QImage stripes(700, 500, QImage::Format_RGB32);
    for (int y = 0; y < stripes.height(); ++y) {
        for (int x = 0; x < stripes.width(); ++x) {
            stripes.setPixel(x, y, qRgb(x * 7 % 256, y * 5 % 256, x * y % 256));
        }
    }
    for (const char* format : {"PNG", "JPEG", "BMP"}) {
        SCOPED_TRACE(format);
        const QString path = tree.path("stripes");
        ASSERT_TRUE(stripes.save(path, format));
        QImage loaded;
        ASSERT_TRUE(loaded.load(path));
        QByteArray expected;
        QBuffer buffer(&expected);
        buffer.open(QIODevice::WriteOnly);
        ASSERT_TRUE(loaded.scaled(250, 250, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                        .save(&buffer, "PNG"));
        EXPECT_TRUE(fileOf({.media = path}) == expected);
    }
}

TEST_F(ChatPictures, LieAsTheyAreStoredUnlessTheyAreThumbnails)
{
    const QString path = lyingPicture(100, 40);
    EXPECT_EQ(pictureOf({.media = path}).size(), QSize(100, 40));
    EXPECT_EQ(pictureOf({.media = path, .thumbData = true}).size(), QSize(40, 100));
}

TEST_F(ChatPictures, ThatAreThumbnailsAreKnownByTheirBytes)
{
    const QString path = picture("a.txt", 300, 300, "JPEG");
    EXPECT_EQ(pictureOf({.media = path, .thumbData = true}).size(), QSize(250, 250));
    EXPECT_EQ(drawnMessage({.type = 1, .media = path, .thumbData = true}),
        receivedIconBubble("image/0.png", ""));
}

TEST_F(ChatPictures, ThatCannotBeReadLeaveTheIconOfTheType)
{
    const QByteArray whole = imageBytes(300, 300);
    QByteArray huge = whole;
    huge.replace(16, 8, QByteArray("\x7F\xFF\xFF\xFF\x7F\xFF\xFF\xFF", 8)); // its width and height
    const QString paths[] = {
        "/nonexistent.png",
        "https://example.invalid/a.png",
        tree.path(), // a directory
        tree.write("text.png", "text"),
        tree.write("empty.png", ""),
        tree.write("cut.png", whole.left(20)),
        tree.write("huge.png", huge),
        "/nonexistent/%1<>\"\n" + QString(5'000, 'x'),
    };
    for (const QString& path : paths) {
        SCOPED_TRACE(path.left(80).toStdString());
        for (const bool thumbnail : {false, true}) {
            const auto made = drawnChat(chatOf({{.type = 2, .media = path, .thumbData = thumbnail},
                {.type = 0, .media = path, .thumbData = thumbnail}}));
            EXPECT_EQ(made.text, kChatBegin + kNoDate + receivedIconBubble("image/video.png", "")
                                     + kNoDate + kChatEnd);
            EXPECT_TRUE(made.pictures.isEmpty());
        }
    }
}

TEST_F(ChatPictures, NumbersRunThroughThePageAndCountLoadedOnesAlone)
{
    const QString path = picture("a.png", 9, 9);
    PRData data(5);
    CWhatsapp2HtmlTranslate translator(&data);
    PageSink sink(0, true); // no file can be written, which is no failure
    const auto first = chatOf({{.media = path}, {.type = 1, .media = "/nonexistent"},
        {.checked = false, .media = path}, {.media = path, .thumbData = true}});
    const auto second =
        chatOf({{.checked = false, .media = path}, {.media = path}}, PartlySelected);
    EXPECT_TRUE(translator.writeHeader(&sink));
    for (const auto* chat : {&first, &second}) {
        EXPECT_TRUE(translator.writeItem(&sink, chat->get()));
    }
    QStringList names;
    for (const auto& file : sink.pictures()) {
        names.append(file.first);
    }
    EXPECT_EQ(names, QStringList({"0.png", "1.png", "2.png", "3.png"}));
    for (const QString& name : names) {
        EXPECT_EQ(sink.writes().join("").count("image/" + name), 1);
    }
    EXPECT_TRUE(sink.writes().last().contains("image/3.png"));
}

TEST_F(ChatPictures, OwnPicturesHaveAllMarksOfBubbles)
{
    const QString path = picture("a.png", 9, 9);
    const QString text = drawnMessage({.fromMe = true, .sentDone = false, .media = path}, Deleted);
    EXPECT_TRUE(text.startsWith(R"(<div class="main-right"><img src='image/del_msg_send.png')"));
    EXPECT_TRUE(text.contains(
        R"(<td class="mid-c"><table><tr><td><img src="image/0.png" /></td><td>&nbsp;</td></tr>)"));
    EXPECT_TRUE(text.contains(R"(<td><img src="image/exclamation.png" /></td>)"));
}

} // namespace
