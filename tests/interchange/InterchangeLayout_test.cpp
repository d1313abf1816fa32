// SPDX-License-Identifier: MIT
#include "interchange/InterchangeLayout.h"
#include "model/PRContactItem.h"
#include "support/temp_tree.h"

#include <QString>

#include <gtest/gtest.h>

#include <array>

namespace {

struct Row {
    const char* what = "";
    const char* text = "";
    const char* expected = "";
};

PRContactProperty labelled(int type, const QString& label)
{
    return PRContactProperty({.type = type, .label = label});
}

} // namespace

TEST(EscapeValue, PutsABackslashBeforeBackslashAndSemicolon)
{
    const std::array rows{
        Row{"nothing to do", "Mia", "Mia"},
        Row{"empty", "", ""},
        Row{"a semicolon", "a;b", R"(a\;b)"},
        Row{"a backslash", R"(a\b)", R"(a\\b)"},
        Row{"backslashes come first", R"(\;)", R"(\\\;)"},
        Row{"commas, quotes and line breaks stay", "a,\"b\"\r\n\tc", "a,\"b\"\r\n\tc"},
        Row{"a place for a value stays", "%1;%2", R"(%1\;%2)"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(kGoogleLayout.escapeValue(row.text), row.expected);
        EXPECT_EQ(kOutlookLayout.escapeValue(row.text), row.expected);
        EXPECT_EQ(kVCardLayout.escapeValue(row.text), row.expected);
    }
}

TEST(EscapeValue, UnwrapsForGoogleAlone)
{
    EXPECT_EQ(kGoogleLayout.escapeValue("_$!<Anniversary>!$_"), "Anniversary");
    EXPECT_EQ(kOutlookLayout.escapeValue("_$!<Anniversary>!$_"), "_$!<Anniversary>!$_");
    EXPECT_EQ(kVCardLayout.escapeValue("_$!<Anniversary>!$_"), "_$!<Anniversary>!$_");
}

TEST(UnwrapLabel, TakesFourCharactersFromEachEndWhereverTheMarkStands)
{
    const std::array rows{
        Row{"a label of the phone", "_$!<Father>!$_", "Father"},
        Row{"the mark in the middle", "abcdef_$!<uvwxyz", "ef_$!<uv"},
        Row{"the mark at the end", "abcdef_$!<", "ef"},
        Row{"the mark alone", "_$!<", ""},
        Row{"too short for both ends", "_$!<abc", ""},
        Row{"one wrapper in another: the outer one goes", "_$!<_$!<a>!$_>!$_", "_$!<a>!$_"},
        Row{"no mark", "Father", "Father"},
        Row{"an end without a start", "Father>!$_", "Father>!$_"},
        Row{"half a mark", "_$!Father", "_$!Father"},
        Row{"empty", "", ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(unwrapLabel(row.text), row.expected);
    }
}

TEST(LabelOrType, IsTheNumberOfTheKindWhereThereIsNoLabel)
{
    EXPECT_EQ(labelOrType(labelled(Phone, "private")), "private");
    EXPECT_EQ(labelOrType(labelled(Phone, "")), "3");
    EXPECT_EQ(labelOrType(labelled(RelatedName, "")), "23");
    EXPECT_EQ(labelOrType(labelled(Email, " ")), " ");
}

TEST(MapLabel, HasNoFallback)
{
    EXPECT_EQ(kGoogleLayout.mapLabel("TEL"_L1, "_$!<HomeFAX>!$_"), "HOMEFAX");
    EXPECT_EQ(kOutlookLayout.mapLabel("TEL"_L1, "_$!<HomeFAX>!$_"), "HomeFAX");
    EXPECT_EQ(kVCardLayout.mapLabel("TEL"_L1, "_$!<HomeFAX>!$_"), "HOME;TYPE=FAX");
    EXPECT_EQ(kVCardLayout.mapLabel("TEL"_L1, "boat"), "");
}

TEST(DisplayLabel, EscapesALabelThatIsInNoTable)
{
    EXPECT_EQ(kGoogleLayout.displayLabel("TEL"_L1, "a;b"), R"(a\;b)");
    EXPECT_EQ(kOutlookLayout.displayLabel("TEL"_L1, "a;b"), R"(a\;b)");
    EXPECT_EQ(kVCardLayout.displayLabel("TEL"_L1, "a;b"), R"(a\;b)");
    // The words of the table are not escaped.
    EXPECT_EQ(kVCardLayout.displayLabel("TEL"_L1, "_$!<HomeFAX>!$_"), "HOME;TYPE=FAX");
}

TEST(DisplayLabel, KeepsTheWrapperButForGoogle)
{
    EXPECT_EQ(kGoogleLayout.displayLabel("TEL"_L1, "_$!<School>!$_"), "School");
    EXPECT_EQ(kOutlookLayout.displayLabel("TEL"_L1, "_$!<School>!$_"), "_$!<School>!$_");
    EXPECT_EQ(kVCardLayout.displayLabel("TEL"_L1, "_$!<School>!$_"), "_$!<School>!$_");
}

TEST(DisplayLabel, UnwrapsTwiceForGoogle)
{
    EXPECT_EQ(kGoogleLayout.displayLabel("TEL"_L1, "_$!<_$!<a>!$_>!$_"), "a");
    EXPECT_EQ(kGoogleLayout.displayLabel("TEL"_L1, "_$!<_$!<_$!<a>!$_>!$_>!$_"), "_$!<a>!$_");
}

TEST(SubValue, IsAsTheRecordHasItAndUnwrappedForGoogle)
{
    const PRContactProperty account(
        {.type = InstantMessage, .entry = {{"service", "_$!<x>!$_"}, {"username", R"(a;b\)"}}});
    EXPECT_EQ(kGoogleLayout.subValue(account, "service"_L1), "x");
    EXPECT_EQ(kOutlookLayout.subValue(account, "service"_L1), "_$!<x>!$_");
    EXPECT_EQ(kVCardLayout.subValue(account, "service"_L1), "_$!<x>!$_");
    EXPECT_EQ(kGoogleLayout.subValue(account, "username"_L1), R"(a;b\)");
    EXPECT_EQ(kGoogleLayout.subValue(account, "Username"_L1), "");
}

TEST(CleanAddressText, DropsWhatLiesBelowTheDigits)
{
    const std::array rows{
        Row{"blanks, full stops and commas", "12 Main St., Apt 3", "12MainStApt3"},
        Row{"hyphen, apostrophe, slash, quote", "O'Neill-St. 3/4 \"A\"", "ONeillSt34A"},
        Row{"line breaks and tabs", "a\r\nb\tc", "abc"},
        Row{"semicolons part the address", ";;a b;c", ";;ab;c"},
        Row{"what is not ASCII stays, a wide blank too", "Straße　東京, Łódź", "Straße　東京Łódź"},
        Row{"a character of two units stays", "🏠 1", "🏠1"},
        Row{"from the digits on all of ASCII stays", "09:;<=>?@AZ[\\]^_`az{|}~\x7f",
            "09:;<=>?@AZ[\\]^_`az{|}~\x7f"},
        Row{"empty", "", ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(kGoogleLayout.cleanAddressText(row.text), row.expected);
        EXPECT_EQ(kVCardLayout.cleanAddressText(row.text), row.expected);
    }
}

TEST(CleanAddressText, DropsEachUnitBelow30HexButTheVerticalTab)
{
    for (ushort unit = 0; unit < 0x30; ++unit) {
        SCOPED_TRACE(unit);
        const QString text = "a" + QString(QChar(unit)) + "b";
        const QString expected = unit == 0x0b ? "a//nb" : "ab";
        EXPECT_EQ(kVCardLayout.cleanAddressText(text), expected);
    }
}

TEST(CleanAddressText, TurnsAVerticalTabIntoALineBreakOfTheLayout)
{
    EXPECT_EQ(kGoogleLayout.cleanAddressText("a\vb"), R"(a\nb)");
    EXPECT_EQ(kOutlookLayout.cleanAddressText("a\vb"), R"(a\nb)");
    EXPECT_EQ(kVCardLayout.cleanAddressText("a\vb"), "a//nb");
}

TEST(InterchangeFiles, AreNamedForOwnerCategoryAndPurpose)
{
    const QDir out("/out");
    EXPECT_EQ(kGoogleLayout.filePath(out, "iPhone", "Contacts", "for Google"),
        "/out/Contacts/CSV/iPhone's Contacts for Google.csv");
    EXPECT_EQ(kOutlookLayout.filePath(out, "iPhone", "Contacts", "for Outlook"),
        "/out/Contacts/CSV/iPhone's Contacts for Outlook.csv");
    EXPECT_EQ(kVCardLayout.filePath(out, "iPhone", "Contacts", "for Mac"),
        "/out/Contacts/VCF/iPhone's Contacts for Mac.vcf");
}

TEST(InterchangeFiles, KeepEachCharacterOfTheNames)
{
    EXPECT_EQ(kGoogleLayout.filePath({"/out"}, R"(A:*?"<>|\)", "B.", "c"),
        R"(/out/B./CSV/A:*?"<>|\'s B. c.csv)");
}

TEST(InterchangeFiles, FillTheNameOnePlaceAfterTheOther)
{
    EXPECT_EQ(
        kGoogleLayout.filePath({"/out"}, "%4", "Cat", "end"), "/out/Cat/CSV/Cat's Cat end.csv");
}

TEST(InterchangeFolder, IsMadeOnceWithAllOnTheWay)
{
    const support::TempTree tree;
    EXPECT_TRUE(kGoogleLayout.makeFolder(tree.dir(), "Contacts"));
    EXPECT_TRUE(kOutlookLayout.makeFolder(tree.dir(), "Contacts"));
    EXPECT_TRUE(kVCardLayout.makeFolder(tree.dir(), "Contacts"));
    EXPECT_EQ(tree.list(), QStringList({"Contacts/", "Contacts/CSV/", "Contacts/VCF/"}));
}

TEST(InterchangeFolder, CannotBeMadeBelowAFile)
{
    const support::TempTree tree;
    tree.write("Contacts", "a file");
    EXPECT_FALSE(kGoogleLayout.makeFolder(tree.dir(), "Contacts"));
    EXPECT_FALSE(kVCardLayout.makeFolder(tree.dir(), "Contacts"));
}
