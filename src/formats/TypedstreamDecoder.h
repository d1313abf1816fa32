// SPDX-License-Identifier: MIT
#pragma once

#include "formats/TypedstreamCursor.h"

#include <QVariant>

#include <variant>
#include <vector>

namespace formats {

/// A number, raw bytes or a text of the stream (as a view), or what an object became. Nil is an
/// invalid QVariant.
using TypedstreamValue = std::variant<qint64, double, std::string_view, QVariant>;

/// An object before it becomes a value: the names of its class and of the superclasses, and what
/// stands in its groups, one after the other, arrays and structures taken apart.
struct TypedstreamObject {
    std::vector<std::string_view> classes;
    std::vector<TypedstreamValue> values;
};

/// Reads one stream, once; the views in the result hold as long as its bytes.
class TypedstreamDecoder {
public:
    explicit TypedstreamDecoder(std::span<const unsigned char> bytes);

    /// The object at the root. None where the stream is damaged, or nests deeper than any text
    /// does, or holds an object of an unknown class in another one.
    std::optional<TypedstreamObject> readRoot();

    /// Where reading has come to, in bytes from the start.
    std::size_t position() const { return m_size - m_cursor.left(); }

private:
    // One entry of the common table of objects, classes and C strings.
    struct Entry {
        enum Kind { Object, Class, Text } kind = Object;
        std::string_view text;         // of a class: its name
        std::optional<std::size_t> up; // of a class: its superclass
        QVariant value;                // of an object, once it is complete
        int height = 0;                // of an object: how deep others nest in it
    };
    using Values = std::vector<TypedstreamValue>;

    std::optional<std::size_t> readReference(std::size_t tableSize);
    std::optional<std::string_view> readString();
    std::optional<std::string_view> readText();
    bool readClass(std::optional<std::size_t>& found);
    std::optional<QVariant> readObject();
    std::optional<TypedstreamObject> readNewObject();
    std::vector<std::string_view> classNames(std::size_t entry) const;

    bool readGroup(Values& values);
    bool readType(std::string_view& types, Values& values);
    bool readSimple(char type, Values& values);
    bool readNamed(char type, Values& values);
    bool readArray(std::string_view array, Values& values);
    bool readStructure(std::string_view structure, Values& values);
    std::optional<std::string_view> takeType(std::string_view& types);
    bool spend(std::size_t steps);

    std::size_t m_size;
    TypedstreamCursor m_cursor;
    std::vector<std::string_view> m_strings;
    std::vector<Entry> m_entries;
    int m_depth = 0;
    int m_height = 0;        // of the object that is being read
    std::size_t m_steps = 0; // that are left
};

} // namespace formats
