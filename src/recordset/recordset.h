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

/// Reads a record set. Nothing is taken from a file that has an error; the error names the file,
/// the JSON pointer of the place and what was expected there.
formats::Result<RecordSet> load(const QString& path);

/// Writes all records of `backup` as a record set, one record in memory at a time. `progress`, if
/// given, is called after each record with the number of records written so far; false from it ends
/// the work. The file appears under its name when it is complete; an error leaves what was there.
formats::Done save(const PRBackup& backup, const QString& owner, const QString& path,
    const std::function<bool(qint64)>& progress = {});

} // namespace recordset
