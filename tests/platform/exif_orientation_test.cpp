// SPDX-License-Identifier: MIT
#include "platform/exif_orientation.h"
#include "support/heic_maker.h"

#include <gtest/gtest.h>

namespace {

using support::exifBlock;

QByteArray upright(QByteArray block)
{
    setUpright(block);
    return block;
}

TEST(SetUpright, ChangesTheOrientationAloneInBothByteOrders)
{
    for (const bool bigEndian : {false, true}) {
        for (int orientation = 0; orientation <= 9; ++orientation) {
            SCOPED_TRACE(testing::Message() << bigEndian << " " << orientation);
            EXPECT_EQ(upright(exifBlock(orientation, bigEndian)).toHex(),
                exifBlock(1, bigEndian).toHex());
        }
    }
}

TEST(SetUpright, LeavesABlockWithoutOrientationAsItIs)
{
    QByteArray block = exifBlock(6, true);
    block[23] = 0x13; // another tag
    EXPECT_EQ(upright(block).toHex(), block.toHex());
}

TEST(SetUpright, LeavesDamagedBlocksAsTheyAre)
{
    const QByteArray whole = exifBlock(6, false);
    struct {
        const char* what = nullptr;
        QByteArray block;
    } const rows[] = {
        {"empty", {}},
        {"no TIFF structure", "Exif" + whole},
        {"a directory past the end", QByteArray(whole).replace(4, 4, "\xFF\xFF\xFF\xFF", 4)},
        {"a directory at the end", QByteArray(whole).replace(4, 1, QByteArray(1, 0x26))},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(upright(row.block).toHex(), row.block.toHex());
    }
    constexpr int kOrientationEnds = 34;
    for (int size = 0; size < kOrientationEnds; ++size) {
        SCOPED_TRACE(size);
        EXPECT_EQ(upright(whole.left(size)).toHex(), whole.left(size).toHex());
    }
}

} // namespace
