// SPDX-License-Identifier: MIT
#include "NoteStoreTest.h"

namespace {

const QStringList kSchema{
    R"(CREATE TABLE ZNOTE (Z_PK INTEGER PRIMARY KEY, ZTITLE, ZSUMMARY, ZCREATIONDATE,
       ZMODIFICATIONDATE, ZBODY, ZSTORE, ZDELETEDFLAG, ZISBOOKKEEPINGENTRY))",
    "CREATE TABLE ZNOTEBODY (Z_PK INTEGER PRIMARY KEY, ZOWNER, ZCONTENT)",
    "CREATE TABLE ZSTORE (Z_PK INTEGER PRIMARY KEY, ZNAME, ZACCOUNT)",
    "CREATE TABLE ZACCOUNT (Z_PK INTEGER PRIMARY KEY, ZNAME)",
    "CREATE TABLE ZNOTEATTACHMENT (Z_PK INTEGER PRIMARY KEY, ZNOTE, ZCONTENTID, ZFILENAME)"};

class OldNoteStoreTest : public NoteStoreTest {
protected:
    void openOld(const QStringList& rows, const QStringList& schema = kSchema)
    {
        backup().addDatabase("HomeDomain", "Library/Notes/notes.sqlite", schema + rows);
        openBackup();
    }
};

TEST_F(OldNoteStoreTest, NotesHaveTextFolderAndDates)
{
    openOld({"INSERT INTO ZACCOUNT VALUES (1, 'Mail')", "INSERT INTO ZSTORE VALUES (1, 'Notes', 1)",
        "INSERT INTO ZNOTEBODY VALUES (7, 1, 'Rope<div>Lamp &amp; tea</div>')",
        "INSERT INTO ZNOTE VALUES (1, 'Rope', 'Lamp', 600000000, 600000060.5, 7, 1, 0, 0)"});
    EXPECT_EQ(column(0), QStringList("Rope"));
    EXPECT_EQ(column(1), QStringList("Notes"));
    EXPECT_EQ(column(2), QStringList("2020-01-06 12:40"));
    EXPECT_EQ(column(3), QStringList("2020-01-06 12:41"));
    EXPECT_EQ(column(4), QStringList("Rope\nLamp & tea"));
    EXPECT_EQ(note(0)->notePieces().size(), 1);
    EXPECT_EQ(files()->count(1), 0);
    EXPECT_EQ(notices(), QStringList());
}

TEST_F(OldNoteStoreTest, DeletedOnesAreMarkedAndOnesOfTheStoreLeftOut)
{
    openOld({"INSERT INTO ZNOTE (ZTITLE, ZDELETEDFLAG) VALUES ('gone', 1)",
        "INSERT INTO ZNOTE (ZTITLE, ZISBOOKKEEPINGENTRY) VALUES ('not a note', 1)"});
    EXPECT_EQ(column(0), QStringList("gone"));
    EXPECT_TRUE(note(0)->flag(Deleted));
    EXPECT_EQ(column(4), QStringList(""));
}

TEST_F(OldNoteStoreTest, ImagesAreShownByTheirNames)
{
    openOld({R"(INSERT INTO ZNOTEBODY VALUES (1, 1, 'a<img src="cid:X@1"><img src="cid:Y">'))",
        "INSERT INTO ZNOTE (ZTITLE, ZBODY) VALUES ('a', 1)",
        "INSERT INTO ZNOTEATTACHMENT VALUES (1, 1, 'X@1', 'knot.jpg')"});
    EXPECT_EQ(column(4), QStringList("a[knot.jpg][Attachment]"));
}

TEST_F(OldNoteStoreTest, StoreMayLackTablesAndColumns)
{
    openOld({"INSERT INTO ZNOTEBODY VALUES (1, 'text')", "INSERT INTO ZNOTE VALUES (1, 'a', 1)"},
        {"CREATE TABLE ZNOTE (Z_PK INTEGER PRIMARY KEY, ZTITLE, ZBODY)",
            "CREATE TABLE ZNOTEBODY (Z_PK INTEGER PRIMARY KEY, ZCONTENT)"});
    EXPECT_EQ(column(0), QStringList("a"));
    EXPECT_EQ(column(1), QStringList(""));
    EXPECT_EQ(column(4), QStringList("text"));
}

TEST_F(OldNoteStoreTest, BodyMayNameItsNoteInstead)
{
    openOld({"INSERT INTO ZNOTEBODY VALUES (5, 1, 'text')", "INSERT INTO ZSTORE VALUES (1, 'S')",
                "INSERT INTO ZACCOUNT VALUES (1, 'A')", "INSERT INTO ZNOTE VALUES (1, 'a', 1)"},
        {"CREATE TABLE ZNOTE (Z_PK INTEGER PRIMARY KEY, ZTITLE, ZSTORE)",
            "CREATE TABLE ZNOTEBODY (Z_PK INTEGER PRIMARY KEY, ZOWNER, ZCONTENT)",
            "CREATE TABLE ZSTORE (Z_PK INTEGER PRIMARY KEY, ZNAME)",
            "CREATE TABLE ZACCOUNT (Z_PK INTEGER PRIMARY KEY, ZNAME)"});
    EXPECT_EQ(column(1), QStringList("S"));
    EXPECT_EQ(column(4), QStringList("text"));
    EXPECT_EQ(notices(), QStringList());
}

TEST_F(OldNoteStoreTest, StoresOfBothKindsMakeOneList)
{
    store().note({{"ZTITLE1", "new"}, {"ZMODIFICATIONDATE1", 200}},
        sample::noteBody({{.text = "in the new store"}}));
    m_backup.add(kDomain, "NoteStore.sqlite", store().bytes());
    openOld({"INSERT INTO ZNOTEBODY VALUES (1, 1, 'in the old store')",
        "INSERT INTO ZNOTE (ZTITLE, ZBODY, ZMODIFICATIONDATE) VALUES ('newest', 1, 300)",
        "INSERT INTO ZNOTE (ZTITLE, ZMODIFICATIONDATE) VALUES ('oldest', 100)"});
    EXPECT_EQ(column(0), QStringList({"newest", "new", "oldest"}));
    EXPECT_EQ(column(4), QStringList({"in the old store", "in the new store", ""}));
}

TEST_F(OldNoteStoreTest, LooseDatabaseIsToldByItsTables)
{
    writeFile(m_directory.filePath("any.db"),
        databaseBytes(kSchema + QStringList("INSERT INTO ZNOTE (ZTITLE) VALUES ('a')")).file);
    take(backup::openDatabaseFile(m_directory.filePath("any.db")));
    EXPECT_EQ(column(0), QStringList("a"));
}

} // namespace
