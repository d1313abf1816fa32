// SPDX-License-Identifier: MIT
#include "backup/readers/TableChats.h"

#include "platform/literals.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>
#include <utility>

namespace backup {

namespace {

enum Column : int { Chat, Date };

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

std::vector<WantedColumn> withChatAndDate(
    const QString& chat, const QString& date, const std::vector<WantedColumn>& own)
{
    std::vector<WantedColumn> columns{{chat, true}, {date, true}};
    std::ranges::copy(own, std::back_inserter(columns));
    return columns;
}

// Those without a date keep their places at the begin.
template <typename Message> void sortByDate(std::vector<Message>& messages)
{
    const auto order = [](const Message& message) { return dateOrder(message.date); };
    if (!std::ranges::is_sorted(messages, std::less(), order)) {
        std::ranges::stable_sort(messages, std::less(), order);
    }
}

QString firstMatching(const QStringList& columns, const QString& pattern, const QString& other)
{
    const QRegularExpression expression(QRegularExpression::anchoredPattern(pattern));
    for (const QString& column : columns) {
        if (column != other && (pattern.isEmpty() || expression.match(column).hasMatch())) {
            return column;
        }
    }
    return {};
}

} // namespace

TableChats::TableChats(ChatDatabase database, const MessageTable& table)
    : m_database(std::move(database.database)), m_place(std::move(database.place)),
      m_files(database.files),
      m_reader(m_database.opened.database, m_database.name, database.notices),
      m_rows(
          m_reader, table.name, table.chat, withChatAndDate(table.chat, table.date, table.columns)),
      m_dates(m_reader, table.name, table.chat, withChatAndDate(table.chat, table.date, {})),
      m_dateOf(table.dateOf), m_idColumn(kOwnColumns + static_cast<int>(table.columns.size()))
{
}

void TableChats::prepare()
{
    if (std::exchange(m_isPrepared, true)) {
        return;
    }
    m_chats = readChats();
    for (std::size_t i = 0; i < m_chats.size(); ++i) {
        m_byId.insert(m_chats[i].summary.id, i);
    }
}

// A chat whose own row is lost has messages nevertheless.
const TableChats::StoredChat& TableChats::chatOf(qint64 id)
{
    const auto known = m_byId.constFind(id);
    if (known != m_byId.constEnd()) {
        return m_chats[*known];
    }
    m_byId.insert(id, m_chats.size());
    m_chats.push_back({.summary = {.id = id, .title = tr("Unknown")}});
    return m_chats.back();
}

std::vector<ChatSummary> TableChats::chats()
{
    prepare();
    QHash<qint64, qint64> newest;
    m_dates.readAll([&](const formats::Statement& row) {
        const qint64 date = dateOrder(m_dateOf(row, Date));
        const auto known = newest.find(row.integer(Chat));
        if (known == newest.end()) {
            newest.insert(row.integer(Chat), date);
        } else {
            *known = std::max(*known, date);
        }
    });
    QList<qint64> ids = newest.keys();
    std::sort(ids.begin(), ids.end());
    std::ranges::for_each(ids, [this](qint64 id) { chatOf(id); });

    std::vector<ChatSummary> summaries;
    for (const StoredChat& chat : m_chats) {
        const auto date = newest.constFind(chat.summary.id);
        if (date != newest.constEnd()) {
            summaries.push_back(chat.summary);
            summaries.back().lastDate = *date == dateOrder({})
                                            ? QDateTime()
                                            : QDateTime::fromMSecsSinceEpoch(*date, Qt::UTC);
        }
    }
    return summaries;
}

// The first file goes with the text, each further one makes a message of its own.
void TableChats::add(const StoredMessage& stored, std::vector<ChatMessage>& messages) const
{
    if (stored.files.empty()) {
        messages.push_back(stored.message);
    }
    for (std::size_t i = 0; i < stored.files.size(); ++i) {
        const StoredFile& file = stored.files[i];
        ChatMessage message = stored.message;
        if (i > 0) {
            message.type = file.type;
            message.content.clear();
            message.drawLike = false;
        }
        if (!file.place.path.isEmpty()) {
            message.media = m_files.locate(file.place.domain, file.place.path);
        }
        messages.push_back(std::move(message));
    }
}

std::vector<PRWhatsappMsg> TableChats::messages(const ChatSummary& chat)
{
    prepare();
    const StoredChat stored = chatOf(chat.id);
    std::vector<ChatMessage> messages;
    m_rows.read(chat.id, [&](const formats::Statement& row) {
        StoredMessage message = readMessage(row, stored);
        message.message.date = m_dateOf(row, Date);
        if (message.message.type == static_cast<int>(MsgType::GroupEvent)) {
            message.message.member.clear(); // its words say all
        }
        add(message, messages);
    });
    sortByDate(messages);
    return {std::make_move_iterator(messages.begin()), std::make_move_iterator(messages.end())};
}

struct TableChats::FoundFile {
    qint64 chat = 0;
    QDateTime date;
    ChatFile file;
};

// The files of one message that are on the device.
void TableChats::addFiles(const formats::Statement& row, std::vector<FoundFile>& found)
{
    const qint64 id = row.integer(Chat);
    const StoredChat chat = chatOf(id);
    const QDateTime date = m_dateOf(row, Date);
    StoredMessage stored = readMessage(row, chat);
    for (StoredFile& file : stored.files) {
        if (!file.place.path.isEmpty()) {
            found.push_back({id, date,
                {.name = std::move(file.name),
                    .chatTitle = chat.summary.title,
                    .deleted = chat.summary.deleted,
                    .place = std::move(file.place),
                    .date = date}});
        }
    }
}

std::vector<ChatFile> TableChats::files()
{
    prepare();
    std::vector<FoundFile> found;
    m_rows.readAll([&](const formats::Statement& row) {
        if (canHaveFile(row)) {
            addFiles(row, found);
        }
    });
    sortByDate(found);
    std::ranges::stable_sort(found, std::less(), &FoundFile::chat);
    std::vector<ChatFile> files;
    std::ranges::transform(
        found, std::back_inserter(files), [](FoundFile& file) { return std::move(file.file); });
    std::ranges::move(leftOverFiles(), std::back_inserter(files));
    return files;
}

bool isEmptyTable(const formats::Database& database, const QString& table)
{
    auto query = database.prepare("SELECT 1 FROM "_L1 + table + " LIMIT 1"_L1);
    return query && !query->next() && !query->failed();
}

JoinTable findJoin(const formats::Database& database, const QString& table, const QString& left,
    const QString& right)
{
    const QRegularExpression name(QRegularExpression::anchoredPattern(table));
    const QStringList tables = database.tables().filter(name);
    for (const QString& candidate : tables) {
        const QStringList columns = database.columns(candidate);
        const QString rightColumn = firstMatching(columns, right, {});
        const QString leftColumn = firstMatching(columns, left, rightColumn);
        if (!rightColumn.isEmpty() && !leftColumn.isEmpty()) {
            return {.table = candidate, .left = leftColumn, .right = rightColumn};
        }
    }
    return {};
}

QHash<qint64, QVector<qint64>> readJoin(const TableReader& reader, const JoinTable& join)
{
    QHash<qint64, QVector<qint64>> joined;
    if (join.table.isEmpty()) {
        return joined;
    }
    const std::vector<WantedColumn> columns{{join.left}, {join.right}};
    reader.read(join.table, columns,
        [&](const formats::Statement& row) { joined[row.integer(0)].append(row.integer(1)); });
    return joined;
}

} // namespace backup
