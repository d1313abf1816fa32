// SPDX-License-Identifier: MIT
#include "pictures.h"

#ifdef DATAEXPORT_SAMPLE_HEIC
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

namespace sample {

#ifdef DATAEXPORT_SAMPLE_HEIC

namespace {

template <auto Release> struct Releaser {
    template <typename T> void operator()(T* object) const { Release(object); }
};
using Context = std::unique_ptr<heif_context, Releaser<heif_context_free>>;
using Encoder = std::unique_ptr<heif_encoder, Releaser<heif_encoder_release>>;
using Pixels = std::unique_ptr<heif_image, Releaser<heif_image_release>>;

Pixels pixelsOf(const QImage& image)
{
    const QImage rgb = image.convertToFormat(QImage::Format_RGB888);
    heif_image* pixels = nullptr;
    heif_image_create(
        rgb.width(), rgb.height(), heif_colorspace_RGB, heif_chroma_interleaved_RGB, &pixels);
    heif_image_add_plane(pixels, heif_channel_interleaved, rgb.width(), rgb.height(), 8);
    int stride = 0;
    uint8_t* plane = heif_image_get_plane(pixels, heif_channel_interleaved, &stride);
    for (int y = 0; y < rgb.height(); ++y) {
        std::memcpy(plane + static_cast<std::ptrdiff_t>(y) * stride, rgb.constScanLine(y),
            static_cast<std::size_t>(rgb.width()) * 3);
    }
    return Pixels(pixels);
}

heif_error append(heif_context* /*context*/, const void* bytes, size_t size, void* target)
{
    static_cast<QByteArray*>(target)->append(
        static_cast<const char*>(bytes), static_cast<int>(size));
    return {heif_error_Ok, heif_suberror_Unspecified, "written"};
}

} // namespace

QByteArray heic(const QImage& image)
{
    const Context context(heif_context_alloc());
    heif_encoder* found = nullptr;
    heif_context_get_encoder_for_format(context.get(), heif_compression_HEVC, &found);
    const Encoder encoder(found);
    if (!encoder) {
        return {};
    }
    heif_encoder_set_lossy_quality(encoder.get(), 50);
    const Pixels pixels = pixelsOf(image);
    const heif_error failure =
        heif_context_encode_image(context.get(), pixels.get(), encoder.get(), nullptr, nullptr);
    QByteArray bytes;
    heif_writer writer{1, append};
    if (failure.code == heif_error_Ok) {
        heif_context_write(context.get(), &writer, &bytes);
    }
    return bytes;
}

#else

QByteArray heic(const QImage& /*image*/)
{
    return {};
}

#endif

} // namespace sample
