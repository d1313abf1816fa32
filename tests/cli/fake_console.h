// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Console.h"

/// A console that keeps what is written, with a terminal of any width.
class FakeConsole final : public Console {
public:
    explicit FakeConsole(bool terminal = false, int width = 80)
        : m_terminal(terminal), m_width(width)
    {
    }

    bool isTerminal() const override { return m_terminal; }
    int columns() const override { return m_width; }
    void setColumns(int width) { m_width = width; }

    const QByteArray& output() const { return m_output; }
    const QByteArray& errors() const { return m_errors; }
    void forget() { m_errors.clear(); }

protected:
    void writeOutput(const QByteArray& bytes) override { m_output += bytes; }
    void writeErrors(const QByteArray& bytes) override { m_errors += bytes; }

private:
    bool m_terminal;
    int m_width;
    QByteArray m_output;
    QByteArray m_errors;
};
