// SPDX-License-Identifier: MIT
#include "translators/contact/CContact2VCFTranslate.h"
#include "translators/contact/vcard_lines.h"

namespace {

class ContactVCard : public testing::Test {
protected:
    std::string lines(ContactContent content, const QString& name = {})
    {
        return linesOf(translator, std::move(content), name);
    }
    std::string lines(const PRContactProperty& property) { return lines(holding({property})); }

    PRContactData data;
    CContact2VCFTranslate translator{&data};
};

TEST_F(ContactVCard, OfAnEmptyContactIsItsFrame)
{
    EXPECT_EQ(cardOf(translator, {}), "BEGIN:VCARD\r\nVERSION:2.1\r\nEND:VCARD\r\n\r\n\r\n");
}

TEST_F(ContactVCard, HasTheseLinesInThisOrder)
{
    EXPECT_EQ(lines(everything(), "Dr. Mia Huber"),
        "FN;CHARSET=utf-8:Dr. Mia Huber\r\n"
        "N;CHARSET=utf-8:Dr.;Mia;Anna;Huber;jun.\r\n"
        "TITLE;CHARSET=utf-8:Pilot\r\n"
        "ORG;CHARSET=utf-8:Sky Ltd;Flight\r\n"
        "NICKNAME;CHARSET=utf-8:Mimi\r\n"
        "BDAY;CHARSET=utf-8:1985-04-12\r\n"
        "NOTE;CHARSET=utf-8:Tea\r\n"
        "ADR;TYPE=home;CHARSET=utf-8:;;A;B\r\n"
        "TEL;home;CHARSET=utf-8:+49 171\r\n"
        "TEL;work;fax;CHARSET=utf-8:+49 30\r\n"
        "EMAIL;TYPE=internet;CHARSET=utf-8:mia@a.example\r\n"
        "PHOTO;TYPE=JPEG;ENCODING=BASE64:/9j/4A==\r\n"
        "URL;TYPE=home;CHARSET=utf-8:https://a.example\r\n"
        "X-SKYPE;mia.h\r\n");
}

TEST_F(ContactVCard, HasOnlyTheFilledPartsOfANameWithoutPlaces)
{
    struct {
        const char* what = nullptr;
        ContactContent content;
        std::string line;
    } const rows[] = {
        {"prefix", {.namePrefix = "a"}, "N;CHARSET=utf-8:a\r\n"},
        {"first name", {.firstName = "a"}, "N;CHARSET=utf-8:a\r\n"},
        {"middle name", {.middleName = "a"}, "N;CHARSET=utf-8:a\r\n"},
        {"last name", {.lastName = "a"}, "N;CHARSET=utf-8:a\r\n"},
        {"suffix", {.nameSuffix = "a"}, "N;CHARSET=utf-8:a\r\n"},
        {"around a gap", {.firstName = "a", .lastName = "b"}, "N;CHARSET=utf-8:a;b\r\n"},
        {"phonetic names are none", {.firstPhonetic = "a", .lastPhonetic = "b"}, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(lines(row.content), row.line);
    }
}

TEST_F(ContactVCard, HasOnlyTheFilledPartsOfAnOrganizationWithoutPlaces)
{
    EXPECT_EQ(lines({.organization = "a"}), "ORG;CHARSET=utf-8:a\r\n");
    EXPECT_EQ(lines({.department = "a"}), "ORG;CHARSET=utf-8:a\r\n");
}

TEST_F(ContactVCard, HasNoNameLineForNamePartsAndNoNamePartsForAName)
{
    EXPECT_EQ(lines({}, "Mia"), "FN;CHARSET=utf-8:Mia\r\n");
    EXPECT_EQ(lines({.firstName = "Mia"}), "N;CHARSET=utf-8:Mia\r\n");
}

TEST_F(ContactVCard, WritesDatesWithTheYearTheyHave)
{
    struct {
        const char* what = nullptr;
        QString birthday;
        std::string line;
    } const rows[] = {
        {"a day", "-496195200", "BDAY;CHARSET=utf-8:1985-04-12\r\n"},
        {"late in UTC, the next day here", "82800", "BDAY;CHARSET=utf-8:2001-01-02\r\n"},
        {"the year 1604 stands for none", "-12519144000", "BDAY;CHARSET=utf-8:04-14\r\n"},
        {"no number", "soon", "BDAY;CHARSET=utf-8:2001-01-01\r\n"},
        {"no date", "nan", "BDAY;CHARSET=utf-8:\r\n"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(lines({.birthday = row.birthday}), row.line);
    }
}

TEST_F(ContactVCard, EscapesNothingAndLetsLineFeedsBreakTheLine)
{
    const QString odd = "a;b,c\\d:\ne\r\nf %1 =41";
    const std::string text = odd.toStdString();
    EXPECT_EQ(
        lines(
            {.firstName = odd, .nickname = odd, .jobTitle = odd, .organization = odd, .note = odd},
            odd),
        "FN;CHARSET=utf-8:" + text + "\r\nN;CHARSET=utf-8:" + text
            + "\r\nTITLE;CHARSET=utf-8:" + text + "\r\nORG;CHARSET=utf-8:" + text
            + "\r\nNICKNAME;CHARSET=utf-8:" + text + "\r\nNOTE;CHARSET=utf-8:" + text + "\r\n");
    EXPECT_EQ(lines(plain(Phone, "", odd)), "TEL;home;CHARSET=utf-8:" + text + "\r\n");
    EXPECT_EQ(lines(plain(Email, "", odd)), "EMAIL;TYPE=internet;CHARSET=utf-8:" + text + "\r\n");
    EXPECT_EQ(lines(plain(WebAddress, "", odd)), "URL;TYPE=home;CHARSET=utf-8:" + text + "\r\n");
}

// --- types

TEST_F(ContactVCard, TakesTheLastWordThatIsAnywhereInTheLabelForTheType)
{
    struct {
        QString label;
        std::string type;
    } const rows[] = {
        {"", "home"},
        {"_$!<Home>!$_", "home"},
        {"_$!<HomePage>!$_", "home"},
        {"_$!<Work>!$_", "work"},
        {"_$!<Other>!$_", "other"},
        {"_$!<Pager>!$_", "pager"},
        {"_$!<Mobile>!$_", "home"},
        {"iPhone", "home"},
        {"_$!<Main>!$_", "home"},
        {"_$!<WorkFAX>!$_", "work"},
        {"_$!<OtherFAX>!$_", "other"},
        {"_$!<Mother>!$_", "other"},
        {"_$!<Brother>!$_", "other"},
        {"boat", "home"},
        {"HOMEWORK", "work"},
        {"another workshop", "other"},
        {"pager at home", "pager"},
        {"other pager at work", "pager"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.label.toStdString());
        EXPECT_EQ(lines(plain(WebAddress, row.label, "x")),
            "URL;TYPE=" + row.type + ";CHARSET=utf-8:x\r\n");
        EXPECT_EQ(lines(composite(Address, row.label, {{"City", "x"}})),
            "ADR;TYPE=" + row.type + ";CHARSET=utf-8:;;x\r\n");
    }
}

TEST_F(ContactVCard, OpensPhonesWithABareTypeThatIsNeverOther)
{
    struct {
        QString label;
        std::string begin;
    } const rows[] = {
        {"_$!<Home>!$_", "TEL;home"},
        {"_$!<Work>!$_", "TEL;work"},
        {"_$!<Pager>!$_", "TEL;pager"},
        {"_$!<Mobile>!$_", "TEL;home"},
        {"_$!<Other>!$_", "TEL;home"},
        {"_$!<HomeFAX>!$_", "TEL;home;fax"},
        {"_$!<WorkFAX>!$_", "TEL;work;fax"},
        {"_$!<OtherFAX>!$_", "TEL;home;fax"},
        {"telefax", "TEL;home;fax"},
        {"Fairfax office", "TEL;home;fax"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.label.toStdString());
        EXPECT_EQ(lines(plain(Phone, row.label, "1")), row.begin + ";CHARSET=utf-8:1\r\n");
    }
}

// --- addresses

TEST_F(ContactVCard, HasOnlyTheFilledPartsOfAnAddressWithoutPlaces)
{
    struct {
        const char* what = nullptr;
        QMap<QString, QString> entry;
        std::string value;
    } const rows[] = {
        {"all parts",
            {{"Country", "e"}, {"ZIP", "d"}, {"State", "c"}, {"City", "b"}, {"Street", "a"}},
            "a;b;c;d;e"},
        {"a city first", {{"City", "b"}, {"Country", "e"}}, "b;e"},
        {"an empty street", {{"Street", ""}, {"City", "b"}}, "b"},
        {"parts that are not shown", {{"CountryCode", "de"}, {"zone", "x"}}, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(lines(composite(Address, "", row.entry)),
            "ADR;TYPE=home;CHARSET=utf-8:;;" + row.value + "\r\n");
    }
}

TEST_F(ContactVCard, PutsABlankForEachLineFeedOfAnAddressAndLeavesTheRest)
{
    EXPECT_EQ(lines(composite(Address, "", {{"Street", "a\n\nb;c\\"}, {"City", "d\r\n"}})),
        "ADR;TYPE=home;CHARSET=utf-8:;;a  b;c\\;d\r \r\n");
}

TEST_F(ContactVCard, WritesAnAddressWithoutParts)
{
    EXPECT_EQ(lines(plain(Address, "", "in one line\nand another")),
        "ADR;TYPE=home;CHARSET=utf-8:;;in one line and another\r\n");
    EXPECT_EQ(lines(plain(Address, "", "")), "ADR;TYPE=home;CHARSET=utf-8:;;\r\n");
}

// --- messengers

TEST_F(ContactVCard, SeparatesTheUserOfAMessengerByASemicolon)
{
    struct {
        const char* what = nullptr;
        QMap<QString, QString> entry;
        std::string line;
    } const rows[] = {
        {"both", {{"service", "Skype"}, {"username", "mia"}}, "X-SKYPE;mia\r\n"},
        {"no mark for this service", {{"service", "twitter"}, {"username", "m"}},
            "X-TWITTER;m\r\n"},
        {"an empty service counts", {{"service", ""}, {"username", "mia"}}, "X-;mia\r\n"},
        {"no service", {{"username", "mia"}}, ""},
        {"no user", {{"service", "Skype"}}, ""},
        {"an empty user", {{"service", "Skype"}, {"username", ""}}, ""},
        {"neither", {}, ""},
        {"texts with places", {{"service", "%2"}, {"username", "%1"}}, "X-%2;%1\r\n"},
        {"nothing escaped", {{"service", "a;b"}, {"username", "c:d\\"}}, "X-A;B;c:d\\\r\n"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(lines(composite(InstantMessage, "a", row.entry)), row.line);
    }
}

TEST_F(ContactVCard, HasNoLineForOtherKinds)
{
    for (const int type : {0, 12, 16, 23, 46}) {
        SCOPED_TRACE(type);
        EXPECT_EQ(lines(plain(type, "a", "1")), "");
    }
}

TEST_F(ContactVCard, KeepsTheOrderWithinAKind)
{
    EXPECT_EQ(lines(holding({plain(Email, "", "b"), plain(Phone, "", "2"), plain(Email, "", "a"),
                  plain(Phone, "", "1"), plain(Email, "", "b")})),
        "TEL;home;CHARSET=utf-8:2\r\nTEL;home;CHARSET=utf-8:1\r\n"
        "EMAIL;TYPE=internet;CHARSET=utf-8:b\r\nEMAIL;TYPE=internet;CHARSET=utf-8:a\r\n"
        "EMAIL;TYPE=internet;CHARSET=utf-8:b\r\n");
}

} // namespace
