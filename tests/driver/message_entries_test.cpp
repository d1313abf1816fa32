// SPDX-License-Identifier: MIT
#include "driver/driver_fixture.h"
#include "driver/exporter_access.h"
#include "driver/stage.h"
#include "model/CSubProgress.h"
#include "support/recording_progress.h"

#include <QTranslator>

namespace {

using support::RecordingProgress;

const char* const kCsv = "Cat/Anna's Cat.csv";
const char* const kPage = "Cat/Anna's Cat.html";
const QStringList kBothFormats{"Cat/", kCsv, kPage, "Cat/image/"};
const QStringList kPageAlone{"Cat/", kPage, "Cat/image/"};

class Germany final : public QTranslator {
public:
    Germany() { QCoreApplication::installTranslator(this); }

    QString translate(const char* context, const char* source, const char* /*disambiguation*/,
        int /*n*/) const override
    {
        const bool isTitle = QLatin1String(context) == QLatin1String("DataExport")
                             && QLatin1String(source) == QLatin1String("%1's %2");
        return isTitle ? QStringLiteral("%2 von %1") : QString();
    }
    bool isEmpty() const override { return false; }
};

TEST(ExportTitle, PutsOwnerAndCategoryIntoTheTranslatedText)
{
    EXPECT_EQ(exportTitle("Anna", "Cat"), "Anna's Cat");
    const Germany germany;
    EXPECT_EQ(exportTitle("Anna", "Cat"), "Cat von Anna");
}

TEST(ExportTitle, FillsBothPlacesAtOnceAndKeepsWhatFileNamesMayNotHold)
{
    EXPECT_EQ(exportTitle("%2", "%1"), "%2's %1");
    EXPECT_EQ(exportTitle(R"(A/B: "C")", "Cat"), R"(A/B: "C"'s Cat)");
}

TEST(StageShare, DividesWholeUnits)
{
    struct {
        int range = 0;
        int stages = 0;
        int share = 0;
    } const rows[] = {{200, 2, 100}, {201, 2, 100}, {100, 3, 33}, {1, 2, 0}, {0, 2, 0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.range);
        RecordingProgress progress;
        progress.initRange(row.range);
        EXPECT_EQ(stageShare(&progress, row.stages), row.share);
    }
    EXPECT_EQ(stageShare(nullptr, 2), 0);
}

class ExportSms : public DriverTest {
protected:
    static bool run(PRData* data, const QDir& dir, CIProgressCallback* progress,
        const QString& ownerName = "Anna")
    {
        return access_to::exportSMS()(data, dir, ownerName, "Cat", progress, nullptr, true);
    }

    bool run(PRData* data, CIProgressCallback* progress) const
    {
        return run(data, root(), progress);
    }

    QStringList callsOf(PRData* data, const QDir& dir, int range, int cancelAtStep = 0,
        const QString& ownerName = "Anna")
    {
        RecordingProgress progress(cancelAtStep);
        progress.initRange(range);
        progress.clearCalls();
        result = run(data, dir, &progress, ownerName);
        return progress.calls();
    }

    bool result = false;
};

TEST_F(ExportSms, RefusesASetOfAnotherClassWithoutATrace)
{
    const auto plain = plainSet(0, 1);
    EXPECT_EQ(callsOf(plain.get(), root(), 200), QStringList());
    EXPECT_FALSE(result);
    EXPECT_EQ(tree(), QStringList());
}

TEST_F(ExportSms, WritesPageAndCsvIntoTheCategory)
{
    const auto set = smsSet(1);
    EXPECT_TRUE(run(set.get(), nullptr));
    EXPECT_EQ(tree(), kBothFormats);
    EXPECT_EQ(contentsOf(kCsv).left(4).toHex(), "fffe4e00"); // the mark and the N of "Name"
}

TEST_F(ExportSms, ThePageHasItsStyleSheetInTheHeadAndEndsBehindTheConversations)
{
    const auto set = smsSet(2);
    EXPECT_TRUE(run(set.get(), nullptr));
    const QByteArray page = contentsOf(kPage);
    EXPECT_TRUE(page.startsWith("<!DOCTYPE html PUBLIC "));
    EXPECT_TRUE(page.contains(R"(<title>Anna's Cat</title><style type="text/css">)"));
    EXPECT_TRUE(page.contains(R"(</style></head><body><div id="wrap">)"));
    EXPECT_EQ(page.count(R"(<div class="main">)"), 2);
    EXPECT_TRUE(page.endsWith("</div></div></body></html>"));
}

TEST_F(ExportSms, ThePageHasTheImagesOfTheResourcesBesideIt)
{
    ASSERT_TRUE(root().mkpath("resources/DataExport"));
    QFile image(root().filePath("resources/DataExport/exclamation.png"));
    ASSERT_TRUE(image.open(QIODevice::WriteOnly) && image.write("mark") == 4 && image.flush());
    OvResourceMgr::instance()->setProductResourceRoot(root().filePath("resources"));
    const auto set = smsSet(1);
    EXPECT_TRUE(run(set.get(), nullptr));
    EXPECT_EQ(contentsOf("Cat/image/exclamation.png"), "mark");
    EXPECT_EQ(root().entryList({"*"}, QDir::Dirs | QDir::NoDotAndDotDot),
        QStringList({"Cat", "resources"}));
}

TEST_F(ExportSms, GivesEachOfItsTwoStagesHalfOfTheRangeInWholeUnits)
{
    const auto set = smsSet(2);
    EXPECT_EQ(callsOf(set.get(), root(), 201),
        QStringList({"range", "step 50", "step 50", "step 0", "step 50", "step 50", "step 0"}));
    EXPECT_TRUE(result);
}

TEST_F(ExportSms, FinishesTheStagesOfASetWithoutRecords)
{
    const auto set = smsSet(0);
    EXPECT_EQ(callsOf(set.get(), root(), 200), QStringList({"range", "step 100", "step 100"}));
    EXPECT_TRUE(result);
    EXPECT_EQ(tree(), kBothFormats);
}

TEST_F(ExportSms, RunsItsStagesOnARangeOfNothing)
{
    const auto set = smsSet(2);
    for (const int range : {0, 1}) {
        SCOPED_TRACE(range);
        EXPECT_EQ(callsOf(set.get(), root(), range),
            QStringList({"range", "step 0", "step 0", "step 0", "step 0", "step 0", "step 0"}));
        EXPECT_TRUE(result);
    }
    EXPECT_EQ(tree(), QStringList({"Cat/", "Cat/Anna's Cat (2).csv", kCsv, kPage, "Cat/image/"}));
}

TEST_F(ExportSms, RunsItsStagesUnderAProgressWithoutParent)
{
    const auto set = smsSet(2);
    CSubProgress progress(nullptr, 200);
    EXPECT_TRUE(run(set.get(), &progress));
    EXPECT_EQ(tree(), kBothFormats);
}

// The second place then has no scale of its own, and nothing is left of the first.
TEST_F(ExportSms, FinishesBothPlacesWhenTheDirectoryCannotBeMade)
{
    QFile file(root().filePath("file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const auto set = smsSet(2);
    EXPECT_EQ(callsOf(set.get(), QDir(root().filePath("file/below")), 200),
        QStringList({"range", "step 100", "step 0"}));
    EXPECT_FALSE(result);
    EXPECT_EQ(tree(), QStringList("file"));
}

TEST_F(ExportSms, LosesTheCategoryWhenThePageCannotBeOpened)
{
    ASSERT_TRUE(root().mkpath("Cat/earlier"));
    ASSERT_TRUE(root().mkpath("Other"));
    ASSERT_TRUE(root().mkpath(kPage)); // a directory in its place
    const auto set = smsSet(2);
    EXPECT_EQ(callsOf(set.get(), root(), 200), QStringList({"range", "step 100", "step 0"}));
    EXPECT_FALSE(result);
    EXPECT_EQ(tree(), QStringList("Other/"));
}

TEST_F(ExportSms, LosesTheFinishedPageWhenTheCsvCannotBeOpened)
{
    // With ".html" the name is as long as file systems take one; the CSV needs a number in it.
    const QString owner(244, 'x');
    ASSERT_TRUE(root().mkpath("Cat/" + owner + "'s Cat.csv"));
    ASSERT_TRUE(root().mkpath("Other"));
    const auto set = smsSet(2);
    EXPECT_EQ(callsOf(set.get(), root(), 200, 0, owner),
        QStringList({"range", "step 50", "step 50", "step 0", "step 100"}));
    EXPECT_FALSE(result);
    EXPECT_EQ(tree(), QStringList("Other/"));
}

TEST_F(ExportSms, ACancelAmongTheConversationsKeepsAClosedPageAndMakesNoCsv)
{
    const auto set = smsSet(2);
    struct {
        int cancelAtStep = 0;
        QStringList calls;
        int conversations = 0;
    } const rows[] = {
        {1, {"range", "step 50", "step 50", "step 0"}, 0},
        {2, {"range", "step 50", "step 50", "step 0", "step 0"}, 1},
        {3, {"range", "step 50", "step 50", "step 0", "step 0"}, 2},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.cancelAtStep);
        EXPECT_EQ(callsOf(set.get(), root(), 200, row.cancelAtStep), row.calls);
        EXPECT_TRUE(result);
        EXPECT_EQ(tree(), kPageAlone);
        const QByteArray page = contentsOf(kPage);
        EXPECT_EQ(page.count(R"(<div class="main">)"), row.conversations);
        EXPECT_TRUE(page.endsWith("</div></body></html>"));
    }
}

TEST_F(ExportSms, ACancelAmongTheRowsKeepsThePageAndThePartialCsv)
{
    const auto set = smsSet(2);
    EXPECT_EQ(callsOf(set.get(), root(), 200, 5),
        QStringList({"range", "step 50", "step 50", "step 0", "step 50", "step 50", "step 0"}));
    EXPECT_TRUE(result);
    EXPECT_EQ(tree(), kBothFormats);
    EXPECT_EQ(contentsOf(kPage).count(R"(<div class="main">)"), 2);
    EXPECT_EQ(contentsOf(kCsv).count(QByteArray("\n\0", 2)), 2) << "the labels and a row";
}

TEST_F(ExportSms, NamesTheFilesInEnglishAndSafelyAndTheHeadingNeither)
{
    const Germany germany;
    const auto set = smsSet(1);
    EXPECT_TRUE(run(set.get(), root(), nullptr, "A/B\\C:\"D\" %2"));
    EXPECT_EQ(tree(), QStringList({"Cat/", "Cat/A_B_C__D_ %2's Cat.csv",
                          "Cat/A_B_C__D_ %2's Cat.html", "Cat/image/"}));
    const QByteArray page = contentsOf("Cat/A_B_C__D_ %2's Cat.html");
    EXPECT_TRUE(page.contains("<title>A_B_C__D_ %2's Cat</title>"));
    EXPECT_TRUE(page.contains("<h1>Cat von A/B\\C:&quot;D&quot; %2</h1>"));
}

} // namespace
