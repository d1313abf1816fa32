// SPDX-License-Identifier: MIT
#include "formats/sqlite.h"

#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <sqlite3.h>

namespace formats {

namespace {

// How much of the file a Database keeps in memory at once.
constexpr int kCacheKiB = 2048;

// "?" and "#" end a path in a URI and "%" begins an escape. Without the empty host a path that
// begins with two slashes would be taken for one.
QByteArray uriOf(const QString& path, OpenMode mode)
{
    QByteArray uri = "file://" + QFile::encodeName(path).toPercentEncoding("/");
    uri += mode == OpenMode::Immutable ? "?immutable=1" : "?mode=rw";
    return uri;
}

QString messageOf(sqlite3* database)
{
    return QString::fromUtf8(sqlite3_errmsg(database));
}

} // namespace

void CloseDatabase::operator()(sqlite3* database) const
{
    sqlite3_close_v2(database);
}

void FinalizeStatement::operator()(sqlite3_stmt* statement) const
{
    sqlite3_finalize(statement);
}

// SQLite refuses a value once the first row was asked for.
void Statement::beginToBind()
{
    if (m_state != State::Refused) {
        reset();
    }
}

void Statement::take(State failure, int code)
{
    if (code != SQLITE_OK) {
        m_state = failure;
        m_errorText = messageOf(sqlite3_db_handle(m_statement.get()));
    }
}

Statement& Statement::bind(int parameter, qint64 value)
{
    beginToBind();
    take(State::Refused, sqlite3_bind_int64(m_statement.get(), parameter, value));
    return *this;
}

Statement& Statement::bind(int parameter, const QString& value)
{
    const QByteArray utf8 = value.toUtf8();
    beginToBind();
    take(State::Refused, sqlite3_bind_text(m_statement.get(), parameter, utf8.constData(),
                             utf8.size(), SQLITE_TRANSIENT));
    return *this;
}

// SQLite itself would begin with the first row again after the last one, and after an error.
bool Statement::next()
{
    if (!m_statement || m_state != State::Rows) {
        return false;
    }
    const int code = sqlite3_step(m_statement.get());
    if (code == SQLITE_ROW) {
        return true;
    }
    m_state = State::Ended;
    take(State::Failed, code == SQLITE_DONE ? SQLITE_OK : code);
    sqlite3_reset(m_statement.get()); // it told its error already; locks are given up
    return false;
}

void Statement::reset()
{
    sqlite3_reset(m_statement.get()); // it repeats the error of the last row, which is dealt with
    m_state = State::Rows;
    m_errorText.clear();
}

bool Statement::isNull(int column) const
{
    return sqlite3_column_type(m_statement.get(), column) == SQLITE_NULL;
}

qint64 Statement::integer(int column) const
{
    return sqlite3_column_int64(m_statement.get(), column);
}

double Statement::real(int column) const
{
    return sqlite3_column_double(m_statement.get(), column);
}

QString Statement::text(int column) const
{
    const std::string_view view = textView(column);
    return QString::fromUtf8(view.data(), static_cast<int>(view.size()));
}

std::string_view Statement::textView(int column) const
{
    const unsigned char* bytes = sqlite3_column_text(m_statement.get(), column);
    const int size = sqlite3_column_bytes(m_statement.get(), column);
    return bytes == nullptr ? std::string_view()
                            : std::string_view(reinterpret_cast<const char*>(bytes),
                                static_cast<std::size_t>(size));
}

std::span<const unsigned char> Statement::blobView(int column) const
{
    const void* bytes = sqlite3_column_blob(m_statement.get(), column);
    const int size = sqlite3_column_bytes(m_statement.get(), column);
    if (bytes == nullptr) {
        return {};
    }
    return {static_cast<const unsigned char*>(bytes), static_cast<std::size_t>(size)};
}

QByteArray Statement::blob(int column) const
{
    const std::span<const unsigned char> view = blobView(column);
    return {reinterpret_cast<const char*>(view.data()), static_cast<int>(view.size())};
}

Result<Database> Database::open(const QString& path, OpenMode mode)
{
    const QFileInfo file(path);
    if (!file.exists()) {
        return Error{.where = path, .what = QStringLiteral("there is no such file")};
    }
    if (!file.isFile() || !file.isReadable()) {
        return Error{.where = path, .what = QStringLiteral("this is not a file that can be read")};
    }
    sqlite3* handle = nullptr;
    const int flags =
        SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX // one thread reads a database
        | (mode == OpenMode::Immutable ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE);
    const int code =
        sqlite3_open_v2(uriOf(file.absoluteFilePath(), mode).constData(), &handle, flags, nullptr);
    Database database(path, handle);
    if (code != SQLITE_OK) {
        return Error{.where = path, .what = messageOf(handle)};
    }
    sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    // A view in the place of a table could compute for ever.
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    const QString cache = QStringLiteral("PRAGMA cache_size=-%1").arg(kCacheKiB);
    // Should this fail, the file is read with another cache, or not read at all below.
    sqlite3_exec(handle, cache.toUtf8().constData(), nullptr, nullptr, nullptr);
    // The file is not looked at before the first query.
    auto schema = database.prepare(QStringLiteral("SELECT count(*) FROM sqlite_master"));
    if (!schema || !schema->next()) {
        return Error{.where = path,
            .what = QStringLiteral("this is not a database that can be read (%1)")
                        .arg(messageOf(handle))};
    }
    return database;
}

Result<Statement> Database::prepare(const QString& sql) const
{
    sqlite3_stmt* statement = nullptr;
    const QByteArray utf8 = sql.toUtf8();
    const int code =
        sqlite3_prepare_v2(m_database.get(), utf8.constData(), utf8.size(), &statement, nullptr);
    if (code != SQLITE_OK) {
        return Error{.where = m_path, .what = messageOf(m_database.get())};
    }
    return Statement(statement);
}

bool Database::hasTable(const QString& name) const
{
    return tables().contains(name);
}

QStringList Database::tables() const
{
    QStringList names;
    auto query = prepare(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table'"));
    while (query && query->next()) {
        names.append(query->text(0));
    }
    return names;
}

QStringList Database::columns(const QString& table) const
{
    QStringList names;
    auto query = prepare(QStringLiteral("SELECT name FROM pragma_table_info(?)"));
    if (query) {
        query->bind(1, table);
    }
    while (query && query->next()) {
        names.append(query->text(0));
    }
    return names;
}

} // namespace formats
