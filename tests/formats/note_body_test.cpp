// SPDX-License-Identifier: MIT
#include "formats/gzip.h"
#include "formats/note_body.h"
#include "maker/note_bodies.h"
#include "real_files.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using formats::NoteBody;
using sample::gzipped;
using sample::noteBody;

std::span<const unsigned char> spanOf(const QByteArray& bytes)
{
    return {reinterpret_cast<const unsigned char*>(bytes.constData()),
        static_cast<std::size_t>(bytes.size())};
}

formats::Result<NoteBody> parsed(const QByteArray& bytes)
{
    return formats::parseNoteBody(spanOf(bytes));
}

int lengthOf(const NoteBody& body)
{
    int length = 0;
    for (const formats::NoteRun& run : body.runs) {
        length += run.length;
    }
    return length;
}

TEST(NoteBody, HasTextAndRuns)
{
    const auto body = parsed(noteBody({{.text = "Titel 😀\n", .style = 0},
        {.text = "Brot\n", .style = 103, .indent = 1, .done = true},
        {.text = "hier", .quote = true, .link = "https://a.example/"},
        {.text = QChar(u'\uFFFC'), .attachment = "ID", .attachmentType = "public.png"}}));
    ASSERT_TRUE(body);
    EXPECT_EQ(body->text, QString("Titel 😀\nBrot\nhier\uFFFC"));
    ASSERT_EQ(body->runs.size(), 4U);
    EXPECT_EQ(body->runs[0].length, 9); // the emoji is two units
    EXPECT_EQ(body->runs[0].style, formats::NoteTitle);
    EXPECT_EQ(body->runs[1].style, formats::CheckedList);
    EXPECT_EQ(body->runs[1].indent, 1);
    EXPECT_TRUE(body->runs[1].done);
    EXPECT_EQ(body->runs[2].style, formats::PlainParagraph);
    EXPECT_TRUE(body->runs[2].quote);
    EXPECT_EQ(body->runs[2].link, "https://a.example/");
    EXPECT_EQ(body->runs[3].attachment, "ID");
    EXPECT_EQ(body->runs[3].attachmentType, "public.png");
}

TEST(NoteBody, MayBeEmpty)
{
    const auto body = parsed(gzipped({}));
    ASSERT_TRUE(body);
    EXPECT_EQ(body->text, "");
    EXPECT_TRUE(body->runs.empty());
}

TEST(NoteBody, OddBytesAreReadAsFarAsTheyGo)
{
    struct Row {
        const char* what;
        QByteArray note; // the fields of the message with the text
        QString text;
        int length;
    };
    const Row rows[]{
        {"text that is no UTF-8", QByteArray("\x12\x03\x61\xff\x62"), QString("a\uFFFDb"), 0},
        {"run longer than the text", QByteArray("\x12\x02\x61\x62\x2a\x02\x08\x63"), "ab", 2},
        {"run of no length", QByteArray("\x12\x02\x61\x62\x2a\x02\x08\x00", 8), "ab", 0},
        {"run of negative length",
            QByteArray("\x12\x02\x61\x62\x2a\x0b\x08\xff\xff\xff\xff\xff\xff\xff\xff\xff\x01"),
            "ab", 0},
        {"unknown field", QByteArray("\x12\x01\x61\x9a\x06\x01\x00", 7), "a", 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const QByteArray document = "\x1a" + QByteArray(1, char(row.note.size())) + row.note;
        const QByteArray store = "\x12" + QByteArray(1, char(document.size())) + document;
        const auto body = parsed(gzipped(store));
        ASSERT_TRUE(body);
        EXPECT_EQ(body->text, row.text);
        EXPECT_EQ(lengthOf(*body), row.length);
    }
}

TEST(NoteBody, IndentIsBounded)
{
    const auto body = parsed(noteBody({{.text = "a", .style = 100, .indent = 2'000'000'000}}));
    ASSERT_TRUE(body);
    EXPECT_LE(body->runs[0].indent, 16);
}

TEST(NoteBody, DamageIsAnError)
{
    const QByteArray whole = noteBody({{.text = "A text"}, {.text = " in two runs"}});
    EXPECT_FALSE(parsed("no compressed bytes"));
    EXPECT_FALSE(parsed(gzipped("\x12\x7f too short")));
    for (int size = 0; size < whole.size(); ++size) {
        SCOPED_TRACE(size);
        EXPECT_FALSE(parsed(whole.left(size)));
    }
}

TEST(NoteBody, BombIsAnError)
{
    EXPECT_FALSE(parsed(gzipped(QByteArray(65 << 20, '\0'))));
}

TEST(NoteBody, SurvivesChangedBytes)
{
    const QByteArray sound = *formats::inflated(
        spanOf(noteBody({{.text = "Title\n", .style = 0}, {.text = "a", .style = 103, .done = true},
            {.text = QChar(u'\uFFFC'), .link = "l", .attachment = "I", .attachmentType = "T"}})),
        1 << 20);
    std::mt19937 random(27);
    int read = 0;
    for (int round = 0; round < 5'000; ++round) {
        QByteArray changed = sound;
        for (unsigned changes = 1 + random() % 4; changes > 0; --changes) {
            changed[static_cast<int>(random() % static_cast<unsigned>(changed.size()))] =
                static_cast<char>(random());
        }
        if (const auto body = parsed(gzipped(changed))) {
            ++read;
            ASSERT_LE(lengthOf(*body), body->text.size());
        }
    }
    EXPECT_GT(read, 100);
}

TEST(NoteBody, SurvivesNoise)
{
    std::mt19937 random(28);
    for (int round = 0; round < 5'000; ++round) {
        QByteArray noise;
        for (unsigned size = random() % 64; size > 0; --size) {
            noise.append(static_cast<char>(random()));
        }
        const auto body = parsed(gzipped(noise));
        ASSERT_TRUE(!body || lengthOf(*body) <= body->text.size());
        const QByteArray table = gzipped(noise);
        const auto rows = formats::parseNoteTable(spanOf(table));
        ASSERT_TRUE(!rows || !rows->empty());
    }
}

TEST(NoteBodyFiles, AreAllReadAndTheirRunsMakeUpTheText)
{
    struct Row {
        const char* file;
        const char* start;
    };
    constexpr Row kRows[]{
        {"block_quotes_gzipped.bin", "Block quotes\n\nThis is a block quote\n"},
        {"color_formatting_gzipped.bin", "Text colors\n\nRed\nGreen\n"},
        {"emoji_formatting_1_gzipped.bin", "Emojis and formatting\n\n🚀1🚀2"},
        {"html_gzipped.bin", "Things that mess HTML up\t\n\n<HTML>\n"},
        {"list_indents_gzipped.bin", "Indents in lists\n\nChecklist\nIndented checklist 1\n"},
        {"simple_note_protobuf_gzipped.bin", "Title"},
        {"text_decorations_gzipped.bin", "Title\nBold body \nItalic body\n"},
        {"url_gzipped.bin", "Link test\n"},
    };
    if (!realFiles("notes").exists()) {
        GTEST_SKIP() << "absent";
    }
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.file);
        const auto body = parsed(contentsOf(realFiles("notes").filePath(row.file)));
        ASSERT_TRUE(body);
        EXPECT_TRUE(body->text.startsWith(row.start)) << body->text.toStdString();
        EXPECT_EQ(lengthOf(*body), body->text.size());
    }
}

} // namespace
