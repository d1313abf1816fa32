// SPDX-License-Identifier: MIT
#include "backup/readers/contact_name.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using backup::ContactName;

TEST(ContactNameTest, NameIsShownAsAPhoneDoes)
{
    struct Row {
        const char* what = nullptr;
        ContactName name;
        QString shown;
    };
    const std::vector<Row> rows{
        {"all parts",
            {.prefix = "Dr.", .first = "Ina", .middle = "M.", .last = "Petersen", .suffix = "MD"},
            "Dr. Ina M. Petersen MD"},
        {"blanks around", {.first = " Ina ", .last = "\tPetersen\n"}, "Ina Petersen"},
        {"Japanese, spoken in kana", {.first = "由紀", .last = "田中", .firstPhonetic = "ゆき"},
            "田中 由紀"},
        {"Japanese, with kana", {.first = "さくら", .last = "高橋"}, "高橋 さくら"},
        {"Chinese", {.first = "美玲", .last = "陳", .firstPhonetic = "Meiling"}, "陳美玲"},
        {"Korean", {.first = "민준", .last = "김"}, "김민준"},
        {"Korean with a title", {.prefix = "Dr.", .first = "민준", .last = "김"}, "Dr. 김민준"},
        {"Chinese and Latin", {.first = "Wei", .last = "王"}, "王 Wei"},
        {"organization", {.organization = "Blumen Sommer"}, "Blumen Sommer"},
        {"person of an organization", {.first = "Ina", .organization = "Clinic"}, "Ina"},
        {"organization with a person",
            {.first = "Ina", .organization = "Clinic", .isOrganization = true}, "Clinic"},
        {"organization without its name", {.first = "Ina", .isOrganization = true}, "Ina"},
        {"nickname", {.nickname = "Oma Hilde"}, "Oma Hilde"},
        {"nothing", {.first = "  "}, ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(backup::displayName(row.name), row.shown);
    }
}

TEST(ContactNameTest, SortKeysOrderByLastNameWithoutAccentsAndCase)
{
    const std::vector<ContactName> inOrder{
        {.first = "Bea", .last = "abel"},
        {.first = "Ada", .last = "Äbelmann"},
        {.first = "Zoe", .organization = "Zoo"},
        {.first = "由紀", .last = "田中", .lastPhonetic = "たなか"},
        {.first = "美玲", .last = "陳"},
        {.first = "4711"},
        {.nickname = ""},
    };
    for (std::size_t i = 1; i < inOrder.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_LT(backup::sortKey(inOrder[i - 1]), backup::sortKey(inOrder[i]));
    }
}

TEST(ContactNameTest, MarksOfDirectionGoFromBothEnds)
{
    EXPECT_EQ(backup::withoutMarks(QString::fromUtf8("\u202A+49 171\u202C")), "+49 171");
    EXPECT_EQ(backup::withoutMarks(QString::fromUtf8("a\u200Fb")), QString::fromUtf8("a\u200Fb"));
    EXPECT_EQ(backup::withoutMarks(QString::fromUtf8("\u2068\u2069")), "");
}

} // namespace
