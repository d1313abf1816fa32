// SPDX-License-Identifier: MIT
#include "platform/JpegMarkers.h"
#include "support/damaged_jpegs.h"

#include <gtest/gtest.h>

namespace {

QByteArray bytesOf(const QByteArray& file, int pieceSize)
{
    JpegMarkers markers;
    for (int at = 0; at < file.size(); at += pieceSize) {
        markers.add(file.constData() + at, std::min(pieceSize, file.size() - at));
    }
    return markers.isUsable() ? markers.bytes() : QByteArray("unusable");
}

QByteArray bytes(const char* hex)
{
    return QByteArray::fromHex(hex);
}

TEST(JpegMarkers, KeepsMarkersWithTheirSegmentsAndNothingElse)
{
    struct {
        const char* what = nullptr;
        const char* file = nullptr;
        const char* kept = nullptr;
    } const rows[] = {
        {"start alone", "ffd8", "ffd8"},
        {"a segment", "ffd8 ffe0 0004 aabb", "ffd8 ffe0 0004 aabb"},
        {"a segment that holds a marker", "ffd8 ffe0 0006 ffd9 ffda 1122",
            "ffd8 ffe0 0006 ffd9 ffda"},
        {"lengths of less than their own bytes", "ffd8 ffe0 0000 ffe1 0001 22 ffd9",
            "ffd8 ffe0 0000 ffe1 0001 ffd9"},
        {"coded data", "ffd8 ffda 0002 11 22 ff00 33 ffd9", "ffd8 ffda 0002 ffd9"},
        {"fill bytes", "ffd8 ffff ffdb 0002 ffff 00 ffd9", "ffd8 ffdb 0002 ffd9"},
        {"bytes between segments", "ffd8 00 11 ffdb 0003 77 22 ffd9", "ffd8 ffdb 0003 77 ffd9"},
        {"restarts have no length", "ffd8 ffda 0002 11 ffd0 2233 ffd7 44 ffd9",
            "ffd8 ffda 0002 ffd0 ffd7 ffd9"},
        {"nor has a second start", "ffd8 ffd8 0004 ffd9", "ffd8 ffd8 ffd9"},
        {"nor has a code below C0", "ffd8 ff01 0004 ffbf 0004 ffc0 0003 00",
            "ffd8 ff01 ffbf ffc0 0003 00"},
        {"nothing behind the end", "ffd8 ffd9 ffe0 0004 1122", "ffd8 ffd9"},
        {"cut within a segment", "ffd8 ffe0 0010 1122", "ffd8 ffe0 0010 1122"},
        {"cut within a length", "ffd8 ffe0 00", "ffd8 ffe0 00"},
        {"cut within a marker", "ffd8 ff", "ffd8"},
        {"another start", "ffd7 ffe0 0002", ""},
        {"a start that comes late", "00 ffd8 ffd9", ""},
        {"one byte", "ff", ""},
        {"empty", "", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const QByteArray kept = *row.kept != '\0' ? bytes(row.kept) : QByteArray("unusable");
        for (const int pieceSize : {1, 2, 3, 100}) {
            EXPECT_EQ(bytesOf(bytes(row.file), pieceSize).toHex(), kept.toHex()) << pieceSize;
        }
    }
}

TEST(JpegMarkers, AreAFewHundredBytesOfAPhoto)
{
    const QByteArray photo = support::makeJpeg({.width = 2000, .height = 1500});
    EXPECT_GT(photo.size(), 300'000);
    EXPECT_LT(bytesOf(photo, 16'384).size(), 700);
}

TEST(JpegMarkers, GiveUpWhenTheyAreTooMany)
{
    JpegMarkers markers;
    markers.add("\xFF\xD8", 2);
    const QByteArray segment = QByteArray("\xFF\xE1\xFF\xFF", 4) + QByteArray(0xFFFD, 'x');
    for (int i = 0; i < 128; ++i) {
        EXPECT_TRUE(markers.isUsable()) << i;
        markers.add(segment.constData(), segment.size());
    }
    EXPECT_FALSE(markers.isUsable());
    const int size = markers.bytes().size();
    markers.add(segment.constData(), segment.size());
    EXPECT_EQ(markers.bytes().size(), size);
}

} // namespace
