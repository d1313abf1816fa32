// SPDX-License-Identifier: MIT
// The messages of a chat: heading, dates, senders, events, bubbles and their marks.
#include "translators/message/chat_page.h"

#include <functional>

namespace {

QString headingOf(const QStringList& values)
{
    PRWhatsappItem item(Record{.values = values});
    PRData data(5);
    CWhatsapp2HtmlTranslate translator(&data);
    PageSink sink;
    EXPECT_TRUE(translator.writeItem(&sink, &item));
    return sink.writes().join('|');
}

TEST(ChatPageHeading, HasChatNameAndPhoneEvenWhereTheyAreEmpty)
{
    struct {
        const char* what = nullptr;
        QStringList values;
        const char* heading = nullptr;
    } const rows[] = {
        {"all", {"Crew", "Mia", "110"}, "Chat: Crew&nbsp;&nbsp;Name: Mia&nbsp;&nbsp;Phone: 110"},
        {"none", {}, "Chat: &nbsp;&nbsp;Name: &nbsp;&nbsp;Phone: "},
        {"two phones", {"", "", "1,2"}, "Chat: &nbsp;&nbsp;Name: &nbsp;&nbsp;Phone: 1, 2"},
        {"commas are not counted", {"", "", ",1, 2,"},
            "Chat: &nbsp;&nbsp;Name: &nbsp;&nbsp;Phone: , 1,  2, "},
        {"commas elsewhere stay", {"a,b", "c,d"},
            "Chat: a,b&nbsp;&nbsp;Name: c,d&nbsp;&nbsp;Phone: "},
        {"markup", {"<i>", "a\nb", R"("&")"},
            "Chat: &lt;i&gt;&nbsp;&nbsp;Name: a<br>b&nbsp;&nbsp;Phone: &quot;&amp;&quot;"},
        {"place marks", {"%1%2%3", "%2", "%1"},
            "Chat: %1%2%3&nbsp;&nbsp;Name: %2&nbsp;&nbsp;Phone: %1"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(headingOf(row.values).toStdString(),
            std::string(R"(<div class="main"><h2>)") + row.heading + "</h2><hr /></div>");
    }
}

TEST(ChatPageHeading, LabelsAreTranslatedAndEscapedWithTheirValues)
{
    const Translations translations(
        {{"Chat: %1", R"(<%1> "Chat")"}, {"Name: %1", "no place"}, {"Phone: %1", "a,b %1 & %1"}});
    EXPECT_EQ(headingOf({"Crew", "Mia", "1,2"}).toStdString(),
        R"(<div class="main"><h2>&lt;Crew&gt; &quot;Chat&quot;&nbsp;&nbsp;no place)"
        "&nbsp;&nbsp;a,b 1, 2 &amp; 1, 2</h2><hr /></div>");
}

TEST(ChatPageDates, StandBeforeEachMessageAlsoAtTheSameTime)
{
    EXPECT_EQ(
        drawnMessages({{.date = halfPast(), .content = "a"}, {.date = halfPast(), .content = "b"},
            {.date = halfPast().addSecs(60), .content = "c"}, {.content = "d"}}),
        "<p>Date: 2024-05-01 14:30</p>" + receivedBubble("a") + "<p>Date: 2024-05-01 14:30</p>"
            + receivedBubble("b") + "<p>Date: 2024-05-01 14:31</p>" + receivedBubble("c")
            + "<p>Date: </p>" + receivedBubble("d"));
}

TEST(ChatPageDates, FillTheTranslatedLabelWhereverItHasPlaces)
{
    struct {
        const char* label = nullptr;
        const char* line = nullptr;
    } const rows[] = {
        {"%1", "2024-05-01 14:30"},
        {"%1 = %1", "2024-05-01 14:30 = 2024-05-01 14:30"},
        {"no place", "no place"},
        {"<%1>\n&", "&lt;2024-05-01 14:30&gt;<br>&amp;"},
        {"100% %1", "100% 2024-05-01 14:30"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.label);
        const Translations translations({{"Date: %1", row.label}});
        EXPECT_EQ(drawnMessages({{.date = halfPast()}}).toStdString(),
            "<p>" + std::string(row.line) + "</p>");
    }
}

TEST(ChatPageSelection, UncheckedMessagesOfAPartHaveNotEvenADate)
{
    const std::vector<ChatMessage> messages{{.checked = false, .content = "left out"},
        {.content = "a"}, {.checked = false, .type = 6, .content = "left out"}};
    EXPECT_EQ(drawnMessages(messages, PartlySelected), kNoDate + receivedBubble("a"));
    EXPECT_EQ(drawnMessages({{.checked = false, .content = "a"}}, PartlySelected), "");
    // Selected as a whole: the messages' own marks are not asked.
    for (const int flags : {0, int(Deleted), int(Locked)}) {
        EXPECT_EQ(drawnMessages(messages, flags).count("left out"), 2);
    }
}

TEST(ChatPageEvents, ShowTheirTextAndNothingElseOfTheMessage)
{
    for (const bool fromMe : {false, true}) {
        EXPECT_EQ(drawnMessage({.type = 6,
                                   .fromMe = fromMe,
                                   .sentDone = false,
                                   .content = "Ben added <Ole>\n& \"Kim\"",
                                   .member = "no",
                                   .media = "/no.png",
                                   .broadcast = true,
                                   .drawLike = true,
                                   .likeCount = 7},
                      Deleted)
                      .toStdString(),
            "<p>Ben added &lt;Ole&gt;<br>&amp; &quot;Kim&quot;</p>");
    }
    EXPECT_EQ(drawnMessage({.type = 6}), "<p></p>");
}

TEST(ChatPageSenders, ShowWhereTheyAreNamed)
{
    const QString sender = R"(<p class="cid">&lt;Ben&gt;<br>&amp;</p>)";
    EXPECT_EQ(drawnMessage({.content = "a", .member = "<Ben>\n&"}), sender + receivedBubble("a"));
    EXPECT_EQ(drawnMessage({.content = "a"}), receivedBubble("a"));
    // Whoever is named is shown: who one is oneself, too.
    EXPECT_TRUE(drawnMessage({.fromMe = true, .content = "a", .member = "<Ben>\n&"})
                    .startsWith(sender + R"(<div class="main-right">)"));
}

TEST(ChatPageBubbles, AreMissingWhereThereIsNothingToSay)
{
    for (const int type : {0, 7, 9, -1, 100}) {
        SCOPED_TRACE(type);
        EXPECT_EQ(drawnMessage({.type = type, .drawLike = true}), "");
        EXPECT_EQ(drawnMessage({.type = type, .member = "Ben"}), R"(<p class="cid">Ben</p>)");
        EXPECT_EQ(drawnMessage({.type = type, .content = "a"}), receivedBubble("a"));
    }
}

TEST(ChatPageBubbles, HaveTheIconOfTheirTypeBesideTheText)
{
    struct {
        int type = 0;
        const char* icon = nullptr;
    } const rows[] = {{1, "image/picture.png"}, {2, "image/video.png"}, {3, "image/audio.png"},
        {4, "image/vcard.png"}, {5, "image/location.png"}, {8, "image/document.png"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.type);
        EXPECT_EQ(drawnMessage({.type = row.type}), receivedIconBubble(row.icon, ""));
        EXPECT_EQ(drawnMessage({.type = row.type, .content = "<a>\n"}),
            receivedIconBubble(row.icon, "&lt;a&gt;<br>"));
        EXPECT_EQ(drawnMessage({.type = row.type, .media = "/nonexistent"}),
            receivedIconBubble(row.icon, ""));
    }
}

// All that stands around the text of a bubble.
struct BubbleRow {
    const char* what = nullptr;
    ChatMessage message;
    int flags = 0;
    const char* before = nullptr; // of the bubble's cell
    const char* corner = nullptr; // in its upper right cell
    const char* behind = nullptr;
};

constexpr const char* kLeft = R"(<div class="main-left"><table class='rm'><tr>)";
constexpr const char* kRight = R"(<div class="main-right"><table class='sm'><tr>)";
constexpr const char* kFailed = R"(<td><img src="image/exclamation.png" /></td>)";
constexpr const char* kCorner =
    "<img src='image/del_msg_recv.png' style='top:3px;left:0px; position:relative;' />";

void expectBubble(const BubbleRow& row)
{
    SCOPED_TRACE(row.what);
    ChatMessage message = row.message;
    message.content = "a";
    EXPECT_EQ(drawnMessage(message, row.flags).toStdString(),
        std::string(row.before)
            + R"(<td><table border="0" cellpadding="0" cellspacing="0" class="msg-box">)"
              R"(<tr><td class="top-l"></td><td class="top-c"></td><td class="top-r">)"
            + row.corner
            + R"(</td></tr><tr><td class="mid-l"></td><td class="mid-c">a&nbsp;</td>)"
              R"(<td class="mid-r"></td></tr>)"
              R"(<tr><td class="bot-l"></td><td class="bot-c"></td><td class="bot-r"></td></tr>)"
              "</table></td>"
            + row.behind + "</tr></table></div>");
}

TEST(ChatPageBubbles, ShowSideFailureDeletionAndBroadcast)
{
    const BubbleRow rows[] = {
        {"received", {}, 0, kLeft, "", "<td></td>"},
        {"sent", {.fromMe = true}, 0, kRight, "", "<td></td>"},
        {"received, failed", {.sentDone = false}, 0, kLeft, "", kFailed},
        {"not sent", {.fromMe = true, .sentDone = false}, 0, kRight, "", kFailed},
        {"received, deleted", {}, Deleted, kLeft, kCorner, "<td></td>"},
        {"sent, deleted", {.fromMe = true}, Deleted,
            R"(<div class="main-right"><img src='image/del_msg_send.png' )"
            "style='top:20px;left:5px; position:relative;' /><table class='sm'><tr>",
            "", "<td></td>"},
        {"broadcast", {.fromMe = true, .broadcast = true}, 0,
            R"(<div class="main-right"><img src='image/broadcast.png' )"
            "style='top:20px;left:5px; position:relative;' /><table class='sm'><tr>",
            "", "<td></td>"},
        {"broadcast, deleted", {.fromMe = true, .broadcast = true}, Deleted,
            R"(<div class="main-right"><img src='image/del_msg_send.png' )"
            "style='top:20px;left:5px; position:relative;' /><img src='image/broadcast.png' "
            "style='top:20px;left:10px; position:relative;' /><table class='sm'><tr>",
            "", "<td></td>"},
        {"a broadcast that was received has no mark", {.broadcast = true}, 0, kLeft, "",
            "<td></td>"},
        {"nor one that is deleted", {.broadcast = true}, Deleted, kLeft, kCorner, "<td></td>"},
        {"other flags show nothing", {.fromMe = true}, Locked | InCalendarRange, kRight, "",
            "<td></td>"},
    };
    for (const BubbleRow& row : rows) {
        expectBubble(row);
    }
}

TEST(ChatPageLikes, StandOnTheInnerSideOfTheBubble)
{
    const std::string like = R"(<td align="center"><img src="image/msglike.png" />)"
                             R"(<br /><font color="#000000">3</font></td>)";
    const std::string sent = kRight + like;
    const std::string received = "<td></td>" + like;
    const std::string failed = kFailed + like;
    const BubbleRow rows[] = {
        {"sent", {.fromMe = true, .drawLike = true, .likeType = 1, .likeCount = 3}, 0, sent.c_str(),
            "", "<td></td>"},
        {"received", {.drawLike = true, .likeType = 1, .likeCount = 3}, 0, kLeft, "",
            received.c_str()},
        {"not sent",
            {.fromMe = true, .sentDone = false, .drawLike = true, .likeType = 1, .likeCount = 3}, 0,
            sent.c_str(), "", kFailed},
        {"received, failed", {.sentDone = false, .drawLike = true, .likeType = 1, .likeCount = 3},
            0, kLeft, "", failed.c_str()},
        {"not to be drawn", {.drawLike = false, .likeType = 1, .likeCount = 3}, 0, kLeft, "",
            "<td></td>"},
    };
    for (const BubbleRow& row : rows) {
        expectBubble(row);
    }
}

TEST(ChatPageLikes, ShowTheirTypeAndTheirNumberUnlessItIsNone)
{
    struct {
        int type = 0;
        int count = 0;
        const char* cell = nullptr;
    } const rows[] = {
        {1, 0, R"(<img src="image/msglike.png" /></td>)"},
        {0, 0, R"(<img src="image/msgnolike.png" /></td>)"},
        {0, 5, R"(<img src="image/msgnolike.png" /><br /><font color="#000000">5</font></td>)"},
        {-1, -2, R"(<img src="image/msglike.png" /><br /><font color="#000000">-2</font></td>)"},
        {7, 2'147'483'647,
            R"(<img src="image/msglike.png" /><br /><font color="#000000">2147483647</font></td>)"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.type << ", " << row.count);
        const QString text = drawnMessage(
            {.content = "a", .drawLike = true, .likeType = row.type, .likeCount = row.count});
        EXPECT_TRUE(text.endsWith(
            R"(<td></td><td align="center">)" + QString(row.cell) + "</tr></table></div>"))
            << text.toStdString();
    }
}

// --- text that is out for harm, in every place that shows a text

const QString kHostile = QString::fromUtf8(
    "</p></td></h2><script>alert(\"1\")</script> %1%2%3%9 &lt; ' \n\r\u202e\u05e9 \U0001F600");
const QString kHarmless = QString::fromUtf8(
    "&lt;/p&gt;&lt;/td&gt;&lt;/h2&gt;&lt;script&gt;alert(&quot;1&quot;)&lt;/script&gt; %1%2%3%9 "
    "&amp;lt; ' <br>\r\u202e\u05e9 \U0001F600");

struct Place {
    const char* what = nullptr;
    std::function<std::unique_ptr<PRWhatsappItem>(const QString&)> chat;
};

const std::vector<Place>& places()
{
    const auto withValues = [](const QStringList& values) {
        return std::make_unique<PRWhatsappItem>(Record{.values = values});
    };
    static const std::vector<Place> all{
        {"chat", [=](const QString& text) { return withValues({text}); }},
        {"name",
            [=](const QString& text) {
                return withValues({"", text});
            }},
        {"phone",
            [=](const QString& text) {
                return withValues({"", "", text});
            }},
        {"event", [](const QString& text) { return chatOf({{.type = 6, .content = text}}); }},
        {"text", [](const QString& text) { return chatOf({{.content = text}}); }},
        {"text beside an icon",
            [](const QString& text) { return chatOf({{.type = 4, .content = text}}); }},
        {"sender", [](const QString& text) { return chatOf({{.member = text}}); }},
    };
    return all;
}

TEST(ChatPageHostileText, IsShownAndNothingElseInEveryPlace)
{
    for (const Place& place : places()) {
        SCOPED_TRACE(place.what);
        // With a plain text in the same place the page is the same but for that text.
        const QString plain = drawnChat(place.chat("(here)")).text;
        EXPECT_EQ(plain.count("(here)"), 1);
        EXPECT_EQ(drawnChat(place.chat(kHostile)).text.toStdString(),
            QString(plain).replace("(here)", kHarmless).toStdString());
    }
}

TEST(ChatPageHostileText, OfAMegabyteIsShownInEveryPlace)
{
    for (const Place& place : places()) {
        SCOPED_TRACE(place.what);
        EXPECT_EQ(drawnChat(place.chat(QString(1'048'576, '<'))).text.count("&lt;"), 1'048'576);
    }
}

} // namespace
