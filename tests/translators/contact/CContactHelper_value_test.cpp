// SPDX-License-Identifier: MIT
// What is read of a property.
#include "translators/contact/CContactHelper.h"
#include "translators/contact/contact_builder.h"
#include "translators/contact/marking_translation.h"

#include <gtest/gtest.h>

namespace {

using Entry = QMap<QString, QString>;

TEST(ContactHelperValue, OfAnAccountIsTheUserWithTheService)
{
    struct {
        const char* what = "";
        int type = 0;
        Entry entry;
        const char* value = "";
    } const rows[] = {
        {"messenger", 13, {{"service", "skype"}, {"username", "mia"}}, "mia (Skype)"},
        {"a service in capitals", 13, {{"service", "MSN"}, {"username", "mia"}}, "mia (MSN)"},
        {"an unknown one", 13, {{"service", "Signal"}, {"username", "mia"}}, "mia (Signal)"},
        {"no service", 13, {{"username", "mia"}}, "mia"},
        {"an empty service", 13, {{"service", ""}, {"username", "mia"}}, "mia"},
        {"no user: the bracket keeps its blank", 13, {{"service", "skype"}}, " (Skype)"},
        {"neither", 13, {{"service", ""}}, ""},
        {"twitter: @, and the small letter of its key", 13,
            {{"service", "twitter"}, {"username", "bob"}}, "@bob (twitter)"},
        {"Twitter: no @", 13, {{"service", "Twitter"}, {"username", "bob"}}, "bob (Twitter)"},
        {"twitter without a user", 13, {{"service", "twitter"}}, "@ (twitter)"},
        {"social profile: the service is its label", 46,
            {{"service", "facebook"}, {"username", "mia"}, {"url", "http://x"}}, "mia"},
        {"twitter profile", 46, {{"service", "twitter"}, {"username", "bob"}}, "@bob"},
        {"twitter profile without a user", 46, {{"service", "twitter"}}, "@"},
        {"parts of an address beside the account", 5, {{"username", "mia"}, {"City", "Berlin"}},
            "mia"},
        {"places in texts stay", 13, {{"service", "%1"}, {"username", "%1 %2"}}, "%1 %2 (%1)"},
    };
    CContactHelper helper;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const PRContactProperty property = composite(row.type, "", row.entry);
        EXPECT_EQ(helper.getPropValue(&property, "|").toStdString(), row.value);
    }
}

TEST(ContactHelperValue, OfAnAddressJoinsTheFilledPartsInTheirOrder)
{
    struct {
        const char* what = "";
        Entry entry;
        const char* value = "";
    } const rows[] = {
        {"all",
            {{"City", "Berlin"}, {"Country", "Germany"}, {"State", "BE"}, {"Street", "Main St 1"},
                {"ZIP", "10115"}},
            "Main St 1|Berlin|BE|10115|Germany"},
        {"the city alone", {{"City", "Berlin"}}, "Berlin"},
        {"empty parts leave no gap",
            {{"Street", ""}, {"City", "Berlin"}, {"State", ""}, {"ZIP", ""},
                {"Country", "Germany"}},
            "Berlin|Germany"},
        {"a blank is no empty part", {{"Street", " "}, {"City", "Berlin"}}, " |Berlin"},
        {"the code of the country is not shown", {{"CountryCode", "de"}, {"ZIP", "1"}}, "1"},
        {"line feeds stay", {{"Street", "a\nb"}, {"ZIP", "1"}}, "a\nb|1"},
        {"nothing of an address", {{"url", "http://x"}}, ""},
    };
    CContactHelper helper;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const PRContactProperty property = composite(5, "", row.entry);
        EXPECT_EQ(helper.getPropValue(&property, "|").toStdString(), row.value);
    }
}

TEST(ContactHelperValue, OfAPlainKindIsItsText)
{
    CContactHelper helper;
    for (const int type : {3, 4, 5, 13, 16, 22, 23, 46, 99}) {
        SCOPED_TRACE(type);
        const PRContactProperty property = plain(type, "", "694267200");
        EXPECT_EQ(helper.getPropValue(&property, "|"), "694267200");
    }
}

TEST(ContactHelperValue, OfADateIsItsDay)
{
    struct {
        const char* what = "";
        const char* seconds = "";
        const char* value = "";
    } const rows[] = {
        {"seconds since 2001", "694267200", "2023-01-01"},
        {"with a fraction", "694267199.5", "2023-01-01"},
        {"before 2001", "-496195200", "1985-04-12"},
        {"already tomorrow here", "694306800", "2023-01-02"},
        {"in the year 1604", "-12519360000", "04-12"},
        {"no number", "soon", "2001-01-01"},
        {"nothing", "", "2001-01-01"},
    };
    CContactHelper helper;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const PRContactProperty property = plain(12, "", row.seconds);
        EXPECT_EQ(helper.getPropValue(&property, "|").toStdString(), row.value);
    }
}

TEST(ContactHelperValue, ACompositeValueGoesBeforeThePlainOne)
{
    CContactHelper helper;
    for (const int type : {3, 12}) {
        const PRContactProperty property(
            {.type = type, .value = "694267200", .entry = {{"City", "Berlin"}}});
        EXPECT_EQ(helper.getPropValue(&property, "|"), "Berlin");
    }
}

TEST(ContactHelperLabel, IsTranslatedAndThatOfASocialProfileIsItsService)
{
    struct {
        const char* what = "";
        PRContactProperty property;
        const char* label = "";
    } const rows[] = {
        {"token", plain(3, "_$!<Mobile>!$_", "1"), "<mobile>"},
        {"of the user's own", plain(3, "Beach hut", "1"), "Beach hut"},
        {"profile", composite(46, "_$!<Home>!$_", {{"service", "twitter"}}), "<Twitter>"},
        {"profile of an unknown service", composite(46, "_$!<Home>!$_", {{"service", "xing"}}),
            "xing"},
        {"profile of an empty service", composite(46, "_$!<Home>!$_", {{"service", ""}}), ""},
        {"profile without a service", composite(46, "_$!<Home>!$_", {{"username", "mia"}}),
            "<home>"},
        {"messenger", composite(13, "_$!<Work>!$_", {{"service", "twitter"}}), "<work>"},
    };
    const MarkingTranslation translation;
    CContactHelper helper;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(helper.getPropLabel(&row.property).toStdString(), row.label);
    }
}

TEST(ContactHelperEntry, IsTheTextOfTheKeyOrEmpty)
{
    const CContactHelper helper;
    const PRContactProperty property = composite(5, "", {{"City", "Berlin"}});
    EXPECT_EQ(helper.getPropValueEntry(&property, "City"), "Berlin");
    EXPECT_EQ(helper.getPropValueEntry(&property, "city"), "");
    EXPECT_EQ(helper.getPropValueEntry(&property, "ZIP"), "");
    const PRContactProperty phone = plain(3, "City", "1");
    EXPECT_EQ(helper.getPropValueEntry(&phone, "City"), "");
}

TEST(ContactHelperCount, IsOfOneKind)
{
    const CContactHelper helper;
    const PRContactPrivate contact(
        holding({plain(3, "", "1"), plain(4, "", "a@b"), plain(3, "", "2"), plain(99, "", "")}));
    EXPECT_EQ(helper.getPropCount(&contact, 3), 2);
    EXPECT_EQ(helper.getPropCount(&contact, 4), 1);
    EXPECT_EQ(helper.getPropCount(&contact, 99), 1);
    EXPECT_EQ(helper.getPropCount(&contact, 5), 0);
    const PRContactPrivate nobody;
    EXPECT_EQ(helper.getPropCount(&nobody, 3), 0);
}

TEST(ContactHelperHidden, IsWhatNoOtherLineShows)
{
    struct {
        const char* what = "";
        Entry entry;
        Entry hidden;
    } const rows[] = {
        {"an unlisted key is left", {{"Street", "Main St 1"}, {"SubLocality", "Mitte"}},
            {{"SubLocality", "Mitte"}}},
        {"all nine are shown elsewhere",
            {{"Country", "a"}, {"Street", "b"}, {"ZIP", "c"}, {"City", "d"}, {"State", "e"},
                {"CountryCode", "f"}, {"username", "g"}, {"service", "h"}, {"url", "i"}},
            {}},
        {"case counts", {{"street", "x"}, {"URL", "y"}}, {{"URL", "y"}, {"street", "x"}}},
        {"an empty text is left too", {{"identifier", ""}}, {{"identifier", ""}}},
        {"nothing there", {}, {}},
    };
    const CContactHelper helper;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const PRContactProperty property = composite(5, "", row.entry);
        Entry entries{{"of before", "x"}};
        EXPECT_EQ(helper.getHiddenProperty(&property, entries), !row.hidden.isEmpty());
        EXPECT_EQ(entries, row.hidden);
        EXPECT_EQ(property.propValueEntry(), row.entry);
    }
}

} // namespace
