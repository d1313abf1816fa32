// SPDX-License-Identifier: MIT
#include "model/PRData.h"
#include "support/http_server.h"
#include "support/recording_progress.h"
#include "support/temp_tree.h"
#include "translators/contact/card_page.h"
#include "translators/contact/marking_translation.h"
#include "translators/message/WeichatContact2HtmlTranslate.h"
#include "translators/message/chat_contact_builder.h"

#include <functional>

namespace {

using support::HttpServer;

QString drawn(ChatContact content, int flags = 0)
{
    PRData data(16);
    WeichatContact2HtmlTranslate translator(&data);
    RecordingPage page;
    EXPECT_TRUE(translator.writeItem(&page, chatContact(std::move(content), flags).get()));
    EXPECT_EQ(page.writes.size(), 1);
    EXPECT_EQ(page.files, QStringList());
    return page.text();
}

QString line(const QString& text)
{
    return "<p>" + text + "</p>";
}

// The rows of a person, of texts that are already escaped, in the order of the page.
QString personRows(const QStringList& texts)
{
    return heading("Detail") + innerRow("Name", texts.value(0)) + innerRow("Alias", texts.value(1))
           + innerRow("Wechat ID", texts.value(2)) + innerRow("WXID", texts.value(3))
           + innerRow("Region", texts.value(4)) + innerRow("Phone", texts.value(5))
           + lastRow("What's Up", texts.value(6));
}

QString headRow(const QString& label, const QString& value)
{
    return R"(<tr class="group">)" + cells(label, value);
}

TEST(ChatContactPage, APersonHasACardWithAnAliasAndEightRows)
{
    EXPECT_EQ(
        drawn(mia()).toStdString(), (cardBegin("Mia") + line("\"mimi\"") + kTableBegin
                                        + personRows({"Mia", "&quot;mimi&quot;", "mia.huber",
                                            "wxid_1", "Kiel Germany", "+49 1,+49 2", "At sea"})
                                        + kCardEnd)
                                        .toStdString());
}

TEST(ChatContactPage, APersonWithoutAnythingHasTheSameRows)
{
    EXPECT_EQ(drawn({}).toStdString(), (cardBegin("") + line("") + kTableBegin
                                           + personRows({"", "", "", "", " ", "", ""}) + kCardEnd)
                                           .toStdString());
}

TEST(ChatContactPage, RowsComeFromTheseFields)
{
    struct {
        const char* what = nullptr;
        ChatContact contact;
        QStringList texts;
    } const rows[] = {
        {"given id stands in for the chosen one", {.nameID = "a"}, {"", "", "a", "a", " "}},
        {"chosen id alone", {.wxNameId = "a"}, {"", "", "a", "", " "}},
        {"city", {.city = "a"}, {"", "", "", "", "a "}},
        {"country", {.country = "a"}, {"", "", "", "", " a"}},
        {"place marks", {.country = "%1", .city = "%2"}, {"", "", "", "", "%2 %1"}},
        {"empty phones", {.phones = {"", "a", ""}}, {"", "", "", "", " ", ",a,"}},
        {"members of what is no room", {.members = {{"a", "b", "c", "d"}}}, {"", "", "", "", " "}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const QString text = drawn(row.contact);
        EXPECT_EQ(text.mid(text.indexOf("<tr")).toStdString(),
            (personRows(row.texts) + kCardEnd).toStdString());
    }
}

TEST(ChatContactPage, ADeletedPersonIsRedAndMarked)
{
    EXPECT_EQ(drawn(mia(), Deleted).toStdString(),
        (deletedCardBegin("Mia") + line("\"mimi\"") + kTableBegin
            + personRows({"Mia", "&quot;mimi&quot;", "mia.huber", "wxid_1", "Kiel Germany",
                "+49 1,+49 2", "At sea"})
            + kCardEnd)
            .toStdString());
    EXPECT_EQ(drawn(mia(), Locked | PartlySelected | InCalendarRange), drawn(mia()));
}

TEST(ChatContactPage, NameAndAliasAreNotEscapedAboveTheTable)
{
    const QString text = drawn({.name = "<i>M</i>\n&", .nickName = "a\"<b>"});
    EXPECT_TRUE(text.startsWith(cardBegin("<i>M</i>\n&") + line("\"a\"<b>\"") + kTableBegin));
    EXPECT_TRUE(text.contains(innerRow("Name", "&lt;i&gt;M&lt;/i&gt;<br>&amp;")
                              + innerRow("Alias", "&quot;a&quot;&lt;b&gt;&quot;")));
}

TEST(ChatContactPage, ARoomHasNoAliasAndAGroupOfRowsForEachMember)
{
    ChatContact room = mia();
    room.room = true;
    room.members = {Member{.alias = "ben", .name = "Ben", .nameId = "wxid_2", .wxId = "ben.falk"},
        Member{.alias = "", .name = "", .nameId = "wxid_3", .wxId = ""},
        Member{.alias = "<k>\n", .name = "K \"&\"", .nameId = "<3>", .wxId = "%1"}};
    EXPECT_EQ(drawn(room).toStdString(),
        (cardBegin("Mia") + kTableBegin + headRow("Name", "Ben") + innerRow("Alias", "ben")
            + innerRow("Wechat ID", "ben.falk") + lastRow("WXID", "wxid_2") + heading("Name")
            + innerRow("Alias", "") + innerRow("Wechat ID", "wxid_3") + lastRow("WXID", "wxid_3")
            + headRow("Name", "K &quot;&amp;&quot;") + innerRow("Alias", "&lt;k&gt;<br>")
            + innerRow("Wechat ID", "%1") + lastRow("WXID", "&lt;3&gt;") + kCardEnd)
            .toStdString());
}

TEST(ChatContactPage, ARoomWithoutMembersHasAnEmptyTable)
{
    EXPECT_EQ(drawn({.name = "R", .nickName = "r", .room = true}),
        cardBegin("R") + kTableBegin + kCardEnd);
    EXPECT_EQ(drawn({.name = "R", .room = true}, Deleted),
        deletedCardBegin("R") + kTableBegin + kCardEnd);
}

TEST(ChatContactPage, LabelsAreTranslatedAndEscaped)
{
    const MarkingTranslation translation;
    const QString person = drawn({.name = "a"});
    for (const char* label :
        {"Detail", "Name", "Alias", "Wechat ID", "WXID", "Region", "Phone", "What's Up"}) {
        EXPECT_EQ(person.count("&lt;" + QString(label) + "&gt;&nbsp;"), 1) << label;
    }
    const QString room = drawn({.room = true, .members = {{}, {"a", "b", "c", "d"}}});
    for (const char* label : {"Name", "Alias", "Wechat ID", "WXID"}) {
        EXPECT_EQ(room.count("&lt;" + QString(label) + "&gt;&nbsp;"), 2) << label;
    }
}

// --- text that is out for harm, in every place of the table

const QString kHostile = QString::fromUtf8(
    "</td></table><script>alert(\"1\")</script> %1%2%9 &lt; ' \n\r\u202e \U0001F600");
const QString kHarmless = QString::fromUtf8(
    "&lt;/td&gt;&lt;/table&gt;&lt;script&gt;alert(&quot;1&quot;)&lt;/script&gt; %1%2%9 &amp;lt; ' "
    "<br>\r\u202e \U0001F600");

TEST(ChatContactPage, HostileTextIsShownAndNothingElseInEveryRow)
{
    const std::function<ChatContact(const QString&)> places[] = {
        [](const QString& text) { return ChatContact{.wxNameId = text}; },
        [](const QString& text) { return ChatContact{.wxNameId = "x", .nameID = text}; },
        [](const QString& text) { return ChatContact{.country = text}; },
        [](const QString& text) { return ChatContact{.city = text}; },
        [](const QString& text) { return ChatContact{.sign = text}; },
        [](const QString& text) {
            return ChatContact{.phones = {"1", text}};
        },
        [](const QString& text) {
            return ChatContact{.room = true, .members = {Member{.alias = text}}};
        },
        [](const QString& text) {
            return ChatContact{.room = true, .members = {Member{.name = text}}};
        },
        [](const QString& text) {
            return ChatContact{.room = true, .members = {Member{.nameId = text, .wxId = "x"}}};
        },
        [](const QString& text) {
            return ChatContact{.room = true, .members = {Member{.wxId = text}}};
        },
    };
    for (const auto& place : places) {
        const QString plain = drawn(place("(here)"));
        EXPECT_EQ(plain.count("(here)"), 1) << plain.toStdString();
        EXPECT_EQ(drawn(place(kHostile)).toStdString(),
            QString(plain).replace("(here)", kHarmless).toStdString());
        EXPECT_EQ(drawn(place(QString(1'048'576, '<'))).count("&lt;"), 1'048'576);
    }
}

// --- the frame

class ChatContactRun : public testing::Test {
protected:
    ChatContactRun()
    {
        RecordList records;
        records.push_back(chatContact({.name = "one"}));
        records.push_back(std::make_unique<PRAbstractItem>(Record{.values = {"stranger"}}));
        records.push_back(chatContact({.name = "unwanted"}, 0, false));
        records.push_back(chatContact({.name = "two"}));
        data = std::make_unique<PRData>(16, std::move(records));
    }

    std::unique_ptr<PRData> data;
};

TEST_F(ChatContactRun, CopiesTwoImagesAndWritesTopCardsAndEnd)
{
    RecordingPage page;
    EXPECT_TRUE(WeichatContact2HtmlTranslate(data.get()).translate(&page, "<A>\n'B'", nullptr));
    EXPECT_EQ(page.files,
        QStringList({"copy /res/DataExport/default/contact_person.png as default_contact.png",
            "copy /res/DataExport/deleted.png as deleted.png"}));
    ASSERT_EQ(page.writes.size(), 4);
    EXPECT_EQ(page.writes.at(0), R"(<div id="wrap"><div id="top"><h1>&lt;A&gt;<br>'B'</h1></div>)");
    EXPECT_TRUE(page.writes.at(1).startsWith(cardBegin("one")));
    EXPECT_TRUE(page.writes.at(2).startsWith(cardBegin("two")));
    EXPECT_EQ(page.writes.at(3), "</div>");
}

TEST_F(ChatContactRun, EndsAtTheFirstWriteThatFails)
{
    for (int failing = 1; failing <= 4; ++failing) {
        SCOPED_TRACE(failing);
        RecordingPage page(failing);
        EXPECT_FALSE(WeichatContact2HtmlTranslate(data.get()).translate(&page, "T", nullptr));
        EXPECT_EQ(page.writes.size(), failing);
    }
}

TEST_F(ChatContactRun, ACancelKeepsWhatIsThereAndWritesTheEnd)
{
    const int written[] = {2, 3, 3, 4}; // by the step that is the first to be refused
    for (int cancelAt = 1; cancelAt <= 4; ++cancelAt) {
        SCOPED_TRACE(cancelAt);
        RecordingPage page;
        support::RecordingProgress progress(cancelAt);
        EXPECT_TRUE(WeichatContact2HtmlTranslate(data.get()).translate(&page, "T", &progress));
        EXPECT_EQ(page.writes.size(), written[cancelAt - 1]);
        EXPECT_EQ(page.writes.last(), "</div>");
    }
}

// --- the pictures

class ChatContactPictures : public testing::Test {
protected:
    // Draws a page of contacts that have these pictures.
    void draw(const QStringList& sources)
    {
        PRData data(16);
        WeichatContact2HtmlTranslate translator(&data);
        for (const QString& source : sources) {
            EXPECT_TRUE(translator.writeItem(&page, chatContact({.headImage = source}).get()));
        }
    }

    QStringList shown() const
    {
        const QString begin = R"(<div class="main-pic"><img src=")";
        QStringList paths;
        for (const QString& card : page.writes) {
            const QString rest = card.mid(card.indexOf(begin) + begin.size());
            paths.append(rest.left(rest.indexOf('"')));
        }
        return paths;
    }

    support::TempTree tree;
    RecordingPage page;
};

TEST_F(ChatContactPictures, AreScaledToFitWhateverTheirSize)
{
    struct {
        QSize size;
        QSize fitted;
    } const rows[] = {{{136, 136}, {136, 136}}, {{1, 1}, {136, 136}}, {{10, 20}, {68, 136}},
        {{272, 136}, {136, 68}}, {{640, 480}, {136, 102}}};
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.size.width() << " x " << row.size.height());
        page.exported.clear();
        draw({tree.write("a", photoBytes(row.size.width(), row.size.height(), "JPEG"))});
        ASSERT_EQ(page.exported.size(), 1);
        EXPECT_TRUE(page.exported.first().startsWith("\x89PNG\r\n\x1a\n"));
        EXPECT_EQ(QImage::fromData(page.exported.first()).size(), row.fitted);
    }
}

TEST_F(ChatContactPictures, EachContactSpendsANumberFromNought)
{
    const QString picture = tree.write("a.png", photoBytes(9, 9));
    draw({picture, "", "/nonexistent.png", tree.write("text.png", "text"), tree.path(), picture});
    const QString none = "image/default_contact.png";
    EXPECT_EQ(shown(), QStringList({"image/0.png", none, none, none, none, "image/5.png"}));
    EXPECT_EQ(page.files, QStringList({"export 0.png", "export 5.png"}))
        << "neither could be written, which is no failure";
}

TEST_F(ChatContactPictures, AreKnownByTheirBytes)
{
    draw({tree.write("a.txt", photoBytes(9, 9)), tree.write("b.png", photoBytes(9, 9, "JPEG"))});
    EXPECT_EQ(shown(), QStringList({"image/0.png", "image/1.png"}));
}

TEST_F(ChatContactPictures, AtAddressesAreFetched)
{
    HttpServer server;
    server.answer("/mia", HttpServer::reply(200, photoBytes(20, 10).toStdString()));
    draw({server.address("/mia")});
    EXPECT_EQ(server.asked(), std::vector<std::string>{"/mia"});
    EXPECT_EQ(shown(), QStringList("image/0.png"));
    ASSERT_EQ(page.exported.size(), 1);
    EXPECT_EQ(QImage::fromData(page.exported.first()).size(), QSize(136, 68));
}

// What is fetched by default needs no colon behind its first letters.
TEST_F(ChatContactPictures, AtAnythingThatBeginsLikeAnAddressAreFetched)
{
    HttpServer server;
    server.answer("/mia", HttpServer::reply(200, photoBytes(9, 9).toStdString()));
    draw({"httpmia@127.0.0.1:" + QString::number(server.port()) + "/mia"});
    EXPECT_EQ(server.asked(), std::vector<std::string>{"/mia"});
    EXPECT_EQ(shown(), QStringList("image/0.png"));
}

TEST_F(ChatContactPictures, AreFetchedIntoFilesOfPhotos)
{
    HttpServer server;
    server.answer("/mia", HttpServer::reply(200, photoBytes(9, 9).toStdString()));
    OvCurlWrapper curl;
    const QDir fetched = QFileInfo(PRData::onDowmloadThumbnail(curl, "http:", "jpg")).dir();
    const int before = fetched.entryList({"*.jpg"}).size();
    draw({server.address("/mia")});
    EXPECT_EQ(fetched.entryList({"*.jpg"}).size(), before + 1);
}

TEST_F(ChatContactPictures, ThatCannotBeFetchedLeaveTheDefault)
{
    HttpServer server;
    server.answer("/text", HttpServer::reply(200, "no picture"));
    draw({server.address("/missing"), server.address("/text"), "http:", "httpnonsense",
        "HTTP://127.0.0.1:" + QString::number(server.port()) + "/mia"});
    EXPECT_EQ(server.asked(), (std::vector<std::string>{"/missing", "/text"}))
        << "an address in capitals is none";
    for (const QString& path : shown()) {
        EXPECT_EQ(path, "image/default_contact.png");
    }
    EXPECT_EQ(page.files, QStringList());
}

// A name that begins like an address is looked for once nothing could be fetched from it.
TEST_F(ChatContactPictures, OfANameLikeAnAddressAreFiles)
{
    tree.write("http_mia.png", photoBytes(9, 9));
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(tree.path()));
    draw({"http_mia.png"});
    EXPECT_TRUE(QDir::setCurrent(before));
    EXPECT_EQ(shown(), QStringList("image/0.png"));
}

} // namespace
