// SPDX-License-Identifier: MIT
#include "backup/container/LooseFiles.h"
#include "support/temp_tree.h"

#include <gtest/gtest.h>

namespace backup {

namespace {

const QString kMedia = "MediaDomain";
const QString kCat = "Library/SMS/Attachments/0a/cat.jpg";

class Fixture {
public:
    LooseFiles files() const { return LooseFiles(QDir(tree.path("beside"))); }
    QString write(const QString& relative) const { return tree.write("beside/" + relative, "x"); }

    support::TempTree tree;
};

TEST(LooseFiles, LocatesAFileByAnyEndOfItsPath)
{
    for (const char* place :
        {"Library/SMS/Attachments/0a/cat.jpg", "Attachments/0a/cat.jpg", "0a/cat.jpg", "cat.jpg"}) {
        SCOPED_TRACE(place);
        const Fixture fixture;
        const QString path = fixture.write(place);
        EXPECT_EQ(fixture.files().locate(kMedia, kCat), path);
    }
}

TEST(LooseFiles, PrefersTheLongestEnd)
{
    const Fixture fixture;
    fixture.write("cat.jpg");
    const QString longer = fixture.write("Attachments/0a/cat.jpg");
    fixture.write("0a/cat.jpg");
    EXPECT_EQ(fixture.files().locate(kMedia, kCat), longer);
}

TEST(LooseFiles, LocatesNothingElse)
{
    const Fixture fixture;
    fixture.write("deep/cat.jpg");
    fixture.tree.makeDir("beside/0a/cat.jpg");
    fixture.tree.write("cat.jpg", "x");
    EXPECT_EQ(fixture.files().locate(kMedia, kCat), "");
    EXPECT_EQ(fixture.files().locate(kMedia, ""), "");
    EXPECT_EQ(fixture.files().locate(kMedia, "/"), "");
}

TEST(LooseFiles, LocatesANameInTheOtherUnicodeForm)
{
    const Fixture fixture;
    const QString path = fixture.write(QString::fromUtf8("e\xCC\x81.jpg"));
    EXPECT_EQ(fixture.files().locate(kMedia, QString::fromUtf8("a/\xC3\xA9.jpg")), path);
}

TEST(LooseFiles, NeverLeavesItsDirectory)
{
    const Fixture fixture;
    fixture.write("inside.txt");
    fixture.write("sub/inside.txt");
    const QString outside = fixture.tree.write("outside.txt", "x");
    const QStringList paths = {"../outside.txt", "sub/../../outside.txt", outside,
        "sub/../inside.txt", "..\\outside.txt", "/inside.txt"};
    for (const QString& path : paths) {
        SCOPED_TRACE(path.toStdString());
        EXPECT_EQ(fixture.files().locate(kMedia, path), "");
    }
    EXPECT_EQ(fixture.files().filesBelow(kMedia, "sub/../.."), QStringList());
}

TEST(LooseFiles, FollowsLinksOnlyWithinItsDirectory)
{
    const Fixture fixture;
    const QString inside = fixture.write("real.txt");
    const QString outside = fixture.tree.write("elsewhere/outside.txt", "x");
    const QString good = fixture.tree.link("beside/good.txt", inside);
    fixture.tree.link("beside/bad.txt", outside);
    fixture.tree.link("beside/folder", fixture.tree.path("elsewhere"));
    EXPECT_EQ(fixture.files().locate(kMedia, "good.txt"), good);
    EXPECT_EQ(fixture.files().locate(kMedia, "bad.txt"), "");
    EXPECT_EQ(fixture.files().locate(kMedia, "folder/outside.txt"), "");
    EXPECT_EQ(fixture.files().filesBelow(kMedia, "folder"), QStringList());
}

TEST(LooseFiles, TakesADirectoryOfALikeNameForAnother)
{
    const Fixture fixture;
    fixture.tree.write("beside2/outside.txt", "x");
    fixture.tree.makeDir("beside");
    fixture.tree.link("beside/link.txt", fixture.tree.path("beside2/outside.txt"));
    EXPECT_EQ(fixture.files().locate(kMedia, "link.txt"), "");
}

TEST(LooseFiles, HasNothingWhereItsDirectoryIsGone)
{
    const Fixture fixture;
    EXPECT_EQ(fixture.files().locate(kMedia, kCat), "");
    EXPECT_EQ(fixture.files().filesBelow(kMedia, "Library"), QStringList());
}

TEST(LooseFiles, ListsTheFilesBelowADirectoryByTheirPathOnTheDevice)
{
    for (const char* place : {"Library/SMS/Attachments", "SMS/Attachments", "Attachments"}) {
        SCOPED_TRACE(place);
        const Fixture fixture;
        fixture.write(QString(place) + "/b.jpg");
        fixture.write(QString(place) + "/0a/a.jpg");
        fixture.write("c.jpg");
        const QStringList listed = fixture.files().filesBelow(kMedia, "Library/SMS/Attachments/");
        EXPECT_EQ(listed,
            QStringList({"Library/SMS/Attachments/0a/a.jpg", "Library/SMS/Attachments/b.jpg"}));
        EXPECT_NE(fixture.files().locate(kMedia, listed.first()), "");
    }
}

TEST(LooseFiles, ListsNothingForNoDirectory)
{
    const Fixture fixture;
    fixture.write("a.jpg");
    EXPECT_EQ(fixture.files().filesBelow(kMedia, ""), QStringList());
    EXPECT_EQ(fixture.files().filesBelow(kMedia, "a.jpg"), QStringList());
}

} // namespace

} // namespace backup
