// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

class CIDataExporter;
class QByteArray;
class QImage;

/// The pictures of a page as files beside it, numbered through the whole page: "0.png", "1.png".
class PagePictures {
public:
    /// The name of the next one, which is spent by that.
    QString takeName();
    /// Puts the file beside the page and returns its path, as the page links to it. A file that
    /// cannot be written leaves a dead link.
    QString add(CIDataExporter& exporter, const QByteArray& png);

private:
    std::uint32_t m_next = 0;
};

/// Whether a picture is larger than pages show it.
bool isTooLarge(const QImage& picture);
/// The picture, made to fit a square of 250 pixels.
QImage fitted(const QImage& picture);
