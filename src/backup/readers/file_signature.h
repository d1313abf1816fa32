// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <QLatin1String>

namespace backup {

/// The ending that the first bytes of a file ask for ("jpg"); empty where they tell nothing, and
/// for a file that cannot be read.
QLatin1String endingOfFile(const QString& path);

} // namespace backup
