// SPDX-License-Identifier: MIT
#include "formats/typedstream_values.h"

#include "formats/cocoa_values.h"

#include <algorithm>
#include <array>

// What the groups of an object hold, one after the other:
//
//   NSString            +   the text in UTF-8
//   NSAttributedString  @   the NSString; then for each run
//                       iI  number of its attributes, length in UTF-16 units
//                       @   their NSDictionary, if the number is new; they count from 1
//   NSDictionary        i   count; then for each entry
//                       @@  key, value
//   NSArray             i   count
//                       @   each
//   NSNumber            *   a type character
//                       .   the value, of this type
//   NSData              i   size
//                       []  the bytes, unless the size is 0
//   NSURL               c   whether a base comes first
//                       @   base, if so; NSString
//   NSDate              d   seconds since 2001
//
// A mutable one holds the same; its class stands below.
namespace formats {

namespace {

using Values = std::span<const TypedstreamValue>;
using Found = std::optional<QVariant>;

template <typename Wanted> const Wanted* at(Values values, std::size_t index)
{
    return index < values.size() ? std::get_if<Wanted>(&values[index]) : nullptr;
}

std::optional<QString> textAt(Values values, std::size_t index)
{
    const auto* value = at<QVariant>(values, index);
    const bool text = value != nullptr && value->type() == QVariant::String;
    return text ? std::optional(value->toString()) : std::nullopt;
}

// Whether a count and `each` objects for each follow.
bool holdsCounted(Values values, quint64 each)
{
    const auto* count = at<qint64>(values, 0);
    const quint64 rest = values.size() - 1;
    return count != nullptr && *count >= 0 && rest % each == 0
           && static_cast<quint64>(*count) == rest / each
           && std::ranges::all_of(values.subspan(1), [](const TypedstreamValue& value) {
                  return std::holds_alternative<QVariant>(value);
              });
}

Found stringOf(Values values)
{
    const auto* bytes = at<std::string_view>(values, 0);
    return bytes != nullptr ? Found(utf8Text(*bytes)) : std::nullopt;
}

Found attributedStringOf(Values values)
{
    const auto text = textAt(values, 0);
    return text ? Found(*text) : std::nullopt;
}

// A key that is no text cannot be asked for and is left out.
Found dictionaryOf(Values values)
{
    if (!holdsCounted(values, 2)) {
        return std::nullopt;
    }
    QVariantMap dictionary;
    for (std::size_t i = 1; i < values.size(); i += 2) {
        if (const auto key = textAt(values, i)) {
            dictionary.insert(*key, std::get<QVariant>(values[i + 1]));
        }
    }
    return dictionary;
}

Found arrayOf(Values values)
{
    if (!holdsCounted(values, 1)) {
        return std::nullopt;
    }
    QVariantList array;
    for (const TypedstreamValue& value : values.subspan(1)) {
        array.append(std::get<QVariant>(value));
    }
    return array;
}

Found numberOf(Values values)
{
    if (const auto* integer = at<qint64>(values, 1)) {
        return QVariant(static_cast<qlonglong>(*integer));
    }
    const auto* real = at<double>(values, 1);
    return real != nullptr ? Found(*real) : std::nullopt;
}

Found dataOf(Values values)
{
    const auto* size = at<qint64>(values, 0);
    const auto* bytes = at<std::string_view>(values, 1);
    const std::string_view held = bytes != nullptr ? *bytes : std::string_view();
    if (size == nullptr || *size < 0 || static_cast<quint64>(*size) != held.size()) {
        return std::nullopt;
    }
    return QByteArray(held.data(), static_cast<int>(held.size()));
}

Found urlOf(Values values)
{
    const auto* hasBase = at<qint64>(values, 0);
    const bool based = hasBase != nullptr && *hasBase != 0;
    const auto base = based ? textAt(values, 1) : QString();
    const auto relative = textAt(values, based ? 2 : 1);
    return hasBase != nullptr && base && relative ? Found(urlText(*base, *relative)) : std::nullopt;
}

Found dateOf(Values values)
{
    const auto* seconds = at<double>(values, 0);
    return seconds != nullptr ? Found(dateFromCocoaSeconds(*seconds)) : std::nullopt;
}

Found nothing(Values /*values*/)
{
    return QVariant();
}

struct KnownClass {
    std::string_view name;
    Found (*value)(Values values);
};

// clang-format off
constexpr std::array kKnownClasses{
    KnownClass{"NSString",           stringOf},
    KnownClass{"NSAttributedString", attributedStringOf},
    KnownClass{"NSDictionary",       dictionaryOf},
    KnownClass{"NSArray",            arrayOf},
    KnownClass{"NSNumber",           numberOf},
    KnownClass{"NSData",             dataOf},
    KnownClass{"NSURL",              urlOf},
    KnownClass{"NSDate",             dateOf},
    KnownClass{"NSNull",             nothing},
};
// clang-format on

const KnownClass* knownClass(const TypedstreamObject& object)
{
    for (const std::string_view name : object.classes) {
        const auto* const found = std::ranges::find(kKnownClasses, name, &KnownClass::name);
        if (found != kKnownClasses.end()) {
            return found;
        }
    }
    return nullptr;
}

// The runs, which begin behind the string. None where they make no sense.
std::optional<std::vector<TextRun>> runsOf(Values values, int textLength)
{
    std::vector<TextRun> runs;
    std::vector<QVariantMap> attributes;
    int start = 0;
    for (std::size_t i = 1; i < values.size();) {
        const auto* number = at<qint64>(values, i);
        const auto* length = at<qint64>(values, i + 1);
        i += 2;
        if (number == nullptr || length == nullptr || *number < 1 || *length < 0) {
            return std::nullopt;
        }
        const auto wanted = static_cast<std::size_t>(*number);
        const auto* dictionary = at<QVariant>(values, i);
        if (dictionary != nullptr) {
            attributes.push_back(dictionary->toMap());
            ++i;
        }
        const bool known = wanted <= attributes.size();
        if (!known || (dictionary != nullptr && wanted != attributes.size())) {
            return std::nullopt;
        }
        const int fits = static_cast<int>(std::min<qint64>(*length, textLength - start));
        if (fits > 0) {
            runs.push_back({.start = start, .length = fits, .attributes = attributes[wanted - 1]});
        }
        start += fits;
    }
    return runs;
}

} // namespace

std::optional<QVariant> valueOfObject(const TypedstreamObject& object)
{
    if (const KnownClass* known = knownClass(object)) {
        return known->value(object.values);
    }
    // Every class ends in NSObject; only one that is nothing more is known.
    return object.classes.front() == "NSObject" ? Found(QVariant()) : std::nullopt;
}

std::optional<AttributedText> attributedTextOf(const TypedstreamObject& object)
{
    const KnownClass* known = knownClass(object);
    if (known == nullptr || (known->value != stringOf && known->value != attributedStringOf)) {
        return std::nullopt;
    }
    const auto text = known->value(object.values);
    if (!text) {
        return std::nullopt;
    }
    AttributedText attributed{.text = text->toString(), .runs = {}};
    if (known->value == attributedStringOf) {
        const auto runs = runsOf(object.values, attributed.text.size());
        attributed.runs = runs ? *runs : std::vector<TextRun>();
    }
    return attributed;
}

} // namespace formats
