// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

class QImage;

/// "image/picture.png", as pages link to it.
QString imagePath(const QString& name);

/// Where an image of the resources lies that differs by brand.
QString brandImageSource(const QString& name);

/// The picture as a PNG file.
QByteArray pngOf(const QImage& picture);
