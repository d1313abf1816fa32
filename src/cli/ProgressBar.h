// SPDX-License-Identifier: MIT
#pragma once

#include "cli/ProgressView.h"

#include <optional>

class Console;

/// A bar on the status line of a terminal.
class ProgressBar final : public ProgressView {
public:
    /// `console` is not owned and outlives the bar.
    ProgressBar(Console& console, Clock clock);
    ~ProgressBar() override;

    void stageBegan(const QString& stage) override;
    void moved(const ProgressState& state) override;
    void stageEnded(const QString& stage) override;

private:
    Console& m_console;
    Clock m_clock;
    std::optional<qint64> m_drawnMs; // none: not yet
};

/// The bar as text of at most `width` characters; what does not fit is left out, the least useful
/// first.
QString progressBarText(const ProgressState& state, int width);
