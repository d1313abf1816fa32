// SPDX-License-Identifier: MIT
#pragma once

#include "recordset/forms.h"

#include <algorithm>
#include <array>
#include <functional>
#include <string_view>
#include <type_traits>
#include <utility>

// Tables of fields: each row ties a key to a member of a struct and to the form of its value, for
// reading and writing alike. A member's default is the one that the struct gives it.
//
//   constexpr std::array kPieceFields{
//       text<&SmsPiece::type>("type"),
//       flag<&SmsPiece::location>("location"),
//   };
namespace recordset {

template <typename T> struct Field {
    using Owner = T;

    std::string_view key;
    bool (*read)(const Source& value, T& owner);
    bool (*isDefault)(const T& owner);
    void (*write)(const T& owner, JsonText& out);
};

template <const auto& fields>
using OwnerOf = typename std::remove_cvref_t<decltype(fields)>::value_type::Owner;

template <auto member> struct Member;
template <typename T, typename V, V T::*member> struct Member<member> {
    using Owner = T;
};

template <auto member, typename Form> constexpr auto field(std::string_view key)
{
    using Owner = typename Member<member>::Owner;
    return Field<Owner>{
        .key = key,
        .read = [](const Source& value, Owner& owner) { return Form::read(value, owner.*member); },
        .isDefault =
            [](const Owner& owner) {
                static const Owner defaults{};
                return Form::same(owner.*member, defaults.*member);
            },
        .write = [](const Owner& owner, JsonText& out) { Form::write(owner.*member, out); },
    };
}

template <const auto& fields> constexpr auto namesOf()
{
    std::array<std::string_view, fields.size()> names;
    for (std::size_t row = 0; row < names.size(); ++row) {
        names[row] = fields[row].key;
    }
    return names;
}

/// The keys of a table.
template <const auto& fields> inline constexpr auto kKeysOf = namesOf<fields>();

/// Reads what `object` has of these fields, in the order of the table; the rest stays as it is.
template <const auto& fields> bool readMembers(const Source& object, OwnerOf<fields>& owner)
{
    return std::ranges::all_of(fields, [&object, &owner](const auto& field) {
        const Json* value = object.find(field.key);
        return value == nullptr || field.read(object.member(*value, field.key), owner);
    });
}

/// Reads an object that has no other keys than these.
template <const auto& fields> bool readObject(const Source& source, OwnerOf<fields>& owner)
{
    return source.isObject() && source.hasOnly({kKeysOf<fields>})
           && readMembers<fields>(source, owner);
}

/// Writes the members that have not their default, with their keys.
template <const auto& fields> void writeMembers(const OwnerOf<fields>& owner, JsonText& out)
{
    for (const auto& field : fields) {
        if (!field.isDefault(owner)) {
            out.key(field.key);
            field.write(owner, out);
        }
    }
}

namespace forms {

/// An object of its own inside another.
template <const auto& fields> struct Object {
    using Value = OwnerOf<fields>;

    static bool read(const Source& source, Value& value)
    {
        return readObject<fields>(source, value);
    }
    /// The other one is the default.
    static bool same(const Value& value, const Value& /*defaults*/)
    {
        return std::ranges::all_of(
            fields, [&value](const auto& field) { return field.isDefault(value); });
    }
    static void write(const Value& value, JsonText& out)
    {
        out.openObject();
        writeMembers<fields>(value, out);
        out.closeObject();
    }
};

/// A list of objects. An element is made from the struct of `fields` and gives it back by
/// `contents`.
template <const auto& fields, auto contents> struct ListOf {
    template <typename List> static bool read(const Source& source, List& list)
    {
        if (!source.isList()) {
            return false;
        }
        for (std::size_t index = 0; index < source.json().size(); ++index) {
            OwnerOf<fields> element{};
            if (!readObject<fields>(source.at(index), element)) {
                return false;
            }
            list.push_back(typename List::value_type(std::move(element)));
        }
        return true;
    }
    template <typename List> static bool same(const List& one, const List& other)
    {
        return one.empty() && other.empty();
    }
    template <typename List> static void write(const List& list, JsonText& out)
    {
        out.openItems();
        for (const auto& element : list) {
            Object<fields>::write(std::invoke(contents, element), out);
        }
        out.closeList();
    }
};

} // namespace forms

// The rows.

template <auto member> constexpr auto flag(std::string_view key)
{
    return field<member, forms::Flag>(key);
}

template <auto member> constexpr auto integer(std::string_view key)
{
    return field<member, forms::Integer>(key);
}

template <auto member> constexpr auto text(std::string_view key)
{
    return field<member, forms::Text>(key);
}

template <auto member> constexpr auto path(std::string_view key)
{
    return field<member, forms::Path>(key);
}

template <auto member> constexpr auto date(std::string_view key)
{
    return field<member, forms::Date>(key);
}

template <auto member> constexpr auto bytes(std::string_view key)
{
    return field<member, forms::Bytes>(key);
}

template <auto member> constexpr auto textList(std::string_view key)
{
    return field<member, forms::TextList>(key);
}

template <auto member> constexpr auto textMap(std::string_view key)
{
    return field<member, forms::TextMap>(key);
}

template <auto member, const auto& fields> constexpr auto object(std::string_view key)
{
    return field<member, forms::Object<fields>>(key);
}

template <auto member, const auto& fields, auto contents = std::identity{}>
constexpr auto list(std::string_view key)
{
    return field<member, forms::ListOf<fields, contents>>(key);
}

} // namespace recordset
