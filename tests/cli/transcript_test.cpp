// SPDX-License-Identifier: MIT
// What a user sees of the built program: output, errors and exit status.
#include "cli/exit_status.h"
#include "record_sets.h"
#include "run_program.h"
#include "support/temp_tree.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <array>

namespace {

// A folder with the record set "anna.json"; the program runs in it.
class Transcript : public testing::Test {
protected:
    support::TempTree tree;

    void SetUp() override { tree.write("anna.json", smallRecordSet()); }

    Outcome run(const QStringList& arguments) const { return runProgramIn(tree.path(), arguments); }
};

struct Row {
    const char* what;
    QStringList arguments;
    QByteArray errors;
};

const QByteArray kStatusHelp =
    "Exit status: 0 all done, 1 something could not be written, 2 wrong usage or\n"
    "unreadable source, 130 cancelled.\n";

} // namespace

TEST_F(Transcript, HelpNamesTheCommands)
{
    const Outcome help = run({"--help"});
    EXPECT_EQ(help.output, "Turns the backup of an iPhone into files that people can read.\n"
                           "Usage: dataexport [OPTIONS] COMMAND\n"
                           "\n"
                           "Options:\n"
                           "  --help                  Show this help\n"
                           "  --version               Show the version\n"
                           "\n"
                           "Commands:\n"
                           "  list                    Show what a source holds\n"
                           "  export                  Write readable files of a source\n"
                           "  dump                    Write all records as a record set\n"
                           "\n" + kStatusHelp);
    EXPECT_EQ(help.errors, "");
    EXPECT_EQ(help.status, AllDone);
}

TEST_F(Transcript, HelpOfExportNamesItsOptions)
{
    const Outcome help = run({"export", "--help"});
    EXPECT_EQ(help.output,
        "Write readable files of a source\n"
        "Usage: dataexport export [OPTIONS] SOURCE TARGET\n"
        "\n"
        "Positionals:\n"
        "  SOURCE                  A backup folder, a record set or a database file\n"
        "  TARGET                  The folder to write to: new, or empty\n"
        "\n"
        "Options:\n"
        "  --help                  Show this help\n"
        "  --owner NAME            Whose data it is, in titles and file names\n"
        "  --only LIST             These categories alone: names or numbers, with commas\n"
        "  --heic-to-jpg           Write HEIC pictures as JPEG too\n"
        "  --tavero                Write contacts in the form for Tavero\n"
        "  --resources DIR         The folder with the images of the pages\n"
        "  --merge                 Write to a folder that is not empty\n"
        "  --verbose               Show what the library logs as well\n"
        "  --quiet                 Show nothing but errors\n"
        "  --language CODE         The language of labels: de, fr, zh_TW ...\n"
        "\n" + kStatusHelp);
    EXPECT_EQ(help.status, AllDone);
}

TEST_F(Transcript, HelpOfListAndDumpNamesTheirArguments)
{
    EXPECT_TRUE(run({"list", "--help"})
                    .output.startsWith("Show what a source holds\n"
                                       "Usage: dataexport list [OPTIONS] SOURCE\n"));
    EXPECT_TRUE(run({"dump", "--help"})
                    .output.startsWith("Write all records as a record set\n"
                                       "Usage: dataexport dump [OPTIONS] SOURCE FILE\n"));
}

TEST_F(Transcript, VersionIsOneLine)
{
    const Outcome version = run({"--version"});
    EXPECT_TRUE(QRegularExpression("^dataexport [0-9]+\\.[0-9]+\\.[0-9]+\n$")
                    .match(QString::fromUtf8(version.output))
                    .hasMatch());
    EXPECT_EQ(version.status, AllDone);
}

TEST_F(Transcript, WrongUsageIsToldAndNothingIsDone)
{
    const std::array rows{
        Row{"no command", {},
            "dataexport: a command is wanted: list, export or dump (--help tells more)\n"},
        Row{"no such command", {"import"},
            "dataexport: a command is wanted: list, export or dump (--help tells more)\n"},
        Row{"no source", {"list"}, "dataexport: SOURCE is required (--help tells more)\n"},
        Row{"no target", {"export", "anna.json"},
            "dataexport: TARGET is required (--help tells more)\n"},
        Row{"an argument too many", {"list", "anna.json", "b"},
            "dataexport: The following argument was not expected: b (--help tells more)\n"},
        Row{"no such option", {"export", "anna.json", "out", "--fast"},
            "dataexport: The following argument was not expected: --fast (--help tells more)\n"},
        Row{"loud and quiet", {"export", "anna.json", "out", "--quiet", "--verbose"},
            "dataexport: --verbose excludes --quiet (--help tells more)\n"},
        Row{"no such source", {"export", "none.json", "out"},
            "dataexport: none.json: no such file or folder\n"},
        Row{"no such resources", {"export", "anna.json", "out", "--resources", "none"},
            "dataexport: --resources: none: no such folder\n"},
        Row{"resources that are a file", {"export", "anna.json", "out", "--resources=anna.json"},
            "dataexport: --resources: anna.json: no such folder\n"},
        Row{"a target that is a file", {"export", "anna.json", "anna.json"},
            "dataexport: anna.json: is not a folder\n"},
        Row{"an empty target", {"export", "anna.json", ""}, "dataexport: TARGET is empty\n"},
        Row{"an unknown language", {"list", "anna.json", "--language", "tlh"},
            "dataexport: --language: no language is called \"tlh\"; there are: ar, de, en, es, fr, "
            "it, ja, ko, pt, zh_CN, zh_TW\n"},
        Row{"no language at all", {"list", "anna.json", "--language="},
            "dataexport: --language: no language is called \"\"; there are: ar, de, en, es, fr, "
            "it, ja, ko, pt, zh_CN, zh_TW\n"},
        Row{"a dump over a file", {"dump", "anna.json", "anna.json"},
            "dataexport: anna.json: exists, and is not overwritten\n"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const Outcome wrong = run(row.arguments);
        EXPECT_EQ(wrong.errors, row.errors);
        EXPECT_EQ(wrong.output, "");
        EXPECT_EQ(wrong.status, NotStarted);
    }
    EXPECT_EQ(tree.list(), QStringList{"anna.json"});
    EXPECT_EQ(tree.read("anna.json"), smallRecordSet());
}

TEST_F(Transcript, AnUnknownCategoryIsAnsweredWithAllOfThem)
{
    const Outcome wrong = run({"export", "anna.json", "out", "--only", "Mesages"});
    EXPECT_TRUE(wrong.errors.startsWith("dataexport: --only: no category is called \"Mesages\"; "
                                        "there are:\n   0  Messages\n"));
    EXPECT_EQ(wrong.errors.count('\n'), 37);
    EXPECT_EQ(wrong.status, NotStarted);
}

TEST_F(Transcript, AFileThatIsNoRecordSetIsToldByItsName)
{
    tree.write("odd.json", R"({"recordSet": 1, "oner": "Anna"})");
    const std::array commands{QStringList{"list", "odd.json"},
        QStringList{"export", "odd.json", "out"}, QStringList{"dump", "odd.json", "out"}};
    for (const QStringList& command : commands) {
        SCOPED_TRACE(command.first().toStdString());
        const Outcome wrong = run(command);
        EXPECT_TRUE(wrong.errors.startsWith("dataexport: ")) << wrong.errors.toStdString();
        EXPECT_TRUE(wrong.errors.contains("odd.json"));
        EXPECT_TRUE(wrong.errors.contains("oner"));
        EXPECT_EQ(wrong.output, "");
        EXPECT_EQ(wrong.status, NotStarted);
        EXPECT_FALSE(tree.exists("out"));
    }
}

TEST_F(Transcript, ADatabaseIsToldByItsFirstBytesWhateverItsName)
{
    tree.write("odd.json", QByteArray("SQLite format 3\0", 16) + QByteArray(84, 'x'));
    const Outcome wrong = run({"list", "odd.json"});
    EXPECT_FALSE(wrong.errors.contains("JSON")) << wrong.errors.toStdString();
    EXPECT_EQ(wrong.status, NotStarted);
}

TEST_F(Transcript, AFolderThatIsNoBackupCannotBeRead)
{
    tree.makeDir("folder");
    const Outcome wrong = run({"list", "folder"});
    EXPECT_TRUE(wrong.errors.startsWith("dataexport: ")) << wrong.errors.toStdString();
    EXPECT_EQ(wrong.status, NotStarted);
}

TEST_F(Transcript, ListCountsDeletedRecordsApart)
{
    const Outcome list = run({"list", "anna.json"});
    EXPECT_EQ(list.output, "Owner: Anna\n"
                           "\n"
                           "No.  Category  Records  Deleted\n"
                           "  0  Messages        2        1\n"
                           " 29  Calendar       12        0\n");
    EXPECT_EQ(list.errors, "");
    EXPECT_EQ(list.status, AllDone);
}

TEST_F(Transcript, ListOfNothingSaysSo)
{
    tree.write("empty.json", R"({"recordSet": 1, "sets": [{"dataType": 0}]})");
    const Outcome list = run({"list", "empty.json"});
    EXPECT_EQ(list.output, "No records.\n");
    EXPECT_EQ(list.status, AllDone);
}
