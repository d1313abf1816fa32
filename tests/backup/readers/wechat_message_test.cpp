// SPDX-License-Identifier: MIT
#include "backup/readers/wechat_message.h"
#include "backup/readers/wechat_notice.h"

#include <gtest/gtest.h>

namespace {

using backup::WeChatFolder;

/// What a message of a type and of a text becomes.
struct Row {
    const char* what = nullptr;
    int type = 0;
    QString message;
    MsgType kind = MsgType::Text;
    QString text;
    WeChatFolder folder = WeChatFolder::None;
};

void expectContents(const std::vector<Row>& rows)
{
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const backup::WeChatContent content = backup::weChatContent(row.type, row.message);
        EXPECT_EQ(content.kind, row.kind);
        EXPECT_EQ(content.text.toStdString(), row.text.toStdString());
        EXPECT_EQ(content.folder, row.folder);
    }
}

QString app(int type, const QString& elements)
{
    return QString("<?xml version=\"1.0\"?>\n<msg><appmsg appid=\"\" sdkver=\"0\">%2<type>%1</type>"
                   "</appmsg><fromusername>wxid_a</fromusername></msg>")
        .arg(type)
        .arg(elements);
}

QString quoting(int type, const QString& content)
{
    return app(57, QString("<title>I agree</title><refermsg><type>%1</type><displayname>Bo"
                           "</displayname><content>%2</content></refermsg>")
                       .arg(type)
                       .arg(content.toHtmlEscaped()));
}

TEST(WeChatContent, MediaTypesHaveTheirFolders)
{
    using enum WeChatFolder;
    expectContents({
        {"text", 1, "See <you> & me\nat six", MsgType::Text, "See <you> & me\nat six"},
        {"empty text", 1, ""},
        {"picture", 3, "<msg><img/></msg>", MsgType::Picture, "", Pictures},
        {"voice", 34, "<msg><voicemsg/></msg>", MsgType::Audio, "", Voice},
        {"video", 43, "<msg><videomsg/></msg>", MsgType::Video, "", Videos},
        {"short video", 62, "<msg><videomsg/></msg>", MsgType::Video, "", Videos},
        {"sticker", 47, "<msg><emoji md5=\"a\"/></msg>", MsgType::Picture, "[Sticker]"},
        {"document", 49,
            app(6, "<title>Tides.pdf</title><appattach><fileext>pdf</fileext></appattach>"),
            MsgType::Document, "Tides.pdf", Attachments},
        {"picture of an app", 49, app(2, "<title>A chart</title>"), MsgType::Picture, "A chart",
            Attachments},
        {"sticker of an app", 49, app(8, "<title>x</title>"), MsgType::Picture, "[Sticker]",
            Attachments},
    });
}

TEST(WeChatContent, CardsPlacesMailsAndRequestsAreTheirXml)
{
    expectContents({
        {"card", 42, R"(<msg username="wxid_c" nickname="Cy" alias="cy_1990"/>)",
            MsgType::ContactCard, "Cy\ncy_1990"},
        {"card without a WeChat id", 42, R"(<msg username="wxid_c" nickname="Cy" alias=""/>)",
            MsgType::ContactCard, "Cy\nwxid_c"},
        {"work card", 66, R"(<msg username="1@openim" nickname="Di"/>)", MsgType::ContactCard,
            "Di\n1@openim"},
        {"place", 48,
            R"(<msg><location x="52.5163" y="13.3777" label="Pariser Platz" poiname="Gate"/></msg>)",
            MsgType::Location, "Gate\nPariser Platz\n52.5163, 13.3777"},
        {"place without a name", 48,
            R"(<msg><location x="-33.9" y="18.4" label="Beach Road" poiname="[位置]"/></msg>)",
            MsgType::Location, "Beach Road\n-33.9, 18.4"},
        {"live place", 49, app(17, "<title></title>"), MsgType::Location, "Live location"},
        {"mail", 35,
            "<msg><pushmail><content><subject>Rent</subject><sender>Bo</sender>"
            "<digest>Due in May</digest></content></pushmail></msg>",
            MsgType::Text, "Rent\nBo\nDue in May"},
        {"friend request", 37,
            R"(<msg fromusername="wxid_c" fromnickname="Cy" content="From the choir"/>)",
            MsgType::GroupEvent, "Friend request from Cy\nFrom the choir"},
        {"friend request without a name", 37, R"(<msg fromusername="wxid_c"/>)",
            MsgType::GroupEvent, "Friend request from wxid_c"},
    });
}

TEST(WeChatContent, AppMessagesAreTheirTexts)
{
    using enum WeChatFolder;
    expectContents({
        {"text", 49, app(1, "<title>Hi</title>"), MsgType::Text, "Hi"},
        {"music", 49, app(3, "<title>Song</title><des>Ann</des><url>https://m/1</url>"),
            MsgType::Text, "Song\nAnn\nhttps://m/1", Attachments},
        {"video", 49, app(4, "<title>Clip</title><url>https://v/1</url>"), MsgType::Text,
            "Clip\nhttps://v/1", Attachments},
        {"link", 49,
            app(5, "<title>Tides &amp; ferries</title><des>Tides &amp; ferries</des>"
                   "<url>https://example.org/?a=1&amp;b=2</url>"),
            MsgType::Text, "Tides & ferries\nhttps://example.org/?a=1&b=2", Attachments},
        {"mini program", 49,
            app(33, "<title>Table for two</title><sourcedisplayname>Dinner</sourcedisplayname>"),
            MsgType::Text, "Dinner\nTable for two", Attachments},
        {"mini program of another number", 49, app(36, "<title>Table</title>"), MsgType::Text,
            "Table", Attachments},
        {"channel", 49,
            app(51, "<title>Please update</title><finderFeed><nickname>Harbour TV</nickname>"
                    "<desc>The new crane</desc></finderFeed>"),
            MsgType::Text, "Harbour TV\nThe new crane"},
        {"channel without its feed", 49, app(51, "<title>Please update</title>"), MsgType::Text,
            "Please update", Attachments},
        {"transfer", 49,
            app(2000, "<title>Transfer</title><des>Got 20</des><wcpayinfo><feedesc>¥20.00</feedesc>"
                      "<pay_memo>Tea</pay_memo></wcpayinfo>"),
            MsgType::Text, "Transfer\n¥20.00\nTea"},
        {"red packet", 49,
            app(2001, "<title>Red packet</title><wcpayinfo><receivertitle>Good luck"
                      "</receivertitle></wcpayinfo>"),
            MsgType::Text, "Red packet\nGood luck"},
        {"pat", 49, app(62, R"(<title>"Bo" tickled "Ann"</title>)"), MsgType::GroupEvent,
            R"("Bo" tickled "Ann")"},
        {"number that is not known", 49, app(999, "<title>New thing</title>"), MsgType::Text,
            "New thing", Attachments},
        {"nothing to show", 49, app(999, ""), MsgType::GroupEvent, "[Unknown message]"},
        {"no XML", 49, "just text", MsgType::Text, "just text", Attachments},
    });
}

TEST(WeChatContent, HistoryThatWasForwardedIsWhole)
{
    const QString record =
        "<recordinfo><datalist count=\"3\">"
        "<dataitem datatype=\"1\"><datadesc>See "
        "you</datadesc><sourcename>Bo</sourcename></dataitem>"
        "<dataitem datatype=\"2\"><sourcename>Ann</sourcename></dataitem>"
        "<dataitem "
        "datatype=\"8\"><datatitle>Tides.pdf</datatitle></dataitem></datalist></recordinfo>";
    expectContents({
        {"its messages", 49,
            app(19, "<title>Chat of Bo</title><des>Bo: See</des><recorditem><![CDATA[" + record
                        + "]]></recorditem>"),
            MsgType::Text, "Chat of Bo\nBo: See you\nTides.pdf"},
        {"what is shown of them", 49,
            app(19, "<title>Chat of Bo</title><des>Bo: See you\nAnn: Yes</des>"), MsgType::Text,
            "Chat of Bo\nBo: See you\nAnn: Yes"},
    });
}

TEST(WeChatContent, AnswerStandsBelowWhatItQuotes)
{
    const auto text = [](const QString& message) {
        return backup::weChatContent(49, message).text;
    };
    EXPECT_EQ(text(quoting(1, "Six\no'clock?")), "> Bo: Six o'clock?\nI agree");
    EXPECT_EQ(text(quoting(3, "<msg><img/></msg>")), "> Bo: Photo\nI agree");
    EXPECT_EQ(text(quoting(34, "<msg/>")), "> Bo: Voice message\nI agree");
    EXPECT_EQ(text(quoting(43, "<msg/>")), "> Bo: Video\nI agree");
    EXPECT_EQ(text(quoting(47, "<msg/>")), "> Bo: [Sticker]\nI agree");
    EXPECT_EQ(text(quoting(49, app(5, "<title>Tides</title>"))), "> Bo: Tides\nI agree");
    EXPECT_EQ(text(quoting(49, quoting(1, "deeper"))), "> Bo: I agree\nI agree");
    EXPECT_EQ(text(app(57, "<title>Alone</title>")), "Alone");
    EXPECT_EQ(backup::weChatContent(49, quoting(1, "x")).kind, MsgType::Text);
}

TEST(WeChatContent, CallsAndNoticesAreLines)
{
    using enum MsgType;
    expectContents({
        {"call", 50, "", GroupEvent, "Call"},
        {"call that tells of itself", 50,
            "<voipmsg type=\"VoIPBubbleMsg\"><VoIPBubbleMsg><msg><![CDATA[Duration 00:12]]></msg>"
            "</VoIPBubbleMsg></voipmsg>",
            GroupEvent, "Call: Duration 00:12"},
        {"call, 52", 52, "<voipmsg/>", GroupEvent, "Call"},
        {"call, 53", 53, "x", GroupEvent, "Call"},
        {"notice, 64", 64, R"({"msgContent":"Bo started a voice call","type":2})", GroupEvent,
            "Bo started a voice call"},
        {"notice, 9999", 9999, "Hello", GroupEvent, "Hello"},
        {"system line", 10000, "You got <a href=\"x\">Bo's gift</a>", GroupEvent,
            "You got Bo's gift"},
        {"system line without a text", 10000, "", GroupEvent, "[System message]"},
        {"recalled", 10002,
            "<sysmsg type=\"revokemsg\"><revokemsg><session>x</session><replacemsg>"
            "<![CDATA[\"Bo\" recalled a message]]></replacemsg></revokemsg></sysmsg>",
            GroupEvent, "\"Bo\" recalled a message"},
        {"recalled without words", 10002,
            "<sysmsg type=\"revokemsg\"><revokemsg><msgid>5</msgid></revokemsg></sysmsg>",
            GroupEvent, "A message was recalled"},
        {"member removed", 10002,
            "<sysmsg type=\"delchatroommember\"><delchatroommember><plain>You removed Bo</plain>"
            "<text>x</text></delchatroommember></sysmsg>",
            GroupEvent, "You removed Bo"},
        {"another kind of line", 10002,
            "<sysmsg type=\"x\"><x><text>Some words</text></x></sysmsg>", GroupEvent, "Some words"},
        {"type that is not known, with a text", 77, " words ", Text, "words"},
        {"type that is not known, of an app", 436207665, app(2001, "<title>Red packet</title>"),
            Text, "Red packet"},
        {"type that is not known, XML", 77, "<msg><a>1</a></msg>", GroupEvent, "[Unknown message]"},
    });
}

TEST(NoticeText, TemplateIsFilledWithNames)
{
    const QString message =
        R"(<sysmsg type="sysmsgtemplate"><sysmsgtemplate><content_template type="tmpl_type_profile">
        <plain><![CDATA[]]></plain>
        <template><![CDATA["$username$" added "$names$" to the group $what$]]></template>
        <link_list><link name="username" type="link_profile"><memberlist><member>
            <username>wxid_a</username><nickname><![CDATA[Ann <3]]></nickname></member></memberlist>
        </link><link name="names" type="link_profile"><memberlist>
            <member><username>wxid_b</username><nickname>Bo</nickname></member>
            <member><username>wxid_c</username><nickname>Cy</nickname></member></memberlist>
            <separator><![CDATA[、]]></separator></link>
        <link name="what"><plain>chat</plain></link>
        </link_list></content_template></sysmsgtemplate></sysmsg>)";
    EXPECT_EQ(backup::noticeText(message), "\"Ann <3\" added \"Bo、Cy\" to the group chat");
}

QString filledTemplate(const QString& text, const QStringList& links)
{
    return backup::noticeText("<sysmsg type=\"sysmsgtemplate\"><sysmsgtemplate><content_template>"
                              "<template>"
                              + text + "</template><link_list>" + links.join(QString())
                              + "</link_list></content_template></sysmsgtemplate></sysmsg>");
}

QString linkOf(const QString& name, const QString& nickname)
{
    return "<link name=\"" + name + "\"><nickname>" + nickname + "</nickname></link>";
}

TEST(NoticeText, NameOfAPersonIsNoPlaceOfATemplate)
{
    EXPECT_EQ(filledTemplate("$a$ added $b$, $a$!", {linkOf("a", "$b$"), linkOf("b", "Bo")}),
        "$b$ added Bo, $b$!");
    EXPECT_EQ(filledTemplate("$5 from $a$ for $x$ and $", {linkOf("a", "Ann")}),
        "$5 from Ann for $x$ and $");
}

TEST(NoticeText, NamesThatMultiplyStayWithinBounds)
{
    QStringList links;
    for (int level = 0; level < 40; ++level) {
        links.append(
            linkOf(QString("n%1").arg(level), QString("$n%1$").arg(level + 1).repeated(2)));
    }
    EXPECT_EQ(filledTemplate("$n0$", links), "$n1$$n1$");
    const QString many = filledTemplate(
        QString("$a$").repeated(10'000), {linkOf("a", QString("x").repeated(10'000))});
    EXPECT_LT(many.size(), 200'000);
}

TEST(NoticeText, DeepElementsAreReadToTheirEnd)
{
    constexpr int depth = 300'000;
    const QString deep = QString("<b>").repeated(depth) + "Bo" + QString("</b>").repeated(depth);
    EXPECT_EQ(filledTemplate("$a$ left", {linkOf("a", deep)}), "Bo left");
    EXPECT_EQ(backup::forwardedText("<recordinfo><datalist><dataitem><sourcename>" + deep
                                    + "</sourcename><datadesc>Hi</datadesc></dataitem></datalist>"
                                      "</recordinfo>"),
        "Bo: Hi");
}

TEST(SplitSender, TakesTheUserNameBeforeTheText)
{
    struct SplitRow {
        const char* message = nullptr;
        const char* sender = nullptr;
        const char* text = nullptr;
    };
    const std::vector<SplitRow> rows{
        {"wxid_a1:\nHello", "wxid_a1", "Hello"},
        {"anna-1990:\ntwo\nlines", "anna-1990", "two\nlines"},
        {"1@openim:\n<msg/>", "1@openim", "<msg/>"},
        {"wxid_a1:\n", "wxid_a1", ""},
        {"Hello", "", "Hello"},
        {"To buy:\nrope", "", "To buy:\nrope"},
        {":\nrope", "", ":\nrope"},
        {"wxid_a1: Hello", "", "wxid_a1: Hello"},
    };
    for (const SplitRow& row : rows) {
        SCOPED_TRACE(row.message);
        const backup::WeChatSenderText split = backup::splitSender(row.message);
        EXPECT_EQ(split.sender, row.sender);
        EXPECT_EQ(split.text, row.text);
    }
}

} // namespace
