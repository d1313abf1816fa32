// SPDX-License-Identifier: MIT
#pragma once

#include "model/CIProgressCallback.h"

#include <QString>
#include <QStringList>

namespace support {

/// A host's progress that writes down every call as text, in order:
///   "initRange 300", "range", "step 12.5", "finish", "setAttachStage true"
/// and can cancel, either at a given step or by a call in between.
class RecordingProgress final : public CIProgressCallback {
public:
    RecordingProgress() = default;
    /// The `cancelAtStep`-th call of `step` (counted from 1, polls included) is the first one that
    /// answers false. 0: never.
    explicit RecordingProgress(int cancelAtStep) : m_cancelAtStep(cancelAtStep) {}

    void initRange(int range) override
    {
        m_calls.append(QStringLiteral("initRange %1").arg(range));
        m_range = range;
        m_position = 0.0;
    }

    int range() override
    {
        m_calls.append(QStringLiteral("range"));
        return m_range;
    }

    bool step(double amount) override
    {
        m_calls.append(QStringLiteral("step %1").arg(amount));
        ++m_steps;
        m_position += amount;
        m_cancelled = m_cancelled || m_steps == m_cancelAtStep;
        return !m_cancelled;
    }

    bool finish() override
    {
        m_calls.append(QStringLiteral("finish"));
        m_position = m_range;
        return !m_cancelled;
    }

    void setAttachStage(bool attachStage) override
    {
        m_calls.append(attachStage ? QStringLiteral("setAttachStage true")
                                   : QStringLiteral("setAttachStage false"));
    }

    /// As a user does while the export runs: all answers from now on are false.
    void cancel() { m_cancelled = true; }

    const QStringList& calls() const { return m_calls; }
    /// The calls without the polls ("step 0"), whose number is of no meaning in most claims.
    QStringList callsWithoutPolls() const
    {
        QStringList calls = m_calls;
        calls.removeAll(QStringLiteral("step 0"));
        return calls;
    }
    /// Forgets the calls written down so far; the position and a cancel stay.
    void clearCalls() { m_calls.clear(); }

    /// Units on the present scale.
    double position() const { return m_position; }
    int currentRange() const { return m_range; }
    int steps() const { return m_steps; }

private:
    QStringList m_calls;
    int m_cancelAtStep = 0;
    int m_steps = 0;
    int m_range = 0;
    double m_position = 0.0;
    bool m_cancelled = false;
};

} // namespace support
