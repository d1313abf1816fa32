// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/SenderNames.h"
#include "backup/readers/call_rows.h"
#include "model/PRData.h"

#include <vector>

namespace backup {

/// The columns of a set of calls.
QStringList callColumns();

/// Its records, newest first. Of two with one date the one that comes later in `calls` is first.
RecordList callRecords(std::vector<Call> calls, const SenderNames& names);

} // namespace backup
