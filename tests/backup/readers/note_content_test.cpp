// SPDX-License-Identifier: MIT
#include "backup/readers/note_content.h"

#include <gtest/gtest.h>

namespace {

using backup::NoteContent;
using backup::NoteInsert;
using formats::NoteRun;

struct Stretch {
    QString text;
    NoteRun run; // but for the length
};

NoteContent contentOf(const std::vector<Stretch>& stretches, const NoteInsert& inserted = {})
{
    formats::NoteBody body;
    for (const Stretch& stretch : stretches) {
        body.text += stretch.text;
        body.runs.push_back(stretch.run);
        body.runs.back().length = stretch.text.size();
    }
    return backup::noteContent(body, [&](const NoteRun&) { return inserted; });
}

TEST(NoteContent, ListsHaveTheirMarks)
{
    struct Row {
        const char* what;
        std::vector<Stretch> stretches;
        QString text;
    };
    const NoteRun dot{.style = formats::DottedList};
    const NoteRun number{.style = formats::NumberedList};
    const NoteRun deeper{.style = formats::NumberedList, .indent = 1};
    const Row rows[]{
        {"dots", {{"a\nb", dot}}, "• a\n• b"},
        {"dashes", {{"a", {.style = formats::DashedList}}}, "– a"},
        {"checks",
            {{"a\n", {.style = formats::CheckedList, .done = true}},
                {"b", {.style = formats::CheckedList}}},
            "☑ a\n☐ b"},
        {"depth", {{"a", {.style = formats::DottedList, .indent = 2}}}, "\u2003\u2003• a"},
        {"numbers", {{"a\nb\n", number}, {"c\nd\n", deeper}, {"e\n", number}, {"f", deeper}},
            "1. a\n2. b\n\u20031. c\n\u20032. d\n3. e\n\u20031. f"},
        {"numbers after a text", {{"a\n", number}, {"text\n", {}}, {"b", number}},
            "1. a\ntext\n1. b"},
        {"headings",
            {{"T\n", {.style = formats::NoteTitle}}, {"H\n", {.style = formats::NoteHeading}},
                {"x", {}}},
            "T\nH\nx"},
        {"quote", {{"a", {.quote = true}}}, "> a"},
        {"styles within a line", {{"a", dot}, {"b\n", dot}, {"c", dot}}, "• ab\n• c"},
        {"emoji before a list", {{"👩‍👩‍👧\n", {}}, {"a", dot}},
            "👩‍👩‍👧\n• a"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(contentOf(row.stretches).text, row.text);
    }
}

TEST(NoteContent, LinkIsShownWhereItsTextDoesNotTellIt)
{
    struct Row {
        const char* what;
        std::vector<Stretch> stretches;
        QString text;
    };
    const NoteRun link{.link = "https://a.example/b"};
    const Row rows[]{
        {"named", {{"see ", {}}, {"this", link}, {" too", {}}},
            "see this (https://a.example/b) too"},
        {"in full", {{"https://a.example/b", link}}, "https://a.example/b"},
        {"shortened", {{"a.example", link}}, "a.example"},
        {"in two runs", {{"th", link}, {"is", link}}, "this (https://a.example/b)"},
        {"two of them", {{"x", link}, {"y", {.link = "tel:1"}}}, "xy (tel:1)"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(contentOf(row.stretches).text, row.text);
    }
}

TEST(NoteContent, TextBetweenPicturesIsOnePiece)
{
    PRNoteItem::NotePiece picture{.kind = 1, .label = "a.png"};
    const NoteRun mark{.attachment = "A"};
    const NoteContent content =
        contentOf({{"One\n\nTwo\n", {}}, {QChar(u'\uFFFC'), mark}, {"\n", {}},
                      {QChar(u'\uFFFC'), mark}, {"\nEnd\n", {}}},
            {.text = {}, .pictures = {picture}});
    ASSERT_EQ(content.pieces.size(), 4U);
    EXPECT_EQ(content.pieces[0].content, "One\n\nTwo");
    EXPECT_EQ(content.pieces[1].label, "a.png");
    EXPECT_EQ(content.pieces[2].label, "a.png");
    EXPECT_EQ(content.pieces[3].content, "End");
    EXPECT_EQ(content.text, "One\n\nTwo\n[a.png]\n[a.png]\nEnd");
}

TEST(NoteContent, InsertedLinesStandByThemselves)
{
    const NoteRun mark{.attachment = "A"};
    EXPECT_EQ(contentOf({{"x", {}}, {QChar(u'\uFFFC'), mark}, {"\ny", {}}},
                  {.text = "1 | 2\n3 | 4", .pictures = {}})
                  .text,
        "x\n1 | 2\n3 | 4\ny");
}

TEST(NoteContent, MarksWithoutAnAttachmentAreNotShown)
{
    EXPECT_EQ(contentOf({{"a\uFFFCb\uFEFFc\u2028d", {}}}).text, "abc\nd");
}

TEST(NoteContent, RunsMayEndBeforeTheText)
{
    formats::NoteBody body{.text = "abc\ndef", .runs = {{.length = 2}}};
    EXPECT_EQ(backup::noteContent(body, {}).text, "abc\ndef");
}

TEST(NoteContent, EmptyTextHasNoPieces)
{
    EXPECT_TRUE(backup::plainContent("").pieces.empty());
    EXPECT_TRUE(backup::plainContent("\n \n").pieces.empty());
}

} // namespace
