// SPDX-License-Identifier: MIT
// Constants, tables and dates.
#include "model/PRContactItem.h"
#include "translators/contact/CContactHelper.h"
#include "translators/contact/marking_translation.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace {

static_assert(!std::is_polymorphic_v<CContactHelper>);
static_assert(std::is_copy_constructible_v<CContactHelper>);
static_assert(std::is_copy_assignable_v<CContactHelper>);

TEST(ContactHelper, ConstantsAreTheTokensAndKeysOfThePhone)
{
    struct {
        const QString& constant;
        const char* value = nullptr;
    } const rows[] = {
        {CContactHelper::CATE_HOME, "_$!<Home>!$_"},
        {CContactHelper::CATE_HOMEPAGE, "_$!<HomePage>!$_"},
        {CContactHelper::CATE_IPHONE, "iPhone"},
        {CContactHelper::CATE_MAIN, "_$!<Main>!$_"},
        {CContactHelper::CATE_MOBILE, "_$!<Mobile>!$_"},
        {CContactHelper::CATE_OTHER, "_$!<Other>!$_"},
        {CContactHelper::CATE_PAGER, "_$!<Pager>!$_"},
        {CContactHelper::CATE_WORK, "_$!<Work>!$_"},
        {CContactHelper::PROP_KEY_BIRTHDAY, "birthday"},
        {CContactHelper::PROP_KEY_NOTES, "notes"},
        {CContactHelper::VALUE_KEY_CITY, "City"},
        {CContactHelper::VALUE_KEY_COUNTRY, "Country"},
        {CContactHelper::VALUE_KEY_SERVICE, "service"},
        {CContactHelper::VALUE_KEY_STATE, "State"},
        {CContactHelper::VALUE_KEY_STREET, "Street"},
        {CContactHelper::VALUE_KEY_USER, "username"},
        {CContactHelper::VALUE_KEY_ZIP, "ZIP"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.constant.toStdString(), row.value);
    }
}

struct LabelRow {
    const char* token = nullptr;
    const char* label = nullptr;
};

constexpr LabelRow kLabels[] = {
    {"_$!<Mobile>!$_", "mobile"},
    {"iPhone", "iPhone"},
    {"_$!<Home>!$_", "home"},
    {"_$!<Work>!$_", "work"},
    {"_$!<Anniversary>!$_", "anniversary"},
    {"_$!<Other>!$_", "other"},
    {"_$!<Main>!$_", "main"},
    {"_$!<OtherFAX>!$_", "other fax"},
    {"_$!<HomeFAX>!$_", "home fax"},
    {"_$!<WorkFAX>!$_", "work fax"},
    {"_$!<Pager>!$_", "pager"},
    {"_$!<HomePage>!$_", "home page"},
    {"_$!<Mother>!$_", "mother"},
    {"_$!<Father>!$_", "father"},
    {"_$!<Parent>!$_", "parent"},
    {"_$!<Brother>!$_", "brother"},
    {"_$!<Sister>!$_", "sister"},
    {"_$!<Child>!$_", "child"},
    {"_$!<Friend>!$_", "friend"},
    {"_$!<Spouse>!$_", "spouse"},
    {"_$!<Partner>!$_", "partner"},
    {"_$!<Assistant>!$_", "assistant"},
    {"_$!<Manager>!$_", "manager"},
    {"twitter", "Twitter"},
    {"facebook", "Facebook"},
    {"flickr", "Flickr"},
    {"linkedin", "LinkedIn"},
    {"myspace", "Myspace"},
    {"sinaweibo", "Sina Weibo"},
    {"birthday", "birthday"},
    {"_$!<School>!$_", "School"},
    {"_$!<ElderBrother>!$_", "Elder Brother"},
    {"_$!<ElderSister>!$_", "Elder Sister"},
    {"_$!<YoungerBrother>!$_", "Younger Brother"},
    {"_$!<YoungerSister>!$_", "Younger Sister"},
    {"_$!<Husband>!$_", "Husband"},
    {"_$!<Wife>!$_", "Wife"},
    {"_$!<Son>!$_", "Son"},
    {"_$!<Daughter>!$_", "Daughter"},
    {"_$!<Colleague>!$_", "Colleague"},
};
static_assert(std::size(kLabels) == 40);

TEST(ContactHelper, EachTokenHasItsEnglishLabelInSmallLettersOrCapitals)
{
    const MarkingTranslation translation; // is not asked
    CContactHelper helper;
    for (const LabelRow& row : kLabels) {
        EXPECT_EQ(helper.convertLabel(row.token, false).toStdString(), row.label);
    }
}

TEST(ContactHelper, TheEnglishLabelIsTheSourceTextOfTheLocalizedOne)
{
    CContactHelper helper;
    for (const LabelRow& row : kLabels) {
        EXPECT_EQ(helper.convertLabel(row.token, true).toStdString(), row.label);
    }
    const MarkingTranslation translation;
    for (const LabelRow& row : kLabels) {
        EXPECT_EQ(helper.convertLabel(row.token, true), QString("<%1>").arg(row.label));
    }
}

TEST(ContactHelper, ALabelOfTheUsersOwnComesBackUntranslated)
{
    const MarkingTranslation translation;
    CContactHelper helper;
    for (const QString label : {"Work", "work", "_$!<work>!$_", "_$!<Work>!$_ ", "_$!<WORK>!$_",
             "IPHONE", "Twitter", "notes", "mobile", "", "%1", "Büro \xF0\x9F\x98\x80"}) {
        SCOPED_TRACE(label.toStdString());
        EXPECT_EQ(helper.convertLabel(label, false), label);
        EXPECT_EQ(helper.convertLabel(label, true), label);
    }
}

TEST(ContactHelper, GroupHeadingsAreTranslatedAndOthersEmpty)
{
    struct {
        int propType = 0;
        const char* heading = "";
    } const rows[] = {
        {3, "<Phone>"},
        {4, "<Email>"},
        {22, "<URL>"},
        {5, "<Address>"},
        {12, "<Date>"},
        {23, "<Related Name>"},
        {46, "<Social Profile>"},
        {13, "<Instant Message>"},
        {16, ""},
        {0, ""},
        {-1, ""},
        {1, ""},
        {47, ""},
    };
    const MarkingTranslation translation;
    const CContactHelper helper;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.propType);
        EXPECT_EQ(helper.convertGroupLabel(row.propType).toStdString(), row.heading);
    }
}

TEST(ContactHelper, HeadingsOfBirthdayAndNotesAreTranslated)
{
    const CContactHelper helper;
    EXPECT_EQ(helper.groupLabelForBirthday(), "Birthday");
    EXPECT_EQ(helper.groupLabelForNotes(), "Notes");
    const MarkingTranslation translation;
    EXPECT_EQ(helper.groupLabelForBirthday(), "<Birthday>");
    EXPECT_EQ(helper.groupLabelForNotes(), "<Notes>");
}

TEST(ContactHelper, ServicesAreKnownInAnyCaseAndNotTranslated)
{
    struct {
        const char* key = nullptr;
        const char* name = nullptr;
    } const rows[] = {
        {"google", "Google Talk"},
        {"googletalk", "Google Talk"},
        {"GoogleTalk", "Google Talk"},
        {"yahoo", "Yahoo!"},
        {"msn", "MSN"},
        {"icq", "ICQ"},
        {"jabber", "Jabber"},
        {"skype", "Skype"},
        {"SKYPE", "Skype"},
        {"qq", "QQ"},
        {"facebook", "Facebook"},
        {"gadu", "GaduGadu"},
        {"aim", "AIM"},
        {"twitter", "twitter"},
        {"WhatsApp", "WhatsApp"},
        {" skype", " skype"},
        {"GaduGadu", "GaduGadu"},
        {"", ""},
    };
    const MarkingTranslation translation;
    CContactHelper helper;
    for (const auto& row : rows) {
        EXPECT_EQ(helper.convertSpecialValue(row.key).toStdString(), row.name);
    }
}

TEST(ContactHelper, CopiesAnswerLikeTheirOriginal)
{
    CContactHelper filled;
    filled.convertLabel("_$!<Work>!$_", false);
    filled.convertSpecialValue("skype");
    CContactHelper copy(filled);
    CContactHelper assigned;
    assigned = copy;
    for (CContactHelper* helper : {&filled, &copy, &assigned}) {
        EXPECT_EQ(helper->convertLabel("_$!<Home>!$_", false), "home");
        EXPECT_EQ(helper->convertSpecialValue("qq"), "QQ");
    }
}

QDateTime utc(int year, int month, int day, int hour)
{
    return {QDate(year, month, day), QTime(hour, 0), Qt::UTC};
}

// The tests' clock is two hours ahead of UTC.
TEST(ContactHelperDate, IsTheLocalDay)
{
    struct {
        const char* what = "";
        QDateTime date;
        const char* format = nullptr;
        const char* text = "";
    } const rows[] = {
        {"without a format", utc(2024, 5, 1, 12), nullptr, "2024-05-01"},
        {"by the format", utc(2024, 5, 1, 12), "yyyy-MM-dd", "2024-05-01"},
        {"any format", utc(2024, 5, 1, 12), "d.M.yy", "1.5.24"},
        {"an empty format", utc(2024, 5, 1, 12), "", ""},
        {"already tomorrow", utc(2024, 5, 31, 22), "yyyy-MM-dd", "2024-06-01"},
        {"already tomorrow, without a format", utc(2024, 5, 31, 22), nullptr, "2024-06-01"},
        {"long ago", utc(1899, 12, 31, 12), "yyyy-MM-dd", "1899-12-31"},
        {"no date", {}, "yyyy-MM-dd", ""},
        {"no date, without a format", {}, nullptr, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(CContactHelper::getDateDesc(row.date, row.format).toStdString(), row.text);
    }
}

TEST(ContactHelperDate, OfTheYear1604HasNoYearWhateverTheFormat)
{
    struct {
        const char* what = "";
        QDateTime date;
        const char* format = nullptr;
        const char* text = "";
    } const rows[] = {
        {"without a format", utc(1604, 4, 12, 12), nullptr, "04-12"},
        {"with a format", utc(1604, 4, 12, 12), "yyyy-MM-dd", "04-12"},
        {"the leap day", utc(1604, 2, 29, 0), "dd.MM.yyyy", "02-29"},
        {"its own clock is read, not the local one", utc(1604, 12, 31, 23), nullptr, "12-31"},
        {"the first moment", utc(1604, 1, 1, 0), nullptr, "01-01"},
        {"the year before, though not by the local clock", utc(1603, 12, 31, 23), "yyyy-MM-dd",
            "1604-01-01"},
        {"the year after", utc(1605, 1, 1, 0), "yyyy-MM-dd", "1605-01-01"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(CContactHelper::getDateDesc(row.date, row.format).toStdString(), row.text);
    }
}

} // namespace
