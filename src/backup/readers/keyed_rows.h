// SPDX-License-Identifier: MIT
#pragma once

#include "formats/sqlite.h"

#include <QString>

#include <functional>

namespace backup {

/// A query in parts, one column of which is a number of the row that no other row has.
struct KeyedQuery {
    QString select;    ///< "SELECT a, b, rowid FROM t"
    QString condition; ///< "a = 5"; empty where all rows are wanted
    QString key;       ///< "rowid"
    int keyColumn = 0; ///< its place among the columns
};

/// Gives each row to `take` in the order of the key. Around damaged pages the rows before the first
/// one come first, then those behind the last one from their end on, then those in between; none
/// comes twice. False: some could not be read.
bool readByKey(const formats::Database& database, const KeyedQuery& query,
    const std::function<void(const formats::Statement&)>& take);

} // namespace backup
