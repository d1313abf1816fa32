// SPDX-License-Identifier: MIT
#include "NoteStoreTest.h"

#include <QDir>
#include <QFile>

namespace {

using sample::noteBody;

TEST_F(NoteStoreTest, ColumnsHaveTheContentAsTheFifth)
{
    const qint64 folder = store().folder({{"ZTITLE2", "Travel"}});
    store().note({{"ZTITLE1", "Packing"}, {"ZFOLDER", folder}, {"ZCREATIONDATE3", 600'000'000},
                     {"ZMODIFICATIONDATE1", 600'000'060}},
        noteBody({{.text = "Packing\nRope"}}));
    open();
    QStringList headings;
    for (int column = 0; column < notes()->dataColumn(); ++column) {
        headings.append(notes()->columnName(column));
    }
    EXPECT_EQ(headings, QStringList({"Title", "Folder", "Created", "Modified", "Content"}));
    // 2020-01-06 10:40 UTC, two hours later here
    EXPECT_EQ(column(0), QStringList("Packing"));
    EXPECT_EQ(column(1), QStringList("Travel"));
    EXPECT_EQ(column(2), QStringList("2020-01-06 12:40"));
    EXPECT_EQ(column(3), QStringList("2020-01-06 12:41"));
    EXPECT_EQ(column(4), QStringList("Packing\nRope"));
    EXPECT_EQ(notices(), QStringList());
}

TEST_F(NoteStoreTest, NoteThatWasChangedLastComesFirst)
{
    store().note({{"ZTITLE1", "old"}, {"ZMODIFICATIONDATE1", 100}, {"ZCREATIONDATE3", 900}},
        noteBody({{.text = "x"}}));
    store().note({{"ZTITLE1", "new"}, {"ZMODIFICATIONDATE1", 300}}, noteBody({{.text = "x"}}));
    store().note({{"ZTITLE1", "never changed"}, {"ZCREATIONDATE3", 200}, {"ZISPINNED", 1}},
        noteBody({{.text = "x"}}));
    open();
    EXPECT_EQ(column(0), QStringList({"new", "never changed", "old"}));
}

TEST_F(NoteStoreTest, ColumnsOfAllReleasesAreFound)
{
    struct Row {
        const char* what;
        const char* account;
        const char* created;
        const char* modified;
    };
    constexpr Row kRows[]{
        {"newest", "ZACCOUNT8", "ZCREATIONDATE3", "ZMODIFICATIONDATE1"},
        {"16", "ZACCOUNT7", "ZCREATIONDATE3", "ZMODIFICATIONDATE1"},
        {"15", "ZACCOUNT4", "ZCREATIONDATE3", "ZMODIFICATIONDATE1"},
        {"13", "ZACCOUNT3", "ZCREATIONDATE1", "ZMODIFICATIONDATE1"},
        {"11", "ZACCOUNT2", "ZCREATIONDATE1", "ZMODIFICATIONDATE1"},
        {"9", "ZACCOUNT", "ZCREATIONDATE", "ZMODIFICATIONDATE"},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.what);
        QDir(m_directory.filePath("backup")).removeRecursively();
        m_backup = BackupBuilder(m_directory.filePath("backup"));
        m_store = NoteStoreBuilder();
        const qint64 one = store().account({{"ZNAME", "One"}, {"ZIDENTIFIER", "A1"}});
        const qint64 two = store().account({{"ZNAME", "Two"}, {"ZIDENTIFIER", "A2"}});
        const qint64 folder = store().folder({{"ZTITLE2", "Notes"}});
        // A column of another release may be there and empty.
        store().note({{"ZTITLE1", "b"}, {row.account, two}, {"ZFOLDER", folder}, {row.created, 60},
                         {row.modified, 120}, {"ZACCOUNT6", QVariant()}},
            noteBody({{.text = "x"}}));
        store().note({{"ZTITLE1", "a"}, {row.account, one}, {"ZFOLDER", folder}, {row.created, 0},
                         {row.modified, 60}},
            noteBody({{.text = "x"}}));
        open();
        EXPECT_EQ(column(1), QStringList({"Two / Notes", "One / Notes"}));
        EXPECT_EQ(column(2), QStringList({"2001-01-01 02:01", ""}));
        EXPECT_EQ(column(3), QStringList({"2001-01-01 02:02", "2001-01-01 02:01"}));
    }
}

TEST_F(NoteStoreTest, FoldersOfAJoinTableAreFound)
{
    const qint64 folder = store().folder({{"ZTITLE2", "Joined"}});
    const qint64 id = store().plainNote("a", "b");
    store()
        .run("CREATE TABLE Z_11NOTES (Z_11FOLDERS INTEGER, Z_8NOTES INTEGER)")
        .run(QString("INSERT INTO Z_11NOTES VALUES (%1, %2)").arg(folder).arg(id));
    open();
    EXPECT_EQ(column(1), QStringList("Joined"));
}

TEST_F(NoteStoreTest, FolderHasTheFoldersAboveIt)
{
    const qint64 travel = store().folder({{"ZTITLE2", "Travel"}});
    const qint64 norway = store().folder({{"ZTITLE2", "Norway"}, {"ZPARENT", travel}});
    store().note({{"ZTITLE1", "a"}, {"ZFOLDER", norway}}, noteBody({{.text = "x"}}));
    open();
    EXPECT_EQ(column(1), QStringList("Travel / Norway"));
}

TEST_F(NoteStoreTest, FoldersThatLieInEachOtherEnd)
{
    const qint64 first = store().folder({{"ZTITLE2", "A"}, {"ZPARENT", 2}});
    store().folder({{"ZTITLE2", "B"}, {"ZPARENT", first}});
    store().note({{"ZTITLE1", "a"}, {"ZFOLDER", first}}, noteBody({{.text = "x"}}));
    open();
    EXPECT_TRUE(column(1).first().endsWith("B / A"));
}

TEST_F(NoteStoreTest, AccountIsShownWhereThereAreSeveral)
{
    const qint64 cloud = store().account({{"ZNAME", "iCloud"}});
    const qint64 phone = store().account({{"ZNAME", "On My iPhone"}});
    const qint64 folder = store().folder({{"ZTITLE2", "Notes"}, {"ZOWNER", phone}});
    store().note({{"ZTITLE1", "by column"}, {"ZFOLDER", folder}, {"ZACCOUNT7", cloud},
                     {"ZMODIFICATIONDATE1", 2}},
        noteBody({{.text = "x"}}));
    store().note({{"ZTITLE1", "by folder"}, {"ZFOLDER", folder}, {"ZMODIFICATIONDATE1", 1}},
        noteBody({{.text = "x"}}));
    open();
    EXPECT_EQ(column(1), QStringList({"iCloud / Notes", "On My iPhone / Notes"}));
}

TEST_F(NoteStoreTest, DeletedNotesAreMarked)
{
    struct Row {
        const char* what;
        QVariantMap folder;
        QVariantMap note;
        bool deleted;
    };
    const Row rows[]{
        {"in the trash by its type", {{"ZTITLE2", "T"}, {"ZFOLDERTYPE", 1}}, {}, true},
        {"in the trash by its name", {{"ZIDENTIFIER", "TrashFolder-LocalAccount"}}, {}, true},
        {"to be purged", {{"ZTITLE2", "N"}}, {{"ZMARKEDFORDELETION", 1}}, true},
        {"in a smart folder", {{"ZTITLE2", "S"}, {"ZFOLDERTYPE", 2}}, {}, false},
        {"in an ordinary folder", {{"ZTITLE2", "N"}, {"ZFOLDERTYPE", 0}}, {}, false},
    };
    int seconds = 1000;
    for (const Row& row : rows) {
        QVariantMap columns = row.note;
        columns["ZFOLDER"] = store().folder(row.folder);
        columns["ZTITLE1"] = row.what;
        columns["ZMODIFICATIONDATE1"] = --seconds;
        store().note(columns, noteBody({{.text = "x"}}));
    }
    open();
    ASSERT_EQ(notes()->count(1), static_cast<int>(std::size(rows)));
    for (int row = 0; row < notes()->count(1); ++row) {
        SCOPED_TRACE(rows[row].what);
        EXPECT_EQ(note(row)->flag(Deleted), rows[row].deleted);
    }
    EXPECT_EQ(column(1).at(1), "Recently Deleted");
}

TEST_F(NoteStoreTest, LockedNoteHasItsTitleAndNothingElse)
{
    store().note({{"ZTITLE1", "Secret"}, {"ZISPASSWORDPROTECTED", 1}, {"ZSNIPPET", "gone"}},
        QByteArray("\x56\x98\x17 cipher"));
    open();
    EXPECT_EQ(column(0), QStringList("Secret"));
    EXPECT_EQ(column(4), QStringList(""));
    EXPECT_TRUE(note(0)->flag(Locked));
    EXPECT_TRUE(note(0)->notePieces().isEmpty());
    EXPECT_EQ(notices(), QStringList());
}

TEST_F(NoteStoreTest, EmptyNoteHasNoPieces)
{
    store().note({{"ZTITLE1", QVariant()}}, noteBody({}));
    store().note({{"ZTITLE1", "no data"}}, QByteArray());
    open();
    EXPECT_EQ(column(4), QStringList({"", ""}));
    EXPECT_TRUE(note(0)->notePieces().isEmpty());
    EXPECT_TRUE(note(1)->notePieces().isEmpty());
    EXPECT_EQ(notices(), QStringList());
}

TEST_F(NoteStoreTest, NoteThatWasNeverDownloadedShowsItsBeginning)
{
    store().note({{"ZTITLE1", "Stub"}, {"ZSNIPPET", "It begins"}}, std::nullopt);
    store().note({{"ZSNIPPET", QVariant()}}, std::nullopt);
    open();
    EXPECT_EQ(column(0), QStringList("Stub"));
    EXPECT_EQ(column(4), QStringList("It begins"));
    EXPECT_EQ(notices(), QStringList("One note was never downloaded to the phone."));
}

TEST_F(NoteStoreTest, DamagedTextLeavesTitleAndBeginning)
{
    const QByteArray body = noteBody({{.text = "The whole text of the note"}});
    store().note({{"ZTITLE1", "Title"}, {"ZSNIPPET", "The whole"}, {"ZMODIFICATIONDATE1", 9}},
        body.left(body.size() / 2));
    store().note({{"ZTITLE1", "Sound"}}, body);
    open();
    EXPECT_EQ(column(4), QStringList({"Title\nThe whole", "The whole text of the note"}));
    EXPECT_EQ(notices(), QStringList("The text of the note “Title” cannot be read: its compressed "
                                     "bytes are damaged"));
}

TEST_F(NoteStoreTest, ManyDamagedTextsAreCounted)
{
    for (int number = 0; number < 25; ++number) {
        store().note({{"ZTITLE1", QString("note %1").arg(number)}}, QByteArray("no gzip"));
    }
    open();
    EXPECT_EQ(column(4).size(), 25);
    EXPECT_EQ(notices().size(), 21);
    EXPECT_EQ(notices().last(), "5 more notes have texts that cannot be read.");
}

TEST_F(NoteStoreTest, TextMayLieOutsideTheStore)
{
    const QString uuid = "0B5E55ED-5A3B-4E00-A11A-00000000C0DE";
    const QByteArray body = noteBody({{.text = "A long text"}});
    store().note(
        {{"ZTITLE1", "outside"}, {"ZMODIFICATIONDATE1", 2}}, "\x02" + uuid.toLatin1() + '\0');
    store().note({{"ZTITLE1", "inside"}, {"ZMODIFICATIONDATE1", 1}}, "\x01" + body);
    addFile(".NoteStore_SUPPORT/_EXTERNAL_DATA/" + uuid, body);
    open();
    EXPECT_EQ(column(4), QStringList({"A long text", "A long text"}));
}

TEST_F(NoteStoreTest, StoreWithoutKindsKnowsNotesByTheirTexts)
{
    store().plainNote("Title", "Text");
    store().folder({{"ZTITLE2", "Folder"}});
    store().run("DROP TABLE Z_PRIMARYKEY");
    open();
    EXPECT_EQ(column(0), QStringList("Title"));
    EXPECT_EQ(column(4), QStringList("Text"));
}

TEST_F(NoteStoreTest, TextsThatAreNoNumbersAreNoDates)
{
    store().note({{"ZTITLE1", "a"}, {"ZCREATIONDATE3", "not-a-date"}}, noteBody({{.text = "x"}}));
    open();
    EXPECT_EQ(column(2), QStringList(""));
}

TEST_F(NoteStoreTest, LooseDatabaseIsToldByItsTables)
{
    store().plainNote("Title", "Text");
    writeFile(m_directory.filePath("any.db"), store().bytes());
    take(backup::openDatabaseFile(m_directory.filePath("any.db")));
    EXPECT_EQ(column(4), QStringList("Text"));
}

TEST_F(NoteStoreTest, TruncatedStoreNeverCrashes)
{
    for (int number = 0; number < 300; ++number) {
        store().plainNote(QString("note %1").arg(number), QString(400, QChar('a' + number % 26)));
    }
    const QByteArray whole = store().bytes();
    ASSERT_GT(whole.size(), 16384);
    for (int size = 4096; size < whole.size(); size += 4096 + 777) {
        SCOPED_TRACE(size);
        writeFile(m_directory.filePath("cut.db"), whole.left(size));
        auto opened = backup::openDatabaseFile(m_directory.filePath("cut.db"));
        if (!opened) {
            continue;
        }
        m_opened.emplace(std::move(*opened));
        EXPECT_LE(column(4).size(), 300);
        EXPECT_EQ(files()->count(1), 0);
    }
}

TEST_F(NoteStoreTest, DamagedPageCostsOnlyItsAttachments)
{
    const qint64 id = store().plainNote("Title", "Text");
    for (int number = 1; number <= 200; ++number) {
        store().attachment({{"ZIDENTIFIER", QString("A%1").arg(number)}, {"ZNOTE", id},
            {"ZTITLE", QString("%1 %2").arg(number).arg(QString(200, 'x'))},
            {"ZMEDIA", store().object("ICMedia", {{"ZIDENTIFIER", "M"}})}});
    }
    QByteArray bytes = store().bytes();
    const int middle = bytes.indexOf("100 xxx") / 4096 * 4096;
    ASSERT_GT(middle, 0);
    bytes.replace(middle, 4096, QByteArray(4096, '\x55'));
    writeFile(m_directory.filePath("damaged.db"), bytes);
    take(backup::openDatabaseFile(m_directory.filePath("damaged.db")));
    EXPECT_EQ(column(4), QStringList("Text"));
    EXPECT_GT(files()->count(1), 150);
    EXPECT_EQ(
        notices(), QStringList("NoteStore.sqlite is damaged; what can be read of it is there."));
}

TEST_F(NoteStoreTest, DamagedPageCostsOnlyItsNotes)
{
    for (int number = 1; number <= 200; ++number) {
        store().note({{"ZTITLE1", QString("%1 %2").arg(number).arg(QString(200, 'x'))},
                         {"ZMODIFICATIONDATE1", number}},
            QByteArray());
    }
    QByteArray bytes = store().bytes();
    const int middle = bytes.indexOf("100 xxx") / 4096 * 4096;
    ASSERT_GT(middle, 0);
    bytes.replace(middle, 4096, QByteArray(4096, '\x55'));
    writeFile(m_directory.filePath("damaged.db"), bytes);
    take(backup::openDatabaseFile(m_directory.filePath("damaged.db")));
    EXPECT_GT(notes()->count(1), 150);
    EXPECT_TRUE(column(0).first().startsWith("200 "));
    EXPECT_TRUE(column(0).last().startsWith("1 "));
    EXPECT_EQ(
        notices(), QStringList("NoteStore.sqlite is damaged; what can be read of it is there."));
}

} // namespace
