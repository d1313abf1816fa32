// SPDX-License-Identifier: MIT
#include "formats/typedstream.h"
#include "stream_bytes.h"

#include <gtest/gtest.h>

namespace {

using formats::typedstreamText;

std::string textOf(const Bytes& stream)
{
    const auto text = typedstreamText(stream);
    return text ? std::string(*text) : "none";
}

TEST(TypedstreamText, GivesTheBytesOfTheSample)
{
    EXPECT_EQ(textOf(sampleStream()), "Hi \xF0\x9F\x98\x80\xEF\xBF\xBC");
}

TEST(TypedstreamText, IsAViewIntoTheStream)
{
    const Bytes sample = sampleStream();
    const auto text = typedstreamText(sample);
    ASSERT_TRUE(text);
    const auto* const begin = reinterpret_cast<const char*>(sample.data());
    EXPECT_GE(text->data(), begin);
    EXPECT_LE(text->data() + text->size(), begin + sample.size());
}

TEST(TypedstreamText, PassesTheUsualClasses)
{
    struct Row {
        const char* what;
        const char* root;
    };
    const Row rows[]{
        {"NSString", "84 84 84 08 'NSString' 01 84 84 08 'NSObject' 00 85 84 01 '+' 02 'ab' 86"},
        {"NSMutableString",
            "84 84 84 0F 'NSMutableString' 01 84 84 08 'NSString' 01 84 84 08 'NSObject' 00 85"
            "84 01 '+' 02 'ab' 86"},
        {"NSAttributedString", "84 84 84 12 'NSAttributedString' 00 84 84 08 'NSObject' 00 85"
                               "92 84 84 84 08 'NSString' 01 94 84 01 '+' 02 'ab' 86 86"},
        {"NSMutableAttributedString",
            "84 84 84 19 'NSMutableAttributedString' 00 84 84 12 'NSAttributedString' 00"
            "84 84 08 'NSObject' 00 85"
            "92 84 84 84 0F 'NSMutableString' 01 84 84 08 'NSString' 01 95"
            "84 01 '+' 02 'ab' 86 86"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(textOf(streamHeader() + drawn(row.root)), "ab");
    }
}

TEST(TypedstreamText, ReadsLongLengths)
{
    const Bytes start =
        streamHeader() + drawn("84 84 84 08 'NSString' 01 84 84 08 'NSObject' 00 85 84 01 '+'");
    EXPECT_EQ(
        textOf(start + drawn("81 2C 01") + Bytes(300, 'a') + drawn("86")), std::string(300, 'a'));
    EXPECT_EQ(textOf(start + drawn("82 70 11 01 00") + Bytes(70'000, 'a') + drawn("86")),
        std::string(70'000, 'a'));
}

TEST(TypedstreamText, IsEmptyForAnEmptyBody)
{
    const auto text = typedstreamText(streamHeader() + drawn(R"(
        84 84 84 12 'NSAttributedString' 00 84 84 08 'NSObject' 00 85
        92 84 84 84 08 'NSString' 01 94 84 01 '+' 00 86 86)"));
    ASSERT_TRUE(text);
    EXPECT_TRUE(text->empty());
}

TEST(TypedstreamText, SearchesWhereTheWayIsNotTheUsual)
{
    struct Row {
        const char* what;
        const char* bytes;
    };
    const Row rows[]{{"unknown class of the root",
                         "04 0B 'streamtyped' 81 E8 03 84 01 '@' 84 84 84 07 'IMThing' 00 85"
                         "92 84 84 84 08 'NSString' 01 85 84 01 '+' 02 'ab' 86 86"},
        {"no header", "84 84 84 08 'NSString' 01 94 84 01 '+' 02 'ab' 86"},
        {"NSMutableString", "84 84 84 0F 'NSMutableString' 01 94 84 01 '+' 81 02 00 'ab' 86"},
        {"a mark with a length that does not fit",
            "84 84 84 08 'NSString' 01 94 01 '+' 7F 00 84 01 '+' 02 'ab' 86"}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(textOf(drawn(row.bytes)), "ab");
    }
}

TEST(TypedstreamText, IsNoneWhereThereIsNoText)
{
    struct Row {
        const char* what;
        const char* bytes;
    };
    const Row rows[]{{"nothing", ""}, {"another format", "'bplist00'"},
        {"a mark without a class", "01 '+' 02 'ab' 86"},
        {"a class without a mark", "84 84 84 08 'NSString' 01 94 86"},
        {"a text longer than the stream", "04 0B 'streamtyped' 81 E8 03 84 01 '@' 84 84 84 08 "
                                          "'NSString' 01 85 84 01 '+' 03 'ab'"}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_FALSE(typedstreamText(drawn(row.bytes)));
    }
}

} // namespace
