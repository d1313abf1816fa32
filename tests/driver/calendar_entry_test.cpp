// SPDX-License-Identifier: MIT
// A page and a calendar, one behind the other.
#include "driver/driver_fixture.h"
#include "driver/exporter_access.h"
#include "model/CSubProgress.h"
#include "model/PRCalendarItem.h"
#include "support/recording_progress.h"

namespace {

using support::RecordingProgress;

const char* const kPage = "Cat/Anna's Cat.html";
const char* const kCalendar = "Cat/Anna's Cat.ics";

class CalendarEntry : public DriverTest {
protected:
    static std::unique_ptr<PRData> events(int count)
    {
        RecordList records;
        for (int i = 0; i < count; ++i) {
            records.push_back(std::make_unique<PRCalendarItem>(
                Record{.values = {QString("event %1").arg(i)}, .flags = InCalendarRange}));
        }
        return std::make_unique<PRData>(29, std::move(records));
    }

    bool run(int count, CIProgressCallback* progress, const QString& owner = "Anna") const
    {
        const auto data = events(count);
        return access_to::exportCalendarIcs()(
            data.get(), root(), owner, "Cat", progress, nullptr, true);
    }
};

TEST_F(CalendarEntry, WritesThePageAndThenTheCalendarIntoOneDirectory)
{
    EXPECT_TRUE(run(2, nullptr));
    EXPECT_EQ(tree(), QStringList({"Cat/", kPage, kCalendar}));
    EXPECT_TRUE(contentsOf(kPage).contains(R"(<table id="wrap")"));
    const QByteArray calendar = contentsOf(kCalendar);
    EXPECT_TRUE(calendar.startsWith("\xEF\xBB\xBF"
                                    "BEGIN:VCALENDAR\r\n"));
    EXPECT_EQ(calendar.count("SUMMARY:event"), 2);
    EXPECT_TRUE(calendar.endsWith("END:VCALENDAR"));
}

TEST_F(CalendarEntry, WithoutASelectedRecordLeavesAnEmptyFile)
{
    EXPECT_TRUE(run(0, nullptr));
    EXPECT_EQ(contentsOf(kCalendar), QByteArray());
    EXPECT_TRUE(contentsOf(kPage).endsWith("</body></html>"));
}

TEST_F(CalendarEntry, MakesTheOwnersNameSafeForBothFiles)
{
    EXPECT_TRUE(run(1, nullptr, "A/B"));
    EXPECT_EQ(tree(), QStringList({"Cat/", "Cat/A_B's Cat.html", "Cat/A_B's Cat.ics"}));
}

// The page has its half of the scale. What the calendar does on the same one moves nothing.
TEST_F(CalendarEntry, GivesThePageHalfOfTheScaleAndFinishesOnlyThat)
{
    RecordingProgress progress;
    progress.initRange(400);
    progress.clearCalls();
    EXPECT_TRUE(run(2, &progress));
    EXPECT_EQ(progress.calls(),
        QStringList({"range", "step 100", "step 100", "step 0", "step 0", "step 0"}));
    EXPECT_EQ(progress.position(), 200);
}

TEST_F(CalendarEntry, RunsUnderAProgressWithoutParentAndOnARangeOfNothing)
{
    CSubProgress orphan(nullptr, 200);
    EXPECT_TRUE(run(1, &orphan));
    EXPECT_EQ(tree(), QStringList({"Cat/", kPage, kCalendar}));
    RecordingProgress nothing;
    EXPECT_TRUE(run(1, &nothing));
    EXPECT_EQ(nothing.calls(), QStringList({"range", "step 0", "step 0", "step 0"}));
}

TEST_F(CalendarEntry, CancelledOnThePageKeepsItAndHasNoCalendar)
{
    for (int cancelAt = 1; cancelAt <= 3; ++cancelAt) {
        SCOPED_TRACE(cancelAt); // the third step finishes the page
        RecordingProgress progress(cancelAt);
        EXPECT_TRUE(run(2, &progress));
        EXPECT_EQ(tree(), QStringList({"Cat/", kPage}));
        EXPECT_TRUE(contentsOf(kPage).endsWith("</body></html>"));
        QDir(root().filePath("Cat")).removeRecursively();
    }
}

TEST_F(CalendarEntry, CancelledInTheCalendarClosesIt)
{
    for (int cancelAt = 4; cancelAt <= 5; ++cancelAt) {
        SCOPED_TRACE(cancelAt);
        RecordingProgress progress(cancelAt);
        EXPECT_TRUE(run(2, &progress));
        const QByteArray calendar = contentsOf(kCalendar);
        EXPECT_EQ(calendar.count("BEGIN:VEVENT"), cancelAt - 4);
        EXPECT_TRUE(calendar.endsWith("END:VCALENDAR"));
        QDir(root().filePath("Cat")).removeRecursively();
    }
}

TEST_F(CalendarEntry, WithoutAPageThereIsNoCalendarAndNoCategory)
{
    ASSERT_TRUE(root().mkpath("Cat/earlier"));
    EXPECT_FALSE(run(1, nullptr, QString(300, 'x'))); // longer than any file system takes
    EXPECT_EQ(tree(), QStringList());
}

TEST_F(CalendarEntry, ACalendarThatCannotBeOpenedTakesTheFinishedPage)
{
    // With ".html" the name is as long as file systems take one; the calendar needs a number in it.
    const QString owner(244, 'x');
    ASSERT_TRUE(root().mkpath("Cat/" + owner + "'s Cat.ics"));
    ASSERT_TRUE(root().mkpath("Other"));
    RecordingProgress progress;
    progress.initRange(400);
    progress.clearCalls();
    EXPECT_FALSE(run(2, &progress, owner));
    EXPECT_EQ(progress.calls(), QStringList({"range", "step 100", "step 100", "step 0"}));
    EXPECT_EQ(tree(), QStringList("Other/"));
}

TEST_F(CalendarEntry, ServesTheTypeOfTheCalendar)
{
    PRBackup backup;
    backup.add(events(1));
    CBackupExporter().exportBackup(&backup, root(), nullptr, {29}, false, "Anna");
    EXPECT_EQ(tree(), QStringList({"Calendar/", "Calendar/Anna's Calendar.html",
                          "Calendar/Anna's Calendar.ics"}));
}

} // namespace
