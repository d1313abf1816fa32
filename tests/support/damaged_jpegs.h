// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <cstdint>
#include <random>

namespace support {

/// How a JPEG is coded. The picture is noise on a slope, so that the coded data look like a
/// photo's.
struct JpegForm {
    int width = 64;
    int height = 48;
    int components = 3; ///< 1 grey, 3 colours, 4 for print; 2 has no colours that anybody knows
    bool progressive = false;
    bool arithmetic = false;
    int restartInterval = 0; ///< in blocks of pixels; 0: none
    int horizontal = 2;      ///< sampling of the first component beside the others
    int vertical = 2;
    int quality = 75;
};

QByteArray makeJpeg(const JpegForm& form);

/// A JPEG whose bytes were changed, cut, moved or mixed with those of `other` in one to three ways.
QByteArray damaged(const QByteArray& whole, const QByteArray& other, std::mt19937& random);

/// The greatest number of pixels that a frame header anywhere in the bytes asks for.
std::int64_t pixelsAskedFor(const QByteArray& jpeg);

} // namespace support
