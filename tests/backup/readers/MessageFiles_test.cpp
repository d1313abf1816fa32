// SPDX-License-Identifier: MIT
#include "backup/readers/MessageFiles.h"
#include "backup/readers/OpenedBackup.h"
#include "model/PRFileItem.h"
#include "support/message_store_builder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

TEST(BackupPath, TakesThePrefixOfTheDeviceOff)
{
    struct Row {
        const char* device;
        const char* relative;
    };
    static constexpr Row kRows[] = {
        {"~/Library/SMS/a.jpg", "Library/SMS/a.jpg"},
        {"/var/mobile/Library/SMS/a.jpg", "Library/SMS/a.jpg"},
        {"/private/var/mobile/Library/SMS/a.jpg", "Library/SMS/a.jpg"},
        {"/var/root/Library/SMS/a.jpg", "Library/SMS/a.jpg"},
        {"Library/SMS/a.jpg", "Library/SMS/a.jpg"},
        {"/etc/passwd", ""},
        {"", ""},
    };
    for (const Row& row : kRows) {
        EXPECT_EQ(backup::backupPath(row.device).relativePath, row.relative) << row.device;
    }
    EXPECT_EQ(backup::backupPath("~/x").domain, "MediaDomain");
}

class MessageFilesTest : public testing::Test {
protected:
    void SetUp() override
    {
        m_chat = m_builder->chat("+491715550101", m_builder->handle("+491715550101"));
    }

    qint64 message(const QString& text = "\uFFFC", const QVariantMap& columns = {})
    {
        return m_builder->message({.chat = m_chat,
            .date = double(++m_date),
            .text = text,
            .handle = 1,
            .columns = columns});
    }

    void file(const QString& path, const QByteArray& bytes)
    {
        const QFileInfo info(m_directory.filePath(path));
        ASSERT_TRUE(QDir().mkpath(info.path()));
        QFile file(info.filePath());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    void open()
    {
        m_builder.reset();
        auto opened = backup::openDatabaseFile(m_directory.filePath("sms.db"));
        ASSERT_TRUE(opened.has_value());
        m_opened.emplace(std::move(*opened));
    }

    const QList<PRSMSPiece*>& pieces(int message)
    {
        auto* item = dynamic_cast<PRSMSItem*>(m_opened->records.getPRData(0)->at(0, true));
        return item->detailContent()->chats().at(message)->pieces();
    }

    PRFileItem* fileItem(int row)
    {
        return dynamic_cast<PRFileItem*>(m_opened->records.getPRData(1)->at(row, true));
    }

    QTemporaryDir m_directory;
    std::optional<MessageStoreBuilder> m_builder{std::in_place, m_directory.filePath("sms.db")};
    std::optional<backup::OpenedBackup> m_opened;
    qint64 m_chat = 0;
    int m_date = 0;
};

TEST_F(MessageFilesTest, PieceHasTypeNameAndFile)
{
    m_builder->attachment(
        message(), {{"filename", "~/Library/SMS/Attachments/a/b/X/IMG_1.HEIC"},
                       {"mime_type", "image/heic"}, {"transfer_name", "Beach.HEIC"}});
    file("Library/SMS/Attachments/a/b/X/IMG_1.HEIC", "picture");
    open();
    ASSERT_EQ(pieces(0).size(), 1);
    const PRSMSPiece& piece = *pieces(0).first();
    EXPECT_EQ(piece.pieceType(), "image/heic");
    EXPECT_EQ(piece.pieceInfo(), "Beach.HEIC");
    EXPECT_EQ(
        piece.pieceLocation(), m_directory.filePath("Library/SMS/Attachments/a/b/X/IMG_1.HEIC"));
    EXPECT_TRUE(piece.pieceData().isEmpty());
    EXPECT_FALSE(piece.isLocation());
}

TEST_F(MessageFilesTest, ContentsOfAPieceHaveThePathOnThisComputer)
{
    m_builder->attachment(message(), {{"filename", "~/Library/SMS/Attachments/a/b/X/1.jpg"}});
    file("Library/SMS/Attachments/a/b/X/1.jpg", "picture");
    open();
    EXPECT_EQ(pieces(0).first()->contents().path,
        m_directory.filePath("Library/SMS/Attachments/a/b/X/1.jpg"));
}

TEST_F(MessageFilesTest, FileThatIsNotThereLeavesNameAndType)
{
    m_builder->attachment(message(), {{"filename", "~/Library/SMS/Attachments/a/b/X/lost.mov"}});
    open();
    EXPECT_EQ(pieces(0).first()->pieceLocation(), "");
    EXPECT_EQ(pieces(0).first()->pieceInfo(), "lost.mov");
    EXPECT_EQ(pieces(0).first()->pieceType(), "video/quicktime");
}

TEST_F(MessageFilesTest, TypeFollowsFromTheOtherColumns)
{
    struct Row {
        QVariantMap columns;
        const char* type;
    };
    const Row rows[] = {
        {{{"mime_type", "image/png"}, {"uti", "public.jpeg"}}, "image/png"},
        {{{"uti", "public.jpeg"}, {"filename", "~/x.png"}}, "image/jpeg"},
        {{{"uti", "com.apple.coreaudio-format"}}, "audio/x-caf"},
        {{{"uti", "public.vcard"}}, "text/vcard"},
        {{{"uti", "com.adobe.pdf"}}, "application/pdf"},
        {{{"transfer_name", "Film.MP4"}}, "video/mp4"},
        {{{"filename", "~/y.amr"}}, "audio/amr"},
        {{{"filename", "~/unknown"}}, ""},
    };
    for (const Row& row : rows) {
        m_builder->attachment(message(), row.columns);
    }
    open();
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(pieces(i).first()->pieceType(), rows[i].type) << i;
    }
}

TEST_F(MessageFilesTest, HiddenAttachmentsAreNotShown)
{
    const qint64 id = message("Link");
    m_builder->attachment(
        id, {{"filename", "~/x.pluginPayloadAttachment"}, {"hide_attachment", 1}});
    open();
    EXPECT_TRUE(pieces(0).isEmpty());
    EXPECT_EQ(m_opened->records.getPRData(1)->count(1), 0);
}

TEST_F(MessageFilesTest, LocationShowsItsCoordinates)
{
    m_builder->attachment(message(), {{"filename", "~/Library/SMS/Attachments/a/b/X/CL.loc.vcf"},
                                         {"mime_type", "text/x-vlocation"}});
    file("Library/SMS/Attachments/a/b/X/CL.loc.vcf",
        "BEGIN:VCARD\r\nitem1.URL;type=pref:http://maps.example.com/?ll=52.5200\\,13.4050&q=x\r\n");
    m_builder->attachment(message(), {{"filename", "~/lost.loc.vcf"}, {"uti", "public.vlocation"}});
    open();
    EXPECT_TRUE(pieces(0).first()->isLocation());
    EXPECT_EQ(pieces(0).first()->pieceInfo(), "52.5200, 13.4050");
    EXPECT_TRUE(pieces(1).first()->isLocation());
    EXPECT_EQ(pieces(1).first()->pieceInfo(), "lost.loc.vcf");
}

TEST_F(MessageFilesTest, TextFileIsReadAsText)
{
    m_builder->attachment(message(), {{"filename", "~/notes.txt"}, {"mime_type", "text/plain"}});
    file("notes.txt", "milk\neggs");
    open();
    EXPECT_EQ(pieces(0).first()->pieceData(), "milk\neggs");
}

TEST_F(MessageFilesTest, FilesAreRecordsInADirectoryOfTheirConversation)
{
    m_builder->attachment(message(),
        {{"filename", "~/Library/SMS/Attachments/a/b/X/IMG_1.jpg"}, {"created_date", 600'000'000}});
    m_builder->attachment(message(), {{"transfer_name", "never here.jpg"}});
    file("Library/SMS/Attachments/a/b/X/IMG_1.jpg", "picture");
    open();
    PRData* files = m_opened->records.getPRData(1);
    ASSERT_EQ(files->recoverCount(), 1);
    EXPECT_EQ(fileItem(0)->value(0), "IMG_1.jpg");
    EXPECT_EQ(fileItem(0)->parentItem()->value(0), "+491715550101");
    EXPECT_EQ(
        fileItem(0)->filePath(), m_directory.filePath("Library/SMS/Attachments/a/b/X/IMG_1.jpg"));
    EXPECT_EQ(fileItem(0)->getDetailInfoDateTime(), "2020-01-06T10:40:00Z");
    EXPECT_EQ(m_opened->notices->sentences(),
        QStringList("One attachment was never downloaded to the phone."));
}

TEST_F(MessageFilesTest, SetFilePathSurvives)
{
    m_builder->attachment(message(), {{"filename", "~/IMG_1.jpg"}});
    open();
    fileItem(0)->setFilePath("/tmp/fetched.jpg");
    EXPECT_EQ(fileItem(0)->filePath(), "/tmp/fetched.jpg");
}

TEST_F(MessageFilesTest, FilesOfDeletedMessagesAreDeleted)
{
    const qint64 id = message();
    m_builder->attachment(id, {{"filename", "~/IMG_1.jpg"}});
    m_builder->recentlyDelete(m_chat, id);
    open();
    ASSERT_EQ(m_opened->records.getPRData(1)->count(1), 1);
    EXPECT_TRUE(fileItem(0)->flag(Deleted));
}

TEST_F(MessageFilesTest, DocumentThatIsADirectoryIsARecordForEachFile)
{
    m_builder->attachment(message(), {{"filename", "~/Library/SMS/Attachments/a/b/X/Plan.pages"}});
    file("Library/SMS/Attachments/a/b/X/Plan.pages/Index.zip", "1");
    file("Library/SMS/Attachments/a/b/X/Plan.pages/Data/a.jpg", "2");
    open();
    ASSERT_EQ(m_opened->records.getPRData(1)->count(1), 2);
    EXPECT_EQ(fileItem(0)->value(0), "Plan.pages/Data/a.jpg");
    EXPECT_EQ(fileItem(1)->value(0), "Plan.pages/Index.zip");
    EXPECT_TRUE(QFile::exists(fileItem(1)->filePath()));
}

} // namespace
