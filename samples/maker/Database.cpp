// SPDX-License-Identifier: MIT
#include "Database.h"

#include "common.h"

#include <QFile>
#include <QRegularExpression>

#include <sqlite3.h>

#include <algorithm>
#include <cmath>

namespace sample {

namespace {

int noRandomness(sqlite3_vfs* /*vfs*/, int size, char* bytes)
{
    std::fill_n(bytes, size, '\0');
    return size;
}

// The salts of a write-ahead log are drawn at random, from what the file system layer offers as a
// seed. With a layer that always offers the same, two runs give the same log.
const char* fileSystemWithoutChance()
{
    static sqlite3_vfs layer = [] {
        sqlite3_vfs copy = *sqlite3_vfs_find(nullptr);
        copy.zName = "without-chance";
        copy.xRandomness = noRandomness;
        return copy;
    }();
    sqlite3_vfs_register(&layer, 1);
    return layer.zName;
}

// SQLite keeps the text of a definition; a phone's has neither comments nor line breaks.
QByteArray plainSchema(const QString& path)
{
    QString sql = QString::fromUtf8(readFile(path));
    sql.remove(QRegularExpression("--[^\n]*"));
    sql = sql.simplified();
    sql.replace("( ", "(");
    sql.replace(" )", ")");
    return sql.toUtf8();
}

void bindText(sqlite3_stmt* statement, int place, const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    if (!text.isNull()) {
        sqlite3_bind_text(statement, place, utf8.constData(), utf8.size(), SQLITE_TRANSIENT);
    }
}

void bindBytes(sqlite3_stmt* statement, int place, const QByteArray& bytes)
{
    sqlite3_bind_blob(statement, place, bytes.constData(), bytes.size(), SQLITE_TRANSIENT);
}

void bind(sqlite3_stmt* statement, int place, const QVariant& value)
{
    if (value.userType() == QMetaType::QString) {
        bindText(statement, place, value.toString());
    } else if (value.userType() == QMetaType::QByteArray) {
        bindBytes(statement, place, value.toByteArray());
    } else if (value.userType() == QMetaType::Double
               && value.toDouble() != std::floor(value.toDouble())) {
        sqlite3_bind_double(statement, place, value.toDouble());
    } else if (value.isValid()) {
        sqlite3_bind_int64(statement, place, value.toLongLong());
    }
}

} // namespace

void Database::Close::operator()(sqlite3* database) const
{
    sqlite3_close_v2(database);
}

Database::Database(const QString& path, const QString& schema, Journal journal) : m_path(path)
{
    sqlite3* handle = nullptr;
    const int code = sqlite3_open_v2(QFile::encodeName(path).constData(), &handle,
        SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, fileSystemWithoutChance());
    m_database.reset(handle);
    if (code != SQLITE_OK) {
        fail(path + ": " + QString::fromUtf8(sqlite3_errmsg(handle)));
    }
    // Deleted rows keep their bytes, as they do on a phone.
    run("PRAGMA page_size = 4096; PRAGMA secure_delete = OFF;");
    if (journal == Journal::WriteAheadLog) {
        run("PRAGMA auto_vacuum = FULL; PRAGMA journal_mode = WAL;"
            "PRAGMA wal_autocheckpoint = 0;");
    } else {
        run("PRAGMA auto_vacuum = INCREMENTAL;");
    }
    run(plainSchema(schema));
}

qint64 Database::insert(const char* table, const Row& row)
{
    QByteArray names;
    QByteArray places;
    for (const auto& [name, value] : row) {
        names += (names.isEmpty() ? "" : ", ") + QByteArray(name);
        places += places.isEmpty() ? "?" : ", ?";
    }
    const QByteArray sql =
        "INSERT INTO " + QByteArray(table) + " (" + names + ") VALUES (" + places + ")";
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(m_database.get(), sql.constData(), sql.size(), &statement, nullptr);
    int place = 0;
    for (const auto& cell : row) {
        bind(statement, ++place, cell.second);
    }
    const int code = sqlite3_step(statement);
    sqlite3_finalize(statement);
    if (code != SQLITE_DONE) {
        fail(QString("%1: %2\n%3").arg(m_path, sqlite3_errmsg(m_database.get()), sql));
    }
    return sqlite3_last_insert_rowid(m_database.get());
}

void Database::run(const QByteArray& sql)
{
    if (sqlite3_exec(m_database.get(), sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        fail(QString("%1: %2\n%3").arg(m_path, sqlite3_errmsg(m_database.get()), sql));
    }
}

void Database::checkpoint()
{
    run("PRAGMA wal_checkpoint(TRUNCATE);");
}

QByteArray Database::mainFile() const
{
    return readFile(m_path);
}

QByteArray Database::logFile() const
{
    return readFile(m_path + "-wal");
}

} // namespace sample
