// SPDX-License-Identifier: MIT
#include "backup/readers/ChatStore.h"

#include "backup/readers/table_reader.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <utility>

namespace backup {

namespace {

/// A chat whose messages are loaded when they are asked for.
class LoadedChat final : public PRWhatsappItem {
public:
    LoadedChat(Record record, ChatStore& store, std::size_t index)
        : PRWhatsappItem(std::move(record)), m_store(store), m_index(index)
    {
    }

    const PRWhatsappChat* detailContent() const override { return m_store.load(m_index); }

private:
    ChatStore& m_store;
    std::size_t m_index;
};

bool isCaptioned(const PRWhatsappMsg& message)
{
    constexpr std::array kinds{MsgType::Picture, MsgType::Video, MsgType::Audio};
    return !message.media().isEmpty() && !message.content().isEmpty()
           && std::ranges::find(kinds, message.type()) != kinds.end();
}

// A page has no room beside a picture, and a table no row for it: its text follows as a message.
std::vector<PRWhatsappMsg> withCaptionsApart(std::vector<PRWhatsappMsg> messages)
{
    const auto captions = std::ranges::count_if(messages, isCaptioned);
    if (captions == 0) {
        return messages;
    }
    std::vector<PRWhatsappMsg> apart;
    apart.reserve(messages.size() + static_cast<std::size_t>(captions));
    for (PRWhatsappMsg& message : messages) {
        if (!isCaptioned(message)) {
            apart.push_back(std::move(message));
            continue;
        }
        ChatMessage medium = message.contents();
        ChatMessage caption = medium;
        medium.content.clear();
        caption.type = static_cast<int>(MsgType::Text);
        caption.media.clear();
        caption.drawLike = false;
        apart.emplace_back(std::move(medium));
        apart.emplace_back(std::move(caption));
    }
    return apart;
}

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

ChatStore* storeOf(int chatType, const OpenedBackup& opened)
{
    for (const auto& source : opened.sources) {
        auto* store = dynamic_cast<ChatStore*>(source.get());
        if (store != nullptr && store->types().chats == chatType) {
            return store;
        }
    }
    return nullptr;
}

} // namespace

ChatStore::ChatStore(ChatTypes types, const FileLocator& files) : m_types(types), m_files(files)
{
}

ChatStore::~ChatStore() = default;

void ChatStore::add(std::unique_ptr<ChatApp> app)
{
    m_apps.push_back(std::move(app));
}

const PRWhatsappChat* ChatStore::load(std::size_t index)
{
    if (index != m_loadedIndex) {
        m_loaded.reset(); // its memory is wanted for the next one
        const StoredChat& chat = m_chats[index];
        m_loaded =
            std::make_unique<PRWhatsappChat>(withCaptionsApart(chat.app->messages(chat.summary)));
        m_loadedIndex = index;
    }
    return m_loaded.get();
}

std::unique_ptr<PRData> ChatStore::chats()
{
    return std::make_unique<ListedData>(m_types.chats,
        QStringList{tr("Chat"), tr("Name"), tr("Phone")}, [this] { return listChats(); });
}

std::unique_ptr<PRData> ChatStore::files()
{
    return std::make_unique<ListedData>(
        m_types.files, QStringList{tr("Name"), tr("Chat")}, [this] { return listFiles(); });
}

RecordList ChatStore::listChats()
{
    for (const auto& app : m_apps) {
        std::vector<ChatSummary> summaries = app->chats();
        for (ChatSummary& summary : summaries) {
            m_chats.push_back({.app = app.get(), .summary = std::move(summary)});
        }
    }
    std::ranges::stable_sort(m_chats, std::ranges::greater(),
        [](const StoredChat& chat) { return dateOrder(chat.summary.lastDate); });

    RecordList records;
    records.reserve(m_chats.size());
    for (std::size_t index = 0; index < m_chats.size(); ++index) {
        const ChatSummary& chat = m_chats[index].summary;
        Record record{
            .values = {chat.title, chat.name, chat.phones},
            .flags = chat.deleted ? Deleted : 0,
        };
        records.push_back(std::make_unique<LoadedChat>(std::move(record), *this, index));
    }
    return records;
}

RecordList ChatStore::listFiles()
{
    RecordList records;
    for (const auto& app : m_apps) {
        std::vector<ChatFile> files = app->files();
        for (ChatFile& file : files) {
            Record record{
                .values = {file.name, file.chatTitle},
                .flags = file.deleted ? Deleted : 0,
                .parent = directoryName(file.chatTitle),
            };
            records.push_back(std::make_unique<DeviceFileItem>(std::move(record),
                FileContent{.detailDate = isoDate(file.date)}, std::move(file.place), m_files));
        }
    }
    return records;
}

void addChatApp(std::unique_ptr<ChatApp> app, ChatTypes types, OpenedBackup& opened)
{
    ChatStore* store = storeOf(types.chats, opened);
    if (store == nullptr) {
        auto made = std::make_unique<ChatStore>(types, *opened.files);
        store = made.get();
        opened.sources.push_back(std::move(made));
        opened.records.add(store->chats());
        opened.records.add(store->files());
    }
    store->add(std::move(app));
}

} // namespace backup
