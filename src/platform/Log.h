// SPDX-License-Identifier: MIT
#pragma once

#include "platform/export.h"

/// Writes one line of the printf form `format` to the Qt logging category "dataexport.<tag>".
/// Level 1 is an information, any other level a warning. `%s` takes an 8-bit text in UTF-8.
DATAEXPORT_EXPORT void Log(const char* tag, int level, const char* format, ...)
    __attribute__((format(printf, 3, 4)));
