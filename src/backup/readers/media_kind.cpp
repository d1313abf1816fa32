// SPDX-License-Identifier: MIT
#include "backup/readers/media_kind.h"

#include "platform/literals.h"

#include <QHash>

#include <array>

namespace backup {

namespace {

struct EndingRow {
    MediaKind kind = MediaKind::Other;
    QLatin1String endings; ///< blanks between them
};

// clang-format off
constexpr std::array kEndings{
    EndingRow{MediaKind::Picture,  "jpg jpeg jpe png gif heic heif avif webp tif tiff bmp dng"_L1},
    EndingRow{MediaKind::Film,     "mov mp4 m4v qt avi 3gp 3g2 mkv mpg mpeg webm"_L1},
    EndingRow{MediaKind::Sound,    "m4a m4b m4r qta mp3 wav aac caf amr aif aiff flac ogg oga opus wma mid midi"_L1},
    EndingRow{MediaKind::Document, "pdf txt rtf md csv tsv doc docx xls xlsx ppt pptx pages numbers key odt ods odp"
                                   " epub mobi djvu htm html xps vcf ics gpx kml kmz tex zip"_L1},
};
// clang-format on

QHash<QString, MediaKind> kindsByEnding()
{
    QHash<QString, MediaKind> kinds;
    for (const EndingRow& row : kEndings) {
        const QStringList endings = QString(row.endings).split(QChar(u' '));
        for (const QString& ending : endings) {
            kinds.insert(ending, row.kind);
        }
    }
    return kinds;
}

} // namespace

MediaKind mediaKindOf(const QString& fileName)
{
    static const QHash<QString, MediaKind> kinds = kindsByEnding();
    const int point = fileName.lastIndexOf(QChar(u'.'));
    return point < 0 ? MediaKind::Other
                     : kinds.value(fileName.mid(point + 1).toLower(), MediaKind::Other);
}

} // namespace backup
