// SPDX-License-Identifier: MIT
// Stores that real devices made. They lie beside the project, or where DATAEXPORT_TEST_DATA says;
// the tests are passed over where they are absent.
#include "NoteStoreTest.h"

#include <QDir>
#include <QFileInfo>

namespace {

class RealNotes : public NoteStoreTest {
protected:
    bool openReal(const QString& path)
    {
        const QString directory = qEnvironmentVariable(
            "DATAEXPORT_TEST_DATA", QStringLiteral(DATAEXPORT_SOURCE_DIR "/../shared/data"));
        m_file = QDir(directory).filePath(path);
        if (!QFileInfo::exists(m_file)) {
            return false;
        }
        take(QFileInfo(m_file).isDir() ? backup::openBackupFolder(m_file)
                                       : backup::openDatabaseFile(m_file));
        return true;
    }

    int flagged(int flag)
    {
        int count = 0;
        for (int row = 0; row < notes()->count(1); ++row) {
            count += note(row)->flag(flag) ? 1 : 0;
        }
        return count;
    }

    QString m_file;
};

TEST_F(RealNotes, Ios15StoreHasEightNotes)
{
    if (!openReal("databases/ios15-NoteStore.sqlite")) {
        GTEST_SKIP() << "there is no " << m_file.toStdString();
    }
    EXPECT_EQ(notes()->count(1), 8);
    EXPECT_EQ(flagged(Locked), 4);
    EXPECT_EQ(flagged(Deleted), 1);
    EXPECT_TRUE(column(4).contains("My First Note\n\nThis is my first note.  Nothing special."));
    EXPECT_TRUE(column(1).contains("My New Folder"));
    EXPECT_EQ(files()->count(1), 0);
    EXPECT_EQ(notices(), QStringList());
}

TEST_F(RealNotes, HandMadeStoreIsRead)
{
    if (!openReal("databases/miniatures/notes/testdata/notes.1.NoteStore.sqlite")) {
        GTEST_SKIP() << "there is no " << m_file.toStdString();
    }
    EXPECT_EQ(notes()->count(1), 6);
    EXPECT_EQ(flagged(Locked), 1);
    EXPECT_TRUE(column(4).contains("Shopping list\nmilk\neggs\nbread"));
    EXPECT_EQ(files()->count(1), 1);
    EXPECT_EQ(file(0)->value(0), "photo.jpeg");
}

TEST_F(RealNotes, BackupsOfEmptyPhonesOpen)
{
    for (const char* path : {"backups/ios-13.3", "backups/ios-14.0-beta"}) {
        SCOPED_TRACE(path);
        if (!openReal(path)) {
            GTEST_SKIP() << "there is no " << m_file.toStdString();
        }
        ASSERT_NE(notes(), nullptr);
        EXPECT_EQ(notes()->count(1), 0);
    }
}

} // namespace
