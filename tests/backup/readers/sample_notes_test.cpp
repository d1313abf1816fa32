// SPDX-License-Identifier: MIT
// What samples/backup/notes.json says, as it comes out of the sample backup.
#include "NoteStoreTest.h"

#include <QImage>

#include <set>

namespace {

class SampleNotes : public NoteStoreTest {
protected:
    void SetUp() override
    {
        take(backup::openBackupFolder(QStringLiteral(DATAEXPORT_BUILD_DIR "/samples/backup")));
    }

    int rowOf(const QString& title) { return column(0).indexOf(title); }
    QString textOf(const QString& title) { return notes()->value(rowOf(title), 4); }
};

TEST_F(SampleNotes, AllAreThereTheNewestFirst)
{
    EXPECT_EQ(
        column(0), QStringList({"", "Things to do", "Birthday 🎂 for Mia 👩‍👩‍👧",
                       "Old shopping list", "Packing for Bergen", "Ferries", "New sail",
                       "Whose cat is this?", "Tickets and papers", "Passwords", "Beach days",
                       "Fish soup", "Old code of the door", "Dream"}));
    EXPECT_EQ(notices(), QStringList());
}

TEST_F(SampleNotes, FoldersHaveTheirAccounts)
{
    const QStringList folders = column(1);
    EXPECT_EQ(std::set<QString>(folders.begin(), folders.end()),
        (std::set<QString>{"iCloud / Notes", "iCloud / Recently Deleted", "iCloud / Travel",
            "iCloud / Travel / Norway", "iCloud / Recipes", "On My iPhone / Private"}));
}

TEST_F(SampleNotes, ListsAndTablesAreText)
{
    EXPECT_TRUE(
        textOf("Things to do").contains("☐ Pay the mooring\n\u2003☐ Bring the receipt\n☑ "));
    EXPECT_TRUE(textOf("Packing for Bergen").contains("• Wool\n\u2003• two jumpers\n"));
    EXPECT_TRUE(textOf("Packing for Bergen").contains("\u20032. breakfast at six\n3. Bus 25"));
    EXPECT_TRUE(textOf("Ferries").contains("\nMonday | Bergen | Stavanger | 08:30\n"));
    EXPECT_TRUE(textOf("Fish soup").endsWith("#soup"));
    EXPECT_TRUE(textOf("Birthday 🎂 for Mia 👩‍👩‍👧")
                    .contains("عيد ميلاد سعيد\n👍🏽 🇳🇴 <b>"));
}

TEST_F(SampleNotes, LockedAndDeletedOnesAreMarked)
{
    EXPECT_TRUE(note(rowOf("Passwords"))->flag(Locked));
    EXPECT_FALSE(note(rowOf("Passwords"))->flag(Deleted));
    EXPECT_TRUE(note(rowOf("Old shopping list"))->flag(Deleted));
    EXPECT_TRUE(note(rowOf("Old code of the door"))->flag(Deleted));
    EXPECT_TRUE(note(rowOf("Old code of the door"))->flag(Locked));
}

TEST_F(SampleNotes, PicturesAreWideAndNarrow)
{
    const PRNoteItem* beach = note(rowOf("Beach days"));
    ASSERT_EQ(beach->notePieces().size(), 5);
    EXPECT_EQ(QImage(beach->notePieces().at(1)->content).width(), 800);
    EXPECT_EQ(beach->notePieces().at(1)->preview.width(), 384);
    EXPECT_EQ(QImage(beach->notePieces().at(3)->content).width(), 96);
    EXPECT_EQ(beach->notePieces().at(3)->preview.width(), 96);
}

TEST_F(SampleNotes, PictureThatCannotBeShownHasOneThatCan)
{
    const PRNoteItem* cat = note(rowOf("Whose cat is this?"));
    ASSERT_EQ(cat->notePieces().size(), 3);
    EXPECT_EQ(cat->notePieces().at(1)->label, cat->notePieces().at(1)->sourcePath.isEmpty()
                                                  ? "IMG_0733.HEIC.png" // made without an encoder
                                                  : "IMG_0733.HEIC");
    EXPECT_FALSE(QImage(cat->notePieces().at(1)->content).isNull());
}

TEST_F(SampleNotes, FilesLieInDirectoriesOfTheirNotes)
{
    QStringList names;
    for (int row = 0; row < files()->count(1); ++row) {
        names.append(file(row)->parentItem()->value(0) + "/" + file(row)->value(0));
    }
    EXPECT_EQ(names, QStringList({"Old shopping list/star.png", "New sail/Sail.png",
                         "Whose cat is this?/IMG_0733.HEIC", "Tickets and papers/ticket.pdf",
                         "Tickets and papers/Scan 3.png", "Tickets and papers/Scan 4.png",
                         "Beach days/IMG_0412.jpg", "Beach days/Shell.png"}));
    EXPECT_TRUE(file(1)->filePath().startsWith(QStringLiteral(DATAEXPORT_BUILD_DIR)));
}

} // namespace
