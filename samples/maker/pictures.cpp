// SPDX-License-Identifier: MIT
#include "pictures.h"

#include "common.h"

#include <QBuffer>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>

namespace sample {

namespace {

class Canvas : public QPainter {
public:
    explicit Canvas(QImage& image) : QPainter(&image)
    {
        setRenderHint(QPainter::Antialiasing);
        setPen(Qt::NoPen);
    }
    void ellipse(double x, double y, double width, double height, const QColor& color)
    {
        setBrush(color);
        drawEllipse(QRectF(x, y, width, height));
    }
    void shape(const QPolygonF& corners, const QColor& color)
    {
        setBrush(color);
        drawPolygon(corners);
    }
    void falling(const QRectF& area, const QColor& top, const QColor& bottom)
    {
        QLinearGradient gradient(area.topLeft(), area.bottomLeft());
        gradient.setColorAt(0, top);
        gradient.setColorAt(1, bottom);
        fillRect(area, gradient);
    }
    void line(const QPointF& from, const QPointF& to, const QColor& color, double width)
    {
        setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap));
        drawLine(from, to);
        setPen(Qt::NoPen);
    }
};

QByteArray encoded(const QImage& image, const char* format, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, format, quality)) {
        fail(QString("no writer of %1 pictures").arg(format));
    }
    return bytes;
}

void umbrella(Canvas& canvas)
{
    canvas.line({560, 520}, {520, 250}, "#8d6e63", 8);
    canvas.save();
    canvas.translate(520, 300);
    canvas.rotate(-8);
    const QRectF dome(-170, -90, 340, 180);
    for (int slice = 0; slice < 6; ++slice) {
        canvas.setBrush(QColor(slice % 2 == 0 ? "#e53935" : "#fafafa"));
        canvas.drawPie(dome, slice * 30 * 16, 30 * 16);
    }
    canvas.restore();
}

void candle(Canvas& canvas, double x)
{
    canvas.fillRect(QRectF(x - 6, 150, 12, 70), QColor("#4fc3f7"));
    canvas.ellipse(x - 9, 112, 18, 36, "#ffb300");
    canvas.ellipse(x - 5, 124, 10, 20, "#fff59d");
}

void catFace(Canvas& canvas)
{
    canvas.shape({{{170, 330}, {190, 150}, {310, 250}}}, "#ef8e3b");
    canvas.shape({{{430, 330}, {410, 150}, {290, 250}}}, "#ef8e3b");
    canvas.shape({{{190, 290}, {202, 195}, {265, 248}}}, "#f8bbd0");
    canvas.shape({{{410, 290}, {398, 195}, {335, 248}}}, "#f8bbd0");
    canvas.ellipse(150, 220, 300, 260, "#ef8e3b");
    for (const double x : {225.0, 335.0}) {
        canvas.ellipse(x, 305, 40, 48, "#c5e1a5");
        canvas.ellipse(x + 14, 308, 12, 42, "#212121");
    }
    canvas.ellipse(225, 375, 150, 85, "#fff3e0");
    canvas.shape({{{282, 380}, {318, 380}, {300, 402}}}, "#ec407a");
    for (const double y : {400.0, 418.0, 436.0}) {
        canvas.line({240, y}, {110, y + (y - 418) * 1.5}, "#fff8e1", 3);
        canvas.line({360, y}, {490, y + (y - 418) * 1.5}, "#fff8e1", 3);
    }
}

} // namespace

QImage beach()
{
    QImage image(800, 600, QImage::Format_RGB32);
    Canvas canvas(image);
    canvas.falling({0, 0, 800, 330}, "#64b5f6", "#ffe0b2");
    canvas.ellipse(90, 60, 110, 110, "#fff176");
    canvas.falling({0, 290, 800, 150}, "#0277bd", "#4dd0e1");
    for (int wave = 0; wave < 14; ++wave) {
        canvas.ellipse((wave * 173) % 800, 305 + wave * 9, 70 + wave * 4, 5, "#b3e5fc");
    }
    canvas.falling({0, 430, 800, 170}, "#ffe082", "#e0a95a");
    canvas.ellipse(-200, 405, 900, 60, "#e1f5fe");
    canvas.ellipse(-200, 418, 900, 70, "#ffe082");
    umbrella(canvas);
    canvas.shape({{{590, 540}, {760, 520}, {780, 560}, {610, 582}}}, "#26a69a");
    return image;
}

QImage cake()
{
    QImage image(800, 600, QImage::Format_RGB32);
    Canvas canvas(image);
    canvas.falling({0, 0, 800, 430}, "#fce4ec", "#f8bbd0");
    canvas.falling({0, 430, 800, 170}, "#a1887f", "#6d4c41");
    canvas.ellipse(130, 440, 540, 90, "#eceff1");
    canvas.fillRect(QRectF(200, 300, 400, 180), QColor("#8d5a3b"));
    canvas.ellipse(200, 455, 400, 50, "#8d5a3b");
    canvas.fillRect(QRectF(270, 215, 260, 95), QColor("#a9714b"));
    canvas.ellipse(200, 275, 400, 50, "#fff8e1");
    canvas.fillRect(QRectF(270, 215, 260, 80), QColor("#a9714b"));
    canvas.ellipse(270, 285, 260, 30, "#a9714b");
    canvas.ellipse(270, 195, 260, 40, "#fff8e1");
    for (int drop = 0; drop < 8; ++drop) {
        canvas.ellipse(212 + drop * 48, 295, 34, 40 + (drop % 3) * 18, "#fff8e1");
    }
    for (int cherry = 0; cherry < 7; ++cherry) {
        canvas.ellipse(222 + cherry * 54, 270, 26, 26, "#d32f2f");
    }
    for (const double x : {325.0, 375.0, 425.0, 475.0}) {
        candle(canvas, x);
    }
    return image;
}

QImage cat()
{
    QImage image(600, 800, QImage::Format_RGB32);
    Canvas canvas(image);
    canvas.falling({0, 0, 600, 620}, "#b2dfdb", "#e0f2f1");
    canvas.falling({0, 620, 600, 180}, "#90a4ae", "#607d8b");
    canvas.ellipse(120, 400, 360, 340, "#ef8e3b");
    canvas.ellipse(210, 470, 180, 250, "#fff3e0");
    for (int stripe = 0; stripe < 4; ++stripe) {
        canvas.line(
            {125.0 + stripe * 6, 520.0 + stripe * 45}, {190, 510.0 + stripe * 45}, "#bf5f1b", 10);
        canvas.line(
            {475.0 - stripe * 6, 520.0 + stripe * 45}, {410, 510.0 + stripe * 45}, "#bf5f1b", 10);
    }
    canvas.ellipse(190, 690, 90, 60, "#fff3e0");
    canvas.ellipse(320, 690, 90, 60, "#fff3e0");
    catFace(canvas);
    return image;
}

QImage star()
{
    QImage image(240, 240, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    Canvas canvas(image);
    QPolygonF corners;
    for (int corner = 0; corner < 10; ++corner) {
        const double radius = corner % 2 == 0 ? 112 : 52;
        const double angle = qDegreesToRadians(corner * 36.0 - 90);
        corners << QPointF(120 + radius * qCos(angle), 125 + radius * qSin(angle));
    }
    canvas.shape(corners, "#ffca28");
    canvas.ellipse(88, 100, 16, 22, "#4e342e");
    canvas.ellipse(136, 100, 16, 22, "#4e342e");
    canvas.setBrush(QColor("#4e342e"));
    canvas.drawChord(QRectF(90, 110, 60, 52), 180 * 16, 180 * 16);
    return image;
}

QImage shell()
{
    QImage image(96, 80, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    Canvas canvas(image);
    canvas.setBrush(QColor("#ffe0b2"));
    canvas.drawChord(QRectF(6, 6, 84, 110), 0, 180 * 16);
    for (int rib = -3; rib <= 3; ++rib) {
        canvas.line({48.0 + rib * 3, 60}, {48.0 + rib * 12, 14.0 + rib * rib * 3}, "#bf8040", 2);
    }
    canvas.shape({{{38, 58}, {58, 58}, {62, 74}, {34, 74}}}, "#e0a96d");
    return image;
}

QImage sketch()
{
    QImage image(500, 360, QImage::Format_RGB32);
    image.fill(Qt::white);
    Canvas canvas(image);
    canvas.line({90, 280}, {410, 280}, "#263238", 5);
    canvas.line({90, 280}, {130, 325}, "#263238", 5);
    canvas.line({130, 325}, {370, 325}, "#263238", 5);
    canvas.line({370, 325}, {410, 280}, "#263238", 5);
    canvas.line({240, 280}, {244, 40}, "#263238", 5);
    canvas.line({248, 52}, {390, 255}, "#d32f2f", 4);
    canvas.line({390, 255}, {250, 258}, "#d32f2f", 4);
    canvas.line({232, 70}, {140, 255}, "#1976d2", 4);
    canvas.line({140, 255}, {236, 257}, "#1976d2", 4);
    return image;
}

QImage page()
{
    QImage image(420, 594, QImage::Format_RGB32);
    image.fill(QColor("#fafafa"));
    Canvas canvas(image);
    canvas.falling({40, 40, 160, 36}, "#455a64", "#607d8b");
    for (int line = 0; line < 18; ++line) {
        const double end = line % 6 == 5 ? 210 : 380 - line * 7 % 30;
        canvas.line({40, 120.0 + line * 24}, {end, 120.0 + line * 24}, "#9e9e9e", 6);
    }
    return image;
}

QImage boat(double step)
{
    QImage image(320, 240, QImage::Format_RGB32);
    Canvas canvas(image);
    canvas.falling({0, 0, 320, 150}, "#81d4fa", "#ffe0b2");
    canvas.ellipse(250, 20, 40, 40, "#fff176");
    canvas.falling({0, 140, 320, 100}, "#0288d1", "#01579b");
    canvas.save();
    canvas.translate(40 + 220 * step, 150 + 5 * qSin(step * 12));
    canvas.shape({{{-40, 0}, {44, 0}, {28, 24}, {-28, 24}}}, "#6d4c41");
    canvas.shape({{{2, -80}, {2, -6}, {40, -6}}}, "#ffffff");
    canvas.shape({{{-4, -70}, {-4, -6}, {-32, -6}}}, "#ef5350");
    canvas.restore();
    return image;
}

QImage portrait(const QColor& hair, const QColor& shirt, int size)
{
    QImage image(size, size, QImage::Format_RGB32);
    Canvas canvas(image);
    canvas.scale(size / 200.0, size / 200.0);
    canvas.falling({0, 0, 200, 200}, "#e3f2fd", "#bbdefb");
    canvas.ellipse(50, 22, 100, 130, hair);
    canvas.ellipse(20, 140, 160, 120, shirt);
    canvas.ellipse(62, 42, 76, 100, "#ffccaa");
    canvas.setBrush(hair);
    canvas.drawChord(QRectF(58, 36, 84, 70), 10 * 16, 160 * 16);
    canvas.ellipse(80, 88, 9, 11, "#3e2723");
    canvas.ellipse(111, 88, 9, 11, "#3e2723");
    canvas.setBrush(QColor("#c2185b"));
    canvas.drawChord(QRectF(82, 98, 36, 28), 180 * 16, 180 * 16);
    return image;
}

QImage flower()
{
    QImage image(320, 320, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    Canvas canvas(image);
    canvas.line({160, 170}, {150, 305}, "#388e3c", 12);
    for (int petal = 0; petal < 8; ++petal) {
        const double angle = qDegreesToRadians(petal * 45.0);
        canvas.ellipse(118 + 62 * qCos(angle), 88 + 62 * qSin(angle), 84, 84,
            petal % 2 == 0 ? "#ec407a" : "#f48fb1");
    }
    canvas.ellipse(124, 94, 72, 72, "#fdd835");
    return image;
}

QImage hills(int view)
{
    QImage image(640, 480, QImage::Format_RGB32);
    Canvas canvas(image);
    const auto tint = [view](int saturation, int value) {
        return QColor::fromHsv((200 + view * 23) % 360, saturation, value);
    };
    canvas.falling({0, 0, 640, 300}, tint(90, 250), tint(30, 255));
    canvas.ellipse(60 + view * 61 % 460, 40 + view * 17 % 70, 60, 60, "#fff59d");
    for (int hill = 0; hill < 4; ++hill) {
        const double peak = (view * 97 + hill * 190) % 640;
        const double height = 130 + (view * 31 + hill * 57) % 110;
        canvas.shape({{{peak - 230, 310}, {peak, 310 - height}, {peak + 230, 310}}},
            tint(110 + hill * 20, 150 - hill * 25));
    }
    canvas.falling({0, 300, 640, 180}, tint(130, 190), tint(160, 90));
    for (int wave = 0; wave < 8; ++wave) {
        canvas.ellipse(
            (view * 53 + wave * 149) % 600, 320 + wave * 19, 50 + wave * 6, 4, tint(40, 235));
    }
    return image;
}

QByteArray jpeg(const QImage& image)
{
    return encoded(image, "JPEG", 80);
}

QByteArray png(const QImage& image)
{
    return encoded(image, "PNG", -1);
}

} // namespace sample
