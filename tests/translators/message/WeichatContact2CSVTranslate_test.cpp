// SPDX-License-Identifier: MIT
#include "exporters/CPlainFileExporter.h"
#include "model/PRData.h"
#include "support/recording_progress.h"
#include "support/temp_tree.h"
#include "translators/contact/marking_translation.h"
#include "translators/contact/text_sink.h"
#include "translators/message/WeichatContact2CSVTranslate.h"
#include "translators/message/chat_contact_builder.h"

#include <gtest/gtest.h>

namespace {

constexpr auto kLabels = "Name,Alias,Wechat ID,WXID,Region,Phone,What's Up,\n";

QString rowOf(ChatContact content, int flags = 0)
{
    PRData data(16);
    WeichatContact2CSVTranslate translator(&data);
    TextSink sink;
    EXPECT_TRUE(translator.writeItem(&sink, chatContact(std::move(content), flags).get()));
    EXPECT_EQ(sink.writes().size(), 1);
    EXPECT_EQ(sink.otherCalls(), QStringList());
    return sink.writes().value(0);
}

TEST(ChatContactCsv, FirstRowIsTheLabelsAndEndsInAComma)
{
    PRData data(16);
    WeichatContact2CSVTranslate translator(&data);
    TextSink sink;
    EXPECT_TRUE(translator.prepare(&sink, "A title that is of no use", nullptr));
    EXPECT_EQ(sink.writes(), QStringList(kLabels));
    const MarkingTranslation translation;
    translator.prepare(&sink, {}, nullptr);
    EXPECT_EQ(
        sink.writes().last(), "<Name>,<Alias>,<Wechat ID>,<WXID>,<Region>,<Phone>,<What's Up>,\n");
}

TEST(ChatContactCsv, HeaderAndFooterWriteNothing)
{
    PRData data(16);
    WeichatContact2CSVTranslate translator(&data);
    TextSink sink(1);
    EXPECT_TRUE(translator.writeHeader(&sink));
    EXPECT_TRUE(translator.writeFooter(&sink));
    EXPECT_EQ(sink.writes(), QStringList());
}

TEST(ChatContactCsv, RowHasTheSevenCellsAndEndsInAComma)
{
    EXPECT_EQ(rowOf(mia()), "Mia,\"mimi\",mia.huber,wxid_1,Kiel Germany,+49 1;+49 2,At sea,\n");
}

TEST(ChatContactCsv, EmptyCellsAreEmptyButForTheRegion)
{
    EXPECT_EQ(rowOf({}), ",,,, ,,,\n");
}

TEST(ChatContactCsv, CellsComeFromTheseFields)
{
    struct {
        const char* what = nullptr;
        ChatContact contact;
        const char* row = nullptr;
    } const rows[] = {
        {"name", {.name = "a"}, "a,,,, ,,,\n"},
        {"alias", {.nickName = "a"}, ",\"a\",,, ,,,\n"},
        {"quotation marks in the alias are not doubled", {.nickName = "a\"b"},
            ",\"a\"b\",,, ,,,\n"},
        {"blank alias", {.nickName = " "}, ",\" \",,, ,,,\n"},
        {"chosen id alone", {.wxNameId = "a"}, ",,a,, ,,,\n"},
        {"given id stands in for the chosen one", {.nameID = "a"}, ",,a,a, ,,,\n"},
        {"both ids", {.wxNameId = "a", .nameID = "b"}, ",,a,b, ,,,\n"},
        {"city", {.city = "a"}, ",,,,a ,,,\n"},
        {"country", {.country = "a"}, ",,,, a,,,\n"},
        {"place marks", {.country = "%1", .city = "%2"}, ",,,,%2 %1,,,\n"},
        {"one phone", {.phones = {"a"}}, ",,,, ,a,,\n"},
        {"empty phones", {.phones = {"", "a", ""}}, ",,,, ,;a;,,\n"},
        {"sign", {.sign = "a"}, ",,,, ,,a,\n"},
        {"a picture leaves no trace", {.headImage = "/a.png"}, ",,,, ,,,\n"},
        {"a room's members neither", {.name = "R", .room = true, .members = {{"a", "b", "c", "d"}}},
            "R,,,, ,,,\n"},
        {"nothing is quoted", {.name = "a,b", .sign = "\"c\"\nd\r\n"}, "a,b,,,, ,,\"c\"\nd\r\n,\n"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(rowOf(row.contact).toStdString(), row.row);
    }
}

TEST(ChatContactCsv, RoomsAndDeletedRecordsHaveOrdinaryRows)
{
    ChatContact room = mia();
    room.room = true;
    EXPECT_EQ(rowOf(room), rowOf(mia()));
    EXPECT_EQ(rowOf(mia(), Deleted | Locked | PartlySelected | InCalendarRange), rowOf(mia()));
}

// --- the whole run

class ChatContactCsvRun : public testing::Test {
protected:
    ChatContactCsvRun()
    {
        RecordList records;
        records.push_back(chatContact({.name = "one"}));
        records.push_back(std::make_unique<PRAbstractItem>(Record{.values = {"stranger"}}));
        records.push_back(chatContact({.name = "unwanted"}, 0, false));
        records.push_back(chatContact({.name = "two"}, PartlySelected));
        data = std::make_unique<PRData>(16, std::move(records));
    }

    std::unique_ptr<PRData> data;
    const QStringList whole{kLabels, "one,,,, ,,,\n", "two,,,, ,,,\n"};
};

TEST_F(ChatContactCsvRun, WritesLabelsThenTheSelectedContacts)
{
    TextSink sink;
    EXPECT_TRUE(WeichatContact2CSVTranslate(data.get()).translate(&sink, "T", nullptr));
    EXPECT_EQ(sink.writes(), whole);
    EXPECT_EQ(sink.otherCalls(), QStringList()) << "records are not opened one by one";
}

TEST_F(ChatContactCsvRun, EndsAtTheFirstWriteThatFails)
{
    for (int failing = 1; failing <= 3; ++failing) {
        SCOPED_TRACE(failing);
        TextSink sink(failing);
        EXPECT_FALSE(WeichatContact2CSVTranslate(data.get()).translate(&sink, "T", nullptr));
        EXPECT_EQ(sink.writes(), whole.mid(0, failing));
    }
}

TEST_F(ChatContactCsvRun, ACancelKeepsWhatWasWrittenAndIsNoFailure)
{
    const int written[] = {1, 2, 2, 3}; // texts, by the step that is the first to be refused
    for (int cancelAt = 1; cancelAt <= 4; ++cancelAt) {
        SCOPED_TRACE(cancelAt);
        TextSink sink;
        support::RecordingProgress progress(cancelAt);
        EXPECT_TRUE(WeichatContact2CSVTranslate(data.get()).translate(&sink, "T", &progress));
        EXPECT_EQ(sink.writes(), whole.mid(0, written[cancelAt - 1]));
    }
}

TEST(ChatContactTranslator, IsDestroyedThroughItsBase)
{
    PRData data(16);
    const std::unique_ptr<WeichatContactTranslate> translator =
        std::make_unique<WeichatContact2CSVTranslate>(&data);
    TextSink sink;
    EXPECT_TRUE(translator->translate(&sink, "T", nullptr));
    EXPECT_EQ(sink.writes(), QStringList(kLabels));
}

TEST(ChatContactCsvFile, IsUtf8WithAMark)
{
    RecordList records;
    records.push_back(chatContact({.name = QString::fromUtf8("Zo\u00eb \U0001F600")}));
    PRData data(16, std::move(records));
    const support::TempTree tree;
    CPlainFileExporter exporter(".csv", false);
    exporter.setEncoding("UTF-8", true);
    EXPECT_TRUE(exporter.openExport(tree.dir(), "Anna", "Cat", "CSV"));
    EXPECT_TRUE(WeichatContact2CSVTranslate(&data).translate(&exporter, "T", nullptr));
    EXPECT_TRUE(exporter.closeExport(true));
    EXPECT_EQ(tree.read("Cat/CSV/Anna's Cat.csv"),
        QByteArray("\xEF\xBB\xBF") + kLabels + "Zo\xC3\xAB \xF0\x9F\x98\x80,,,, ,,,\n");
}

} // namespace
