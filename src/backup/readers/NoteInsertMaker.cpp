// SPDX-License-Identifier: MIT
// Types of attachments that are no file:
//   com.apple.notes.table                    rows and cells
//   com.apple.notes.gallery                  scans; their pages are attachments of its own
//   com.apple.notes.inlinetextattachment.*   hashtags, mentions, links to notes
//   com.apple.drawing, .drawing.2, .paper    drawings; a picture of them lies in the backup
//   public.url                               a link
// Any other is a file, whatever its type is.
#include "backup/readers/NoteInsertMaker.h"

#include "backup/container/Notices.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImageReader>

namespace backup {

namespace {

using Piece = PRNoteItem::NotePiece;

constexpr int kPicture = 1;
constexpr QLatin1String kTable = "com.apple.notes.table"_L1;
constexpr QLatin1String kInline = "com.apple.notes.inlinetextattachment"_L1;

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

// Whether pages can show the file itself; HEIC they cannot.
bool isReadablePicture(const QString& path)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true); // files of a backup have no endings
    return reader.canRead();
}

QString tableText(const formats::NoteTable& table)
{
    QString text;
    for (const std::vector<QString>& row : table) {
        QStringList cells;
        for (const QString& cell : row) {
            cells.append(cell.simplified());
        }
        text += cells.join(" | "_L1) + QChar(u'\n');
    }
    text.chop(1);
    // A table of one row stands on a line of its own, too.
    return table.size() == 1 ? text + QChar(u'\n') : text;
}

} // namespace

NoteInsertMaker::NoteInsertMaker(const NoteAttachments& attachments, const NoteFiles& files,
    Notices& notices, QString title, QString account)
    : m_attachments(attachments), m_files(files), m_notices(notices), m_title(std::move(title)),
      m_account(std::move(account))
{
}

NoteInsert NoteInsertMaker::make(const formats::NoteRun& run) const
{
    if (const auto text = m_attachments.inlineText(run.attachment)) {
        return {.text = *text, .pictures = {}};
    }
    if (const NoteAttachment* attachment = m_attachments.find(run.attachment)) {
        return insertOf(*attachment);
    }
    if (!run.attachmentType.startsWith(kInline)) {
        m_notices.addOneOfMany(
            tr("The note “%1” names an attachment that its store does not have.").arg(m_title),
            tr("%1 more notes name attachments that their store does not have."));
    }
    return {};
}

NoteInsert NoteInsertMaker::insertOf(const NoteAttachment& attachment) const
{
    if (attachment.type == kTable) {
        return table(attachment);
    }
    std::vector<Piece> shown = pictures(attachment);
    if (!shown.empty()) {
        return {.text = {}, .pictures = std::move(shown)};
    }
    if (!attachment.url.isEmpty()) {
        const bool isNamed = !attachment.title.isEmpty() && attachment.title != attachment.url;
        return {
            .text = isNamed ? attachment.title + " ("_L1 + attachment.url + ")"_L1 : attachment.url,
            .pictures = {}};
    }
    const QString& name = attachment.name();
    return {.text = "["_L1 + (name.isEmpty() ? tr("Attachment") : name) + "]"_L1, .pictures = {}};
}

NoteInsert NoteInsertMaker::table(const NoteAttachment& attachment) const
{
    const QByteArray data = m_attachments.tableData(attachment);
    const auto parsed =
        formats::parseNoteTable({reinterpret_cast<const unsigned char*>(data.constData()),
            static_cast<std::size_t>(data.size())});
    if (parsed) {
        return {.text = tableText(*parsed), .pictures = {}};
    }
    // An empty table has data, and nothing to show.
    if (data.isEmpty() || !attachment.summary.isEmpty()) {
        return {.text = attachment.summary, .pictures = {}};
    }
    m_notices.addOneOfMany(
        tr("A table in the note “%1” cannot be read: %2").arg(m_title, parsed.error().what),
        tr("%1 more notes have tables that cannot be read."));
    return {};
}

std::vector<Piece> NoteInsertMaker::pictures(const NoteAttachment& attachment) const
{
    std::vector<Piece> shown;
    for (const NoteAttachment* page : m_attachments.childrenOf(attachment)) {
        std::vector<Piece> pieces = ownPicture(*page);
        shown.insert(shown.end(), pieces.begin(), pieces.end());
    }
    return shown.empty() ? ownPicture(attachment) : shown;
}

// One piece, or none where there is nothing to look at. What a page cannot show itself is
// represented by a picture of it and leads to the file.
std::vector<Piece> NoteInsertMaker::ownPicture(const NoteAttachment& attachment) const
{
    const FoundFile media = m_files.media(attachment, m_account);
    if (!media) {
        noteMissing(attachment);
    }
    FoundFile image = m_files.drawing(attachment, m_account);
    if (!image) {
        image = m_files.preview(attachment, m_account);
    }
    if (media && isReadablePicture(media.path)) {
        return {{.kind = kPicture,
            .content = media.path,
            .label = attachment.name().isEmpty() ? media.name : attachment.name(),
            .previewPath = image ? image.path : media.path}};
    }
    if (!image) {
        return {};
    }
    Piece piece{.kind = kPicture,
        .content = image.path,
        .label = nameLike(attachment.title, image.name, tr("Drawing")),
        .sourcePath = media.path,
        .previewPath = image.path};
    if (media) {
        piece.label = attachment.fileName.isEmpty() ? media.name : attachment.fileName;
    } else if (const FoundFile pages = m_files.pages(attachment, m_account)) {
        piece.sourcePath = pages.path;
        piece.label = nameLike(attachment.title, pages.name, tr("Scan"));
    }
    return {piece};
}

void NoteInsertMaker::noteMissing(const NoteAttachment& attachment) const
{
    if (!attachment.mediaId.isEmpty()) {
        noteMissingFile(m_notices, attachment.name(), m_title);
    }
}

QString nameLike(const QString& title, const QString& fileName, const QString& otherwise)
{
    const QString suffix = QFileInfo(fileName).suffix();
    const QString& base = title.isEmpty() ? otherwise : title;
    return suffix.isEmpty() || base.endsWith("."_L1 + suffix, Qt::CaseInsensitive)
               ? base
               : base + "."_L1 + suffix;
}

void noteMissingFile(Notices& notices, const QString& file, const QString& noteTitle)
{
    notices.addOneOfMany(tr("The backup has no file “%1” of the note “%2”.").arg(file, noteTitle),
        tr("%1 more files of notes are missing in the backup."));
}

} // namespace backup
