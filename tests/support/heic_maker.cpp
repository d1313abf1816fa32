// SPDX-License-Identifier: MIT
#include "support/heic_maker.h"

#include <QDataStream>

#ifdef DATAEXPORT_HEIF
#include <cstring>
#include <libheif/heif.h>
#include <memory>
#endif

// The encoder behind libheif keeps a kilobyte to the end of the process; a build under the leak
// checker asks here what is not ours.
// NOLINTNEXTLINE(clang-diagnostic-reserved-identifier): the name is the checker's
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions();

// NOLINTNEXTLINE(clang-diagnostic-reserved-identifier): as above
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libx265";
}

namespace support {

#ifdef DATAEXPORT_HEIF

namespace {

template <auto Release> struct Releaser {
    template <typename T> void operator()(T* object) const { Release(object); }
};
using Context = std::unique_ptr<heif_context, Releaser<heif_context_free>>;
using Encoder = std::unique_ptr<heif_encoder, Releaser<heif_encoder_release>>;
using Options = std::unique_ptr<heif_encoding_options, Releaser<heif_encoding_options_free>>;
using Handle = std::unique_ptr<heif_image_handle, Releaser<heif_image_handle_release>>;
using Pixels = std::unique_ptr<heif_image, Releaser<heif_image_release>>;

Pixels pixelsOf(const QImage& image)
{
    const QImage rgb = image.convertToFormat(QImage::Format_RGB888);
    heif_image* made = nullptr;
    heif_image_create(
        rgb.width(), rgb.height(), heif_colorspace_RGB, heif_chroma_interleaved_RGB, &made);
    heif_image_add_plane(made, heif_channel_interleaved, rgb.width(), rgb.height(), 8);
    int stride = 0;
    uint8_t* plane = heif_image_get_plane(made, heif_channel_interleaved, &stride);
    for (int y = 0; y < rgb.height(); ++y) {
        std::memcpy(plane + static_cast<std::ptrdiff_t>(y) * stride, rgb.constScanLine(y),
            static_cast<std::size_t>(rgb.width()) * 3);
    }
    return Pixels(made);
}

heif_error append(heif_context* /*context*/, const void* bytes, size_t size, void* target)
{
    static_cast<QByteArray*>(target)->append(
        static_cast<const char*>(bytes), static_cast<int>(size));
    return {heif_error_Ok, heif_suberror_Unspecified, "written"};
}

} // namespace

QByteArray makeHeic(const QImage& image, int orientation, const QByteArray& exif)
{
    const Context context(heif_context_alloc());
    heif_encoder* foundEncoder = nullptr;
    heif_context_get_encoder_for_format(context.get(), heif_compression_HEVC, &foundEncoder);
    const Encoder encoder(foundEncoder);
    if (!encoder) {
        return {};
    }
    heif_encoder_set_lossy_quality(encoder.get(), 50);
    const Options options(heif_encoding_options_alloc());
    options->image_orientation = static_cast<heif_orientation>(orientation);
    heif_image_handle* made = nullptr;
    heif_context_encode_image(
        context.get(), pixelsOf(image).get(), encoder.get(), options.get(), &made);
    const Handle handle(made);
    if (!handle) {
        return {};
    }
    if (!exif.isEmpty()) {
        heif_context_add_exif_metadata(context.get(), handle.get(), exif.constData(), exif.size());
    }
    QByteArray bytes;
    heif_writer writer{1, append};
    heif_context_write(context.get(), &writer, &bytes);
    return bytes;
}

#else

QByteArray makeHeic(const QImage& /*image*/, int /*orientation*/, const QByteArray& /*exif*/)
{
    return {};
}

#endif

QByteArray exifBlock(int orientation, bool bigEndian)
{
    QByteArray block;
    QDataStream stream(&block, QIODevice::WriteOnly);
    stream.setByteOrder(bigEndian ? QDataStream::BigEndian : QDataStream::LittleEndian);
    stream.writeRawData(bigEndian ? "MM" : "II", 2);
    stream << quint16(42) << quint32(8) << quint16(2);
    stream << quint16(0x0100) << quint16(4) << quint32(1) << quint32(4032); // width
    stream << quint16(0x0112) << quint16(3) << quint32(1) << quint16(orientation) << quint16(0);
    stream << quint32(0); // no other directory
    return block;
}

} // namespace support
