// SPDX-License-Identifier: MIT
// Draws the images of the pages:
//
//   draw_images <folder of the drawings> <folder of the images> <drawing>...
//
// A drawing is named by its path in the folder ("default/video.svg") and becomes a PNG of that
// name, one pixel for each unit of its width and height. A speech bubble becomes nine of them: on a
// page it is a table of nine cells, and each cell shows one piece behind it.
//
//            14                  18
//        +----------+-------+----------+
//    top |  top-l   | top-c |  top-r   |
//        +----------+-------+----------+
//        | middle-l |  bg   | middle-r |
//        +----------+-------+----------+
// bottom |  bot-l   | bot-c |  bot-r   |
//        +----------+-------+----------+
//
// Cut from one drawing, the pieces fit. Those at the left and at the top reach on over the straight
// part: at some zooms a browser makes their cells a pixel larger than it draws the pieces, which
// would leave a white line. What is too much does not show. The same drawings give the same bytes.
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QRect>
#include <QSize>
#include <QStringList>
#include <QSvgRenderer>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kLeft = 14; // widths that the style sheets of the pages give to the cells
constexpr int kRight = 18;

struct Bubble {
    const char* drawing = nullptr;
    int top = 0; // heights of the cells, as in the style sheets
    int bottom = 0;
};
constexpr std::array kBubbles{
    Bubble{"message.svg", 13, 14},
    Bubble{"imessage.svg", 13, 14},
    Bubble{"rmessage.svg", 15, 13},
};

constexpr std::size_t kStraightEnd = 2; // the line behind the straight part, of lines 0 to 3

struct Piece {
    const char* name = nullptr;
    std::size_t column = 0;
    std::size_t row = 0;
};
// clang-format off
constexpr std::array kPieces{
    Piece{"top-l",    0, 0}, Piece{"top-c", 1, 0}, Piece{"top-r",    2, 0},
    Piece{"middle-l", 0, 1}, Piece{"bg",    1, 1}, Piece{"middle-r", 2, 1},
    Piece{"bot-l",    0, 2}, Piece{"bot-c", 1, 2}, Piece{"bot-r",    2, 2},
};
// clang-format on

[[noreturn]] void fail(const QString& what)
{
    std::fprintf(stderr, "draw_images: %s\n", qPrintable(what));
    std::exit(EXIT_FAILURE);
}

QImage drawn(const QString& path)
{
    QSvgRenderer drawing(path);
    if (!drawing.isValid()) {
        fail(path + " is no drawing");
    }
    QImage image(drawing.defaultSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter);
    return image;
}

void save(const QImage& image, const QString& path)
{
    if (!QDir().mkpath(QFileInfo(path).path()) || !image.save(path, "PNG")) {
        fail("cannot write " + path);
    }
}

// `base` is the path of the images up to the name of the piece.
void savePieces(const QImage& image, const Bubble& bubble, const QString& base)
{
    const std::array<int, 4> x{0, kLeft, image.width() - kRight, image.width()};
    const std::array<int, 4> y{0, bubble.top, image.height() - bubble.bottom, image.height()};
    if (x[1] >= x[2] || y[1] >= y[2]) {
        fail(QString(bubble.drawing) + " has no straight part");
    }
    for (const Piece& piece : kPieces) {
        const QPoint from(x.at(piece.column), y.at(piece.row));
        const QPoint end(x.at(std::max(piece.column + 1, kStraightEnd)),
            y.at(std::max(piece.row + 1, kStraightEnd)));
        save(image.copy({from, end - QPoint(1, 1)}), base + "-" + piece.name + ".png");
    }
}

void draw(const QString& drawing, const QDir& from, const QDir& to)
{
    const QImage image = drawn(from.filePath(drawing));
    const QFileInfo name(drawing);
    const QString base = to.filePath(name.path() + "/" + name.completeBaseName());
    const auto* const bubble = std::ranges::find_if(
        kBubbles, [&](const Bubble& candidate) { return drawing == candidate.drawing; });
    if (bubble != kBubbles.end()) {
        savePieces(image, *bubble, base);
    } else {
        save(image, base + ".png");
    }
}

} // namespace

int main(int argc, char** argv)
{
    QStringList arguments;
    std::for_each(argv + 1, argv + argc,
        [&](const char* argument) { arguments.append(QString::fromLocal8Bit(argument)); });
    if (arguments.size() < 3) {
        fail("usage: draw_images <folder of the drawings> <folder of the images> <drawing>...");
    }
    const QDir from(arguments.takeFirst());
    const QDir to(arguments.takeFirst());
    for (const QString& drawing : arguments) {
        draw(drawing, from, to);
    }
    return EXIT_SUCCESS;
}
