// SPDX-License-Identifier: MIT
#include "model/PRData.h"
#include "support/recording_progress.h"
#include "translators/contact/text_sink.h"
#include "translators/message/CSMS2CSVTranslate.h"
#include "translators/message/sms_builder.h"

#include <QCoreApplication>
#include <QTranslator>

#include <gtest/gtest.h>

namespace {

constexpr auto kLabels = "Name,Phone,Email,Date,Type,Content\n";

// Every text of the context becomes <text "in" quotes>.
class Translation final : public QTranslator {
public:
    Translation() { QCoreApplication::installTranslator(this); }

    QString translate(const char* context, const char* source, const char* /*disambiguation*/,
        int /*n*/) const override
    {
        return QLatin1String(context) == QLatin1String("DataExport")
                   ? QStringLiteral("<%1 \"in\" quotes>").arg(QLatin1String(source))
                   : QString();
    }
    bool isEmpty() const override { return false; }
};

QStringList rowsOf(std::unique_ptr<PRSMSItem> conversation)
{
    PRSMSData data;
    CSMS2CSVTranslate translator(&data);
    TextSink sink;
    EXPECT_TRUE(translator.writeItem(&sink, conversation.get()));
    EXPECT_EQ(sink.otherCalls(), QStringList());
    return sink.writes();
}

QString rowOf(SmsMessage message)
{
    std::vector<PRSMSChat> messages;
    messages.emplace_back(std::move(message));
    const QStringList rows = rowsOf(conversationOf(std::move(messages)));
    EXPECT_LE(rows.size(), 1);
    return rows.value(0);
}

// The sixth cell without its quotes; a null string where there is no row.
QString contentOf(SmsMessage message)
{
    message.date = halfPastTwo();
    const QString row = rowOf(std::move(message));
    const QString start =
        R"("Mia","+49 171 5550101","mia@example.org","2024-05-01 14:30","Received",")";
    if (row.isEmpty()) {
        return {};
    }
    EXPECT_TRUE(row.startsWith(start) && row.endsWith("\"\n")) << row.toStdString();
    return row.mid(start.size()).chopped(2);
}

TEST(SmsCsv, FirstRowIsTheLabelsWithoutQuotes)
{
    PRSMSData data;
    CSMS2CSVTranslate translator(&data);
    TextSink sink;
    EXPECT_TRUE(translator.prepare(&sink, "A title that is of no use", nullptr));
    EXPECT_EQ(sink.writes(), QStringList(kLabels));
}

TEST(SmsCsv, HeaderAndFooterWriteNothing)
{
    PRSMSData data;
    CSMS2CSVTranslate translator(&data);
    TextSink sink(1);
    EXPECT_TRUE(translator.writeHeader(&sink));
    EXPECT_TRUE(translator.writeFooter(&sink));
    EXPECT_EQ(sink.writes(), QStringList());
}

TEST(SmsCsv, LabelsAreTranslatedBareAndTypesTranslatedInQuotes)
{
    const Translation translation;
    PRSMSData data;
    CSMS2CSVTranslate translator(&data);
    TextSink sink;
    translator.prepare(&sink, {}, nullptr);
    EXPECT_EQ(sink.writes().value(0).toStdString(),
        "<Name \"in\" quotes>,<Phone \"in\" quotes>,<Email \"in\" quotes>,<Date \"in\" quotes>,"
        "<Type \"in\" quotes>,<Content \"in\" quotes>\n");
    EXPECT_EQ(rowOf({.content = "Hi"}).toStdString(),
        R"("Mia","+49 171 5550101","mia@example.org","","<Received ""in"" quotes>","Hi")"
        "\n");
}

TEST(SmsCsv, RowHasNamePhoneEmailDateTypeContent)
{
    EXPECT_EQ(rowOf({.date = halfPastTwo(), .content = "Hello"}).toStdString(),
        R"("Mia","+49 171 5550101","mia@example.org","2024-05-01 14:30","Received","Hello")"
        "\n");
}

TEST(SmsCsv, EmptyCellsKeepTheirQuotes)
{
    std::vector<PRSMSChat> messages;
    messages.emplace_back(SmsMessage{.content = "x"});
    EXPECT_EQ(rowsOf(std::make_unique<PRSMSItem>(
                  Record{}, SmsConversation{.chats = std::move(messages)})),
        QStringList("\"\",\"\",\"\",\"\",\"Received\",\"x\"\n"));
}

TEST(SmsCsv, TypeAsksForCompleteSendingFirst)
{
    struct {
        const char* what = "";
        bool fromMe = false;
        bool sentDone = true;
        const char* type = "";
    } const rows[] = {
        {"received", false, true, "\"Received\""},
        {"sent", true, true, "\"Sent\""},
        {"sending did not complete", true, false, "\"Unknown\""},
        {"incomplete, though received", false, false, "\"Unknown\""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const QString written =
            rowOf({.fromMe = row.fromMe, .sentDone = row.sentDone, .content = "x"});
        EXPECT_EQ(written.section(',', 4, 4).toStdString(), row.type);
    }
}

TEST(SmsCsv, KindOfServiceAndDeletionLeaveNoMark)
{
    std::vector<PRSMSChat> messages;
    messages.emplace_back(
        SmsMessage{.normalSMS = false, .date = halfPastTwo(), .content = "x", .addr = "+1 555"});
    EXPECT_EQ(rowsOf(conversationOf(std::move(messages), Deleted | Locked)),
        QStringList("\"Mia\",\"+49 171 5550101\",\"mia@example.org\",\"2024-05-01 14:30\","
                    "\"Received\",\"x\"\n"));
}

TEST(SmsCsv, ContentJoinsWhatIsThereByOneBlank)
{
    const PRSMSPiece text = textPiece("piece");
    const PRSMSPiece other = textPiece("other");
    struct {
        const char* what = "";
        SmsMessage message;
        const char* content = nullptr;
    } const rows[] = {
        {"content alone", {.content = "body"}, "body"},
        {"subject alone", {.subject = "subject"}, "subject"},
        {"piece alone", {.pieces = {text}}, "piece"},
        {"subject, content", {.subject = "subject", .content = "body"}, "subject body"},
        {"subject, piece", {.subject = "subject", .pieces = {text}}, "subject piece"},
        {"all, pieces in order",
            {.subject = "subject", .content = "body", .pieces = {other, text, other}},
            "subject body other piece other"},
        {"an empty piece adds no blank", {.content = "body", .pieces = {textPiece(""), text}},
            "body piece"},
        {"blanks of the texts stay", {.subject = " s ", .content = " "}, " s   "},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(contentOf(row.message).toStdString(), row.content);
    }
}

TEST(SmsCsv, PieceCountsWhenItsTypeHoldsTextAndItIsNoLocation)
{
    struct {
        const char* what = "";
        SmsPiece piece;
        const char* content = nullptr;
    } const rows[] = {
        {"plain", {.type = "text/plain", .data = "a"}, "a"},
        {"card", {.type = "text/vcard", .data = "a"}, "a"},
        {"text at the end", {.type = "application/x-text", .data = "a"}, "a"},
        {"text inside", {.type = "x-richtext/y", .data = "a"}, "a"},
        {"case counts", {.type = "TEXT/PLAIN", .data = "a"}, nullptr},
        {"picture", {.type = "image/jpeg", .data = "a"}, nullptr},
        {"video", {.type = "video/mp4", .data = "a"}, nullptr},
        {"sound", {.type = "audio/amr", .data = "a"}, nullptr},
        {"no type", {.type = "", .data = "a"}, nullptr},
        {"location", {.type = "text/plain", .location = true, .data = "a"}, nullptr},
        {"UTF-8", {.type = "text/plain", .data = "\xC3\xBC \xF0\x9F\x98\x80"},
            "\xC3\xBC \xF0\x9F\x98\x80"},
        {"file and name of the piece are not read",
            {.type = "text/plain", .path = "/p", .preview = "/q", .info = "i"}, nullptr},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const QString content = contentOf({.pieces = {PRSMSPiece(row.piece)}});
        EXPECT_EQ(content.isNull(), row.content == nullptr);
        EXPECT_EQ(content, QString::fromUtf8(row.content));
    }
}

TEST(SmsCsv, BytesThatAreNoUtf8BecomeReplacementCharacters)
{
    EXPECT_EQ(contentOf({.pieces = {textPiece("a\xFFz")}}), QString::fromUtf8("a\xEF\xBF\xBDz"));
}

TEST(SmsCsv, EventLineHasItsTextAlone)
{
    for (const int itemType : {1, 2, 6, -1}) {
        SCOPED_TRACE(itemType);
        EXPECT_EQ(contentOf({.itemType = itemType,
                      .event = "Ben left",
                      .subject = "s",
                      .content = "c",
                      .pieces = {textPiece("p")}}),
            "Ben left");
    }
}

TEST(SmsCsv, EventTextOfAMessageWithContentIsNotRead)
{
    EXPECT_EQ(contentOf({.itemType = 0, .event = "Ben left", .content = "c"}), "c");
}

TEST(SmsCsv, MessageWithoutTextHasNoRow)
{
    const PRSMSPiece picture({.type = "image/png", .data = "bytes"});
    struct {
        const char* what = "";
        SmsMessage message;
    } const rows[] = {
        {"nothing", {}},
        {"a picture alone", {.pieces = {picture}}},
        {"an event without text, whatever else it has",
            {.itemType = 1, .subject = "s", .content = "c", .pieces = {textPiece("p")}}},
        {"an empty text piece", {.pieces = {textPiece("")}}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        std::vector<PRSMSChat> messages;
        messages.emplace_back(SmsMessage(row.message));
        EXPECT_EQ(rowsOf(conversationOf(std::move(messages))), QStringList());
    }
}

TEST(SmsCsv, RowAfterOneWithoutTextIsWhole)
{
    std::vector<PRSMSChat> messages;
    messages.emplace_back(SmsMessage{.content = "a long text that must not shine through"});
    messages.emplace_back(SmsMessage{.date = halfPastTwo()});
    messages.emplace_back(SmsMessage{.fromMe = true, .content = "b"});
    EXPECT_EQ(rowsOf(conversationOf(std::move(messages))),
        QStringList({"\"Mia\",\"+49 171 5550101\",\"mia@example.org\",\"\",\"Received\","
                     "\"a long text that must not shine through\"\n",
            "\"Mia\",\"+49 171 5550101\",\"mia@example.org\",\"\",\"Sent\",\"b\"\n"}));
}

TEST(SmsCsv, PartialSelectionLeavesOutUncheckedMessages)
{
    const auto messages = [] {
        std::vector<PRSMSChat> made;
        made.emplace_back(SmsMessage{.checked = false, .content = "a"});
        made.emplace_back(SmsMessage{.checked = true, .content = "b"});
        made.emplace_back(SmsMessage{.checked = false, .content = "c"});
        return made;
    };
    const auto contents = [](const QStringList& rows) {
        QStringList cells;
        for (const QString& row : rows) {
            cells.append(row.section(',', 5).trimmed());
        }
        return cells.join(' ').toStdString();
    };
    EXPECT_EQ(contents(rowsOf(conversationOf(messages(), PartlySelected))), "\"b\"");
    // Selected as a whole: the messages' own marks are not asked.
    EXPECT_EQ(contents(rowsOf(conversationOf(messages()))), "\"a\" \"b\" \"c\"");
    EXPECT_EQ(contents(rowsOf(conversationOf(messages(), Deleted | Locked | InCalendarRange))),
        "\"a\" \"b\" \"c\"");
}

TEST(SmsCsv, ConversationWithoutMessagesHasNoRow)
{
    EXPECT_EQ(rowsOf(conversationOf({})), QStringList());
}

TEST(SmsCsv, EachCellDoublesQuotesAndKeepsAllElse)
{
    std::vector<PRSMSChat> messages;
    messages.emplace_back(SmsMessage{.subject = "\"", .content = "x\"\"y\n%1,%6\r\n\"z"});
    EXPECT_EQ(rowsOf(std::make_unique<PRSMSItem>(Record{.values = {"A \"B\" C", "%2\n%3", "a,b"}},
                  SmsConversation{.chats = std::move(messages)})),
        QStringList("\"A \"\"B\"\" C\",\"%2\n%3\",\"a,b\",\"\",\"Received\","
                    "\"\"\" x\"\"\"\"y\n%1,%6\r\n\"\"z\"\n"));
}

TEST(SmsCsv, MegabyteOfTextComesOutWhole)
{
    const QString text = QString("12\"45\n78").repeated(131'072);
    EXPECT_EQ(contentOf({.content = text}), QString("12\"\"45\n78").repeated(131'072));
}

// --- the whole run

std::unique_ptr<PRSMSItem> saying(const QString& text, bool selected = true)
{
    std::vector<PRSMSChat> messages;
    messages.emplace_back(SmsMessage{.content = text});
    auto item = conversationOf(std::move(messages));
    item->setSelected(selected);
    return item;
}

PRSMSData threeSelected()
{
    RecordList records;
    records.push_back(saying("one"));
    records.push_back(std::make_unique<PRAbstractItem>(Record{.values = {"stranger"}}));
    records.push_back(saying("unwanted", false));
    records.push_back(saying("two"));
    return PRSMSData(std::move(records));
}

QString row(const QString& content)
{
    return R"("Mia","+49 171 5550101","mia@example.org","","Received",")" + content + "\"\n";
}

TEST(SmsCsvRun, WritesLabelsThenTheSelectedConversations)
{
    const auto data = threeSelected;
    PRSMSData set = data();
    TextSink sink;
    EXPECT_TRUE(CSMS2CSVTranslate(&set).translate(&sink, "T", nullptr));
    EXPECT_EQ(sink.writes(), QStringList({kLabels, row("one"), row("two")}));
}

TEST(SmsCsvRun, NeitherBeginsNorEndsItems)
{
    PRSMSData set = threeSelected();
    TextSink sink;
    CSMS2CSVTranslate(&set).translate(&sink, "T", nullptr);
    EXPECT_EQ(sink.otherCalls(), QStringList());
}

TEST(SmsCsvRun, WithoutRecordsWritesTheLabelsAlone)
{
    PRSMSData set;
    TextSink sink;
    support::RecordingProgress progress;
    EXPECT_TRUE(CSMS2CSVTranslate(&set).translate(&sink, "T", &progress));
    EXPECT_EQ(sink.writes(), QStringList(kLabels));
    EXPECT_EQ(progress.calls(), QStringList());
}

TEST(SmsCsvRun, FailsWhenTheLabelsCannotBeWritten)
{
    PRSMSData set = threeSelected();
    TextSink sink(1);
    support::RecordingProgress progress;
    EXPECT_FALSE(CSMS2CSVTranslate(&set).translate(&sink, "T", &progress));
    EXPECT_EQ(sink.writes(), QStringList(kLabels));
    EXPECT_EQ(progress.calls(), QStringList());
}

TEST(SmsCsvRun, GoesOnWhenARowCannotBeWritten)
{
    PRSMSData set = threeSelected();
    TextSink sink(2);
    EXPECT_TRUE(CSMS2CSVTranslate(&set).translate(&sink, "T", nullptr));
    EXPECT_EQ(sink.writes(), QStringList({kLabels, row("one"), row("two")}));
}

TEST(SmsCsvRun, StepsOnceForEachSelectedRecord)
{
    PRSMSData set = threeSelected();
    TextSink sink;
    support::RecordingProgress progress;
    progress.initRange(100);
    progress.clearCalls();
    CSMS2CSVTranslate(&set).translate(&sink, "T", &progress);
    EXPECT_EQ(
        progress.calls(), QStringList({"range", "step 33.3333", "step 33.3333", "step 33.3333"}));
}

TEST(SmsCsvRun, ACancelKeepsWhatWasWrittenAndIsNoFailure)
{
    const QStringList whole{kLabels, row("one"), row("two")};
    const int written[] = {1, 2, 2, 3}; // texts, by the step that is the first to be refused
    for (int cancelAt = 1; cancelAt <= 4; ++cancelAt) {
        SCOPED_TRACE(cancelAt);
        PRSMSData set = threeSelected();
        TextSink sink;
        support::RecordingProgress progress(cancelAt);
        EXPECT_TRUE(CSMS2CSVTranslate(&set).translate(&sink, "T", &progress));
        EXPECT_EQ(sink.writes(), whole.mid(0, written[cancelAt - 1]));
    }
}

} // namespace
