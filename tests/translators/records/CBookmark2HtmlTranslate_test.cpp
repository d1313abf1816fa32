// SPDX-License-Identifier: MIT
#include "model/PRData.h"
#include "model/PRSafariBookmarkItem.h"
#include "support/recording_page.h"
#include "support/recording_progress.h"
#include "translators/records/CBookmark2HtmlTranslate.h"

#include <QCoreApplication>
#include <QTranslator>

#include <gtest/gtest.h>

namespace {

using support::RecordingProgress;

// In one line, as it stands in the page.
const char* const kStyleSheet =
    R"(<style type="text/css">html, div, body, p, form, img, h1, h2, h3, input { margin:0 auto; padding:0; font:12px/160% Arial, Helvetica, sans-serif; color:#575757; }img, input { border:none; }h1 { color:#fefefe; font-size:32px; font-weight:bold; margin-left:16px; padding-top:5px; }#wrap { width:900px; background-color:#FFF; padding:4px; border:1px solid #cacaca; }#top { background:#7f8ea3; }.main table { margin:0 auto; font-size:14px; width:100%; }.main table tr td { background-color:#fff; border-collapse:collapse; height:38px; line-height:150%; padding-left:14px; }.main table tr.grey td { background-color:#f8f8f8; }.main table tr.dark td { background-color:#e5e4e4; color:#353535; font-weight:bold; }.ad:link { color:#e61010; } </style>)";

const char* const kOpen =
    R"(<div id="wrap"><div id="top"><h1>Title</h1></div><div class="main"><table border=0 cellspacing=0 cellpadding=0>)";
const char* const kClose = "</table></div></div>";

struct Entry {
    QString group;
    QStringList values; // title, address, label
    int flags = 0;
};

std::unique_ptr<PRAbstractItem> bookmark(const Entry& entry)
{
    return std::make_unique<PRSafariBookmarkItem>(
        Record{.values = entry.values, .flags = entry.flags}, entry.group);
}

PRData setOf(const std::vector<Entry>& entries)
{
    RecordList records;
    for (const Entry& entry : entries) {
        records.push_back(bookmark(entry));
    }
    return PRData(33, std::move(records));
}

// The rows between the opening and the closing of the page.
std::string rowsOf(const std::vector<Entry>& entries)
{
    PRData data = setOf(entries);
    RecordingPage page;
    EXPECT_TRUE(CBookmark2HtmlTranslate(&data).translate(&page, "Title", nullptr));
    EXPECT_EQ(page.writes.size(), 3);
    return page.writes.value(1).toStdString();
}

// A live entry of this title alone, as a row.
std::string row(const char* title, bool grey = false)
{
    return std::string(grey ? R"(<tr class="grey">)" : "<tr>") + "<td>: <a href=''>" + title
           + "</a></td></tr>";
}

std::string head(const char* name)
{
    return std::string(R"(<tr class="dark"><td>)") + name + "&nbsp;</td></tr>";
}

class German final : public QTranslator {
public:
    German() { QCoreApplication::installTranslator(this); }

    QString translate(const char* context, const char* source, const char* /*disambiguation*/,
        int /*n*/) const override
    {
        return QLatin1String(context) == QLatin1String("DataExport")
                   ? "<" + QString(source).toUpper() + ">"
                   : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

TEST(BookmarkPage, HasItsStyleSheetInOneLine)
{
    EXPECT_EQ(CBookmark2HtmlTranslate::styleSheet().toStdString(), kStyleSheet);
}

TEST(BookmarkPage, IsWrittenAsHeadRowsAndEnd)
{
    PRData data = setOf({{"", {"Tides", "https://tides.example/", "Sea"}}});
    RecordingPage page;
    EXPECT_TRUE(CBookmark2HtmlTranslate(&data).translate(&page, "Title", nullptr));
    ASSERT_EQ(page.writes.size(), 3);
    EXPECT_EQ(page.writes[0].toStdString(), kOpen);
    EXPECT_EQ(page.writes[1].toStdString(),
        "<tr><td>Sea: <a href='https://tides.example/'>Tides</a></td></tr>");
    EXPECT_EQ(page.writes[2].toStdString(), kClose);
}

TEST(BookmarkPage, OfNoRecordHasItsTitleAndAnEmptyTable)
{
    PRData data = setOf({});
    RecordingPage page;
    RecordingProgress progress;
    EXPECT_TRUE(CBookmark2HtmlTranslate(&data).translate(&page, "Title", &progress));
    EXPECT_EQ(page.text().toStdString(), std::string(kOpen) + kClose);
    EXPECT_EQ(progress.calls(), QStringList());
    EXPECT_EQ(page.files, QStringList());
}

TEST(BookmarkPage, EscapesItsTitle)
{
    PRData data = setOf({});
    RecordingPage page;
    EXPECT_TRUE(CBookmark2HtmlTranslate(&data).translate(&page, "<A> & \"B\"\n%1", nullptr));
    EXPECT_TRUE(page.text().contains("<h1>&lt;A&gt; &amp; &quot;B&quot;<br>%1</h1>"));
}

TEST(BookmarkPage, TakesSelectedRecordsAlone)
{
    RecordList records;
    records.push_back(bookmark({"", {"a"}}));
    records.push_back(bookmark({"", {"b"}, Deleted}));
    records.push_back(bookmark({"", {"c"}}));
    records[1]->setSelected(false);
    PRData data(34, std::move(records));
    RecordingPage page;
    EXPECT_TRUE(CBookmark2HtmlTranslate(&data).translate(&page, "Title", nullptr));
    EXPECT_EQ(page.writes[1].toStdString(), row("a") + row("c", true));
    EXPECT_EQ(page.files, QStringList());
}

TEST(BookmarkPage, PassesOverRecordsOfAnotherClass)
{
    RecordList records;
    records.push_back(std::make_unique<PRAbstractItem>(Record{.values = {"no bookmark"}}));
    records.push_back(bookmark({"", {"a"}}));
    records.push_back(
        std::make_unique<PRAbstractItem>(Record{.values = {"no bookmark"}, .flags = Deleted}));
    PRData data(33, std::move(records));
    RecordingPage page;
    RecordingProgress progress;
    progress.initRange(300);
    progress.clearCalls();
    EXPECT_TRUE(CBookmark2HtmlTranslate(&data).translate(&page, "Title", &progress));
    EXPECT_EQ(page.writes[1].toStdString(), row("a"));
    EXPECT_EQ(page.files, QStringList());
    // Their steps are taken all the same.
    EXPECT_EQ(progress.calls(), QStringList({"range", "step 100", "step 100", "step 100"}));
}

TEST(BookmarkRow, HasACellForEachCase)
{
    struct {
        const char* what = nullptr;
        Entry entry;
        const char* cell = nullptr;
    } const rows[] = {
        {"live with a label", {"", {"T", "A", "L"}}, "<td>L: <a href='A'>T</a></td>"},
        {"live without a label keeps its colon and blank", {"", {"T", "A", ""}},
            "<td>: <a href='A'>T</a></td>"},
        {"deleted with a label", {"", {"T", "A", "L"}, Deleted},
            "<td>L: <img src='image/deleted.png'><a href='A' class='ad'>T</a></td>"},
        {"deleted without a label has no colon", {"", {"T", "A", ""}, Deleted},
            "<td><img src='image/deleted.png'><a href='A' class='ad'>T</a></td>"},
        {"a label of a blank is a label", {"", {"T", "A", " "}, Deleted},
            "<td> : <img src='image/deleted.png'><a href='A' class='ad'>T</a></td>"},
        {"nothing at all", {"", {}}, "<td>: <a href=''></a></td>"},
        {"locked is nothing of its own", {"", {"T", "A", "L"}, Locked},
            "<td>L: <a href='A'>T</a></td>"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(rowsOf({row.entry}), std::string("<tr>") + row.cell + "</tr>");
    }
}

TEST(BookmarkRow, ShowsItsValuesUnescaped)
{
    EXPECT_EQ(rowsOf({{"", {"<b>&\"\n", "'x'&<y>", "<i>"}}}),
        "<tr><td><i>: <a href=''x'&<y>'><b>&\"\n</a></td></tr>");
    EXPECT_EQ(rowsOf({{"", {"<b>", "'x'", "<i>"}, Deleted}}),
        "<tr><td><i>: <img src='image/deleted.png'><a href=''x'' class='ad'><b></a></td></tr>");
}

TEST(BookmarkRow, FillsAllItsPlacesAtOnce)
{
    EXPECT_EQ(rowsOf({{"", {"%1%3", "%2%9", "%1%2%3%4"}}}),
        "<tr><td>%1%2%3%4: <a href='%2%9'>%1%3</a></td></tr>");
    EXPECT_EQ(rowsOf({{"", {"%4", "%3", "%2"}, Deleted}}),
        "<tr><td>%2: <img src='image/deleted.png'><a href='%3' class='ad'>%4</a></td></tr>");
}

TEST(BookmarkGroups, StandTopReadingListByNameHistory)
{
    EXPECT_EQ(rowsOf({{"History", {"h"}}, {"Sailing", {"s"}}, {"", {"top"}},
                  {"Reading List", {"r"}}, {"Boats", {"b"}}}),
        row("top") + head("Reading List") + row("r") + head("Boats") + row("b") + head("Sailing")
            + row("s") + head("History") + row("h"));
}

TEST(BookmarkGroups, WithoutRecordsLeaveNoTrace)
{
    EXPECT_EQ(rowsOf({{"Boats", {"b"}}}), head("Boats") + row("b"));
    EXPECT_EQ(rowsOf({{"History", {"h"}}}), head("History") + row("h"));
    EXPECT_EQ(rowsOf({{"", {"t"}}}), row("t"));
}

TEST(BookmarkGroups, KeepTheirRecordsInTheOrderOfTheSet)
{
    EXPECT_EQ(rowsOf({{"B", {"z"}}, {"A", {"y"}}, {"B", {"x"}}, {"B", {"a"}}}),
        head("A") + row("y") + head("B") + row("z") + row("x", true) + row("a"));
}

TEST(BookmarkGroups, BeginTheirStripesAnewWithWhite)
{
    EXPECT_EQ(rowsOf({{"", {"1"}}, {"", {"2"}}, {"", {"3"}}, {"A", {"4"}}, {"A", {"5"}}}),
        row("1") + row("2", true) + row("3") + head("A") + row("4") + row("5", true));
}

TEST(BookmarkGroups, GoByTheirExactNameUpperCaseFirst)
{
    EXPECT_EQ(rowsOf({{"history", {"1"}}, {"Zoo", {"2"}}, {"HISTORY", {"3"}},
                  {"reading list", {"4"}}, {"Reading List ", {"5"}}, {" ", {"6"}}, {"Ä", {"7"}}}),
        head(" ") + row("6") + head("HISTORY") + row("3") + head("Reading List ") + row("5")
            + head("Zoo") + row("2") + head("history") + row("1") + head("reading list") + row("4")
            + head("Ä") + row("7"));
}

TEST(BookmarkGroups, AreEscapedInTheirHeadRow)
{
    EXPECT_EQ(rowsOf({{"<A> & \"B\"\nC %1", {"1"}}}),
        head("&lt;A&gt; &amp; &quot;B&quot;<br>C %1") + row("1"));
}

TEST(BookmarkGroups, OfAFixedPlaceHaveATranslatedLabelThatIsEscaped)
{
    const German german;
    EXPECT_EQ(rowsOf({{"History", {"h"}}, {"Reading List", {"r"}}, {"history", {"1"}}}),
        head("&lt;READING LIST&gt;") + row("r") + head("history") + row("1")
            + head("&lt;HISTORY&gt;") + row("h"));
}

TEST(BookmarkIcon, IsCopiedOnceAndOnlyForADeletedRecord)
{
    struct {
        const char* what = nullptr;
        std::vector<Entry> entries;
        QStringList files;
    } const rows[] = {
        {"none deleted", {{"", {"a"}}, {"", {"b"}, Locked}}, {}},
        {"one deleted", {{"", {"a"}}, {"", {"b"}, Deleted}},
            {"copy /res/DataExport/deleted.png as deleted.png"}},
        {"many deleted", {{"", {"a"}, Deleted}, {"B", {"b"}, Deleted}, {"C", {"c"}, Deleted}},
            {"copy /res/DataExport/deleted.png as deleted.png"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        RecordingPage page;
        PRData data = setOf(row.entries);
        EXPECT_TRUE(CBookmark2HtmlTranslate(&data).translate(&page, "Title", nullptr));
        EXPECT_EQ(page.files, row.files);
    }
}

TEST(BookmarkProgress, IsSteppedBeforeEachRecordByItsShareOfTheRange)
{
    PRData data = setOf({{"", {"a"}}, {"", {"b"}}, {"", {"c"}}});
    RecordingPage page;
    RecordingProgress progress;
    progress.initRange(100);
    progress.clearCalls();
    EXPECT_TRUE(CBookmark2HtmlTranslate(&data).translate(&page, "Title", &progress));
    EXPECT_EQ(
        progress.calls(), QStringList({"range", "step 33.3333", "step 33.3333", "step 33.3333"}));
}

TEST(BookmarkProgress, OfACancelGivesACompletePageOfWhatWasGathered)
{
    const std::string rows[] = {"", row("1"), row("1") + head("A") + row("2"),
        row("1") + head("Reading List") + row("3") + head("A") + row("2")};
    for (int cancelAt = 1; cancelAt <= 4; ++cancelAt) {
        SCOPED_TRACE(cancelAt);
        PRData data = setOf({{"", {"1"}}, {"A", {"2"}}, {"Reading List", {"3"}}});
        RecordingPage page;
        RecordingProgress progress(cancelAt);
        EXPECT_TRUE(CBookmark2HtmlTranslate(&data).translate(&page, "Title", &progress));
        EXPECT_EQ(page.text().toStdString(), kOpen + rows[cancelAt - 1] + kClose);
        EXPECT_EQ(progress.steps(), std::min(cancelAt, 3));
    }
}

TEST(BookmarkProgress, OfACancelReturnsTheResultOfTheLastWrite)
{
    PRData data = setOf({{"", {"1"}}});
    RecordingPage page(3);
    RecordingProgress progress(1);
    EXPECT_FALSE(CBookmark2HtmlTranslate(&data).translate(&page, "Title", &progress));
    EXPECT_EQ(page.writes.size(), 3);
}

TEST(BookmarkFailure, OfAWriteEndsTheRun)
{
    for (int failing = 1; failing <= 4; ++failing) {
        SCOPED_TRACE(failing);
        PRData data = setOf({{"", {"1"}, Deleted}, {"A", {"2"}}});
        RecordingPage page(failing);
        RecordingProgress progress;
        EXPECT_EQ(
            CBookmark2HtmlTranslate(&data).translate(&page, "Title", &progress), failing == 4);
        EXPECT_EQ(page.writes.size(), std::min(failing, 3));
        // Nothing is walked behind a head that failed.
        EXPECT_EQ(progress.calls().size(), failing == 1 ? 0 : 3);
        EXPECT_EQ(page.files.size(), failing == 1 ? 0 : 1);
    }
}
