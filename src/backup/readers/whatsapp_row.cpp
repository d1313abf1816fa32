// SPDX-License-Identifier: MIT
// A packed row:
//   WhatsAppNumbers   as the memory has them
//   uint16_t          a bit for each text that is there
//   uint32_t[]        sizes of these texts
//   char[]            the texts, UTF-8 or bytes
#include "backup/readers/whatsapp_row.h"

#include "formats/cocoa_values.h"

#include <bit>
#include <cstring>
#include <functional>
#include <limits>
#include <type_traits>

namespace backup {

namespace {

constexpr std::int64_t kNotSent = 9; // ZMESSAGESTATUS
constexpr std::int64_t kForwardedBits = 0x180;

enum Column : int {
    ChatColumn,
    FromMe,
    Type,
    Event,
    Date,
    SentDate,
    Sort,
    Flags,
    Status,
    Member,
    Receiver,
    Stanza,
    MediaId,
    Latitude,
    Longitude,
    FirstText,
};

// In the order of Column, then in that of WhatsAppText.
constexpr std::array kColumns{
    WhatsAppColumn{'m', "ZCHATSESSION"},
    WhatsAppColumn{'m', "ZISFROMME"},
    WhatsAppColumn{'m', "ZMESSAGETYPE"},
    WhatsAppColumn{'m', "ZGROUPEVENTTYPE"},
    WhatsAppColumn{'m', "ZMESSAGEDATE"},
    WhatsAppColumn{'m', "ZSENTDATE"},
    WhatsAppColumn{'m', "ZSORT"},
    WhatsAppColumn{'m', "ZFLAGS"},
    WhatsAppColumn{'m', "ZMESSAGESTATUS"},
    WhatsAppColumn{'m', "ZGROUPMEMBER"},
    WhatsAppColumn{'m', "ZTOJID"},
    WhatsAppColumn{'m', "ZSTANZAID"},
    WhatsAppColumn{'i', "Z_PK"},
    WhatsAppColumn{'i', "ZLATITUDE"},
    WhatsAppColumn{'i', "ZLONGITUDE"},
    WhatsAppColumn{'m', "ZTEXT"},
    WhatsAppColumn{'m', "ZFROMJID"},
    WhatsAppColumn{'m', "ZPUSHNAME"},
    WhatsAppColumn{'i', "ZMEDIALOCALPATH"},
    WhatsAppColumn{'i', "ZXMPPTHUMBPATH"},
    WhatsAppColumn{'i', "ZTITLE"},
    WhatsAppColumn{'i', "ZVCARDNAME"},
    WhatsAppColumn{'i', "ZVCARDSTRING"},
    WhatsAppColumn{'i', "ZMEDIAURL"},
    WhatsAppColumn{'i', "ZMETADATA"},
    WhatsAppColumn{'r', "ZRECEIPTINFO"},
};
static_assert(kColumns.size() == FirstText + kWhatsAppTexts);
static_assert(std::is_trivially_copyable_v<WhatsAppNumbers>);

double orderNumber(const formats::Statement& query, int column)
{
    return query.isNull(column) ? std::numeric_limits<double>::lowest() : query.real(column);
}

// The moment of a message; of one that has none, when it was sent.
double momentOf(const formats::Statement& query)
{
    return query.real(Date) == 0 && query.real(SentDate) != 0 ? query.real(SentDate)
                                                              : orderNumber(query, Date);
}

bool isList(std::string_view address)
{
    return address.ends_with("@broadcast") && address != "status@broadcast";
}

// The texts from `begin` on, before `end`.
void readTexts(
    const formats::Statement& query, WhatsAppText begin, WhatsAppText end, WhatsAppRow& row)
{
    for (auto which = std::size_t(begin); which < std::size_t(end); ++which) {
        row.texts.at(which) = query.textView(FirstText + static_cast<int>(which));
    }
}

// What most rows have and nobody asks for: the group as the sender, the owner's own name.
void dropUnused(WhatsAppRow& row)
{
    std::string_view& sender = row.texts.at(std::size_t(WhatsAppText::Sender));
    if (sender.ends_with("@g.us")) {
        sender = {};
    }
    if (row.numbers.fromMe) {
        row.texts.at(std::size_t(WhatsAppText::ChosenName)) = {};
    }
}

template <typename T> void append(std::string& bytes, const T& value)
{
    bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
}

template <typename T> T take(std::string_view& bytes)
{
    T value{};
    std::memcpy(&value, bytes.data(), sizeof value);
    bytes.remove_prefix(sizeof value);
    return value;
}

} // namespace

std::span<const unsigned char> WhatsAppRow::bytes(WhatsAppText which) const
{
    const std::string_view found = view(which);
    return {reinterpret_cast<const unsigned char*>(found.data()), found.size()};
}

QString WhatsAppRow::text(WhatsAppText which) const
{
    const std::string_view found = view(which);
    return QString::fromUtf8(found.data(), static_cast<int>(found.size()));
}

QDateTime WhatsAppRow::date() const
{
    const double seconds = numbers.order.date;
    return seconds == 0 ? QDateTime() : formats::dateFromCocoaSeconds(seconds);
}

std::uint64_t stanzaHash(std::string_view stanza)
{
    return stanza.empty() ? 0 : std::hash<std::string_view>()(stanza);
}

std::span<const WhatsAppColumn> whatsAppColumns()
{
    return kColumns;
}

WhatsAppRow whatsAppRow(const formats::Statement& query)
{
    WhatsAppRow row{
        .numbers = {.order = {.sort = orderNumber(query, Sort), .date = momentOf(query)},
            .chat = query.isNull(ChatColumn) ? -1 : query.integer(ChatColumn),
            .member = query.integer(Member),
            .stanza = stanzaHash(query.textView(Stanza)),
            .type = static_cast<std::int32_t>(query.integer(Type)),
            .event = static_cast<std::int32_t>(query.integer(Event)),
            .fromMe = query.integer(FromMe) != 0,
            .forwarded = (query.integer(Flags) & kForwardedBits) == kForwardedBits,
            .hasMedia = !query.isNull(MediaId)},
        .texts = {},
    };
    WhatsAppNumbers& numbers = row.numbers;
    numbers.notSent = numbers.fromMe && query.integer(Status) == kNotSent;
    readTexts(query, WhatsAppText::Text, WhatsAppText::MediaPath, row);
    if (numbers.hasMedia) {
        numbers.latitude = query.real(Latitude);
        numbers.longitude = query.real(Longitude);
        readTexts(query, WhatsAppText::MediaPath, WhatsAppText::Receipts, row);
    }
    row.texts.back() = query.textView(FirstText + static_cast<int>(WhatsAppText::Receipts));
    numbers.ofList = isList(row.view(WhatsAppText::Sender)) || isList(query.textView(Receiver));
    dropUnused(row);
    return row;
}

void pack(const WhatsAppRow& row, std::string& bytes)
{
    append(bytes, row.numbers);
    std::uint16_t present = 0;
    for (std::size_t which = 0; which < kWhatsAppTexts; ++which) {
        present =
            static_cast<std::uint16_t>(present | (row.texts.at(which).empty() ? 0 : 1) << which);
    }
    append(bytes, present);
    for (const std::string_view text : row.texts) {
        if (!text.empty()) {
            append(bytes, static_cast<std::uint32_t>(text.size()));
        }
    }
    for (const std::string_view text : row.texts) {
        bytes.append(text);
    }
}

WhatsAppRow unpacked(std::string_view bytes)
{
    WhatsAppRow row{.numbers = take<WhatsAppNumbers>(bytes), .texts = {}};
    const auto present = take<std::uint16_t>(bytes);
    std::string_view texts =
        bytes.substr(sizeof(std::uint32_t) * static_cast<std::size_t>(std::popcount(present)));
    for (std::size_t which = 0; which < kWhatsAppTexts; ++which) {
        if ((present >> which & 1) != 0) {
            const auto size = take<std::uint32_t>(bytes);
            row.texts.at(which) = texts.substr(0, size);
            texts.remove_prefix(size);
        }
    }
    return row;
}

} // namespace backup
