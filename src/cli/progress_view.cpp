// SPDX-License-Identifier: MIT
#include "cli/progress_view.h"

#include "cli/Console.h"
#include "cli/ProgressBar.h"
#include "cli/ProgressLines.h"

#include <chrono>

std::unique_ptr<ProgressView> progressView(Console& console)
{
    if (console.verbosity() == Verbosity::Quiet) {
        return nullptr;
    }
    if (console.isTerminal()) {
        return std::make_unique<ProgressBar>(console, steadyClock());
    }
    return std::make_unique<ProgressLines>(console);
}

Clock steadyClock()
{
    return [] {
        const auto now = std::chrono::steady_clock::now().time_since_epoch();
        return qint64(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
    };
}
