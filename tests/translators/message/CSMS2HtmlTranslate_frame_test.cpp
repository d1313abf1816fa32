// SPDX-License-Identifier: MIT
// What stands around the conversations: style sheet, images, title, end.
#include "platform/OvResourceMgr.h"
#include "support/temp_tree.h"
#include "translators/message/sms_page.h"

namespace {

const QStringList kSharedImages{
    "message-top-l.png",
    "message-top-c.png",
    "message-top-r.png",
    "message-middle-l.png",
    "message-bg.png",
    "message-middle-r.png",
    "message-bot-l.png",
    "message-bot-c.png",
    "message-bot-r.png",
    "imessage-top-l.png",
    "imessage-top-c.png",
    "imessage-top-r.png",
    "imessage-middle-l.png",
    "imessage-bg.png",
    "imessage-middle-r.png",
    "imessage-bot-l.png",
    "imessage-bot-c.png",
    "imessage-bot-r.png",
    "rmessage-top-l.png",
    "rmessage-top-c.png",
    "rmessage-top-r.png",
    "rmessage-middle-l.png",
    "rmessage-bg.png",
    "rmessage-middle-r.png",
    "rmessage-bot-l.png",
    "rmessage-bot-c.png",
    "rmessage-bot-r.png",
    "exclamation.png",
    "del_msg_recv.png",
    "del_msg_send.png",
};

class SmsPageFrame : public testing::Test {
protected:
    void TearDown() override { OvResourceMgr::instance()->setProductResourceRoot({}); }

    bool writeHeader(const QString& title = "Anna's Messages")
    {
        EXPECT_TRUE(translator.prepare(nullptr, title, nullptr));
        return translator.writeHeader(&sink);
    }

    PRSMSData data;
    CSMS2HtmlTranslate translator{&data};
    PageSink sink;
};

// All that is copied from a folder of resources.
QStringList copiesFrom(const QString& root, const QString& audio)
{
    QStringList copies;
    for (const QString& name : kSharedImages) {
        copies.append(root + "/DataExport/" + name + " as " + name);
    }
    const QString brand = root + "/DataExport/default/";
    copies.append(brand + "video.png as video.png");
    copies.append(brand + "picture.png as picture.png");
    copies.append(brand + audio + " as audio.png");
    copies.append(brand + "location.png as location.png");
    return copies;
}

TEST(SmsPageSheet, HasTheseRulesInOneLine)
{
    // clang-format off
    const QStringList rules{
        "html, div, body, p, form, img, h1, h2, input { margin:0 auto; padding:0; font:14px/160% Arial, Helvetica, sans-serif; color:#575757; }",
        "img, input { border:none; }",
        "#wrap { width:500px; background:#fff; }",
        "h1 { color:#333333; font-size:32px; font-weight:bold; text-align:center; padding-top:10px; }",
        "h2 { color:#333333; font-size:16px; padding-bottom:0px; padding-top:10px; }",
        ".main { overflow:hidden; clear:both; }",
        ".main p { color:#333333; text-align:center; font-size:12px; padding-top:10px; clear:both; }",
        ".main .event-msg { font-size:14px; }",
        ".main .cid { color:#2F85D0; padding-left:20px; text-align:left; font-size:14px; }",
        ".main-left { float:left; padding-top:10px; padding-bottom:20px; vertical-align:center; clear:both; }",
        ".main-right { float:right; padding-top:10px; padding-bottom:20px; clear:both; }",
        ".main-right-imsg { float:right; padding-top:10px; padding-bottom:20px; clear:both; }",
        ".main-left img { vertical-align:middle; }",
        ".main-right img { vertical-align:middle; }",
        ".main-right-imsg img { vertical-align:middle; }",
        ".msg-box .mid-c { max-width:230px; word-break:break-word; }",
        ".main-right .top-l { background:url(image/message-top-l.png) no-repeat; height:13px; width:14px; }",
        ".main-right .top-c { background:url(image/message-top-c.png) repeat-x; }",
        ".main-right .top-r { background:url(image/message-top-r.png) no-repeat; width:18px; }",
        ".main-right .mid-l { background:url(image/message-middle-l.png) repeat-y; }",
        ".main-right .mid-c { background:url(image/message-bg.png) repeat; }",
        ".main-right .mid-r { background:url(image/message-middle-r.png) repeat-y; }",
        ".main-right .bot-l { background:url(image/message-bot-l.png) no-repeat; height:14px; }",
        ".main-right .bot-c { background:url(image/message-bot-c.png) repeat-x; }",
        ".main-right .bot-r { background:url(image/message-bot-r.png) no-repeat; }",
        ".main-right-imsg .top-l { background:url(image/imessage-top-l.png) no-repeat; height:13px; width:14px; }",
        ".main-right-imsg .top-c { background:url(image/imessage-top-c.png) repeat-x; }",
        ".main-right-imsg .top-r { background:url(image/imessage-top-r.png) no-repeat; width:18px; }",
        ".main-right-imsg .mid-l { background:url(image/imessage-middle-l.png) repeat-y; }",
        ".main-right-imsg .mid-c { background:url(image/imessage-bg.png) repeat; }",
        ".main-right-imsg .mid-r { background:url(image/imessage-middle-r.png) repeat-y; }",
        ".main-right-imsg .bot-l { background:url(image/imessage-bot-l.png) no-repeat; height:14px; }",
        ".main-right-imsg .bot-c { background:url(image/imessage-bot-c.png) repeat-x; }",
        ".main-right-imsg .bot-r { background:url(image/imessage-bot-r.png) no-repeat; }",
        ".main-left .top-l { background:url(image/rmessage-top-l.png) no-repeat; height:15px; width:14px; }",
        ".main-left .top-c { background:url(image/rmessage-top-c.png) repeat-x; }",
        ".main-left .top-r { background:url(image/rmessage-top-r.png) no-repeat; width:18px; }",
        ".main-left .mid-l { background:url(image/rmessage-middle-l.png) repeat-y; }",
        ".main-left .mid-c { background:url(image/rmessage-bg.png) repeat; }",
        ".main-left .mid-r { background:url(image/rmessage-middle-r.png) repeat-y; }",
        ".main-left .bot-l { background:url(image/rmessage-bot-l.png) no-repeat; height:13px; }",
        ".main-left .bot-c { background:url(image/rmessage-bot-c.png) repeat-x; }",
        ".main-left .bot-r { background:url(image/rmessage-bot-r.png) no-repeat; }",
        ".rm { color:#000; }",
        ".sm { color:#fff; }",
    };
    // clang-format on
    EXPECT_EQ(smsStyleSheet().toStdString(),
        (R"(<style type="text/css">)" + rules.join("") + "</style>").toStdString());
}

TEST_F(SmsPageFrame, PrepareWritesNothing)
{
    EXPECT_TRUE(translator.prepare(&sink, "Anna's Messages", nullptr));
    EXPECT_EQ(sink.writes() + sink.copies() + sink.otherCalls(), QStringList());
}

TEST_F(SmsPageFrame, TheHeaderCopiesThirtyFourImagesInOrder)
{
    OvResourceMgr::instance()->setProductResourceRoot("/nonexistent");
    EXPECT_TRUE(writeHeader());
    EXPECT_EQ(sink.copies().size(), 34);
    EXPECT_EQ(sink.copies().join('\n').toStdString(),
        copiesFrom("/nonexistent", "audio.png").join('\n').toStdString());
    EXPECT_EQ(sink.otherCalls(), QStringList());
    EXPECT_TRUE(sink.pictures().isEmpty());
}

TEST_F(SmsPageFrame, APlaceMarkInTheFolderOfTheResourcesStays)
{
    OvResourceMgr::instance()->setProductResourceRoot("/%2 %1");
    EXPECT_TRUE(writeHeader());
    EXPECT_EQ(sink.copies(), copiesFrom("/%2 %1", "audio.png"));
}

TEST_F(SmsPageFrame, AnAudioImageForMessagesStandsInForTheBrandsOther)
{
    const support::TempTree tree;
    OvResourceMgr::instance()->setProductResourceRoot(tree.path());
    tree.write("DataExport/default/audio.png", "audio");
    tree.write("DataExport/audio_sms.png", "that of no brand");
    EXPECT_TRUE(writeHeader());
    EXPECT_EQ(sink.copies(), copiesFrom(tree.path(), "audio.png"));

    tree.write("DataExport/default/audio_sms.png", "audio of messages");
    PageSink second;
    EXPECT_TRUE(translator.writeHeader(&second));
    EXPECT_EQ(second.copies(), copiesFrom(tree.path(), "audio_sms.png"));
}

TEST_F(SmsPageFrame, ImagesThatCannotBeCopiedAreNoFailure)
{
    PageSink failing(0, true);
    EXPECT_TRUE(translator.writeHeader(&failing));
    EXPECT_EQ(failing.copies().size(), 34);
    EXPECT_EQ(failing.writes().size(), 1);
}

TEST_F(SmsPageFrame, TheHeaderOpensThePageWithTheTitle)
{
    struct {
        const char* what = nullptr;
        const char* title = nullptr;
        const char* shown = nullptr;
    } const rows[] = {
        {"plain", "Anna's Messages", "Anna's Messages"},
        {"empty", "", ""},
        {"markup", R"(<b>"A" & B</b>)", "&lt;b&gt;&quot;A&quot; &amp; B&lt;/b&gt;"},
        {"lines", "one\ntwo\r\n", "one<br>two\r<br>"},
        {"markup that is escaped already", "&amp;<br>", "&amp;amp;&lt;br&gt;"},
        {"place marks", "%1 %2", "%1 %2"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        PageSink page;
        EXPECT_TRUE(translator.prepare(nullptr, row.title, nullptr));
        EXPECT_TRUE(translator.writeHeader(&page));
        EXPECT_EQ(page.writes().join('|').toStdString(),
            std::string(R"(<div id="wrap"><div id="top"><h1>)") + row.shown + "</h1></div>");
    }
}

TEST_F(SmsPageFrame, TheFooterClosesWhatTheHeaderOpened)
{
    EXPECT_TRUE(translator.writeFooter(&sink));
    EXPECT_EQ(sink.writes(), QStringList("</div>"));
}

TEST_F(SmsPageFrame, EachPartFailsWithItsWrite)
{
    PageSink top(1);
    EXPECT_FALSE(translator.writeHeader(&top));
    PageSink end(1);
    EXPECT_FALSE(translator.writeFooter(&end));
    PageSink conversation(1);
    EXPECT_FALSE(translator.writeItem(&conversation, conversationOf({}).get()));
    for (const PageSink* failed : {&top, &end, &conversation}) {
        EXPECT_EQ(failed->writes().size(), 1);
    }
}

} // namespace
