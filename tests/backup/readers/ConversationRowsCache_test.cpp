// SPDX-License-Identifier: MIT
#include "backup/container/Notices.h"
#include "backup/readers/ConversationRowsCache.h"
#include "support/message_store_builder.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

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
        builder.run("COMMIT");
    }

    void open()
    {
        auto database = formats::Database::open(m_path, formats::OpenMode::Immutable);
        ASSERT_TRUE(database.has_value());
        m_database.emplace(std::move(*database));
        m_conversations = backup::readConversations(*m_database, backup::Handles(*m_database, {}));
        m_cache.emplace(*m_database, m_conversations, m_notices);
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

TEST_F(ConversationRowsCacheTest, WalkInOrderFindsEachMessageOnce)
{
    open();
    for (std::size_t i = 0; i < kConversations; ++i) {
        EXPECT_EQ(numbers(i), expected(i)) << i;
    }
}

TEST_F(ConversationRowsCacheTest, SecondWalkFindsTheSame)
{
    open();
    for (int round = 0; round < 2; ++round) {
        for (std::size_t i = 0; i < kConversations; ++i) {
            EXPECT_EQ(numbers(i), expected(i)) << i;
        }
    }
}

TEST_F(ConversationRowsCacheTest, AnyOrderFindsTheSame)
{
    open();
    for (const std::size_t i : {5, 0, 11, 11, 3, 4, 5, 6, 7, 2, 8, 9}) {
        EXPECT_EQ(numbers(i), expected(i)) << i;
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
