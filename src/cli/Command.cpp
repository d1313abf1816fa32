// SPDX-License-Identifier: MIT
#include "cli/Command.h"

#include <CLI/CLI.hpp>

void VerbosityOptions::addTo(CLI::App& command)
{
    CLI::Option* verboseFlag =
        command.add_flag("--verbose", verbose, "Show what the library logs as well");
    command.add_flag("--quiet", quiet, "Show nothing but errors")->excludes(verboseFlag);
}

Verbosity VerbosityOptions::verbosity() const
{
    if (quiet) {
        return Verbosity::Quiet;
    }
    return verbose ? Verbosity::Verbose : Verbosity::Normal;
}
