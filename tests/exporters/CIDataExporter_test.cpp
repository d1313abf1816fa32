// SPDX-License-Identifier: MIT
#include "exporters/CIDataExporter.h"
#include "support/temp_tree.h"

#include <QByteArray>
#include <QDir>
#include <QImage>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

using support::TempTree;

namespace {

/// Writes down the calls that it gets, and the directory, owner and category at each begin.
class RecordingExporter : public CIDataExporter {
public:
    using CIDataExporter::write;
    bool write(const QString& text, QString& result) override
    {
        calls.append("write " + text + (result.isEmpty() ? "" : " into " + result));
        result = "changed";
        return writes;
    }
    bool exportData(const QByteArray& data, const QString& name) override
    {
        calls.append("exportData " + data + " " + name);
        return true;
    }
    bool copyDepend(const QString& src, const QString& name) override
    {
        calls.append("copyDepend " + src + " " + name);
        return true;
    }
    bool beginFile(const QDir& dir) override { return begin("beginFile", dir); }
    bool endFile(bool ok) override
    {
        calls.append(ok ? "endFile true" : "endFile false");
        // The directory still stands: a failed output removes its own file first.
        directoryAtEnd = QFileInfo::exists(directory);
        return ends;
    }

    QStringList calls;
    QString directory;
    bool begins = true;
    bool writes = true;
    bool ends = true;
    bool directoryAtEnd = false;

protected:
    bool begin(const QString& what, const QDir& dir)
    {
        calls.append(what + " " + ownerName() + "|" + categoryName());
        directory = dir.absolutePath();
        return begins;
    }
};

class RecordingCommonExporter : public RecordingExporter {
public:
    bool beginCommonFile(const QDir& dir) override { return begin("beginCommonFile", dir); }
};

} // namespace

TEST(CIDataExporter, BaseAnswersForWhatAnOutputDoesNotDo)
{
    RecordingExporter exporter;
    EXPECT_TRUE(exporter.beginItem("name"));
    EXPECT_TRUE(exporter.endItem());
    EXPECT_TRUE(exporter.beginCommonFile(QDir()));
    EXPECT_FALSE(exporter.exportThumbData("source", "name"));
    EXPECT_FALSE(exporter.exportHttpData("http://h/", "path"));
    EXPECT_FALSE(exporter.saveImage(QImage(1, 1, QImage::Format_RGB32), "name"));
    EXPECT_TRUE(exporter.calls.isEmpty());
}

TEST(CIDataExporter, OpensInTheCategorysDirectory)
{
    const TempTree tree;
    RecordingExporter exporter;
    EXPECT_TRUE(exporter.openExport(tree.dir(), "Anna", "Contacts"));
    EXPECT_EQ(exporter.directory, tree.path("Contacts"));
    EXPECT_EQ(exporter.calls, QStringList("beginFile Anna|Contacts"));
    EXPECT_EQ(tree.list(), QStringList("Contacts/"));
}

TEST(CIDataExporter, OpensInASubDirectory)
{
    const TempTree tree;
    RecordingExporter exporter;
    EXPECT_TRUE(exporter.openExport(tree.dir(), "Anna", "Contacts", "CSV"));
    EXPECT_EQ(exporter.directory, tree.path("Contacts/CSV"));
    EXPECT_EQ(exporter.calls, QStringList("beginFile Anna|Contacts"));
    EXPECT_EQ(tree.list(), QStringList({"Contacts/", "Contacts/CSV/"}));
}

TEST(CIDataExporter, OpensTheCommonFileInTheSamePlace)
{
    const TempTree tree;
    RecordingCommonExporter exporter;
    EXPECT_TRUE(exporter.openCommonExport(tree.dir(), "Anna", "Contacts", "VCF"));
    EXPECT_EQ(exporter.directory, tree.path("Contacts/VCF"));
    EXPECT_EQ(exporter.calls, QStringList("beginCommonFile Anna|Contacts"));
}

TEST(CIDataExporter, OpenAnswersWhatTheBeginAnswers)
{
    const TempTree tree;
    RecordingCommonExporter exporter;
    exporter.begins = false;
    EXPECT_FALSE(exporter.openExport(tree.dir(), "Anna", "Contacts"));
    EXPECT_FALSE(exporter.openExport(tree.dir(), "Anna", "Contacts", "CSV"));
    EXPECT_FALSE(exporter.openCommonExport(tree.dir(), "Anna", "Contacts", "CSV"));
}

TEST(CIDataExporter, TakesADirectoryThatIsThereWithWhatIsInIt)
{
    const TempTree tree;
    tree.write("Contacts/CSV/before", "x");
    RecordingExporter exporter;
    EXPECT_TRUE(exporter.openExport(tree.dir(), "Anna", "Contacts", "CSV"));
    EXPECT_TRUE(exporter.closeExport(true));
    EXPECT_EQ(tree.read("Contacts/CSV/before"), "x");
}

TEST(CIDataExporter, MakesTheRootToo)
{
    const TempTree tree;
    RecordingExporter exporter;
    EXPECT_TRUE(exporter.openExport(QDir(tree.path("new/root")), "Anna", "Contacts"));
    EXPECT_EQ(exporter.directory, tree.path("new/root/Contacts"));
}

TEST(CIDataExporter, LeavesTheCallersRootWhereItIs)
{
    const TempTree tree;
    const QDir root = tree.dir();
    RecordingExporter exporter;
    EXPECT_TRUE(exporter.openExport(root, "Anna", "Contacts"));
    EXPECT_EQ(root.path(), tree.path());
}

TEST(CIDataExporter, NeitherCategoryNorSubIsMadeSafe)
{
    const TempTree tree;
    RecordingExporter exporter;
    EXPECT_TRUE(exporter.openExport(tree.dir(), "A/B", "Chats/Old: 1", "x/y?"));
    EXPECT_EQ(exporter.directory, tree.path("Chats/Old: 1/x/y?"));
    EXPECT_EQ(exporter.calls, QStringList("beginFile A/B|Chats/Old: 1"));
}

TEST(CIDataExporter, ACategoryOfTwoLevelsIsRemovedByTheSameName)
{
    const TempTree tree;
    tree.write("Chats/kept", "x");
    RecordingExporter exporter;
    EXPECT_TRUE(exporter.openExport(tree.dir(), "Anna", "Chats/Old"));
    EXPECT_TRUE(tree.exists("Chats/Old"));
    EXPECT_TRUE(exporter.closeExport(false));
    EXPECT_EQ(tree.list(), QStringList({"Chats/", "Chats/kept"}));
}

TEST(CIDataExporter, ClosingWithoutSuccessRemovesTheOutputOfAllFormats)
{
    const TempTree tree;
    tree.write("Contacts/HTML/page.html", "of the format before");
    tree.write("Messages/kept", "x");
    RecordingExporter exporter;
    EXPECT_TRUE(exporter.openExport(tree.dir(), "Anna", "Contacts", "CSV"));
    EXPECT_TRUE(exporter.closeExport(false));
    EXPECT_EQ(exporter.calls.last(), "endFile false");
    EXPECT_TRUE(exporter.directoryAtEnd);
    EXPECT_EQ(tree.list(), QStringList({"Messages/", "Messages/kept"}));
}

TEST(CIDataExporter, ClosingWithSuccessKeepsTheOutput)
{
    const TempTree tree;
    RecordingExporter exporter;
    EXPECT_TRUE(exporter.openExport(tree.dir(), "Anna", "Contacts"));
    EXPECT_TRUE(exporter.closeExport(true));
    EXPECT_EQ(exporter.calls.last(), "endFile true");
    EXPECT_EQ(tree.list(), QStringList("Contacts/"));
}

TEST(CIDataExporter, CloseAnswersWhatTheEndAnswersAndRemovesAllTheSame)
{
    const TempTree tree;
    RecordingExporter exporter;
    exporter.ends = false;
    EXPECT_TRUE(exporter.openExport(tree.dir(), "Anna", "Contacts"));
    EXPECT_FALSE(exporter.closeExport(true));
    EXPECT_EQ(tree.list(), QStringList("Contacts/"));
    EXPECT_FALSE(exporter.closeExport(false));
    EXPECT_TRUE(tree.list().isEmpty());
}

TEST(CIDataExporter, AFailedFirstOpenLeavesNoCategoryToRemove)
{
    const TempTree tree;
    tree.write("blocked", "a file where the root would be");
    tree.write("other/kept", "x");
    const QStringList before = tree.list();
    RecordingExporter exporter;
    EXPECT_FALSE(exporter.openExport(QDir(tree.path("blocked")), "Anna", "Contacts"));
    EXPECT_FALSE(exporter.openExport(tree.dir(), "Anna", "blocked", "CSV"));
    EXPECT_FALSE(exporter.openCommonExport(tree.dir(), "Anna", "blocked", "CSV"));
    EXPECT_TRUE(exporter.calls.isEmpty());
    EXPECT_TRUE(exporter.closeExport(false));
    EXPECT_EQ(exporter.calls, QStringList("endFile false"));
    EXPECT_EQ(tree.list(), before);
}

TEST(CIDataExporter, AFailedLaterOpenKeepsTheNamesButTakesTheRoot)
{
    const TempTree tree;
    tree.makeDir("first");
    tree.write("second/blocked", "a file");
    tree.write("second/Contacts/file", "x");
    RecordingExporter exporter;
    EXPECT_TRUE(exporter.openExport(QDir(tree.path("first")), "Anna", "Contacts"));
    EXPECT_FALSE(exporter.openExport(QDir(tree.path("second")), "Ben", "blocked", "CSV"));
    EXPECT_TRUE(exporter.closeExport(false));
    EXPECT_EQ(tree.list(), QStringList({"first/", "first/Contacts/", "second/", "second/blocked"}));
}

TEST(CIDataExporter, AnEmptyCategoryIsNoDirectory)
{
    const TempTree tree;
    tree.write("kept", "x");
    RecordingExporter exporter;
    EXPECT_FALSE(exporter.openExport(tree.dir(), "Anna", ""));
    EXPECT_TRUE(exporter.closeExport(false));
    EXPECT_EQ(tree.list(), QStringList("kept"));
}

TEST(CIDataExporter, WritesTextWithAnEmptyResultOfItsOwn)
{
    RecordingExporter exporter;
    EXPECT_TRUE(exporter.write("one"));
    EXPECT_TRUE(exporter.write("two"));
    EXPECT_EQ(exporter.calls, QStringList({"write one", "write two"}));
    exporter.writes = false;
    EXPECT_FALSE(exporter.write("three"));
}
