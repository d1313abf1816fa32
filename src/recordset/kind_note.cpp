// SPDX-License-Identifier: MIT
// {"kind": "note", "values": ["Packing list"], "pieces": [
//   {"content": "Rope, lamp, tea"},
//   {"kind": 1, "content": "knot.jpg", "label": "knot.jpg", "sourcePath": "knot.heic",
//    "preview": "knot-small.jpg"}
// ]}
#include "model/PRNoteItem.h"
#include "recordset/Kind.h"

namespace recordset {

namespace {

using Piece = PRNoteItem::NotePiece;

struct Note {
    std::vector<Piece> pieces;
};

// The text of a text, the path of anything else; stands below the row of the kind, which must be
// known first.
constexpr Field<Piece> contentOfPiece(std::string_view key)
{
    Field<Piece> row = text<&Piece::content>(key);
    row.read = [](const Source& value, Piece& piece) {
        return piece.kind == 0 ? forms::Text::read(value, piece.content)
                               : forms::Path::read(value, piece.content);
    };
    row.write = [](const Piece& piece, JsonText& out) {
        if (piece.kind == 0) {
            forms::Text::write(piece.content, out);
        } else {
            forms::Path::write(piece.content, out);
        }
    };
    return row;
}

// The file of a picture, which is loaded: a null image where there is none.
constexpr Field<Piece> previewOfPiece(std::string_view key)
{
    Field<Piece> row = path<&Piece::previewPath>(key);
    row.read = [](const Source& value, Piece& piece) {
        if (!forms::Path::read(value, piece.previewPath)) {
            return false;
        }
        piece.preview = QImage(piece.previewPath);
        return true;
    };
    return row;
}

constexpr std::array kPieceFields{
    integer<&Piece::kind>("kind"),
    contentOfPiece("content"),
    text<&Piece::label>("label"),
    path<&Piece::sourcePath>("sourcePath"),
    previewOfPiece("preview"),
};

constexpr std::array kFields{
    list<&Note::pieces, kPieceFields>("pieces"),
};

std::unique_ptr<PRAbstractItem> make(Record record, Note note)
{
    return std::make_unique<PRNoteItem>(std::move(record), std::move(note.pieces));
}

Note contentsOf(PRNoteItem& item)
{
    return {.pieces = item.contents()};
}

} // namespace

constinit const Kind kNoteKind = kindOf<kFields, make, contentsOf>("note");

} // namespace recordset
