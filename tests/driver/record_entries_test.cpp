// SPDX-License-Identifier: MIT
#include "driver/driver_fixture.h"
#include "driver/exporter_access.h"
#include "model/CSubProgress.h"
#include "model/PRSafariBookmarkItem.h"
#include "support/recording_progress.h"
#include "translators/records/CBookmark2HtmlTranslate.h"
#include "translators/records/CTable2HtmlTranslate.h"

#include <QCoreApplication>
#include <QTranslator>

namespace {

using support::RecordingProgress;

const char* const kPage = "Cat/Anna's Cat.html";

struct EntryRow {
    const char* what = nullptr;
    access_to::Entry entry = nullptr;
    QString styleSheet;
    const char* close = nullptr;
};

const std::vector<EntryRow>& entries()
{
    static const std::vector<EntryRow> rows{
        {"table", access_to::exportHtml(), CTable2HtmlTranslate::styleSheet(),
            "</table></div></td></tr></table></body></html>"},
        {"bookmarks", access_to::exportBookmark(), CBookmark2HtmlTranslate::styleSheet(),
            "</table></div></div></body></html>"},
    };
    return rows;
}

class Reversed final : public QTranslator {
public:
    Reversed() { QCoreApplication::installTranslator(this); }

    QString translate(const char* context, const char* source, const char* /*disambiguation*/,
        int /*n*/) const override
    {
        const bool isTitle = QLatin1String(context) == QLatin1String("DataExport")
                             && QLatin1String(source) == QLatin1String("%1's %2");
        return isTitle ? QStringLiteral("%2 / %1") : QString();
    }
    bool isEmpty() const override { return false; }
};

// Both entries, one after the other, each with its own claims.
class RecordEntries : public DriverTest {
protected:
    bool run(const EntryRow& row, CIProgressCallback* progress, int records = 1,
        const QString& owner = "Anna") const
    {
        const auto data = plainSet(3, records);
        return row.entry(data.get(), root(), owner, "Cat", progress, nullptr, true);
    }

    QByteArray page() const
    {
        QFile file(root().filePath(kPage));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
};

TEST_F(RecordEntries, WriteOnePageIntoTheCategoryWithoutASubDirectory)
{
    for (const EntryRow& row : entries()) {
        SCOPED_TRACE(row.what);
        EXPECT_TRUE(run(row, nullptr));
        EXPECT_EQ(tree(), QStringList({"Cat/", kPage}));
        QDir(root().filePath("Cat")).removeRecursively();
    }
}

TEST_F(RecordEntries, HandTheStyleSheetOfTheirPageToTheHead)
{
    for (const EntryRow& row : entries()) {
        SCOPED_TRACE(row.what);
        EXPECT_TRUE(run(row, nullptr));
        EXPECT_TRUE(page().contains(
            "<title>Anna's Cat</title>" + row.styleSheet.toUtf8() + "</head><body>"));
    }
}

TEST_F(RecordEntries, ShowTheTranslatedTitleAndNameTheFileInEnglish)
{
    const Reversed translation;
    for (const EntryRow& row : entries()) {
        SCOPED_TRACE(row.what);
        EXPECT_TRUE(run(row, nullptr));
        EXPECT_TRUE(page().contains("<title>Anna's Cat</title>"));
        EXPECT_TRUE(page().contains("<h1>Cat / Anna</h1>"));
    }
}

TEST_F(RecordEntries, ShowTheOwnerAsHeIsAndMakeTheFileSafe)
{
    for (const EntryRow& row : entries()) {
        SCOPED_TRACE(row.what);
        EXPECT_TRUE(run(row, nullptr, 1, "A/B <C>"));
        EXPECT_EQ(tree(), QStringList({"Cat/", "Cat/A_B _C_'s Cat.html"}));
        QFile file(root().filePath("Cat/A_B _C_'s Cat.html"));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_TRUE(file.readAll().contains("<h1>A/B &lt;C&gt;'s Cat</h1>"));
    }
}

TEST_F(RecordEntries, WalkOnTheProgressThatTheyAreGivenWithoutAScaleOfTheirOwn)
{
    for (const EntryRow& row : entries()) {
        SCOPED_TRACE(row.what);
        RecordingProgress progress;
        progress.initRange(90);
        progress.clearCalls();
        EXPECT_TRUE(run(row, &progress, 3));
        EXPECT_EQ(progress.calls(), QStringList({"range", "step 30", "step 30", "step 30"}));
    }
}

TEST_F(RecordEntries, RunUnderAProgressWithoutParentAndOnARangeOfNothing)
{
    for (const EntryRow& row : entries()) {
        SCOPED_TRACE(row.what);
        CSubProgress orphan(nullptr, 200);
        EXPECT_TRUE(run(row, &orphan));
        RecordingProgress nothing;
        EXPECT_TRUE(run(row, &nothing, 2));
        EXPECT_EQ(nothing.calls(), QStringList({"range", "step 0", "step 0"}));
    }
}

TEST_F(RecordEntries, KeepTheCompletePageOfACancel)
{
    for (const EntryRow& row : entries()) {
        SCOPED_TRACE(row.what);
        RecordingProgress progress(2);
        EXPECT_TRUE(run(row, &progress, 3));
        EXPECT_EQ(progress.steps(), 2);
        EXPECT_TRUE(page().endsWith(row.close));
    }
}

TEST_F(RecordEntries, LoseTheCategoryWhenThePageCannotBeOpened)
{
    for (const EntryRow& row : entries()) {
        SCOPED_TRACE(row.what);
        ASSERT_TRUE(root().mkpath("Cat/earlier"));
        ASSERT_TRUE(root().mkpath("Other"));
        RecordingProgress progress;
        EXPECT_FALSE(
            run(row, &progress, 1, QString(300, 'x'))); // longer than any file system takes
        EXPECT_EQ(progress.calls(), QStringList());
        EXPECT_EQ(tree(), QStringList("Other/"));
    }
}

TEST_F(RecordEntries, FailWithoutATraceWhenTheDirectoryCannotBeMade)
{
    QFile file(root().filePath("Cat"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    for (const EntryRow& row : entries()) {
        SCOPED_TRACE(row.what);
        const auto data = plainSet(3, 1);
        EXPECT_FALSE(row.entry(data.get(), root(), "Anna", "Cat/below", nullptr, nullptr, true));
        EXPECT_EQ(tree(), QStringList("Cat"));
    }
}

TEST_F(RecordEntries, ServeTheTypesOfTablesAndOfBookmarks)
{
    struct {
        int type = 0;
        const char* folder = nullptr;
        const char* mark = nullptr; // on this page alone
    } const rows[] = {
        {3, "Call History", R"(<table id="wrap")"},
        {13, "Viber Call History", R"(<table id="wrap")"},
        {27, "Notes", R"(<table id="wrap")"},
        {30, "Reminders", R"(<table id="wrap")"},
        {33, "Safari Bookmarks", R"(<div id="wrap">)"},
        {34, "Safari History", R"(<div id="wrap">)"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.folder);
        PRBackup backup;
        backup.add(plainSet(row.type, 1));
        CBackupExporter().exportBackup(&backup, root(), nullptr, {row.type}, false, "Anna");
        const QString page = QString("%1/Anna's %1.html").arg(row.folder);
        QFile file(root().filePath(page));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << tree().join(", ").toStdString();
        EXPECT_TRUE(file.readAll().contains(row.mark));
    }
}

} // namespace
