// SPDX-License-Identifier: MIT
// The cell of a note; a picture is shown small and leads to its file:
//
//   <td>
//       <p>Rope, lamp, tea</p>
//       <a href="Image/6a1f....jpg" target='_blank'><img src = "Image/6a1f....jpg_thumb.png"></a>
//       &nbsp;<br>
//   </td>
#include "translators/records/note_cell.h"

#include "exporters/CIDataExporter.h"
#include "exporters/page_text.h"
#include "model/PRNoteItem.h"
#include "platform/literals.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QImage>

namespace {

constexpr QLatin1String kOpen = "<td>"_L1;
constexpr QLatin1String kText = "<p>%1</p>"_L1;
// "Image" with a capital letter, although the directory is "image" and all else on the page says
// so.
constexpr QLatin1String kPicture = R"(
    <a href="Image/%1" target='_blank'><img src = "Image/%2"></a>
    &nbsp;
    <br>
)"_page;
constexpr QLatin1String kClose = "</td>"_L1;

constexpr QLatin1String kThumbnailEnding = "_thumb.png"_L1; // behind the extension
constexpr int kShownWidth = 145;                            // pixels

using Piece = PRNoteItem::NotePiece;
enum PieceKind { Text = 0, Picture = 1 };

// The attachment's own file where there is one, else what is shown of it.
const QString& originalOf(const Piece& picture)
{
    return picture.sourcePath.isEmpty() ? picture.content : picture.sourcePath;
}

// The label of an attachment says more than its path; the path of a mere picture more than its
// label.
QString extensionOf(const Piece& picture)
{
    const bool attachment = !picture.sourcePath.isEmpty();
    const QString& first = attachment ? picture.label : picture.content;
    const QString& second = attachment ? picture.sourcePath : picture.label;
    for (const QString& name : {first, second}) {
        QString suffix = QFileInfo(name).suffix();
        if (!suffix.isEmpty()) {
            return suffix;
        }
    }
    return QStringLiteral("png");
}

// Pictures of one file and label have one name: the second copy meets the first.
QString fileNameOf(const Piece& picture)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(originalOf(picture).toUtf8());
    hash.addData(picture.label.toUtf8());
    return QString::fromLatin1(hash.result().toHex()) + QChar(u'.') + extensionOf(picture);
}

QImage shownSize(const QImage& preview)
{
    return preview.width() > kShownWidth
               ? preview.scaledToWidth(kShownWidth, Qt::SmoothTransformation)
               : preview;
}

// A picture that is no wider than what is shown of it needs no thumbnail; an attachment always gets
// one, whatever its file holds, so that its file is not even looked at.
bool needsThumbnail(const Piece& picture, const QImage& shown)
{
    return !picture.sourcePath.isEmpty() || QImage(picture.content).width() > shown.width();
}

void drawPicture(Page& page, const Piece& picture, CIDataExporter* exporter)
{
    const QString name = fileNameOf(picture);
    exporter->copyDepend(originalOf(picture), name); // one that cannot be copied is a dead link
    const QImage shown = shownSize(picture.preview);
    QString shownName = name;
    if (needsThumbnail(picture, shown)) {
        shownName += kThumbnailEnding;
        exporter->saveImage(shown, shownName); // likewise
    }
    page.add(kPicture, name, shownName); // not escaped, though the extension is the note's own
}

} // namespace

void drawNoteCell(Page& page, const PRNoteItem& note, CIDataExporter* exporter)
{
    page.add(kOpen);
    for (const Piece* piece : note.notePieces()) {
        if (piece->kind == Text) {
            page.add(kText, escaped(piece->content));
        } else if (piece->kind == Picture && !piece->preview.isNull()) {
            drawPicture(page, *piece, exporter);
        }
    }
    page.add(kClose);
}
