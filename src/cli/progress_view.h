// SPDX-License-Identifier: MIT
#pragma once

#include "cli/ProgressView.h"

#include <memory>

class Console;

/// What shows the progress on this console: a bar on a terminal, lines elsewhere, null when quiet.
std::unique_ptr<ProgressView> progressView(Console& console);

/// Milliseconds of a clock that nobody sets.
Clock steadyClock();
