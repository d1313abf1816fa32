// SPDX-License-Identifier: MIT
// What a user sees of an export and of a dump.
#include "cli/exit_status.h"
#include "record_sets.h"
#include "run_program.h"
#include "support/temp_tree.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <csignal>

namespace {

// A folder with the record set "anna.json"; the program runs in it.
class ExportTranscript : public testing::Test {
protected:
    support::TempTree tree;

    void SetUp() override { tree.write("anna.json", smallRecordSet()); }

    Outcome run(const QStringList& arguments) const { return runProgramIn(tree.path(), arguments); }

    qint64 sizeOf(const QString& path) const { return QFileInfo(tree.path(path)).size(); }

    // The last twenty bytes of a file that is too large to be read as a whole.
    QByteArray endOf(const QString& path) const
    {
        QFile file(tree.path(path));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly) && file.seek(file.size() - 20));
        return file.readAll();
    }
};

constexpr const char* kSummary = "Messages   3  out/Messages\n"
                                 "Calendar  12  out/Calendar\n"
                                 "Exported 15 records in N s\n";
constexpr const char* kMessagesSummary = "Messages  3  out/Messages\nExported 3 records in N s\n";

// The one figure that no test can know.
QByteArray withoutSeconds(const QByteArray& output)
{
    return QString::fromUtf8(output)
        .replace(QRegularExpression("[0-9]+\\.[0-9] s"), "N s")
        .toUtf8();
}

// Lines between the first and the last: how far a small export tells its way is the library's.
QByteArrayList withoutPercentages(const QByteArray& errors)
{
    QByteArrayList lines = errors.split('\n');
    lines.erase(
        std::remove_if(lines.begin(), lines.end(),
            [](const QByteArray& line) { return line.endsWith(" %") && !line.endsWith(" 100 %"); }),
        lines.end());
    return lines;
}

} // namespace

TEST_F(ExportTranscript, TellsWhatIsWritten)
{
    const Outcome exported = run({"export", "anna.json", "out"});
    EXPECT_EQ(withoutSeconds(exported.output), kSummary);
    const QByteArrayList expected{
        "Messages: begun", "Messages: 100 %", "Calendar: begun", "Calendar: 100 %", ""};
    EXPECT_EQ(withoutPercentages(exported.errors), expected);
    EXPECT_EQ(exported.status, AllDone);
    EXPECT_TRUE(tree.exists("out/Messages/Anna's Messages.csv"));
    EXPECT_EQ(tree.read("out/Messages/Anna's Messages.html").count(R"(<div class="main">)"), 3);
}

TEST_F(ExportTranscript, SaysNothingWhenQuiet)
{
    const Outcome exported = run({"export", "anna.json", "out", "--quiet"});
    EXPECT_EQ(exported.output, "");
    EXPECT_EQ(exported.errors, "");
    EXPECT_EQ(exported.status, AllDone);
    EXPECT_TRUE(tree.exists("out/Messages/Anna's Messages.csv"));
}

TEST_F(ExportTranscript, OnlyLeavesOtherCategoriesUnmentioned)
{
    const Outcome exported = run({"export", "--only", "MESSAGES", "anna.json", "out"});
    EXPECT_EQ(withoutSeconds(exported.output), kMessagesSummary);
    EXPECT_FALSE(exported.errors.contains("Calendar"));
    EXPECT_EQ(exported.status, AllDone);
}

TEST_F(ExportTranscript, OnlyOfACategoryWithoutRecordsWritesNothing)
{
    tree.write("empty.json", R"({"recordSet": 1})");
    const Outcome exported = run({"export", "--only", "0", "empty.json", "out"});
    EXPECT_EQ(exported.output, "Nothing to export\n");
    EXPECT_EQ(exported.errors, "Without records: Messages\n");
    EXPECT_EQ(exported.status, AllDone);
    EXPECT_FALSE(tree.exists("out"));
}

TEST_F(ExportTranscript, TakesTheOwnerOfTheCommandLineAsItIs)
{
    struct Row {
        const char* what = nullptr;
        QStringList options;
        QString file;
    };
    const std::array rows{
        Row{"in an argument of its own", {"--owner", "Zoë"}, "Zoë's Messages.csv"},
        Row{"after a sign", {"--owner=Zoë"}, "Zoë's Messages.csv"},
        Row{"the last one counts", {"--owner", "A", "--owner", "B"}, "B's Messages.csv"},
        Row{"blanks stay", {"--owner", " A "}, " A 's Messages.csv"},
        Row{"none at all", {"--owner="}, "'s Messages.csv"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const support::TempTree target;
        const Outcome exported =
            run(QStringList{"export"} + row.options + QStringList{"anna.json", target.path()});
        EXPECT_EQ(exported.status, AllDone);
        EXPECT_TRUE(target.list().contains("Messages/" + row.file))
            << target.list().join(", ").toStdString();
    }
}

TEST_F(ExportTranscript, CleansTheOwnerOfARecordSet)
{
    tree.write("odd.json", smallRecordSet().replace(R"("Anna")", R"("../A\u0007\\B")"));
    EXPECT_EQ(run({"export", "odd.json", "out"}).status, AllDone);
    EXPECT_TRUE(tree.exists("out/Messages/.._A__B's Messages.csv"))
        << tree.list().join(", ").toStdString();
}

TEST_F(ExportTranscript, CallsAnOwnerWithoutANameIPhone)
{
    tree.write("odd.json", smallRecordSet().replace(R"("Anna")", R"(" ")"));
    EXPECT_EQ(run({"export", "odd.json", "out"}).status, AllDone);
    EXPECT_TRUE(tree.exists("out/Messages/iPhone's Messages.csv"));
}

TEST_F(ExportTranscript, WritesToAFullFolderOnlyWhenToldTo)
{
    tree.write("out/mine.txt", "mine");
    const Outcome refused = run({"export", "anna.json", "out"});
    EXPECT_EQ(
        refused.errors, "dataexport: out: is not empty (--merge writes to it nevertheless)\n");
    EXPECT_EQ(refused.output, "");
    EXPECT_EQ(refused.status, NotStarted);
    EXPECT_FALSE(tree.exists("out/Messages"));

    const Outcome merged = run({"export", "--merge", "anna.json", "out"});
    EXPECT_EQ(withoutSeconds(merged.output), kSummary);
    EXPECT_EQ(merged.status, AllDone);
    EXPECT_EQ(tree.read("out/mine.txt"), "mine");
}

TEST_F(ExportTranscript, RefusesATargetThatWouldHoldItsSource)
{
    tree.write("out/Messages/set.json", smallRecordSet());
    const Outcome refused = run({"export", "--merge", "out/Messages/set.json", "out"});
    EXPECT_EQ(refused.errors, "dataexport: out/Messages/set.json: lies in out/Messages, to which "
                              "the export would write\n");
    EXPECT_EQ(refused.status, NotStarted);
    EXPECT_EQ(tree.read("out/Messages/set.json"), smallRecordSet());
}

TEST_F(ExportTranscript, NamesACategoryThatFailed)
{
    tree.write("out/Messages", "a file where the folder should be");
    const Outcome exported = run({"export", "--merge", "--quiet", "anna.json", "out"});
    EXPECT_EQ(exported.output, "");
    EXPECT_EQ(exported.errors, "dataexport: could not be written: Messages\n");
    EXPECT_EQ(exported.status, SomethingFailed);
}

constexpr const char* kTwoContacts = R"({"recordSet": 1, "owner": "Anna", "sets": [
    {"dataType": 2, "records": [
        {"kind": "contact", "values": ["Mia"], "firstName": "Mia"},
        {"kind": "contact", "values": ["Ben"], "firstName": "Ben", "properties": [
            {"type": 13, "entry": {"service": "SKYPE", "username": "ben"}}]}]}]})";

TEST_F(ExportTranscript, WritesContactsInBothForms)
{
    tree.write("contacts.json", kTwoContacts);
    const QString csv = "Contacts/CSV/Anna's Contacts in common use.csv";
    const Outcome general = run({"export", "contacts.json", "out"});
    EXPECT_EQ(
        withoutSeconds(general.output), "Contacts  2  out/Contacts\nExported 2 records in N s\n");
    EXPECT_EQ(general.status, AllDone);
    EXPECT_TRUE(tree.read("out/" + csv).contains(R"("Skype","ben",)"));
    EXPECT_EQ(run({"export", "--tavero", "contacts.json", "tavero"}).status, AllDone);
    EXPECT_TRUE(tree.read("tavero/" + csv).contains(R"(,"skype","ben")"));
    EXPECT_TRUE(tree.read("tavero/Contacts/VCF/Ben.vcf").contains("X-IM"));
}

// The files for other address books are there all the same.
TEST_F(ExportTranscript, NamesContactsThatFailed)
{
    tree.write("contacts.json", kTwoContacts);
    const QString owner(228, 'x'); // too long for the name of the CSV file alone
    const Outcome exported = run({"export", "--quiet", "--owner", owner, "contacts.json", "out"});
    EXPECT_EQ(exported.errors, "dataexport: could not be written: Contacts\n");
    EXPECT_EQ(exported.status, SomethingFailed);
}

// A file whose first bytes say HEIC, and no more.
TEST_F(ExportTranscript, NamesPicturesThatAreNotConverted)
{
    tree.write("half.heic", "....ftypheic");
    tree.write("photos.json", R"({"recordSet": 1, "sets": [{"dataType": 21, "records": [
        {"values": ["IMG_1.HEIC"], "path": "half.heic", "parent": "2024"},
        {"values": ["IMG_2.HEIC"], "path": "half.heic"},
        {"values": ["a.txt"], "data": {"text": "no picture"}}]}]})");
    const QByteArray summary = "Photos  3  out/Photos\nExported 3 records in N s\n";
    const Outcome plain = run({"export", "photos.json", "out"});
    EXPECT_EQ(withoutSeconds(plain.output), summary);

    const Outcome converted = run({"export", "--merge", "--heic-to-jpg", "photos.json", "out"});
    EXPECT_EQ(withoutSeconds(converted.output),
        summary
            + "Could not be written as JPEG, and are copied as they are:\n"
              "  out/Photos/2024/IMG_1 (2).HEIC\n"
              "  out/Photos/IMG_2 (2).HEIC\n");
    EXPECT_EQ(converted.status, AllDone);
    EXPECT_EQ(tree.read("out/Photos/IMG_2 (2).HEIC"), "....ftypheic");
    EXPECT_EQ(run({"export", "--quiet", "--heic-to-jpg", "photos.json", "quiet"}).output, "");
}

TEST_F(ExportTranscript, LogsFilesThatCannotBeCopiedAndTheirNumberWhenVerbose)
{
    tree.write("photos.json", R"({"recordSet": 1, "sets": [{"dataType": 21, "records": [
        {"values": ["a.txt"], "path": "none"}]}]})");
    const QByteArray number = "dataexport.FileExport: 1 files to export\n";
    const Outcome normal = run({"export", "photos.json", "out"});
    EXPECT_TRUE(normal.errors.contains("exportData failed")) << normal.errors.toStdString();
    EXPECT_FALSE(normal.errors.contains(number)) << normal.errors.toStdString();
    const Outcome verbose = run({"export", "--verbose", "photos.json", "more"});
    EXPECT_TRUE(verbose.errors.contains(number)) << verbose.errors.toStdString();
}

TEST_F(ExportTranscript, DumpWritesARecordSetThatIsASource)
{
    const Outcome dumped = run({"dump", "anna.json", "copy.json"});
    EXPECT_EQ(dumped.output, "Wrote 15 records to copy.json\n");
    EXPECT_TRUE(dumped.errors.startsWith("Records: begun\n"));
    EXPECT_TRUE(dumped.errors.endsWith("Records: 100 %\n"));
    EXPECT_EQ(dumped.status, AllDone);
    EXPECT_EQ(run({"list", "copy.json"}).output, run({"list", "anna.json"}).output);
}

TEST_F(ExportTranscript, DumpThatCannotBeWrittenFails)
{
    const Outcome dumped = run({"dump", "--quiet", "anna.json", "none/copy.json"});
    EXPECT_EQ(dumped.output, "");
    EXPECT_TRUE(dumped.errors.contains("none/copy.json")) << dumped.errors.toStdString();
    EXPECT_EQ(dumped.status, SomethingFailed);
}

TEST_F(ExportTranscript, AnInterruptKeepsWhatIsWritten)
{
    tree.write("large.json", largeRecordSet(4'000));
    ASSERT_EQ(run({"export", "--quiet", "large.json", "whole"}).status, AllDone);
    const QString page = "/Messages/iPhone's Messages.html";
    const QString csv = "/Messages/iPhone's Messages.csv";
    struct {
        int signal = 0;
        const char* cue = nullptr; // the first half is the page's, the second the CSV's
        bool pageIsWhole = false;
        bool hasCsv = false;
    } const rows[] = {
        {SIGINT, "Messages: 20 %", false, false},
        {SIGTERM, "Messages: 60 %", true, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.cue);
        const QString target = QString("part%1").arg(row.signal);
        const Outcome cancelled =
            interruptProgramIn(tree.path(), {"export", "large.json", target}, row.cue, row.signal);
        EXPECT_EQ(cancelled.output, "");
        EXPECT_TRUE(cancelled.errors.endsWith(
            "dataexport: cancelled; what was written is kept in " + target.toUtf8() + "\n"))
            << cancelled.errors.toStdString();
        EXPECT_EQ(cancelled.status, Cancelled);
        EXPECT_EQ(sizeOf(target + page) == sizeOf("whole" + page), row.pageIsWhole);
        EXPECT_EQ(endOf(target + page), "</div></body></html>");
        ASSERT_EQ(tree.exists(target + csv), row.hasCsv);
        if (row.hasCsv) {
            EXPECT_LT(sizeOf(target + csv), sizeOf("whole" + csv));
        }
    }
}

TEST_F(ExportTranscript, AnInterruptedDumpLeavesNoFile)
{
    tree.write("large.json", largeRecordSet(12'000));
    const Outcome cancelled = interruptProgramIn(
        tree.path(), {"dump", "large.json", "copy.json"}, "Records: begun", SIGINT);
    EXPECT_EQ(cancelled.output, "");
    EXPECT_TRUE(cancelled.errors.endsWith("dataexport: cancelled; copy.json was not written\n"));
    EXPECT_EQ(cancelled.status, Cancelled);
    EXPECT_EQ(tree.list(), (QStringList{"anna.json", "large.json"}));
}

TEST_F(ExportTranscript, ATerminalShowsABarThatGoesAway)
{
    const Outcome shown =
        runOnTerminal(tree.path(), {"export", "--only", "0", "anna.json", "out"}, 50);
    EXPECT_EQ(shown.status, AllDone);
    QByteArrayList drawn = shown.output.split('\r');
    ASSERT_GE(drawn.size(), 4) << shown.output.toStdString();
    EXPECT_EQ(drawn.takeFirst(), "");
    const QByteArray bar = drawn.takeFirst();
    EXPECT_TRUE(bar.startsWith("Messages  [")) << bar.toStdString();
    EXPECT_TRUE(bar.endsWith(" %")) << bar.toStdString();
    EXPECT_EQ(bar.size(), 49);
    EXPECT_EQ(drawn.takeFirst(), QByteArray(49, ' '));
    // The terminal writes a return before each line feed.
    EXPECT_EQ(withoutSeconds(drawn.join("")), kMessagesSummary);
}
