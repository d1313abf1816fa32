// SPDX-License-Identifier: MIT
#include "formats/typedstream.h"
#include "maker/AttributedText.h"

#include <gtest/gtest.h>

namespace {

using sample::AttributedText;

constexpr char kPart[] = "__kIMMessagePartAttributeName";
constexpr char kName[] = "__kIMFilenameAttributeName";
constexpr char kTransfer[] = "__kIMFileTransferGUIDAttributeName";

std::span<const unsigned char> bytesOf(const QByteArray& bytes)
{
    return {reinterpret_cast<const unsigned char*>(bytes.constData()),
        static_cast<std::size_t>(bytes.size())};
}

QByteArray hex(const char* digits)
{
    return QByteArray::fromHex(digits);
}

// A text of five units and one file.
TEST(AttributedTextStream, HasTheBytesOfThePhone)
{
    const AttributedText body{.text = QString::fromUtf8("Hi 😀\uFFFC"),
        .runs = {{.length = 5, .attributes = {{kPart, 0}}},
            {.length = 1, .attributes = {{kTransfer, QString("at_1_A1")}, {kPart, 1}}}}};

    const QByteArray expected =
        hex("040B") + "streamtyped" + hex("81E803 8401") + "@" + hex("848484 12")
        + "NSAttributedString" + hex("00 848408") + "NSObject" + hex("0085 92 84848408")
        + "NSString" + hex("01 94 8401") + "+" + hex("0A") + "Hi " + hex("F09F9880 EFBFBC 86 8402")
        + "iI" + hex("0105 92 8484840C") + "NSDictionary" + hex("00 94 8401") + "i"
        + hex("01 928496 961D") + kPart + hex("86 92 84848408") + "NSNumber" + hex("00 848407")
        + "NSValue" + hex("00 94 8401") + "*"
        + hex("8499 9900 86 86 970201 92849899 02 92849696 22") + kTransfer + hex("86 92849696 07")
        + "at_1_A1" + hex("86 9299 92849B 9C9D 990186 8686");
    ASSERT_EQ(expected.size(), 257);
    EXPECT_EQ(sample::typedstream(body).toHex(' '), expected.toHex(' '));
}

// Lengths above 127 take three bytes, and so do references to what came after 237 others: the name
// of an attribute that the last two stretches alone have.
TEST(AttributedTextStream, IsReadBackWhenItIsLong)
{
    AttributedText body;
    for (int file = 0; file < 120; ++file) {
        body.text += "file ";
        body.runs.push_back({.length = 5,
            .attributes = {{kTransfer, QString("at_%1_LONG").arg(file)}, {kPart, file}}});
    }
    body.runs[118].attributes.emplace_back(kName, QString("beach.jpg"));
    body.runs[119].attributes.emplace_back(kName, QString("cake.png"));
    const QByteArray stream = sample::typedstream(body);

    const auto read = formats::parseTypedstream(bytesOf(stream));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->text, body.text);
    ASSERT_EQ(read->runs.size(), 120U);
    EXPECT_EQ(read->runs.back().start, 595);
    EXPECT_EQ(read->runs.back().attributes.value(kTransfer).toString(), "at_119_LONG");
    EXPECT_EQ(read->runs.back().attributes.value(kPart).toInt(), 119);
    EXPECT_EQ(read->runs.back().attributes.value(kName).toString(), "cake.png");
}

TEST(AttributedTextStream, NamesADictionaryAgainInsteadOfRepeatingIt)
{
    const AttributedText body{.text = "one two one",
        .runs = {{.length = 4, .attributes = {{kPart, 0}}},
            {.length = 3, .attributes = {{kPart, 0}, {"mentioned", QString("+491715550101")}}},
            {.length = 4, .attributes = {{kPart, 0}}}}};
    const QByteArray stream = sample::typedstream(body);

    // iI again (string 5), dictionary 1, 4 units, end of the whole
    EXPECT_TRUE(stream.endsWith(hex("97 01 04 86")));
    const auto read = formats::parseTypedstream(bytesOf(stream));
    ASSERT_TRUE(read);
    ASSERT_EQ(read->runs.size(), 3U);
    EXPECT_EQ(read->runs[2].attributes, read->runs[0].attributes);
}

} // namespace
