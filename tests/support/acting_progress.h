// SPDX-License-Identifier: MIT
#pragma once

#include "model/CIProgressCallback.h"

#include <functional>
#include <utility>

namespace support {

/// A host's progress that does something at each step, and never cancels.
class ActingProgress final : public CIProgressCallback {
public:
    explicit ActingProgress(std::function<void()> act) : m_act(std::move(act)) {}

    void initRange(int /*range*/) override {}
    int range() override { return 0; }
    bool step(double amount) override
    {
        m_position += amount;
        m_act();
        return true;
    }
    bool finish() override { return true; }
    void setAttachStage(bool /*attachStage*/) override {}

    double position() const { return m_position; }

private:
    std::function<void()> m_act;
    double m_position = 0.0;
};

} // namespace support
