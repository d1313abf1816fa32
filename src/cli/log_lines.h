// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Console.h"

/// Sends the log lines of the library, and of Qt, to `console` from now on: its warnings, and what
/// it tells beside them when `verbosity` is Verbose; errors alone when it is Quiet. The console
/// takes the verbosity too. It outlives the program's work.
void showLog(Console& console, Verbosity verbosity);

/// Back to Qt's own way.
void hideLog();
