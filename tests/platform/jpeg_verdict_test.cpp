// SPDX-License-Identifier: MIT
// DATAEXPORT_DAMAGED_JPEGS names the number of damaged files of the long comparison, in which every
// fiftieth has 12 megapixels.
#include "platform/JpegMarkers.h"
#include "platform/jpeg_verdict.h"
#include "support/damaged_jpegs.h"
#include "support/log_messages.h"
#include "support/temp_tree.h"

#include <QImage>

#include <gtest/gtest.h>

#include <vector>

namespace {

using support::JpegForm;
using support::makeJpeg;

constexpr std::int64_t kMostPixels = 50'000'000; // above, QImage is asked in any case

struct FormRow {
    const char* what = nullptr;
    JpegForm form;
};

const FormRow kForms[] = {
    {"as cameras write", {}},
    {"one pixel", {.width = 1, .height = 1}},
    {"one row", {.width = 200, .height = 1}},
    {"one column", {.width = 1, .height = 200}},
    {"odd sides", {.width = 131, .height = 77}},
    {"grey", {.components = 1}},
    {"for print", {.components = 4}},
    {"full colours", {.horizontal = 1, .vertical = 1}},
    {"colours halved across", {.horizontal = 2, .vertical = 1}},
    {"colours halved down", {.horizontal = 1, .vertical = 2}},
    {"colours of a quarter", {.horizontal = 4, .vertical = 1}},
    {"restarts", {.width = 200, .height = 150, .restartInterval = 3}},
    {"a restart for each block", {.width = 40, .height = 40, .restartInterval = 1}},
    {"progressive", {.width = 150, .height = 100, .progressive = true}},
    {"progressive, grey", {.components = 1, .progressive = true}},
    {"progressive with restarts", {.progressive = true, .restartInterval = 2}},
    {"arithmetic", {.arithmetic = true}},
    {"arithmetic with restarts", {.arithmetic = true, .restartInterval = 2}},
    {"progressive, arithmetic", {.progressive = true, .arithmetic = true}},
    {"640 by 480", {.width = 640, .height = 480}},
    {"best quality", {.width = 320, .height = 240, .quality = 100}},
};

JpegMarkers markersOf(const QByteArray& jpeg, qint64 pieceSize = 16'384)
{
    JpegMarkers markers;
    for (qint64 at = 0; at < jpeg.size(); at += pieceSize) {
        markers.add(jpeg.constData() + at, std::min<qint64>(pieceSize, jpeg.size() - at));
    }
    return markers;
}

class JpegVerdict : public testing::Test {
protected:
    bool qimageLoads(const QByteArray& jpeg) const
    {
        const QString path = tree.write("a.jpg", jpeg);
        const bool loads = !QImage(path).isNull();
        QFile::remove(path); // some file systems wait for the disk where a file is overwritten
        return loads;
    }

    // Compares the verdicts on `count` damaged files made of `wholes`.
    void compare(const std::vector<QByteArray>& wholes, int count)
    {
        const auto any = [this, &wholes]() -> const QByteArray& {
            return wholes[random() % wholes.size()];
        };
        while (compared < count) {
            const QByteArray jpeg = support::damaged(any(), any(), random);
            if (support::pixelsAskedFor(jpeg) > kMostPixels) {
                ++tooLarge;
                continue;
            }
            ++compared;
            const bool decodes =
                markersDecode(markersOf(jpeg, 1 + static_cast<qint64>(random() % 20'000)));
            const bool loads = qimageLoads(jpeg);
            decoded += decodes ? 1 : 0;
            loaded += loads ? 1 : 0;
            if (decodes && !loads) {
                ADD_FAILURE() << "file " << compared << ": "
                              << jpeg.left(1500).toHex().toStdString();
            }
        }
    }

    support::TempTree tree;
    std::mt19937 random{20'240'501}; // NOLINT(cert-msc51-cpp): the same files in each run
    int compared = 0;
    int tooLarge = 0;
    int decoded = 0;
    int loaded = 0;
};

TEST_F(JpegVerdict, KnowsWholeFilesOfAllFormsByTheirMarkersAlone)
{
    for (const FormRow& row : kForms) {
        SCOPED_TRACE(row.what);
        const QByteArray jpeg = makeJpeg(row.form);
        ASSERT_TRUE(qimageLoads(jpeg));
        EXPECT_TRUE(markersDecode(markersOf(jpeg)));
        EXPECT_TRUE(loadsAsImage(tree.path("none.jpg"), markersOf(jpeg))) << "no file was read";
    }
}

TEST_F(JpegVerdict, LeavesToQImageWhatIsNotReadAsAJpegFirst)
{
    const QByteArray jpeg = makeJpeg({});
    struct {
        const char* what = nullptr;
        QByteArray bytes;
        QString name;
        bool loads = false;
    } const rows[] = {
        {"another suffix, a picture", jpeg, "a.png", true},
        {"another suffix, nothing there", {}, "none.png", false},
        {"capitals", jpeg, "a.JPEG", true},
        {"a GIF picture", "GIF89a\1\0\1\0\x80\0\0", "b.jpg", false},
        {"no picture", "JFIF and no more", "c.jpg", false},
        {"begins later", "x" + jpeg, "d.jpg", false},
        {"empty", "", "e.jpg", false},
        {"two components", makeJpeg({.components = 2}), "f.jpg", false},
    };
    const support::LogMessages silence; // decoders tell of all that is damaged
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const QString path =
            row.name.startsWith("none") ? tree.path(row.name) : tree.write(row.name, row.bytes);
        EXPECT_EQ(!QImage(path).isNull(), row.loads);
        EXPECT_EQ(loadsAsImage(path, markersOf(row.bytes)), row.loads);
    }
}

// 2 GB of pixels are not for us to decide about.
TEST_F(JpegVerdict, DoesNotDecideAboutImagesThatMayNotFitTheMemory)
{
    QByteArray jpeg = makeJpeg({.width = 16, .height = 16, .components = 1});
    const int frame = jpeg.indexOf("\xFF\xC0");
    ASSERT_GT(frame, 0);
    jpeg.replace(frame + 5, 4, QByteArray("\x60\x00\x60\x00", 4));
    EXPECT_FALSE(markersDecode(markersOf(jpeg)));
    jpeg.replace(frame + 5, 4, QByteArray("\x10\x00\x10\x00", 4));
    EXPECT_TRUE(markersDecode(markersOf(jpeg)));
}

TEST_F(JpegVerdict, IsThatOfQImageForDamagedFiles)
{
    std::vector<QByteArray> wholes;
    for (const FormRow& row : kForms) {
        wholes.push_back(makeJpeg(row.form));
    }
    const support::LogMessages silence; // decoders tell of all that is damaged
    const int asked = qEnvironmentVariableIntValue("DATAEXPORT_DAMAGED_JPEGS");
    compare(wholes, asked > 0 ? asked - asked / 50 : 3'000);
    // Else the comparison would say little.
    EXPECT_GT(loaded, compared / 4);
    EXPECT_LT(loaded, compared);
    EXPECT_GT(decoded, loaded * 9 / 10);
    RecordProperty("compared", compared);
    RecordProperty("loaded", loaded);
    RecordProperty("decoded", decoded);
}

TEST_F(JpegVerdict, IsThatOfQImageForDamagedPhotosOf12Megapixels)
{
    const std::vector<QByteArray> wholes{makeJpeg({.width = 4000, .height = 3000}),
        makeJpeg({.width = 4032, .height = 3024, .restartInterval = 252}),
        makeJpeg({.width = 3024, .height = 4032, .progressive = true})};
    const support::LogMessages silence; // decoders tell of all that is damaged
    const int asked = qEnvironmentVariableIntValue("DATAEXPORT_DAMAGED_JPEGS");
    compare(wholes, asked > 0 ? asked / 50 : 20);
    EXPECT_GT(loaded, 0);
    RecordProperty("compared", compared);
    RecordProperty("loaded", loaded);
    RecordProperty("decoded", decoded);
}

} // namespace
