// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <span>

namespace formats {

/// One field of a message of protocol buffers.
struct WireField {
    std::uint32_t number = 0;
    bool isBytes = false;    ///< a text, bytes or a message: in `bytes`; else a number: in `value`
    std::uint64_t value = 0; ///< as it is stored: no zigzag, no floating point
    std::span<const unsigned char> bytes;
};

/// Walks over the fields of a message of which no definition is known. Damaged bytes read as far as
/// they go. The bytes outlive the walk and what it gives.
class WireFields {
public:
    explicit WireFields(std::span<const unsigned char> message) : m_rest(message) {}

    /// The next field, in the order of the bytes; none at the end and at what is no field.
    std::optional<WireField> next();
    /// Whether the walk has come to the very end.
    bool isAtEnd() const { return m_rest.empty(); }

private:
    bool readValue(unsigned type, WireField& field);
    std::optional<std::uint64_t> varint();
    std::optional<std::uint64_t> fixed(std::size_t size);
    std::optional<std::span<const unsigned char>> sized();

    std::span<const unsigned char> m_rest;
};

/// The first field of this number that holds bytes; empty where there is none.
std::span<const unsigned char> wireBytes(
    std::span<const unsigned char> message, std::uint32_t number);

/// The same as text; a byte that is no UTF-8 becomes U+FFFD.
QString wireText(std::span<const unsigned char> message, std::uint32_t number);

/// Bytes of a field as text.
QString textOf(std::span<const unsigned char> bytes);

} // namespace formats
