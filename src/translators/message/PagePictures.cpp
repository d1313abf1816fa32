// SPDX-License-Identifier: MIT
#include "translators/message/PagePictures.h"

#include "exporters/CIDataExporter.h"
#include "exporters/page_images.h"

#include <QImage>

namespace {

constexpr int kLargestSide = 250; // pixels

} // namespace

QString PagePictures::takeName()
{
    return QStringLiteral("%1.png").arg(m_next++);
}

QString PagePictures::add(CIDataExporter& exporter, const QByteArray& png)
{
    const QString name = takeName();
    exporter.exportData(png, name); // not tested: the page goes on without it
    return imagePath(name);
}

bool isTooLarge(const QImage& picture)
{
    return picture.width() > kLargestSide || picture.height() > kLargestSide;
}

QImage fitted(const QImage& picture)
{
    return picture.scaled(
        kLargestSide, kLargestSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}
