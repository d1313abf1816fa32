// SPDX-License-Identifier: MIT
#pragma once

#include "cli/ProgressView.h"

class Console;

/// Progress as plain lines, for files and pipes: one when a category begins, one when it ends,
/// and one for each tenth of it in between.
class ProgressLines final : public ProgressView {
public:
    /// `console` is not owned and outlives the lines.
    explicit ProgressLines(Console& console) : m_console(console) {}

    void stageBegan(const QString& stage) override;
    void moved(const ProgressState& state) override;
    void stageEnded(const QString& stage) override;

private:
    Console& m_console;
    int m_tenths = 0; // told of the category in work
};
