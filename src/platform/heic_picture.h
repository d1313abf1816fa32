// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>

class QString;

/// A HEIC file, decoded.
struct HeicPicture {
    QImage image;    ///< upright; null for what is no HEIC file or cannot be decoded
    QByteArray exif; ///< TIFF structure, with the orientation of an upright picture; may be empty
};

/// Reads a HEIC file by its content, whatever its name says. A build without libheif reads none.
HeicPicture readHeic(const QString& path);
