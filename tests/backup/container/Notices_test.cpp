// SPDX-License-Identifier: MIT
#include "backup/container/Notices.h"

#include <gtest/gtest.h>

namespace backup {

namespace {

const QString kRest = "%1 more files are gone";

QString goneFile(int number)
{
    return QString("file %1 is gone").arg(number);
}

TEST(Notices, KeepsTheOrderAndTellsNothingTwice)
{
    Notices notices;
    notices.add("b");
    notices.add("a");
    notices.add("b");
    EXPECT_EQ(notices.sentences(), QStringList({"b", "a"}));
}

TEST(Notices, GivesTheFirstOfAKindInFull)
{
    Notices notices;
    for (int i = 0; i < Notices::kShownOfAKind; ++i) {
        notices.addOneOfMany(goneFile(i), kRest);
    }
    ASSERT_EQ(notices.sentences().size(), 20);
    EXPECT_EQ(notices.sentences().first(), "file 0 is gone");
    EXPECT_EQ(notices.sentences().last(), "file 19 is gone");
}

TEST(Notices, CountsTheOthersOfAKindInOneSentence)
{
    Notices notices;
    for (int i = 0; i < 10000; ++i) {
        notices.addOneOfMany(goneFile(i), kRest);
    }
    ASSERT_EQ(notices.sentences().size(), 21);
    EXPECT_EQ(notices.sentences().last(), "9980 more files are gone");
}

TEST(Notices, CountsNothingTwice)
{
    Notices notices;
    for (int round = 0; round < 3; ++round) {
        for (int i = 0; i < 25; ++i) {
            notices.addOneOfMany(goneFile(i), kRest);
        }
    }
    ASSERT_EQ(notices.sentences().size(), 21);
    EXPECT_EQ(notices.sentences().last(), "5 more files are gone");
}

TEST(Notices, CountsEachKindByItself)
{
    Notices notices;
    for (int i = 0; i < 21; ++i) {
        notices.addOneOfMany(goneFile(i), kRest);
    }
    notices.add("something else");
    notices.addOneOfMany("name 1 is odd", "%1 more names are odd");
    notices.addOneOfMany(goneFile(21), kRest);
    EXPECT_EQ(notices.sentences().mid(20),
        QStringList({"2 more files are gone", "something else", "name 1 is odd"}));
}

} // namespace

} // namespace backup
