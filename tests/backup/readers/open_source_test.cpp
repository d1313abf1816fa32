// SPDX-License-Identifier: MIT
#include "backup/readers/OpenedBackup.h"
#include "model/PRSMSItem.h"
#include "support/backup_builder.h"
#include "support/message_store_builder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class OpenSourceTest : public testing::Test {
protected:
    // The bytes of a store with one message of +491715550101.
    QByteArray store()
    {
        const QString path = m_directory.filePath("made.db");
        {
            MessageStoreBuilder builder(path);
            const qint64 mia = builder.handle("+491715550101");
            const qint64 id = builder.message({.chat = builder.chat("+491715550101", mia),
                .date = 1,
                .text = "Hi",
                .handle = mia});
            builder.attachment(id, {{"filename", "~/Library/SMS/Attachments/a/b/X/1.jpg"}});
        }
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QString folder() const { return m_directory.filePath("backup"); }

    BackupBuilder builder() { return BackupBuilder(folder()).device("Anna's iPhone", "17.5.1"); }

    void open()
    {
        auto opened = backup::openBackupFolder(folder());
        ASSERT_TRUE(opened.has_value()) << opened.error().text().toStdString();
        m_opened.emplace(std::move(*opened));
    }

    QString notices() const { return m_opened->notices->sentences().join('\n'); }
    PRAbstractItem* first(int dataType)
    {
        PRData* set = m_opened->records.getPRData(dataType);
        return set != nullptr ? set->at(0, true) : nullptr;
    }

    QTemporaryDir m_directory;
    std::optional<backup::OpenedBackup> m_opened;
};

const QStringList kAddressBook{
    "CREATE TABLE ABPerson (ROWID INTEGER PRIMARY KEY, First TEXT, Last TEXT, Nickname TEXT,"
    " Organization TEXT)",
    "CREATE TABLE ABMultiValue (UID INTEGER PRIMARY KEY, record_id INTEGER, property INTEGER,"
    " value TEXT)",
    "INSERT INTO ABPerson (First) VALUES ('Mia')",
    "INSERT INTO ABMultiValue (record_id, property, value) VALUES (1, 3, '0171 5550101')"};

TEST_F(OpenSourceTest, BackupHasMessagesWithNamesFilesAndDevice)
{
    builder()
        .add("HomeDomain", "Library/SMS/sms.db", store())
        .addDatabase("HomeDomain", "Library/AddressBook/AddressBook.sqlitedb", kAddressBook)
        .add("MediaDomain", "Library/SMS/Attachments/a/b/X/1.jpg", "picture")
        .finish();
    open();
    EXPECT_EQ(m_opened->device.name, "Anna's iPhone");
    EXPECT_EQ(first(0)->value(0), "Mia");
    EXPECT_EQ(first(0)->value(1), "+491715550101");
    const auto* item = dynamic_cast<PRSMSItem*>(first(0));
    const PRSMSPiece& piece = *item->detailContent()->chats().first()->pieces().first();
    EXPECT_EQ(piece.pieceLocation(),
        builder().payloadPath("MediaDomain", "Library/SMS/Attachments/a/b/X/1.jpg"));
    EXPECT_EQ(notices(), "");
}

TEST_F(OpenSourceTest, WithoutMessagesTheRestIsOpenedAndTheUserTold)
{
    builder()
        .addDatabase("HomeDomain", "Library/AddressBook/AddressBook.sqlitedb", kAddressBook)
        .finish();
    open();
    EXPECT_EQ(m_opened->records.getPRData(0), nullptr);
    EXPECT_TRUE(notices().contains("Library/SMS/sms.db")) << notices().toStdString();
}

TEST_F(OpenSourceTest, WithoutAddressBookNumbersStand)
{
    builder().add("HomeDomain", "Library/SMS/sms.db", store()).finish();
    open();
    EXPECT_EQ(first(0)->value(0), "+491715550101");
    EXPECT_TRUE(notices().contains("AddressBook.sqlitedb")) << notices().toStdString();
}

TEST_F(OpenSourceTest, DatabaseThatTheFolderLacksIsNamed)
{
    builder().addMissing("HomeDomain", "Library/SMS/sms.db").finish();
    open();
    EXPECT_EQ(m_opened->records.getPRData(0), nullptr);
    EXPECT_TRUE(notices().contains("Library/SMS/sms.db")) << notices().toStdString();
}

TEST_F(OpenSourceTest, DamagedDatabaseIsNamed)
{
    builder().add("HomeDomain", "Library/SMS/sms.db", QByteArray(8192, 'x')).finish();
    open();
    EXPECT_EQ(m_opened->records.getPRData(0), nullptr);
    EXPECT_TRUE(notices().contains("sms.db")) << notices().toStdString();
}

TEST_F(OpenSourceTest, TruncatedDatabaseNeverCrashes)
{
    const QByteArray whole = store();
    for (int size = 0; size < whole.size(); size += 4096 + 777) {
        SCOPED_TRACE(size);
        QDir(folder()).removeRecursively();
        builder().add("HomeDomain", "Library/SMS/sms.db", whole.left(size)).finish();
        open();
        PRData* messages = m_opened->records.getPRData(0);
        for (int row = 0; messages != nullptr && row < messages->count(1); ++row) {
            dynamic_cast<PRSMSItem*>(messages->at(row, true))->detailContent();
        }
    }
}

TEST_F(OpenSourceTest, DatabaseWithoutTheTablesOfMessagesIsNamed)
{
    builder().addDatabase("HomeDomain", "Library/SMS/sms.db", {"CREATE TABLE other (a)"}).finish();
    open();
    EXPECT_EQ(m_opened->records.getPRData(0), nullptr);
    EXPECT_TRUE(notices().contains("Library/SMS/sms.db")) << notices().toStdString();
}

TEST_F(OpenSourceTest, MissingAttachmentIsNamedWhenItIsAskedFor)
{
    builder()
        .add("HomeDomain", "Library/SMS/sms.db", store())
        .addMissing("MediaDomain", "Library/SMS/Attachments/a/b/X/1.jpg")
        .finish();
    open();
    const auto* item = dynamic_cast<PRSMSItem*>(first(0));
    EXPECT_EQ(item->detailContent()->chats().first()->pieces().first()->pieceLocation(), "");
    EXPECT_TRUE(notices().contains("1.jpg")) << notices().toStdString();
}

TEST_F(OpenSourceTest, FolderThatIsNoBackupIsAnError)
{
    const auto opened = backup::openBackupFolder(m_directory.path());
    ASSERT_FALSE(opened.has_value());
    EXPECT_TRUE(opened.error().text().contains(m_directory.path()));
}

TEST_F(OpenSourceTest, DatabaseFileIsToldByItsTables)
{
    store();
    auto opened = backup::openDatabaseFile(m_directory.filePath("made.db"));
    ASSERT_TRUE(opened.has_value());
    EXPECT_EQ(opened->records.getPRData(0)->count(1), 1);
    EXPECT_EQ(opened->device.name, "");
}

TEST_F(OpenSourceTest, DatabaseOfAnotherKindIsAnErrorThatNamesItsTables)
{
    BackupBuilder(m_directory.filePath("b"))
        .addDatabase("HomeDomain", "x", {"CREATE TABLE fruit (a)", "CREATE TABLE nuts (a)"});
    const QString path = BackupBuilder(m_directory.filePath("b")).payloadPath("HomeDomain", "x");
    const auto opened = backup::openDatabaseFile(path);
    ASSERT_FALSE(opened.has_value());
    EXPECT_EQ(opened.error().where, path);
    EXPECT_TRUE(opened.error().what.contains("fruit, nuts")) << opened.error().what.toStdString();
}

TEST_F(OpenSourceTest, DatabaseFileOfSeveralKindsGivesThemAll)
{
    const QString path = m_directory.filePath("several.db");
    writeFile(path, databaseBytes({"CREATE TABLE call (address, date, duration, flags)",
                                      "INSERT INTO call VALUES ('0401', 1338544800, 1, 4)",
                                      "CREATE TABLE bookmarks (id, parent, type, title, url)",
                                      "INSERT INTO bookmarks VALUES (1, 0, 0, 'a', 'https://a.b')"})
                        .file);
    auto opened = backup::openDatabaseFile(path);
    ASSERT_TRUE(opened.has_value());
    EXPECT_EQ(opened->records.getPRData(3)->value(0, 1), "0401");
    EXPECT_EQ(opened->records.getPRData(33)->value(0, 0), "a");
}

TEST_F(OpenSourceTest, SampleBackupOpensWithoutANotice)
{
    const QString sample = QStringLiteral(DATAEXPORT_BUILD_DIR "/samples/backup");
    auto opened = backup::openBackupFolder(sample);
    ASSERT_TRUE(opened.has_value()) << opened.error().text().toStdString();
    m_opened.emplace(std::move(*opened));
    EXPECT_EQ(m_opened->device.name, "Anna's iPhone");
    EXPECT_EQ(notices(), "");
    EXPECT_GE(m_opened->records.getPRData(0)->count(1), 10);
    EXPECT_GE(m_opened->records.getPRData(1)->count(1), 5);
}

} // namespace
