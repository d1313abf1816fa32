// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/ChatApp.h"
#include "backup/readers/ChildRows.h"
#include "backup/readers/LazyData.h"

#include <QHash>

#include <vector>

namespace backup {

/// Where an application's database lies, and what surrounds it.
struct ChatDatabase {
    NamedDatabase database;
    DeviceFile place; ///< a bare name where the database was opened without its device
    const FileLocator& files;
    Notices& notices;
};

/// The chats of an application that has the messages of all of them in one table.
class TableChats : public ChatApp {
public:
    std::vector<ChatSummary> chats() final;
    std::vector<PRWhatsappMsg> messages(const ChatSummary& chat) final;
    std::vector<ChatFile> files() final;

protected:
    struct MessageTable {
        QString name;
        QString chat; ///< column: the row of its chat
        QString date; ///< column, as WantedColumn names it
        QDateTime (*dateOf)(const formats::Statement&, int column) = nullptr;
        std::vector<WantedColumn> columns; ///< what the application wants besides
    };
    /// The first of an application's own columns in a row of the table of messages, and where the
    /// row's id stands: behind the last of them.
    static constexpr int kOwnColumns = 2;
    int idColumn() const { return m_idColumn; }

    struct StoredChat {
        ChatSummary summary; ///< without its date
        bool isGroup = false;
    };
    /// A file of a message; without a place it was never on the device.
    struct StoredFile {
        DeviceFile place;
        QString name;
        int type = 0; ///< a MsgType, of further files of a message
    };
    struct StoredMessage {
        ChatMessage message; ///< without date and media
        std::vector<StoredFile> files;
    };

    TableChats(ChatDatabase database, const MessageTable& table);

    const TableReader& reader() const { return m_reader; }
    const formats::Database& database() const { return m_database.opened.database; }
    const DeviceFile& place() const { return m_place; }
    const FileLocator& locator() const { return m_files; }

    /// All chats, called once and before all that follows. What messages need is read here too.
    virtual std::vector<StoredChat> readChats() = 0;
    /// One row of the table of messages.
    virtual StoredMessage readMessage(const formats::Statement& row, const StoredChat& chat) = 0;
    /// Whether `readMessage` may find a file for it.
    virtual bool canHaveFile(const formats::Statement& row) const = 0;
    /// The files that no message has, once all messages have asked for theirs.
    virtual std::vector<ChatFile> leftOverFiles() { return {}; }

private:
    struct FoundFile;

    void prepare();
    const StoredChat& chatOf(qint64 id);
    void addFiles(const formats::Statement& row, std::vector<FoundFile>& found);
    void add(const StoredMessage& stored, std::vector<ChatMessage>& messages) const;

    NamedDatabase m_database;
    DeviceFile m_place;
    const FileLocator& m_files;
    TableReader m_reader;
    ChildRows m_rows;
    ChildRows m_dates; // of all messages
    QDateTime (*m_dateOf)(const formats::Statement&, int column);
    int m_idColumn;
    bool m_isPrepared = false;
    std::vector<StoredChat> m_chats;
    QHash<qint64, std::size_t> m_byId;
};

/// Whether a table has no row. One that cannot be read has.
bool isEmptyTable(const formats::Database& database, const QString& table);

/// A table that joins the rows of two others, and its two columns.
struct JoinTable {
    QString table;
    QString left;
    QString right;
};

/// The first table of this kind whose columns match; none where there is none. Their names hold
/// numbers that differ from store to store. `left` is any other column where it is empty.
JoinTable findJoin(const formats::Database& database, const QString& table, const QString& left,
    const QString& right);

/// The right-hand rows of each left-hand one.
QHash<qint64, QVector<qint64>> readJoin(const TableReader& reader, const JoinTable& join);

} // namespace backup
