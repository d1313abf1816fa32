// SPDX-License-Identifier: MIT
#include "backup/readers/NoteSource.h"

#include <QImageReader>

namespace backup {

namespace {

// Pages show pictures 145 wide; this leaves enough to scale down from, and a note with a hundred
// photographs fits into memory.
constexpr int kLargestPreview = 640;
// No phone takes larger pictures; the decoder of a hostile one would ask for gigabytes.
constexpr qint64 kMostPixels = 200'000'000;

QImage preview(const QString& path)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true); // files of a backup have no endings
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (static_cast<qint64>(size.width()) * size.height() > kMostPixels) {
        return {};
    }
    if (size.width() > kLargestPreview || size.height() > kLargestPreview) {
        reader.setScaledSize(
            size.scaled(kLargestPreview, kLargestPreview, Qt::KeepAspectRatio).expandedTo({1, 1}));
    }
    return reader.read();
}

std::vector<PRNoteItem::NotePiece> withPreviews(std::vector<PRNoteItem::NotePiece> pieces)
{
    for (PRNoteItem::NotePiece& piece : pieces) {
        if (!piece.previewPath.isEmpty()) {
            piece.preview = preview(piece.previewPath);
        }
    }
    return pieces;
}

} // namespace

const NoteContent& NoteSource::content(std::size_t index)
{
    if (index != m_loadedIndex) {
        m_shown.reset();
        m_loaded = load(index);
        m_loadedIndex = index;
    }
    return m_loaded;
}

const PRNoteItem& NoteSource::shown(std::size_t index)
{
    const NoteContent& note = content(index);
    if (!m_shown) {
        m_shown = std::make_unique<PRNoteItem>(Record{}, withPreviews(note.pieces));
    }
    return *m_shown;
}

} // namespace backup
