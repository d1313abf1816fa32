// SPDX-License-Identifier: MIT
// The first 20 bytes of a file, in capitals, tell its kind by what they hold, wherever it stands:
//   ....FTYPHEIC          HEIC, which comes out as it is, and on request as JPEG too
//   ......JFIF, ..EXIF    JPEG
//   GIF8  .PNG  RIFF....WEBP  BPLIST00
// Chance finds count: a name may get more than one suffix.
#include "exporters/CFileExporter.h"

#include "exporters/escape.h"
#include "model/CIProgressCallback.h"
#include "platform/CCommonUtils.h"
#include "platform/JpegMarkers.h"
#include "platform/Log.h"
#include "platform/OvCurlWrapper.h"
#include "platform/RawFile.h"
#include "platform/jpeg_verdict.h"
#include "platform/literals.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImage>

#include <algorithm>
#include <array>

namespace {

constexpr int kHeaderSize = 20;
constexpr qint64 kChunkSize = 16'384; // of which the progress is told one by one
// Chunks go in and out by many: the system takes one large request for half of what it takes for
// many small ones. More than this gains nothing, and leaves the processor's cache.
constexpr qint64 kBlockSize = 32 * kChunkSize;
constexpr std::size_t kPageSize = 4096;

struct FileKind {
    std::array<const char*, 2> marks{}; ///< either of them
    QLatin1String suffix;
    QLatin1String otherSuffix; ///< serves as well
};

// clang-format off
constexpr FileKind kJpeg{{"EXIF", "JFIF"}, "jpg"_L1, "jpeg"_L1};
constexpr std::array kFileKinds{
    kJpeg,
    FileKind{{"GIF", "GIF"},       "gif"_L1,   "gif"_L1},
    FileKind{{"PNG", "PNG"},       "png"_L1,   "png"_L1},
    FileKind{{"WEBP", "WEBP"},     "webp"_L1,  "webp"_L1},
    // In capitals the first cannot be found; it names the kind as its files spell it.
    FileKind{{"bplist", "BPLIST"}, "plist"_L1, "plist"_L1},
};
// clang-format on

bool holds(const QByteArray& header, const FileKind& kind)
{
    return header.contains(kind.marks[0]) || header.contains(kind.marks[1]);
}

// The name with the suffixes of all kinds that the header tells of and the name itself does not.
QString namedByContent(const QString& name, const QByteArray& header)
{
    const QString suffix = QFileInfo(name).suffix().toLower();
    QString named = name;
    for (const FileKind& kind : kFileKinds) {
        if (holds(header, kind) && suffix != kind.suffix && suffix != kind.otherSuffix) {
            named += "."_L1 + kind.suffix;
        }
    }
    return named;
}

// False leaves no file.
bool writeWhole(const QByteArray& bytes, const QString& path)
{
    QFile target(path);
    if (!target.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        return false;
    }
    const bool written = target.write(bytes) == bytes.size();
    target.close();
    if (!written) {
        target.remove();
    }
    return written;
}

} // namespace

/// The system copies from page to page; into the midst of one it takes half as long again.
struct alignas(kPageSize) CFileExporter::Block {
    std::array<char, kBlockSize> bytes;
};

CFileExporter::CFileExporter() : m_dir(QDir(QString())), m_block(std::make_unique<Block>())
{
}

CFileExporter::~CFileExporter() = default;

bool CFileExporter::write(const QString& src, QString& name)
{
    RawFile source;
    if (!source.openToRead(src)) {
        return false;
    }
    const qint64 size = source.read(m_block->bytes.data(), kBlockSize);
    const auto headerSize = static_cast<int>(std::clamp<qint64>(size, 0, kHeaderSize));
    const QByteArray header = QByteArray(m_block->bytes.data(), headerSize).toUpper();
    const bool toConvert = m_convertHeic && header.contains("HEIC");
    const bool converted = toConvert && convertHeic(src, name);
    bool written = converted;

    const bool isJpeg = holds(header, kJpeg);
    JpegMarkers markers;
    Copy copy = Copy::Failed;
    const QString path = uniquePath(namedByContent(name, header));
    RawFile target;
    if (target.openToWrite(path)) {
        copy = copyContents(size, source, target, isJpeg ? &markers : nullptr);
        target.close();
        if (copy != Copy::Whole) {
            QFile::remove(path);
        }
        written = copy != Copy::Failed;
        name = path;
    }
    if (isJpeg) {
        // Of a copy that was taken away the markers say nothing.
        written = copy == Copy::Whole ? loadsAsImage(name, markers) : !QImage(name).isNull();
    }
    if (toConvert && !converted && copy == Copy::Whole) {
        m_unconverted.append(name);
    }
    return written;
}

bool CFileExporter::convertHeic(const QString& src, const QString& name) const
{
    QString path = uniquePath(QFileInfo(name).completeBaseName() + ".jpg"_L1);
    Log("HEIC", 1, "HEIC file: %s", src.toUtf8().constData());
    return CCommonUtils::convertHEICFileToJPG(src, path, false);
}

CFileExporter::Copy CFileExporter::copyContents(
    qint64 size, RawFile& source, RawFile& target, JpegMarkers* markers)
{
    for (; size > 0; size = source.read(m_block->bytes.data(), kBlockSize)) {
        const qint64 written = target.write(m_block->bytes.data(), size);
        if (!stepThrough(written, size)) {
            return Copy::Cancelled;
        }
        if (written < size) {
            return Copy::Failed;
        }
        if (markers != nullptr) {
            markers->add(m_block->bytes.data(), size);
        }
    }
    return size == 0 ? Copy::Whole : Copy::Failed;
}

// One step for each chunk of the block that was wholly written, until one is answered by a cancel.
bool CFileExporter::stepThrough(qint64 written, qint64 size) const
{
    if (m_progress == nullptr) {
        return true;
    }
    for (qint64 begin = 0; begin < size; begin += kChunkSize) {
        const qint64 chunk = std::min(kChunkSize, size - begin);
        if (begin + chunk > written) {
            return true;
        }
        if (!m_progress->step(static_cast<double>(chunk))) {
            return false;
        }
    }
    return true;
}

bool CFileExporter::exportData(const QByteArray& data, const QString& name)
{
    const bool written = writeWhole(data, uniquePath(name));
    if (m_progress != nullptr) {
        m_progress->step(data.size()); // a cancel is seen before the next record
    }
    return written;
}

bool CFileExporter::exportThumbData(const QString& src, const QString& name)
{
    QImage image;
    CCommonUtils::readThumbFileData(image, src); // the image tells
    if (image.isNull()) {
        return false;
    }
    // Not straight to the disk: an encoder may take what had no room there for written.
    const QString path = uniquePath(name);
    QBuffer encoded;
    encoded.open(QIODevice::WriteOnly);
    return image.save(&encoded, QFileInfo(path).suffix().toLatin1().constData())
           && writeWhole(encoded.data(), path);
}

bool CFileExporter::exportHttpData(const QString& url, const QString& localPath)
{
    if (localPath.isEmpty()) {
        return true;
    }
    const QFileInfo local(localPath);
    const QString path = uniquePath(local.exists() ? local.fileName() : QString());
    OvCurlWrapper curl;
    curl.download(url, path, true); // what came of it shows in the file
    if (QFile::exists(localPath) && QFile::remove(localPath)) {
        QFile::copy(path, localPath); // without it there is no local file, which callers bear
    }
    return true;
}

bool CFileExporter::copyDepend(const QString& /*src*/, const QString& /*name*/)
{
    return true;
}

bool CFileExporter::beginFile(const QDir& dir)
{
    m_dir = dir;
    return true;
}

bool CFileExporter::endFile(bool /*ok*/)
{
    return true;
}

bool CFileExporter::enterDir(const QString& name)
{
    const auto known = m_dirNames.constFind(name);
    if (known != m_dirNames.constEnd()) {
        return m_dir.cd(*known);
    }
    const QString directory = safeFileName(name);
    // Such a name would lead to where we are, or out of the category.
    if (directory.isEmpty() || directory == "."_L1 || directory == ".."_L1) {
        return false;
    }
    if (!QFileInfo(m_dir.filePath(directory)).isDir() && !m_dir.mkdir(directory)) {
        return false;
    }
    m_dirNames.insert(name, directory);
    return m_dir.cd(directory);
}

void CFileExporter::leaveDir()
{
    m_dir.cdUp();
}

QString CFileExporter::uniquePath(const QString& name) const
{
    const QFileInfo safe(safeFileName(name));
    const QString suffix = safe.suffix();
    return CCommonUtils::uniqFileName(
        m_dir, safe.completeBaseName(), suffix.isEmpty() ? suffix : "."_L1 + suffix);
}
