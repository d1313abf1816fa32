// SPDX-License-Identifier: MIT
#include "exporters/CPlainFileExporter.h"
#include "model/PRData.h"
#include "support/recording_progress.h"
#include "support/temp_tree.h"
#include "translators/contact/marking_translation.h"
#include "translators/contact/text_sink.h"
#include "translators/message/CWhatsapp2CSVTranslate.h"
#include "translators/message/chat_builder.h"

#include <gtest/gtest.h>

namespace {

constexpr auto kLabels = "Chat,Name,Phone,Date,Type,Content\n";
const QString kChatCells = R"("Crew","Mia","+49 1,+49 2",)";

QStringList rowsOf(const std::unique_ptr<PRWhatsappItem>& chat)
{
    PRData data(5);
    CWhatsapp2CSVTranslate translator(&data);
    TextSink sink;
    EXPECT_TRUE(translator.writeItem(&sink, chat.get()));
    EXPECT_EQ(sink.otherCalls(), QStringList());
    return sink.writes();
}

// Without the cells of the chat; a null string where there is no row.
QString rowOf(const ChatMessage& message, int flags = 0)
{
    const QStringList rows = rowsOf(chatOf({message}, flags));
    EXPECT_LE(rows.size(), 1);
    if (rows.isEmpty()) {
        return {};
    }
    EXPECT_TRUE(rows.first().startsWith(kChatCells)) << rows.first().toStdString();
    return rows.first().mid(kChatCells.size());
}

TEST(ChatCsv, FirstRowIsTheLabelsWithoutQuotes)
{
    PRData data(5);
    CWhatsapp2CSVTranslate translator(&data);
    TextSink sink;
    EXPECT_TRUE(translator.prepare(&sink, "A title that is of no use", nullptr));
    EXPECT_EQ(sink.writes(), QStringList(kLabels));
}

TEST(ChatCsv, HeaderAndFooterWriteNothing)
{
    PRData data(5);
    CWhatsapp2CSVTranslate translator(&data);
    TextSink sink(1);
    EXPECT_TRUE(translator.writeHeader(&sink));
    EXPECT_TRUE(translator.writeFooter(&sink));
    EXPECT_EQ(sink.writes(), QStringList());
}

TEST(ChatCsv, LabelsAreTranslatedBareAndTypesInQuotes)
{
    const MarkingTranslation translation;
    PRData data(5);
    CWhatsapp2CSVTranslate translator(&data);
    TextSink sink;
    translator.prepare(&sink, {}, nullptr);
    EXPECT_EQ(sink.writes(), QStringList("<Chat>,<Name>,<Phone>,<Date>,<Type>,<Content>\n"));
    EXPECT_EQ(rowOf({.type = 6, .content = "x"}), "\"\",\"<Group Event>\",\"x\"\n");
    EXPECT_EQ(rowOf({.sentDone = false, .content = "x"}), "\"\",\"<Fail>\",\"x\"\n");
    EXPECT_EQ(rowOf({.fromMe = true, .content = "x"}), "\"\",\"<Sent>\",\"x\"\n");
    EXPECT_EQ(rowOf({.content = "x"}), "\"\",\"<Received>\",\"x\"\n");
}

TEST(ChatCsv, RowHasChatNamePhoneDateTypeContent)
{
    EXPECT_EQ(rowsOf(chatOf({{.date = halfPast(), .content = "Hello"}})),
        QStringList("\"Crew\",\"Mia\",\"+49 1,+49 2\",\"2024-05-01 14:30\",\"Received\","
                    "\"Hello\"\n"));
}

TEST(ChatCsv, TypeAsksForEventsThenForCompleteSendingThenForTheSide)
{
    struct {
        const char* what = "";
        ChatMessage message;
        const char* type = "";
    } const rows[] = {
        {"received", {}, "Received"},
        {"sent", {.fromMe = true}, "Sent"},
        {"sending did not complete", {.fromMe = true, .sentDone = false}, "Fail"},
        {"incomplete, though received", {.sentDone = false}, "Fail"},
        {"event", {.type = 6}, "Group Event"},
        {"event of one's own", {.type = 6, .fromMe = true}, "Group Event"},
        {"event that did not complete", {.type = 6, .sentDone = false}, "Group Event"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        ChatMessage message = row.message;
        message.content = "x";
        EXPECT_EQ(rowOf(message), "\"\",\"" + QString(row.type) + "\",\"x\"\n");
    }
}

TEST(ChatCsv, FilesHaveNoRowAndAllOthersWithTextHaveOne)
{
    for (const int type : {1, 2, 3, 8}) {
        SCOPED_TRACE(type);
        EXPECT_TRUE(rowOf({.type = type, .content = "a caption"}).isNull());
        EXPECT_TRUE(rowOf({.type = type, .media = "/a.png"}).isNull());
    }
    for (const int type : {0, 4, 5, 6, 7, 9, -1, 100, 2'147'483'647}) {
        SCOPED_TRACE(type);
        EXPECT_TRUE(rowOf({.type = type, .content = "text"}).endsWith(",\"text\"\n"));
        EXPECT_TRUE(rowOf({.type = type, .content = "", .media = "/a.png"}).isNull());
    }
}

TEST(ChatCsv, SenderMediaMarksAndDeletionLeaveNoTrace)
{
    EXPECT_EQ(rowOf({.content = "x",
                        .member = "Ben",
                        .media = "/nonexistent",
                        .thumbData = true,
                        .broadcast = true,
                        .drawLike = true,
                        .likeType = 1,
                        .likeCount = 2},
                  Deleted | Locked),
        "\"\",\"Received\",\"x\"\n");
}

TEST(ChatCsv, PartialSelectionLeavesOutUncheckedMessages)
{
    const std::vector<ChatMessage> messages{
        {.checked = false, .content = "a"}, {.content = "b"}, {.checked = false, .content = "c"}};
    const QString start = kChatCells + R"("","Received",")";
    EXPECT_EQ(rowsOf(chatOf(messages, PartlySelected)), QStringList(start + "b\"\n"));
    // Selected as a whole: the messages' own marks are not asked.
    for (const int flags : {0, Deleted | Locked | InCalendarRange}) {
        EXPECT_EQ(rowsOf(chatOf(messages, flags)),
            QStringList({start + "a\"\n", start + "b\"\n", start + "c\"\n"}));
    }
}

TEST(ChatCsv, EachCellDoublesQuotesAndKeepsAllElse)
{
    std::vector<PRWhatsappMsg> messages;
    messages.emplace_back(ChatMessage{.content = "x\"\"y\n%1,%6\r\n\"z"});
    EXPECT_EQ(rowsOf(std::make_unique<PRWhatsappItem>(
                  Record{.values = {"A \"B\" C", "%2\n%3", "a,b"}}, std::move(messages))),
        QStringList("\"A \"\"B\"\" C\",\"%2\n%3\",\"a,b\",\"\",\"Received\","
                    "\"x\"\"\"\"y\n%1,%6\r\n\"\"z\"\n"));
}

TEST(ChatCsv, EmptyCellsKeepTheirQuotes)
{
    std::vector<PRWhatsappMsg> messages;
    messages.emplace_back(ChatMessage{.content = " "});
    EXPECT_EQ(rowsOf(std::make_unique<PRWhatsappItem>(Record{}, std::move(messages))),
        QStringList("\"\",\"\",\"\",\"\",\"Received\",\" \"\n"));
}

TEST(ChatCsv, RowAfterALongerOneIsWhole)
{
    EXPECT_EQ(rowsOf(chatOf({{.content = "a long text that must not shine through"},
                  {.type = 1, .content = "caption"}, {.fromMe = true, .content = "b"}})),
        QStringList({kChatCells + "\"\",\"Received\",\"a long text that must not shine through\"\n",
            kChatCells + "\"\",\"Sent\",\"b\"\n"}));
}

TEST(ChatCsv, MegabyteOfTextComesOutWhole)
{
    EXPECT_EQ(rowOf({.content = QString("12\"45\n78").repeated(131'072)}),
        R"("","Received",")" + QString("12\"\"45\n78").repeated(131'072) + "\"\n");
}

// --- the whole run

class ChatCsvRun : public testing::Test {
protected:
    ChatCsvRun()
    {
        RecordList records;
        records.push_back(chatOf({{.content = "one"}}));
        records.push_back(std::make_unique<PRAbstractItem>(Record{.values = {"stranger"}}));
        records.push_back(chatOf({{.content = "unwanted"}}, 0, false));
        records.push_back(chatOf({{.content = "two"}}));
        data = std::make_unique<PRData>(5, std::move(records));
    }

    static QString row(const QString& content)
    {
        return kChatCells + R"("","Received",")" + content + "\"\n";
    }

    std::unique_ptr<PRData> data;
    const QStringList whole{kLabels, row("one"), row("two")};
};

TEST_F(ChatCsvRun, WritesLabelsThenTheSelectedChats)
{
    TextSink sink;
    EXPECT_TRUE(CWhatsapp2CSVTranslate(data.get()).translate(&sink, "T", nullptr));
    EXPECT_EQ(sink.writes(), whole);
    EXPECT_EQ(sink.otherCalls(), QStringList()) << "records are not opened one by one";
}

TEST_F(ChatCsvRun, WithoutRecordsWritesTheLabelsAlone)
{
    PRData none(5);
    TextSink sink;
    support::RecordingProgress progress;
    EXPECT_TRUE(CWhatsapp2CSVTranslate(&none).translate(&sink, "T", &progress));
    EXPECT_EQ(sink.writes(), QStringList(kLabels));
    EXPECT_EQ(progress.calls(), QStringList());
}

TEST_F(ChatCsvRun, FailsWhenTheLabelsCannotBeWritten)
{
    TextSink sink(1);
    support::RecordingProgress progress;
    EXPECT_FALSE(CWhatsapp2CSVTranslate(data.get()).translate(&sink, "T", &progress));
    EXPECT_EQ(sink.writes(), QStringList(kLabels));
    EXPECT_EQ(progress.calls(), QStringList());
}

TEST_F(ChatCsvRun, GoesOnWhenARowCannotBeWritten)
{
    for (const int failing : {2, 3}) {
        TextSink sink(failing);
        EXPECT_TRUE(CWhatsapp2CSVTranslate(data.get()).translate(&sink, "T", nullptr));
        EXPECT_EQ(sink.writes(), whole);
    }
}

TEST_F(ChatCsvRun, ACancelKeepsWhatWasWrittenAndIsNoFailure)
{
    const int written[] = {1, 2, 2, 3}; // texts, by the step that is the first to be refused
    for (int cancelAt = 1; cancelAt <= 4; ++cancelAt) {
        SCOPED_TRACE(cancelAt);
        TextSink sink;
        support::RecordingProgress progress(cancelAt);
        EXPECT_TRUE(CWhatsapp2CSVTranslate(data.get()).translate(&sink, "T", &progress));
        EXPECT_EQ(sink.writes(), whole.mid(0, written[cancelAt - 1]));
    }
}

TEST_F(ChatCsvRun, StepsOnceForEachSelectedRecord)
{
    TextSink sink;
    support::RecordingProgress progress;
    progress.initRange(90);
    progress.clearCalls();
    CWhatsapp2CSVTranslate(data.get()).translate(&sink, "T", &progress);
    EXPECT_EQ(progress.calls(), QStringList({"range", "step 30", "step 30", "step 30"}));
}

TEST(ChatCsvFile, IsUtf16WithAMarkAndKeepsEveryCodeUnit)
{
    const std::u16string text = u"\u05E9 \U0001F600" + std::u16string(1, char16_t(0xD83D)) + u"|";
    RecordList records;
    records.push_back(chatOf({{.content = QString::fromStdU16String(text)}}));
    PRData data(5, std::move(records));
    const support::TempTree tree;
    CPlainFileExporter exporter(".csv", false);
    exporter.setEncoding("UTF16", true);
    EXPECT_TRUE(exporter.openExport(tree.dir(), "Anna", "Cat"));
    EXPECT_TRUE(CWhatsapp2CSVTranslate(&data).translate(&exporter, "T", nullptr));
    EXPECT_TRUE(exporter.closeExport(true));
    QByteArray expected("\xFF\xFE");
    const QString written =
        kLabels + kChatCells + R"("","Received",")" + QString::fromStdU16String(text) + "\"\n";
    for (const QChar unit : written) {
        expected.append(static_cast<char>(unit.cell())).append(static_cast<char>(unit.row()));
    }
    EXPECT_EQ(tree.read("Cat/Anna's Cat.csv").toHex(' '), expected.toHex(' '));
}

} // namespace
