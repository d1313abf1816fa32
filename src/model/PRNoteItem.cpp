// SPDX-License-Identifier: MIT
#include "model/PRNoteItem.h"

PRNoteItem::PRNoteItem(Record record, std::vector<NotePiece> pieces)
    : PRAbstractItem(std::move(record)), m_ownedPieces(std::move(pieces))
{
    m_pieces.reserve(static_cast<int>(m_ownedPieces.size()));
    for (NotePiece& piece : m_ownedPieces) {
        m_pieces.append(&piece);
    }
}

PRNoteItem::~PRNoteItem() = default;
