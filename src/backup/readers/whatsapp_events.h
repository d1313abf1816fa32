// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace backup {

/// What a line in the middle of a chat tells. The names are ready to show.
struct WhatsAppEvent {
    int number = 0; ///< ZGROUPEVENTTYPE
    QString actor;  ///< who did it; empty where that is unknown
    QString others; ///< to whom; empty for nobody
    QString text;   ///< what stands in the row
};

/// Sentences of events of a group (messages of type 6), of the application itself (type 10) and of
/// channels (type 55); never empty.
QString groupEventSentence(const WhatsAppEvent& event);
QString systemEventSentence(const WhatsAppEvent& event);
QString channelEventSentence(const WhatsAppEvent& event);

/// Whether an event of the application itself is never about the owner, whoever its row names.
bool isAboutOthers(int systemEvent);

/// `sentence`, a text to be translated, with the actor in its place.
QString actorSentence(const char* sentence, const QString& actor);

/// Addresses in the text of an event: "<actor>;<other>,<other>", or the others alone.
struct WhatsAppPersons {
    QString actor;
    QStringList others;
};
WhatsAppPersons personsOfEvent(const QString& text);

} // namespace backup
