// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Console.h"

#include <QFile>
#include <QString>

#include <string>

namespace CLI {
class App;
} // namespace CLI

/// One of the program's commands. Its constructor tells the parser what it takes.
class Command {
public:
    Command() = default;
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;
    virtual ~Command() = default;

    /// Whether the arguments name this command.
    virtual bool isChosen() const = 0;
    /// Does the work and returns one of `ExitStatus`.
    virtual int run() = 0;
};

/// An argument as text; the process has a UTF-8 locale.
inline QString argumentText(const std::string& argument)
{
    return QFile::decodeName(QByteArray::fromStdString(argument));
}

/// The options --verbose and --quiet, which exclude each other.
struct VerbosityOptions {
    bool verbose = false;
    bool quiet = false;

    void addTo(CLI::App& command);
    Verbosity verbosity() const;
};
