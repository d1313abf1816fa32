// SPDX-License-Identifier: MIT
#include "platform/CCommonUtils.h"
#include "support/temp_tree.h"

#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

#include <ctime>

using support::TempTree;

namespace {

// The name that the form without a counter gives, which is then made.
QString takeName(const TempTree& tree, const QString& base, const QString& suffix)
{
    const QString path = CCommonUtils::uniqFileName(tree.dir(), base, suffix);
    QString name = tree.dir().relativeFilePath(path);
    tree.write(name, "x");
    return name;
}

} // namespace

TEST(UniqFileName, StartsWithTheBareNameAndNumbersFromTwo)
{
    const TempTree tree;
    int counter = 0;
    const char* names[] = {"Anna.vcf", "Anna (2).vcf", "Anna (3).vcf"};
    int number = 0;
    for (const char* name : names) {
        SCOPED_TRACE(name);
        const QString path = CCommonUtils::uniqFileName(tree.dir(), "Anna", ".vcf", counter);
        EXPECT_EQ(path, tree.path(name));
        EXPECT_EQ(counter, ++number);
        tree.write(name, "x");
    }
}

TEST(UniqFileName, GoesOnAboveTheCounterThoughLowerNumbersAreFree)
{
    const TempTree tree;
    int counter = 4;
    EXPECT_EQ(CCommonUtils::uniqFileName(tree.dir(), "a", ".txt", counter), tree.path("a (5).txt"));
    EXPECT_EQ(counter, 5);
}

TEST(UniqFileName, SkipsTakenNumbersAboveTheCounter)
{
    const TempTree tree;
    tree.write("a (2).txt", "x");
    tree.write("a (3).txt", "x");
    int counter = 1;
    EXPECT_EQ(CCommonUtils::uniqFileName(tree.dir(), "a", ".txt", counter), tree.path("a (4).txt"));
    EXPECT_EQ(counter, 4);
}

TEST(UniqFileName, WithoutACounterTakesTheLowestFreeNumber)
{
    const TempTree tree;
    EXPECT_EQ(takeName(tree, "a", ".txt"), "a.txt");
    EXPECT_EQ(takeName(tree, "a", ".txt"), "a (2).txt");
    EXPECT_EQ(takeName(tree, "a", ".txt"), "a (3).txt");
    QFile::remove(tree.path("a (2).txt"));
    EXPECT_EQ(takeName(tree, "a", ".txt"), "a (2).txt");
    QFile::remove(tree.path("a.txt"));
    EXPECT_EQ(takeName(tree, "a", ".txt"), "a.txt");
    EXPECT_EQ(takeName(tree, "a", ".txt"), "a (4).txt");
}

TEST(UniqFileName, WithoutACounterNumbersAllFilesOfOneNameWithoutAGap)
{
    const TempTree tree;
    EXPECT_EQ(takeName(tree, "a", ""), "a");
    for (int number = 2; number <= 40; ++number) {
        EXPECT_EQ(takeName(tree, "a", ""), QString("a (%1)").arg(number));
    }
}

TEST(UniqFileName, WithoutACounterGivesANumberAgainWhoseFileWasNotMade)
{
    const TempTree tree;
    for (int number = 1; number <= 20; ++number) {
        takeName(tree, "a", ".txt");
    }
    const QString next = tree.path("a (21).txt");
    EXPECT_EQ(CCommonUtils::uniqFileName(tree.dir(), "a", ".txt"), next);
    EXPECT_EQ(CCommonUtils::uniqFileName(tree.dir(), "a", ".txt"), next);
}

TEST(UniqFileName, WithoutACounterStartsAfreshInAnEmptiedDirectory)
{
    const TempTree tree;
    for (int number = 1; number <= 20; ++number) {
        takeName(tree, "a", ".txt");
    }
    for (int number = 10; number <= 20; ++number) {
        QFile::remove(tree.path(QString("a (%1).txt").arg(number)));
    }
    EXPECT_EQ(takeName(tree, "a", ".txt"), "a (10).txt");
    for (const QString& name : tree.list()) {
        QFile::remove(tree.path(name));
    }
    EXPECT_EQ(takeName(tree, "a", ".txt"), "a.txt");
}

TEST(UniqFileName, KeepsNamesSuffixesAndDirectoriesApart)
{
    const TempTree tree;
    tree.makeDir("sub");
    for (int number = 1; number <= 20; ++number) {
        takeName(tree, "a", ".txt");
    }
    const QDir sub(tree.path("sub"));
    EXPECT_EQ(CCommonUtils::uniqFileName(tree.dir(), "a", ".csv"), tree.path("a.csv"));
    EXPECT_EQ(CCommonUtils::uniqFileName(tree.dir(), "b", ".txt"), tree.path("b.txt"));
    EXPECT_EQ(CCommonUtils::uniqFileName(sub, "a", ".txt"), tree.path("sub/a.txt"));
}

TEST(UniqFileName, TakesDirectoriesAndLinksToNothingAsTaken)
{
    const TempTree tree;
    tree.makeDir("a.txt");
    tree.link("a (2).txt", "nowhere");
    int counter = 0;
    EXPECT_EQ(CCommonUtils::uniqFileName(tree.dir(), "a", ".txt", counter), tree.path("a (3).txt"));
    EXPECT_EQ(counter, 3);
    EXPECT_EQ(CCommonUtils::uniqFileName(tree.dir(), "a", ".txt"), tree.path("a (3).txt"));
}

TEST(UniqFileName, LeavesPlacesAndPointsInTheNameAsTheyAre)
{
    const TempTree tree;
    int counter = 1;
    EXPECT_EQ(CCommonUtils::uniqFileName(tree.dir(), "100%1 %2.a.vcf", ".vcf", counter),
        tree.path("100%1 %2.a.vcf (2).vcf"));
}

TEST(UniqFileName, NamesOfPointsOrNothingStayInTheDirectory)
{
    const TempTree tree;
    for (const char* base : {"", ".", ".."}) {
        SCOPED_TRACE(base);
        const QString path = CCommonUtils::uniqFileName(tree.dir(), base, "");
        EXPECT_EQ(path, tree.path() + "/" + base + " (2)");
    }
}

// A probe of every number for each would be fifty million look-ups: minutes.
TEST(UniqFileName, TenThousandFilesOfOneNameTakeNoProbeOfEveryNumber)
{
    const TempTree tree;
    const std::clock_t start = std::clock(); // of the processor: others may be busy on the machine
    int counter = 0;
    for (int number = 1; number <= 10'000; ++number) {
        QFile plain(CCommonUtils::uniqFileName(tree.dir(), "image", ".jpg"));
        ASSERT_TRUE(plain.open(QIODevice::WriteOnly));
        QFile counted(CCommonUtils::uniqFileName(tree.dir(), "note", ".txt", counter));
        ASSERT_TRUE(counted.open(QIODevice::WriteOnly));
    }
    EXPECT_LT(std::clock() - start, 20 * CLOCKS_PER_SEC);
    EXPECT_TRUE(tree.exists("image (10000).jpg"));
    EXPECT_TRUE(tree.exists("note (10000).txt"));
    EXPECT_EQ(tree.dir().entryList(QDir::Files).size(), 20'000);
}

TEST(CopyFile, CopiesContentsUnderTheGivenName)
{
    const TempTree tree;
    const QString source = tree.write("from/a.bin", QByteArray("\0\r\n\xff", 4));
    tree.makeDir("to");
    EXPECT_TRUE(CCommonUtils::copyFile(source, QDir(tree.path("to")), "b.bin"));
    EXPECT_EQ(tree.read("to/b.bin"), QByteArray("\0\r\n\xff", 4));
    EXPECT_EQ(tree.list(), QStringList({"from/", "from/a.bin", "to/", "to/b.bin"}));
}

TEST(CopyFile, ReplacesAnExistingFile)
{
    const TempTree tree;
    const QString source = tree.write("a", "new");
    tree.write("b", "old and longer");
    EXPECT_TRUE(CCommonUtils::copyFile(source, tree.dir(), "b"));
    EXPECT_EQ(tree.read("b"), "new");
}

TEST(CopyFile, CopiesWhatALinkLeadsTo)
{
    const TempTree tree;
    tree.write("a", "contents");
    const QString source = tree.link("link", "a");
    EXPECT_TRUE(CCommonUtils::copyFile(source, tree.dir(), "b"));
    EXPECT_FALSE(QFileInfo(tree.path("b")).isSymLink());
    EXPECT_EQ(tree.read("b"), "contents");
}

TEST(CopyFile, ReplacesALinkAndLeavesAloneWhatItLedTo)
{
    const TempTree tree;
    const QString source = tree.write("a", "new");
    tree.write("other", "kept");
    struct Row {
        const char* what;
        QString leadsTo;
    };
    const Row rows[] = {{"to another file", "other"}, {"to the source", "a"}, {"to nothing", "no"}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        QFile::remove(tree.path("b"));
        tree.link("b", row.leadsTo);
        EXPECT_TRUE(CCommonUtils::copyFile(source, tree.dir(), "b"));
        EXPECT_FALSE(QFileInfo(tree.path("b")).isSymLink());
        EXPECT_EQ(tree.read("b"), "new");
    }
    EXPECT_EQ(tree.read("other"), "kept");
    EXPECT_EQ(tree.read("a"), "new");
}

TEST(CopyFile, OntoItselfKeepsTheFile)
{
    const TempTree tree;
    const QString source = tree.write("a", "contents");
    EXPECT_TRUE(CCommonUtils::copyFile(source, tree.dir(), "a"));
    EXPECT_EQ(tree.read("a"), "contents");
}

TEST(CopyFile, WithoutASourceFileFailsAndLeavesTheTarget)
{
    const TempTree tree;
    tree.write("b", "kept");
    tree.makeDir("directory");
    tree.link("dangling", "nowhere");
    for (const char* source : {"absent", "directory", "dangling"}) {
        SCOPED_TRACE(source);
        EXPECT_FALSE(CCommonUtils::copyFile(tree.path(source), tree.dir(), "b"));
        EXPECT_FALSE(CCommonUtils::copyFile(tree.path(source), tree.dir(), "new"));
    }
    EXPECT_FALSE(CCommonUtils::copyFile("", tree.dir(), "b"));
    EXPECT_EQ(tree.read("b"), "kept");
    EXPECT_EQ(tree.list(), QStringList({"b", "dangling", "directory/"}));
}

TEST(CopyFile, ThatFailsLeavesNoPartOfAFile)
{
    const TempTree tree;
    const QString source = tree.write("a", "contents");
    tree.write("taken/inside", "kept");
    EXPECT_FALSE(CCommonUtils::copyFile(source, tree.dir(), "taken"));
    EXPECT_FALSE(CCommonUtils::copyFile(source, QDir(tree.path("absent")), "b"));
    EXPECT_FALSE(CCommonUtils::copyFile(source, tree.dir(), QString(300, QLatin1Char('n'))));
    EXPECT_EQ(tree.list(), QStringList({"a", "taken/", "taken/inside"}));
}

TEST(RmDir, RemovesTheDirectoryWithAllThatIsInIt)
{
    const TempTree tree;
    tree.write("a/b/c", "x");
    tree.write("a/.hidden", "x");
    tree.write("other/c", "kept");
    tree.link("a/link", "../other");
    bool removed = false;
    CCommonUtils::rmDir(tree.dir(), "a", &removed);
    EXPECT_TRUE(removed);
    EXPECT_EQ(tree.list(), QStringList({"other/", "other/c"}));
}

TEST(RmDir, TakesANameOfSeveralLevelsAndLeavesTheUpperOnes)
{
    const TempTree tree;
    tree.write("a/b/c", "x");
    tree.write("a/kept", "x");
    CCommonUtils::rmDir(tree.dir(), "a/b", nullptr);
    EXPECT_EQ(tree.list(), QStringList({"a/", "a/kept"}));
}

TEST(RmDir, RemovesNothingForANameThatIsNoSubDirectory)
{
    const TempTree tree;
    const QDir root(tree.makeDir("root"));
    tree.write("root/a/file", "x");
    tree.write("root/file", "x");
    tree.write("sibling/file", "x");
    const QStringList before = tree.list();
    for (const QString& name :
        {QString(), QString(""), QString("."), QString("./"), QString(".."), QString("../sibling"),
            QString("a/.."), QString("a/../.."), QString("a/../../sibling"), QString("/"),
            tree.path("sibling"), tree.path("root/a"), QString("absent"), QString("file")}) {
        SCOPED_TRACE(name.toStdString());
        CCommonUtils::rmDir(root, name, nullptr);
        EXPECT_EQ(tree.list(), before);
    }
}

TEST(RmDir, RemovesNothingThroughALink)
{
    const TempTree tree;
    const QDir root(tree.makeDir("root"));
    tree.write("elsewhere/sub/file", "kept");
    tree.link("root/Photos", tree.path("elsewhere"));
    const QStringList before = tree.list();
    for (const char* name : {"Photos", "Photos/sub"}) {
        SCOPED_TRACE(name);
        bool removed = true;
        CCommonUtils::rmDir(root, name, &removed);
        EXPECT_FALSE(removed);
        EXPECT_EQ(tree.list(), before);
    }
}

TEST(RmDir, WorksBelowARootThatIsReachedByALink)
{
    const TempTree tree;
    tree.write("real/a/file", "x");
    const QDir root(tree.link("root", tree.path("real")));
    CCommonUtils::rmDir(root, "a", nullptr);
    EXPECT_EQ(tree.list(), QStringList({"real/", "root"}));
}

TEST(RmDir, TellsWhetherNothingStandsThereNow)
{
    const TempTree tree;
    tree.makeDir("a");
    tree.write("file", "x");
    struct Row {
        const char* name;
        bool removed;
    };
    const Row rows[] = {{"a", true}, {"absent", true}, {"file", false}, {"", false}, {"..", false}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        bool removed = !row.removed;
        CCommonUtils::rmDir(tree.dir(), row.name, &removed);
        EXPECT_EQ(removed, row.removed);
    }
}
