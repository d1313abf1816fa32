// SPDX-License-Identifier: MIT
// A JPEG file that holds Exif:
//   FF D8                     start
//   FF E0 len "JFIF" ...      as Qt writes it
//   FF E1 len "Exif" 0 0 ...  the TIFF structure
//   ...                       tables and picture
#include "platform/CCommonUtils.h"
#include "platform/heic_picture.h"
#include "platform/literals.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QtEndian>

namespace {

constexpr int kJpegQuality = 90;
constexpr int kMostOfSegment = 0xFFFF; // with the two bytes of its length
constexpr int kStartSize = 2;

QByteArray encoded(const QImage& image)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, "JPG", kJpegQuality) ? buffer.data() : QByteArray();
}

// Behind the first segment, which other programs look for at the start. What is too long for a
// segment is left out.
void insertExif(QByteArray& jpeg, const QByteArray& tiff)
{
    const QByteArray contents = QByteArray("Exif\0\0", 6) + tiff;
    if (tiff.isEmpty() || contents.size() + 2 > kMostOfSegment) {
        return;
    }
    QByteArray segment("\xFF\xE1\0\0", 4);
    qToBigEndian(static_cast<quint16>(contents.size() + 2), segment.data() + 2);
    int at = kStartSize;
    if (jpeg.mid(at, 2) == "\xFF\xE0" && jpeg.size() > at + 4) {
        at += 2 + qFromBigEndian<quint16>(jpeg.constData() + at + 2);
    }
    jpeg.insert(at, segment + contents);
}

} // namespace

bool CCommonUtils::readThumbFileData(QImage& image, const QString& src)
{
    const QImage read = safeloadImage(src);
    if (read.isNull()) {
        return false;
    }
    image = read;
    return true;
}

QImage CCommonUtils::safeloadImage(const QString& path)
{
    if (path.isEmpty()) {
        return {}; // Qt would warn of it
    }
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QImage image = reader.read();
    return image.isNull() ? readHeic(path).image : image;
}

// NOLINTNEXTLINE(readability-non-const-parameter): the target's form is agreed
bool CCommonUtils::convertHEICFileToJPG(const QString& src, QString& target, bool /*flag*/)
{
    const HeicPicture picture = readHeic(src);
    if (picture.image.isNull()) {
        return false;
    }
    QByteArray jpeg = encoded(picture.image);
    if (jpeg.isEmpty()) {
        return false;
    }
    insertExif(jpeg, picture.exif);
    // Not under another name first: that would be too long where this one is as long as can be.
    QFile file(target);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        return false;
    }
    const bool written = file.write(jpeg) == jpeg.size();
    file.close();
    if (!written) {
        file.remove();
    }
    return written;
}

void CCommonUtils::protectMediaFile(const QString& /*path*/, bool /*protect*/)
{
}
