// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Console.h"

/// The console of the process: its standard output and standard error.
class StandardConsole final : public Console {
public:
    bool isTerminal() const override;
    int columns() const override;

protected:
    void writeOutput(const QByteArray& bytes) override;
    void writeErrors(const QByteArray& bytes) override;
};
