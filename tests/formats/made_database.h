// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QString>

#include <sqlite3.h>

#include <memory>
#include <stdexcept>

struct CloseMade {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
};
using MadeDatabase = std::unique_ptr<sqlite3, CloseMade>;

inline void run(const MadeDatabase& database, const char* sql)
{
    if (sqlite3_exec(database.get(), sql, nullptr, nullptr, nullptr) != SQLITE_OK) {
        throw std::runtime_error(sqlite3_errmsg(database.get()));
    }
}

/// Makes a database with `sql`, which stays open as long as the result.
inline MadeDatabase madeDatabase(const QString& path, const char* sql)
{
    sqlite3* made = nullptr;
    sqlite3_open(QFile::encodeName(path).constData(), &made);
    MadeDatabase database(made);
    run(database, sql);
    return database;
}
