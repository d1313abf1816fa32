// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRBackup.h"

#include <QString>

namespace support {

/// The place of the first difference in what two backups answer to an exporter, and both answers:
/// "set 0, record 2, chat 1, content: \"a\" and \"b\"". Empty where there is none. Dates are the
/// same where they are the same moment.
QString firstDifference(const PRBackup& one, const PRBackup& other);

} // namespace support
