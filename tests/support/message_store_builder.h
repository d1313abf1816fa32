// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>
#include <QVector>

#include <vector>

struct sqlite3;

/// One message to store. `columns` holds what else its row has, by column.
struct StoredMessage {
    qint64 chat = 0; ///< 0: none
    double date = 0; ///< seconds since a day of January 2020
    QString text;    ///< null: no text
    qint64 handle = 0;
    bool fromMe = false;
    QString service = "iMessage";
    QVariantMap columns;
};

/// Makes a store of messages with the schema of a phone. Numbers count from 1, as the store's own.
/// What goes wrong is a failure of the running test.
class MessageStoreBuilder {
public:
    explicit MessageStoreBuilder(const QString& path);
    MessageStoreBuilder(const MessageStoreBuilder&) = delete;
    MessageStoreBuilder& operator=(const MessageStoreBuilder&) = delete;
    ~MessageStoreBuilder();

    qint64 handle(const QString& address, const QString& service = "iMessage");
    /// A chat with one person.
    qint64 chat(const QString& address, qint64 handle, const QString& service = "iMessage");
    qint64 group(const QString& displayName, const std::vector<qint64>& handles);
    qint64 message(const StoredMessage& message);
    /// `columns` besides guid; joined to the message.
    qint64 attachment(qint64 message, const QVariantMap& columns);
    /// Moves a message of a chat to the recently deleted ones.
    void recentlyDelete(qint64 chat, qint64 message);
    void run(const QString& sql);
    /// The guid that `message` gave.
    static QString guid(qint64 message);

private:
    qint64 insert(const QString& table, const QVariantMap& columns);

    sqlite3* m_database = nullptr;
};

/// An archived attributed text of one run, as a message's body.
QByteArray attributedBody(const QString& text);
