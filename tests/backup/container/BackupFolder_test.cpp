// SPDX-License-Identifier: MIT
#include "backup/container/BackupFolder.h"
#include "backup/container/Notices.h"
#include "support/backup_builder.h"
#include "support/temp_tree.h"

#include <gtest/gtest.h>

namespace backup {

namespace {

const QString kHome = "HomeDomain";
const QStringList kTwoRows = {
    "CREATE TABLE t (n INTEGER)", "INSERT INTO t VALUES (1)", "INSERT INTO t VALUES (2)"};
const QStringList kThirdRow = {"INSERT INTO t VALUES (3)"};

class Fixture {
public:
    Fixture() : builder(tree.path()) {}

    std::unique_ptr<BackupFolder> open()
    {
        builder.finish();
        auto folder = BackupFolder::open(tree.path(), notices);
        EXPECT_TRUE(folder) << folder.error().text().toStdString();
        return std::move(*folder);
    }

    support::TempTree tree;
    Notices notices;
    BackupBuilder builder;
};

qint64 rowsIn(const std::optional<formats::Result<OpenedDatabase>>& opened)
{
    EXPECT_TRUE(opened && *opened);
    if (!opened || !*opened) {
        return -1;
    }
    auto query = (*opened)->database.prepare("SELECT count(*) FROM t");
    return query && query->next() ? query->integer(0) : -1;
}

QString missing(const QString& name)
{
    return name + ": the manifest names this file, and the backup folder lacks it";
}

TEST(BackupFolder, LocatesAPayloadInItsSubfolder)
{
    Fixture fixture;
    fixture.builder.add(kHome, "a/b", "x");
    const auto folder = fixture.open();
    EXPECT_EQ(folder->locate(kHome, "a/b"), fixture.builder.payloadPath(kHome, "a/b"));
    EXPECT_EQ(folder->locate(kHome, "a/c"), "");
    EXPECT_EQ(fixture.notices.sentences(), QStringList());
}

TEST(BackupFolder, LocatesAPayloadBesideTheManifest)
{
    Fixture fixture;
    fixture.builder.addMissing(kHome, "a/b");
    const QString flat = fixture.tree.write(BackupBuilder::fileId(kHome, "a/b"), "x");
    EXPECT_EQ(fixture.open()->locate(kHome, "a/b"), flat);
}

TEST(BackupFolder, PrefersThePayloadInTheSubfolder)
{
    Fixture fixture;
    fixture.builder.add(kHome, "a/b", "x");
    fixture.tree.write(BackupBuilder::fileId(kHome, "a/b"), "x");
    EXPECT_EQ(fixture.open()->locate(kHome, "a/b"), fixture.builder.payloadPath(kHome, "a/b"));
}

TEST(BackupFolder, LocatesANameInTheOtherUnicodeForm)
{
    const QString composed = QString::fromUtf8("\xC3\xA9.jpg");
    const QString decomposed = QString::fromUtf8("e\xCC\x81.jpg");
    Fixture fixture;
    fixture.builder.add(kHome, decomposed, "x");
    EXPECT_EQ(
        fixture.open()->locate(kHome, composed), fixture.builder.payloadPath(kHome, decomposed));
}

TEST(BackupFolder, HasNoPayloadForADirectoryOrALink)
{
    Fixture fixture;
    fixture.builder.addDirectory(kHome, "folder").addLink(kHome, "link");
    const auto folder = fixture.open();
    EXPECT_EQ(folder->locate(kHome, "folder"), "");
    EXPECT_EQ(folder->locate(kHome, "link"), "");
    EXPECT_EQ(fixture.notices.sentences(), QStringList());
}

TEST(BackupFolder, UsesNoFileNameThatIsNone)
{
    Fixture fixture;
    fixture.tree.write("secret", "x");
    const auto folder = fixture.open();
    for (const char* fileId : {"secret", "../secret", ""}) {
        EXPECT_EQ(folder->payloadPath({.fileId = fileId,
                      .domain = kHome,
                      .relativePath = "a",
                      .flags = ManifestEntry::RegularFile}),
            "");
    }
}

TEST(BackupFolder, FollowsNoLinkInPlaceOfAPayload)
{
    Fixture fixture;
    fixture.builder.addMissing(kHome, "nested").addMissing(kHome, "flat").addMissing(kHome, "far");
    const QString outside = fixture.tree.write("outside", "x");
    const QString nested = BackupBuilder::fileId(kHome, "nested");
    const QString far = BackupBuilder::fileId(kHome, "far");
    fixture.tree.makeDir(nested.left(2));
    fixture.tree.link(nested.left(2) + "/" + nested, outside);
    fixture.tree.link(BackupBuilder::fileId(kHome, "flat"), outside);
    fixture.tree.write("elsewhere/" + far, "x");
    fixture.tree.link(far.left(2), fixture.tree.path("elsewhere"));

    const auto folder = fixture.open();
    for (const char* name : {"nested", "flat", "far"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(folder->locate(kHome, name), "");
        EXPECT_TRUE(fixture.notices.sentences().contains(missing("HomeDomain/" + QString(name))));
    }
}

TEST(BackupFolder, TakesNoFolderForAPayload)
{
    Fixture fixture;
    fixture.builder.addMissing(kHome, "a");
    const QString id = BackupBuilder::fileId(kHome, "a");
    fixture.tree.makeDir(id.left(2) + "/" + id);
    EXPECT_EQ(fixture.open()->locate(kHome, "a"), "");
}

TEST(BackupFolder, TellsOfAFileThatTheFolderLacks)
{
    Fixture fixture;
    fixture.builder.addMissing(kHome, "a");
    const auto folder = fixture.open();
    EXPECT_EQ(folder->locate(kHome, "a"), "");
    EXPECT_EQ(folder->locate(kHome, "a"), "");
    EXPECT_EQ(fixture.notices.sentences(), QStringList(missing("HomeDomain/a")));
}

TEST(BackupFolder, CountsMissingFilesInsteadOfNamingThemAll)
{
    Fixture fixture;
    for (int i = 0; i < 10000; ++i) {
        fixture.builder.addMissing(kHome, QString::number(i));
    }
    const auto folder = fixture.open();
    for (int i = 0; i < 10000; ++i) {
        EXPECT_EQ(folder->locate(kHome, QString::number(i)), "");
    }
    ASSERT_EQ(fixture.notices.sentences().size(), 21);
    EXPECT_EQ(fixture.notices.sentences().last(),
        "9980 more files are named by the manifest and missing in the backup folder");
}

TEST(BackupFolder, ListsFilesWhetherTheyAreThereOrNot)
{
    Fixture fixture;
    fixture.builder.add(kHome, "a/there", "x").addMissing(kHome, "a/missing");
    EXPECT_EQ(fixture.open()->filesBelow(kHome, "a"), QStringList({"a/missing", "a/there"}));
    EXPECT_EQ(fixture.notices.sentences(), QStringList());
}

TEST(BackupFolder, StaysWithItsFolderWhenTheProgramMovesOn)
{
    Fixture fixture;
    fixture.builder.add(kHome, "a", "x").finish();
    const QString before = QDir::currentPath();
    QDir::setCurrent(fixture.tree.path());
    const auto folder = BackupFolder::open(".", fixture.notices);
    QDir::setCurrent(before);
    ASSERT_TRUE(folder);
    EXPECT_TRUE(QFile::exists((*folder)->locate(kHome, "a")));
}

TEST(OpenDatabase, ReadsThePayloadInPlace)
{
    Fixture fixture;
    fixture.builder.addDatabase(kHome, "Library/x.db", kTwoRows);
    const auto opened = fixture.open()->openDatabase(kHome, "Library/x.db");
    EXPECT_EQ(rowsIn(opened), 2);
    EXPECT_EQ((*opened)->database.path(), fixture.builder.payloadPath(kHome, "Library/x.db"));
}

TEST(OpenDatabase, TakesInTheLogThatIsAFileOfItsOwn)
{
    Fixture fixture;
    fixture.builder.addDatabaseWithLog(kHome, "Library/x.db", kTwoRows, kThirdRow);
    const auto opened = fixture.open()->openDatabase(kHome, "Library/x.db");
    EXPECT_EQ(rowsIn(opened), 3);
    EXPECT_EQ(QFileInfo((*opened)->database.path()).fileName(), "x.db");
    EXPECT_EQ(fixture.notices.sentences(), QStringList());
}

TEST(OpenDatabase, ReadsInPlaceWhereTheLogIsEmpty)
{
    Fixture fixture;
    fixture.builder.addDatabase(kHome, "x.db", kTwoRows).add(kHome, "x.db-wal", "");
    const auto opened = fixture.open()->openDatabase(kHome, "x.db");
    EXPECT_EQ(rowsIn(opened), 2);
    EXPECT_EQ((*opened)->scratch, nullptr);
}

TEST(OpenDatabase, TellsWhenTheLogIsMissing)
{
    Fixture fixture;
    fixture.builder.addDatabase(kHome, "x.db", kTwoRows).addMissing(kHome, "x.db-wal");
    EXPECT_EQ(rowsIn(fixture.open()->openDatabase(kHome, "x.db")), 2);
    EXPECT_EQ(fixture.notices.sentences(), QStringList(missing("HomeDomain/x.db-wal")));
}

TEST(OpenDatabase, LeavesOutALogThatDoesNotFit)
{
    Fixture fixture;
    fixture.builder.addDatabase(kHome, "x.db",
        {"CREATE TABLE t (n INTEGER, body TEXT)",
            "WITH RECURSIVE c(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM c WHERE n < 500) INSERT "
            "INTO t SELECT n, hex(randomblob(100)) FROM c"});
    fixture.builder.add(kHome, "x.db-wal",
        databaseBytes({"CREATE TABLE other (n)"}, {"INSERT INTO other VALUES (1)"}).log);
    EXPECT_EQ(rowsIn(fixture.open()->openDatabase(kHome, "x.db")), 500);
    EXPECT_EQ(fixture.notices.sentences(),
        QStringList("HomeDomain/x.db: its log does not fit and is left out; the newest changes are "
                    "missing"));
}

TEST(OpenDatabase, TakesItsOwnDomainFirst)
{
    Fixture fixture;
    fixture.builder.addDatabase("AppDomain-a", "x.db", {"CREATE TABLE t (n)"})
        .addDatabase("AppDomain-b", "x.db", kTwoRows);
    EXPECT_EQ(rowsIn(fixture.open()->openDatabase("AppDomain-b", "x.db")), 2);
}

TEST(OpenDatabase, SearchesTheOtherDomains)
{
    Fixture fixture;
    fixture.builder.addDatabaseWithLog("AppDomain-a", "Library/x.db", kTwoRows, kThirdRow)
        .addLink(kHome, "Library/x.db")
        .addDatabase("AppDomain-b", "Old/y.db", kTwoRows);
    const auto folder = fixture.open();
    EXPECT_EQ(rowsIn(folder->openDatabase(kHome, "Library/x.db")), 3);
    EXPECT_EQ(rowsIn(folder->openDatabase(kHome, "y.db")), 2);
}

TEST(OpenDatabase, HasNoneWhereTheManifestHasNone)
{
    Fixture fixture;
    fixture.builder.addDirectory(kHome, "x.db").addLink(kHome, "y.db");
    const auto folder = fixture.open();
    EXPECT_FALSE(folder->openDatabase(kHome, "x.db"));
    EXPECT_FALSE(folder->openDatabase(kHome, "y.db"));
    EXPECT_FALSE(folder->openDatabase(kHome, "z.db"));
    EXPECT_EQ(fixture.notices.sentences(), QStringList());
}

TEST(OpenDatabase, NamesTheMissingPayload)
{
    Fixture fixture;
    fixture.builder.addMissing(kHome, "Library/SMS/sms.db");
    const auto opened = fixture.open()->openDatabase(kHome, "Library/SMS/sms.db");
    ASSERT_TRUE(opened);
    ASSERT_FALSE(*opened);
    EXPECT_EQ(opened->error().text(),
        "HomeDomain/Library/SMS/sms.db: its file 3d/3d0d7e5fb2ce288813306e4d4636395e047a3d28 is "
        "missing in the backup folder");
}

TEST(OpenDatabase, NamesTheDatabaseThatCannotBeRead)
{
    Fixture fixture;
    fixture.builder.add(kHome, "x.db", "Dear diary");
    const auto opened = fixture.open()->openDatabase(kHome, "x.db");
    ASSERT_TRUE(opened);
    ASSERT_FALSE(*opened);
    EXPECT_EQ(opened->error().text(),
        "HomeDomain/x.db: this is not a database that can be read (file is not a database)");
}

} // namespace

} // namespace backup
