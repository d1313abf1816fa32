// SPDX-License-Identifier: MIT
// Whole pages: what is written when, what ends a run, and text that is out for harm.
#include "support/recording_progress.h"
#include "support/temp_tree.h"
#include "translators/contact/card_page.h"

#include <functional>

namespace {

constexpr int kMegabyte = 1'048'576;

// A contact, a record of another class, one that is not selected, a contact.
RecordList fourRecords()
{
    RecordList records;
    records.push_back(contactOf({}, "Ann"));
    records.push_back(std::make_unique<PRAbstractItem>(Record{.values = {"stranger"}}));
    records.push_back(contactOf({}, "unwanted", false));
    records.push_back(contactOf({}, "Bo"));
    return records;
}

QString emptyCard(const QString& name)
{
    return cardBegin(name) + kNoLines + kTableBegin + kCardEnd;
}

TEST(ContactPageRun, WritesTopCardsAndEndOnceEach)
{
    PRContactData data(fourRecords());
    RecordingPage page;
    EXPECT_TRUE(CContact2HtmlTranslate(&data).translate(&page, "T", nullptr));
    EXPECT_EQ(page.writes, QStringList({R"(<div id="wrap"><div id="top"><h1>T</h1></div>)",
                               emptyCard("Ann"), emptyCard("Bo"), "</div>"}));
}

TEST(ContactPageRun, EndsAtTheFirstWriteThatFails)
{
    PRContactData data(fourRecords());
    for (int failing = 1; failing <= 4; ++failing) {
        SCOPED_TRACE(failing);
        RecordingPage page(failing);
        EXPECT_FALSE(CContact2HtmlTranslate(&data).translate(&page, "T", nullptr));
        EXPECT_EQ(page.writes.size(), failing);
    }
}

TEST(ContactPageRun, ACancelKeepsWhatIsThereAndWritesTheEnd)
{
    PRContactData data(fourRecords());
    for (int cancelAt = 1; cancelAt <= 3; ++cancelAt) {
        SCOPED_TRACE(cancelAt); // of three selected records the second is no contact
        support::RecordingProgress progress(cancelAt);
        progress.initRange(90);
        RecordingPage page;
        EXPECT_TRUE(CContact2HtmlTranslate(&data).translate(&page, "T", &progress));
        EXPECT_EQ(page.writes.size(), cancelAt == 1 ? 2 : 3);
        EXPECT_EQ(page.writes.last(), "</div>");
        EXPECT_EQ(progress.steps(), cancelAt);
        EXPECT_EQ(progress.position(), 30.0 * cancelAt);
    }
}

TEST(ContactPageRun, APageWithoutContactsIsATopAndAnEnd)
{
    PRContactData data;
    RecordingPage page;
    EXPECT_TRUE(CContact2HtmlTranslate(&data).translate(&page, "", nullptr));
    EXPECT_EQ(page.text(), R"(<div id="wrap"><div id="top"><h1></h1></div></div>)");
}

// --- text that is out for harm

const QString kHostile = QString::fromUtf8("</td></table></div><script>alert(\"1\")</script> "
                                           "%1%2%3%9 &lt; ' \n\r\u202e\u05e9 \U0001F600");
const QString kHarmless = QString::fromUtf8(
    "&lt;/td&gt;&lt;/table&gt;&lt;/div&gt;&lt;script&gt;alert(&quot;1&quot;)&lt;/script&gt; "
    "%1%2%3%9 &amp;lt; ' <br>\r\u202e\u05e9 \U0001F600");

struct Place {
    const char* what = nullptr;
    std::function<ContactContent(const QString& text)> contact;
    int flags = 0;
};

ContactContent withProperty(const PRContactProperty& property)
{
    return holding({property});
}

const std::vector<Place>& escapedPlaces()
{
    static const std::vector<Place> all{
        {"label", [](const QString& text) { return withProperty(plain(Phone, text, "1")); }},
        {"value", [](const QString& text) { return withProperty(plain(Phone, "a", text)); }},
        {"part of an address",
            [](const QString& text) {
                return withProperty(composite(Address, "a", {{"City", text}}));
            }},
        {"service",
            [](const QString& text) {
                return withProperty(composite(InstantMessage, "a", {{"service", text}}));
            }},
        {"user",
            [](const QString& text) {
                return withProperty(composite(InstantMessage, "a", {{"username", text}}));
            }},
        {"service of a profile",
            [](const QString& text) {
                return withProperty(composite(SocialProfile, "a", {{"service", text}}));
            }},
        {"hidden key",
            [](const QString& text) {
                return withProperty(composite(Address, "a", {{text, "1"}}));
            },
            Deleted},
        {"hidden value",
            [](const QString& text) {
                return withProperty(composite(Address, "a", {{"b", text}}));
            },
            Deleted},
        {"label of the other birthday",
            [](const QString& text) {
                return ContactContent{.altBirthday = {.type = 1, .label = text}};
            }},
        {"other birthday",
            [](const QString& text) {
                return ContactContent{.altBirthday = {.type = 1, .desc = text}};
            }},
        {"note", [](const QString& text) { return ContactContent{.note = text}; }},
    };
    return all;
}

const std::vector<Place>& rawPlaces()
{
    static const std::vector<Place> all{
        {"first phonetic",
            [](const QString& text) { return ContactContent{.firstPhonetic = text}; }},
        {"last phonetic", [](const QString& text) { return ContactContent{.lastPhonetic = text}; }},
        {"nickname", [](const QString& text) { return ContactContent{.nickname = text}; }},
        {"job title", [](const QString& text) { return ContactContent{.jobTitle = text}; }},
        {"department", [](const QString& text) { return ContactContent{.department = text}; }},
        {"organization", [](const QString& text) { return ContactContent{.organization = text}; }},
    };
    return all;
}

// With another text in the same place the card is the same but for that text.
void expectShownAs(const Place& place, const QString& text, const QString& shown)
{
    SCOPED_TRACE(place.what);
    const QString plainCard = drawnCard(place.contact("(here)"), place.flags);
    EXPECT_EQ(plainCard.count("(here)"), 1);
    EXPECT_EQ(drawnCard(place.contact(text), place.flags).toStdString(),
        QString(plainCard).replace("(here)", shown).toStdString());
}

TEST(ContactPageHostileText, IsEscapedInTheTable)
{
    for (const Place& place : escapedPlaces()) {
        expectShownAs(place, kHostile, kHarmless);
    }
}

TEST(ContactPageHostileText, IsAsItStandsInTheLinesUnderTheName)
{
    for (const Place& place : rawPlaces()) {
        expectShownAs(place, kHostile, kHostile);
    }
}

TEST(ContactPageHostileText, OfAMegabyteIsShownInEveryPlace)
{
    for (const Place& place : escapedPlaces()) {
        SCOPED_TRACE(place.what);
        const QString card = drawnCard(place.contact(QString(kMegabyte, '<')), place.flags);
        EXPECT_EQ(card.count("&lt;"), kMegabyte);
    }
}

TEST(ContactPageHostileText, HasAQuestionMarkForEachHalfOfACharacter)
{
    const QString high(1, QChar(0xD83D));
    const QString low(1, QChar(0xDE00));
    RecordList records;
    records.push_back(contactOf({.note = high + "x" + low + "y" + low + high}, high));
    PRContactData data(std::move(records));
    const support::TempTree tree;
    CHtmlExporter exporter;
    ASSERT_TRUE(exporter.openExport(tree.dir(), "Anna", "Contacts", "HTML"));
    EXPECT_TRUE(CContact2HtmlTranslate(&data).translate(&exporter, "T", nullptr));
    EXPECT_TRUE(exporter.closeExport(true));
    const QString page = QString::fromUtf8(tree.read("Contacts/HTML/Anna's Contacts.html"));
    EXPECT_TRUE(page.contains(cardBegin("?")));
    EXPECT_TRUE(page.contains(lastRow("notes", "?x?y??")));
}

} // namespace
