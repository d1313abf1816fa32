// SPDX-License-Identifier: MIT
#include "formats/wire_fields.h"

#include <QByteArray>
#include <QStringList>

#include <gtest/gtest.h>

namespace {

using formats::WireFields;

std::span<const unsigned char> bytesOf(const QByteArray& bytes)
{
    return {reinterpret_cast<const unsigned char*>(bytes.constData()),
        static_cast<std::size_t>(bytes.size())};
}

// "number=value" or "number:text"
QString shown(const QByteArray& message)
{
    WireFields fields(bytesOf(message));
    QStringList lines;
    while (const auto field = fields.next()) {
        lines.append(field->isBytes
                         ? QString("%1:%2").arg(field->number).arg(formats::textOf(field->bytes))
                         : QString("%1=%2").arg(field->number).arg(field->value));
    }
    return lines.join(' ') + (fields.isAtEnd() ? "" : " ...");
}

TEST(WireFields, ReadEachTypeOfField)
{
    struct Row {
        const char* what = nullptr;
        const char* hex = nullptr;
        const char* fields = nullptr;
    };
    // clang-format off
    const std::vector<Row> rows{
        {"nothing",                    "",                     ""},
        {"varint",                     "089601",               "1=150"},
        {"the largest varint",         "08FFFFFFFFFFFFFFFFFF01", "1=18446744073709551615"},
        {"text",                       "120774657374696E67",   "2:testing"},
        {"empty text",                 "1200",                 "2:"},
        {"eight bytes",                "190100000000000080",   "3=9223372036854775809"},
        {"four bytes",                 "250100000F",           "4=251658241"},
        {"number of two bytes",        "F2CA040161",           "9390:a"},
        {"several, in their order",    "0A016210010A0163",     "1:b 2=1 1:c"},
        {"text that is no UTF-8",      "0A02FF61",             "1:\xEF\xBF\xBD" "a"},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(shown(QByteArray::fromHex(row.hex)), QString::fromUtf8(row.fields));
    }
}

TEST(WireFields, EndAtWhatIsNoField)
{
    struct Row {
        const char* what = nullptr;
        const char* hex = nullptr;
        const char* fields = nullptr;
    };
    // clang-format off
    const std::vector<Row> rows{
        {"text longer than the message", "08011205616263",           "1=1 ..."},
        {"length near 2^64",             "080112FFFFFFFFFFFFFFFFFF01", "1=1 ..."},
        {"varint without an end",        "0801108080",               "1=1 ..."},
        {"varint of eleven bytes",       "08808080808080808080808001", " ..."},
        {"eight bytes, seven there",     "1901000000000000",         " ..."},
        {"four bytes, three there",      "25010000",                 " ..."},
        {"field 0",                      "000108010A",               " ..."},
        {"a group",                      "08010B",                   "1=1 ..."},
        {"type 7",                       "0F01",                     " ..."},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(shown(QByteArray::fromHex(row.hex)), row.fields);
    }
}

TEST(WireFields, TextIsThatOfTheFirstFieldWithBytes)
{
    const QByteArray message = QByteArray::fromHex("08050A01610A0162");
    EXPECT_EQ(formats::wireText(bytesOf(message), 1), "a");
    EXPECT_EQ(formats::wireText(bytesOf(message), 2), "");
    EXPECT_EQ(formats::wireText({}, 1), "");
}

} // namespace
