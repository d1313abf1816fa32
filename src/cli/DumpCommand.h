// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Command.h"

struct Source;

/// `dataexport dump`: a record set of any source.
class DumpCommand final : public Command {
public:
    /// `program` and `console` are not owned and outlive the command.
    DumpCommand(CLI::App& program, Console& console);

    bool isChosen() const override;
    int run() override;

private:
    int dump(const Source& source);

    CLI::App* m_arguments;
    Console& m_console;
    std::string m_source;
    std::string m_file;
    VerbosityOptions m_verbosity;
};
