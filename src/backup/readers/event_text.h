// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

namespace backup {

/// `PRSMSChat::itemType` of lines that the phone shows without a bubble. The numbers below 100 are
/// the phone's own.
enum EventKind : int {
    MemberChange = 1,
    NameChange = 2,
    GroupChange = 3,
    LocationSharing = 4,
    AudioKept = 5,
    SharedSession = 6,
    Unsent = 101,
    Edited = 102,
    ReactionLine = 103,
    SystemLine = 104,
};

/// What a line in the middle of a conversation tells. The names are ready to show.
struct EventFacts {
    int itemType = 0;
    int action = 0;          ///< group_action_type
    int shareStatus = 0;     ///< 1: sharing of the location has stopped
    QString actor;           ///< who did it; the owner is "You"
    QString other;           ///< who was added or removed
    bool aboutActor = false; ///< actor and other are the same person
    QString groupTitle;      ///< the new name, empty: taken away
    QString text;            ///< what stands in the row, for kinds that are not known
};

/// The sentence of an event line; never empty.
QString eventSentence(const EventFacts& facts);

/// The sentence of a reaction: "Mia loved “See you”". `type` is the phone's number of it, `emoji`
/// its picture where it is one, `target` what is reacted to, ready to show with its quotes.
QString reactionSentence(
    int type, const QString& actor, const QString& emoji, const QString& target);

/// `text` on one line, of moderate length.
QString snippetOf(const QString& text);

/// `text` as a part of a sentence: the same between quotes.
QString quotedSnippet(const QString& text);

} // namespace backup
