// SPDX-License-Identifier: MIT
// What both CSV files of contacts have in common: a run over the records.
#include "support/recording_progress.h"
#include "translators/contact/CContact2CSVTranslate.h"
#include "translators/contact/CContact2CSVTranslateTavero.h"
#include "translators/contact/contact_builder.h"
#include "translators/contact/text_sink.h"

#include <gtest/gtest.h>

namespace {

using support::RecordingProgress;

// Ann, a record of another class, one that is not selected, Bo.
RecordList fourRecords()
{
    RecordList records;
    records.push_back(contactOf({}, "Ann"));
    records.push_back(std::make_unique<PRAbstractItem>(Record{.values = {"stranger"}}));
    records.push_back(contactOf({}, "unwanted", false));
    records.push_back(contactOf({}, "Bo"));
    return records;
}

struct FileKind {
    const char* what = "";
    void (*run)(int failingWrite, int cancelAtStep, bool result, int writes,
        const QStringList& otherCalls) = nullptr;
};

// Runs a translator over the four records and compares what came of it.
template <typename Translator>
void run(int failingWrite, int cancelAtStep, bool result, int writes, const QStringList& otherCalls)
{
    PRContactData data(fourRecords());
    TextSink sink(failingWrite);
    RecordingProgress progress(cancelAtStep);
    progress.initRange(30);
    EXPECT_EQ(Translator(&data).translate(&sink, "T", &progress), result);
    EXPECT_EQ(sink.writes().size(), writes);
    EXPECT_EQ(sink.otherCalls(), otherCalls);
}

constexpr FileKind kKinds[] = {
    {"general", run<CContact2CSVTranslate>},
    {"Tavero", run<CContact2CSVTranslateTavero>},
};

TEST(ContactCsvRun, WritesTheNamesThenARowBetweenBeginAndEndOfEachContact)
{
    for (const FileKind& kind : kKinds) {
        SCOPED_TRACE(kind.what);
        kind.run(0, 0, true, 3, {"beginItem Ann", "endItem", "beginItem Bo", "endItem"});
    }
}

TEST(ContactCsvRun, FailsAtOnceWithTheNthWrite)
{
    for (const FileKind& kind : kKinds) {
        SCOPED_TRACE(kind.what);
        kind.run(1, 0, false, 1, {});
        kind.run(2, 0, false, 2, {"beginItem Ann", "endItem"});
        kind.run(3, 0, false, 3, {"beginItem Ann", "endItem", "beginItem Bo", "endItem"});
    }
}

TEST(ContactCsvRun, ACancelKeepsWhatWasWrittenAndIsNoFailure)
{
    for (const FileKind& kind : kKinds) {
        SCOPED_TRACE(kind.what);
        kind.run(0, 1, true, 1, {}); // the names alone
        kind.run(0, 2, true, 2, {"beginItem Ann", "endItem"});
        kind.run(0, 3, true, 2, {"beginItem Ann", "endItem"});
    }
}

template <typename Translator> void expectThatHeaderAndFooterWriteNothing()
{
    PRContactData data;
    TextSink failing(1);
    Translator translator(&data);
    EXPECT_TRUE(translator.writeHeader(&failing));
    EXPECT_TRUE(translator.writeFooter(&failing));
    EXPECT_EQ(failing.writes(), QStringList());
}

TEST(ContactCsvRun, HeaderAndFooterWriteNothing)
{
    expectThatHeaderAndFooterWriteNothing<CContact2CSVTranslate>();
    expectThatHeaderAndFooterWriteNothing<CContact2CSVTranslateTavero>();
}

template <typename Translator> void expectThatASecondRunWritesTheSame()
{
    RecordList records = fourRecords();
    records.push_back(contactOf(holding({plain(Phone, "", "1")}), "Cy"));
    PRContactData data(std::move(records));
    Translator translator(&data);
    TextSink first;
    TextSink second;
    EXPECT_TRUE(translator.translate(&first, "T", nullptr));
    EXPECT_TRUE(translator.translate(&second, "T", nullptr));
    EXPECT_EQ(first.writes(), second.writes());
}

TEST(ContactCsvRun, ASecondRunMakesItsColumnsAnew)
{
    expectThatASecondRunWritesTheSame<CContact2CSVTranslate>();
    expectThatASecondRunWritesTheSame<CContact2CSVTranslateTavero>();
}

} // namespace
