// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <nlohmann/json.hpp>

#include <initializer_list>
#include <limits>
#include <optional>
#include <span>
#include <string_view>

namespace recordset {

using Json = nlohmann::json;
using Keys = std::span<const std::string_view>;

/// The first thing that was wrong, and its place as a JSON pointer.
struct Fault {
    QString pointer;
    QString what;
};

/// The reading of one file: where its relative paths begin, and whether it has gone wrong.
struct Reading {
    QString folder; ///< absolute
    std::optional<Fault> fault;
};

/// `token` as one step of a JSON pointer, with its "/".
QString pointerStep(std::string_view token);

/// One value of the file, and the way to it from the root. It knows its parent by address, so a
/// value is asked for its members only while it stands.
class Source {
public:
    Source(const Json& root, Reading& reading) : m_json(root), m_reading(reading) {}
    Source(const Source&) = delete;
    Source& operator=(const Source&) = delete;
    ~Source() = default;

    const Json& json() const { return m_json; }
    const QString& folder() const { return m_reading.folder; }

    /// Null where the object has no such key.
    const Json* find(std::string_view key) const;
    /// A value below this one; `key` outlives it.
    Source member(const Json& value, std::string_view key) const;
    Source at(std::size_t index) const;

    // Each notes a fault unless one was noted before, and is false, so that it can be returned.
    bool fail(const QString& what) const;
    bool expected(const QString& what) const; ///< and says what was found
    bool lacks(std::string_view key, const QString& expectation) const;

    bool isObject() const; ///< a fault if not
    bool isList() const;   ///< a fault if not
    /// Whether the object has no keys beside these; a fault if it has.
    bool hasOnly(std::initializer_list<Keys> known) const;

    QString pointer() const;

private:
    static constexpr std::size_t kNoIndex = std::numeric_limits<std::size_t>::max();

    Source(const Json& value, const Source& parent, std::string_view key, std::size_t index)
        : m_json(value), m_reading(parent.m_reading), m_parent(&parent), m_key(key), m_index(index)
    {
    }
    bool failAt(const QString& pointer, const QString& what) const;

    const Json& m_json;
    Reading& m_reading;
    const Source* m_parent = nullptr;
    std::string_view m_key;
    std::size_t m_index = kNoIndex;
};

} // namespace recordset
