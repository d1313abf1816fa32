// SPDX-License-Identifier: MIT
// {"kind": "sms", "values": ["Ben", "+4912345", ""], "addrIds": {"+4912345": "Ben"}, "chats": [
//   {"fromMe": true, "date": "2024-05-01T12:30:00Z", "content": "Hi"},
//   {"itemType": 1, "event": "Ben left the conversation"}
// ]}
#include "model/PRSMSItem.h"
#include "recordset/Kind.h"

namespace recordset {

namespace {

constexpr std::array kPieceFields{
    text<&SmsPiece::type>("type"),
    flag<&SmsPiece::location>("location"),
    bytes<&SmsPiece::data>("data"),
    path<&SmsPiece::path>("path"),
    path<&SmsPiece::preview>("preview"),
    text<&SmsPiece::info>("info"),
};

constexpr std::array kMessageFields{
    flag<&SmsMessage::checked>("checked"),
    flag<&SmsMessage::fromMe>("fromMe"),
    flag<&SmsMessage::sentDone>("sentDone"),
    flag<&SmsMessage::normalSMS>("normalSMS"),
    date<&SmsMessage::date>("date"),
    integer<&SmsMessage::itemType>("itemType"),
    text<&SmsMessage::event>("event"),
    text<&SmsMessage::subject>("subject"),
    text<&SmsMessage::content>("content"),
    text<&SmsMessage::addr>("addr"),
    list<&SmsMessage::pieces, kPieceFields, &PRSMSPiece::contents>("pieces"),
};

constexpr std::array kFields{
    textMap<&SmsConversation::addrIds>("addrIds"),
    list<&SmsConversation::chats, kMessageFields, &PRSMSChat::contents>("chats"),
};

const SmsConversation& contentsOf(PRSMSItem& item)
{
    return item.detailContent()->contents();
}

} // namespace

constinit const Kind kSmsKind =
    kindOf<kFields, makeItem<PRSMSItem, SmsConversation>, contentsOf>("sms");

} // namespace recordset
