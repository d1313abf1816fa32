// SPDX-License-Identifier: MIT
#include "backup/container/Notices.h"
#include "backup/readers/ConversationRowsCache.h"
#include "support/message_store_builder.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <set>

namespace {

constexpr int kConversations = 12;
constexpr int kMessages = 600;

// Messages of all conversations in turn, so that the rows of each lie all over the table.
class ConversationRowsCacheTest : public testing::Test {
protected:
    void SetUp() override
    {
        MessageStoreBuilder builder(m_path);
        for (int i = 0; i < kConversations; ++i) {
            const QString address = QString("+4917155501%1").arg(i, 2, 10, QChar('0'));
            builder.chat(address, builder.handle(address));
        }
        builder.run("BEGIN");
        for (int i = 0; i < kMessages; ++i) {
            const int chat = 1 + i % kConversations;
            builder.message({.chat = chat,
                .date = double(1000 + i),
                .text = QString("message %1 ").arg(i) + QString(100, 'x'),
                .handle = chat});
        }
        builder.run("INSERT INTO message_attachment_join (message_id, attachment_id) "
                    "VALUES (1, 1), (600, 2)");
        builder.run("COMMIT");
    }

    // `batchMessages`: beyond that the rows are put aside on disk.
    void open(std::size_t batchMessages = backup::ConversationRowsCache::kBatchMessages)
    {
        auto database = formats::Database::open(m_path, formats::OpenMode::Immutable);
        ASSERT_TRUE(database.has_value());
        m_database.emplace(std::move(*database));
        m_conversations = backup::readConversations(*m_database, backup::Handles(*m_database, {}));
        m_cache.emplace(*m_database, m_conversations, m_notices, batchMessages);
    }

    void expectWalks(int rounds)
    {
        for (int round = 0; round < rounds; ++round) {
            for (std::size_t i = 0; i < kConversations; ++i) {
                EXPECT_EQ(numbers(i), expected(i)) << i;
            }
        }
    }

    // The messages with attachments, of a walk in order.
    std::set<std::int64_t> markedIds()
    {
        std::set<std::int64_t> ids;
        for (std::size_t i = 0; i < kConversations; ++i) {
            for (const backup::MessageRow& row : m_cache->take(i).rows) {
                const bool marked = (row.bits & backup::HasAttachments) != 0;
                ids.insert(marked ? row.id : 0);
            }
        }
        ids.erase(0);
        return ids;
    }

    void expectAnyOrder()
    {
        for (const std::size_t i :
            std::vector<std::size_t>{5, 0, 11, 11, 3, 4, 5, 6, 7, 2, 8, 9, 9, 0}) {
            EXPECT_EQ(numbers(i), expected(i)) << i;
        }
    }

    // The number of each message that is there.
    std::vector<int> numbers(std::size_t conversation)
    {
        std::vector<int> found;
        const backup::ConversationRows rows = m_cache->take(conversation);
        for (const backup::MessageRow& row : rows.rows) {
            const std::string text = rows.text.substr(row.textStart, row.textSize);
            EXPECT_EQ(text.substr(0, 8), "message ");
            found.push_back(std::stoi(text.substr(8)));
        }
        return found;
    }

    // The conversation with the newest message comes first; message i lies in chat i % 12.
    static std::vector<int> expected(std::size_t conversation)
    {
        std::vector<int> numbers;
        for (int i = kConversations - 1 - static_cast<int>(conversation); i < kMessages;
             i += kConversations) {
            numbers.push_back(i);
        }
        return numbers;
    }

    // Overwrites pages of the file; those of the table of messages hold the text.
    void damage(int pages)
    {
        QFile file(m_path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        const QByteArray bytes = file.readAll();
        constexpr int kPage = 4096;
        int damaged = 0;
        for (int at = 10 * kPage; at < bytes.size() && damaged < pages; at += kPage) {
            if (bytes.mid(at, kPage).contains("xxxxxxxxxxxxxxxxxxxx")) {
                file.seek(at);
                file.write(QByteArray(kPage, '\xAA'));
                ++damaged;
            }
        }
        ASSERT_EQ(damaged, pages);
    }

    QTemporaryDir m_directory;
    QString m_path = m_directory.filePath("sms.db");
    std::optional<formats::Database> m_database;
    std::vector<backup::Conversation> m_conversations;
    backup::Notices m_notices;
    std::optional<backup::ConversationRowsCache> m_cache;
};

TEST_F(ConversationRowsCacheTest, EachWalkInOrderFindsEachMessageOnce)
{
    open();
    expectWalks(2);
}

TEST_F(ConversationRowsCacheTest, AnyOrderFindsTheSame)
{
    open();
    expectAnyOrder();
}

TEST_F(ConversationRowsCacheTest, RowsPutAsideOnDiskAreTheSame)
{
    for (const std::size_t batchMessages : std::vector<std::size_t>{1, 49, 50, 120, 599}) {
        SCOPED_TRACE(batchMessages);
        open(batchMessages);
        expectWalks(2);
        expectAnyOrder();
    }
}

TEST_F(ConversationRowsCacheTest, DiskWithoutRoomIsNoFailure)
{
    open(100);
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", m_directory.filePath("missing").toLocal8Bit());
    expectWalks(2);
    if (before.isNull()) {
        qunsetenv("TMPDIR");
    } else {
        qputenv("TMPDIR", before);
    }
}

TEST_F(ConversationRowsCacheTest, AttachmentsAreMarkedWhicheverWayRowsAreRead)
{
    for (const std::size_t batchMessages : std::vector<std::size_t>{100, 1000}) {
        open(batchMessages);
        EXPECT_EQ(markedIds(), std::set<std::int64_t>({1, 600}));
        EXPECT_EQ(markedIds(), std::set<std::int64_t>({1, 600}));
    }
}

TEST_F(ConversationRowsCacheTest, DamagedPageCostsItsOwnMessagesOnly)
{
    damage(1);
    open();
    std::size_t found = 0;
    for (std::size_t i = 0; i < kConversations; ++i) {
        found += numbers(i).size();
    }
    EXPECT_LT(found, std::size_t(kMessages));
    EXPECT_GT(found, std::size_t(kMessages) * 9 / 10);
    ASSERT_EQ(m_notices.sentences().size(), 1);
    EXPECT_TRUE(m_notices.sentences().constFirst().contains("sms.db"));
}

TEST_F(ConversationRowsCacheTest, ManyDamagedPagesLeaveTheRest)
{
    damage(5);
    open();
    std::size_t found = 0;
    for (std::size_t i = 0; i < kConversations; ++i) {
        found += numbers(i).size();
    }
    EXPECT_LT(found, std::size_t(kMessages));
    EXPECT_GT(found, std::size_t(kMessages) / 2);
}

TEST(NormalizedDate, TellsSecondsFromNanoseconds)
{
    EXPECT_EQ(backup::normalizedDate(0), 0);
    EXPECT_EQ(backup::normalizedDate(500'000'000), 500'000'000'000'000'000);
    EXPECT_EQ(backup::normalizedDate(600'000'000'123'456'789), 600'000'000'123'456'789);
    EXPECT_EQ(backup::normalizedDate(-86'400), -86'400'000'000'000);
    EXPECT_EQ(backup::normalizedDate(INT64_MAX), INT64_MAX);
    EXPECT_GT(backup::normalizedDate(1'000'000'000'000'000), 0); // does not overflow
}

} // namespace
