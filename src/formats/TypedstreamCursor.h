// SPDX-License-Identifier: MIT
#pragma once

#include <QtEndian>

#include <cstddef>
#include <cstring>
#include <optional>
#include <span>
#include <string_view>

namespace formats {

// Bytes with a meaning of their own wherever an object, a class or a string may stand. No integer
// and no reference begins with one of 80..91, except by 81 and 82.
constexpr unsigned char kTypedstreamInt16 = 0x81;
constexpr unsigned char kTypedstreamInt32 = 0x82;
constexpr unsigned char kTypedstreamFloating = 0x83;
constexpr unsigned char kTypedstreamNew = 0x84;
constexpr unsigned char kTypedstreamNil = 0x85;
constexpr unsigned char kTypedstreamEnd = 0x86;
constexpr unsigned char kTypedstreamFirstReference = 0x92;

/// The bytes of a typedstream that are not read yet. An operation that answers none, or false, has
/// found too few bytes or others than it wants.
class TypedstreamCursor {
public:
    explicit TypedstreamCursor(std::span<const unsigned char> bytes)
        : m_at(bytes.data()), m_end(bytes.data() + bytes.size())
    {
    }

    const unsigned char* at() const { return m_at; }
    std::size_t left() const { return static_cast<std::size_t>(m_end - m_at); }
    /// The next byte, which stays; the end reads as that of an object.
    unsigned char peek() const { return m_at == m_end ? kTypedstreamEnd : *m_at; }

    /// Passes `byte` if it is the next one.
    bool pass(unsigned char byte)
    {
        const bool found = m_at != m_end && *m_at == byte;
        m_at += found ? 1 : 0;
        return found;
    }
    /// The same for several bytes.
    bool pass(std::string_view expected)
    {
        if (left() < expected.size() || std::memcmp(m_at, expected.data(), expected.size()) != 0) {
            return false;
        }
        m_at += expected.size();
        return true;
    }

    std::optional<std::string_view> take(quint64 size)
    {
        if (left() < size) {
            return std::nullopt;
        }
        const std::string_view taken(reinterpret_cast<const char*>(m_at), size);
        m_at += size;
        return taken;
    }

    std::optional<qint64> signedInteger() { return integer<qint8, qint16, qint32, qint64>(); }
    std::optional<quint64> unsignedInteger()
    {
        return integer<quint8, quint16, quint32, quint64>();
    }

    /// A number as it lies in memory, little-endian.
    template <typename Number> std::optional<Number> raw()
    {
        const auto bytes = take(sizeof(Number));
        if (!bytes) {
            return std::nullopt;
        }
        return qFromLittleEndian<Number>(bytes->data());
    }

private:
    // The first byte is the value, unless it tells that 2 or 4 bytes follow.
    template <typename One, typename Two, typename Four, typename Widest>
    std::optional<Widest> integer()
    {
        const auto widened = [](auto number) -> std::optional<Widest> {
            return number ? std::optional<Widest>(*number) : std::nullopt;
        };
        if (pass(kTypedstreamInt16)) {
            return widened(raw<Two>());
        }
        if (pass(kTypedstreamInt32)) {
            return widened(raw<Four>());
        }
        if (peek() >= 0x80 && peek() < kTypedstreamFirstReference) {
            return std::nullopt;
        }
        return widened(raw<One>());
    }

    const unsigned char* m_at;
    const unsigned char* m_end;
};

} // namespace formats
