// SPDX-License-Identifier: MIT
#include "backup/readers/event_text.h"

#include "platform/literals.h"

#include <QCoreApplication>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <array>

namespace backup {

namespace {

// message.group_action_type of item_type 3
enum GroupAction : int {
    Left = 0,
    PhotoChanged = 1,
    PhotoRemoved = 2,
    BackgroundChanged = 4,
    BackgroundRemoved = 6,
};

constexpr int kSnippetCharacters = 80;

struct ReactionRow {
    int type;
    const char* sentence;
};

// clang-format off
constexpr std::array kReactions{
    ReactionRow{1000, QT_TRANSLATE_NOOP("DataExport", "%1 placed a sticker on %2")},
    ReactionRow{2000, QT_TRANSLATE_NOOP("DataExport", "%1 loved %2")},
    ReactionRow{2001, QT_TRANSLATE_NOOP("DataExport", "%1 liked %2")},
    ReactionRow{2002, QT_TRANSLATE_NOOP("DataExport", "%1 disliked %2")},
    ReactionRow{2003, QT_TRANSLATE_NOOP("DataExport", "%1 laughed at %2")},
    ReactionRow{2004, QT_TRANSLATE_NOOP("DataExport", "%1 emphasized %2")},
    ReactionRow{2005, QT_TRANSLATE_NOOP("DataExport", "%1 questioned %2")},
    ReactionRow{2007, QT_TRANSLATE_NOOP("DataExport", "%1 reacted with a sticker to %2")},
    ReactionRow{4000, QT_TRANSLATE_NOOP("DataExport", "%1 voted on %2")},
};
// clang-format on

constexpr int kEmojiReaction = 2006;

QString tr(const char* sentence)
{
    return QCoreApplication::translate("DataExport", sentence);
}

QString memberSentence(const EventFacts& facts)
{
    if (facts.action != 0) {
        return tr("%1 removed %2 from the conversation").arg(facts.actor, facts.other);
    }
    if (facts.aboutActor) {
        return tr("%1 changed the phone number").arg(facts.actor);
    }
    return tr("%1 added %2 to the conversation").arg(facts.actor, facts.other);
}

QString nameSentence(const EventFacts& facts)
{
    if (facts.groupTitle.isEmpty()) {
        return tr("%1 removed the name of the conversation").arg(facts.actor);
    }
    return tr("%1 named the conversation %2").arg(facts.actor, quotedSnippet(facts.groupTitle));
}

QString groupSentence(const EventFacts& facts)
{
    switch (facts.action) {
    case Left:
        return tr("%1 left the conversation").arg(facts.actor);
    case PhotoChanged:
        return tr("%1 changed the group photo").arg(facts.actor);
    case PhotoRemoved:
        return tr("%1 removed the group photo").arg(facts.actor);
    case BackgroundChanged:
        return tr("%1 changed the background of the conversation").arg(facts.actor);
    case BackgroundRemoved:
        return tr("%1 removed the background of the conversation").arg(facts.actor);
    default:
        return tr("%1 changed the conversation").arg(facts.actor);
    }
}

} // namespace

QString eventSentence(const EventFacts& facts)
{
    switch (facts.itemType) {
    case MemberChange:
        return memberSentence(facts);
    case NameChange:
        return nameSentence(facts);
    case GroupChange:
        return groupSentence(facts);
    case LocationSharing:
        return (facts.shareStatus == 0 ? tr("%1 started sharing the location")
                                       : tr("%1 stopped sharing the location"))
            .arg(facts.actor);
    case AudioKept:
        return tr("%1 kept an audio message").arg(facts.actor);
    case SharedSession:
        return tr("%1 started a call or a shared activity").arg(facts.actor);
    case Unsent:
        return tr("%1 unsent a message").arg(facts.actor);
    default:
        return facts.text.isEmpty() ? tr("%1 changed the conversation").arg(facts.actor)
                                    : facts.text;
    }
}

QString reactionSentence(
    int type, const QString& actor, const QString& emoji, const QString& target)
{
    if (type == kEmojiReaction && !emoji.isEmpty()) {
        return tr("%1 reacted with %2 to %3").arg(actor, emoji, target);
    }
    const auto* const row = std::ranges::find(kReactions, type, &ReactionRow::type);
    return tr(row != kReactions.end() ? row->sentence
                                      : QT_TRANSLATE_NOOP("DataExport", "%1 reacted to %2"))
        .arg(actor, target);
}

QString snippetOf(const QString& text)
{
    QString snippet = text.simplified();
    if (snippet.size() > kSnippetCharacters) {
        // Never within an emoji that is made of several characters.
        QTextBoundaryFinder boundaries(QTextBoundaryFinder::Grapheme, snippet);
        boundaries.setPosition(kSnippetCharacters);
        const int end =
            boundaries.isAtBoundary() ? kSnippetCharacters : boundaries.toPreviousBoundary();
        snippet.truncate(std::max(end, 0));
        snippet += QChar(0x2026);
    }
    return snippet;
}

QString quotedSnippet(const QString& text)
{
    return QChar(0x201C) + snippetOf(text) + QChar(0x201D);
}

} // namespace backup
