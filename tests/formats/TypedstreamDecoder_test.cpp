// SPDX-License-Identifier: MIT
#include "formats/TypedstreamDecoder.h"
#include "stream_bytes.h"

#include <gtest/gtest.h>

namespace {

using formats::TypedstreamDecoder;
using formats::TypedstreamObject;
using formats::TypedstreamValue;

// A root of class X, whose groups follow. Then "@" is string 92 and "X" 93; the root is object 92
// and its class 93.
Bytes streamOf(const Bytes& groups)
{
    return streamHeader() + drawn("84 84 84 01 'X' 00 85") + groups + drawn("86");
}

struct Describe {
    std::string operator()(qint64 number) const { return std::to_string(number); }
    std::string operator()(double number) const
    {
        return "real " + QString::number(number).toStdString();
    }
    std::string operator()(std::string_view bytes) const
    {
        return '\'' + std::string(bytes) + '\'';
    }
    std::string operator()(const QVariant& value) const
    {
        return value.isValid() ? "object " + value.toString().toStdString() : "nil";
    }
};

std::string describe(const std::optional<TypedstreamObject>& object)
{
    if (!object) {
        return "damaged";
    }
    std::string all;
    for (const TypedstreamValue& value : object->values) {
        all += (all.empty() ? "" : ", ") + std::visit(Describe(), value);
    }
    return all;
}

std::string valuesOf(const Bytes& groups)
{
    const Bytes stream = streamOf(groups);
    return describe(TypedstreamDecoder(stream).readRoot());
}

struct Row {
    const char* what;
    const char* groups;
    const char* values;
};

template <std::size_t Count> void expectRows(const Row (&rows)[Count])
{
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(valuesOf(drawn(row.groups)), row.values);
    }
}

TEST(TypedstreamDecoder, NamesTheClassAndThoseAboveIt)
{
    const Bytes stream =
        streamHeader() + drawn("84 84 84 01 'X' 00 84 84 01 'Y' 07 84 84 01 'Z' 00 85 86");
    const auto root = TypedstreamDecoder(stream).readRoot();
    ASSERT_TRUE(root);
    EXPECT_EQ(root->classes, (std::vector<std::string_view>{"X", "Y", "Z"}));
    EXPECT_TRUE(root->values.empty());
}

TEST(TypedstreamDecoder, ReadsBytesAsOne)
{
    expectRows({{"c is signed", "84 01 'c' FF", "-1"}, {"c is never long", "84 01 'c' 81", "-127"},
        {"C is not", "84 01 'C' FF", "255"}, {"B", "84 01 'B' 01", "1"}});
}

TEST(TypedstreamDecoder, ReadsSignedIntegersOfAllLengths)
{
    for (const char type : {'s', 'i', 'l', 'q'}) {
        SCOPED_TRACE(type);
        const Bytes values = drawn("7F FE 92 81 80 00 81 FE FF 82 FE FF FF FF");
        EXPECT_EQ(valuesOf(drawn("84 06") + Bytes(6, static_cast<unsigned char>(type)) + values),
            "127, -2, -110, 128, -2, -2");
    }
}

TEST(TypedstreamDecoder, ReadsUnsignedIntegersOfAllLengths)
{
    for (const char type : {'S', 'I', 'L', 'Q'}) {
        SCOPED_TRACE(type);
        const Bytes values = drawn("7F FE 92 81 80 00 81 FE FF 82 FE FF FF FF");
        EXPECT_EQ(valuesOf(drawn("84 06") + Bytes(6, static_cast<unsigned char>(type)) + values),
            "127, 254, 146, 128, 65534, 4294967294");
    }
}

TEST(TypedstreamDecoder, RefusesReservedBytesAsIntegers)
{
    for (const char* value : {"80", "83", "84", "85", "86", "87", "91"}) {
        SCOPED_TRACE(value);
        EXPECT_EQ(valuesOf(drawn("84 01 'i'") + drawn(value)), "damaged");
        EXPECT_EQ(valuesOf(drawn("84 01 'I'") + drawn(value)), "damaged");
    }
}

TEST(TypedstreamDecoder, ReadsFloatingNumbersRawOrAsIntegers)
{
    expectRows({{"float", "84 01 'f' 83 00 00 C0 3F", "real 1.5"},
        {"float as a byte", "84 01 'f' 03", "real 3"},
        {"float as int16", "84 01 'f' 81 00 FF", "real -256"},
        {"double", "84 01 'd' 83 00 00 00 00 00 00 F8 3F", "real 1.5"},
        {"double as a byte", "84 01 'd' FF", "real -1"},
        {"double as int32", "84 01 'd' 82 00 00 01 00", "real 65536"}});
}

TEST(TypedstreamDecoder, ReadsStringsNewKnownAndNil)
{
    expectRows({{"% new", "84 01 '%' 84 02 'ab'", "'ab'"}, {"% known", "84 01 '%' 93", "'X'"},
        {"% nil", "84 01 '%' 85", "''"},
        {": new then known", "84 02 ':%' 84 02 'ab' 95", "'ab', 'ab'"},
        {"beyond the table", "84 01 '%' 95", "damaged"}});
}

TEST(TypedstreamDecoder, NumbersTextsAmongTheObjects)
{
    expectRows({{"new then known", "84 02 '**' 84 84 02 'ab' 94", "'ab', 'ab'"},
        {"of a known string", "84 01 '*' 84 93", "'X'"}, {"nil", "84 01 '*' 85", "''"},
        {"a class is no text", "84 01 '*' 93", "damaged"},
        {"beyond the table", "84 01 '*' 94", "damaged"}});
}

TEST(TypedstreamDecoder, ReadsClassesAsValues)
{
    expectRows({{"new", "84 01 '#' 84 84 01 'Y' 00 93", "'Y'"}, {"known", "84 01 '#' 93", "'X'"},
        {"nil", "84 01 '#' 85", "''"}, {"an object is no class", "84 01 '#' 92", "damaged"},
        {"its own superclass", "84 01 '#' 84 84 01 'Y' 00 94", "'Y'"}});
}

TEST(TypedstreamDecoder, ReadsRawBytesWithTheirLength)
{
    expectRows({{"short", "84 01 '+' 03 'abc'", "'abc'"}, {"empty", "84 01 '+' 00", "''"},
        {"int16", "84 01 '+' 81 03 00 'abc'", "'abc'"},
        {"int32", "84 01 '+' 82 03 00 00 00 'abc'", "'abc'"},
        {"longer than the stream", "84 01 '+' 82 FF FF FF FF 'abc'", "damaged"}});
}

TEST(TypedstreamDecoder, TakesArraysApartSaveThoseOfBytes)
{
    expectRows({{"bytes", "84 04 '[3c]' 'abc'", "'abc'"},
        {"unsigned bytes", "84 04 '[2C]' 81 82", "'\x81\x82'"},
        {"integers", "84 04 '[3i]' 01 02 81 00 01", "1, 2, 256"}, {"none", "84 05 '[0i]i' 07", "7"},
        {"arrays", "84 07 '[2[2i]]' 01 02 03 04", "1, 2, 3, 4"},
        {"structures", "84 09 '[2{p=ic}]' 01 02 03 04", "1, 2, 3, 4"},
        {"no count", "84 03 '[i]' 01", "damaged"}, {"no type", "84 03 '[1]' 01", "damaged"},
        {"two types", "84 05 '[1ii]' 01 02", "damaged"},
        {"not closed", "84 03 '[1i' 01", "damaged"},
        {"bytes longer than the stream", "84 0D '[4294967295c]' 'abc'", "damaged"},
        {"count too large", "84 0D '[4294967296c]'", "damaged"}});
}

TEST(TypedstreamDecoder, TakesStructuresApart)
{
    expectRows({{"members", "84 0D '{_NSRange=QQ}' 01 02", "1, 2"},
        {"not closed", "84 0F '{r={p=ff}{s=ii}' 01 02 03 04", "damaged"},
        {"nested", "84 10 '{r={p=ff}{s=ii}}' 01 02 03 04", "real 1, real 2, 3, 4"},
        {"empty", "84 05 '{e=}i' 05", "5"}, {"no members told", "84 03 '{e}'", "damaged"},
        {"closed twice", "84 03 'i}i' 01 01", "damaged"}});
}

TEST(TypedstreamDecoder, ReadsObjectsOnceAndByReference)
{
    expectRows({{"nil", "84 01 '@' 85", "nil"},
        {"new", "84 01 '@' 84 84 84 08 'NSString' 01 85 84 01 '+' 02 'ab' 86", "object ab"},
        // The object is entry 94, its class 95; the strings are 94 "NSString" and 95 "+".
        {"known", "92 84 84 84 08 'NSString' 01 85 84 01 '+' 02 'ab' 86 92 94",
            "object ab, object ab"},
        {"another of the class",
            "92 84 84 84 08 'NSString' 01 85 84 01 '+' 02 'ab' 86 92 84 95 95 01 'c' 86",
            "object ab, object c"},
        {"itself", "92 92", "nil"}, {"a class", "92 93", "damaged"},
        {"of no class", "92 84 85 86", "damaged"}, {"beyond the table", "92 94", "damaged"},
        {"of an unknown class", "92 84 93 86", "damaged"}});
}

// Entry 110 is the first that byte 00 names; from 238 on two bytes are needed.
TEST(TypedstreamDecoder, CountsReferencesThroughZeroAndBeyondAByte)
{
    constexpr std::size_t kStrings = 300;
    Bytes groups = drawn("84 82 2C 01 00 00") + Bytes(kStrings, '%');
    for (std::size_t i = 0; i < kStrings; ++i) {
        const std::string name = "s" + std::to_string(i + 3); // "@", "X" and the types come first
        groups.push_back(0x84);
        groups.push_back(static_cast<unsigned char>(name.size()));
        groups.insert(groups.end(), name.begin(), name.end());
    }
    groups =
        groups + drawn("84 08 '%%%%%%%%' 95 FF 00 7F 81 80 00 81 90 00 81 92 FF 82 80 00 00 00");
    const std::string values = valuesOf(groups);
    EXPECT_EQ(values.substr(values.find("'s302', ") + 8),
        "'s3', 's109', 's110', 's237', 's238', 's254', '@', 's238'");
}

TEST(TypedstreamDecoder, RefusesAnotherHeader)
{
    struct HeaderRow {
        const char* what;
        const char* bytes;
    };
    const HeaderRow rows[]{{"nothing", ""},
        {"version", "03 0B 'streamtyped' 81 E8 03 84 01 '@' 84"},
        {"big-endian", "04 0B 'typedstream' 81 03 E8 84 01 '@' 84"},
        {"group", "04 0B 'streamtyped' 81 E8 03 84 01 'i' 05"},
        {"nil root", "04 0B 'streamtyped' 81 E8 03 84 01 '@' 85"}};
    for (const HeaderRow& row : rows) {
        SCOPED_TRACE(row.what);
        const Bytes stream = drawn(row.bytes);
        EXPECT_FALSE(TypedstreamDecoder(stream).readRoot());
    }
}

TEST(TypedstreamDecoder, RefusesUnknownTypesAndEmptyGroups)
{
    expectRows({{"unknown", "84 01 'z' 01", "damaged"}, {"empty", "84 00", "damaged"},
        {"nil", "85", "damaged"}});
}

TEST(TypedstreamDecoder, EndsSoonInArraysOfNothing)
{
    expectRows({{"structures", "84 10 '[4294967295{e=}]'", "damaged"},
        {"arrays", "84 10 '[4294967295[0i]]'", "damaged"},
        {"powers", "84 20 '[65535[65535[65535[65535[0c]]]]]'", "damaged"}});
}

TEST(TypedstreamDecoder, RefusesTypesThatNestWithoutEnd)
{
    constexpr std::size_t kDepth = 5000;
    Bytes types;
    for (std::size_t i = 0; i < kDepth; ++i) {
        types = types + drawn("'[1'");
    }
    types = types + drawn("'i'") + Bytes(kDepth, ']');
    const auto size = static_cast<unsigned char>(types.size() >> 8U);
    const Bytes length{0x81, static_cast<unsigned char>(types.size() & 0xFFU), size};
    EXPECT_EQ(valuesOf(drawn("84") + length + types + drawn("01")), "damaged");
}

// Each is an NSArray of one object; the class is entry 95, "NSArray" string 94, "i" string 95.
TEST(TypedstreamDecoder, RefusesObjectsThatNestWithoutEnd)
{
    Bytes groups = drawn("92 84 84 84 07 'NSArray' 00 85 84 01 'i' 01");
    constexpr int kDepth = 5000;
    for (int i = 0; i < kDepth; ++i) {
        groups = groups + drawn("92 84 95 95 01");
    }
    groups = groups + drawn("92 85") + Bytes(kDepth + 1, 0x86);
    EXPECT_EQ(valuesOf(groups), "damaged");
}

TEST(TypedstreamDecoder, RefusesObjectsThatNestByReference)
{
    Bytes groups =
        drawn("92 84 84 84 07 'NSArray' 00 85 84 01 'i' 01 92 85 86 92 84 95 95 01 92 94 86");
    constexpr unsigned kDepth = 5000;
    for (unsigned entry = 4; entry < kDepth; ++entry) {
        const auto reference = static_cast<quint16>(entry - 110);
        const Bytes held{0x81, static_cast<unsigned char>(reference & 0xFFU),
            static_cast<unsigned char>(reference >> 8U)};
        groups = groups + drawn("92 84 95 95 01 92") + held + drawn("86");
    }
    EXPECT_EQ(valuesOf(groups), "damaged");
}

} // namespace
