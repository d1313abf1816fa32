// SPDX-License-Identifier: MIT
#include "formats/TypedstreamCursor.h"
#include "formats/typedstream.h"

#include <algorithm>
#include <array>

// What stands in front of the text of a usual body is always the same.
//
//   04 0B streamtyped 81 E8 03 84 01 @         header; group "@"
//   84 84 84 12 NSAttributedString 00          a new object of a new class
//   84 84 08 NSObject 00 85                    its superclass, the last one
//   92 84 84 84 08 NSString 01 94              group "@" again; a new object of a new class
//   84 01 + 0A "Hi ..."                        group "+": length and text
namespace formats {

namespace {

using std::literals::operator""sv; // NOLINT(misc-unused-using-decls): it is used below

// clang-format off
constexpr std::array kOpenings{
    "\x04\x0Bstreamtyped\x81\xE8\x03\x84\x01@"
    "\x84\x84\x84\x12NSAttributedString\x00"
    "\x84\x84\x08NSObject\x00\x85"
    "\x92\x84\x84\x84\x08NSString\x01\x94"
    "\x84\x01+"sv,

    "\x04\x0Bstreamtyped\x81\xE8\x03\x84\x01@"
    "\x84\x84\x84\x19NSMutableAttributedString\x00"
    "\x84\x84\x12NSAttributedString\x00"
    "\x84\x84\x08NSObject\x00\x85"
    "\x92\x84\x84\x84\x0FNSMutableString\x01"
    "\x84\x84\x08NSString\x01\x95"
    "\x84\x01+"sv,
};
// clang-format on

// What is searched for otherwise.
constexpr std::array kStrings{"NSString"sv, "NSMutableString"sv};
constexpr std::string_view kBytesMark = "\x01+";

std::optional<std::string_view> takeCounted(TypedstreamCursor& cursor)
{
    const auto size = cursor.unsignedInteger();
    return size ? cursor.take(*size) : std::nullopt;
}

std::optional<std::string_view> usualText(std::span<const unsigned char> bytes)
{
    TypedstreamCursor cursor(bytes);
    for (const std::string_view opening : kOpenings) {
        if (cursor.pass(opening)) {
            return takeCounted(cursor);
        }
    }
    return std::nullopt;
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
