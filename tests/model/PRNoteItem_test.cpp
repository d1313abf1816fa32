// SPDX-License-Identifier: MIT
#include "model/PRNoteItem.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

TEST(PRNoteItem, KeepsItsPiecesInOrder)
{
    std::vector<PRNoteItem::NotePiece> pieces(2);
    pieces[0].content = "text";
    pieces[1] = {.kind = 1,
        .content = "/p/picture",
        .label = "picture.jpg",
        .sourcePath = "/p/source",
        .preview = QImage(2, 1, QImage::Format_RGB32),
        .previewPath = "/p/preview"};
    const PRNoteItem item({.values = {"Note"}}, std::move(pieces));
    EXPECT_EQ(item.value(0), "Note");
    ASSERT_EQ(item.notePieces().size(), 2);
    EXPECT_EQ(item.notePieces().at(0)->kind, 0);
    EXPECT_EQ(item.notePieces().at(0)->content, "text");
    EXPECT_TRUE(item.notePieces().at(0)->preview.isNull());
    const PRNoteItem::NotePiece& picture = *item.notePieces().at(1);
    EXPECT_EQ(picture.kind, 1);
    EXPECT_EQ(picture.content, "/p/picture");
    EXPECT_EQ(picture.label, "picture.jpg");
    EXPECT_EQ(picture.sourcePath, "/p/source");
    EXPECT_EQ(picture.preview.width(), 2);
    EXPECT_EQ(picture.previewPath, "/p/preview");
}

TEST(PRNoteItem, HasNoPiecesByDefault)
{
    EXPECT_TRUE(PRNoteItem().notePieces().isEmpty());
}

TEST(PRNoteItem, ContentsAreCopiesOfItsPieces)
{
    const PRNoteItem item({}, {{.kind = 0, .content = "text"}});
    EXPECT_EQ(item.contents().at(0).content, "text");
    EXPECT_EQ(item.contents().size(), 1U);
}

TEST(PRNoteItem, MayLoadItsPiecesWhenTheyAreAskedFor)
{
    class LazyNote final : public PRNoteItem {
    public:
        const QList<NotePiece*>& notePieces() const override
        {
            m_loaded = std::make_unique<PRNoteItem>(
                Record{}, std::vector<NotePiece>{{.content = "loaded"}});
            return m_loaded->notePieces();
        }

    private:
        mutable std::unique_ptr<PRNoteItem> m_loaded;
    };
    const LazyNote lazy;
    const PRNoteItem& item = lazy;
    EXPECT_EQ(item.notePieces().at(0)->content, "loaded");
}
