// SPDX-License-Identifier: MIT
#include "LazyTableTest.h"

namespace {

constexpr int kBookmarks = 33;

// The folders that each phone has.
QStringList store(const QStringList& more)
{
    return QStringList{
               R"(CREATE TABLE bookmarks (id INTEGER PRIMARY KEY, special_id INTEGER DEFAULT 0,
            parent INTEGER, type INTEGER, title TEXT, url TEXT, hidden INTEGER DEFAULT 0,
            order_index INTEGER NOT NULL DEFAULT 0, read INTEGER DEFAULT NULL,
            deleted INTEGER DEFAULT 0, extra_attributes BLOB))",
               "CREATE TABLE folder_ancestors (folder_id INTEGER, ancestor_id INTEGER)",
               R"(INSERT INTO bookmarks (id, special_id, parent, type, title, hidden, order_index)
            VALUES (0, 0, NULL, 1, 'Root', 0, 0), (1, 1, 0, 1, 'BookmarksBar', 0, 0),
            (2, 3, 0, 1, 'com.apple.ReadingList', 1, 1),
            (3, 5, 0, 1, 'com.apple.FrequentlyVisitedSites', 1, 3),
            (4, 2, 0, 1, 'BookmarksMenu', 0, 0))",
           }
           + more;
}

QString folder(int id, int parent, const QString& title)
{
    return QString("INSERT INTO bookmarks (id, parent, type, title) VALUES (%1, %2, 1, '%3')")
        .arg(id)
        .arg(parent)
        .arg(title);
}

QString leaf(const QString& columns, const QString& values)
{
    return QString("INSERT INTO bookmarks (type, parent, title, url%1) VALUES (0, %2)")
        .arg(columns, values);
}

QString hex(const QByteArray& bytes)
{
    return "x'" + bytes.toHex() + "'";
}

class BookmarkDataTest : public LazyTableTest {};

TEST_F(BookmarkDataTest, BookmarkHasTitleAddressAndItsSiteAsLabel)
{
    openFile(store({leaf("", "0, 'Guide', 'https://help.example.com/iphone'"),
        leaf("", "0, '', 'https://www.example.org/a'"), leaf("", "0, NULL, 'javascript:alert(1)'"),
        leaf("", "0, 'x', 'tides/today'")}));
    EXPECT_EQ(lines(kBookmarks),
        QStringList({"[] | Guide | https://help.example.com/iphone | help.example.com",
            "[] | https://www.example.org/a | https://www.example.org/a | example.org",
            "[] | javascript:alert(1) | javascript:alert(1) | javascript",
            "[] | x | tides/today | tides"}));
    EXPECT_EQ(notices(""), QStringList());
}

TEST_F(BookmarkDataTest, FavouritesAndTheMenuAreTopLevel)
{
    openFile(store({leaf("", "1, 'a', 'https://a.example'"),
        leaf("", "4, 'b', 'https://b.example'"), leaf("", "0, 'c', 'https://c.example'"),
        leaf("", "NULL, 'd', 'https://d.example'"), leaf("", "99, 'e', 'https://e.example'")}));
    for (const QString& line : lines(kBookmarks)) {
        EXPECT_TRUE(line.startsWith("[] |")) << line.toStdString();
    }
    EXPECT_EQ(lines(kBookmarks).size(), 5);
}

TEST_F(BookmarkDataTest, FolderInAFolderIsAPath)
{
    openFile(store({folder(10, 1, "Travel"), folder(11, 10, "Norway"),
        leaf("", "11, 'Ferry', 'https://ferry.example'"),
        leaf("", "10, 'Trains', 'https://trains.example'")}));
    EXPECT_EQ(lines(kBookmarks),
        QStringList({"[Travel] | Trains | https://trains.example | trains.example",
            "[Travel / Norway] | Ferry | https://ferry.example | ferry.example"}));
}

TEST_F(BookmarkDataTest, BookmarksOfAFolderStandInItsOrder)
{
    openFile(store({leaf(", order_index", "1, 'c', 'https://x', 2"),
        leaf(", order_index", "1, 'a', 'https://x', 0"),
        leaf(", order_index", "1, 'b', 'https://x', 1")}));
    EXPECT_EQ(column(kBookmarks, 0), QStringList({"a", "b", "c"}));
}

TEST_F(BookmarkDataTest, ReadingListShowsWhenAPageWasAdded)
{
    const QByteArray attributes = propertyList(
        "<key>com.apple.ReadingList</key><dict><key>DateAdded</key>"
        "<date>2024-05-06T07:08:09Z</date><key>PreviewText</key><string>p</string></dict>");
    openFile(store(
        {leaf(", read, extra_attributes", "2, 'Tides', 'https://t.example', 0, " + hex(attributes)),
            leaf(", read, extra_attributes", "2, 'Odd', 'https://o.example', 1, x'62706c'"),
            leaf(", read, extra_attributes", "2, 'None', 'https://n.example', 1, NULL")}));
    EXPECT_EQ(lines(kBookmarks),
        QStringList({"[Reading List] | Tides | https://t.example | 2024-05-06 09:08",
            "[Reading List] | Odd | https://o.example | o.example",
            "[Reading List] | None | https://n.example | n.example"}));
}

TEST_F(BookmarkDataTest, DeletedBookmarkAndWhatLiesInADeletedFolderAreMarked)
{
    openFile(store({folder(10, 1, "Old"), "UPDATE bookmarks SET deleted = 1 WHERE id = 10",
        leaf(", deleted", "1, 'a', 'https://a.example', 1"),
        leaf("", "10, 'b', 'https://b.example'"), leaf("", "1, 'c', 'https://c.example'")}));
    EXPECT_EQ(lines(kBookmarks), QStringList({"x [] | a | https://a.example | a.example",
                                     "[] | c | https://c.example | c.example",
                                     "x [Old] | b | https://b.example | b.example"}));
}

TEST_F(BookmarkDataTest, WhatThePhoneDoesNotShowIsLeftOut)
{
    openFile(store({leaf("", "3, 'frequent', 'https://f.example'"),
        leaf(", hidden", "1, 'hidden', 'https://h.example', 1"), leaf("", "1, 'no address', NULL"),
        leaf("", "1, 'empty address', ''"), folder(10, 0, "secret"),
        "UPDATE bookmarks SET hidden = 1 WHERE id = 10",
        leaf("", "10, 'in it', 'https://i.example'"),
        leaf(", hidden, read", "2, 'shown', 'https://s.example', 1, 0")}));
    EXPECT_EQ(column(kBookmarks, 0), QStringList("shown"));
}

TEST_F(BookmarkDataTest, FoldersInARingAreNamedOnce)
{
    openFile(store({folder(10, 11, "a"), folder(11, 10, "b"), folder(12, 12, "c"),
        leaf("", "10, 'x', 'https://x.example'"), leaf("", "12, 'y', 'https://y.example'")}));
    EXPECT_EQ(lines(kBookmarks), QStringList({"[b / a] | x | https://x.example | x.example",
                                     "[c] | y | https://y.example | y.example"}));
}

TEST_F(BookmarkDataTest, OpenTabsAreNoBookmarks)
{
    writeFile(m_directory.filePath("tabs.db"),
        databaseBytes(store({"CREATE TABLE windows (id INTEGER)"})).file);
    EXPECT_FALSE(backup::openDatabaseFile(m_directory.filePath("tabs.db")).has_value());
}

TEST_F(BookmarkDataTest, StoreInTheAppsOwnDomainIsFound)
{
    builder().addDatabase("AppDomain-com.apple.mobilesafari", "Library/Safari/Bookmarks.db",
        store({leaf("", "1, 'a', 'https://a.example'")}));
    openFolder();
    EXPECT_EQ(column(kBookmarks, 0), QStringList("a"));
}

TEST_F(BookmarkDataTest, MissingColumnsAreToldAndTheRestIsThere)
{
    openFile({"CREATE TABLE bookmarks (id INTEGER PRIMARY KEY, url TEXT, title TEXT)",
        "INSERT INTO bookmarks VALUES (1, 'https://a.example', 'a')"});
    EXPECT_EQ(lines(kBookmarks), QStringList("[] | a | https://a.example | a.example"));
    EXPECT_EQ(notices("parent").size(), 1);
    EXPECT_EQ(notices("type").size(), 1);
}

TEST_F(BookmarkDataTest, OldPropertyListIsRead)
{
    const QString leafText = "<dict><key>WebBookmarkType</key><string>WebBookmarkTypeLeaf</string>"
                             "<key>URLString</key><string>%1</string><key>URIDictionary</key><dict>"
                             "<key>title</key><string>%2</string></dict></dict>";
    const QString list = "<key>WebBookmarkType</key><string>WebBookmarkTypeList</string>"
                         "<key>Title</key><string>%1</string><key>Children</key><array>%2</array>";
    const QString travel =
        "<dict>" + list.arg("Travel", leafText.arg("https://t.example", "Trains")) + "</dict>";
    const QString bar =
        "<dict>"
        + list.arg("BookmarksBar", leafText.arg("https://a.example", "") + travel + "<string/>")
        + "</dict>";
    builder().add("HomeDomain", "Library/Safari/Bookmarks.plist", propertyList(list.arg("", bar)));
    openFolder();
    EXPECT_EQ(
        lines(kBookmarks), QStringList({"[] | https://a.example | https://a.example | a.example",
                               "[Travel] | Trains | https://t.example | t.example"}));
}

TEST_F(BookmarkDataTest, OldPropertyListIsPassedOverBesideADatabase)
{
    builder()
        .addDatabase("HomeDomain", "Library/Safari/Bookmarks.db", store({}))
        .add("HomeDomain", "Library/Safari/Bookmarks.plist", "damaged");
    openFolder();
    EXPECT_EQ(lines(kBookmarks), QStringList());
    EXPECT_EQ(notices("plist"), QStringList());
}

TEST_F(BookmarkDataTest, DamagedPropertyListIsTold)
{
    builder().add("HomeDomain", "Library/Safari/Bookmarks.plist", "damaged");
    openFolder();
    EXPECT_EQ(notices("Bookmarks.plist").size(), 1);
}

} // namespace
