// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

using Bytes = std::vector<unsigned char>;

/// Bytes as they are drawn: pairs of hexadecimal digits, and texts in single quotes.
inline Bytes drawn(std::string_view picture)
{
    Bytes bytes;
    for (std::size_t at = 0; at < picture.size(); ++at) {
        if (picture[at] == '\'') {
            const auto text = picture.substr(at + 1, picture.find('\'', at + 1) - at - 1);
            bytes.insert(bytes.end(), text.begin(), text.end());
            at += text.size() + 1;
        } else if (picture[at] != ' ' && picture[at] != '\n') {
            const std::string pair(picture.substr(at, 2));
            bytes.push_back(static_cast<unsigned char>(std::stoi(pair, nullptr, 16)));
            ++at;
        }
    }
    return bytes;
}

inline Bytes operator+(Bytes first, const Bytes& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

/// Up to the group "@" of the root, which follows.
inline Bytes streamHeader()
{
    return drawn("04 0B 'streamtyped' 81 E8 03 84 01 '@'");
}

/// "Hi", an emoji of two units and one attachment, in two runs.
inline Bytes sampleStream()
{
    return streamHeader() + drawn(R"(
        84 84 84 12 'NSAttributedString' 00 84 84 08 'NSObject' 00 85
        92 84 84 84 08 'NSString' 01 94 84 01 '+' 0A 48 69 20 F0 9F 98 80 EF BF BC 86
        84 02 'iI' 01 05
        92 84 84 84 0C 'NSDictionary' 00 94 84 01 'i' 01
            92 84 96 96 1D '__kIMMessagePartAttributeName' 86
            92 84 84 84 08 'NSNumber' 00 84 84 07 'NSValue' 00 94 84 01 '*' 84 99 99 00 86
        86
        97 02 01
        92 84 98 99 02
            92 84 96 96 22 '__kIMFileTransferGUIDAttributeName' 86
            92 84 96 96 07 'at_1_A1' 86
            92 99
            92 84 9B 9C 9D 99 01 86
        86
        86)");
}

/// "x" with one run of the attribute "k", whose value is drawn. Names for `value`: strings 92 "@",
/// 96 "+", 97 "iI", 99 "i", new ones from 9A; objects 94 NSObject, 96 NSString, 98 NSDictionary,
/// 99 the key, new ones from 9A (the value).
inline Bytes attributeStream(std::string_view value)
{
    return streamHeader() + drawn(R"(
        84 84 84 12 'NSAttributedString' 00 84 84 08 'NSObject' 00 85
        92 84 84 84 08 'NSString' 01 94 84 01 '+' 01 'x' 86
        84 02 'iI' 01 01
        92 84 84 84 0C 'NSDictionary' 00 94 84 01 'i' 01
            92 84 96 96 01 'k' 86
            92)")
           + drawn(value) + drawn("86 86");
}
