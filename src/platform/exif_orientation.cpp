// SPDX-License-Identifier: MIT
// TIFF structure of an Exif block; numbers in the byte order that it names:
//   offset size
//      0    2   "II" little-endian or "MM" big-endian
//      2    2   42
//      4    4   offset of the first directory: a 16-bit count, then its entries of 12 bytes:
//                 0  2  tag, 0x0112 for the orientation
//                 2  2  type, 3 for a 16-bit number
//                 4  4  count
//                 8  4  value; a 16-bit number stands in the first two bytes
#include "platform/exif_orientation.h"

#include <QByteArray>
#include <QtEndian>

namespace {

constexpr int kHeaderSize = 8;
constexpr int kEntrySize = 12;
constexpr int kValueAt = 8; // of an entry
constexpr quint16 kOrientation = 0x0112;
constexpr quint16 kUpright = 1;

template <typename Number> Number numberAt(const QByteArray& tiff, qint64 at, bool bigEndian)
{
    const char* bytes = tiff.constData() + at;
    return bigEndian ? qFromBigEndian<Number>(bytes) : qFromLittleEndian<Number>(bytes);
}

} // namespace

void setUpright(QByteArray& tiff)
{
    const bool bigEndian = tiff.startsWith("MM");
    if (tiff.size() < kHeaderSize || (!bigEndian && !tiff.startsWith("II"))) {
        return;
    }
    const qint64 directory = numberAt<quint32>(tiff, 4, bigEndian);
    if (tiff.size() - directory < 2) {
        return;
    }
    const int entries = numberAt<quint16>(tiff, directory, bigEndian);
    for (int i = 0; i < entries; ++i) {
        const qint64 entry = directory + 2 + static_cast<qint64>(i) * kEntrySize;
        if (tiff.size() - entry < kEntrySize) {
            return;
        }
        if (numberAt<quint16>(tiff, entry, bigEndian) == kOrientation) {
            char* value = tiff.data() + entry + kValueAt;
            bigEndian ? qToBigEndian(kUpright, value) : qToLittleEndian(kUpright, value);
            return;
        }
    }
}
