// SPDX-License-Identifier: MIT
// Whole pages: what is written when, what ends a run, and text that is out for harm.
#include "exporters/CHtmlExporter.h"
#include "platform/OvResourceMgr.h"
#include "support/recording_progress.h"
#include "support/temp_tree.h"
#include "translators/message/sms_page.h"

#include <functional>

namespace {

constexpr int kMegabyte = 1'048'576;

std::unique_ptr<PRSMSItem> talk(const QString& text)
{
    return conversationOf(chatsOf({{.content = text}}));
}

std::unique_ptr<PRSMSData> talks(const QStringList& texts)
{
    RecordList records;
    for (const QString& text : texts) {
        records.push_back(talk(text));
    }
    return std::make_unique<PRSMSData>(std::move(records));
}

TEST(SmsPageRun, WritesTopConversationsAndEndOnceEach)
{
    RecordList records;
    records.push_back(talk("first"));
    records.push_back(std::make_unique<PRAbstractItem>(Record{.values = {"no conversation"}}));
    records.push_back(std::make_unique<PRSMSItem>(Record{.selected = false}));
    records.push_back(talk("second"));
    PRSMSData data(std::move(records));
    CSMS2HtmlTranslate translator(&data);
    PageSink sink;
    EXPECT_TRUE(translator.translate(&sink, "Anna's Messages", nullptr));
    ASSERT_EQ(sink.writes().size(), 4);
    EXPECT_TRUE(sink.writes().at(0).contains("<h1>Anna's Messages</h1>"));
    EXPECT_TRUE(sink.writes().at(1).contains(receivedBubble("first")));
    EXPECT_TRUE(sink.writes().at(2).contains(receivedBubble("second")));
    EXPECT_EQ(sink.writes().at(3), "</div>");
    EXPECT_EQ(sink.otherCalls(), QStringList()) << "records are not opened one by one";
}

TEST(SmsPageRun, EndsAtTheFirstWriteThatFails)
{
    const auto data = talks({"first", "second"});
    for (int failing = 1; failing <= 4; ++failing) {
        SCOPED_TRACE(failing);
        CSMS2HtmlTranslate translator(data.get());
        PageSink sink(failing);
        EXPECT_FALSE(translator.translate(&sink, "Anna's Messages", nullptr));
        EXPECT_EQ(sink.writes().size(), failing);
    }
    CSMS2HtmlTranslate translator(data.get());
    PageSink sink(5);
    EXPECT_TRUE(translator.translate(&sink, "Anna's Messages", nullptr));
}

TEST(SmsPageRun, ACancelKeepsWhatIsThereAndWritesTheEnd)
{
    const auto data = talks({"first", "second", "third"});
    for (int cancelAt = 1; cancelAt <= 4; ++cancelAt) {
        SCOPED_TRACE(cancelAt);
        support::RecordingProgress progress(cancelAt);
        progress.initRange(90);
        CSMS2HtmlTranslate translator(data.get());
        PageSink sink;
        EXPECT_TRUE(translator.translate(&sink, "Anna's Messages", &progress));
        EXPECT_EQ(sink.writes().size(), 1 + (cancelAt - 1) + 1);
        EXPECT_EQ(sink.writes().last(), "</div>");
        EXPECT_EQ(progress.calls().mid(0, 3), QStringList({"initRange 90", "range", "step 30"}));
        EXPECT_EQ(progress.steps(), qMin(cancelAt, 3));
    }
}

TEST(SmsPageRun, APageWithoutConversationsIsATopAndAnEnd)
{
    PRSMSData data;
    CSMS2HtmlTranslate translator(&data);
    PageSink sink;
    EXPECT_TRUE(translator.translate(&sink, "", nullptr));
    EXPECT_EQ(sink.writes().join(""), R"(<div id="wrap"><div id="top"><h1></h1></div></div>)");
}

// --- text that is out for harm, in every place that shows a text

const QString kHostile = QString::fromUtf8(
    "</p></td></h2><script>alert(\"1\")</script> %1%2%3%9 &lt; ' \n\r\u202e\u05e9 \U0001F600");
const QString kHarmless = QString::fromUtf8(
    "&lt;/p&gt;&lt;/td&gt;&lt;/h2&gt;&lt;script&gt;alert(&quot;1&quot;)&lt;/script&gt; %1%2%3%9 "
    "&amp;lt; ' <br>\r\u202e\u05e9 \U0001F600");

struct Place {
    const char* what = nullptr;
    std::function<std::unique_ptr<PRSMSItem>(const QString&)> conversation;
};

std::unique_ptr<PRSMSItem> withValues(const QStringList& values)
{
    return std::make_unique<PRSMSItem>(Record{.values = values}, SmsConversation{});
}

std::unique_ptr<PRSMSItem> withMessage(const SmsMessage& message)
{
    return conversationOf(chatsOf({message}));
}

std::unique_ptr<PRSMSItem> inGroup(const QMap<QString, QString>& names, const QString& address)
{
    return std::make_unique<PRSMSItem>(Record{},
        SmsConversation{.addrIds = names, .chats = chatsOf({{.content = "a", .addr = address}})});
}

const std::vector<Place>& places()
{
    static const std::vector<Place> all{
        {"name", [](const QString& text) { return withValues({text}); }},
        {"phone",
            [](const QString& text) {
                return withValues({"", text});
            }},
        {"email",
            [](const QString& text) {
                return withValues({"", "", text});
            }},
        {"event", [](const QString& text) { return withMessage({.itemType = 1, .event = text}); }},
        {"subject", [](const QString& text) { return withMessage({.subject = text}); }},
        {"body", [](const QString& text) { return withMessage({.content = text}); }},
        {"subject and body",
            [](const QString& text) { return withMessage({.subject = "S", .content = text}); }},
        {"text piece",
            [](const QString& text) {
                return withMessage({.pieces = {textPiece(text.toUtf8())}});
            }},
        {"name of a piece",
            [](const QString& text) {
                return withMessage({.pieces = {PRSMSPiece({.info = text})}});
            }},
        {"name of a piece with an icon",
            [](const QString& text) {
                return withMessage({.pieces = {PRSMSPiece({.type = "video", .info = text})}});
            }},
        {"address of a sender",
            [](const QString& text) {
                return inGroup({{"1", "Mia"}, {"2", "Ben"}}, text);
            }},
        {"name of a sender",
            [](const QString& text) {
                return inGroup({{"1", text}, {"2", "Ben"}}, "1");
            }},
    };
    return all;
}

TEST(SmsPageHostileText, IsShownAndNothingElseInEveryPlace)
{
    for (const Place& place : places()) {
        SCOPED_TRACE(place.what);
        // With a plain text in the same place the page is the same but for that text.
        const QString plain = drawn(place.conversation("(here)")).text;
        EXPECT_EQ(plain.count("(here)"), 1);
        EXPECT_EQ(drawn(place.conversation(kHostile)).text.toStdString(),
            QString(plain).replace("(here)", kHarmless).toStdString());
    }
}

TEST(SmsPageHostileText, OfAMegabyteIsShownInEveryPlace)
{
    for (const Place& place : places()) {
        SCOPED_TRACE(place.what);
        const QString text = drawn(place.conversation(QString(kMegabyte, '<'))).text;
        EXPECT_EQ(text.count("&lt;"), kMegabyte);
    }
}

TEST(SmsPageHostileText, ThatNamesFilesOpensNone)
{
    const QString path = "/nonexistent/%1<>\"\n" + QString(5'000, 'x') + ".heic";
    const SmsPiece piece{.type = "image/<x>", .data = "%1", .path = path, .preview = path};
    EXPECT_EQ(
        drawnMessage({.pieces = {PRSMSPiece(piece)}}), receivedIconBubble("image/picture.png", ""));
}

// --- through the exporter, to the bytes of the file

class SmsPageFile : public testing::Test {
protected:
    void SetUp() override { OvResourceMgr::instance()->setProductResourceRoot("/nonexistent"); }
    void TearDown() override { OvResourceMgr::instance()->setProductResourceRoot({}); }

    // The text of the page of one conversation, below its date.
    QByteArray fileWith(const QString& text) const
    {
        const auto data = talks({text});
        CHtmlExporter exporter;
        exporter.setHeadText(smsStyleSheet());
        CSMS2HtmlTranslate translator(data.get());
        EXPECT_TRUE(exporter.openExport(tree.dir(), "Anna", "Cat"));
        EXPECT_TRUE(translator.translate(&exporter, "Anna's Cat", nullptr));
        EXPECT_TRUE(exporter.closeExport(true));
        const QByteArray page = tree.read("Cat/Anna's Cat.html");
        const QByteArray begin = R"(<td class="mid-c">)";
        const int at = page.indexOf(begin) + begin.size();
        return page.mid(at, page.indexOf("&nbsp;</td>", at) - at);
    }

    support::TempTree tree;
};

TEST_F(SmsPageFile, IsUtf8)
{
    EXPECT_EQ(fileWith(QString::fromUtf8("\u00e4\u05e9\U0001F600\uFEFF")),
        "\xC3\xA4\xD7\xA9\xF0\x9F\x98\x80\xEF\xBB\xBF");
    EXPECT_TRUE(tree.read("Cat/Anna's Cat.html").startsWith("<!DOCTYPE")) << "without a mark";
}

TEST_F(SmsPageFile, HasAQuestionMarkForEachLoneSurrogate)
{
    const QString text =
        "a" + QString(QChar(0xD83D)) + "b" + QChar(0xDE00) + "c" + QChar(0xD83D) + QChar(0xD83D);
    EXPECT_EQ(fileWith(text), "a?b?c??");
}

TEST_F(SmsPageFile, KeepsEveryCharacterOfALongMessageWhereverItLies)
{
    const QString emoji = QString::fromUtf8("\U0001F600");
    for (const QString& lead : {QString(), QString("a")}) { // an odd and an even place for each
        const QString text = lead + emoji.repeated(kMegabyte / 4);
        EXPECT_TRUE(fileWith(text) == text.toUtf8());
    }
}

} // namespace
