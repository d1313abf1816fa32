// SPDX-License-Identifier: MIT
#pragma once

#include "formats/Result.h"
#include "model/PRBackup.h"

#include <functional>

namespace recordset {

/// The records of one file, and its owner's display name (empty where it names none).
struct RecordSet {
    QString owner;
    PRBackup records;
};

/// Reads a record set. Nothing is taken from a file that has an error; the error's `where` is the
/// file, ": " and the JSON pointer of the place (line and column for text that is no JSON), its
/// `what` says what was expected there and what was found.
formats::Result<RecordSet> load(const QString& path);

/// Writes all records of `backup` as a record set, one record in memory at a time. `progress`, if
/// given, is called after each record with the number of records written so far; false from it ends
/// the work with the error "cancelled". Surrogates without a partner, which JSON cannot say, become
/// U+FFFD; pictures of notes that were not loaded from a file are left out. The file appears under
/// its name when it is complete; an error leaves what was there.
formats::Done save(const PRBackup& backup, const QString& owner, const QString& path,
    const std::function<bool(qint64)>& progress = {});

} // namespace recordset
