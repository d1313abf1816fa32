// SPDX-License-Identifier: MIT
//   ZMESSAGETYPE  0 text  1 picture  2 film  3 sound  4 cards  5 place  6 event  8 document  ...
//   ZISFROMME 1, ZMESSAGESTATUS 9                    own, not sent
//   ZFLAGS & 0x180 = 0x180                           forwarded
//   ZMEDIALOCALPATH NULL, ZXMPPTHUMBPATH "...thumb"  never downloaded
//   ZTITLE                                           caption; name of a document; title of a link
#include "backup/readers/WhatsAppChatBuilder.h"

#include "backup/readers/chat_lines.h"
#include "backup/readers/event_text.h"
#include "backup/readers/media_kind.h"
#include "backup/readers/whatsapp_events.h"
#include "backup/readers/whatsapp_text.h"
#include "platform/literals.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <functional>
#include <numeric>
#include <unordered_map>
#include <utility>

namespace backup {

namespace {

// ZMESSAGETYPE
enum StoredType : int {
    TextMessage = 0,
    Contacts = 4,
    Place = 5,
    GroupMessage = 6,
    LinkMessage = 7,
    SystemMessage = 10,
    ChannelMessage = 55,
};

struct TypeRow {
    int stored = 0;
    MsgType kind = MsgType::Text;
    const char* line = nullptr; ///< of an event, or of a message that has nothing else to show
};

constexpr const char* kUnknown = QT_TRANSLATE_NOOP("DataExport", "[Unknown message]");
constexpr const char* kTemplate = QT_TRANSLATE_NOOP("DataExport", "Message of a business");

// clang-format off
constexpr std::array kTypes{
    TypeRow{TextMessage,     MsgType::Text,    kUnknown},
    TypeRow{1,               MsgType::Picture},
    TypeRow{2,               MsgType::Video},
    TypeRow{3,               MsgType::Audio},
    TypeRow{Contacts,        MsgType::ContactCard},
    TypeRow{Place,           MsgType::Location},
    TypeRow{GroupMessage,    MsgType::GroupEvent},
    TypeRow{LinkMessage,     MsgType::Text,    kUnknown},
    TypeRow{8,               MsgType::Document},
    TypeRow{SystemMessage,   MsgType::GroupEvent},
    TypeRow{11,              MsgType::Video},
    TypeRow{12,              MsgType::GroupEvent, QT_TRANSLATE_NOOP("DataExport", "A message of %1 has not arrived yet")},
    TypeRow{14,              MsgType::GroupEvent, QT_TRANSLATE_NOOP("DataExport", "%1 deleted a message")},
    TypeRow{15,              MsgType::Picture},
    TypeRow{19,              MsgType::Text,    kTemplate},
    TypeRow{20,              MsgType::Text,    kTemplate},
    TypeRow{23,              MsgType::Text,    kTemplate},
    TypeRow{24,              MsgType::Text,    kTemplate},
    TypeRow{25,              MsgType::Text,    kTemplate},
    TypeRow{26,              MsgType::Text,    QT_TRANSLATE_NOOP("DataExport", "Product")},
    TypeRow{27,              MsgType::Text,    QT_TRANSLATE_NOOP("DataExport", "Invitation to a group")},
    TypeRow{28,              MsgType::GroupEvent, QT_TRANSLATE_NOOP("DataExport", "%1 changed disappearing messages")},
    TypeRow{30,              MsgType::Text,    kTemplate},
    TypeRow{31,              MsgType::Text,    kTemplate},
    TypeRow{32,              MsgType::Text,    kTemplate},
    TypeRow{34,              MsgType::Text,    kTemplate},
    TypeRow{38,              MsgType::Picture},
    TypeRow{39,              MsgType::Video},
    TypeRow{41,              MsgType::Text,    kTemplate},
    TypeRow{42,              MsgType::Text,    kTemplate},
    TypeRow{46,              MsgType::Text,    QT_TRANSLATE_NOOP("DataExport", "Poll")},
    TypeRow{53,              MsgType::Audio},
    TypeRow{54,              MsgType::Video},
    TypeRow{ChannelMessage,  MsgType::GroupEvent},
    TypeRow{59,              MsgType::GroupEvent, QT_TRANSLATE_NOOP("DataExport", "Call")},
    TypeRow{66,              MsgType::Text,    QT_TRANSLATE_NOOP("DataExport", "Album")},
};

// What a message is called that has no text.
struct KindName {
    MsgType kind = MsgType::Text;
    const char* name = nullptr;
};
constexpr std::array kKindNames{
    KindName{MsgType::Picture,     QT_TRANSLATE_NOOP("DataExport", "Photo")},
    KindName{MsgType::Video,       QT_TRANSLATE_NOOP("DataExport", "Video")},
    KindName{MsgType::Audio,       QT_TRANSLATE_NOOP("DataExport", "Voice message")},
    KindName{MsgType::ContactCard, QT_TRANSLATE_NOOP("DataExport", "Contact card")},
    KindName{MsgType::Location,    QT_TRANSLATE_NOOP("DataExport", "Location")},
    KindName{MsgType::Document,    QT_TRANSLATE_NOOP("DataExport", "Document")},
};
// clang-format on

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

TypeRow rowOf(qint64 type)
{
    const auto* const row =
        std::ranges::find_if(kTypes, [&](const TypeRow& each) { return each.stored == type; });
    return row != kTypes.end() ? *row : TypeRow{.stored = -1, .line = kUnknown};
}

// A template or an unknown message may carry a file of any kind.
MsgType kindOfFile(const QString& path)
{
    switch (mediaKindOf(path)) {
    case MediaKind::Picture:
        return MsgType::Picture;
    case MediaKind::Film:
        return MsgType::Video;
    case MediaKind::Sound:
        return MsgType::Audio;
    default:
        return MsgType::Document;
    }
}

} // namespace

WhatsAppChatBuilder::WhatsAppChatBuilder(const WhatsAppChatFacts& chat,
    const WhatsAppPeople& people, const WhatsAppMembers& members, const WhatsAppFiles& files)
    : m_chat(chat), m_people(people), m_members(members), m_files(files), m_you(tr("You"))
{
}

void WhatsAppChatBuilder::clear()
{
    m_messages.clear();
    m_order.clear();
    m_stanzas.clear();
    m_quotes.clear();
    m_forwardedOnes.clear();
}

void WhatsAppChatBuilder::add(const WhatsAppRow& row)
{
    m_messages.push_back(messageOf(row));
    m_order.push_back(row.numbers.order);
    m_stanzas.push_back(row.numbers.stanza);
}

ChatMessage WhatsAppChatBuilder::messageOf(const WhatsAppRow& row)
{
    const TypeRow type = rowOf(row.numbers.type);
    const bool fromMe = row.numbers.fromMe;
    ChatMessage message{
        .type = static_cast<int>(type.kind),
        .fromMe = fromMe,
        .sentDone = !row.numbers.notSent,
        .date = row.date(),
    };
    if (type.kind == MsgType::GroupEvent) {
        addEvent(row, type.line, message);
        return message;
    }
    if (!fromMe && !m_chat.isPrivate) {
        message.member = senderOf(row);
    }
    message.broadcast = m_chat.isBroadcast || row.numbers.ofList;
    addContent(row, message);
    if (message.content.isEmpty() && message.media.isEmpty() && type.line != nullptr) {
        message.type = static_cast<int>(MsgType::GroupEvent);
        message.content = tr(type.line);
        message.member.clear();
        return message;
    }
    addRelations(row);
    return message;
}

void WhatsAppChatBuilder::addContent(const WhatsAppRow& row, ChatMessage& message)
{
    const auto type = row.numbers.type;
    if (row.has(WhatsAppText::Receipts)) {
        addReceipts(row, message);
    }
    if (message.content.isEmpty()) {
        message.content = textOf(row, type);
    }
    if (row.has(WhatsAppText::MediaPath) || row.has(WhatsAppText::Thumbnail)) {
        addMedia(row, message);
    }
}

QString WhatsAppChatBuilder::textOf(const WhatsAppRow& row, int type) const
{
    QString text = row.text(WhatsAppText::Text);
    if (!row.numbers.hasMedia) {
        return text;
    }
    switch (type) {
    case Contacts:
        return joinedLines(
            {text, cardLines(row.text(WhatsAppText::CardNames), row.text(WhatsAppText::Cards))});
    case Place:
        return joinedLines(
            {text, placeLines(row.text(WhatsAppText::CardNames), row.text(WhatsAppText::Title),
                       row.numbers.latitude, row.numbers.longitude)});
    case LinkMessage:
        return text.isEmpty()
                   ? joinedLines({row.text(WhatsAppText::Title), row.text(WhatsAppText::Url)})
                   : text;
    case TextMessage:
        return text.isEmpty() ? row.text(WhatsAppText::Title) : text;
    default:
        return joinedLines({row.text(WhatsAppText::Title), text});
    }
}

void WhatsAppChatBuilder::addMedia(const WhatsAppRow& row, ChatMessage& message) const
{
    const QString path = row.text(WhatsAppText::MediaPath);
    if (message.type == static_cast<int>(MsgType::Text) && !path.isEmpty()) {
        message.type = static_cast<int>(kindOfFile(path));
    }
    message.media = m_files.locate(path);
    if (message.media.isEmpty()) {
        message.media = m_files.locate(row.text(WhatsAppText::Thumbnail));
    }
}

void WhatsAppChatBuilder::addReceipts(const WhatsAppRow& row, ChatMessage& message)
{
    const formats::WhatsAppReceipts receipts =
        formats::whatsAppReceipts(row.bytes(WhatsAppText::Receipts));
    message.drawLike = receipts.reactions > 0;
    message.likeType = message.drawLike ? 1 : 0;
    message.likeCount = receipts.reactions;
    if (!receipts.pollQuestion.isEmpty()) {
        message.content = pollLines(receipts.pollQuestion, receipts.pollOptions);
    }
}

// What a message says of others: that it was theirs first, or that it answers one.
void WhatsAppChatBuilder::addRelations(const WhatsAppRow& row)
{
    bool isForwarded = row.numbers.forwarded;
    if (row.has(WhatsAppText::Metadata)) {
        formats::WhatsAppMetadata metadata =
            formats::whatsAppMetadata(row.bytes(WhatsAppText::Metadata));
        isForwarded |= metadata.forwarded;
        if (!metadata.quotedId.empty()) {
            m_quotes.push_back({.message = m_messages.size(),
                .stanza = stanzaHash(metadata.quotedId),
                .sender = std::move(metadata.quotedSender),
                .text = std::move(metadata.quotedText)});
        }
    }
    if (isForwarded) {
        m_forwardedOnes.push_back(m_messages.size());
    }
}

void WhatsAppChatBuilder::addEvent(const WhatsAppRow& row, const char* line, ChatMessage& message)
{
    const QString text = row.text(WhatsAppText::Text);
    const WhatsAppPersons persons = personsOfEvent(text);
    QStringList others;
    for (const QString& other : persons.others) {
        others.append(shownName(other));
    }
    others.removeAll(QString()); // groups
    const bool isOfOthers = row.numbers.type == SystemMessage && isAboutOthers(row.numbers.event);
    const WhatsAppEvent event{
        .number = row.numbers.event,
        .actor = message.fromMe && !isOfOthers ? m_you : actorOf(row, persons.actor),
        .others = others.join(", "_L1),
        .text = text,
    };
    switch (row.numbers.type) {
    case GroupMessage:
        message.content = groupEventSentence(event);
        break;
    case ChannelMessage:
        message.content = channelEventSentence(event);
        break;
    case SystemMessage:
        message.content = systemEventSentence(event);
        break;
    default:
        message.content = actorSentence(line, event.actor);
    }
}

QString WhatsAppChatBuilder::senderAddress(const WhatsAppRow& row) const
{
    const auto member = m_members.constFind(row.numbers.member);
    if (member != m_members.cend() && !member->address.isEmpty()) {
        return member->address;
    }
    QString sender = row.text(WhatsAppText::Sender);
    return isPerson(sender) ? sender : QString();
}

QString WhatsAppChatBuilder::senderOf(const WhatsAppRow& row) const
{
    const QString address = senderAddress(row);
    if (address.isEmpty()) {
        const auto member = m_members.constFind(row.numbers.member);
        return cleanName(member != m_members.cend() && !member->name.isEmpty()
                             ? member->name
                             : row.text(WhatsAppText::ChosenName));
    }
    return m_people.nameOf(address, row.text(WhatsAppText::ChosenName));
}

QString WhatsAppChatBuilder::shownName(const QString& address) const
{
    return isPerson(address) ? m_people.nameOf(address) : QString();
}

// Who did what an event tells; `named` by its text.
QString WhatsAppChatBuilder::actorOf(const WhatsAppRow& row, const QString& named) const
{
    if (senderAddress(row).isEmpty() && !named.isEmpty()) {
        return shownName(named);
    }
    QString sender = senderOf(row);
    return sender.isEmpty() ? m_chat.partner : sender;
}

// The answer may call the sender by another address, of whom less is known.
QString WhatsAppChatBuilder::quotedSender(const Quote& quote, const ChatMessage* quoted) const
{
    if (quoted == nullptr) {
        return shownName(quote.sender);
    }
    if (quoted->fromMe) {
        return m_you;
    }
    return firstFilled({quoted->member, m_chat.partner, shownName(quote.sender)});
}

// "> Ben: See you at eight?"
QString WhatsAppChatBuilder::quoteLine(const Quote& quote, const ChatMessage* quoted) const
{
    const QString content = quoted != nullptr ? quoted->content : QString();
    // Of a message that was deleted since, its answers keep the text.
    const bool isLine = quoted != nullptr && quoted->type == static_cast<int>(MsgType::GroupEvent);
    QString text = isLine ? firstFilled({quote.text, content}) : firstFilled({content, quote.text});
    if (text.isEmpty() && quoted != nullptr) {
        const auto* const name = std::ranges::find_if(kKindNames,
            [&](const KindName& each) { return static_cast<int>(each.kind) == quoted->type; });
        text = name != kKindNames.end() ? tr(name->name) : QString();
    }
    if (text.isEmpty()) {
        return {};
    }
    const QString sender = quotedSender(quote, quoted);
    return (sender.isEmpty() ? QStringLiteral("> ") : "> "_L1 + sender + ": "_L1) + snippetOf(text);
}

void WhatsAppChatBuilder::addMarks()
{
    resolveQuotes();
    const QString mark = tr("Forwarded");
    for (const std::size_t index : m_forwardedOnes) {
        QString& content = m_messages[index].content;
        content = joinedLines({mark, content});
    }
}

void WhatsAppChatBuilder::resolveQuotes()
{
    if (m_quotes.empty()) {
        return;
    }
    std::unordered_map<std::uint64_t, std::size_t> places;
    for (const Quote& quote : m_quotes) {
        places.emplace(quote.stanza, m_messages.size());
    }
    for (std::size_t index = 0; index < m_stanzas.size(); ++index) {
        if (const auto place = places.find(m_stanzas[index]); place != places.end()) {
            place->second = index;
        }
    }
    // All of them before the first is put in: a message that is quoted may quote another one.
    QStringList lines;
    for (const Quote& quote : m_quotes) {
        const std::size_t place = places[quote.stanza];
        lines.append(quoteLine(quote, place < m_messages.size() ? &m_messages[place] : nullptr));
    }
    int line = 0;
    for (const Quote& quote : m_quotes) {
        QString& content = m_messages[quote.message].content;
        content = joinedLines({lines[line++], content});
    }
}

// Rows mostly come in the order of the chat.
void WhatsAppChatBuilder::sort()
{
    if (std::ranges::is_sorted(m_order, {}, &WhatsAppOrder::key)) {
        return;
    }
    std::vector<std::size_t> indexes(m_order.size());
    std::iota(indexes.begin(), indexes.end(), std::size_t{0});
    std::ranges::stable_sort(indexes, {}, [&](std::size_t index) { return m_order[index].key(); });
    std::vector<ChatMessage> sorted;
    sorted.reserve(m_messages.size());
    for (const std::size_t index : indexes) {
        sorted.push_back(std::move(m_messages[index]));
    }
    m_messages = std::move(sorted);
}

std::vector<PRWhatsappMsg> WhatsAppChatBuilder::take()
{
    addMarks();
    sort();
    std::vector<PRWhatsappMsg> messages;
    messages.reserve(m_messages.size());
    for (ChatMessage& message : m_messages) {
        messages.emplace_back(std::move(message));
    }
    clear();
    return messages;
}

} // namespace backup
