// SPDX-License-Identifier: MIT
// A QuickTime film whose frames are JPEG pictures. An atom is u32 size with these 8 bytes, four
// letters, and what it holds; all numbers big-endian.
//
//   ftyp  brand
//   mdat  the frames, one after the other
//   moov  mvhd  time scale and length
//         trak  tkhd  size of the picture
//               mdia  mdhd hdlr("vide")
//                     minf  vmhd hdlr("alis") dinf/dref("alis")
//                           stbl  stsd  codec "jpeg"
//                                 stts  time of each frame
//                                 stsc  frames of a chunk: all
//                                 stsz  size of each frame
//                                 stco  where the chunk begins
#include "pictures.h"
#include "recordings.h"

#include <QDataStream>

#include <algorithm>
#include <numeric>
#include <vector>

namespace sample {

namespace {

constexpr quint32 kFrames = 16;
constexpr quint32 kFramesPerSecond = 8;
constexpr quint32 kWidth = 320;
constexpr quint32 kHeight = 240;
constexpr quint32 kOne = 0x00010000; // 1.0 in fixed point

QByteArray atom(const char* name, const QByteArray& content)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << static_cast<quint32>(content.size() + 8);
    out.writeRawData(name, 4);
    return bytes + content;
}

QByteArray numbers(std::initializer_list<quint32> values)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    for (const quint32 value : values) {
        out << value;
    }
    return bytes;
}

// Version and flags come first in most atoms.
constexpr quint32 kPlain = 0;
const std::initializer_list<quint32> kUpright{kOne, 0, 0, 0, kOne, 0, 0, 0, 0x40000000};

QByteArray movieHeader()
{
    return atom("mvhd", numbers({kPlain, 0, 0, kFramesPerSecond, kFrames, kOne, 0x01000000, 0, 0})
                            + numbers(kUpright) + numbers({0, 0, 0, 0, 0, 0, 2}));
}

QByteArray trackHeader()
{
    constexpr quint32 enabledInMovie = 3;
    return atom("tkhd", numbers({enabledInMovie, 0, 0, 1, 0, kFrames, 0, 0, 0, 0})
                            + numbers(kUpright) + numbers({kWidth << 16U, kHeight << 16U}));
}

QByteArray handler(const char* type, const char* subtype)
{
    return atom("hdlr", numbers({kPlain}) + type + subtype + numbers({0, 0, 0}) + '\0');
}

// Reserved, version, vendor, qualities, size, dots per inch twice, data size; then one frame a
// sample, an empty name of 32 bytes, 24 bits of colour and no colour table.
QByteArray codec()
{
    constexpr quint32 dotsPerInch = 72 * kOne;
    const QByteArray entry =
        numbers({0, 1, 0, 0, 0, 0x200, (kWidth << 16U) | kHeight, dotsPerInch, dotsPerInch, 0})
        + QByteArray("\0\1", 2) + QByteArray(32, '\0') + QByteArray("\0\x18\xff\xff", 4);
    return atom("stsd", numbers({kPlain, 1}) + atom("jpeg", entry));
}

QByteArray sampleTable(const std::vector<QByteArray>& frames, quint32 firstFrameAt)
{
    QByteArray sizes = numbers({kPlain, 0, kFrames});
    for (const QByteArray& frame : frames) {
        sizes += numbers({static_cast<quint32>(frame.size())});
    }
    return atom("stbl", codec() + atom("stts", numbers({kPlain, 1, kFrames, 1}))
                            + atom("stsc", numbers({kPlain, 1, 1, kFrames, 1}))
                            + atom("stsz", sizes)
                            + atom("stco", numbers({kPlain, 1, firstFrameAt})));
}

QByteArray mediaAtom(const std::vector<QByteArray>& frames, quint32 firstFrameAt)
{
    const QByteArray itself = atom("alis", numbers({1})); // the frames are in this file
    const QByteArray reference = atom("dinf", atom("dref", numbers({kPlain, 1}) + itself));
    const QByteArray header = atom("mdhd", numbers({kPlain, 0, 0, kFramesPerSecond, kFrames, 0}));
    const QByteArray information =
        atom("minf", atom("vmhd", numbers({1, 0, 0})) + handler("dhlr", "alis") + reference
                         + sampleTable(frames, firstFrameAt));
    return atom("mdia", header + handler("mhlr", "vide") + information);
}

std::vector<QByteArray> framesOfTheBoat()
{
    std::vector<QByteArray> frames;
    for (quint32 frame = 0; frame < kFrames; ++frame) {
        frames.push_back(jpeg(boat(static_cast<double>(frame) / kFrames)));
    }
    return frames;
}

QByteArray filmOf(const std::vector<QByteArray>& frames)
{
    const QByteArray type = atom("ftyp", QByteArray("qt  ") + numbers({0x20050300}) + "qt  ");
    const QByteArray data =
        atom("mdat", std::accumulate(frames.begin(), frames.end(), QByteArray()));
    const QByteArray track =
        atom("trak", trackHeader() + mediaAtom(frames, static_cast<quint32>(type.size() + 8)));
    return type + data + atom("moov", movieHeader() + track);
}

} // namespace

QByteArray film()
{
    return filmOf(framesOfTheBoat());
}

QByteArray filmBackwards()
{
    std::vector<QByteArray> frames = framesOfTheBoat();
    std::reverse(frames.begin(), frames.end());
    return filmOf(frames);
}

} // namespace sample
