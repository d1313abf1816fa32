// SPDX-License-Identifier: MIT
#pragma once

#include "formats/sqlite.h"

#include <QDateTime>
#include <QString>

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace backup {

/// Texts of a WhatsAppRow, of which most rows have few.
enum class WhatsAppText : std::uint8_t {
    Text,
    Sender, ///< an address; of a group's members none
    ChosenName,
    MediaPath,
    Thumbnail,
    Title,
    CardNames,
    Cards,
    Url,
    Metadata,
    Receipts,
};
inline constexpr std::size_t kWhatsAppTexts = 11;

/// What a chat sorts its messages by. What is NULL comes first.
struct WhatsAppOrder {
    double sort = 0;
    double date = 0; ///< seconds since 2001

    /// To compare by.
    std::pair<double, double> key() const { return {sort, date}; }
};

/// The numbers of a message.
struct WhatsAppNumbers {
    WhatsAppOrder order;
    double latitude = 0;
    double longitude = 0;
    std::int64_t chat = 0;
    std::int64_t member = 0;  ///< ZWAGROUPMEMBER.Z_PK
    std::uint64_t stanza = 0; ///< `stanzaHash` of the message's own identifier
    std::int32_t type = 0;    ///< ZMESSAGETYPE
    std::int32_t event = 0;   ///< ZGROUPEVENTTYPE
    bool fromMe = false;
    bool notSent = false;
    bool forwarded = false;
    bool ofList = false; ///< sent to a list of people
    bool hasMedia = false;
};

/// A message as the store has it, with what other tables hold of it. The texts are views into what
/// it was read from.
struct WhatsAppRow {
    WhatsAppNumbers numbers;
    std::array<std::string_view, kWhatsAppTexts> texts;

    bool has(WhatsAppText which) const { return !view(which).empty(); }
    std::string_view view(WhatsAppText which) const { return texts.at(std::size_t(which)); }
    std::span<const unsigned char> bytes(WhatsAppText which) const;
    QString text(WhatsAppText which) const;
    QDateTime date() const; ///< invalid where it is unknown
};

/// 0 for an empty identifier.
std::uint64_t stanzaHash(std::string_view stanza);

/// Columns of a query whose rows `whatsAppRow` reads, in their order: 'm' for the message, 'i' for
/// its media, 'r' for its receipts.
struct WhatsAppColumn {
    char table = 'm';
    const char* name = nullptr;
};
std::span<const WhatsAppColumn> whatsAppColumns();

WhatsAppRow whatsAppRow(const formats::Statement& query);

/// The row in bytes, for a while: they are read back by the same program on the same machine.
void pack(const WhatsAppRow& row, std::string& bytes);
/// What `pack` made. The row's texts are views into `bytes`.
WhatsAppRow unpacked(std::string_view bytes);

} // namespace backup
