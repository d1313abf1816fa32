// SPDX-License-Identifier: MIT
#include "backup/container/Manifest.h"
#include "backup/container/Notices.h"
#include "support/backup_builder.h"
#include "support/temp_tree.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

namespace backup {

namespace {

const QString kHome = "HomeDomain";
const QString kComposed = QString::fromUtf8("caf\xC3\xA9");
const QString kDecomposed = QString::fromUtf8("cafe\xCC\x81");

// A manifest of the builder's rows, and what it tells.
class Fixture {
public:
    Fixture() : builder(tree.path()) {}

    Manifest open()
    {
        builder.finish();
        auto manifest = Manifest::open(tree.path("Manifest.db"), notices);
        EXPECT_TRUE(manifest) << manifest.error().text().toStdString();
        return std::move(*manifest);
    }

    support::TempTree tree;
    Notices notices;
    BackupBuilder builder;
};

QString errorOf(const support::TempTree& tree)
{
    Notices notices;
    const auto manifest = Manifest::open(tree.path("Manifest.db"), notices);
    return manifest ? QString("no error") : manifest.error().text();
}

TEST(Manifest, FindsAFileByDomainAndPath)
{
    Fixture fixture;
    fixture.builder.addMissing(kHome, "a/b").addMissing("MediaDomain", "a/b");
    Manifest manifest = fixture.open();
    const auto entry = manifest.find("MediaDomain", "a/b");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->domain, "MediaDomain");
    EXPECT_EQ(entry->relativePath, "a/b");
    EXPECT_EQ(entry->flags, ManifestEntry::RegularFile);
    EXPECT_EQ(entry->fileId, BackupBuilder::fileId("MediaDomain", "a/b"));
}

TEST(Manifest, FindsNothingNearby)
{
    Fixture fixture;
    fixture.builder.addMissing(kHome, "a/b");
    Manifest manifest = fixture.open();
    for (const char* path : {"", "a", "a/", "a/B", "a/b/", "a/bb", "a/_", "%", "b"}) {
        SCOPED_TRACE(path);
        EXPECT_FALSE(manifest.find(kHome, path));
    }
    EXPECT_FALSE(manifest.find("homedomain", "a/b"));
    EXPECT_EQ(fixture.notices.sentences(), QStringList());
}

TEST(Manifest, FindsDirectoriesAndNoLinks)
{
    Fixture fixture;
    fixture.builder.addDirectory(kHome, "").addDirectory(kHome, "folder").addLink(kHome, "link");
    Manifest manifest = fixture.open();
    const auto folder = manifest.find(kHome, "folder");
    ASSERT_TRUE(folder);
    EXPECT_EQ(folder->flags, ManifestEntry::Directory);
    EXPECT_TRUE(manifest.find(kHome, ""));
    EXPECT_FALSE(manifest.find(kHome, "link"));
    EXPECT_EQ(fixture.notices.sentences(), QStringList());
}

TEST(Manifest, FindsNamesInTheOtherUnicodeForm)
{
    Fixture fixture;
    fixture.builder.addMissing(kHome, "composed/" + kComposed)
        .addMissing(kHome, "decomposed/" + kDecomposed);
    Manifest manifest = fixture.open();
    const auto composed = manifest.find(kHome, "composed/" + kDecomposed);
    ASSERT_TRUE(composed);
    EXPECT_EQ(composed->relativePath, "composed/" + kComposed);
    const auto decomposed = manifest.find(kHome, "decomposed/" + kComposed);
    ASSERT_TRUE(decomposed);
    EXPECT_EQ(decomposed->relativePath, "decomposed/" + kDecomposed);
}

TEST(Manifest, PrefersTheNameAsItIsGiven)
{
    Fixture fixture;
    fixture.builder.addMissing(kHome, kComposed).addMissing(kHome, kDecomposed);
    Manifest manifest = fixture.open();
    EXPECT_EQ(manifest.find(kHome, kComposed)->relativePath, kComposed);
    EXPECT_EQ(manifest.find(kHome, kDecomposed)->relativePath, kDecomposed);
}

TEST(Manifest, PassesOverPathsThatLeadOut)
{
    struct Row {
        const char* what;
        QString path;
    };
    const Row rows[] = {{"a step up", "Message/../../x"}, {"absolute", "/etc/passwd"},
        {"backslashes", "a\\..\\x"}, {"a drive", "C:/x"}, {"NUL", QString("a") + QChar(0) + "b"}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        Fixture fixture;
        fixture.builder.addMissing(kHome, row.path);
        Manifest manifest = fixture.open();
        EXPECT_FALSE(manifest.find(kHome, row.path));
        EXPECT_EQ(manifest.filesBelow(kHome, ""), QStringList());
        EXPECT_EQ(fixture.notices.sentences(),
            QStringList(
                "HomeDomain/" + row.path
                + ": the manifest gives a path that is not used, it could lead out of a folder"));
    }
}

TEST(Manifest, PassesOverNamesOfPayloadsThatAreNone)
{
    Fixture fixture;
    fixture.builder.addRow("../../etc/passwd", kHome, "a", 1);
    fixture.builder.addMissing(kHome, "b");
    Manifest manifest = fixture.open();
    EXPECT_FALSE(manifest.find(kHome, "a"));
    EXPECT_EQ(manifest.filesBelow(kHome, ""), QStringList("b"));
    EXPECT_EQ(fixture.notices.sentences(),
        QStringList(
            "HomeDomain/a: the manifest gives it a file name that is none (\"../../etc/passwd\")"));
}

TEST(Manifest, TakesTheGoodRowBehindABadOneOfTheSamePath)
{
    Fixture fixture;
    fixture.builder.addRow("bad", kHome, "a", 1).addMissing(kHome, "a");
    Manifest manifest = fixture.open();
    const auto entry = manifest.find(kHome, "a");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->fileId, BackupBuilder::fileId(kHome, "a"));
}

TEST(Manifest, CountsBadRowsInsteadOfNamingThemAll)
{
    Fixture fixture;
    for (int i = 0; i < 100; ++i) {
        fixture.builder.addMissing(kHome, QString("../%1").arg(i));
        fixture.builder.addRow(QString("bad%1").arg(i), kHome, QString("a/%1").arg(i), 1);
    }
    Manifest manifest = fixture.open();
    EXPECT_EQ(manifest.filesBelow(kHome, ""), QStringList());
    const QStringList& told = fixture.notices.sentences();
    EXPECT_EQ(told.size(), 42);
    EXPECT_TRUE(told.contains(
        "80 more paths of the manifest are not used, they could lead out of a folder"));
    EXPECT_TRUE(told.contains("80 more files have a file name in the manifest that is none"));
}

TEST(Manifest, ListsTheFilesBelowADirectoryInOrder)
{
    Fixture fixture;
    fixture.builder.addMissing(kHome, "a/z")
        .addMissing(kHome, "a/b/c")
        .addMissing(kHome, "a")
        .addMissing(kHome, "ab")
        .addMissing(kHome, "a-b")
        .addMissing(kHome, "a0")
        .addMissing("MediaDomain", "a/media")
        .addDirectory(kHome, "a/folder")
        .addLink(kHome, "a/link");
    Manifest manifest = fixture.open();
    EXPECT_EQ(manifest.filesBelow(kHome, "a"), QStringList({"a/b/c", "a/z"}));
    EXPECT_EQ(manifest.filesBelow(kHome, "a/"), QStringList({"a/b/c", "a/z"}));
    EXPECT_EQ(manifest.filesBelow(kHome, "a/b"), QStringList("a/b/c"));
    EXPECT_EQ(manifest.filesBelow(kHome, "none"), QStringList());
    EXPECT_EQ(
        manifest.filesBelow(kHome, ""), QStringList({"a", "a-b", "a/b/c", "a/z", "a0", "ab"}));
}

TEST(Manifest, ListsADirectoryThatIsStoredInTheOtherUnicodeForm)
{
    Fixture fixture;
    fixture.builder.addMissing(kHome, kDecomposed + "/x");
    Manifest manifest = fixture.open();
    EXPECT_EQ(manifest.filesBelow(kHome, kComposed), QStringList(kDecomposed + "/x"));
}

TEST(Manifest, FindsAFileOfAnotherDomainByItsPath)
{
    Fixture fixture;
    fixture.builder.addMissing("AppDomain-com.example.b", "Library/x.db")
        .addMissing("AppDomain-com.example.a", "Library/x.db")
        .addMissing("AppDomain-com.example.0", "Other/Library/x.db");
    Manifest manifest = fixture.open();
    const auto entry = manifest.findInAnyDomain("Library/x.db");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->domain, "AppDomain-com.example.a");
    EXPECT_EQ(entry->relativePath, "Library/x.db");
}

TEST(Manifest, FindsAFileOfAnotherDomainByTheEndOfItsPath)
{
    Fixture fixture;
    fixture.builder.addMissing(kHome, "Library/myx.db").addMissing(kHome, "Library/X.db");
    fixture.builder.addDirectory(kHome, "Folder/x.db").addMissing(kHome, "Library/Deep/x.db");
    Manifest manifest = fixture.open();
    const auto entry = manifest.findInAnyDomain("x.db");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->relativePath, "Library/Deep/x.db");
    EXPECT_FALSE(manifest.findInAnyDomain("%.db"));
    EXPECT_FALSE(manifest.findInAnyDomain("y.db"));
}

TEST(Manifest, TakesALogInThatLiesBesideIt)
{
    const support::TempTree tree;
    const DatabaseBytes bytes = databaseBytes(
        {"CREATE TABLE Files (fileID TEXT PRIMARY KEY, domain TEXT, relativePath TEXT, flags "
         "INTEGER, file BLOB)"},
        {"INSERT INTO Files VALUES ('" + BackupBuilder::fileId("D", "p")
            + "', 'D', 'p', 1, NULL)"});
    tree.write("Manifest.db", bytes.file);
    tree.write("Manifest.db-wal", bytes.log);
    Notices notices;
    auto manifest = Manifest::open(tree.path("Manifest.db"), notices);
    ASSERT_TRUE(manifest) << manifest.error().text().toStdString();
    EXPECT_TRUE(manifest->find("D", "p"));
    EXPECT_EQ(tree.read("Manifest.db-wal"), bytes.log);
}

TEST(Manifest, IsNoneWithoutItsTableAndColumns)
{
    struct Row {
        const char* what;
        QString statement;
        QString expected;
    };
    const Row rows[] = {
        {"another table", "CREATE TABLE Things (fileID, domain, relativePath, flags)",
            "it has no table Files"},
        {"no fileID", "CREATE TABLE Files (domain, relativePath, flags)",
            "its table Files has no column fileID"},
        {"no domain", "CREATE TABLE Files (fileID, relativePath, flags)",
            "its table Files has no column domain"},
        {"no path", "CREATE TABLE Files (fileID, domain, flags)",
            "its table Files has no column relativePath"},
        {"no flags", "CREATE TABLE Files (fileID, domain, relativePath)",
            "its table Files has no column flags"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const support::TempTree tree;
        tree.write("Manifest.db", databaseBytes({row.statement}).file);
        EXPECT_EQ(errorOf(tree),
            tree.path("Manifest.db") + ": this is no manifest of a backup: " + row.expected);
    }
}

TEST(Manifest, NeedsNoColumnThatIsNotRead)
{
    const support::TempTree tree;
    tree.write("Manifest.db",
        databaseBytes({"CREATE TABLE Files (fileID, domain, relativePath, flags)"}).file);
    EXPECT_EQ(errorOf(tree), "no error");
}

TEST(Manifest, TellsWhenItIsDamagedHalfway)
{
    Fixture fixture;
    for (int i = 0; i < 2000; ++i) {
        fixture.builder.addMissing(kHome, QString("file%1").arg(i));
    }
    fixture.builder.finish();
    // The first page, which holds the schema, stays.
    QByteArray bytes = fixture.tree.read("Manifest.db");
    bytes.replace(4096, bytes.size() - 4096, QByteArray(bytes.size() - 4096, '\xFF'));
    fixture.tree.write("Manifest.db", bytes);

    auto manifest = Manifest::open(fixture.tree.path("Manifest.db"), fixture.notices);
    ASSERT_TRUE(manifest) << manifest.error().text().toStdString();
    EXPECT_FALSE(manifest->find(kHome, "file7"));
    EXPECT_EQ(
        fixture.notices.sentences(), QStringList(fixture.tree.path("Manifest.db")
                                                 + ": the manifest is damaged (database disk image "
                                                   "is malformed); files may be missing"));
}

TEST(Manifest, AnswersQuicklyOnAHundredThousandFiles)
{
    Fixture fixture;
    for (int i = 0; i < 100000; ++i) {
        fixture.builder.addMissing("CameraRollDomain", QString("Media/DCIM/IMG_%1.HEIC").arg(i));
    }
    fixture.builder.finish();

    QElapsedTimer clock;
    clock.start();
    auto manifest = Manifest::open(fixture.tree.path("Manifest.db"), fixture.notices);
    ASSERT_TRUE(manifest);
    for (int i = 0; i < 10000; ++i) {
        EXPECT_TRUE(
            manifest->find("CameraRollDomain", QString("Media/DCIM/IMG_%1.HEIC").arg(i * 10)));
    }
    EXPECT_FALSE(manifest->findInAnyDomain("ChatStorage.sqlite"));
    // Without its indexes this takes minutes.
    EXPECT_LT(clock.elapsed(), 10000);
    RecordProperty("milliseconds", static_cast<int>(clock.elapsed()));
}

} // namespace

} // namespace backup
