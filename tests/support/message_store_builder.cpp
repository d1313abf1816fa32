// SPDX-License-Identifier: MIT
#include "support/message_store_builder.h"

#include <QFile>
#include <QStringList>

#include <gtest/gtest.h>
#include <sqlite3.h>

// A day of January 2020, in seconds since 2001.
constexpr double kStart = 600'000'000;

MessageStoreBuilder::MessageStoreBuilder(const QString& path)
{
    EXPECT_EQ(sqlite3_open(QFile::encodeName(path).constData(), &m_database), SQLITE_OK);
    run("PRAGMA synchronous = OFF; PRAGMA journal_mode = OFF");
    QFile schema(QStringLiteral(DATAEXPORT_SOURCE_DIR "/samples/backup/schema/sms.sql"));
    EXPECT_TRUE(schema.open(QIODevice::ReadOnly));
    run(QString::fromUtf8(schema.readAll()));
}

MessageStoreBuilder::~MessageStoreBuilder()
{
    sqlite3_close(m_database);
}

void MessageStoreBuilder::run(const QString& sql)
{
    char* message = nullptr;
    sqlite3_exec(m_database, sql.toUtf8().constData(), nullptr, nullptr, &message);
    EXPECT_EQ(message, nullptr) << message;
    sqlite3_free(message);
}

qint64 MessageStoreBuilder::insert(const QString& table, const QVariantMap& columns)
{
    const QString places = QStringList(QVector<QString>(columns.size(), "?").toList()).join(',');
    const QString sql = "INSERT INTO " + table + " (" + QStringList(columns.keys()).join(',')
                        + ") VALUES (" + places + ")";
    sqlite3_stmt* statement = nullptr;
    EXPECT_EQ(sqlite3_prepare_v2(m_database, sql.toUtf8().constData(), -1, &statement, nullptr),
        SQLITE_OK)
        << sqlite3_errmsg(m_database);
    int parameter = 0;
    for (const QVariant& value : columns) {
        ++parameter;
        const QByteArray bytes =
            value.type() == QVariant::ByteArray ? value.toByteArray() : value.toString().toUtf8();
        if (!value.isValid() || (value.type() == QVariant::String && value.toString().isNull())) {
            sqlite3_bind_null(statement, parameter);
        } else if (value.type() == QVariant::ByteArray) {
            sqlite3_bind_blob(
                statement, parameter, bytes.constData(), bytes.size(), SQLITE_TRANSIENT);
        } else if (value.type() == QVariant::String) {
            sqlite3_bind_text(
                statement, parameter, bytes.constData(), bytes.size(), SQLITE_TRANSIENT);
        } else {
            sqlite3_bind_int64(statement, parameter, value.toLongLong());
        }
    }
    EXPECT_EQ(sqlite3_step(statement), SQLITE_DONE) << sqlite3_errmsg(m_database);
    sqlite3_finalize(statement);
    return sqlite3_last_insert_rowid(m_database);
}

qint64 MessageStoreBuilder::handle(const QString& address, const QString& service)
{
    return insert("handle", {{"id", address}, {"service", service}});
}

qint64 MessageStoreBuilder::chat(const QString& address, qint64 handle, const QString& service)
{
    const qint64 id = insert("chat", {{"guid", service + ";-;" + address}, {"style", 45},
                                         {"chat_identifier", address}, {"service_name", service}});
    insert("chat_handle_join", {{"chat_id", id}, {"handle_id", handle}});
    return id;
}

qint64 MessageStoreBuilder::group(const QString& displayName, const std::vector<qint64>& handles)
{
    static int number = 1000;
    const QString identifier = "chat" + QString::number(++number);
    const qint64 id = insert("chat",
        {{"guid", "iMessage;+;" + identifier}, {"style", 43}, {"chat_identifier", identifier},
            {"service_name", "iMessage"}, {"display_name", displayName}});
    for (const qint64 handle : handles) {
        insert("chat_handle_join", {{"chat_id", id}, {"handle_id", handle}});
    }
    return id;
}

qint64 MessageStoreBuilder::message(const StoredMessage& message)
{
    static qint64 number = 0;
    const auto nanoseconds = static_cast<qint64>((kStart + message.date) * 1'000'000'000);
    QVariantMap columns{{"guid", QString("new-%1").arg(++number)}, {"text", message.text},
        {"handle_id", message.handle}, {"service", message.service}, {"date", nanoseconds},
        {"is_from_me", message.fromMe ? 1 : 0}, {"is_sent", message.fromMe ? 1 : 0}};
    for (auto column = message.columns.begin(); column != message.columns.end(); ++column) {
        columns[column.key()] = column.value();
    }
    const qint64 id = insert("message", columns);
    if (!message.columns.contains("guid")) {
        run(QString("UPDATE message SET guid = '%1' WHERE ROWID = %2").arg(guid(id)).arg(id));
    }
    if (message.chat != 0) {
        insert("chat_message_join", {{"chat_id", message.chat}, {"message_id", id},
                                        {"message_date", columns["date"].toLongLong()}});
    }
    return id;
}

qint64 MessageStoreBuilder::attachment(qint64 message, const QVariantMap& columns)
{
    static int number = 0;
    const QString guid = QString("at_0_%1_%2").arg(message).arg(++number);
    QVariantMap all{{"guid", guid}, {"original_guid", guid}};
    for (auto column = columns.begin(); column != columns.end(); ++column) {
        all[column.key()] = column.value();
    }
    const qint64 id = insert("attachment", all);
    insert("message_attachment_join", {{"message_id", message}, {"attachment_id", id}});
    return id;
}

void MessageStoreBuilder::recentlyDelete(qint64 chat, qint64 message)
{
    run(QString("DELETE FROM chat_message_join WHERE chat_id = %1 AND message_id = %2")
            .arg(chat)
            .arg(message));
    insert("chat_recoverable_message_join",
        {{"chat_id", chat}, {"message_id", message}, {"delete_date", 1}});
}

QString MessageStoreBuilder::guid(qint64 message)
{
    return QString("00000000-0000-4000-8000-%1").arg(message, 12, 10, QChar('0'));
}

QByteArray attributedBody(const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    static constexpr char kHead[] =
        "\x04\x0bstreamtyped\x81\xe8\x03\x84\x01@\x84\x84\x84\x12NSAttributedString\0\x84\x84"
        "\x08NSObject\0\x85\x92\x84\x84\x84\x08NSString\x01\x94\x84\x01+";
    QByteArray body(kHead, sizeof kHead - 1);
    body += '\x81';
    body += static_cast<char>(utf8.size() & 0xff);
    body += static_cast<char>(utf8.size() >> 8);
    body += utf8;
    body += "\x86\x86";
    return body;
}
