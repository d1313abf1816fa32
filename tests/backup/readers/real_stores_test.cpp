// SPDX-License-Identifier: MIT
// Stores that real devices made. They lie beside the project, or where DATAEXPORT_TEST_DATA says;
// the tests are passed over where they are absent.
#include "backup/readers/OpenedBackup.h"
#include "formats/sqlite.h"
#include "model/PRSMSItem.h"
#include "model/PRWhatsappItem.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <optional>

namespace {

QString realFile(const QString& path)
{
    const QString directory = qEnvironmentVariable(
        "DATAEXPORT_TEST_DATA", QStringLiteral(DATAEXPORT_SOURCE_DIR "/../shared/data"));
    return QDir(directory).filePath(path);
}

// All messages of all conversations.
QList<const PRSMSChat*> allChats(const PRSMSItem& item)
{
    QList<const PRSMSChat*> all;
    for (const PRSMSChat* chat : item.detailContent()->chats()) {
        all.append(chat);
    }
    return all;
}

QStringList allTexts(const backup::OpenedBackup& opened)
{
    QStringList texts;
    PRData* set = opened.records.getPRData(0);
    EXPECT_NE(set, nullptr);
    for (int row = 0; set != nullptr && row < set->count(1); ++row) {
        const auto* item = dynamic_cast<PRSMSItem*>(set->at(row, true));
        for (const PRSMSChat* chat : allChats(*item)) {
            texts.append(chat->itemType() != 0 ? chat->msgForEvent({}) : chat->content());
        }
    }
    return texts;
}

/// Opens a real store or backup folder; passes the test over where it is absent.
class RealStores : public testing::Test {
protected:
    bool open(const QString& path)
    {
        m_file = realFile(path);
        if (!QFileInfo::exists(m_file)) {
            return false;
        }
        auto opened = QFileInfo(m_file).isDir() ? backup::openBackupFolder(m_file)
                                                : backup::openDatabaseFile(m_file);
        EXPECT_TRUE(opened.has_value()) << opened.error().text().toStdString();
        m_opened.emplace(std::move(*opened));
        return true;
    }

    QString m_file;
    std::optional<backup::OpenedBackup> m_opened;
};

TEST_F(RealStores, AllMessagesOfAnIos12StoreAreRead)
{
    if (!open("databases/ios12-sms.db")) {
        GTEST_SKIP() << "there is no " << m_file.toStdString();
    }
    const auto database = formats::Database::open(m_file, formats::OpenMode::Immutable);
    ASSERT_TRUE(database.has_value());
    auto visible =
        database->prepare("SELECT count(*) FROM message WHERE associated_message_type < 3000");
    ASSERT_TRUE(visible->next());
    EXPECT_EQ(allTexts(*m_opened).size(), visible->integer(0));
    auto files = database->prepare("SELECT count(*) FROM attachment WHERE filename IS NOT NULL"
                                   " AND hide_attachment = 0");
    ASSERT_TRUE(files->next());
    EXPECT_EQ(m_opened->records.getPRData(1)->count(1), files->integer(0));
}

TEST_F(RealStores, TextOfAnIos18StoreComesFromTheBodies)
{
    if (!open("databases/ios18-chat.db")) {
        GTEST_SKIP() << "there is no " << m_file.toStdString();
    }
    const QStringList texts = allTexts(*m_opened);
    EXPECT_EQ(texts.size(), 3);
    EXPECT_TRUE(texts.contains("I’m going to try to eat as quick as possible and then come over"));
    EXPECT_TRUE(texts.contains("Oh it translated what I sent!"));
}

TEST_F(RealStores, Ios16StoreIsRead)
{
    if (!open("databases/ios16-chat.db")) {
        GTEST_SKIP() << "there is no " << m_file.toStdString();
    }
    EXPECT_EQ(allTexts(*m_opened).size(), 2);
}

TEST_F(RealStores, JoinsThatDangleCostNoMessage)
{
    if (!open("databases/macos10.11-chat-dangling-joins.db")) {
        GTEST_SKIP() << "there is no " << m_file.toStdString();
    }
    EXPECT_EQ(allTexts(*m_opened).size(), 10);
}

TEST_F(RealStores, BackupsOfEmptyPhonesOpen)
{
    for (const char* path : {"backups/ios-13.3", "backups/ios-14.0-beta"}) {
        SCOPED_TRACE(path);
        if (!open(path)) {
            GTEST_SKIP() << "there is no " << m_file.toStdString();
        }
        ASSERT_NE(m_opened->records.getPRData(0), nullptr);
        EXPECT_EQ(allTexts(*m_opened), QStringList());
    }
}

TEST_F(RealStores, BackupWithMostPayloadsAbsentGivesWhatIsThere)
{
    if (!open("backups/ios-14.3-manifest-mostly-absent")) {
        GTEST_SKIP() << "there is no " << m_file.toStdString();
    }
    EXPECT_EQ(allTexts(*m_opened).size(), 1);
}

TEST_F(RealStores, ChatsOfABackupHaveTheirMessages)
{
    if (!open("backups/ios-14.3-manifest-mostly-absent")) {
        GTEST_SKIP() << "there is no " << m_file.toStdString();
    }
    const PRData* set = m_opened->records.getPRData(5);
    ASSERT_NE(set, nullptr);
    QStringList texts;
    for (int row = 0; row < set->count(1); ++row) {
        const auto* chat = dynamic_cast<const PRWhatsappItem*>(set->at(row, true));
        ASSERT_NE(chat, nullptr);
        for (const PRWhatsappMsg& message : chat->detailContent()->contents()) {
            texts.append(chat->value(0) + ": " + message.content());
        }
    }
    EXPECT_EQ(texts, QStringList({"Example Group: Welcome", "Alice Example: Hi",
                         "Alice Example: Check https://example.org/news"}));
}

TEST_F(RealStores, HandMadeStoreIsRead)
{
    if (!open("databases/miniatures/messages/testdata/messages.1.sms.db")) {
        GTEST_SKIP() << "there is no " << m_file.toStdString();
    }
    EXPECT_EQ(allTexts(*m_opened).size(), 10);
}

} // namespace
