// SPDX-License-Identifier: MIT
#include "platform/heic_picture.h"

#ifdef DATAEXPORT_HEIF

#include "platform/exif_orientation.h"

#include <QColorSpace>
#include <QFile>

#include <libheif/heif.h>
#include <memory>

namespace {

constexpr int kTypeSize = 12; // bytes that tell a file of this family

template <auto Release> struct Releaser {
    template <typename T> void operator()(T* object) const { Release(object); }
};
using Context = std::unique_ptr<heif_context, Releaser<heif_context_free>>;
using Handle = std::unique_ptr<heif_image_handle, Releaser<heif_image_handle_release>>;
using Options = std::unique_ptr<heif_decoding_options, Releaser<heif_decoding_options_free>>;
using Pixels = std::unique_ptr<heif_image, Releaser<heif_image_release>>;

bool isHeif(const QString& path)
{
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray type = file.read(kTypeSize);
    return heif_check_filetype(reinterpret_cast<const uint8_t*>(type.constData()), type.size())
           != heif_filetype_no;
}

// libheif turns the pixels as the file says.
QImage decoded(const heif_image_handle* handle)
{
    const bool hasAlpha = heif_image_handle_has_alpha_channel(handle) != 0;
    const Options options(heif_decoding_options_alloc());
    options->convert_hdr_to_8bit = 1;
    heif_image* made = nullptr;
    heif_decode_image(handle, &made, heif_colorspace_RGB,
        hasAlpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB, options.get());
    const Pixels pixels(made);
    if (!pixels) {
        return {};
    }
    int stride = 0;
    const uint8_t* plane =
        heif_image_get_plane_readonly(pixels.get(), heif_channel_interleaved, &stride);
    if (plane == nullptr) {
        return {};
    }
    const QImage view(plane, heif_image_get_width(pixels.get(), heif_channel_interleaved),
        heif_image_get_height(pixels.get(), heif_channel_interleaved), stride,
        hasAlpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
    return view.copy(); // the pixels go with this function
}

QColorSpace colorSpaceOf(const heif_image_handle* handle)
{
    const size_t size = heif_image_handle_get_raw_color_profile_size(handle);
    QByteArray profile(static_cast<int>(size), '\0');
    if (size == 0 || heif_image_handle_get_raw_color_profile(handle, profile.data()).code != 0) {
        return {};
    }
    return QColorSpace::fromIccProfile(profile);
}

// Four bytes tell how many more stand before the TIFF structure.
QByteArray exifOf(const heif_image_handle* handle)
{
    heif_item_id id = 0;
    if (heif_image_handle_get_list_of_metadata_block_IDs(handle, "Exif", &id, 1) != 1) {
        return {};
    }
    QByteArray block(static_cast<int>(heif_image_handle_get_metadata_size(handle, id)), '\0');
    if (block.size() < 4 || heif_image_handle_get_metadata(handle, id, block.data()).code != 0) {
        return {};
    }
    quint32 before = 0;
    for (int i = 0; i < 4; ++i) {
        before = before * 256 + static_cast<unsigned char>(block.at(i));
    }
    if (before > static_cast<quint32>(block.size() - 4)) {
        return {};
    }
    return block.mid(4 + static_cast<int>(before));
}

} // namespace

HeicPicture readHeic(const QString& path)
{
    if (!isHeif(path)) {
        return {};
    }
    const Context context(heif_context_alloc());
    heif_image_handle* found = nullptr;
    if (heif_context_read_from_file(context.get(), QFile::encodeName(path).constData(), nullptr)
                .code
            != heif_error_Ok
        || heif_context_get_primary_image_handle(context.get(), &found).code != heif_error_Ok) {
        return {};
    }
    const Handle handle(found);
    HeicPicture picture{.image = decoded(handle.get()), .exif = exifOf(handle.get())};
    const QColorSpace colorSpace = colorSpaceOf(handle.get());
    if (!picture.image.isNull() && colorSpace.isValid()) {
        picture.image.setColorSpace(colorSpace);
    }
    setUpright(picture.exif);
    return picture;
}

#else

HeicPicture readHeic(const QString& /*path*/)
{
    return {};
}

#endif
