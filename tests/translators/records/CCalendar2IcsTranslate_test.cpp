// SPDX-License-Identifier: MIT
#include "exporters/CPlainFileExporter.h"
#include "model/PRCalendarItem.h"
#include "model/PRData.h"
#include "support/recording_progress.h"
#include "support/temp_tree.h"
#include "translators/contact/text_sink.h"
#include "translators/records/CCalendar2IcsTranslate.h"

#include <QTimeZone>

#include <gtest/gtest.h>

namespace {

using Item = std::unique_ptr<PRAbstractItem>;

const QString kHeader = "BEGIN:VCALENDAR\r\nPRODID:-//orvendale//Tessavon//EN\r\nVERSION:2.0\r\n";
const QString kFooter = "END:VCALENDAR";
const QString kNoAlarm = "BEGIN:VALARM\r\nTRIGGER:-PT0M\r\nACTION:DISPLAY\r\n"
                         "DESCRIPTION:Reminder\r\nEND:VALARM\r\n";
// Of an event without anything.
const QStringList kBareEvent{"BEGIN:VEVENT\r\n", kNoAlarm, "END:VEVENT\r\n"};

Item eventOf(const QStringList& values, CalendarEvent event, int flags = InCalendarRange,
    bool selected = true)
{
    return std::make_unique<PRCalendarItem>(
        Record{.values = values, .flags = flags, .selected = selected}, std::move(event));
}

QDateTime utc(const QDate& day, const QTime& time = {0, 0})
{
    return {day, time, Qt::UTC};
}

template <typename... Items> RecordList listOf(Items... items)
{
    RecordList records;
    (records.push_back(std::move(items)), ...);
    return records;
}

QStringList writesOf(RecordList records, int failing = 0, CIProgressCallback* progress = nullptr)
{
    PRData data(29, std::move(records));
    TextSink sink(failing);
    EXPECT_TRUE(CCalendar2IcsTranslate(&data).translate(&sink, "Title", progress));
    EXPECT_EQ(sink.otherCalls(), QStringList());
    return sink.writes();
}

// What is written of one event between its first and its last line.
QStringList linesOf(const QStringList& values, CalendarEvent event)
{
    const QStringList writes = writesOf(listOf(eventOf(values, std::move(event))));
    return writes.mid(2, writes.size() - 4);
}

TEST(CCalendar2IcsTranslate, EventHasItsLinesInTheirOrderEachInAWriteOfItsOwn)
{
    EXPECT_EQ(
        writesOf(listOf(eventOf({"Choir", "Hall", "2", "3", "Scores", "5", "6", "7", "8", "9"},
            {.start = utc({2024, 6, 4}, {17, 30}),
                .end = utc({2024, 6, 4}, {19, 0}),
                .recurrence = "1*2*D=0TU",
                .recurrenceEnd = utc({2024, 6, 25}, {17, 30}),
                .alarmSeconds = 900}))),
        QStringList({kHeader, "BEGIN:VEVENT\r\n", "SUMMARY:Choir\r\n", "LOCATION:Hall\r\n",
            "DESCRIPTION:Scores\r\n", "DTSTART:20240604T193000\r\n", "DTEND:20240604T210000\r\n",
            QString(kNoAlarm).replace("-PT0M", "-PT15M"), "RRULE:FREQ=WEEKLY;COUNT=4;BYDAY=TU\r\n",
            "END:VEVENT\r\n", kFooter}));
}

TEST(CCalendar2IcsTranslate, WhatIsEmptyHasNoLine)
{
    EXPECT_EQ(writesOf(listOf(eventOf({}, {}))),
        QStringList(kHeader) + kBareEvent + QStringList(kFooter));
    EXPECT_EQ(linesOf({"", "Hall"}, {.start = utc({2024, 6, 4})}),
        QStringList({"LOCATION:Hall\r\n", "DTSTART:20240604T020000\r\n", kNoAlarm}));
}

TEST(CCalendar2IcsTranslate, NothingSelectedWritesNothing)
{
    EXPECT_EQ(writesOf({}), QStringList());
    EXPECT_EQ(writesOf(listOf(eventOf({"a"}, {}, InCalendarRange, false))), QStringList());
    support::RecordingProgress progress;
    EXPECT_EQ(writesOf({}, 0, &progress), QStringList());
    EXPECT_EQ(progress.calls(), QStringList());
}

TEST(CCalendar2IcsTranslate, EventNeedsOneOfTwoFlags)
{
    struct {
        const char* what = nullptr;
        int flags = 0;
        bool written = false;
    } const rows[] = {
        {"none", 0, false},
        {"deleted", Deleted, false},
        {"deleted and locked", Deleted | Locked, false},
        {"in range", InCalendarRange, true},
        {"partly selected", PartlySelected, true},
        {"both", InCalendarRange | PartlySelected, true},
        {"deleted in range", InCalendarRange | Deleted, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const QStringList events = row.written ? kBareEvent : QStringList();
        EXPECT_EQ(writesOf(listOf(eventOf({}, {}, row.flags))),
            QStringList(kHeader) + events + QStringList(kFooter));
    }
}

TEST(CCalendar2IcsTranslate, RecordsOfOtherClassesArePassedOver)
{
    EXPECT_EQ(writesOf(listOf(std::make_unique<PRAbstractItem>(
                                  Record{.values = {"stranger"}, .flags = InCalendarRange}),
                  eventOf({}, {}))),
        QStringList(kHeader) + kBareEvent + QStringList(kFooter));
}

TEST(CCalendar2IcsTranslate, EventsStandInTheOrderOfTheSelection)
{
    const QStringList writes = writesOf(listOf(eventOf({"b"}, {.start = utc({2024, 6, 4})}),
        eventOf({"x"}, {}, InCalendarRange, false), eventOf({"a"}, {.start = utc({2023, 6, 4})})));
    EXPECT_EQ(writes.filter("SUMMARY"), QStringList({"SUMMARY:b\r\n", "SUMMARY:a\r\n"}));
}

TEST(CCalendar2IcsTranslate, TimesAreLocalAndThoseOfWholeDaysAsStored)
{
    struct {
        const char* what = nullptr;
        int allDay = 0;
        QDateTime start;
        const char* line = nullptr;
    } const rows[] = {
        // two hours east of UTC
        {"UTC", 0, utc({2024, 6, 4}, {23, 30, 5}), "DTSTART:20240605T013005\r\n"},
        {"another zone", 0, {{2024, 6, 4}, {23, 30}, QTimeZone("Asia/Tokyo")},
            "DTSTART:20240604T163000\r\n"},
        {"local", 0, {{2024, 6, 4}, {23, 30}}, "DTSTART:20240604T233000\r\n"},
        {"whole day", 1, utc({2024, 6, 4}), "DTSTART:20240604T000000\r\n"},
        {"whole day, another number", -1, utc({2024, 6, 4}, {23, 59, 59}),
            "DTSTART:20240604T235959\r\n"},
        {"whole day of another zone", 1, {{2024, 6, 4}, {7, 0}, QTimeZone("Asia/Tokyo")},
            "DTSTART:20240604T070000\r\n"},
        {"long ago", 1, utc({33, 1, 2}), "DTSTART:00330102T000000\r\n"},
        {"milliseconds", 1, utc({2024, 6, 4}, {1, 2, 3, 999}), "DTSTART:20240604T010203\r\n"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(linesOf({}, {.allDay = row.allDay, .start = row.start}).value(0), row.line);
        EXPECT_EQ(linesOf({}, {.allDay = row.allDay, .end = row.start}).value(0),
            QString(row.line).replace("DTSTART", "DTEND"));
    }
}

// A day and a time of no zone are no moment.
TEST(CCalendar2IcsTranslate, DateThatIsNotValidHasNoLineAndEndsNoRecurrence)
{
    const QDateTime ofNoZone({2024, 6, 4}, {17, 30}, QTimeZone());
    ASSERT_TRUE(ofNoZone.date().isValid() && !ofNoZone.isValid());
    for (const int allDay : {0, 1}) {
        EXPECT_EQ(linesOf({}, {.allDay = allDay, .start = ofNoZone, .end = ofNoZone}),
            QStringList(kNoAlarm));
    }
    EXPECT_EQ(
        linesOf({}, {.start = utc({2024, 6, 1}), .recurrence = "1*1*", .recurrenceEnd = ofNoZone})
            .last(),
        "RRULE:FREQ=DAILY\r\n");
}

TEST(CCalendar2IcsTranslate, OnlyTheLineFeedsOfNotesAreWrittenAsTwoCharacters)
{
    EXPECT_EQ(linesOf({"a\nb, c; d\\e", "f\ng", "", "", "h\ni\r\nj, k; l\\m\n"}, {}),
        QStringList({"SUMMARY:a\nb, c; d\\e\r\n", "LOCATION:f\ng\r\n",
            "DESCRIPTION:h\\ni\r\\nj, k; l\\m\\n\r\n", kNoAlarm}));
}

TEST(CCalendar2IcsTranslate, LongLinesAreNotFolded)
{
    const QString text(1'048'576, 'x');
    EXPECT_EQ(linesOf({text, text, "", "", text}, {}),
        QStringList({"SUMMARY:" + text + "\r\n", "LOCATION:" + text + "\r\n",
            "DESCRIPTION:" + text + "\r\n", kNoAlarm}));
}

TEST(CCalendar2IcsTranslate, HostileTextStaysInItsLine)
{
    const QStringList texts{"%1%2%3%%", "END:VCALENDAR", "\r", QString(QChar(0)),
        QString(QChar(0xD83D)), QString::fromUtf8("\u202Eשלום 👩‍🚀"), " ",
        "RRULE:FREQ=DAILY"};
    for (const QString& text : texts) {
        SCOPED_TRACE(text.toStdString());
        EXPECT_EQ(linesOf({text, text, "", "", text}, {}),
            QStringList({"SUMMARY:" + text + "\r\n", "LOCATION:" + text + "\r\n",
                "DESCRIPTION:" + text + "\r\n", kNoAlarm}));
    }
}

TEST(CCalendar2IcsTranslate, AlarmIsInWholeMinutesAndItsOwnSignComesSecond)
{
    struct {
        int seconds = 0;
        const char* trigger = nullptr;
    } const rows[] = {
        {0, "-PT0M"},
        {59, "-PT0M"},
        {60, "-PT1M"},
        {119, "-PT1M"},
        {900, "-PT15M"},
        {86400, "-PT1440M"},
        {-59, "-PT0M"},
        {-60, "-PT-1M"},
        {-900, "-PT-15M"},
        {2147483647, "-PT35791394M"},
        {-2147483647 - 1, "-PT-35791394M"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(linesOf({}, {.alarmSeconds = row.seconds}),
            QStringList(QString(kNoAlarm).replace("-PT0M", row.trigger)))
            << row.seconds;
    }
}

TEST(CCalendar2IcsTranslate, RuleReckonsWithTheDaysThatAreStored)
{
    // In UTC still a Monday, here a Tuesday already.
    const QDateTime start = utc({2024, 6, 3}, {23, 0});
    EXPECT_EQ(linesOf({}, {.start = start,
                              .recurrence = "1*2*D=0MO",
                              .recurrenceEnd = utc({2024, 6, 17}, {1, 0})})
                  .last(),
        "RRULE:FREQ=WEEKLY;COUNT=3;BYDAY=MO\r\n");
    EXPECT_EQ(linesOf({}, {.start = start, .recurrence = "1*1*"}).last(), "RRULE:FREQ=DAILY\r\n");
}

TEST(CCalendar2IcsTranslate, UnknownFrequencyLosesTheRuleAndNotTheEvent)
{
    for (const char* source : {"1*0*", "1*5*", "1*2", ""}) {
        EXPECT_EQ(linesOf({"a"}, {.recurrence = source}), QStringList({"SUMMARY:a\r\n", kNoAlarm}));
    }
}

TEST(CCalendar2IcsTranslate, FailedWritesAreNotNoticed)
{
    const auto records = [] { return listOf(eventOf({"a"}, {}), eventOf({"b"}, {})); };
    const QStringList all = writesOf(records());
    ASSERT_EQ(all.size(), 10);
    for (int failing = 1; failing <= all.size(); ++failing) {
        EXPECT_EQ(writesOf(records(), failing), all) << failing;
    }
}

TEST(CCalendar2IcsTranslate, StepIsTakenForEachSelectedRecordBeforeItsWork)
{
    support::RecordingProgress progress;
    progress.initRange(90);
    progress.clearCalls();
    writesOf(listOf(std::make_unique<PRAbstractItem>(), eventOf({}, {}, 0), eventOf({}, {})), 0,
        &progress);
    EXPECT_EQ(progress.calls(), QStringList({"range", "step 30", "step 30", "step 30"}));
}

TEST(CCalendar2IcsTranslate, CancelEndsTheEventsAndClosesTheCalendar)
{
    for (int cancelAt = 1; cancelAt <= 3; ++cancelAt) {
        SCOPED_TRACE(cancelAt);
        support::RecordingProgress progress(cancelAt);
        const QStringList writes =
            writesOf(listOf(eventOf({}, {}), eventOf({}, {}), eventOf({}, {})), 0, &progress);
        EXPECT_EQ(progress.steps(), cancelAt);
        EXPECT_EQ(writes.first(), kHeader);
        EXPECT_EQ(writes.count("END:VEVENT\r\n"), cancelAt - 1);
        EXPECT_EQ(writes.last(), kFooter);
    }
}

TEST(CCalendar2IcsTranslate, FileHasAMarkAndEndsInTheWordOfItsFooter)
{
    PRData data(29, listOf(eventOf({QString::fromUtf8("Fête")}, {})));
    const support::TempTree tree;
    CPlainFileExporter exporter(".ics", false);
    exporter.setEncoding("UTF-8", true);
    ASSERT_TRUE(exporter.openExport(tree.dir(), "Anna", "Cat"));
    EXPECT_TRUE(CCalendar2IcsTranslate(&data).translate(&exporter, "Title", nullptr));
    EXPECT_TRUE(exporter.closeExport(true));
    EXPECT_EQ(tree.read("Cat/Anna's Cat.ics"),
        "\xEF\xBB\xBF" + kHeader.toUtf8() + "BEGIN:VEVENT\r\nSUMMARY:F\xC3\xAAte\r\n"
            + kNoAlarm.toUtf8() + "END:VEVENT\r\nEND:VCALENDAR");
}

} // namespace
