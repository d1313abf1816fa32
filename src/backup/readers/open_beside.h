// SPDX-License-Identifier: MIT
#pragma once

#include "backup/container/FileLocator.h"
#include "backup/container/opened_database.h"

#include <optional>

namespace backup {

/// Opens a further database of a device, or one that lies beside a loose database. None where there
/// is none.
std::optional<formats::Result<OpenedDatabase>> openBeside(
    const FileLocator& files, const QString& domain, const QString& path, Notices& notices);

/// The same in `domain` alone, where other applications have files of the same path.
std::optional<formats::Result<OpenedDatabase>> openInDomain(
    const FileLocator& files, const QString& domain, const QString& path, Notices& notices);

} // namespace backup
