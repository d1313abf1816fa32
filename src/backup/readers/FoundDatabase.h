// SPDX-License-Identifier: MIT
#pragma once

#include "backup/container/opened_database.h"
#include "backup/readers/SenderNames.h"

#include <QString>

namespace backup {

/// A database that was found, with what its reader may need besides.
struct FoundDatabase {
    OpenedDatabase database;
    QString domain; ///< where it was looked for
    QString name;   ///< how notices call it: its path in that domain
    const SenderNames& names;
};

} // namespace backup
