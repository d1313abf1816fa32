// SPDX-License-Identifier: MIT
#include "model/PRData.h"
#include "model/PRNoteItem.h"
#include "support/recording_page.h"
#include "support/recording_progress.h"
#include "translators/records/CTable2HtmlTranslate.h"

#include <QCoreApplication>
#include <QTranslator>

#include <gtest/gtest.h>

namespace {

using support::RecordingProgress;

// In one line, as it stands in the page.
const char* const kStyleSheet =
    R"(<style type="text/css">html, div, body, p, form, img, h1, input { margin:0 auto; padding:0; font:12px/160% Arial, Helvetica, sans-serif; color:#575757; }img, input { border:none; }h1 { color:#fefefe; font-size:32px; font-weight:bold; margin-left:16px; padding-top:5px; }#wrap { margin:0 auto; width:80%; background-color:#FFF; padding:4px; border:1px solid #cacaca; }#top { background: #7f8ea3; }.main table { margin:0 auto; font-size:14px; width:100%; }.main table tr td { background-color:#fff; border-collapse:collapse; height:38px; line-height:150%; text-align:left; border:1px solid #f8f8f8; padding:6px; }.main table tr.grey td { background-color:#f8f8f8; }.main table tr.dark td { background-color:#e5e4e4; color:#353535; font-weight:bold; border:1px solid #dadada; text-align:center; }.rd { color:#e61010; }.main table tr td p { font-size:14px; }.main table tr.rd td p { font-size:14px; color:#e61010; }</style>)";

const char* const kOpen =
    R"(<table id="wrap" cellspacing=0 cellpadding=0><tr><td><div id="top"><h1>Title</h1></div><div class="main"><table border=0 cellspacing=0 cellpadding=0>)";
const char* const kClose = "</table></div></td></tr></table>";

enum DataType { Calls = 3, Notes = 27, Reminders = 30 };

std::unique_ptr<PRAbstractItem> record(const QStringList& values, int flags = 0)
{
    return std::make_unique<PRAbstractItem>(Record{.values = values, .flags = flags});
}

std::unique_ptr<PRAbstractItem> note(
    const QStringList& values, std::vector<PRNoteItem::NotePiece> pieces, int flags = 0)
{
    return std::make_unique<PRNoteItem>(
        Record{.values = values, .flags = flags}, std::move(pieces));
}

template <typename... Records> PRData setOf(int dataType, QStringList columns, Records... records)
{
    RecordList list;
    (list.push_back(std::move(records)), ...);
    return PRData(dataType, std::move(list), std::move(columns));
}

std::string headOf(const QStringList& columns)
{
    PRData data = setOf(Calls, columns);
    RecordingPage page;
    EXPECT_TRUE(CTable2HtmlTranslate(&data).translate(&page, "Title", nullptr));
    EXPECT_EQ(page.writes.size(), 2);
    const std::string written = page.writes.value(0).toStdString();
    EXPECT_EQ(written.substr(0, std::string(kOpen).size()), kOpen);
    return written.substr(std::string(kOpen).size());
}

// The rows of a page, each of which is a write of its own.
template <typename... Records>
QStringList rowsOf(int dataType, const QStringList& columns, Records... records)
{
    PRData data = setOf(dataType, columns, std::move(records)...);
    RecordingPage page;
    EXPECT_TRUE(CTable2HtmlTranslate(&data).translate(&page, "Title", nullptr));
    EXPECT_EQ(page.writes.last().toStdString(), kClose);
    return page.writes.mid(1, page.writes.size() - 2);
}

template <typename... Records> std::string rowOf(int dataType, int columns, Records... records)
{
    QStringList names;
    for (int i = 0; i < columns; ++i) {
        names.append("C");
    }
    return rowsOf(dataType, names, std::move(records)...).join("|").toStdString();
}

template <typename... Records> QStringList filesOf(Records... records)
{
    PRData data = setOf(Calls, {"C"}, std::move(records)...);
    RecordingPage page;
    EXPECT_TRUE(CTable2HtmlTranslate(&data).translate(&page, "Title", nullptr));
    return page.files;
}

QStringList resources(const QStringList& names)
{
    QStringList files;
    for (const QString& name : names) {
        files.append("copy /res/DataExport/" + name + " as " + name);
    }
    return files;
}

class German final : public QTranslator {
public:
    German() { QCoreApplication::installTranslator(this); }

    QString translate(const char* context, const char* source, const char* /*disambiguation*/,
        int /*n*/) const override
    {
        const bool isLocked = QLatin1String(context) == QLatin1String("DataExport")
                              && QLatin1String(source) == QLatin1String("Locked");
        return isLocked ? QStringLiteral("Gesperrt & zu") : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

TEST(TablePage, HasItsStyleSheetInOneLine)
{
    EXPECT_EQ(CTable2HtmlTranslate::styleSheet().toStdString(), kStyleSheet);
}

TEST(TablePage, IsWrittenAsHeadOneWriteARowAndEnd)
{
    PRData data = setOf(Calls, {"Name", "Number"}, record({"Mia", "1"}), record({"Ben", "2"}));
    RecordingPage page;
    EXPECT_TRUE(CTable2HtmlTranslate(&data).translate(&page, "Title", nullptr));
    ASSERT_EQ(page.writes.size(), 4);
    EXPECT_EQ(page.writes[0].toStdString(),
        std::string(kOpen)
            + R"(<tr class="dark"><td width="45%">Name&nbsp;</td><td>Number&nbsp;</td></tr>)");
    EXPECT_EQ(page.writes[1].toStdString(), "<tr><td>Mia&nbsp;</td><td>1&nbsp;</td></tr>");
    EXPECT_EQ(page.writes[2].toStdString(),
        R"(<tr class="grey"><td>Ben&nbsp;</td><td>2&nbsp;</td></tr>)");
    EXPECT_EQ(page.writes[3].toStdString(), kClose);
    EXPECT_EQ(page.files, QStringList());
}

TEST(TablePage, OfNoRecordHasItsHeadAndItsEnd)
{
    PRData data = setOf(Calls, {"Name"});
    RecordingPage page;
    RecordingProgress progress;
    EXPECT_TRUE(CTable2HtmlTranslate(&data).translate(&page, "Title", &progress));
    EXPECT_EQ(page.text().toStdString(),
        std::string(kOpen) + R"(<tr class="dark"><td>Name&nbsp;</td></tr>)" + kClose);
    EXPECT_EQ(progress.calls(), QStringList());
}

TEST(TablePage, EscapesItsTitle)
{
    PRData data = setOf(Calls, {"Name"});
    RecordingPage page;
    EXPECT_TRUE(CTable2HtmlTranslate(&data).translate(&page, "<A> & \"B\"\n%2", nullptr));
    EXPECT_TRUE(page.text().contains("<h1>&lt;A&gt; &amp; &quot;B&quot;<br>%2</h1>"));
}

TEST(TableHead, GivesEachColumnButTheLastItsShareOfNinetyInWholePercent)
{
    const auto repeated = [](int times, const QString& cell) {
        return cell.repeated(times).toStdString();
    };
    struct {
        int columns = 0;
        const char* width = nullptr;
    } const rows[] = {{1, "90"}, {2, "45"}, {3, "30"}, {4, "22"}, {7, "12"}, {46, "1"}, {90, "1"},
        {91, "0"}, {200, "0"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.columns);
        QStringList names;
        for (int i = 0; i < row.columns; ++i) {
            names.append("C");
        }
        const QString cell = QString(R"(<td width="%1%">C&nbsp;</td>)").arg(row.width);
        EXPECT_EQ(headOf(names),
            R"(<tr class="dark">)" + repeated(row.columns - 1, cell) + "<td>C&nbsp;</td></tr>");
    }
}

TEST(TableHead, EscapesItsColumnsAndKeepsTheirPercentSigns)
{
    EXPECT_EQ(headOf({"<A> %2\n", "%1 & \"B\""}),
        R"(<tr class="dark"><td width="45%">&lt;A&gt; %2<br>&nbsp;</td>)"
        "<td>%1 &amp; &quot;B&quot;&nbsp;</td></tr>");
}

TEST(TableHead, OfNoColumnsIsARowWithoutCellsLikeAllOthers)
{
    EXPECT_EQ(headOf({}), R"(<tr class="dark"></tr>)");
    EXPECT_EQ(rowOf(Calls, 0, record({"a"}, Deleted), record({"b"})),
        R"(<tr class="rd"></tr>|<tr class="grey"></tr>)");
}

TEST(TableRow, OpensByItsNumberOnThePageAndItsDeletion)
{
    EXPECT_EQ(rowOf(Calls, 0, record({}), record({}), record({}, Deleted), record({}, Deleted),
                  record({}, Locked), record({}, Locked)),
        R"(<tr></tr>|<tr class="grey"></tr>|<tr class="rd"></tr>|<tr class="grey rd"></tr>|)"
        R"(<tr></tr>|<tr class="grey"></tr>)");
}

TEST(TableRow, IsNumberedAmongTheSelectedOnes)
{
    auto unselected = record({"b"});
    unselected->setSelected(false);
    EXPECT_EQ(rowOf(Calls, 1, record({"a"}), std::move(unselected), record({"c"})),
        R"(<tr><td>a&nbsp;</td></tr>|<tr class="grey"><td>c&nbsp;</td></tr>)");
}

TEST(TableRow, MarksADeletedRecordInItsFirstCellAlone)
{
    EXPECT_EQ(rowOf(Calls, 2, record({"a", "b"}, Deleted)),
        R"(<tr class="rd"><td><img src='image/deleted.png'>a&nbsp;</td><td>b&nbsp;</td></tr>)");
}

TEST(TableRow, HasACellForEachColumnAndNoMore)
{
    EXPECT_EQ(rowOf(Calls, 2, record({"a"}), record({"a", "b", "c"})),
        R"(<tr><td>a&nbsp;</td><td>&nbsp;</td></tr>|)"
        R"(<tr class="grey"><td>a&nbsp;</td><td>b&nbsp;</td></tr>)");
}

TEST(TableRow, EscapesItsCells)
{
    EXPECT_EQ(rowOf(Calls, 2, record({"<a>&\n%1", "\"b\" %2"}, Deleted)),
        R"(<tr class="rd"><td><img src='image/deleted.png'>&lt;a&gt;&amp;<br>%1&nbsp;</td>)"
        "<td>&quot;b&quot; %2&nbsp;</td></tr>");
}

TEST(TableReminder, DoesNotBreakItsFourthColumnAtABlank)
{
    const QStringList values{"a b", "a b", "a b", "a & <b>\n c\td  e", "a b"};
    EXPECT_EQ(rowOf(Reminders, 5, record(values)),
        "<tr><td>a b&nbsp;</td><td>a b&nbsp;</td><td>a b&nbsp;</td>"
        "<td>a&nbsp;&amp;&nbsp;&lt;b&gt;<br>&nbsp;c\td&nbsp;&nbsp;e&nbsp;</td>"
        "<td>a b&nbsp;</td></tr>");
}

TEST(TableReminder, AloneHasThatColumn)
{
    for (const int dataType : {3, 13, 27, 29}) {
        SCOPED_TRACE(dataType);
        EXPECT_EQ(rowOf(dataType, 4, record({"", "", "", "a b"})),
            "<tr><td>&nbsp;</td><td>&nbsp;</td><td>&nbsp;</td><td>a b&nbsp;</td></tr>");
    }
}

TEST(TableNote, ShowsItsPiecesInColumnFourInsteadOfItsText)
{
    EXPECT_EQ(rowOf(Notes, 6, note({"0", "1", "2", "3", "4", "5"}, {{.content = "piece"}})),
        "<tr><td>0&nbsp;</td><td>1&nbsp;</td><td>2&nbsp;</td><td>3&nbsp;</td>"
        "<td><p>piece</p></td><td>5&nbsp;</td></tr>");
}

TEST(TableNote, WithoutPiecesShowsItsText)
{
    EXPECT_EQ(rowOf(Notes, 5, note({"", "", "", "", "<4>"}, {})),
        "<tr><td>&nbsp;</td><td>&nbsp;</td><td>&nbsp;</td><td>&nbsp;</td>"
        "<td>&lt;4&gt;&nbsp;</td></tr>");
}

TEST(TableNote, AmongOtherTypesIsARecordLikeAnyOther)
{
    EXPECT_EQ(rowOf(Calls, 5, note({"", "", "", "", "4"}, {{.content = "piece"}}, Locked)),
        "<tr><td>&nbsp;</td><td>&nbsp;</td><td>&nbsp;</td><td>&nbsp;</td><td>4&nbsp;</td></tr>");
}

TEST(TableNote, OfAnotherClassShowsItsTextEvenWhenLocked)
{
    EXPECT_EQ(rowOf(Notes, 5, record({"", "", "", "", "4"}, Locked)),
        "<tr><td>&nbsp;</td><td>&nbsp;</td><td>&nbsp;</td><td>&nbsp;</td><td>4&nbsp;</td></tr>");
}

TEST(TableNote, ThatIsLockedShowsNothingButTheLockWhateverItHolds)
{
    EXPECT_EQ(rowOf(Notes, 6, note({"0", "", "", "", "4", "5"}, {{.content = "piece"}}, Locked)),
        "<tr><td>0&nbsp;</td><td>&nbsp;</td><td>&nbsp;</td><td>&nbsp;</td>"
        "<td><img src='image/crypted.png'>&nbsp;Locked&nbsp;</td><td>5&nbsp;</td></tr>");
    EXPECT_EQ(rowOf(Notes, 5, note({"0", "", "", "", "4"}, {}, Locked)),
        "<tr><td>0&nbsp;</td><td>&nbsp;</td><td>&nbsp;</td><td>&nbsp;</td>"
        "<td><img src='image/crypted.png'>&nbsp;Locked&nbsp;</td></tr>");
}

TEST(TableNote, ThatIsDeletedHasTheMarkInColumnZeroAndItsPiecesInColumnFour)
{
    const char* const begin =
        R"(<tr class="rd"><td><img src='image/deleted.png'>0&nbsp;</td><td>&nbsp;</td>)"
        "<td>&nbsp;</td><td>&nbsp;</td>";
    EXPECT_EQ(rowOf(Notes, 5, note({"0", "", "", "", "4"}, {{.content = "piece"}}, Deleted)),
        std::string(begin) + "<td><p>piece</p></td></tr>");
    EXPECT_EQ(rowOf(Notes, 5, note({"0", "", "", "", "4"}, {{.content = "p"}}, Deleted | Locked)),
        std::string(begin)
            + "<td><img src='image/crypteddeleted.png'>&nbsp;Locked&nbsp;</td></tr>");
}

TEST(TableNote, ShowsTheTranslatedWordForLockedAsItIs)
{
    const German german;
    EXPECT_EQ(rowOf(Notes, 5, note({"", "", "", "", ""}, {}, Locked)),
        "<tr><td>&nbsp;</td><td>&nbsp;</td><td>&nbsp;</td><td>&nbsp;</td>"
        "<td><img src='image/crypted.png'>&nbsp;Gesperrt & zu&nbsp;</td></tr>");
}

TEST(TableIcons, AreCopiedOnceForTheFirstRowThatAsks)
{
    EXPECT_EQ(filesOf(record({}), record({})), QStringList());
    EXPECT_EQ(filesOf(record({}, Deleted), record({}, Deleted)), resources({"deleted.png"}));
    EXPECT_EQ(filesOf(record({}, Locked), record({}, Locked)), resources({"crypted.png"}));
    EXPECT_EQ(
        filesOf(record({}, Deleted | Locked)), resources({"deleted.png", "crypteddeleted.png"}));
    EXPECT_EQ(filesOf(record({}, Locked), record({}, Deleted), record({}, Deleted | Locked)),
        resources({"crypted.png", "deleted.png", "crypteddeleted.png"}));
}

TEST(TableIcons, OfASecondLockedDeletedRecordBringTheLockOfALiveOne)
{
    EXPECT_EQ(filesOf(record({}, Deleted | Locked), record({}, Deleted | Locked)),
        resources({"deleted.png", "crypteddeleted.png", "crypted.png"}));
    EXPECT_EQ(filesOf(record({}, Deleted | Locked), record({}, Deleted | Locked),
                  record({}, Deleted | Locked), record({}, Locked)),
        resources({"deleted.png", "crypteddeleted.png", "crypted.png"}));
    EXPECT_EQ(
        filesOf(record({}, Locked), record({}, Deleted | Locked), record({}, Deleted | Locked)),
        resources({"crypted.png", "deleted.png", "crypteddeleted.png"}));
}

TEST(TableProgress, IsSteppedBeforeEachRowByItsShareOfTheRange)
{
    PRData data = setOf(Calls, {"C"}, record({"a"}), record({"b"}), record({"c"}));
    RecordingPage page;
    RecordingProgress progress;
    progress.initRange(200);
    progress.clearCalls();
    EXPECT_TRUE(CTable2HtmlTranslate(&data).translate(&page, "Title", &progress));
    EXPECT_EQ(
        progress.calls(), QStringList({"range", "step 66.6667", "step 66.6667", "step 66.6667"}));
}

TEST(TableProgress, OfACancelEndsThePageInOrderWithTheRowsOfThatMoment)
{
    for (int cancelAt = 1; cancelAt <= 4; ++cancelAt) {
        SCOPED_TRACE(cancelAt);
        PRData data =
            setOf(Calls, {"C"}, record({"a"}), record({"b"}, Deleted), record({"c"}, Locked));
        RecordingPage page;
        RecordingProgress progress(cancelAt);
        EXPECT_TRUE(CTable2HtmlTranslate(&data).translate(&page, "Title", &progress));
        const int rows = cancelAt - 1;
        EXPECT_EQ(page.writes.size(), 1 + rows + 1);
        EXPECT_EQ(page.writes.last().toStdString(), kClose);
        EXPECT_EQ(
            page.files, resources({"deleted.png", "crypted.png"}).mid(0, std::max(0, rows - 1)));
        EXPECT_EQ(progress.steps(), std::min(cancelAt, 3));
    }
}

TEST(TableProgress, OfACancelReturnsTheResultOfTheLastWrite)
{
    PRData data = setOf(Calls, {"C"}, record({"a"}));
    RecordingPage page(2);
    RecordingProgress progress(1);
    EXPECT_FALSE(CTable2HtmlTranslate(&data).translate(&page, "Title", &progress));
    EXPECT_EQ(page.writes.size(), 2);
}

TEST(TableFailure, OfAWriteEndsTheRunWithoutTheEndOfThePage)
{
    for (int failing = 1; failing <= 5; ++failing) {
        SCOPED_TRACE(failing);
        PRData data = setOf(Calls, {"C"}, record({"a"}), record({"b"}));
        RecordingPage page(failing);
        RecordingProgress progress;
        EXPECT_EQ(CTable2HtmlTranslate(&data).translate(&page, "Title", &progress), failing == 5);
        EXPECT_EQ(page.writes.size(), std::min(failing, 4));
        EXPECT_EQ(page.writes.contains(kClose), failing >= 4);
        EXPECT_EQ(progress.steps(), std::clamp(failing - 1, 0, 2));
    }
}
