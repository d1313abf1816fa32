// SPDX-License-Identifier: MIT
#pragma once

#include "formats/sqlite.h"

#include <QHash>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace backup {

/// A picture of an attachment that the phone has made.
struct NotePreview {
    QString identifier;
    QString generation; ///< since iOS 17
    double size = 0;    ///< in pixels
};

/// A file, a table, a link or something else that is part of a note.
struct NoteAttachment {
    qint64 id = 0;
    qint64 noteId = 0;   ///< 0: see the parent
    qint64 parentId = 0; ///< the gallery that it belongs to; 0: none
    QString identifier;
    QString type; ///< "public.jpeg", "com.apple.notes.table"
    QString title;
    QString summary;
    QString url;
    bool locked = false;
    double created = 0; ///< seconds since 2001
    QString imageGeneration;
    QString pdfGeneration;
    QString mediaId; ///< empty: it has no file of its own
    QString fileName;
    QString mediaGeneration;
    std::vector<NotePreview> previews; ///< the largest first

    /// What people call it; may be empty.
    const QString& name() const { return fileName.isEmpty() ? title : fileName; }
};

/// All attachments of a store of notes.
class NoteAttachments {
public:
    explicit NoteAttachments(const formats::Database& database);

    const std::vector<NoteAttachment>& all() const { return m_all; }
    /// Whether some rows could not be read.
    bool isDamaged() const { return m_isDamaged; }
    /// Null where there is none of that identifier.
    const NoteAttachment* find(const QString& identifier) const;
    std::vector<const NoteAttachment*> childrenOf(const NoteAttachment& parent) const;
    /// The note of an attachment, of the gallery that it belongs to where it has none itself.
    qint64 noteOf(const NoteAttachment& attachment) const;
    /// The text that stands for a hashtag, a mention or a link to a note; none: no such thing.
    std::optional<QString> inlineText(const QString& identifier) const;
    /// The data of a table.
    QByteArray tableData(const NoteAttachment& attachment) const;

private:
    void readAttachments(const formats::Database& database);
    void readMedia(const formats::Database& database);
    void readPreviews(const formats::Database& database);
    void readInlineTexts(const formats::Database& database);
    void readKind(const formats::Database& database, QLatin1String kind, const QString& select,
        const std::function<void(const formats::Statement&)>& take);
    void add(NoteAttachment attachment);
    NoteAttachment* byId(qint64 id);

    std::vector<NoteAttachment> m_all;
    bool m_isDamaged = false;
    QHash<QString, int> m_byIdentifier;
    QHash<qint64, int> m_byId;
    QHash<QString, QString> m_inlineTexts;
    mutable formats::Statement m_tableData;
};

} // namespace backup
