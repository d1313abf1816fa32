// SPDX-License-Identifier: MIT
#include "contact_sets.h"
#include "interchange/contact_values.h"

#include <QString>

#include <gtest/gtest.h>

#include <array>

namespace {

struct DateRow {
    const char* what = "";
    const char* seconds = "";
    const char* day = "";
    const char* expected = "";
};

ContactContent allNoteFields()
{
    ContactContent content;
    content.firstPhonetic = "a1";
    content.middlePhonetic = "a2";
    content.lastPhonetic = "a3";
    content.organizationPhonetic = "a4";
    content.firstPronunciation = "b1";
    content.middlePronunciation = "b2";
    content.lastPronunciation = "b3";
    content.organizationPronunciation = "b4";
    content.previousFamilyName = "c";
    content.namePrefix = "d";
    return content;
}

QString noteOf(const InterchangeLayout& layout, ContactContent content, const QString& events = {})
{
    return csvNote(layout, PRContactItem({}, std::move(content)), events);
}

} // namespace

TEST(ContactDates, AreSecondsSince2001AsTheClockInGreenwichShowsThem)
{
    const std::array rows{
        DateRow{"the start", "0", "01-01", "2001-01-01"},
        DateRow{"a day in May", "12960000", "05-31", "2001-05-31"},
        DateRow{"with a fraction", "86399.9", "01-01", "2001-01-01"},
        DateRow{"the next day", "86400", "01-02", "2001-01-02"},
        DateRow{"an evening that is tomorrow here", "82800", "01-01", "2001-01-01"},
        DateRow{"before the start", "-86400", "12-31", "2000-12-31"},
        DateRow{"no number is 0", "soon", "01-01", "2001-01-01"},
        DateRow{"nothing is 0", "", "01-01", "2001-01-01"},
        DateRow{"half a number is 0", "86400 s", "01-01", "2001-01-01"},
        DateRow{"no date at all", "1e300", "", ""},
        DateRow{"not even a number", "nan", "", ""},
    };
    for (const DateRow& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(dateText(row.seconds, "yyyy-MM-dd"_L1), row.expected);
        EXPECT_EQ(dayText(row.seconds, "yyyy-MM-dd"_L1), row.day);
    }
    EXPECT_EQ(dayText("12960000", "yyyy/MM/dd"_L1), "05/31");
}

TEST(ContactDates, KeepTheYear1604)
{
    // 29 February 1604 is 144943 days before the start of 2001.
    EXPECT_EQ(dateText("-12523075200", "yyyy-MM-dd"_L1), "1604-02-29");
}

TEST(FilledTemplate, LeavesThePlacesInValuesAlone)
{
    EXPECT_EQ(filled("%1:%2"_L1, QString("%2"), QString("%1")), "%2:%1");
}

TEST(NoteLines, HaveTheFieldsAndTheFormOfTheLayout)
{
    const PRContactPrivate contact(allNoteFields());
    EXPECT_EQ(noteLines(kGoogleLayout, contact),
        "<<First Phonetic:a1>>\t<<Middle Phonetic:a2>>\t<<Last Phonetic:a3>>\t"
        "<<Organization Phonetic:a4>>\t<<First Pronunciation:b1>>\t"
        "<<Middle Pronunciation:b2>>\t<<Last Pronunciation:b3>>\t"
        "<<Organization Pronunciation:b4>>\t<<Previous Family Name:c>>\t");
    EXPECT_EQ(noteLines(kOutlookLayout, contact),
        "<<Middle Phonetic:a2>>\t<<First Pronunciation:b1>>\t<<Middle Pronunciation:b2>>\t"
        "<<Last Pronunciation:b3>>\t<<Organization Pronunciation:b4>>\t"
        "<<Previous Family Name:c>>\t<<Prefix:d>>\t");
    EXPECT_EQ(noteLines(kVCardLayout, contact),
        "First Phonetic:a1/\tMiddle Phonetic:a2/\tLast Phonetic:a3/\tOrganization Phonetic:a4/\t"
        "First Pronunciation:b1/\tMiddle Pronunciation:b2/\tLast Pronunciation:b3/\t"
        "Organization Pronunciation:b4/\tPrevious Family Name:c/\t");
}

TEST(NoteLines, LeaveOutEmptyFieldsAndEscapeNothing)
{
    ContactContent content;
    content.previousFamilyName = R"(a;\b)";
    EXPECT_EQ(noteLines(kGoogleLayout, PRContactPrivate(std::move(content))),
        R"(<<Previous Family Name:a;\b>>)"
        "\t");
    EXPECT_EQ(noteLines(kGoogleLayout, PRContactPrivate()), "");
}

TEST(NoteBlock, HasItsTitleWhereThereAreLines)
{
    EXPECT_EQ(noteBlock("<<a:b>>\t"), "\tOther Contact Info:\t<<a:b>>\t");
    EXPECT_EQ(noteBlock(""), "");
}

TEST(CsvNote, EndsWithItsBlockInOneLine)
{
    ContactContent content =
        contacts::with({contacts::composite(SocialProfile,
                            {{"service", "twitter"}, {"url", "https://t.example/\nmia"}}),
            contacts::composite(SocialProfile, {{"service", "a;b"}})});
    content.note = "one;\ntwo\r\n";
    content.previousFamilyName = "Sol\n";
    EXPECT_EQ(noteOf(kGoogleLayout, content, "<<Day>>\n"),
        "one\\;\ttwo\r\t\tOther Contact Info:\t<<Previous Family Name:Sol\t>>\t<<Day>>\t"
        "<<twitter:https://t.example/\tmia>>\t<<a;b:>>\t");
}

TEST(CsvNote, OfAContactWithNothingElseIsTheNote)
{
    ContactContent content;
    EXPECT_EQ(noteOf(kOutlookLayout, content), "");
    content.note = "a\nb";
    EXPECT_EQ(noteOf(kOutlookLayout, content), "a\tb");
}

TEST(CsvNote, ThatHoldsItsBlockKeepsItsLineFeedsAndGetsNoSecondOne)
{
    ContactContent content = allNoteFields();
    content.note = "a;\n\tOther Contact Info:\t<<x:y>>\t";
    EXPECT_EQ(
        noteOf(kGoogleLayout, content, "<<Day>>\t"), "a\\;\n\tOther Contact Info:\t<<x:y>>\t");
    content.note = "Other Contact Info:"; // without its tabs it is no block
    EXPECT_TRUE(noteOf(kOutlookLayout, content).endsWith("<<Prefix:d>>\t"));
}

TEST(CsvNote, UnwrapsTheProfileForGoogleAlone)
{
    const ContactContent content = contacts::with(
        {contacts::composite(SocialProfile, {{"service", "_$!<s>!$_"}, {"url", "_$!<u>!$_"}})});
    EXPECT_EQ(noteOf(kGoogleLayout, content), "\tOther Contact Info:\t<<s:u>>\t");
    EXPECT_EQ(noteOf(kOutlookLayout, content), "\tOther Contact Info:\t<<_$!<s>!$_:_$!<u>!$_>>\t");
}
