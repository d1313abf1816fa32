// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/FoundDatabase.h"
#include "backup/readers/OpenedBackup.h"

namespace backup {

/// Adds the account whose database this is to the sets of its application. One without messages
/// adds nothing.
void addLine(FoundDatabase found, OpenedBackup& opened);
void addViber(FoundDatabase found, OpenedBackup& opened);
void addKik(FoundDatabase found, OpenedBackup& opened);

} // namespace backup
