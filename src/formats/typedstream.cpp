// SPDX-License-Identifier: MIT
#include "formats/typedstream.h"

#include "formats/TypedstreamDecoder.h"
#include "formats/cocoa_values.h"
#include "formats/typedstream_values.h"

// "Hi" with one run, whole. Numbers on the right count the entries of the table of strings (s) and
// of the one of objects, classes and C strings (o).
//
//   04 0B streamtyped 81 E8 03              version 4, signature, system 1000
//   84 01 @                            s0   group "@": one object
//   84                                 o0   new object
//   84 84 12 NSAttributedString 00     o1   of a new class, version 0    s1
//   84 84 08 NSObject 00 85            o2   superclass, nothing above    s2
//   92                                      group of s0: "@"
//   84 84 84 08 NSString 01 94         o3   new object of a new class    o4 s3, superclass o2
//   84 01 + 02 H i 86                  s4   group "+": two bytes; end of the object
//   84 02 iI 01 02                     s5   group "iI": run with attributes 1, two units
//   92                                      group "@": the attributes, as 1 was not seen before
//   84 84 84 0C NSDictionary 00 94     o5   new object of a new class    o6 s6, superclass o2
//   84 01 i 01                         s7   group "i": one entry
//   92 84 96 96 04 name 86             o7   key: a new object of class o4, group s4 "+"
//   92 84 96 96 05 value 86            o8   value
//   86 86                                   end of the dictionary, end of the whole
namespace formats {

Result<AttributedText> parseTypedstream(std::span<const unsigned char> bytes)
{
    TypedstreamDecoder decoder(bytes);
    const auto root = decoder.readRoot();
    auto attributed = root ? attributedTextOf(*root) : std::nullopt;
    if (attributed) {
        return *std::move(attributed);
    }
    if (const auto text = typedstreamText(bytes)) {
        return AttributedText{.text = utf8Text(*text), .runs = {}};
    }
    return Error{.where = QStringLiteral("typedstream, byte %1").arg(decoder.position()),
        .what = QStringLiteral("there is no text up to here, and nothing can be read beyond")};
}

} // namespace formats
