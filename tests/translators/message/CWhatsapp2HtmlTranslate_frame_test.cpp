// SPDX-License-Identifier: MIT
// What stands around the chats, and the run over them: style sheet, images, title, end.
#include "exporters/CHtmlExporter.h"
#include "platform/OvResourceMgr.h"
#include "support/recording_progress.h"
#include "support/temp_tree.h"
#include "translators/message/chat_page.h"

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
    "broadcast.png",
    "msglike.png",
    "msgnolike.png",
};
const QStringList kBrandImages{
    "audio.png", "video.png", "vcard.png", "location.png", "picture.png", "document.png"};

QStringList copiesFrom(const QString& root)
{
    QStringList copies;
    for (const QString& name : kSharedImages) {
        copies.append(root + "/DataExport/" + name + " as " + name);
    }
    for (const QString& name : kBrandImages) {
        copies.append(root + "/DataExport/default/" + name + " as " + name);
    }
    return copies;
}

class ChatPageFrame : public testing::Test {
protected:
    void SetUp() override { OvResourceMgr::instance()->setProductResourceRoot("/nonexistent"); }
    void TearDown() override { OvResourceMgr::instance()->setProductResourceRoot({}); }

    PRData data{5};
    CWhatsapp2HtmlTranslate translator{&data};
    PageSink sink;
};

TEST(ChatPageSheet, HasTheseRulesInOneLine)
{
    // clang-format off
    const QStringList rules{
        "html, div, body, p, form, img, h1, h2, input { margin:0 auto; padding:0; font:14px/160% Arial, Helvetica, sans-serif; color:#575757; }",
        "img, input { border:none; }",
        "#wrap { width:500px; background:#fff; }",
        "h1 { color:#333333; font-size:32px; font-weight:bold; text-align:center; padding-top:10px; }",
        "h2 { color:#333333; font-size:14px; font-weight:bold; padding-bottom:0px; padding-top:10px; }",
        ".main { overflow:hidden; clear:both; }",
        ".main p { color:#333333; text-align:center; font-size:14px; padding-top:10px; clear:both; }",
        ".main .cid { color:#2F85D0; padding-left:20px; text-align:left; font-size:14px; }",
        ".main-left { float:left; padding-top:10px; padding-bottom:20px; vertical-align:center; clear:both; }",
        ".main-right { float:right; padding-top:10px; padding-bottom:20px; clear:both; }",
        ".main-left img { vertical-align:middle; }",
        ".main-right img { vertical-align:middle; }",
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
    EXPECT_EQ(chatStyleSheet().toStdString(),
        (R"(<style type="text/css">)" + rules.join("") + "</style>").toStdString());
}

TEST_F(ChatPageFrame, PrepareWritesNothing)
{
    EXPECT_TRUE(translator.prepare(&sink, "T", nullptr));
    EXPECT_EQ(sink.writes() + sink.copies() + sink.otherCalls(), QStringList());
}

TEST_F(ChatPageFrame, TheHeaderCopiesThirtyImagesInOrder)
{
    EXPECT_TRUE(translator.writeHeader(&sink));
    EXPECT_EQ(sink.copies().size(), 30);
    EXPECT_EQ(sink.copies().join('\n').toStdString(),
        copiesFrom("/nonexistent").join('\n').toStdString());
    EXPECT_EQ(sink.otherCalls(), QStringList());
    EXPECT_TRUE(sink.pictures().isEmpty());
}

TEST_F(ChatPageFrame, AnAudioImageForMessagesIsNotForChats)
{
    const support::TempTree tree;
    OvResourceMgr::instance()->setProductResourceRoot(tree.path());
    tree.write("DataExport/default/audio_sms.png", "audio of messages");
    EXPECT_TRUE(translator.writeHeader(&sink));
    EXPECT_EQ(sink.copies(), copiesFrom(tree.path()));
}

TEST_F(ChatPageFrame, ImagesThatCannotBeCopiedAreNoFailure)
{
    PageSink failing(0, true);
    EXPECT_TRUE(translator.writeHeader(&failing));
    EXPECT_EQ(failing.copies().size(), 30);
    EXPECT_EQ(failing.writes().size(), 1);
}

TEST_F(ChatPageFrame, TheHeaderOpensThePageWithTheTitle)
{
    struct {
        const char* what = nullptr;
        const char* title = nullptr;
        const char* shown = nullptr;
    } const rows[] = {
        {"plain", "Anna's WhatsApp", "Anna's WhatsApp"},
        {"empty", "", ""},
        {"markup", R"(<b>"A" & B</b>)", "&lt;b&gt;&quot;A&quot; &amp; B&lt;/b&gt;"},
        {"lines", "one\ntwo\r\n", "one<br>two\r<br>"},
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

TEST_F(ChatPageFrame, TheFooterClosesWhatTheHeaderOpened)
{
    EXPECT_TRUE(translator.writeFooter(&sink));
    EXPECT_EQ(sink.writes(), QStringList("</div>"));
}

TEST_F(ChatPageFrame, EachPartFailsWithItsWrite)
{
    PageSink top(1);
    EXPECT_FALSE(translator.writeHeader(&top));
    PageSink end(1);
    EXPECT_FALSE(translator.writeFooter(&end));
    PageSink chat(1);
    EXPECT_FALSE(translator.writeItem(&chat, chatOf({}).get()));
    for (const PageSink* failed : {&top, &end, &chat}) {
        EXPECT_EQ(failed->writes().size(), 1);
    }
}

// --- the whole run

std::unique_ptr<PRData> chatsSaying(const QStringList& texts)
{
    RecordList records;
    for (const QString& text : texts) {
        records.push_back(chatOf({{.content = text}}));
    }
    return std::make_unique<PRData>(5, std::move(records));
}

TEST_F(ChatPageFrame, ARunWritesTopChatsAndEndOnceEach)
{
    RecordList records;
    records.push_back(chatOf({{.content = "first"}}));
    records.push_back(std::make_unique<PRAbstractItem>(Record{.values = {"no chat"}}));
    records.push_back(chatOf({{.content = "unwanted"}}, 0, false));
    records.push_back(chatOf({{.content = "second"}}));
    PRData chats(5, std::move(records));
    EXPECT_TRUE(CWhatsapp2HtmlTranslate(&chats).translate(&sink, "Anna's WhatsApp", nullptr));
    ASSERT_EQ(sink.writes().size(), 4);
    EXPECT_TRUE(sink.writes().at(0).contains("<h1>Anna's WhatsApp</h1>"));
    EXPECT_TRUE(sink.writes().at(1).contains(receivedBubble("first")));
    EXPECT_TRUE(sink.writes().at(2).contains(receivedBubble("second")));
    EXPECT_EQ(sink.writes().at(3), "</div>");
    EXPECT_EQ(sink.otherCalls(), QStringList()) << "records are not opened one by one";
}

TEST_F(ChatPageFrame, ARunEndsAtTheFirstWriteThatFails)
{
    const auto chats = chatsSaying({"first", "second"});
    for (int failing = 1; failing <= 4; ++failing) {
        SCOPED_TRACE(failing);
        PageSink page(failing);
        EXPECT_FALSE(CWhatsapp2HtmlTranslate(chats.get()).translate(&page, "T", nullptr));
        EXPECT_EQ(page.writes().size(), failing);
    }
    PageSink page(5);
    EXPECT_TRUE(CWhatsapp2HtmlTranslate(chats.get()).translate(&page, "T", nullptr));
}

TEST_F(ChatPageFrame, ACancelKeepsWhatIsThereAndWritesTheEnd)
{
    const auto chats = chatsSaying({"first", "second", "third"});
    for (int cancelAt = 1; cancelAt <= 4; ++cancelAt) {
        SCOPED_TRACE(cancelAt);
        support::RecordingProgress progress(cancelAt);
        progress.initRange(90);
        PageSink page;
        EXPECT_TRUE(CWhatsapp2HtmlTranslate(chats.get()).translate(&page, "T", &progress));
        EXPECT_EQ(page.writes().size(), 1 + (cancelAt - 1) + 1);
        EXPECT_EQ(page.writes().last(), "</div>");
        EXPECT_EQ(progress.calls().mid(0, 3), QStringList({"initRange 90", "range", "step 30"}));
        EXPECT_EQ(progress.steps(), qMin(cancelAt, 3));
    }
}

TEST_F(ChatPageFrame, APageIsUtf8WithAQuestionMarkForALoneSurrogate)
{
    const QString text = QString::fromUtf8("\u00e4\u05e9\U0001F600") + QChar(0xD83D) + "b";
    const auto chats = chatsSaying({text});
    const support::TempTree tree;
    CHtmlExporter exporter;
    exporter.setHeadText(chatStyleSheet());
    EXPECT_TRUE(exporter.openExport(tree.dir(), "Anna", "Cat"));
    EXPECT_TRUE(CWhatsapp2HtmlTranslate(chats.get()).translate(&exporter, "T", nullptr));
    EXPECT_TRUE(exporter.closeExport(true));
    EXPECT_TRUE(tree.read("Cat/Anna's Cat.html")
                    .contains("<td class=\"mid-c\">\xC3\xA4\xD7\xA9\xF0\x9F\x98\x80?b&nbsp;</td>"));
}

} // namespace
