// SPDX-License-Identifier: MIT
// Cards without photos: name, lines, groups.
#include "translators/contact/CContact2HtmlTranslate.h"
#include "translators/contact/card_page.h"
#include "translators/contact/marking_translation.h"

namespace {

// --- what stands around the cards

class ContactPageFrame : public testing::Test {
protected:
    PRContactData data;
    CContact2HtmlTranslate translator{&data};
    RecordingPage page;
};

TEST_F(ContactPageFrame, PrepareWritesNothing)
{
    EXPECT_TRUE(translator.prepare(&page, "Anna's Contacts", nullptr));
    EXPECT_EQ(page.writes, QStringList());
    EXPECT_EQ(page.files, QStringList());
}

TEST_F(ContactPageFrame, HeaderCopiesBothImagesThoughNoCardMayNeedThem)
{
    EXPECT_TRUE(translator.writeHeader(&page)); // although neither can be copied
    EXPECT_EQ(page.files,
        QStringList({"copy /res/DataExport/default/contact_person.png as default_contact.png",
            "copy /res/DataExport/deleted.png as deleted.png"}));
}

TEST_F(ContactPageFrame, HeaderOpensThePageWithTheEscapedTitle)
{
    ASSERT_TRUE(translator.prepare(&page, "A & B's <Contacts>\n%1", nullptr));
    EXPECT_TRUE(translator.writeHeader(&page));
    EXPECT_EQ(page.text().toStdString(), R"(<div id="wrap"><div id="top"><h1>)"
                                         "A &amp; B's &lt;Contacts&gt;<br>%1</h1></div>");
}

TEST_F(ContactPageFrame, FooterClosesThePage)
{
    EXPECT_TRUE(translator.writeFooter(&page));
    EXPECT_EQ(page.text(), "</div>");
}

TEST_F(ContactPageFrame, EachOfThemFailsWithItsWrite)
{
    RecordingPage header(1);
    EXPECT_FALSE(translator.writeHeader(&header));
    RecordingPage footer(1);
    EXPECT_FALSE(translator.writeFooter(&footer));
    RecordingPage record(1);
    EXPECT_FALSE(translator.writeItem(&record, contactOf({}).get()));
}

// --- name and lines

TEST(ContactCard, OfAnEmptyContactHasEmptyLinesAndAnEmptyTable)
{
    EXPECT_EQ(drawnCard({}, 0, "").toStdString(),
        R"(<div class="main nc"><div class="main-top"><div class="main-pic">)"
        R"(<img src="image/default_contact.png" /></div><div class="main-text">)"
        R"(<div class="main-title"></div><p></p><p></p><p></p></div></div>)"
        "<table border=0 cellspacing=0 cellpadding=0></table></div>");
}

TEST(ContactCard, OfADeletedContactIsRedAndMarked)
{
    EXPECT_EQ(drawnCard({}, Deleted).toStdString(),
        (deletedCardBegin("Mia") + kNoLines + kTableBegin + kCardEnd).toStdString());
}

TEST(ContactCard, IsMarkedForNoOtherFlag)
{
    EXPECT_EQ(drawnCard({}, Locked | PartlySelected | InCalendarRange), drawnCard({}));
}

TEST(ContactCard, HasTheNameUnescaped)
{
    const QString name = R"(<b>Mia</b> & "Co" %1%2%3)";
    EXPECT_EQ(drawnCard({}, 0, name), cardBegin(name) + kNoLines + kTableBegin + kCardEnd);
    EXPECT_EQ(
        drawnCard({}, Deleted, name), deletedCardBegin(name) + kNoLines + kTableBegin + kCardEnd);
}

TEST(ContactCard, HasTheLinesUnescapedInTheirOrder)
{
    const ContactContent content{
        .firstPhonetic = "<i>", .nickname = "a\n<b>", .jobTitle = "R&D %1"};
    EXPECT_EQ(drawnLines(content).toStdString(), "<p><i></p><p>\"a\n<b>\"</p><p>R&D %1</p>");
}

TEST(ContactCard, JoinsTheFilledTextsOfALine)
{
    struct {
        const char* what = nullptr;
        ContactContent content;
        QString lines;
    } const rows[] = {
        {"first phonetic", {.firstPhonetic = "a"}, "<p>a</p><p></p><p></p>"},
        {"last phonetic", {.lastPhonetic = "b"}, "<p>b</p><p></p><p></p>"},
        {"both", {.firstPhonetic = "a", .lastPhonetic = "b"}, "<p>a b</p><p></p><p></p>"},
        {"other ways to speak it",
            {.middlePhonetic = "a", .organizationPhonetic = "b", .firstPronunciation = "c"},
            kNoLines},
        {"job title", {.jobTitle = "a"}, "<p></p><p></p><p>a</p>"},
        {"department", {.department = "b"}, "<p></p><p></p><p>b</p>"},
        {"organization", {.organization = "c"}, "<p></p><p></p><p>c</p>"},
        {"title, organization", {.jobTitle = "a", .organization = "c"},
            "<p></p><p></p><p>a - c</p>"},
        {"all of the job", {.jobTitle = "a", .department = "b", .organization = "c"},
            "<p></p><p></p><p>a - b - c</p>"},
        {"names are not lines", {.namePrefix = "a", .firstName = "b", .lastName = "c"}, kNoLines},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(drawnLines(row.content).toStdString(), row.lines.toStdString());
    }
}

TEST(ContactCard, PutsTheNicknameBetweenQuotesWithoutDoublingItsOwn)
{
    EXPECT_EQ(drawnLines({.nickname = "Mimi"}), R"(<p></p><p>"Mimi"</p><p></p>)");
    EXPECT_EQ(drawnLines({.nickname = R"(a "b" c)"}), R"(<p></p><p>"a "b" c"</p><p></p>)");
}

// --- groups

TEST(ContactCardGroups, StandInTheirOrderBetweenBirthdayAndNote)
{
    ContactContent content = holding({
        composite(InstantMessage, "_$!<Home>!$_", {{"service", "skype"}, {"username", "mia"}}),
        composite(SocialProfile, "_$!<Home>!$_", {{"service", "twitter"}, {"username", "mia"}}),
        plain(RelatedName, "_$!<Mother>!$_", "Eva"),
        plain(Date, "_$!<Anniversary>!$_", "297043200"), // 2010-06-01
        composite(Address, "_$!<Work>!$_", {{"City", "Rome"}, {"Street", "Via 1"}}),
        plain(WebAddress, "_$!<HomePage>!$_", "https://a.example"),
        plain(Email, "_$!<Work>!$_", "mia@a.example"),
        plain(Phone, "_$!<Mobile>!$_", "+49 171"),
    });
    content.birthday = "-496195200"; // 1985-04-12
    content.note = "Likes tea";
    const QString expected =
        heading("Phone") + lastRow("mobile", "+49 171") + heading("Email")
        + lastRow("work", "mia@a.example") + heading("URL")
        + lastRow("home page", "https://a.example") + heading("Address")
        + lastRow("work", "Via 1 Rome") + heading("Birthday") + lastRow("birthday", "1985-04-12")
        + heading("Date") + lastRow("anniversary", "2010-06-01") + heading("Related Name")
        + lastRow("mother", "Eva") + heading("Social Profile") + lastRow("Twitter", "@mia")
        + heading("Instant Message") + lastRow("home", "mia (Skype)") + heading("Notes")
        + lastRow("notes", "Likes tea");
    EXPECT_EQ(drawnRows(content), expected.toStdString());
}

TEST(ContactCardGroups, LeaveOutAllOtherKinds)
{
    std::vector<PRContactProperty> others;
    for (const int type : {-1, 0, 1, 2, 6, 11, 14, 16, 21, 24, 45, 47, 1'000}) {
        others.push_back(plain(type, "label", "value"));
    }
    EXPECT_EQ(drawnRows(holding(std::move(others))), "");
}

TEST(ContactCardGroups, CloseWithTheLastPropertyOfTheirKind)
{
    EXPECT_EQ(drawnRows(holding({plain(Phone, "a", "1"), plain(Email, "x", "y"),
                  plain(Phone, "b", "2"), plain(Phone, "b", "2")})),
        (heading("Phone") + innerRow("a", "1") + innerRow("b", "2") + lastRow("b", "2")
            + heading("Email") + lastRow("x", "y"))
            .toStdString());
}

TEST(ContactCardGroups, ShowAPropertyWithoutLabelOrValue)
{
    EXPECT_EQ(drawnRows(holding({plain(Phone, "", "")})),
        (heading("Phone") + lastRow("", "")).toStdString());
}

TEST(ContactCardGroups, AreTranslatedButTheUsersOwnLabels)
{
    const MarkingTranslation translation;
    ContactContent content =
        holding({plain(Phone, "_$!<Mobile>!$_", "1"), plain(Phone, "boat", "2")});
    content.birthday = "0";
    content.altBirthday = {.type = 1, .label = "lunar", .desc = "2-23"};
    content.note = "n";
    EXPECT_EQ(drawnRows(content),
        (heading("&lt;Phone&gt;") + innerRow("&lt;mobile&gt;", "1") + lastRow("boat", "2")
            + heading("&lt;Birthday&gt;") + innerRow("&lt;birthday&gt;", "2001-01-01")
            + lastRow("lunar", "2-23") + heading("&lt;Notes&gt;") + lastRow("notes", "n"))
            .toStdString());
}

TEST(ContactCardBirthdays, StandUnderOneHeading)
{
    struct {
        const char* what = nullptr;
        QString birthday;
        AltBirthday alternative;
        QString rows;
    } const rows[] = {
        {"none", "", {}, ""},
        {"no alternative without a type", "", {.label = "lunar", .desc = "2-23"}, ""},
        {"birthday", "-496195200", {}, heading("Birthday") + lastRow("birthday", "1985-04-12")},
        {"both", "-496195200", {.type = 1, .label = "lunar", .desc = "2-23"},
            heading("Birthday") + innerRow("birthday", "1985-04-12") + lastRow("lunar", "2-23")},
        {"alternative alone", "", {.type = 1, .label = "lunar", .desc = "2-23"},
            heading("Birthday") + lastRow("lunar", "2-23")},
        {"any type but 0", "", {.type = -1, .label = "<", .desc = ">"},
            heading("Birthday") + lastRow("&lt;", "&gt;")},
        {"no number", "soon", {}, heading("Birthday") + lastRow("birthday", "2001-01-01")},
        {"without a year", "-12519144000", {}, // 1604-04-14
            heading("Birthday") + lastRow("birthday", "04-14")},
        {"no date", "nan", {}, heading("Birthday") + lastRow("birthday", "")},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(drawnRows({.birthday = row.birthday, .altBirthday = row.alternative}),
            row.rows.toStdString());
    }
}

TEST(ContactCardBirthdays, StandBeforeTheDatesThoughThereAreNone)
{
    ContactContent content =
        holding({plain(RelatedName, "a", "b"), composite(Address, "c", {{"City", "Rome"}})});
    content.birthday = "0";
    EXPECT_EQ(drawnRows(content),
        (heading("Address") + lastRow("c", "Rome") + heading("Birthday")
            + lastRow("birthday", "2001-01-01") + heading("Related Name") + lastRow("a", "b"))
            .toStdString());
}

// --- what a live contact keeps hidden

const QMap<QString, QString> kAddressWithMore{{"City", "Rome"}, {"Street", "Via 1"},
    {"CountryCode", "it"}, {"zone", "<z>"}, {"Door", "7"}, {"A&B", "1\n2"}};

TEST(HiddenEntries, OfALiveContactStayHidden)
{
    EXPECT_EQ(drawnRows(holding({composite(Address, "a", kAddressWithMore)})),
        (heading("Address") + lastRow("a", "Via 1 Rome")).toStdString());
}

TEST(HiddenEntries, OfADeletedContactStandBelowTheirPropertyAndTakeTheEndOfTheGroup)
{
    EXPECT_EQ(drawnRows(holding({composite(Address, "a", kAddressWithMore)}), Deleted),
        (heading("Address") + innerRow("a", "Via 1 Rome") + innerRow("A&amp;B", "1<br>2")
            + innerRow("Door", "7") + lastRow("zone", "&lt;z&gt;"))
            .toStdString());
}

TEST(HiddenEntries, OfAnEarlierPropertyLeaveTheEndToTheLastOne)
{
    EXPECT_EQ(drawnRows(holding({composite(Address, "a", kAddressWithMore),
                            composite(Address, "b", {{"City", "Bonn"}})}),
                  Deleted),
        (heading("Address") + innerRow("a", "Via 1 Rome") + innerRow("A&amp;B", "1<br>2")
            + innerRow("Door", "7") + innerRow("zone", "&lt;z&gt;") + lastRow("b", "Bonn"))
            .toStdString());
}

TEST(HiddenEntries, LeaveOutWhatIsShownElsewhere)
{
    EXPECT_EQ(drawnRows(holding({plain(Phone, "a", "1"), composite(SocialProfile, "b",
                                                             {{"service", "x"}, {"username", "mia"},
                                                                 {"url", "https://x.example"}})}),
                  Deleted),
        (heading("Phone") + lastRow("a", "1") + heading("Social Profile") + lastRow("x", "mia"))
            .toStdString());
}

} // namespace
