// SPDX-License-Identifier: MIT
#include "cli/owner_name.h"

#include <gtest/gtest.h>

#include <array>

namespace {

struct Row {
    const char* what;
    QString name;
    QString owner;
};

} // namespace

TEST(CleanedOwner, IsFitToBeginAFileName)
{
    const std::array rows{
        Row{"a usual name", QString::fromUtf8("Anna’s iPhone"), QString::fromUtf8("Anna’s iPhone")},
        Row{"separators of both kinds", "a/b\\c", "a_b_c"},
        Row{"a way out", "../../etc", ".._.._etc"},
        Row{"control characters", "a\tb\nc\x7f", "a_b_c_"},
        Row{"a zero", QString("a") + QChar(0) + "b", "a_b"},
        Row{"a control character of the upper half", QString("a") + QChar(0x85) + "b", "a_b"},
        Row{"a line separator", QString("a") + QChar(0x2028) + "b", "a_b"},
        Row{"one point", ".", "_"},
        Row{"two points", "..", "_"},
        Row{"two points among blanks", " .. ", "_"},
        Row{"three points are a name", "...", "..."},
        Row{"blanks around it", "  Anna ", "Anna"},
        Row{"a line feed at its end", "Anna\n", "Anna"},
        Row{"blanks alone", " \t ", ""},
        Row{"what other systems forbid is the library's", "a:b*", "a:b*"},
        Row{"nothing", "", ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(cleanedOwner(row.name), row.owner);
    }
}

TEST(CleanedOwner, LeavesRoomForTheRestOfAFileName)
{
    EXPECT_EQ(cleanedOwner(QString(300, 'a')), QString(60, 'a'));
}

TEST(CleanedOwner, CutsNoCharacterInTwo)
{
    const QString face = QString::fromUtf8("😀");
    EXPECT_EQ(cleanedOwner(QString(59, 'a') + face), QString(59, 'a'));
}

TEST(DefaultOwner, IsTheFirstNameThatIsOne)
{
    EXPECT_EQ(defaultOwner({"Anna", "Anna's iPhone"}), "Anna");
    EXPECT_EQ(defaultOwner({"", "Anna's iPhone"}), "Anna's iPhone");
    EXPECT_EQ(defaultOwner({" ", "a/b"}), "a_b");
}

TEST(DefaultOwner, IsIPhoneWhereNobodyIsNamed)
{
    EXPECT_EQ(defaultOwner({"", " "}), "iPhone");
    EXPECT_EQ(defaultOwner({}), "iPhone");
}
