// SPDX-License-Identifier: MIT
#pragma once

#include "formats/Result.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <span>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace formats {

struct CloseDatabase {
    void operator()(sqlite3* database) const;
};
struct FinalizeStatement {
    void operator()(sqlite3_stmt* statement) const;
};

/// One prepared query. A damaged page or a foreign type of value never throws: reading ends, and
/// `failed` tells it. Must not outlive its Database.
class Statement {
public:
    Statement() = default;
    explicit Statement(sqlite3_stmt* statement) : m_statement(statement) {}

    /// Sets a parameter; they count from 1. Goes back to before the first row.
    Statement& bind(int parameter, qint64 value);
    Statement& bind(int parameter, const QString& value);

    /// Moves to the next row; false at the end and on an error, and from then on.
    bool next();
    /// Back to before the first row, with the parameters kept.
    void reset();
    /// Whether the rows ended in an error, or a parameter was refused, and no `reset` came since.
    bool failed() const { return m_state == State::Failed || m_state == State::Refused; }
    /// What SQLite said of it; empty where nothing failed.
    const QString& errorText() const { return m_errorText; }

    // Values of the current row; columns count from 0. NULL reads as 0 or empty. Views hold until
    // the next `next` or `reset`.
    bool isNull(int column) const;
    qint64 integer(int column) const;
    double real(int column) const;
    /// UTF-8; a byte that is none becomes U+FFFD.
    QString text(int column) const;
    std::string_view textView(int column) const;
    std::span<const unsigned char> blobView(int column) const;
    QByteArray blob(int column) const;

    sqlite3_stmt* handle() const { return m_statement.get(); }

private:
    enum class State { Rows, Ended, Failed, Refused };

    void beginToBind();
    void take(State failure, int code);

    std::unique_ptr<sqlite3_stmt, FinalizeStatement> m_statement;
    State m_state = State::Rows;
    QString m_errorText;
};

/// How a database of a backup is opened.
enum class OpenMode {
    Immutable, ///< the file itself, untouched: no lock, no side file is read or made
    Replay,    ///< a private copy whose write-ahead log is to be taken in
};

/// A SQLite database of a backup. Its schema is not trusted: no function of it runs by itself, and
/// its views and triggers are out of use. An object belongs to one thread at a time.
class Database {
public:
    /// The error names `path`.
    static Result<Database> open(const QString& path, OpenMode mode);

    const QString& path() const { return m_path; }

    /// Prepares one query.
    Result<Statement> prepare(const QString& sql) const;

    bool hasTable(const QString& name) const;
    QStringList tables() const;
    /// Names of the columns; empty where there is no such table.
    QStringList columns(const QString& table) const;

    sqlite3* handle() const { return m_database.get(); }

private:
    Database(QString path, sqlite3* database) : m_path(std::move(path)), m_database(database) {}

    QString m_path;
    std::unique_ptr<sqlite3, CloseDatabase> m_database;
};

} // namespace formats
