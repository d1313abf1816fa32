// SPDX-License-Identifier: MIT
#include "exporters/page_images.h"

#include "exporters/CHtmlExporter.h"
#include "platform/OvProductInfo.h"
#include "platform/OvResourceMgr.h"

#include <QBuffer>
#include <QImage>

QString imagePath(const QString& name)
{
    return kImageDirectory + QChar(u'/') + name;
}

QString brandImageSource(const QString& name)
{
    return QStringLiteral("%1/DataExport/%2/%3")
        .arg(OvResourceMgr::instance()->productResourceRoot(), OvProductInfo::instance()->brand(),
            name);
}

QByteArray pngOf(const QImage& picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return bytes;
}
