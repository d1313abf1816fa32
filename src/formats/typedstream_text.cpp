// SPDX-License-Identifier: MIT
#include "formats/TypedstreamCursor.h"
#include "formats/typedstream.h"

#include <algorithm>
#include <array>

// The way to the text of a usual body; all in front of it is classes.
//
//   04 0B streamtyped 81 E8 03 84 01 @ 84      header; group "@"; a new object ...
//   84 84 12 NSAttributedString 00             ... of a new class
//   84 84 08 NSObject 00 85                    its superclass, the last one
//   92 84                                      group "@" again; a new object ...
//   84 84 08 NSString 01 94                    ... of a new class, superclass known
//   84 01 + 0A "Hi ..."                        group "+": length and text
//
// An NSMutableAttributedString of an NSMutableString has longer chains of classes. A stream that
// holds a string alone lacks the second to the fourth line.
namespace formats {

namespace {

constexpr std::string_view kOpening = "\x04\x0Bstreamtyped\x81\xE8\x03\x84\x01@\x84";
constexpr std::string_view kNewClass = "\x84\x84";
constexpr std::string_view kBytesGroup = "\x84\x01+";
// The end of the last, where it must be found by searching.
constexpr std::string_view kBytesMark = "\x01+";

constexpr std::array<std::string_view, 2> kStrings{"NSString", "NSMutableString"};
constexpr std::array<std::string_view, 2> kAttributedStrings{
    "NSAttributedString", "NSMutableAttributedString"};

bool isOneOf(std::string_view name, const std::array<std::string_view, 2>& names)
{
    return std::ranges::find(names, name) != names.end();
}

std::optional<std::string_view> takeCounted(TypedstreamCursor& cursor)
{
    const auto size = cursor.unsignedInteger();
    return size ? cursor.take(*size) : std::nullopt;
}

// Passes a new class with its superclasses; its name.
std::optional<std::string_view> passClass(TypedstreamCursor& cursor)
{
    std::optional<std::string_view> first;
    while (cursor.pass(kNewClass)) {
        const auto name = takeCounted(cursor);
        if (!name || !cursor.signedInteger()) {
            return std::nullopt;
        }
        first = first ? first : name;
    }
    const bool last = cursor.pass(kTypedstreamNil)
                      || (cursor.peek() >= kTypedstreamFirstReference && cursor.signedInteger());
    return last ? first : std::nullopt;
}

// None also where the stream is sound but goes another way.
std::optional<std::string_view> usualText(std::span<const unsigned char> bytes)
{
    TypedstreamCursor cursor(bytes);
    if (!cursor.pass(kOpening)) {
        return std::nullopt;
    }
    auto name = passClass(cursor);
    if (name && isOneOf(*name, kAttributedStrings)) {
        const bool object = cursor.pass(kTypedstreamFirstReference) && cursor.pass(kTypedstreamNew);
        name = object ? passClass(cursor) : std::nullopt;
    }
    if (!name || !isOneOf(*name, kStrings) || !cursor.pass(kBytesGroup)) {
        return std::nullopt;
    }
    return takeCounted(cursor);
}

// The first bytes with a length that fits, behind the name of a class of strings.
std::optional<std::string_view> searchedText(std::span<const unsigned char> bytes)
{
    const std::string_view all(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    std::size_t at = all.size();
    for (const std::string_view name : kStrings) {
        at = std::min(at, all.find(name));
    }
    for (at = all.find(kBytesMark, at); at != std::string_view::npos;
         at = all.find(kBytesMark, at + 1)) {
        TypedstreamCursor cursor(bytes.subspan(at + kBytesMark.size()));
        if (const auto text = takeCounted(cursor)) {
            return text;
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<std::string_view> typedstreamText(std::span<const unsigned char> bytes)
{
    const auto usual = usualText(bytes);
    return usual ? usual : searchedText(bytes);
}

} // namespace formats
