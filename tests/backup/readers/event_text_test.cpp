// SPDX-License-Identifier: MIT
#include "backup/readers/event_text.h"

#include <gtest/gtest.h>

namespace {

using backup::EventFacts;

TEST(EventSentence, TellsEachKindOfLine)
{
    struct Row {
        EventFacts facts;
        const char* sentence = nullptr;
    };
    const Row rows[] = {
        {{.itemType = 1, .actor = "Mia", .other = "Tom"}, "Mia added Tom to the conversation"},
        {{.itemType = 1, .actor = "Mia", .other = "Mia", .aboutActor = true},
            "Mia changed the phone number"},
        {{.itemType = 1, .action = 1, .actor = "You", .other = "Tom"},
            "You removed Tom from the conversation"},
        {{.itemType = 2, .actor = "Mia", .groupTitle = "Beach"},
            "Mia named the conversation “Beach”"},
        {{.itemType = 2, .actor = "Mia"}, "Mia removed the name of the conversation"},
        {{.itemType = 3, .actor = "Mia"}, "Mia left the conversation"},
        {{.itemType = 3, .action = 1, .actor = "Mia"}, "Mia changed the group photo"},
        {{.itemType = 3, .action = 2, .actor = "Mia"}, "Mia removed the group photo"},
        {{.itemType = 3, .action = 4, .actor = "Mia"},
            "Mia changed the background of the conversation"},
        {{.itemType = 3, .action = 6, .actor = "Mia"},
            "Mia removed the background of the conversation"},
        {{.itemType = 3, .action = 9, .actor = "Mia"}, "Mia changed the conversation"},
        {{.itemType = 4, .actor = "Mia"}, "Mia started sharing the location"},
        {{.itemType = 4, .shareStatus = 1, .actor = "Mia"}, "Mia stopped sharing the location"},
        {{.itemType = 5, .actor = "Mia"}, "Mia kept an audio message"},
        {{.itemType = 6, .actor = "Mia"}, "Mia started a call or a shared activity"},
        {{.itemType = 101, .actor = "Mia"}, "Mia unsent a message"},
        {{.itemType = 99, .actor = "Mia"}, "Mia changed the conversation"},
        {{.itemType = 99, .actor = "Mia", .text = "Something new"}, "Something new"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(backup::eventSentence(row.facts), row.sentence);
    }
}

TEST(EventSentence, KeepsPlacesInNames)
{
    EXPECT_EQ(backup::eventSentence({.itemType = 1, .actor = "%2", .other = "%1"}),
        "%2 added %1 to the conversation");
}

TEST(ReactionSentence, TellsEachReaction)
{
    struct Row {
        int type = 0;
        const char* sentence = nullptr;
    };
    static constexpr Row kRows[] = {
        {1000, "Mia placed a sticker on “Hi”"},
        {2000, "Mia loved “Hi”"},
        {2001, "Mia liked “Hi”"},
        {2002, "Mia disliked “Hi”"},
        {2003, "Mia laughed at “Hi”"},
        {2004, "Mia emphasized “Hi”"},
        {2005, "Mia questioned “Hi”"},
        {2006, "Mia reacted with 🔥 to “Hi”"},
        {2007, "Mia reacted with a sticker to “Hi”"},
        {4000, "Mia voted on “Hi”"},
        {2999, "Mia reacted to “Hi”"},
    };
    for (const Row& row : kRows) {
        EXPECT_EQ(backup::reactionSentence(row.type, "Mia", "🔥", "“Hi”"), row.sentence);
    }
}

TEST(ReactionSentence, AnEmojiThatIsMissingLeavesAnyReaction)
{
    EXPECT_EQ(backup::reactionSentence(2006, "Mia", "", "“Hi”"), "Mia reacted to “Hi”");
}

TEST(QuotedSnippet, IsOneLineBetweenQuotes)
{
    EXPECT_EQ(backup::quotedSnippet(" See\nyou  soon "), "“See you soon”");
}

TEST(QuotedSnippet, EndsLongTextsAfterEightyCharacters)
{
    EXPECT_EQ(backup::quotedSnippet(QString(80, 'x')), "“" + QString(80, 'x') + "”");
    EXPECT_EQ(backup::quotedSnippet(QString(81, 'x')), "“" + QString(80, 'x') + "…”");
}

TEST(QuotedSnippet, NeverCutsAnEmoji)
{
    // A family of eleven UTF-16 units that begins before the end.
    const QString family = "👨‍👩‍👧‍👦";
    EXPECT_EQ(
        backup::quotedSnippet(QString(75, 'x') + family + "y"), "“" + QString(75, 'x') + "…”");
}

} // namespace
