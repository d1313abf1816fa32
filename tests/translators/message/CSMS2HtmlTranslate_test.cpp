// SPDX-License-Identifier: MIT
// The bubbles of a message: their sides and marks, and which texts get into which of them.
#include "translators/message/sms_page.h"

namespace {

const char* const kFailure = R"(<img src="image/exclamation.png" />)";
const char* const kSentMark =
    R"(<img src='image/del_msg_send.png' style='top:20px;left:5px; position:relative;' />)";
const char* const kReceivedMark =
    R"(<img src='image/del_msg_recv.png' style='top:3px;left:0px; position:relative;' />)";

PRSMSPiece pictureless(const QString& info)
{
    return PRSMSPiece({.type = "application/pdf", .info = info});
}

QString receivedBubbles(const QStringList& texts)
{
    QString bubbles;
    for (const QString& text : texts) {
        bubbles += receivedBubble(text);
    }
    return bubbles;
}

TEST(SmsPageBubble, OfAReceivedMessage)
{
    EXPECT_EQ(drawnMessage({.content = "Hi"}).toStdString(),
        R"(<div class="main-left"><table class='rm'><tr><td>)"
        R"(<table border="0" cellpadding="0" cellspacing="0" class="msg-box">)"
        R"(<tr><td class="top-l"></td><td class="top-c"></td><td class="top-r"></td></tr>)"
        R"(<tr><td class="mid-l"></td><td class="mid-c">Hi&nbsp;</td><td class="mid-r"></td></tr>)"
        R"(<tr><td class="bot-l"></td><td class="bot-c"></td><td class="bot-r"></td></tr></table>)"
        "</td><td></td></tr></table></div>");
}

TEST(SmsPageBubble, OfASentMessage)
{
    EXPECT_EQ(drawnMessage({.fromMe = true, .content = "Hi"}).toStdString(),
        R"(<div class="main-right"><table class='sm'><tr><td>)"
        R"(<table border="0" cellpadding="0" cellspacing="0" class="msg-box">)"
        R"(<tr><td class="top-l"></td><td class="top-c"></td><td class="top-r"></td></tr>)"
        R"(<tr><td class="mid-l"></td><td class="mid-c">Hi&nbsp;</td><td class="mid-r"></td></tr>)"
        R"(<tr><td class="bot-l"></td><td class="bot-c"></td><td class="bot-r"></td></tr></table>)"
        "</td><td></td></tr></table></div>");
}

TEST(SmsPageBubble, WithAnIcon)
{
    EXPECT_EQ(drawnMessage({.pieces = {PRSMSPiece({.type = "video/mp4", .info = "a.mp4"})}})
                  .toStdString(),
        R"(<div class="main-left"><table class='rm'><tr><td>)"
        R"(<table border="0" cellpadding="0" cellspacing="0" class="msg-box">)"
        R"(<tr><td class="top-l"></td><td class="top-c"></td><td class="top-r"></td></tr>)"
        R"(<tr><td class="mid-l"></td><td class="mid-c"><table><tr>)"
        R"(<td><img src="image/video.png" /></td><td>a.mp4&nbsp;</td></tr></table></td>)"
        R"(<td class="mid-r"></td></tr>)"
        R"(<tr><td class="bot-l"></td><td class="bot-c"></td><td class="bot-r"></td></tr></table>)"
        "</td><td></td></tr></table></div>");
}

TEST(SmsPageBubble, WithAllMarksOfASentMessage)
{
    EXPECT_EQ(drawnMessage(
                  {.fromMe = true, .sentDone = false, .normalSMS = false, .content = "Hi"}, Deleted)
                  .toStdString(),
        R"(<div class="main-right-imsg">)"
        R"(<img src='image/del_msg_send.png' style='top:20px;left:5px; position:relative;' />)"
        R"(<table class='sm'><tr><td>)"
        R"(<table border="0" cellpadding="0" cellspacing="0" class="msg-box">)"
        R"(<tr><td class="top-l"></td><td class="top-c"></td><td class="top-r"></td></tr>)"
        R"(<tr><td class="mid-l"></td><td class="mid-c">Hi&nbsp;</td><td class="mid-r"></td></tr>)"
        R"(<tr><td class="bot-l"></td><td class="bot-c"></td><td class="bot-r"></td></tr></table>)"
        R"(</td><td><img src="image/exclamation.png" /></td></tr></table></div>)");
}

TEST(SmsPageBubble, WithAllMarksOfAReceivedMessage)
{
    EXPECT_EQ(drawnMessage({.sentDone = false, .normalSMS = false, .content = "Hi"}, Deleted)
                  .toStdString(),
        R"(<div class="main-left"><table class='rm'><tr><td>)"
        R"(<table border="0" cellpadding="0" cellspacing="0" class="msg-box">)"
        R"(<tr><td class="top-l"></td><td class="top-c"></td><td class="top-r">)"
        R"(<img src='image/del_msg_recv.png' style='top:3px;left:0px; position:relative;' />)"
        R"(</td></tr>)"
        R"(<tr><td class="mid-l"></td><td class="mid-c">Hi&nbsp;</td><td class="mid-r"></td></tr>)"
        R"(<tr><td class="bot-l"></td><td class="bot-c"></td><td class="bot-r"></td></tr></table>)"
        R"(</td><td><img src="image/exclamation.png" /></td></tr></table></div>)");
}

TEST(SmsPageBubble, SideColourAndMarksInEveryCombination)
{
    for (int bits = 0; bits < 16; ++bits) {
        SCOPED_TRACE(bits);
        const bool fromMe = (bits & 1) != 0;
        const bool failed = (bits & 2) != 0;
        const bool normal = (bits & 4) != 0;
        const bool deleted = (bits & 8) != 0;
        const QString text = drawnMessage(
            {.fromMe = fromMe, .sentDone = !failed, .normalSMS = normal, .content = "Hi"},
            deleted ? Deleted : 0);
        const QString sent = normal ? "main-right" : "main-right-imsg";
        const QString side = fromMe ? sent : "main-left";
        EXPECT_TRUE(text.startsWith(R"(<div class=")" + side + R"(">)")) << text.toStdString();
        EXPECT_TRUE(text.contains(fromMe ? "<table class='sm'>" : "<table class='rm'>"));
        EXPECT_EQ(text.count(kFailure), failed ? 1 : 0);
        EXPECT_EQ(text.count(kSentMark), deleted && fromMe ? 1 : 0);
        EXPECT_EQ(text.count(kReceivedMark), deleted && !fromMe ? 1 : 0);
        EXPECT_EQ(text.count("<img"), int(failed) + int(deleted));
    }
}

TEST(SmsPageBubble, OtherFlagsThanDeletedMakeNoMark)
{
    EXPECT_EQ(drawnMessage({.content = "Hi"}, Locked | PartlySelected), receivedBubble("Hi"));
}

TEST(SmsPageBubble, EachBubbleOfADeletedConversationIsMarked)
{
    const QString text = drawnMessages(
        {{.content = "a", .pieces = {textPiece("b"), pictureless("c")}},
            {.fromMe = true, .content = "d", .pieces = {textPiece("e"), pictureless("f")}}},
        Deleted);
    EXPECT_EQ(text.count(kReceivedMark), 3);
    EXPECT_EQ(text.count(kSentMark), 3);
}

TEST(SmsPageBubble, EachBubbleOfAFailedMessageIsMarked)
{
    const QString text = drawnMessages({{.fromMe = true,
                                            .sentDone = false,
                                            .content = "a",
                                            .pieces = {textPiece("b"), pictureless("c")}},
        {.fromMe = true, .content = "d"}});
    EXPECT_EQ(text.count(kFailure), 3);
}

TEST(SmsPageText, IsEscapedWithItsLinesKept)
{
    struct {
        const char* what = nullptr;
        QString text;
        QString shown;
    } const rows[] = {
        {"markup", R"(<b>&"'</b>)", "&lt;b&gt;&amp;&quot;'&lt;/b&gt;"},
        {"lines", "\none\r\ntwo\n", "<br>one\r<br>two<br>"},
        {"one blank", " ", " "},
        {"place marks", "%1 %2 %9 %%", "%1 %2 %9 %%"},
        {"right to left", QString::fromUtf8("\u05e9\u202eabc\u202c"),
            QString::fromUtf8("\u05e9\u202eabc\u202c")},
        {"lone surrogates", QString(QChar(0xD83D)) + "<" + QChar(0xDE00),
            QString(QChar(0xD83D)) + "&lt;" + QChar(0xDE00)},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(drawnMessage({.content = row.text}), receivedBubble(row.shown));
    }
}

TEST(SmsPageSubject, LeadsTheFirstBubbleAndNoOther)
{
    const PRSMSPiece text = textPiece("text");
    const PRSMSPiece noText = textPiece("");
    const PRSMSPiece file = pictureless("file");
    const PRSMSPiece nothing = pictureless("");
    struct {
        const char* what = nullptr;
        SmsMessage message;
        QStringList bubbles;
    } const rows[] = {
        {"nothing", {}, {}},
        {"body", {.content = "body"}, {"body"}},
        {"body, text", {.content = "body", .pieces = {text}}, {"body", "text"}},
        {"text without text", {.pieces = {noText}}, {""}},
        {"two texts", {.pieces = {text, noText}}, {"text", ""}},
        {"file", {.pieces = {file}}, {"file"}},
        {"a piece of nothing", {.pieces = {nothing}}, {}},
        {"subject", {.subject = "S"}, {"S"}},
        {"subject, body", {.subject = "S", .content = "body"}, {"S<br>body"}},
        {"subject, body, text", {.subject = "S", .content = "body", .pieces = {text}},
            {"S<br>body", "text"}},
        {"subject, body, file", {.subject = "S", .content = "body", .pieces = {file}},
            {"S<br>body", "file"}},
        {"subject, text", {.subject = "S", .pieces = {text}}, {"S<br>text"}},
        {"subject, text without text", {.subject = "S", .pieces = {noText}}, {"S"}},
        {"subject, text without text, text", {.subject = "S", .pieces = {noText, text}},
            {"S", "text"}},
        {"subject, two texts", {.subject = "S", .pieces = {text, text}}, {"S<br>text", "text"}},
        {"subject, file", {.subject = "S", .pieces = {file}}, {"S", "file"}},
        {"subject, file, text", {.subject = "S", .pieces = {file, text}}, {"S", "file", "text"}},
        {"subject, two files", {.subject = "S", .pieces = {file, file}}, {"S", "file", "file"}},
        {"subject, a piece of nothing", {.subject = "S", .pieces = {nothing}}, {"S"}},
        {"markup", {.subject = "<S>\n", .content = "&"}, {"&lt;S&gt;<br><br>&amp;"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(drawnMessage(row.message), receivedBubbles(row.bubbles));
    }
}

TEST(SmsPageSubject, StandsBeforeAPictureInABubbleOfItsOwn)
{
    const PRSMSPiece picture({.type = "image/png", .data = imageBytes(9, 9)});
    EXPECT_EQ(drawnMessage({.subject = "S", .pieces = {picture}}),
        receivedBubble("S") + receivedPicture("image/0.png"));
    EXPECT_EQ(drawnMessage({.subject = "S", .content = "body", .pieces = {picture}}),
        receivedBubble("S<br>body") + receivedPicture("image/0.png"));
}

TEST(SmsPageSubject, OfOneMessageDoesNotReachTheNext)
{
    const QString text = drawnMessages({{.subject = "S"}, {.content = "body"}});
    EXPECT_EQ(text.count(">S&nbsp;"), 1);
    EXPECT_EQ(text.count(">body&nbsp;"), 1);
}

TEST(SmsPagePieces, AreTextByAPlainTextInTheirType)
{
    struct {
        const char* what = nullptr;
        PRSMSPiece piece;
        QStringList bubbles;
    } const rows[] = {
        {"plain", textPiece("a"), {"a"}},
        {"with a character set", textPiece("a", "text/plain; charset=utf-8"), {"a"}},
        {"somewhere in the type", textPiece("a", "x-text/plainer"), {"a"}},
        {"capitals", textPiece("a", "TEXT/PLAIN"), {}},
        {"one capital", textPiece("a", "text/Plain"), {}},
        {"another text", textPiece("a", "text/html"), {}},
        {"no type", textPiece("a", ""), {}},
        {"of a place on a map", PRSMSPiece({.type = "text/plain", .location = true, .data = "a"}),
            {"a"}},
        {"bytes of a picture", textPiece("\x89PNG", "text/plain"),
            {QString(QChar(0xFFFD)) + "PNG"}},
        {"UTF-8", textPiece("\xC3\xA4\xF0\x9F\x98\x80"), {QString::fromUtf8("\u00e4\U0001F600")}},
        {"markup", textPiece("<a>\n"), {"&lt;a&gt;<br>"}},
        {"its name is not read", PRSMSPiece({.type = "text/plain", .data = "a", .info = "i"}),
            {"a"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(drawnMessage({.pieces = {row.piece}}), receivedBubbles(row.bubbles));
    }
}

TEST(SmsPagePieces, StandInTheirOrder)
{
    EXPECT_EQ(drawnMessage({.pieces = {pictureless("1"), textPiece("2"), pictureless("3")}}),
        receivedBubbles({"1", "2", "3"}));
}

} // namespace
