// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Command.h"

struct Source;

/// `dataexport list`: what a source holds.
class ListCommand final : public Command {
public:
    /// `program` and `console` are not owned and outlive the command.
    ListCommand(CLI::App& program, Console& console);

    bool isChosen() const override;
    int run() override;

private:
    void printHeading(const Source& source);
    /// False when the user has stopped it.
    bool printCategories(const Source& source);

    CLI::App* m_arguments;
    Console& m_console;
    std::string m_source;
};
