// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRAbstractItem.h"

#include <QImage>
#include <QList>

#include <memory>
#include <vector>

/// A note; its cell of column 4 is drawn from its pieces.
class DATAEXPORT_EXPORT PRNoteItem : public PRAbstractItem {
public:
    struct NotePiece {
        int kind = 0;        ///< 0 text, 1 picture
        QString content;     ///< the text, or the path of a picture
        QString label;       ///< name of the picture
        QString sourcePath;  ///< the attachment's own file
        QImage preview;      ///< the picture to show; null: the piece is passed over
        QString previewPath; ///< where the preview was loaded from
    };

    explicit PRNoteItem(Record record = {}, std::vector<NotePiece> pieces = {});
    ~PRNoteItem() override;

    /// A reader of a large store overrides it to load the pieces when they are asked for; the
    /// result then holds until another note of the same store is asked for.
    virtual const QList<NotePiece*>& notePieces() const { return m_pieces; }
    /// Copies of the pieces. Such a reader leaves the previews away, whose paths tell them.
    virtual std::vector<NotePiece> contents() const { return m_ownedPieces; }

private:
    std::vector<NotePiece> m_ownedPieces;
    QList<NotePiece*> m_pieces; // into m_ownedPieces
};
