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
    EXPECT_EQ(exportTitle("A/B: \"C\"", "Cat"), "A/B: \"C\"'s Cat");
}

TEST(StageShare, DividesWholeUnits)
{
    struct {
        int range;
        int stages;
        int share;
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

TEST_F(ExportSms, WritesTheCsvIntoTheCategory)
{
    const auto set = smsSet(1);
    EXPECT_TRUE(run(set.get(), nullptr));
    EXPECT_EQ(tree(), QStringList({"Cat/", kCsv}));
    QFile file(root().filePath(kCsv));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.read(4).toHex(), "fffe4e00"); // the mark and the N of "Name"
}

TEST_F(ExportSms, GivesEachOfItsTwoStagesHalfOfTheRangeInWholeUnits)
{
    const auto set = smsSet(2);
    EXPECT_EQ(callsOf(set.get(), root(), 201),
        QStringList({"range", "step 100", "step 50", "step 50", "step 0"}));
    EXPECT_TRUE(result);
}

TEST_F(ExportSms, FinishesTheStageOfASetWithoutRecords)
{
    const auto set = smsSet(0);
    EXPECT_EQ(callsOf(set.get(), root(), 200), QStringList({"range", "step 100", "step 100"}));
    EXPECT_TRUE(result);
    EXPECT_EQ(tree(), QStringList({"Cat/", kCsv}));
}

TEST_F(ExportSms, RunsItsStagesOnARangeOfNothing)
{
    const auto set = smsSet(2);
    for (const int range : {0, 1}) {
        SCOPED_TRACE(range);
        EXPECT_EQ(callsOf(set.get(), root(), range),
            QStringList({"range", "step 0", "step 0", "step 0", "step 0"}));
        EXPECT_TRUE(result);
    }
    EXPECT_EQ(tree(), QStringList({"Cat/", "Cat/Anna's Cat (2).csv", kCsv}));
}

TEST_F(ExportSms, RunsItsStagesUnderAProgressWithoutParent)
{
    const auto set = smsSet(2);
    CSubProgress progress(nullptr, 200);
    EXPECT_TRUE(run(set.get(), &progress));
    EXPECT_EQ(tree(), QStringList({"Cat/", kCsv}));
}

TEST_F(ExportSms, FinishesBothPlacesWhenTheDirectoryCannotBeMade)
{
    QFile file(root().filePath("file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const auto set = smsSet(2);
    EXPECT_EQ(callsOf(set.get(), QDir(root().filePath("file/below")), 200),
        QStringList({"range", "step 100", "step 100"}));
    EXPECT_FALSE(result);
    EXPECT_EQ(tree(), QStringList("file"));
}

TEST_F(ExportSms, LosesTheCategoryWhenTheFileCannotBeOpened)
{
    ASSERT_TRUE(root().mkpath("Cat/earlier"));
    ASSERT_TRUE(root().mkpath("Other"));
    const auto set = smsSet(2);
    const QString tooLong(300, 'x'); // no file system takes such a name
    EXPECT_EQ(callsOf(set.get(), root(), 200, 0, tooLong),
        QStringList({"range", "step 100", "step 100"}));
    EXPECT_FALSE(result);
    EXPECT_EQ(tree(), QStringList("Other/"));
}

TEST_F(ExportSms, AfterACancelInThePlaceOfThePageMakesNoFile)
{
    const auto set = smsSet(2);
    EXPECT_EQ(callsOf(set.get(), root(), 200, 1), QStringList({"range", "step 100", "step 0"}));
    EXPECT_EQ(tree(), QStringList());
}

TEST_F(ExportSms, KeepsThePartialFileOfACancel)
{
    const auto set = smsSet(2);
    EXPECT_EQ(callsOf(set.get(), root(), 200, 3),
        QStringList({"range", "step 100", "step 50", "step 50", "step 0"}));
    EXPECT_TRUE(result);
    EXPECT_EQ(tree(), QStringList({"Cat/", kCsv}));
}

TEST_F(ExportSms, NamesTheFileInEnglishAndSafely)
{
    const Germany germany;
    const auto set = smsSet(1);
    EXPECT_TRUE(run(set.get(), root(), nullptr, "A/B\\C:\"D\" %2"));
    EXPECT_EQ(tree(), QStringList({"Cat/", "Cat/A_B_C__D_ %2's Cat.csv"}));
}

} // namespace
