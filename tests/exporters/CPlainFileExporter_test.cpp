// SPDX-License-Identifier: MIT
#include "exporters/CPlainFileExporter.h"
#include "support/temp_tree.h"

#include <QCoreApplication>
#include <QImage>
#include <QString>
#include <QStringList>
#include <QTranslator>

#include <gtest/gtest.h>

using support::TempTree;

namespace {

/// Turns "in common use" into German, and everything else into something that no file may hold.
class German : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(
        const char* context, const char* text, const char* /*hint*/, int /*count*/) const override
    {
        const bool known = QString(context) == "DataExport" && QString(text) == "in common use";
        return known ? "häufig: oft" : "translated";
    }
};

// One file for each record, opened in <tree>/Contacts.
bool open(CPlainFileExporter& exporter, const TempTree& tree)
{
    return exporter.openExport(tree.dir(), "Anna", "Contacts");
}

void writeItem(CPlainFileExporter& exporter, const QString& name, const QString& text)
{
    EXPECT_TRUE(exporter.beginItem(name));
    EXPECT_TRUE(exporter.write(text));
    EXPECT_TRUE(exporter.endItem());
}

} // namespace

TEST(CPlainFileExporter, OneFileIsNamedForOwnerAndCategory)
{
    const TempTree tree;
    CPlainFileExporter exporter(".csv", false);
    EXPECT_TRUE(open(exporter, tree));
    EXPECT_TRUE(exporter.closeExport(true));
    EXPECT_EQ(tree.list(), QStringList({"Contacts/", "Contacts/Anna's Contacts.csv"}));
}

TEST(CPlainFileExporter, TheCommonFileAddsItsTranslatedWords)
{
    const TempTree tree;
    CPlainFileExporter plain(".vcf", false);
    EXPECT_TRUE(plain.openCommonExport(tree.dir(), "Anna", "Contacts", "VCF"));
    EXPECT_TRUE(plain.closeExport(true));
    EXPECT_TRUE(tree.exists("Contacts/VCF/Anna's Contacts in common use.vcf"));

    German german;
    QCoreApplication::installTranslator(&german);
    CPlainFileExporter translated(".vcf", false);
    EXPECT_TRUE(translated.openCommonExport(tree.dir(), "Anna", "Contacts", "VCF"));
    CPlainFileExporter untranslated(".vcf", false);
    EXPECT_TRUE(untranslated.openExport(tree.dir(), "Anna", "Contacts", "VCF"));
    QCoreApplication::removeTranslator(&german);
    EXPECT_TRUE(tree.exists(QString::fromUtf8("Contacts/VCF/Anna's Contacts häufig_ oft.vcf")));
    EXPECT_TRUE(tree.exists("Contacts/VCF/Anna's Contacts.vcf"));
}

TEST(CPlainFileExporter, OneFileGetsAllTextOfAllRecordsAsItIs)
{
    const TempTree tree;
    CPlainFileExporter exporter(".csv", false);
    exporter.setEncoding("UTF-8", false);
    EXPECT_TRUE(open(exporter, tree));
    EXPECT_TRUE(exporter.write("head\n"));
    writeItem(exporter, "one", "a\r\n");
    writeItem(exporter, "two", "b\n\r");
    EXPECT_TRUE(exporter.closeExport(true));
    EXPECT_EQ(tree.read("Contacts/Anna's Contacts.csv"), "head\na\r\nb\n\r");
    EXPECT_EQ(tree.list().size(), 2);
}

TEST(CPlainFileExporter, WriteLeavesTheResultUntouched)
{
    const TempTree tree;
    CPlainFileExporter exporter(".csv", false);
    EXPECT_TRUE(open(exporter, tree));
    QString result = "before";
    EXPECT_TRUE(exporter.write("text", result));
    EXPECT_EQ(result, "before");
}

TEST(CPlainFileExporter, TakesDependentFilesWithoutWritingThem)
{
    const TempTree tree;
    const QString source = tree.write("source", "x");
    CPlainFileExporter exporter(".csv", false);
    EXPECT_TRUE(open(exporter, tree));
    const QStringList before = tree.list();
    EXPECT_TRUE(exporter.exportData("bytes", "a"));
    EXPECT_TRUE(exporter.copyDepend(source, "b"));
    EXPECT_FALSE(exporter.saveImage(QImage(1, 1, QImage::Format_RGB32), "c.png"));
    EXPECT_FALSE(exporter.exportThumbData(source, "d"));
    EXPECT_FALSE(exporter.exportHttpData("http://127.0.0.1:9/", tree.path("e")));
    EXPECT_EQ(tree.list(), before);
}

TEST(CPlainFileExporter, ASecondOutputOfOneNameGetsANumber)
{
    const TempTree tree;
    for (int i = 0; i < 2; ++i) {
        CPlainFileExporter exporter(".csv", false);
        EXPECT_TRUE(open(exporter, tree));
        EXPECT_TRUE(exporter.closeExport(true));
    }
    EXPECT_EQ(tree.list(), QStringList({"Contacts/", "Contacts/Anna's Contacts (2).csv",
                               "Contacts/Anna's Contacts.csv"}));
}

TEST(CPlainFileExporter, FileNamesAreMadeSafe)
{
    const TempTree tree;
    CPlainFileExporter exporter(".csv", false);
    EXPECT_TRUE(exporter.openExport(tree.dir(), "A/B: \"C\"", "Chats/Old"));
    EXPECT_TRUE(exporter.closeExport(true));
    EXPECT_TRUE(tree.exists("Chats/Old/A_B_ _C_'s Chats_Old.csv"));
}

TEST(CPlainFileExporter, APlaceInTheOwnersNameStaysText)
{
    const TempTree tree;
    CPlainFileExporter exporter(".csv", false);
    EXPECT_TRUE(exporter.openExport(tree.dir(), "100%2", "Contacts"));
    EXPECT_TRUE(exporter.closeExport(true));
    EXPECT_TRUE(tree.exists("Contacts/100%2's Contacts.csv"));
}

TEST(CPlainFileExporter, ClosingWithoutSuccessRemovesItsFileBeforeTheDirectory)
{
    const TempTree tree;
    CPlainFileExporter exporter(".csv", false);
    EXPECT_TRUE(exporter.beginFile(tree.dir()));
    EXPECT_EQ(tree.list(), QStringList("'s .csv"));
    EXPECT_TRUE(exporter.endFile(false));
    EXPECT_TRUE(tree.list().isEmpty());

    EXPECT_TRUE(open(exporter, tree));
    EXPECT_TRUE(exporter.closeExport(false));
    EXPECT_TRUE(tree.list().isEmpty());
}

TEST(CPlainFileExporter, FailsToOpenWhereTheFileCannotBeMade)
{
    const TempTree tree;
    const QString tooLong(300, QLatin1Char('n'));
    CPlainFileExporter one(".csv", false);
    EXPECT_FALSE(one.openExport(tree.dir(), tooLong, "Contacts"));
    EXPECT_EQ(tree.list(), QStringList("Contacts/"));
    EXPECT_TRUE(one.closeExport(false));
    EXPECT_TRUE(tree.list().isEmpty());

    CPlainFileExporter each(".csv", true);
    EXPECT_TRUE(each.openExport(tree.dir(), tooLong, "Contacts"));
    EXPECT_FALSE(each.beginItem(tooLong));
    writeItem(each, "next", "goes on");
    EXPECT_EQ(tree.read("Contacts/next.csv"), "goes on");
}

TEST(CPlainFileExporter, AFailedDirectoryLeavesNoFileAndRemovesNothing)
{
    const TempTree tree;
    tree.write("Contacts", "a file in the way");
    CPlainFileExporter exporter(".csv", false);
    EXPECT_FALSE(exporter.openExport(tree.dir(), "Anna", "Contacts", "CSV"));
    EXPECT_TRUE(exporter.closeExport(false));
    EXPECT_EQ(tree.list(), QStringList("Contacts"));
}

TEST(CPlainFileExporterForEachRecord, OpensNoFileOfTheCategory)
{
    const TempTree tree;
    CPlainFileExporter exporter(".vcf", true);
    EXPECT_TRUE(open(exporter, tree));
    EXPECT_TRUE(exporter.closeExport(true));
    CPlainFileExporter common(".vcf", true);
    EXPECT_TRUE(common.openCommonExport(tree.dir(), "Anna", "Contacts", ""));
    EXPECT_TRUE(common.closeExport(true));
    EXPECT_EQ(tree.list(), QStringList("Contacts/"));
}

TEST(CPlainFileExporterForEachRecord, WritesEachRecordToItsOwnFile)
{
    const TempTree tree;
    CPlainFileExporter exporter(".vcf", true);
    EXPECT_TRUE(open(exporter, tree));
    writeItem(exporter, "Ben", "b\r\n");
    writeItem(exporter, "Cleo", "c");
    EXPECT_TRUE(exporter.closeExport(true));
    EXPECT_EQ(tree.list(), QStringList({"Contacts/", "Contacts/Ben.vcf", "Contacts/Cleo.vcf"}));
    EXPECT_EQ(tree.read("Contacts/Ben.vcf"), "b\r\n");
    EXPECT_EQ(tree.read("Contacts/Cleo.vcf"), "c");
}

TEST(CPlainFileExporterForEachRecord, TheCommonFormWritesToItsDirectoryToo)
{
    const TempTree tree;
    CPlainFileExporter exporter(".vcf", true);
    EXPECT_TRUE(exporter.openCommonExport(tree.dir(), "Anna", "Contacts", "VCF"));
    writeItem(exporter, "Ben", "b");
    EXPECT_TRUE(tree.exists("Contacts/VCF/Ben.vcf"));
}

TEST(CPlainFileExporterForEachRecord, NamesFilesOfOneNameApart)
{
    const TempTree tree;
    CPlainFileExporter exporter(".vcf", true);
    EXPECT_TRUE(open(exporter, tree));
    writeItem(exporter, "A/B", "1");
    writeItem(exporter, "A:B", "2"); // the same when made safe
    writeItem(exporter, "C", "3");
    writeItem(exporter, "A_B", "4");
    EXPECT_EQ(tree.read("Contacts/A_B.vcf"), "1");
    EXPECT_EQ(tree.read("Contacts/A_B (2).vcf"), "2");
    EXPECT_EQ(tree.read("Contacts/C.vcf"), "3");
    EXPECT_EQ(tree.read("Contacts/A_B (3).vcf"), "4");
}

TEST(CPlainFileExporterForEachRecord, TheNextFileOfANameGoesOnFromItsCounter)
{
    const TempTree tree;
    CPlainFileExporter exporter(".vcf", true);
    EXPECT_TRUE(open(exporter, tree));
    writeItem(exporter, "Ben", "1");
    EXPECT_TRUE(QFile::remove(tree.path("Contacts/Ben.vcf")));
    writeItem(exporter, "Ben", "2");
    EXPECT_EQ(tree.list(), QStringList({"Contacts/", "Contacts/Ben (2).vcf"}));
}

TEST(CPlainFileExporterForEachRecord, OddNamesKeepWhatIsNotUnsafe)
{
    struct Row {
        const char* name;
        const char* file;
    };
    const Row rows[] = {
        {"/\\:\"*?<>|\r\n", "___________.vcf"},
        {"Ben.vcf", "Ben.vcf.vcf"},
        {"Dr. B. ", "Dr. B. .vcf"},
        {"..", "...vcf"},
        {"../../up", ".._.._up.vcf"},
        {"%1", "%1.vcf"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const TempTree tree;
        CPlainFileExporter exporter(".vcf", true);
        EXPECT_TRUE(open(exporter, tree));
        writeItem(exporter, row.name, "x");
        EXPECT_EQ(tree.list(), QStringList({"Contacts/", QString("Contacts/") + row.file}));
    }
}

TEST(CPlainFileExporterForEachRecord, EndingTouchesNoFile)
{
    const TempTree tree;
    CPlainFileExporter exporter(".vcf", true);
    EXPECT_TRUE(open(exporter, tree));
    writeItem(exporter, "Ben", "b");
    EXPECT_TRUE(exporter.endFile(false));
    EXPECT_EQ(tree.read("Contacts/Ben.vcf"), "b");
    EXPECT_TRUE(exporter.endFile(true));
    EXPECT_TRUE(exporter.closeExport(true));
    EXPECT_EQ(tree.read("Contacts/Ben.vcf"), "b");
}

TEST(CPlainFileExporterForEachRecord, ClosingWithoutSuccessRemovesTheDirectory)
{
    const TempTree tree;
    CPlainFileExporter exporter(".vcf", true);
    EXPECT_TRUE(open(exporter, tree));
    writeItem(exporter, "Ben", "b");
    EXPECT_TRUE(exporter.closeExport(false));
    EXPECT_TRUE(tree.list().isEmpty());
}

TEST(CPlainFileExporterForEachRecord, TextBesideTheRecordsIsLost)
{
    const TempTree tree;
    CPlainFileExporter exporter(".vcf", true);
    EXPECT_TRUE(open(exporter, tree));
    EXPECT_TRUE(exporter.write("before the first"));
    writeItem(exporter, "Ben", "b");
    EXPECT_TRUE(exporter.write("between"));
    writeItem(exporter, "Cleo", "c");
    EXPECT_TRUE(exporter.write("after the last"));
    EXPECT_TRUE(exporter.closeExport(true));
    EXPECT_EQ(tree.read("Contacts/Ben.vcf"), "b");
    EXPECT_EQ(tree.read("Contacts/Cleo.vcf"), "c");
}
