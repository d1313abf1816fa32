// SPDX-License-Identifier: MIT
#include "platform/CCommonUtils.h"
#include "support/damaged_jpegs.h"
#include "support/file_limits.h"
#include "support/heic_maker.h"
#include "support/log_messages.h"
#include "support/temp_tree.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>

#include <gtest/gtest.h>

namespace {

using support::exifBlock;
using support::LogMessages;
using support::makeHeic;

constexpr qint64 kLargestSample = 60'000;

// Red on the left, blue on the right, 64 by 32.
QImage twoColors()
{
    QImage image(64, 32, QImage::Format_RGB32);
    image.fill(Qt::blue);
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 32; ++x) {
            image.setPixelColor(x, y, Qt::red);
        }
    }
    return image;
}

QByteArray encoded(const QImage& image, const char* format, int quality = -1)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format, quality));
    return buffer.data();
}

QByteArray exifSegment(const QByteArray& block)
{
    const int size = block.size() + 8;
    QByteArray segment("\xFF\xE1", 2);
    segment.append(static_cast<char>(size / 256)).append(static_cast<char>(size % 256));
    return segment + QByteArray("Exif\0\0", 6) + block;
}

QByteArray turnedJpeg(int orientation)
{
    return encoded(twoColors(), "JPG", 90).insert(2, exifSegment(exifBlock(orientation, true)));
}

bool isRed(const QColor& color)
{
    return color.red() > 200 && color.blue() < 60;
}

// Turned to the right, the red half is on top.
void expectTurnedRight(const QImage& image)
{
    ASSERT_EQ(image.size(), QSize(32, 64));
    EXPECT_TRUE(isRed(image.pixelColor(16, 8)));
    EXPECT_FALSE(isRed(image.pixelColor(16, 56)));
}

class Images : public testing::Test {
protected:
    // Skips the test where the machine has no encoder.
    QString writeHeic(int orientation = 1, const QByteArray& exif = {})
    {
        const QByteArray bytes = makeHeic(twoColors(), orientation, exif);
        return bytes.isEmpty() ? QString() : tree.write("in/a.heic", bytes);
    }

    bool convert(const QString& src, const QString& relativeTarget)
    {
        tree.makeDir("out");
        QString target = tree.path(relativeTarget);
        const bool converted = CCommonUtils::convertHEICFileToJPG(src, target, false);
        EXPECT_EQ(target, tree.path(relativeTarget));
        return converted;
    }

    QStringList written() const { return tree.list().filter(QRegExp("^out/.")); }

    support::TempTree tree;
};

// As stickers of chats are.
TEST(CCommonUtilsImages, WebPIsLoadedWhereThereIsAPluginForIt)
{
    if (!QImageReader::supportedImageFormats().contains("webp")) {
        GTEST_SKIP() << "Qt has no plugin for WebP here";
    }
    const support::TempTree tree;
    const QString path = tree.write("sticker.webp", encoded(twoColors(), "webp"));
    QImage image;
    ASSERT_TRUE(image.load(path));
    EXPECT_EQ(image.size(), QSize(64, 32));
    EXPECT_EQ(CCommonUtils::safeloadImage(path), image);
}

TEST_F(Images, AreReadByTheirContentWhateverTheNameSays)
{
    struct {
        const char* what = nullptr;
        QString name;
        QByteArray bytes;
    } const rows[] = {
        {"a PNG called JPG", "a.jpg", encoded(twoColors(), "PNG")},
        {"a JPEG called PNG", "a.png", encoded(twoColors(), "JPG")},
        {"a JPEG without suffix", "a", encoded(twoColors(), "JPG")},
        {"a BMP called HEIC", "a.heic", encoded(twoColors(), "BMP")},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const QString path = tree.write(row.name, row.bytes);
        EXPECT_EQ(CCommonUtils::safeloadImage(path).size(), QSize(64, 32));
        QImage image;
        EXPECT_TRUE(CCommonUtils::readThumbFileData(image, path));
        EXPECT_EQ(image, CCommonUtils::safeloadImage(path));
    }
}

TEST_F(Images, AreTurnedUpright)
{
    expectTurnedRight(CCommonUtils::safeloadImage(tree.write("a.jpg", turnedJpeg(6))));
}

TEST_F(Images, OfHeicAreReadAndTurnedOnce)
{
    // The container's turn counts; the Exif block tells the same turn again.
    const QString path = writeHeic(6, exifBlock(6, true));
    if (path.isEmpty()) {
        GTEST_SKIP() << "no encoder for HEIC";
    }
    expectTurnedRight(CCommonUtils::safeloadImage(path));
    QImage image;
    EXPECT_TRUE(
        CCommonUtils::readThumbFileData(image, tree.write("b.jpg", tree.read("in/a.heic"))));
    expectTurnedRight(image);
}

TEST_F(Images, ThatAreNoneAreToldAsSuchWithoutAWarning)
{
    const QString paths[] = {"", tree.path("none.jpg"), tree.path(), tree.write("empty.jpg", ""),
        tree.write("text.jpg", "text"), tree.write("short.heic", "....ftypheic"),
        tree.write("cut.heic", QByteArray("\0\0\0\x18"
                                          "ftypheic\0\0\0\0mif1heic",
                                   24))};
    for (const QString& path : paths) {
        SCOPED_TRACE(path.toStdString());
        const LogMessages messages;
        EXPECT_TRUE(CCommonUtils::safeloadImage(path).isNull());
        QImage image = twoColors();
        EXPECT_FALSE(CCommonUtils::readThumbFileData(image, path));
        EXPECT_EQ(image, twoColors()) << "as it was";
        EXPECT_EQ(messages.lines(), QStringList());
    }
}

TEST_F(Images, OfHeicBecomeJpegOfQuality90)
{
    const QString path = writeHeic();
    if (path.isEmpty()) {
        GTEST_SKIP() << "no encoder for HEIC";
    }
    ASSERT_TRUE(convert(path, "out/a.jpg"));
    EXPECT_EQ(tree.read("out/a.jpg"), encoded(CCommonUtils::safeloadImage(path), "JPG", 90));
    EXPECT_EQ(written(), QStringList("out/a.jpg"));
}

TEST_F(Images, OfHeicKeepTheirExifWithTheOrientationOfWhatIsSeen)
{
    for (const bool bigEndian : {false, true}) {
        const QString path = writeHeic(6, exifBlock(6, bigEndian));
        if (path.isEmpty()) {
            GTEST_SKIP() << "no encoder for HEIC";
        }
        ASSERT_TRUE(convert(path, "out/a.jpg"));
        const QByteArray jpeg = tree.read("out/a.jpg");
        EXPECT_EQ(jpeg.left(4), QByteArray("\xFF\xD8\xFF\xE0", 4));
        // behind the 18 bytes of the first segment
        const QByteArray segment = exifSegment(exifBlock(1, bigEndian));
        EXPECT_EQ(jpeg.mid(20, segment.size()).toHex(), segment.toHex());
        expectTurnedRight(QImage(tree.path("out/a.jpg")));
        expectTurnedRight(CCommonUtils::safeloadImage(tree.path("out/a.jpg")));
    }
}

TEST_F(Images, OfHeicLeaveOutAnExifThatIsTooLongForAJpeg)
{
    const QString path = writeHeic(1, exifBlock(1, true) + QByteArray(65'500, 'x'));
    if (path.isEmpty()) {
        GTEST_SKIP() << "no encoder for HEIC";
    }
    ASSERT_TRUE(convert(path, "out/a.jpg"));
    EXPECT_FALSE(tree.read("out/a.jpg").contains("Exif"));
    EXPECT_FALSE(QImage(tree.path("out/a.jpg")).isNull());
}

TEST_F(Images, ThatAreNoHeicAreNotConverted)
{
    struct {
        const char* what = nullptr;
        QByteArray bytes;
    } const rows[] = {
        {"empty", ""},
        {"a JPEG", encoded(twoColors(), "JPG")},
        {"a head alone", QByteArray("\0\0\0\x18"
                                    "ftypheic\0\0\0\0mif1heic",
                             24)},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_FALSE(convert(tree.write("in/a.heic", row.bytes), "out/a.jpg"));
        EXPECT_EQ(written(), QStringList());
    }
    EXPECT_FALSE(convert(tree.path("in/none.heic"), "out/a.jpg"));
}

TEST_F(Images, OfHeicThatAreCutLeaveNoFile)
{
    const QString path = writeHeic();
    if (path.isEmpty()) {
        GTEST_SKIP() << "no encoder for HEIC";
    }
    const QByteArray whole = tree.read("in/a.heic");
    for (int size = 0; size < whole.size(); size += 1 + whole.size() / 40) {
        SCOPED_TRACE(size);
        EXPECT_FALSE(convert(tree.write("in/cut.heic", whole.left(size)), "out/a.jpg"));
        EXPECT_EQ(written(), QStringList());
    }
}

TEST_F(Images, OfHeicLeaveNoPartWhereTheTargetCannotBeWritten)
{
    const QString path = writeHeic();
    if (path.isEmpty()) {
        GTEST_SKIP() << "no encoder for HEIC";
    }
    EXPECT_FALSE(convert(path, "none/a.jpg"));
    {
        const support::LargestFile limit(200);
        EXPECT_FALSE(convert(path, "out/a.jpg"));
    }
    EXPECT_EQ(written(), QStringList());
    EXPECT_TRUE(convert(path, "out/a.jpg"));
}

TEST_F(Images, OfRealHeicFilesBecomeWholeJpegsOrNothing)
{
    const QDir samples(qEnvironmentVariable("DATAEXPORT_TEST_DATA",
                           QString(DATAEXPORT_SOURCE_DIR) + "/../shared/data")
                       + "/pictures/heic");
    const QStringList names = samples.entryList({"*.heic", "*.HEIC", "*.heif"}, QDir::Files);
    if (names.isEmpty()) {
        GTEST_SKIP() << "no sample files";
    }
    int converted = 0;
    const LogMessages silence;
    for (const QString& name : names) {
        SCOPED_TRACE(name.toStdString());
        if (QFileInfo(samples.filePath(name)).size() > kLargestSample) {
            continue; // decoding takes its time
        }
        const bool done = convert(samples.filePath(name), "out/a.jpg");
        EXPECT_EQ(written(), done ? QStringList("out/a.jpg") : QStringList());
        EXPECT_EQ(!QImage(tree.path("out/a.jpg")).isNull(), done);
        QFile::remove(tree.path("out/a.jpg"));
        converted += done ? 1 : 0;
    }
    EXPECT_GT(converted, names.size() / 3);
}

TEST(ProtectMediaFile, DoesNothing)
{
    const support::TempTree tree;
    const QString path = tree.write("a.jpg", "bytes");
    CCommonUtils::protectMediaFile(path, false);
    CCommonUtils::protectMediaFile(path, true);
    CCommonUtils::protectMediaFile(tree.path("none"), false);
    EXPECT_EQ(tree.list(), QStringList("a.jpg"));
    EXPECT_EQ(tree.read("a.jpg"), "bytes");
}

} // namespace
