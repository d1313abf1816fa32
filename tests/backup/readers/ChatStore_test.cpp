// SPDX-License-Identifier: MIT
#include "backup/readers/ChatStore.h"

#include <QDir>

#include <gtest/gtest.h>

namespace {

using backup::ChatApp;
using backup::ChatFile;
using backup::ChatStore;
using backup::ChatSummary;

constexpr backup::ChatTypes kTypes{.chats = 5, .files = 6};

class NoFiles final : public backup::FileLocator {
public:
    QString locate(const QString& domain, const QString& path) const override
    {
        return domain + "/" + path;
    }
    QStringList filesBelow(const QString& /*domain*/, const QString& /*directory*/) const override
    {
        return {};
    }
};

QDateTime second(int number)
{
    return QDateTime::fromSecsSinceEpoch(1'600'000'000 + number, Qt::UTC);
}

/// One account whose chats are told to it.
class Account final : public ChatApp {
public:
    explicit Account(std::vector<ChatSummary> chats, int* loads = nullptr)
        : m_chats(std::move(chats)), m_loads(loads)
    {
    }
    explicit Account(std::vector<ChatMessage> further)
        : m_chats({{.title = "a"}}), m_further(std::move(further))
    {
    }
    std::vector<ChatSummary> chats() override { return m_chats; }
    std::vector<PRWhatsappMsg> messages(const ChatSummary& chat) override
    {
        if (m_loads != nullptr) {
            ++*m_loads;
        }
        std::vector<PRWhatsappMsg> messages;
        messages.emplace_back(ChatMessage{.content = "in " + chat.title});
        for (const ChatMessage& further : m_further) {
            messages.emplace_back(further);
        }
        return messages;
    }
    std::vector<ChatFile> files() override
    {
        return {{.name = "beach.jpg",
                    .chatTitle = m_chats.front().title,
                    .place = {"Domain", "Media/a.jpg"},
                    .date = second(0)},
            {.name = "b", .deleted = true, .place = {"Domain", "Media/b"}}};
    }

private:
    std::vector<ChatSummary> m_chats;
    std::vector<ChatMessage> m_further; // after the first
    int* m_loads = nullptr;
};

class ChatStoreTest : public ::testing::Test {
protected:
    ChatStore& store(std::vector<ChatSummary> chats, int* loads = nullptr)
    {
        m_store.add(std::make_unique<Account>(std::move(chats), loads));
        return m_store;
    }
    ChatStore& storeWith(std::vector<ChatMessage> messages)
    {
        m_store.add(std::make_unique<Account>(std::move(messages)));
        return m_store;
    }
    static QString firstText(PRData& chats, int row)
    {
        auto* chat = dynamic_cast<PRWhatsappItem*>(chats.at(row, true));
        return chat == nullptr ? "no chat"
                               : chat->detailContent()->messages().constFirst()->content();
    }

private:
    NoFiles m_files;
    ChatStore m_store{kTypes, m_files};
};

TEST_F(ChatStoreTest, RecordHasTitleNamePhoneAndTheDeletedMark)
{
    const auto chats = store({{.title = "Choir", .name = "Choir, 4", .phones = "1,2"},
                                 {.title = "Gone", .deleted = true}})
                           .chats();
    EXPECT_EQ(chats->dataType(), 5);
    ASSERT_EQ(chats->count(1), 2);
    EXPECT_EQ(chats->value(0, 0), "Choir");
    EXPECT_EQ(chats->value(0, 1), "Choir, 4");
    EXPECT_EQ(chats->value(0, 2), "1,2");
    EXPECT_FALSE(chats->at(0, true)->flag(Deleted));
    EXPECT_TRUE(chats->at(1, true)->flag(Deleted));
}

TEST_F(ChatStoreTest, ChatsOfAllAccountsStandInTheOrderOfTheirLastMessages)
{
    store({{.title = "old", .lastDate = second(1)}, {.title = "undated"}});
    const auto chats = store({{.title = "new", .lastDate = second(2)}}).chats();
    ASSERT_EQ(chats->count(1), 3);
    EXPECT_EQ(chats->value(0, 0), "new");
    EXPECT_EQ(chats->value(1, 0), "old");
    EXPECT_EQ(chats->value(2, 0), "undated");
    EXPECT_EQ(firstText(*chats, 0), "in new");
    EXPECT_EQ(firstText(*chats, 2), "in undated");
}

TEST_F(ChatStoreTest, MessagesAreLoadedOnceUntilAnotherChatIsAskedFor)
{
    int loads = 0;
    const auto chats = store({{.title = "a"}, {.title = "b"}}, &loads).chats();
    EXPECT_EQ(chats->count(1), 2);
    EXPECT_EQ(loads, 0);
    EXPECT_EQ(firstText(*chats, 0), "in a");
    EXPECT_EQ(firstText(*chats, 0), "in a");
    EXPECT_EQ(loads, 1);
    EXPECT_EQ(firstText(*chats, 1), "in b");
    EXPECT_EQ(firstText(*chats, 0), "in a");
    EXPECT_EQ(loads, 3);
}

TEST_F(ChatStoreTest, CaptionFollowsItsPictureAsAMessage)
{
    const ChatMessage picture{.type = 1,
        .fromMe = true,
        .sentDone = false,
        .date = second(1),
        .content = "At the harbour",
        .member = "Ben",
        .media = "boat.jpg",
        .broadcast = true,
        .drawLike = true,
        .likeType = 1,
        .likeCount = 2};
    const auto chats = storeWith({picture, {.content = "next"}}).chats();
    auto* chat = dynamic_cast<PRWhatsappItem*>(chats->at(0, true));
    ASSERT_NE(chat, nullptr);
    const auto& messages = chat->detailContent()->messages();
    ASSERT_EQ(messages.size(), 4);
    const ChatMessage& shown = messages[1]->contents();
    EXPECT_EQ(shown.type, 1);
    EXPECT_EQ(shown.media, "boat.jpg");
    EXPECT_EQ(shown.content, "");
    EXPECT_TRUE(shown.drawLike);
    EXPECT_EQ(shown.likeCount, 2);
    const ChatMessage& caption = messages[2]->contents();
    EXPECT_EQ(caption.type, 0);
    EXPECT_EQ(caption.media, "");
    EXPECT_EQ(caption.content, "At the harbour");
    EXPECT_FALSE(caption.drawLike);
    for (const ChatMessage& both : {shown, caption}) {
        EXPECT_TRUE(both.fromMe);
        EXPECT_FALSE(both.sentDone);
        EXPECT_TRUE(both.broadcast);
        EXPECT_EQ(both.date, second(1));
        EXPECT_EQ(both.member, "Ben");
    }
    EXPECT_EQ(messages[3]->content(), "next");
}

TEST_F(ChatStoreTest, OnlyPicturesFilmsAndSoundsHaveCaptionsOfTheirOwn)
{
    struct Row {
        const char* what = nullptr;
        ChatMessage message;
        int more = 0;
    };
    const std::vector<Row> rows{
        {"picture", {.type = 1, .content = "text", .media = "a"}, 1},
        {"film", {.type = 2, .content = "text", .media = "a"}, 1},
        {"sound", {.type = 3, .content = "text", .media = "a"}, 1},
        {"no caption", {.type = 1, .media = "a"}, 0},
        {"not on the phone: an icon has room beside it", {.type = 1, .content = "text"}, 0},
        {"document, whose text is its name", {.type = 8, .content = "a.pdf", .media = "a"}, 0},
        {"link with a preview", {.type = 7, .content = "text", .media = "a"}, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        NoFiles files;
        ChatStore store(kTypes, files);
        store.add(std::make_unique<Account>(std::vector<ChatMessage>{row.message}));
        const auto chats = store.chats();
        auto* chat = dynamic_cast<PRWhatsappItem*>(chats->at(0, true));
        ASSERT_NE(chat, nullptr);
        EXPECT_EQ(chat->detailContent()->messages().size(), 2 + row.more);
    }
}

TEST_F(ChatStoreTest, FilesLieInDirectoriesOfTheirChats)
{
    const auto files = store({{.title = "Choir"}}).files();
    EXPECT_EQ(files->dataType(), 6);
    ASSERT_EQ(files->count(1), 2);
    auto* first = dynamic_cast<PRFileItem*>(files->at(0, true));
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->value(0), "beach.jpg");
    EXPECT_EQ(first->value(1), "Choir");
    EXPECT_EQ(first->parentItem()->value(0), "Choir");
    EXPECT_EQ(first->filePath(), "Domain/Media/a.jpg");
    EXPECT_EQ(first->getDetailInfoDateTime(), "2020-09-13T12:26:40Z");
    EXPECT_FALSE(first->flag(Deleted));
    EXPECT_EQ(files->at(1, true)->parentItem()->value(0), "_");
    EXPECT_TRUE(files->at(1, true)->flag(Deleted));
}

} // namespace
