// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <memory>
#include <utility>
#include <vector>

struct sqlite3;

namespace sample {

/// A SQLite database that is made from a schema and filled row by row. The same rows in the same
/// order give the same bytes, those of the write-ahead log included.
class Database {
public:
    enum class Journal {
        Delete,       ///< as the host writes Manifest.db
        WriteAheadLog ///< as the phone writes its own databases
    };

    /// Makes `path` anew from the file `schema`, without its comments and line breaks.
    Database(const QString& path, const QString& schema, Journal journal);

    using Row = std::vector<std::pair<const char*, QVariant>>;

    /// Numbers, texts and QByteArray; an invalid value or a null text is NULL. Gives the row's id.
    qint64 insert(const char* table, const Row& row);

    void run(const QByteArray& sql);

    /// Moves all that the log holds into the main file. What comes later stays in the log.
    void checkpoint();

    /// The bytes as they lie on disk now.
    QByteArray mainFile() const;
    QByteArray logFile() const;

private:
    struct Close {
        void operator()(sqlite3* database) const;
    };
    QString m_path;
    std::unique_ptr<sqlite3, Close> m_database;
};

} // namespace sample
