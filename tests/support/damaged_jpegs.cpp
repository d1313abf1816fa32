// SPDX-License-Identifier: MIT
#include "support/damaged_jpegs.h"

#include <algorithm>
#include <array>
#include <cstdio> // before jpeglib.h, which needs it
#include <cstdlib>
#include <jpeglib.h>
#include <vector>

namespace support {

namespace {

J_COLOR_SPACE colorSpaceOf(int components)
{
    switch (components) {
    case 1:
        return JCS_GRAYSCALE;
    case 3:
        return JCS_RGB;
    case 4:
        return JCS_CMYK;
    default:
        return JCS_UNKNOWN;
    }
}

void setForm(jpeg_compress_struct& info, const JpegForm& form)
{
    info.image_width = static_cast<JDIMENSION>(form.width);
    info.image_height = static_cast<JDIMENSION>(form.height);
    info.input_components = form.components;
    info.in_color_space = colorSpaceOf(form.components);
    jpeg_set_defaults(&info);
    jpeg_set_quality(&info, form.quality, TRUE);
    if (form.components == 3) {
        info.comp_info[0].h_samp_factor = form.horizontal;
        info.comp_info[0].v_samp_factor = form.vertical;
    }
    if (form.progressive) {
        jpeg_simple_progression(&info);
    }
    info.arith_code = form.arithmetic ? TRUE : FALSE;
    info.restart_interval = static_cast<unsigned>(form.restartInterval);
}

void writeRows(jpeg_compress_struct& info)
{
    std::mt19937 noise(info.image_width * 7 + info.image_height);
    std::vector<JSAMPLE> row(
        static_cast<std::size_t>(info.image_width) * static_cast<unsigned>(info.input_components));
    JSAMPROW rows = row.data();
    while (info.next_scanline < info.image_height) {
        std::mt19937::result_type bits = 0;
        for (std::size_t i = 0; i < row.size(); ++i) {
            bits = i % 8 == 0 ? noise() : bits >> 4U;
            row[i] = static_cast<JSAMPLE>(i / 8 + info.next_scanline / 4 + bits % 16);
        }
        jpeg_write_scanlines(&info, &rows, 1);
    }
}

int below(std::mt19937& random, int limit)
{
    return limit > 0 ? static_cast<int>(random() % static_cast<unsigned>(limit)) : 0;
}

char anyByte(std::mt19937& random)
{
    return static_cast<char>(random() & 0xFFU);
}

// Places of markers, those in the coded data included.
std::vector<int> markerPlaces(const QByteArray& jpeg)
{
    std::vector<int> places;
    for (int at = jpeg.indexOf('\xFF'); at >= 0; at = jpeg.indexOf('\xFF', at + 1)) {
        if (at + 1 < jpeg.size() && jpeg.at(at + 1) != 0) {
            places.push_back(at);
        }
    }
    return places;
}

int anyMarker(const QByteArray& jpeg, std::mt19937& random)
{
    const std::vector<int> places = markerPlaces(jpeg);
    return places.empty()
               ? 0
               : places[static_cast<std::size_t>(below(random, static_cast<int>(places.size())))];
}

using Damage = void (*)(QByteArray& jpeg, const QByteArray& other, std::mt19937& random);

void changeBytes(QByteArray& jpeg, const QByteArray& /*other*/, std::mt19937& random)
{
    for (int left = 1 + below(random, 12); left > 0 && !jpeg.isEmpty(); --left) {
        jpeg[below(random, jpeg.size())] = anyByte(random);
    }
}

void changeHead(QByteArray& jpeg, const QByteArray& /*other*/, std::mt19937& random)
{
    for (int left = 1 + below(random, 3); left > 0 && !jpeg.isEmpty(); --left) {
        jpeg[below(random, std::min(jpeg.size(), 700))] = anyByte(random);
    }
}

void changeBit(QByteArray& jpeg, const QByteArray& /*other*/, std::mt19937& random)
{
    if (!jpeg.isEmpty()) {
        const int at = below(random, std::min(jpeg.size(), 700));
        jpeg[at] = static_cast<char>(jpeg.at(at) ^ (1 << below(random, 8)));
    }
}

void changeCode(QByteArray& jpeg, const QByteArray& /*other*/, std::mt19937& random)
{
    const int at = anyMarker(jpeg, random);
    if (at + 1 < jpeg.size()) {
        jpeg[at + 1] = anyByte(random);
    }
}

void changeSegment(QByteArray& jpeg, const QByteArray& /*other*/, std::mt19937& random)
{
    const int at = anyMarker(jpeg, random) + 2 + below(random, 20);
    if (at < jpeg.size()) {
        jpeg[at] = anyByte(random);
    }
}

void cutEnd(QByteArray& jpeg, const QByteArray& /*other*/, std::mt19937& random)
{
    jpeg.truncate(below(random, jpeg.size()));
}

void cutOut(QByteArray& jpeg, const QByteArray& /*other*/, std::mt19937& random)
{
    jpeg.remove(below(random, jpeg.size()), 1 + below(random, 1 + jpeg.size() / 4));
}

void cutMarker(QByteArray& jpeg, const QByteArray& /*other*/, std::mt19937& random)
{
    jpeg.remove(anyMarker(jpeg, random), 2 + below(random, 40));
}

void insertMarker(QByteArray& jpeg, const QByteArray& /*other*/, std::mt19937& random)
{
    constexpr std::array<unsigned char, 20> kCodes{0x01, 0x02, 0xBF, 0xC0, 0xC2, 0xC4, 0xC9, 0xCC,
        0xD0, 0xD3, 0xD7, 0xD8, 0xD9, 0xDA, 0xDB, 0xDC, 0xDD, 0xE1, 0xFE, 0xFF};
    const unsigned char code = kCodes[static_cast<std::size_t>(below(random, 20))];
    jpeg.insert(below(random, jpeg.size()), QByteArray("\xFF") + static_cast<char>(code));
}

void insertRestarts(QByteArray& jpeg, const QByteArray& /*other*/, std::mt19937& random)
{
    for (int left = 1 + below(random, 8); left > 0; --left) {
        const auto code = static_cast<char>(0xD0 + below(random, 8));
        jpeg.insert(below(random, jpeg.size()), QByteArray("\xFF") + code);
    }
}

void insertBytes(QByteArray& jpeg, const QByteArray& /*other*/, std::mt19937& random)
{
    QByteArray bytes;
    for (int left = 1 + below(random, 50); left > 0; --left) {
        bytes.append(anyByte(random));
    }
    jpeg.insert(below(random, jpeg.size()), bytes);
}

void repeatPart(QByteArray& jpeg, const QByteArray& /*other*/, std::mt19937& random)
{
    const int at = anyMarker(jpeg, random);
    jpeg.insert(anyMarker(jpeg, random), jpeg.mid(at, 2 + below(random, 600)));
}

void emptyPart(QByteArray& jpeg, const QByteArray& /*other*/, std::mt19937& random)
{
    const int at = below(random, jpeg.size());
    const char filling = below(random, 2) == 0 ? '\0' : '\xFF';
    std::fill_n(jpeg.begin() + at, std::min(1 + below(random, 200), jpeg.size() - at), filling);
}

void mixIn(QByteArray& jpeg, const QByteArray& other, std::mt19937& random)
{
    const int at = anyMarker(other, random);
    jpeg.insert(anyMarker(jpeg, random), other.mid(at, 2 + below(random, 600)));
}

void takeEndOf(QByteArray& jpeg, const QByteArray& other, std::mt19937& random)
{
    jpeg = jpeg.left(below(random, jpeg.size())) + other.mid(below(random, other.size()));
}

constexpr std::array<Damage, 16> kDamages{changeBytes, changeHead, changeBit, changeCode,
    changeSegment, changeSegment, cutEnd, cutOut, cutMarker, insertMarker, insertRestarts,
    insertBytes, repeatPart, emptyPart, mixIn, takeEndOf};

} // namespace

QByteArray makeJpeg(const JpegForm& form)
{
    jpeg_compress_struct info = {};
    jpeg_error_mgr errors = {};
    info.err = jpeg_std_error(&errors);
    jpeg_create_compress(&info);
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&info, &bytes, &size);
    setForm(info, form);
    jpeg_start_compress(&info, TRUE);
    writeRows(info);
    jpeg_finish_compress(&info);
    jpeg_destroy_compress(&info);
    QByteArray jpeg(reinterpret_cast<const char*>(bytes), static_cast<int>(size));
    std::free(bytes); // NOLINT(cppcoreguidelines-owning-memory): libjpeg's
    return jpeg;
}

QByteArray damaged(const QByteArray& whole, const QByteArray& other, std::mt19937& random)
{
    QByteArray jpeg = whole;
    for (int left = 1 + below(random, 3); left > 0; --left) {
        kDamages[static_cast<std::size_t>(below(random, static_cast<int>(kDamages.size())))](
            jpeg, other, random);
    }
    return jpeg;
}

std::int64_t pixelsAskedFor(const QByteArray& jpeg)
{
    constexpr int kFrameSize = 9; // up to the width
    std::int64_t most = 0;
    for (const int at : markerPlaces(jpeg)) {
        const auto byteAt = [&jpeg, at](int i) {
            return static_cast<std::int64_t>(static_cast<unsigned char>(jpeg.at(at + i)));
        };
        if (jpeg.size() - at >= kFrameSize && byteAt(1) >= 0xC0 && byteAt(1) <= 0xCF) {
            most = std::max(most, (byteAt(5) * 256 + byteAt(6)) * (byteAt(7) * 256 + byteAt(8)));
        }
    }
    return most;
}

} // namespace support
