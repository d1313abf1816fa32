// SPDX-License-Identifier: MIT
// The images that the build draws, as the pages show them.
#include "platform/OvProductInfo.h"
#include "platform/OvResourceMgr.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <QTransform>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <vector>

namespace {

QImage pageImage(const QString& name)
{
    const QImage image(OvResourceMgr::instance()->productResourceRoot() + "/DataExport/" + name);
    EXPECT_FALSE(image.isNull()) << name.toStdString();
    return image.convertToFormat(QImage::Format_ARGB32);
}

QString branded(const QString& name)
{
    return OvProductInfo::instance()->brand() + "/" + name;
}

// The three skins of the bubbles, with the heights that the style sheets give to their cells. The
// cells at the left are 14 wide, those at the right 18.
struct Skin {
    QString prefix;
    int top = 0;
    int bottom = 0;
    bool sent = false;
};
const std::array kSkins{
    Skin{"message", 13, 14, true},
    Skin{"imessage", 13, 14, true},
    Skin{"rmessage", 15, 13, false},
};
constexpr int kLeft = 14;
constexpr int kRight = 18;
constexpr QSize kText(30, 22); // of the cell in the middle

QImage piece(const Skin& skin, const QString& name)
{
    return pageImage(skin.prefix + "-" + name + ".png");
}

// A bubble as a browser shows it: nine cells, each with its piece behind it, from its upper left
// corner on and no further than its edges.
QImage bubble(const Skin& skin)
{
    const std::array<int, 4> x{0, kLeft, kLeft + kText.width(), kLeft + kText.width() + kRight};
    const std::array<int, 4> y{
        0, skin.top, skin.top + kText.height(), skin.top + kText.height() + skin.bottom};
    QImage shown(x[3], y[3], QImage::Format_ARGB32);
    shown.fill(Qt::transparent);
    QPainter painter(&shown);
    const auto show = [&](const char* name, std::size_t column, std::size_t row) {
        const QRect cell(
            QPoint(x.at(column), y.at(row)), QPoint(x.at(column + 1) - 1, y.at(row + 1) - 1));
        const QImage image = piece(skin, name);
        // A browser repeats to the sides in the middle column, downwards in the middle row.
        const QSize drawn(column == 1 ? cell.width() : std::min(cell.width(), image.width()),
            row == 1 ? cell.height() : std::min(cell.height(), image.height()));
        painter.setBrushOrigin(cell.topLeft());
        painter.fillRect(QRect(cell.topLeft(), drawn), QBrush(image));
    };
    show("top-l", 0, 0);
    show("top-c", 1, 0);
    show("top-r", 2, 0);
    show("middle-l", 0, 1);
    show("bg", 1, 1);
    show("middle-r", 2, 1);
    show("bot-l", 0, 2);
    show("bot-c", 1, 2);
    show("bot-r", 2, 2);
    return shown;
}

int alphaAt(const QImage& image, int x, int y)
{
    return qAlpha(image.pixel(x, y));
}

// The largest difference of opacity between two neighbouring columns. A bubble has one colour, so
// that opacity is all that can differ.
int stepBetweenColumns(const QImage& image, int x)
{
    int step = 0;
    for (int y = 0; y < image.height(); ++y) {
        step = std::max(step, std::abs(alphaAt(image, x, y) - alphaAt(image, x + 1, y)));
    }
    return step;
}

int stepBetweenRows(const QImage& image, int y)
{
    return stepBetweenColumns(image.transformed(QTransform(0, 1, 1, 0, 0, 0)), y);
}

bool isRed(QRgb pixel)
{
    const QColor colour(pixel);
    const bool redHue = colour.hue() < 10 || colour.hue() > 350; // a heart's pink is none
    return redHue && colour.saturation() > 180 && colour.value() > 180;
}

// Of what can be seen of an image, how much is red.
double redPart(const QImage& image)
{
    int seen = 0;
    int red = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            seen += static_cast<int>(alphaAt(image, x, y) > 127);
            red += static_cast<int>(alphaAt(image, x, y) > 127 && isRed(image.pixel(x, y)));
        }
    }
    return seen > 0 ? static_cast<double>(red) / seen : 0;
}

} // namespace

// Pages give no width and no height: what they show is as large as the file.
TEST(PageImages, AreAllThereInTheSizeInWhichPagesShowThem)
{
    struct Row {
        QString name;
        QSize size;
    };
    const std::vector<Row> rows{
        {"exclamation.png", {20, 20}},
        {"del_msg_recv.png", {14, 14}}, // more than 18 by 15 would move the text of the bubble
        {"del_msg_send.png", {14, 17}}, // 14 of mark, 3 that lift it off the text
        {"broadcast.png", {14, 17}},
        {"msglike.png", {20, 20}},
        {"msgnolike.png", {20, 20}},
        {"deleted.png", {20, 16}}, // 16 of mark, 4 between it and the text
        {"crypted.png", {16, 16}},
        {"crypteddeleted.png", {16, 16}},
        {branded("contact_person.png"), {136, 136}}, // the size of the photos
        {branded("video.png"), {40, 40}},
        {branded("picture.png"), {40, 40}},
        {branded("audio.png"), {40, 40}},
        {branded("location.png"), {40, 40}},
        {branded("vcard.png"), {40, 40}},
        {branded("document.png"), {40, 40}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(pageImage(row.name).size(), row.size) << row.name.toStdString();
    }
}

TEST(PageImages, ArePlacedOnAnyBackground)
{
    for (const QString& name : {QString("exclamation.png"), QString("del_msg_recv.png"),
             QString("del_msg_send.png"), QString("broadcast.png"), QString("msglike.png"),
             QString("msgnolike.png"), QString("deleted.png"), QString("crypted.png"),
             QString("crypteddeleted.png"), branded("contact_person.png"), branded("video.png"),
             branded("picture.png"), branded("audio.png"), branded("location.png"),
             branded("vcard.png"), branded("document.png")}) {
        const QImage image = pageImage(name);
        EXPECT_LT(alphaAt(image, 0, 0), 64) << name.toStdString();
        EXPECT_LT(alphaAt(image, image.width() - 1, 0), 64) << name.toStdString();
    }
}

TEST(PageImages, ShowWhatIsDeletedInRed)
{
    for (const char* name :
        {"deleted.png", "crypteddeleted.png", "del_msg_recv.png", "del_msg_send.png"}) {
        EXPECT_GT(redPart(pageImage(name)), 0.5) << name;
    }
    for (const char* name : {"crypted.png", "broadcast.png", "msglike.png", "msgnolike.png"}) {
        EXPECT_LT(redPart(pageImage(name)), 0.1) << name;
    }
}

// A cell that is larger than its piece has a gap; one that is smaller cuts it off.
TEST(BubblePieces, FillTheirCells)
{
    for (const Skin& skin : kSkins) {
        SCOPED_TRACE(skin.prefix.toStdString());
        for (const char* name : {"top-l", "middle-l", "bot-l"}) {
            EXPECT_GE(piece(skin, name).width(), kLeft) << name;
        }
        for (const char* name : {"top-r", "middle-r", "bot-r"}) {
            EXPECT_EQ(piece(skin, name).width(), kRight) << name;
        }
        for (const char* name : {"top-l", "top-c", "top-r"}) {
            EXPECT_GE(piece(skin, name).height(), skin.top) << name;
        }
        for (const char* name : {"bot-l", "bot-c", "bot-r"}) {
            EXPECT_EQ(piece(skin, name).height(), skin.bottom) << name;
        }
    }
}

TEST(BubblePieces, ThatRepeatAreTheSameAllAlong)
{
    for (const Skin& skin : kSkins) {
        SCOPED_TRACE(skin.prefix.toStdString());
        for (const char* name : {"top-c", "bg", "bot-c"}) {
            const QImage image = piece(skin, name);
            EXPECT_EQ(image, image.copy(0, 0, 1, image.height()).scaled(image.size())) << name;
        }
        for (const char* name : {"middle-l", "bg", "middle-r"}) {
            const QImage image = piece(skin, name);
            EXPECT_EQ(image, image.copy(0, 0, image.width(), 1).scaled(image.size())) << name;
        }
    }
}

// Where a corner begins, its first pixel is a little less than full: 16 of 255 cannot be seen.
TEST(BubblePieces, GoOnFromCellToCell)
{
    for (const Skin& skin : kSkins) {
        SCOPED_TRACE(skin.prefix.toStdString());
        const QImage shown = bubble(skin);
        EXPECT_LE(stepBetweenColumns(shown, kLeft - 1), 16);
        EXPECT_LE(stepBetweenColumns(shown, kLeft + kText.width() - 1), 16);
        EXPECT_LE(stepBetweenRows(shown, skin.top - 1), 16);
        EXPECT_LE(stepBetweenRows(shown, skin.top + kText.height() - 1), 16);
    }
}

// Browsers round the edges of cells to pixels of the screen and can make a cell a pixel larger.
TEST(BubblePieces, ReachOverTheEdgesTowardsTheMiddle)
{
    for (const Skin& skin : kSkins) {
        SCOPED_TRACE(skin.prefix.toStdString());
        const QImage text = piece(skin, "bg");
        for (const char* name : {"top-l", "middle-l", "bot-l"}) {
            EXPECT_GT(piece(skin, name).width(), kLeft) << name;
        }
        for (const char* name : {"top-l", "top-c", "top-r"}) {
            EXPECT_GT(piece(skin, name).height(), skin.top) << name;
        }
        EXPECT_EQ(piece(skin, "middle-l").pixel(kLeft, 0), text.pixel(0, 0));
        EXPECT_EQ(piece(skin, "top-c").pixel(0, skin.top), text.pixel(0, 0));
    }
}

TEST(BubblePieces, AreSolidBehindTheTextAndOpenAtTheCorners)
{
    for (const Skin& skin : kSkins) {
        SCOPED_TRACE(skin.prefix.toStdString());
        const QImage shown = bubble(skin);
        const QRect text(QPoint(kLeft, skin.top), kText);
        const QRgb colour = piece(skin, "bg").pixel(0, 0);
        QImage expected(kText, QImage::Format_ARGB32);
        expected.fill(QColor::fromRgb(colour));
        EXPECT_EQ(qAlpha(colour), 255);
        EXPECT_EQ(shown.copy(text), expected);
        EXPECT_EQ(alphaAt(shown, 0, 0), 0);
        EXPECT_EQ(alphaAt(shown, shown.width() - 1, 0), 0);
        EXPECT_LT(alphaAt(shown, skin.sent ? 0 : shown.width() - 1, shown.height() - 1), 64);
    }
}

TEST(BubblePieces, HaveTheTailAtTheSideOfWhoWroteIt)
{
    for (const Skin& skin : kSkins) {
        SCOPED_TRACE(skin.prefix.toStdString());
        const QImage shown = bubble(skin);
        const QRect edge(skin.sent ? shown.width() - 4 : 0, 0, 4, shown.height());
        const QImage sides = shown.copy(edge);
        const int tail = shown.height() - 3;
        EXPECT_GT(alphaAt(sides, skin.sent ? 0 : 3, tail), 127);
        EXPECT_EQ(alphaAt(sides, skin.sent ? 0 : 3, shown.height() / 2), 0);
        EXPECT_EQ(alphaAt(shown, skin.sent ? 0 : shown.width() - 1, tail), 0);
    }
}

TEST(BubblePieces, HaveTheColoursOfAPhone)
{
    const auto colour = [](const Skin& skin) { return QColor(piece(skin, "bg").pixel(0, 0)); };
    EXPECT_NEAR(colour(kSkins[0]).hue(), 135, 20); // green
    EXPECT_NEAR(colour(kSkins[1]).hue(), 212, 15); // blue
    EXPECT_LT(colour(kSkins[2]).saturation(), 20); // light grey, for black text
    EXPECT_GT(colour(kSkins[2]).value(), 220);
    for (const Skin& skin : {kSkins[0], kSkins[1]}) {
        EXPECT_GT(colour(skin).saturation(), 150) << skin.prefix.toStdString(); // for white text
    }
}
