// SPDX-License-Identifier: MIT
// A message is a row of fields, each a key and a value. The key is a varint: number << 3 | type.
//   type 0  varint: 7 bits a byte, the lowest first, the high bit says that more follow
//   type 1  8 bytes, little-endian
//   type 2  varint n, then n bytes: text, bytes or a message
//   type 5  4 bytes, little-endian
// Types 3 and 4 (groups) are of old and end the walk, as 6 and 7 do, which never were.
#include "formats/wire_fields.h"

namespace formats {

namespace {

enum WireType : unsigned { Varint = 0, Eight = 1, Sized = 2, Four = 5 };

constexpr int kLongestVarint = 10; // bytes of 7 bits that hold 64

} // namespace

std::optional<std::uint64_t> WireFields::varint()
{
    std::uint64_t value = 0;
    for (int index = 0; index < kLongestVarint && !m_rest.empty(); ++index) {
        const unsigned char byte = m_rest.front();
        m_rest = m_rest.subspan(1);
        value |= static_cast<std::uint64_t>(byte & 0x7FU) << (7 * index);
        if ((byte & 0x80U) == 0) {
            return value;
        }
    }
    return std::nullopt;
}

std::optional<std::uint64_t> WireFields::fixed(std::size_t size)
{
    if (m_rest.size() < size) {
        return std::nullopt;
    }
    std::uint64_t value = 0;
    for (std::size_t index = 0; index < size; ++index) {
        value |= static_cast<std::uint64_t>(m_rest[index]) << (8 * index);
    }
    m_rest = m_rest.subspan(size);
    return value;
}

std::optional<std::span<const unsigned char>> WireFields::sized()
{
    const auto size = varint();
    if (!size || m_rest.size() < *size) {
        return std::nullopt;
    }
    const auto bytes = m_rest.first(static_cast<std::size_t>(*size));
    m_rest = m_rest.subspan(bytes.size());
    return bytes;
}

// The value behind a key, put into `field`.
bool WireFields::readValue(unsigned type, WireField& field)
{
    if (type == Sized) {
        const auto bytes = sized();
        field.isBytes = bytes.has_value();
        field.bytes = bytes.value_or(std::span<const unsigned char>());
        return field.isBytes;
    }
    if (type != Varint && type != Eight && type != Four) {
        return false;
    }
    const auto value = type == Varint ? varint() : fixed(type == Eight ? 8 : 4);
    field.value = value.value_or(0);
    return value.has_value();
}

std::optional<WireField> WireFields::next()
{
    const auto start = m_rest;
    const auto key = varint();
    const std::uint64_t number = key.value_or(0) >> 3U;
    WireField field{.number = static_cast<std::uint32_t>(number)};
    if (number != 0 && number <= UINT32_MAX && readValue(static_cast<unsigned>(*key & 7U), field)) {
        return field;
    }
    m_rest = start; // what is no field stays, so that the end is known from it
    return std::nullopt;
}

std::span<const unsigned char> wireBytes(
    std::span<const unsigned char> message, std::uint32_t number)
{
    WireFields fields(message);
    while (const auto field = fields.next()) {
        if (field->number == number && field->isBytes) {
            return field->bytes;
        }
    }
    return {};
}

QString wireText(std::span<const unsigned char> message, std::uint32_t number)
{
    return textOf(wireBytes(message, number));
}

QString textOf(std::span<const unsigned char> bytes)
{
    return QString::fromUtf8(
        reinterpret_cast<const char*>(bytes.data()), static_cast<int>(bytes.size()));
}

} // namespace formats
