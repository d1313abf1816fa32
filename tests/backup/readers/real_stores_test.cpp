// SPDX-License-Identifier: MIT
// Stores that real devices made. They lie beside the project, or where DATAEXPORT_TEST_DATA says;
// the tests are passed over where they are absent.
#include "backup/readers/OpenedBackup.h"
#include "formats/sqlite.h"
#include "model/PRSMSItem.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

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

#define OPEN_OR_SKIP(opened, path)                                                                 \
    const QString file = realFile(path);                                                           \
    if (!QFileInfo::exists(file)) {                                                                \
        GTEST_SKIP() << "there is no " << file.toStdString();                                      \
    }                                                                                              \
    auto opened =                                                                                  \
        QFileInfo(file).isDir() ? backup::openBackupFolder(file) : backup::openDatabaseFile(file); \
    ASSERT_TRUE(opened.has_value()) << opened.error().text().toStdString()

TEST(RealStores, AllMessagesOfAnIos12StoreAreRead)
{
    OPEN_OR_SKIP(opened, "databases/ios12-sms.db");
    const auto database = formats::Database::open(file, formats::OpenMode::Immutable);
    ASSERT_TRUE(database.has_value());
    auto visible =
        database->prepare("SELECT count(*) FROM message WHERE associated_message_type < 3000");
    ASSERT_TRUE(visible->next());
    EXPECT_EQ(allTexts(*opened).size(), visible->integer(0));
    auto files = database->prepare("SELECT count(*) FROM attachment WHERE filename IS NOT NULL"
                                   " AND hide_attachment = 0");
    ASSERT_TRUE(files->next());
    EXPECT_EQ(opened->records.getPRData(1)->count(1), files->integer(0));
}

TEST(RealStores, TextOfAnIos18StoreComesFromTheBodies)
{
    OPEN_OR_SKIP(opened, "databases/ios18-chat.db");
    const QStringList texts = allTexts(*opened);
    EXPECT_EQ(texts.size(), 3);
    EXPECT_TRUE(texts.contains("I’m going to try to eat as quick as possible and then come over"));
    EXPECT_TRUE(texts.contains("Oh it translated what I sent!"));
}

TEST(RealStores, Ios16StoreIsRead)
{
    OPEN_OR_SKIP(opened, "databases/ios16-chat.db");
    EXPECT_EQ(allTexts(*opened).size(), 2);
}

TEST(RealStores, JoinsThatDangleCostNoMessage)
{
    OPEN_OR_SKIP(opened, "databases/macos10.11-chat-dangling-joins.db");
    EXPECT_EQ(allTexts(*opened).size(), 10);
}

TEST(RealStores, BackupsOfEmptyPhonesOpen)
{
    for (const char* path : {"backups/ios-13.3", "backups/ios-14.0-beta"}) {
        SCOPED_TRACE(path);
        OPEN_OR_SKIP(opened, path);
        ASSERT_NE(opened->records.getPRData(0), nullptr);
        EXPECT_EQ(allTexts(*opened), QStringList());
    }
}

TEST(RealStores, BackupWithMostPayloadsAbsentGivesWhatIsThere)
{
    OPEN_OR_SKIP(opened, "backups/ios-14.3-manifest-mostly-absent");
    EXPECT_EQ(allTexts(*opened).size(), 1);
}

TEST(RealStores, HandMadeStoreIsRead)
{
    OPEN_OR_SKIP(opened, "databases/miniatures/messages/testdata/messages.1.sms.db");
    EXPECT_EQ(allTexts(*opened).size(), 10);
}

} // namespace
