// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

enum class Verbosity { Quiet, Normal, Verbose };

/// All that the program says goes through here, as UTF-8. Names that come from a backup may hold
/// anything, so control characters never reach a terminal. A status line may stand on the terminal
/// below the lines; it makes way for each of them.
class Console {
public:
    Console() = default;
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;
    virtual ~Console() = default;

    void setVerbosity(Verbosity verbosity) { m_verbosity = verbosity; }
    Verbosity verbosity() const { return m_verbosity; }

    /// A line of the result, on the standard output.
    void print(const QString& line);
    /// A line beside the result, on the standard error; not when quiet.
    void note(const QString& line);
    /// What went wrong, after the program's name, on the standard error.
    void error(const QString& what);

    /// Puts a text without line breaks in the place of the status line. It must be narrower than
    /// `columns()`, or the terminal wraps it and it cannot be taken back.
    void showStatus(const QString& text);
    void clearStatus();

    /// Whether the standard error is a terminal, and so a status line of any use.
    virtual bool isTerminal() const = 0;
    /// Width of the terminal.
    virtual int columns() const = 0;

protected:
    virtual void writeOutput(const QByteArray& bytes) = 0;
    virtual void writeErrors(const QByteArray& bytes) = 0;

private:
    Verbosity m_verbosity = Verbosity::Normal;
    int m_statusWidth = 0; // 0: no status line
};
