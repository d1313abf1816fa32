// SPDX-License-Identifier: MIT
// ZWAMESSAGE rows of these types have an event's number in ZGROUPEVENTTYPE:
//    6  of a group    2  ZTEXT "491715550101@s.whatsapp.net;12025550114@s.whatsapp.net,..."
//                     1  ZTEXT "Summer choir"
//                    56  ZTEXT {"previous_subject": "Choir", "new_subject": "Summer choir"}
//                    26  ZTEXT "604800", seconds
//   10  of the application itself
//   55  of a channel
#include "backup/readers/whatsapp_events.h"

#include "backup/readers/chat_lines.h"
#include "backup/readers/event_text.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <span>

namespace backup {

namespace {

constexpr int kSubjectChanged = 1;
constexpr int kSubjectReplaced = 56;
constexpr int kDisappearing = 26;
constexpr qint64 kHour = 3600;
constexpr qint64 kDaysFrom = 48; // hours; less than that is told in hours

// Events of the application itself: the code of the other one changed; who is blocked or no more.
constexpr std::array kAboutOthers{3, 36, 34, 35};

struct EventRow {
    int number = 0;
    const char* sentence = nullptr; ///< %1 who did it, or who alone it is about; %2 to whom
    const char* alone = nullptr;    ///< where only one side is known
};

// clang-format off
constexpr std::array kGroupEvents{
    EventRow{2,  QT_TRANSLATE_NOOP("DataExport", "%1 added %2 to the conversation"), QT_TRANSLATE_NOOP("DataExport", "%1 was added to the conversation")},
    EventRow{3,  QT_TRANSLATE_NOOP("DataExport", "%1 left the conversation")},
    EventRow{4,  QT_TRANSLATE_NOOP("DataExport", "%1 changed the group photo")},
    EventRow{5,  QT_TRANSLATE_NOOP("DataExport", "%1 removed the group photo")},
    EventRow{7,  QT_TRANSLATE_NOOP("DataExport", "%1 removed %2 from the conversation"), QT_TRANSLATE_NOOP("DataExport", "%1 was removed from the conversation")},
    EventRow{9,  QT_TRANSLATE_NOOP("DataExport", "%1 changed the phone number")},
    EventRow{10, QT_TRANSLATE_NOOP("DataExport", "You are now an admin")},
    EventRow{11, QT_TRANSLATE_NOOP("DataExport", "You are no longer an admin")},
    EventRow{12, QT_TRANSLATE_NOOP("DataExport", "%1 created the group")},
    EventRow{15, QT_TRANSLATE_NOOP("DataExport", "%1 joined by a link")},
    EventRow{17, QT_TRANSLATE_NOOP("DataExport", "%1 changed the group description")},
    EventRow{18, QT_TRANSLATE_NOOP("DataExport", "%1 allowed only admins to edit the group")},
    EventRow{19, QT_TRANSLATE_NOOP("DataExport", "%1 allowed all members to edit the group")},
    EventRow{20, QT_TRANSLATE_NOOP("DataExport", "%1 allowed only admins to send messages")},
    EventRow{21, QT_TRANSLATE_NOOP("DataExport", "%1 allowed all members to send messages")},
    EventRow{22, QT_TRANSLATE_NOOP("DataExport", "%1 deleted the group description")},
    EventRow{23, QT_TRANSLATE_NOOP("DataExport", "%1 joined by an invitation")},
    EventRow{30, QT_TRANSLATE_NOOP("DataExport", "%1 joined from the community")},
    EventRow{31, QT_TRANSLATE_NOOP("DataExport", "%1 added %2 to the community"), QT_TRANSLATE_NOOP("DataExport", "%1 was added to the community")},
    EventRow{33, QT_TRANSLATE_NOOP("DataExport", "%1 removed %2 from the conversation"), QT_TRANSLATE_NOOP("DataExport", "%1 was removed from the conversation")},
    EventRow{39, QT_TRANSLATE_NOOP("DataExport", "%1 made %2 an admin"), QT_TRANSLATE_NOOP("DataExport", "%1 is now an admin")},
    EventRow{42, QT_TRANSLATE_NOOP("DataExport", "%1 allowed only admins to add members")},
    EventRow{50, QT_TRANSLATE_NOOP("DataExport", "%1 added %2 to the conversation"), QT_TRANSLATE_NOOP("DataExport", "%1 was added to the conversation")},
    EventRow{61, QT_TRANSLATE_NOOP("DataExport", "%1 added %2 to the community"), QT_TRANSLATE_NOOP("DataExport", "%1 was added to the community")},
};

constexpr std::array kSystemEvents{
    EventRow{1,  QT_TRANSLATE_NOOP("DataExport", "Missed voice call")},
    EventRow{2,  QT_TRANSLATE_NOOP("DataExport", "Messages and calls are encrypted from end to end")},
    EventRow{3,  QT_TRANSLATE_NOOP("DataExport", "The security code of %1 changed")},
    EventRow{4,  QT_TRANSLATE_NOOP("DataExport", "Missed video call")},
    EventRow{5,  QT_TRANSLATE_NOOP("DataExport", "%1 changed the phone number")},
    EventRow{6,  QT_TRANSLATE_NOOP("DataExport", "%1 changed the phone number")},
    EventRow{21, QT_TRANSLATE_NOOP("DataExport", "Missed voice call")},
    EventRow{22, QT_TRANSLATE_NOOP("DataExport", "Missed video call")},
    EventRow{25, QT_TRANSLATE_NOOP("DataExport", "Notice about a business account")},
    EventRow{26, QT_TRANSLATE_NOOP("DataExport", "Notice about a business account")},
    EventRow{29, QT_TRANSLATE_NOOP("DataExport", "Notice about a business account")},
    EventRow{30, QT_TRANSLATE_NOOP("DataExport", "Notice about a business account")},
    EventRow{34, QT_TRANSLATE_NOOP("DataExport", "%1 was blocked")},
    EventRow{35, QT_TRANSLATE_NOOP("DataExport", "%1 was unblocked")},
    EventRow{36, QT_TRANSLATE_NOOP("DataExport", "The security code of %1 changed")},
    EventRow{38, QT_TRANSLATE_NOOP("DataExport", "Notice about a business account")},
    EventRow{40, QT_TRANSLATE_NOOP("DataExport", "Group call")},
    EventRow{41, QT_TRANSLATE_NOOP("DataExport", "Group call")},
    EventRow{45, QT_TRANSLATE_NOOP("DataExport", "Missed voice call")},
    EventRow{46, QT_TRANSLATE_NOOP("DataExport", "Missed video call")},
};

constexpr std::array kChannelEvents{
    EventRow{1, QT_TRANSLATE_NOOP("DataExport", "The channel was created")},
    EventRow{4, QT_TRANSLATE_NOOP("DataExport", "The privacy of the channel changed")},
};
// clang-format on

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

// The places that a sentence has.
QString filled(const char* sentence, const QString& actor, const QString& others)
{
    const QString text = tr(sentence);
    if (text.contains("%2"_L1)) {
        return text.arg(actor, others);
    }
    return text.contains("%1"_L1) ? text.arg(actor) : text;
}

QString someone(const QString& actor)
{
    return actor.isEmpty() ? tr("Someone") : actor;
}

QString sentenceOf(const EventRow& row, const WhatsAppEvent& event)
{
    const QString one = someone(firstFilled({event.actor, event.others}));
    const bool areTwo = !event.others.isEmpty() && event.others != one;
    return areTwo || row.alone == nullptr ? filled(row.sentence, one, event.others)
                                          : filled(row.alone, one, QString());
}

QString sentenceIn(
    std::span<const EventRow> table, const WhatsAppEvent& event, const char* otherwise)
{
    const auto row = std::ranges::find(table, event.number, &EventRow::number);
    return sentenceOf(row != table.end() ? *row : EventRow{.sentence = otherwise}, event);
}

QString subjectOf(const WhatsAppEvent& event)
{
    const QJsonObject change = QJsonDocument::fromJson(event.text.toUtf8()).object();
    const QString subject = change["new_subject"_L1].toString();
    return subject.isEmpty() ? event.text : subject;
}

QString disappearingSentence(const WhatsAppEvent& event)
{
    bool isNumber = false;
    const qint64 seconds = event.text.trimmed().toLongLong(&isNumber);
    if (isNumber && seconds <= 0) {
        return tr("%1 turned off disappearing messages").arg(someone(event.actor));
    }
    const qint64 hours = seconds / kHour;
    if (hours == 0) {
        return tr("%1 changed disappearing messages").arg(someone(event.actor));
    }
    return hours < kDaysFrom ? tr("%1 made messages disappear after %2 hours")
                                   .arg(someone(event.actor), QString::number(hours))
                             : tr("%1 made messages disappear after %2 days")
                                   .arg(someone(event.actor), QString::number(hours / 24));
}

// "491715550101:12@s.whatsapp.net"; no mail address, of which descriptions have some.
bool isAddress(const QString& text)
{
    const int at = text.indexOf(QChar(u'@'));
    return at > 0 && !text.contains(QChar(u' '))
           && std::all_of(text.cbegin(), text.cbegin() + at,
               [](QChar c) { return c.isDigit() || ":.-"_L1.contains(c); });
}

} // namespace

QString groupEventSentence(const WhatsAppEvent& event)
{
    if (event.number == kSubjectChanged || event.number == kSubjectReplaced) {
        return tr("%1 named the conversation %2")
            .arg(someone(event.actor), quotedSnippet(subjectOf(event)));
    }
    if (event.number == kDisappearing) {
        return disappearingSentence(event);
    }
    return sentenceIn(
        kGroupEvents, event, QT_TRANSLATE_NOOP("DataExport", "%1 changed the conversation"));
}

bool isAboutOthers(int systemEvent)
{
    return std::ranges::find(kAboutOthers, systemEvent) != kAboutOthers.end();
}

QString systemEventSentence(const WhatsAppEvent& event)
{
    return sentenceIn(kSystemEvents, event, QT_TRANSLATE_NOOP("DataExport", "[System message]"));
}

QString channelEventSentence(const WhatsAppEvent& event)
{
    return sentenceIn(
        kChannelEvents, event, QT_TRANSLATE_NOOP("DataExport", "The channel was changed"));
}

QString actorSentence(const char* sentence, const QString& actor)
{
    return filled(sentence, someone(actor), QString());
}

WhatsAppPersons personsOfEvent(const QString& text)
{
    WhatsAppPersons persons;
    QString rest = text;
    if (const int semicolon = rest.indexOf(QChar(u';')); semicolon >= 0) {
        const QString first = rest.left(semicolon).trimmed();
        persons.actor = isAddress(first) ? first : QString();
        rest.remove(0, semicolon + 1);
    }
    const QStringList parts = rest.split(QChar(u','), Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        if (isAddress(part.trimmed())) {
            persons.others.append(part.trimmed());
        }
    }
    return persons;
}

} // namespace backup
