// SPDX-License-Identifier: MIT
// {"kind": "chat", "values": ["Hikers", "hikers", ""], "messages": [
//   {"date": "2024-05-01T12:30:00Z", "content": "Sunday?", "member": "Ben"},
//   {"type": 1, "fromMe": true, "date": "2024-05-01T12:31:00Z", "media": "summit.jpg"}
// ]}
#include "model/PRWhatsappItem.h"
#include "recordset/Kind.h"

namespace recordset {

namespace {

struct Chat {
    std::vector<PRWhatsappMsg> messages;
};

constexpr std::array kMessageFields{
    flag<&ChatMessage::checked>("checked"),
    integer<&ChatMessage::type>("type"),
    flag<&ChatMessage::fromMe>("fromMe"),
    flag<&ChatMessage::sentDone>("sentDone"),
    date<&ChatMessage::date>("date"),
    text<&ChatMessage::content>("content"),
    text<&ChatMessage::member>("member"),
    path<&ChatMessage::media>("media"),
    flag<&ChatMessage::thumbData>("thumbData"),
    flag<&ChatMessage::broadcast>("broadcast"),
    flag<&ChatMessage::drawLike>("drawLike"),
    integer<&ChatMessage::likeType>("likeType"),
    integer<&ChatMessage::likeCount>("likeCount"),
};

constexpr std::array kFields{
    list<&Chat::messages, kMessageFields, &PRWhatsappMsg::contents>("messages"),
};

std::unique_ptr<PRAbstractItem> make(Record record, Chat chat)
{
    return std::make_unique<PRWhatsappItem>(std::move(record), std::move(chat.messages));
}

Chat contentsOf(PRWhatsappItem& item)
{
    return {.messages = item.detailContent()->contents()};
}

} // namespace

constinit const Kind kChatKind = kindOf<kFields, make, contentsOf>("chat");

} // namespace recordset
