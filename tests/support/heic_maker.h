// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>

namespace support {

/// A HEIC picture of `image` that shows it turned as the Exif orientation of this number tells (1:
/// as it is), with an Exif block where `exif` is not empty. Empty where the machine cannot encode.
QByteArray makeHeic(const QImage& image, int orientation = 1, const QByteArray& exif = {});

/// A TIFF structure with an orientation and one more entry, as cameras write them.
QByteArray exifBlock(int orientation, bool bigEndian);

} // namespace support
