// SPDX-License-Identifier: MIT
#include "formats/typedstream.h"
#include "stream_bytes.h"

#include <QDateTime>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using formats::AttributedText;
using formats::parseTypedstream;
using formats::TextRun;

const QString kSampleText = QString::fromUtf8("Hi \xF0\x9F\x98\x80\xEF\xBF\xBC");

QVariant attributeOf(std::string_view value)
{
    const auto parsed = parseTypedstream(attributeStream(value));
    const bool read = parsed && parsed->text == "x" && parsed->runs.size() == 1
                      && parsed->runs.front().attributes.contains("k");
    return read ? parsed->runs.front().attributes.value("k") : QVariant("not read");
}

TEST(Typedstream, SampleHas257Bytes)
{
    EXPECT_EQ(sampleStream().size(), 257U);
}

TEST(Typedstream, GivesTheTextOfTheSample)
{
    const auto parsed = parseTypedstream(sampleStream());
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->text, kSampleText);
}

TEST(Typedstream, GivesTheRunsOfTheSampleInUtf16Units)
{
    const auto parsed = parseTypedstream(sampleStream());
    ASSERT_TRUE(parsed);
    ASSERT_EQ(parsed->runs.size(), 2U);
    const TextRun& words = parsed->runs[0];
    EXPECT_EQ(words.start, 0);
    EXPECT_EQ(words.length, 5);
    EXPECT_EQ(words.attributes, (QVariantMap{{"__kIMMessagePartAttributeName", 0LL}}));
    const TextRun& attachment = parsed->runs[1];
    EXPECT_EQ(attachment.start, 5);
    EXPECT_EQ(attachment.length, 1);
    EXPECT_EQ(attachment.attributes, (QVariantMap{{"__kIMFileTransferGUIDAttributeName", "at_1_A1"},
                                         {"__kIMMessagePartAttributeName", 1LL}}));
}

TEST(Typedstream, ReadsAttributesOfEveryClass)
{
    struct Row {
        const char* what;
        const char* value;
        QVariant expected;
    };
    const Row rows[]{
        {"NSString", "84 96 96 01 'v' 86", "v"},
        {"NSMutableString", "84 84 84 0F 'NSMutableString' 01 96 96 01 'v' 86", "v"},
        {"the key itself", "99", "k"},
        {"nil", "85", QVariant()},
        {"NSNumber int",
            "84 84 84 08 'NSNumber' 00 84 84 07 'NSValue' 00 94 84 01 '*' 84 99 99 05 86", 5LL},
        {"NSNumber -1",
            "84 84 84 08 'NSNumber' 00 84 84 07 'NSValue' 00 94 84 01 '*' 84 99 99 FF 86", -1LL},
        {"NSNumber double",
            "84 84 84 08 'NSNumber' 00 84 84 07 'NSValue' 00 94 84 01 '*' 84 84 01 'd'"
            "9D 83 00 00 00 00 00 00 F8 3F 86",
            1.5},
        {"NSNumber char",
            "84 84 84 08 'NSNumber' 00 84 84 07 'NSValue' 00 94 84 01 '*' 84 84 01 'c' 9D 01 86",
            1LL},
        {"NSData", "84 84 84 06 'NSData' 00 94 99 03 84 04 '[3c]' 01 02 03 86",
            QByteArray("\1\2\3")},
        {"NSMutableData, empty", "84 84 84 0D 'NSMutableData' 00 84 84 06 'NSData' 00 94 99 00 86",
            QByteArray("")},
        {"NSURL", "84 84 84 05 'NSURL' 00 94 84 01 'c' 00 92 84 96 96 0C 'http://a.b/c' 86 86",
            "http://a.b/c"},
        {"NSURL with base",
            "84 84 84 05 'NSURL' 00 94 84 01 'c' 01"
            "92 84 9B 9B 00 92 84 96 96 0B 'http://a.b/' 86 86 92 84 96 96 01 'd' 86 86",
            "http://a.b/d"},
        {"NSArray", "84 84 84 07 'NSArray' 00 94 99 02 92 84 96 96 01 'a' 86 92 85 86",
            QVariantList({"a", QVariant()})},
        {"NSMutableDictionary",
            "84 84 84 13 'NSMutableDictionary' 00 98 99 01 92 84 96 96 01 'a' 86 92 99 86",
            QVariantMap({{"a", "k"}})},
        {"NSNull", "84 84 84 06 'NSNull' 00 94 86", QVariant()},
        {"NSObject", "84 94 86", QVariant()},
        {"NSDate", "84 84 84 06 'NSDate' 00 94 84 01 'd' 3C 86",
            QDateTime({2001, 1, 1}, {0, 1}, Qt::UTC)},
        {"NSAttributedString", "84 93 92 84 96 96 01 'v' 86 86", "v"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(attributeOf(row.value), row.expected);
    }
}

TEST(Typedstream, TellsTheTypesOfNumbersAndData)
{
    EXPECT_EQ(
        attributeOf("84 84 84 08 'NSNumber' 00 84 84 07 'NSValue' 00 94 84 01 '*' 84 99 99 05 86")
            .type(),
        QVariant::LongLong);
    EXPECT_EQ(attributeOf("84 84 84 06 'NSData' 00 94 99 00 86").type(), QVariant::ByteArray);
}

TEST(Typedstream, LeavesOutKeysThatAreNoText)
{
    const QVariant expected = QVariantMap({{"a", "k"}});
    EXPECT_EQ(attributeOf("84 98 99 02 92 85 92 99 92 84 96 96 01 'a' 86 92 99 86"), expected);
}

TEST(Typedstream, GivesTheTextAloneWhereAnAttributeCannotBeRead)
{
    struct Row {
        const char* what;
        const char* value;
    };
    const Row rows[]{{"unknown class", "84 84 84 07 'NSColor' 00 94 86"},
        {"unknown type", "84 96 84 01 'z' 01 86"}, {"string without bytes", "84 96 86"},
        {"date without a time", "84 84 84 06 'NSDate' 00 94 86"},
        {"data of another size", "84 84 84 06 'NSData' 00 94 99 04 84 04 '[3c]' 01 02 03 86"},
        {"array of another count", "84 84 84 07 'NSArray' 00 94 99 02 92 85 86"},
        {"dictionary without a value", "84 98 99 01 92 99 86"},
        {"number without a value", "84 84 84 08 'NSNumber' 00 94 84 01 '*' 84 99 86"}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const auto parsed = parseTypedstream(attributeStream(row.value));
        ASSERT_TRUE(parsed);
        EXPECT_EQ(parsed->text, "x");
        EXPECT_TRUE(parsed->runs.empty());
    }
}

// "abc" and the groups of its runs; strings 97 "iI" and 98 "NSDictionary" stand where one is new.
AttributedText withRuns(std::string_view runs)
{
    const auto parsed = parseTypedstream(streamHeader() + drawn(R"(
        84 84 84 12 'NSAttributedString' 00 84 84 08 'NSObject' 00 85
        92 84 84 84 08 'NSString' 01 94 84 01 '+' 03 'abc' 86)")
                                         + drawn(runs) + drawn("86"));
    return parsed ? *parsed : AttributedText();
}

constexpr const char* kFirstRun = "84 02 'iI' 01 01 92 84 84 84 0C 'NSDictionary' 00 94"
                                  "84 01 'i' 01 92 84 96 96 01 'k' 86 92 99 86";

TEST(Typedstream, UsesTheAttributesOfAnEarlierRunAgain)
{
    const AttributedText read = withRuns(std::string(kFirstRun) + "97 02 01 92 85 97 01 01");
    ASSERT_EQ(read.runs.size(), 3U);
    EXPECT_EQ(read.runs[0].attributes, (QVariantMap{{"k", "k"}}));
    EXPECT_EQ(read.runs[1].attributes, QVariantMap());
    EXPECT_EQ(read.runs[2].attributes, (QVariantMap{{"k", "k"}}));
    EXPECT_EQ(read.runs[2].start, 2);
}

TEST(Typedstream, CutsRunsOffAtTheEndOfTheText)
{
    const AttributedText read =
        withRuns(std::string(kFirstRun) + "97 01 82 FF FF FF FF 97 01 05 97 01 00");
    ASSERT_EQ(read.runs.size(), 2U);
    EXPECT_EQ(read.runs[1].start, 1);
    EXPECT_EQ(read.runs[1].length, 2);
}

TEST(Typedstream, GivesNoRunsWhereTheirNumbersMakeNoSense)
{
    for (const char* run : {"97 03 01 92 85", "97 00 01", "97 FF 01", "97 02 01", "92 85"}) {
        SCOPED_TRACE(run);
        const AttributedText read = withRuns(std::string(kFirstRun) + run);
        EXPECT_EQ(read.text, "abc");
        EXPECT_TRUE(read.runs.empty());
    }
}

TEST(Typedstream, ReadsAPlainString)
{
    const auto parsed =
        parseTypedstream(streamHeader()
                         + drawn("84 84 84 08 'NSString' 01 84 84 08 'NSObject' 00 85"
                                 "84 01 '+' 02 'ab' 86"));
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->text, "ab");
    EXPECT_TRUE(parsed->runs.empty());
}

// The first character U+FFFC ends the text of the sample.
std::size_t endOfText(const Bytes& sample)
{
    const Bytes last = drawn("EF BF BC");
    const auto found = std::search(sample.begin(), sample.end(), last.begin(), last.end());
    return static_cast<std::size_t>(found - sample.begin()) + last.size();
}

TEST(Typedstream, GivesNoRunsWhereTheStreamIsCutBehindTheText)
{
    const Bytes sample = sampleStream();
    const std::size_t textEnd = endOfText(sample);
    for (std::size_t size = textEnd; size < sample.size(); ++size) {
        SCOPED_TRACE(size);
        const auto parsed = parseTypedstream(std::span(sample).first(size));
        ASSERT_TRUE(parsed);
        EXPECT_EQ(parsed->text, kSampleText);
        EXPECT_TRUE(parsed->runs.empty());
    }
}

TEST(Typedstream, IsAnErrorWhereTheStreamIsCutBeforeTheEndOfTheText)
{
    const Bytes sample = sampleStream();
    const std::size_t textEnd = endOfText(sample);
    for (std::size_t size = 0; size < textEnd; ++size) {
        SCOPED_TRACE(size);
        EXPECT_FALSE(parseTypedstream(std::span(sample).first(size)));
    }
}

TEST(Typedstream, SaysWhereReadingEnded)
{
    const Bytes sample = sampleStream();
    const auto parsed = parseTypedstream(std::span(sample).first(30));
    ASSERT_FALSE(parsed);
    EXPECT_TRUE(parsed.error().where.startsWith("typedstream, byte "))
        << parsed.error().where.toStdString();
    EXPECT_FALSE(parsed.error().what.isEmpty());
}

} // namespace
