// SPDX-License-Identifier: MIT
#include "platform/jpeg_verdict.h"

#include "platform/JpegMarkers.h"
#include "platform/literals.h"

#include <QByteArray>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>

#include <csetjmp>
#include <cstdio> // before jpeglib.h, which needs it
#include <jpeglib.h>

namespace {

// An image above this may fail for want of memory, which is not for us to foretell.
constexpr qint64 kMostPixels = 64'000'000;

struct ErrorManager {
    jpeg_error_mgr manager; // first, so that libjpeg's pointer to it is one to the whole
    std::jmp_buf refused;
};

[[noreturn]] void refuse(j_common_ptr info)
{
    // NOLINTNEXTLINE(cert-err52-cpp): libjpeg has no other way to give up
    std::longjmp(reinterpret_cast<ErrorManager*>(info->err)->refused, 1);
}

void keepSilent(j_common_ptr /*info*/, int /*level*/)
{
}

// What QImage does with a file, but for the pixels: most rows are passed over. Without the coded
// data a decoder goes through the same markers as with it, restarts included, and takes all
// coefficients for zero. Nothing in here has a destructor: libjpeg gives up by a jump.
bool decodes(jpeg_decompress_struct& info, ErrorManager& errors, const QByteArray& markers)
{
    if (setjmp(errors.refused) != 0) { // NOLINT(cert-err52-cpp): as above
        return false;
    }
    jpeg_create_decompress(&info);
    jpeg_mem_src(&info, reinterpret_cast<const unsigned char*>(markers.constData()),
        static_cast<unsigned long>(markers.size()));
    jpeg_read_header(&info, TRUE);
    if (static_cast<qint64>(info.image_width) * info.image_height > kMostPixels) {
        return false;
    }
    jpeg_start_decompress(&info);
    if (info.output_components == 2 || info.output_components > 4) {
        return false; // there is no QImage of so many
    }
    JSAMPARRAY row = info.mem->alloc_sarray(reinterpret_cast<j_common_ptr>(&info), JPOOL_IMAGE,
        info.output_width * static_cast<JDIMENSION>(info.output_components), 1);
    if (info.output_height > 1) {
        // Not the last one: then the rest of the file would be passed over too.
        jpeg_skip_scanlines(&info, info.output_height - 1);
    }
    while (info.output_scanline < info.output_height) {
        jpeg_read_scanlines(&info, row, 1);
    }
    jpeg_finish_decompress(&info);
    return true;
}

// By other suffixes QImage may ask another decoder first.
bool isReadAsJpeg(const QString& path)
{
    static const bool canReadJpeg = QImageReader::supportedImageFormats().contains("jpeg");
    const QString suffix = QFileInfo(path).suffix().toLower();
    return canReadJpeg && (suffix == "jpg"_L1 || suffix == "jpeg"_L1);
}

} // namespace

bool markersDecode(const JpegMarkers& markers)
{
    if (!markers.isUsable()) {
        return false;
    }
    jpeg_decompress_struct info = {};
    ErrorManager errors = {};
    info.err = jpeg_std_error(&errors.manager);
    errors.manager.error_exit = refuse;
    errors.manager.emit_message = keepSilent;
    const bool decoded = decodes(info, errors, markers.bytes());
    jpeg_destroy_decompress(&info);
    return decoded;
}

bool loadsAsImage(const QString& path, const JpegMarkers& markers)
{
    return (isReadAsJpeg(path) && markersDecode(markers)) || !QImage(path).isNull();
}
