// SPDX-License-Identifier: MIT
//   ZMESSAGETYPE  0 text  1 picture  2 film  3 sound  4 cards  5 place  6 event  8 document  ...
//   ZISFROMME 1, ZMESSAGESTATUS 9                    own, not sent
//   ZFLAGS & 0x180 = 0x180                           forwarded
//   ZMEDIALOCALPATH NULL, ZXMPPTHUMBPATH "...thumb"  never downloaded
//   ZTITLE                                           caption; name of a document; title of a link
#include "backup/readers/WhatsAppChatBuilder.h"

#include "backup/readers/event_text.h"
#include "backup/readers/media_kind.h"
#include "backup/readers/table_reader.h"
#include "backup/readers/whatsapp_events.h"
#include "backup/readers/whatsapp_rows.h"
#include "backup/readers/whatsapp_text.h"
#include "platform/literals.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <functional>
#include <limits>
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
    DocumentMessage = 8,
    SystemMessage = 10,
    ChannelMessage = 55,
};

constexpr qint64 kNotSent = 9; // ZMESSAGESTATUS
constexpr qint64 kForwardedBits = 0x180;

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
    TypeRow{GroupMessage,     MsgType::GroupEvent},
    TypeRow{LinkMessage,     MsgType::Text,    kUnknown},
    TypeRow{DocumentMessage, MsgType::Document},
    TypeRow{SystemMessage,    MsgType::GroupEvent},
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
    TypeRow{ChannelMessage,   MsgType::GroupEvent},
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

std::size_t hashOf(std::string_view id)
{
    return id.empty() ? 0 : std::hash<std::string_view>()(id);
}

bool endsWith(std::string_view text, std::string_view end)
{
    return text.ends_with(end);
}

// Through a list, whose copies lie in the chats of those on it.
bool isOfList(const formats::Statement& row)
{
    return endsWith(row.textView(MessageReceiver), "@broadcast")
           || endsWith(row.textView(MessageSender), "@broadcast");
}

} // namespace

WhatsAppOrder orderOf(const formats::Statement& row)
{
    const auto number = [&](int column) {
        return row.isNull(column) ? std::numeric_limits<double>::lowest() : row.real(column);
    };
    return {.sort = number(MessageSort), .date = number(MessageDate)};
}

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

void WhatsAppChatBuilder::add(const formats::Statement& row)
{
    m_messages.push_back(messageOf(row));
    m_order.push_back(orderOf(row));
    m_stanzas.push_back(hashOf(row.textView(MessageStanza)));
}

ChatMessage WhatsAppChatBuilder::messageOf(const formats::Statement& row)
{
    const TypeRow type = rowOf(row.integer(MessageType));
    const bool fromMe = row.integer(MessageFromMe) != 0;
    ChatMessage message{
        .type = static_cast<int>(type.kind),
        .fromMe = fromMe,
        .sentDone = !fromMe || row.integer(MessageStatus) != kNotSent,
        .date = cocoaDate(row, MessageDate),
    };
    if (type.kind == MsgType::GroupEvent) {
        addEvent(row, type.line, message);
        return message;
    }
    if (!fromMe && !m_chat.isPrivate) {
        message.member = senderOf(row);
    }
    message.broadcast = m_chat.isBroadcast || isOfList(row);
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

void WhatsAppChatBuilder::addContent(const formats::Statement& row, ChatMessage& message)
{
    const auto type = static_cast<int>(row.integer(MessageType));
    if (!row.isNull(MessageReceipts)) {
        addReceipts(row, message);
    }
    if (message.content.isEmpty()) {
        message.content = textOf(row, type);
    }
    if (!row.isNull(MediaPath) || !row.isNull(MediaThumbnail)) {
        addMedia(row, message);
    }
}

QString WhatsAppChatBuilder::textOf(const formats::Statement& row, int type) const
{
    QString text = row.text(MessageText);
    if (row.isNull(MediaId)) {
        return text;
    }
    switch (type) {
    case Contacts:
        return joinedLines({text, cardLines(row.text(MediaCardNames), row.text(MediaCards))});
    case Place:
        return joinedLines({text, placeLines(row.text(MediaCardNames), row.text(MediaTitle),
                                      row.real(MediaLatitude), row.real(MediaLongitude))});
    case DocumentMessage:
        return joinedLines({row.text(MediaTitle), text});
    case LinkMessage:
        return text.isEmpty() ? joinedLines({row.text(MediaTitle), row.text(MediaUrl)}) : text;
    default:
        return text.isEmpty() ? row.text(MediaTitle) : text;
    }
}

void WhatsAppChatBuilder::addMedia(const formats::Statement& row, ChatMessage& message) const
{
    const QString path = row.text(MediaPath);
    if (message.type == static_cast<int>(MsgType::Text) && !path.isEmpty()) {
        message.type = static_cast<int>(kindOfFile(path));
    }
    message.media = m_files.locate(path);
    if (message.media.isEmpty()) {
        message.media = m_files.locate(row.text(MediaThumbnail));
    }
}

void WhatsAppChatBuilder::addReceipts(const formats::Statement& row, ChatMessage& message)
{
    const formats::WhatsAppReceipts receipts =
        formats::whatsAppReceipts(row.blobView(MessageReceipts));
    message.drawLike = receipts.reactions > 0;
    message.likeType = message.drawLike ? 1 : 0;
    message.likeCount = receipts.reactions;
    if (!receipts.pollQuestion.isEmpty()) {
        message.content = pollLines(receipts.pollQuestion, receipts.pollOptions);
    }
}

// What a message says of others: that it was theirs first, or that it answers one.
void WhatsAppChatBuilder::addRelations(const formats::Statement& row)
{
    bool isForwarded = (row.integer(MessageFlags) & kForwardedBits) == kForwardedBits;
    if (!row.isNull(MediaMetadata)) {
        formats::WhatsAppMetadata metadata = formats::whatsAppMetadata(row.blobView(MediaMetadata));
        isForwarded |= metadata.forwarded;
        if (!metadata.quotedId.empty()) {
            m_quotes.push_back({.message = m_messages.size(),
                .stanza = hashOf(metadata.quotedId),
                .sender = std::move(metadata.quotedSender),
                .text = std::move(metadata.quotedText)});
        }
    }
    if (isForwarded) {
        m_forwardedOnes.push_back(m_messages.size());
    }
}

void WhatsAppChatBuilder::addEvent(
    const formats::Statement& row, const char* line, ChatMessage& message)
{
    const QString text = row.text(MessageText);
    const WhatsAppPersons persons = personsOfEvent(text);
    QStringList others;
    for (const QString& other : persons.others) {
        others.append(shownName(other));
    }
    const WhatsAppEvent event{
        .number = static_cast<int>(row.integer(MessageEvent)),
        .actor = message.fromMe ? m_you : actorOf(row, persons.actor),
        .others = others.join(", "_L1),
        .text = text,
    };
    switch (row.integer(MessageType)) {
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

QString WhatsAppChatBuilder::senderAddress(const formats::Statement& row) const
{
    const auto member = m_members.constFind(row.integer(MessageMember));
    if (member != m_members.cend() && !member->address.isEmpty()) {
        return member->address;
    }
    QString sender = row.text(MessageSender);
    return isPerson(sender) ? sender : QString();
}

QString WhatsAppChatBuilder::senderOf(const formats::Statement& row) const
{
    const QString address = senderAddress(row);
    if (address.isEmpty()) {
        const auto member = m_members.constFind(row.integer(MessageMember));
        return cleanName(member != m_members.cend() && !member->name.isEmpty()
                             ? member->name
                             : row.text(MessageChosenName));
    }
    return m_people.nameOf(address, row.text(MessageChosenName));
}

QString WhatsAppChatBuilder::shownName(const QString& address) const
{
    return isPerson(address) ? m_people.nameOf(address) : QString();
}

// Who did what an event tells; `named` by its text.
QString WhatsAppChatBuilder::actorOf(const formats::Statement& row, const QString& named) const
{
    if (senderAddress(row).isEmpty() && !named.isEmpty()) {
        return shownName(named);
    }
    QString sender = senderOf(row);
    return sender.isEmpty() ? m_chat.partner : sender;
}

// "> Ben: See you at eight?"
QString WhatsAppChatBuilder::quoteLine(const Quote& quote, const ChatMessage* quoted) const
{
    QString text = quoted != nullptr ? quoted->content : QString();
    if (text.isEmpty()) {
        text = quote.text;
    }
    if (text.isEmpty() && quoted != nullptr) {
        const auto* const name = std::ranges::find_if(kKindNames,
            [&](const KindName& each) { return static_cast<int>(each.kind) == quoted->type; });
        text = name != kKindNames.end() ? tr(name->name) : QString();
    }
    if (text.isEmpty()) {
        return {};
    }
    const QString sender = quoted != nullptr && quoted->fromMe ? m_you : shownName(quote.sender);
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
    std::unordered_map<std::size_t, std::size_t> places;
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
    if (std::ranges::is_sorted(m_order)) {
        return;
    }
    std::vector<std::size_t> indexes(m_order.size());
    std::iota(indexes.begin(), indexes.end(), std::size_t{0});
    std::ranges::stable_sort(indexes, {}, [&](std::size_t index) { return m_order[index]; });
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
