// SPDX-License-Identifier: MIT
// Images as the records name them: by what is in the file, turned as it says.
#include "platform/CCommonUtils.h"

#include <QImage>
#include <QImageReader>

namespace {

QImage uprightImage(const QString& path)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true); // names of backups' files say nothing
    reader.setAutoTransform(true);
    return reader.read();
}

} // namespace

bool CCommonUtils::readThumbFileData(QImage& image, const QString& path)
{
    const QImage read = uprightImage(path);
    if (read.isNull()) {
        return false;
    }
    image = read;
    return true;
}

QImage CCommonUtils::safeloadImage(const QString& path)
{
    return uprightImage(path);
}
