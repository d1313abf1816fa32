// SPDX-License-Identifier: MIT
#include "platform/literals.h"
#include "translators/contact/contact_builder.h"
#include "translators/contact/contact_contents.h"

#include <gtest/gtest.h>

namespace {

TEST(PropertiesOf, AreThoseOfTheKindInTheirOrder)
{
    const PRContactPrivate contact(holding(
        {plain(Phone, "", "2"), plain(Email, "", "x"), plain(Phone, "", "1"), plain(16, "", "y")}));
    QStringList values;
    for (const PRContactProperty* property : propertiesOf(contact, Phone)) {
        values.append(property->propValue());
    }
    EXPECT_EQ(values, QStringList({"2", "1"}));
    EXPECT_TRUE(propertiesOf(contact, Address).isEmpty());
}

TEST(JoinFilled, LeavesNoGapForAnEmptyText)
{
    EXPECT_EQ(joinFilled({}, " - "_L1), "");
    EXPECT_EQ(joinFilled({"", ""}, " - "_L1), "");
    EXPECT_EQ(joinFilled({"a"}, " - "_L1), "a");
    EXPECT_EQ(joinFilled({"a", "b"}, " - "_L1), "a - b");
    EXPECT_EQ(joinFilled({"", "a", "", "b", ""}, " - "_L1), "a - b");
    EXPECT_EQ(joinFilled({" ", "-"}, " - "_L1), "  - -") << "a blank is a text";
}

TEST(ContactDates, AreReadFromSeconds)
{
    struct {
        const char* what = nullptr;
        QString seconds;
        QString text;
    } const rows[] = {
        {"a day", "-496195200", "1985-04-12"},
        {"a fraction", "0.5", "2001-01-01"},
        {"the next day here", "79200", "2001-01-02"},
        {"nothing", "", "2001-01-01"},
        {"no number", "1985-04-12", "2001-01-01"},
        {"no year", "-12519144000", "04-14"},
        {"no date", "inf", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(dateText(row.seconds), row.text);
        EXPECT_EQ(dayText(row.seconds), row.text);
    }
}

} // namespace
