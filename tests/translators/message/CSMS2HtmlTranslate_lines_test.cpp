// SPDX-License-Identifier: MIT
// The lines of a conversation: its heading, dates, kinds, events and senders.
#include "translators/message/sms_page.h"

namespace {

constexpr const char kHyphens[] = "-------------------------------------------------------";
static_assert(sizeof(kHyphens) - 1 == 55);

const QString kSmsLine = QString(kHyphens) + "SMS/MMS" + kHyphens;
const QString kIMessageLine = QString(kHyphens) + "iMessage" + kHyphens;

QString dateLine(const QString& date)
{
    return "<p>Date: " + date + "</p>";
}

// The paragraphs of a conversation, without its bubbles.
QString linesOf(std::initializer_list<SmsMessage> messages, int flags = 0)
{
    QString text = drawnMessages(messages, flags);
    QString lines;
    for (int at = text.indexOf("<p>"); at >= 0; at = text.indexOf("<p>", at + 1)) {
        lines += text.mid(at, text.indexOf("</p>", at) + 4 - at);
    }
    return lines;
}

QString headingOf(const QStringList& values)
{
    const PRSMSItem item(Record{.values = values}, {});
    PRSMSData data;
    CSMS2HtmlTranslate translator(&data);
    PageSink sink;
    EXPECT_TRUE(translator.writeItem(&sink, const_cast<PRSMSItem*>(&item)));
    return sink.writes().join('|');
}

TEST(SmsPageHeading, HasNamePhoneAndEmailEvenWhereTheyAreEmpty)
{
    struct {
        const char* what = nullptr;
        QStringList values;
        const char* heading = nullptr;
    } const rows[] = {
        {"all", {"Mia", "+49 171 5550101", "mia@example.org"},
            "Name: Mia&nbsp;&nbsp;Phone: +49 171 5550101&nbsp;&nbsp;Email: mia@example.org"},
        {"none", {}, "Name: &nbsp;&nbsp;Phone: &nbsp;&nbsp;Email: "},
        {"phone alone", {"", "110"}, "Name: &nbsp;&nbsp;Phone: 110&nbsp;&nbsp;Email: "},
        {"markup", {"<i>", "a\nb", R"("&")"},
            "Name: &lt;i&gt;&nbsp;&nbsp;Phone: a<br>b&nbsp;&nbsp;Email: &quot;&amp;&quot;"},
        {"place marks", {"%1%2%3", "%2", "%1"},
            "Name: %1%2%3&nbsp;&nbsp;Phone: %2&nbsp;&nbsp;Email: %1"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(headingOf(row.values).toStdString(),
            std::string(R"(<div class="main"><h2>)") + row.heading + "</h2></div>");
    }
}

TEST(SmsPageHeading, LabelsAreTranslatedAndEscapedWithTheirValues)
{
    const Translations translations(
        {{"Name: %1", R"(<%1> "Name")"}, {"Phone: %1", "no place"}, {"Email: %1", "%1 & %1"}});
    EXPECT_EQ(headingOf({"Mia", "110", "m"}).toStdString(),
        R"(<div class="main"><h2>&lt;Mia&gt; &quot;Name&quot;&nbsp;&nbsp;no place)"
        "&nbsp;&nbsp;m &amp; m</h2></div>");
}

TEST(SmsPageDates, TheFirstMessageShowsItsKindAndItsDate)
{
    EXPECT_EQ(linesOf({{.date = halfPastTwo(), .content = "a"}}).toStdString(),
        ("<p>" + kSmsLine + "<br>Date: 2024-05-01 14:30</p>").toStdString());
    EXPECT_EQ(linesOf({{.normalSMS = false, .date = halfPastTwo(), .content = "a"}}).toStdString(),
        ("<p>" + kIMessageLine + "<br>Date: 2024-05-01 14:30</p>").toStdString());
}

TEST(SmsPageDates, StandBeforeTheirMessage)
{
    EXPECT_EQ(drawnMessages({{.date = halfPastTwo(), .content = "a"},
                  {.date = halfPastTwo().addSecs(60), .content = "b"}}),
        "<p>" + kSmsLine + "<br>Date: 2024-05-01 14:30</p>" + receivedBubble("a")
            + dateLine("2024-05-01 14:31") + receivedBubble("b"));
}

TEST(SmsPageDates, ShowAgainWhereTheTimeDiffersByAnyAmount)
{
    const QString first = "<p>" + kSmsLine + "<br>Date: 2024-05-01 14:30</p>";
    struct {
        const char* what = nullptr;
        QDateTime date;
        QString line;
    } const rows[] = {
        {"the same", halfPastTwo(), ""},
        {"the same in another zone", halfPastTwo().toOffsetFromUtc(5 * 3600), ""},
        {"a millisecond later", halfPastTwo().addMSecs(1), dateLine("2024-05-01 14:30")},
        {"a second earlier", halfPastTwo().addSecs(-1), dateLine("2024-05-01 14:29")},
        {"a day later", halfPastTwo().addDays(1), dateLine("2024-05-02 14:30")},
        {"no date", {}, dateLine("")},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(linesOf({{.date = halfPastTwo()}, {.date = row.date}}).toStdString(),
            (first + row.line).toStdString());
    }
}

TEST(SmsPageDates, OfMessagesWithoutOneShowEachTime)
{
    EXPECT_EQ(linesOf({{}, {}, {.date = halfPastTwo()}}),
        "<p>" + kSmsLine + "<br>Date: </p>" + dateLine("") + dateLine("2024-05-01 14:30"));
}

TEST(SmsPageDates, TheDateGoesWithTheLastMessageAndNotWithTheLastLine)
{
    const QDateTime other = halfPastTwo().addSecs(3600);
    EXPECT_EQ(linesOf({{.date = halfPastTwo()}, {.date = other}, {.date = halfPastTwo()}}),
        "<p>" + kSmsLine + "<br>Date: 2024-05-01 14:30</p>" + dateLine("2024-05-01 15:30")
            + dateLine("2024-05-01 14:30"));
}

TEST(SmsPageDates, EachChangeOfKindShowsTheKindAndTheDateOfTheMessage)
{
    const QDateTime date = halfPastTwo();
    const QString shown = "<br>Date: 2024-05-01 14:30</p>";
    EXPECT_EQ(linesOf({{.date = date}, {.normalSMS = false, .date = date},
                          {.normalSMS = false, .date = date}, {.date = date}, {.date = date}})
                  .toStdString(),
        ("<p>" + kSmsLine + shown + "<p>" + kIMessageLine + shown + "<p>" + kSmsLine + shown)
            .toStdString());
}

TEST(SmsPageDates, EventsHaveDatesAndKindsTooAndChangeThem)
{
    EXPECT_EQ(drawnMessages({{.date = halfPastTwo(), .itemType = 1, .event = "Left"},
                                {.date = halfPastTwo(), .content = "a"},
                                {.normalSMS = false, .date = halfPastTwo(), .itemType = -1}})
                  .toStdString(),
        ("<p>" + kSmsLine + R"(<br>Date: 2024-05-01 14:30</p><p class="event-msg">Left</p>)"
            + receivedBubble("a") + "<p>" + kIMessageLine
            + R"(<br>Date: 2024-05-01 14:30</p><p class="event-msg"></p>)")
            .toStdString());
}

TEST(SmsPageDates, AMessageOfNothingHasItsDateAlone)
{
    EXPECT_EQ(drawnMessages({{.date = halfPastTwo()}}),
        "<p>" + kSmsLine + "<br>Date: 2024-05-01 14:30</p>");
}

TEST(SmsPageDates, BeginAnewInEachConversation)
{
    PRSMSData data;
    CSMS2HtmlTranslate translator(&data);
    PageSink sink;
    const auto conversation = conversationOf(chatsOf({{.date = halfPastTwo(), .content = "a"}}));
    EXPECT_TRUE(translator.writeItem(&sink, conversation.get()));
    EXPECT_TRUE(translator.writeItem(&sink, conversation.get()));
    ASSERT_EQ(sink.writes().size(), 2);
    EXPECT_EQ(sink.writes().at(0), sink.writes().at(1));
    EXPECT_TRUE(sink.writes().at(1).contains(kSmsLine));
}

TEST(SmsPageDates, LabelIsTranslatedWithOneTwoOrNoPlaces)
{
    struct {
        const char* label = nullptr;
        const char* line = nullptr;
    } const rows[] = {
        {"am %1 um", "am 2024-05-01 14:30 um"},
        {"%1", "2024-05-01 14:30"},
        {"%1 = %1", "2024-05-01 14:30 = 2024-05-01 14:30"},
        {"no place", "no place"},
        {"<%1>\n&", "&lt;2024-05-01 14:30&gt;<br>&amp;"},
        {"100% %1", "100% 2024-05-01 14:30"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.label);
        const Translations translations({{"Date: %1", row.label}});
        EXPECT_EQ(linesOf({{.date = halfPastTwo()}}).toStdString(),
            ("<p>" + kSmsLine + "<br>" + row.line + "</p>").toStdString());
    }
}

TEST(SmsPageDates, TheKindsAreNotTranslated)
{
    const Translations translations({{"SMS/MMS", "x"}, {"iMessage", "x"}});
    EXPECT_TRUE(linesOf({{}}).contains(kSmsLine));
    EXPECT_TRUE(linesOf({{.normalSMS = false}}).contains(kIMessageLine));
}

TEST(SmsPageSelection, UncheckedMessagesOfAPartChangeNeitherDateNorKind)
{
    EXPECT_EQ(drawnMessages(
                  {
                      {.checked = false, .normalSMS = false, .content = "left out"},
                      {.date = halfPastTwo(), .content = "a"},
                      {.checked = false, .normalSMS = false, .date = halfPastTwo().addDays(1)},
                      {.checked = false, .itemType = 1, .event = "left out"},
                      {.date = halfPastTwo(), .content = "b"},
                  },
                  PartlySelected),
        "<p>" + kSmsLine + "<br>Date: 2024-05-01 14:30</p>" + receivedBubble("a")
            + receivedBubble("b"));
}

TEST(SmsPageSelection, NothingIsLeftOutOfAWholeConversation)
{
    for (const int flags : {0, int(Deleted), int(Locked)}) {
        SCOPED_TRACE(flags);
        const QString text =
            drawnMessages({{.checked = false, .content = "a"}, {.content = "b"}}, flags);
        EXPECT_TRUE(text.contains(">a&nbsp;</td>"));
        EXPECT_TRUE(text.contains(">b&nbsp;</td>"));
    }
}

TEST(SmsPageSelection, AConversationWithNothingToShowKeepsItsHeading)
{
    EXPECT_EQ(drawnMessages({}), "");
    EXPECT_EQ(drawnMessages({{.checked = false, .content = "a"}}, PartlySelected), "");
}

TEST(SmsPageEvents, ShowTheirTextAndNothingElseOfTheMessage)
{
    for (const int itemType : {1, 2, 255, -1}) {
        SCOPED_TRACE(itemType);
        EXPECT_EQ(drawnMessage({.fromMe = true,
                                   .sentDone = false,
                                   .itemType = itemType,
                                   .event = "Mia left <it>\n& \"went\"",
                                   .subject = "no",
                                   .content = "no",
                                   .addr = "no",
                                   .pieces = {textPiece("no")}},
                      Deleted)
                      .toStdString(),
            R"(<p class="event-msg">Mia left &lt;it&gt;<br>&amp; &quot;went&quot;</p>)");
    }
}

class SmsPageSenders : public testing::Test {
protected:
    // What stands between the date and the bubble of a message "a".
    static QString senderOf(
        const QMap<QString, QString>& names, const QString& address, bool fromMe = false)
    {
        const auto item = std::make_unique<PRSMSItem>(
            Record{}, SmsConversation{.addrIds = names,
                          .chats = chatsOf({{.fromMe = fromMe, .content = "a", .addr = address}})});
        const QString text = drawnMessages(item);
        const int end = text.indexOf("<div");
        const int begin = text.indexOf("</p>") + 4;
        return text.mid(begin, end - begin);
    }
};

TEST_F(SmsPageSenders, ShowInAGroupByNameOrByAddress)
{
    const QMap<QString, QString> names{{"+49", "Mia"}, {"ben@example.org", "<Ben>"}, {"3", ""}};
    struct {
        const char* what = nullptr;
        const char* address = nullptr;
        const char* shown = nullptr;
    } const rows[] = {
        {"named", "+49", "Mia"},
        {"markup in the name", "ben@example.org", "&lt;Ben&gt;"},
        {"an empty name", "3", ""},
        {"not named", "+50", "+50"},
        {"markup in the address", "\"a\"\n&", "&quot;a&quot;<br>&amp;"},
        {"another case is another address", "BEN@example.org", "BEN@example.org"},
        {"no address", "", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(senderOf(names, row.address).toStdString(),
            std::string(R"(<p class="cid">)") + row.shown + "</p>");
    }
}

TEST_F(SmsPageSenders, DoNotShowBetweenTwoPeopleNorOnOwnMessages)
{
    EXPECT_EQ(senderOf({}, "+49"), "");
    EXPECT_EQ(senderOf({{"+49", "Mia"}}, "+49"), "");
    EXPECT_EQ(senderOf({{"+49", "Mia"}, {"+50", "Ben"}}, "+49", true), "");
}

TEST_F(SmsPageSenders, ShowOnceBeforeAllBubblesOfAMessage)
{
    const auto item = std::make_unique<PRSMSItem>(Record{},
        SmsConversation{.addrIds = {{"1", "Mia"}, {"2", "Ben"}},
            .chats = chatsOf(
                {{.content = "a", .addr = "1", .pieces = {textPiece("b")}}, {.addr = "2"}})});
    const QString text = drawnMessages(item);
    EXPECT_EQ(text.mid(text.indexOf("</p>") + 4), R"(<p class="cid">Mia</p>)" + receivedBubble("a")
                                                      + receivedBubble("b") + dateLine("")
                                                      + R"(<p class="cid">Ben</p>)");
}

} // namespace
