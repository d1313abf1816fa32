// SPDX-License-Identifier: MIT
// A Core Audio file; all numbers big-endian.
//
//   "caff" u16 version 1, u16 flags 0
//   "desc" i64 32: f64 samples a second, "lpcm", u32 flags (0: big-endian whole numbers),
//                  u32 bytes and u32 frames of a packet, u32 channels, u32 bits
//   "data" i64 size: u32 edits, then the samples
#include "recordings.h"

#include <QDataStream>
#include <QtMath>

#include <array>

namespace sample {

namespace {

constexpr int kRate = 8000; // samples a second
constexpr int kNoteLength = 4000;
constexpr int kVolume = 9000;
constexpr std::array kNotes{523.25, 659.25, 783.99, 1046.5}; // Hz

} // namespace

QByteArray melody()
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setFloatingPointPrecision(QDataStream::DoublePrecision);
    out.writeRawData("caff", 4);
    out << quint16{1} << quint16{0};
    out.writeRawData("desc", 4);
    out << qint64{32} << double{kRate};
    out.writeRawData("lpcm", 4);
    out << quint32{0} << quint32{2} << quint32{1} << quint32{1} << quint32{16};
    out.writeRawData("data", 4);
    out << qint64{4 + 2 * kNoteLength * int{kNotes.size()}} << quint32{0};
    for (const double note : kNotes) {
        for (int sample = 0; sample < kNoteLength; ++sample) {
            const double fading = 1.0 - static_cast<double>(sample) / kNoteLength;
            out << static_cast<qint16>(kVolume * fading * qSin(2 * M_PI * note * sample / kRate));
        }
    }
    return bytes;
}

// Frames of 20 ms that hold no sound: 0 1111 1 00, quality bit set.
QByteArray silence()
{
    constexpr char empty = 0x7c;
    return "#!AMR\n" + QByteArray(100, empty);
}

} // namespace sample
