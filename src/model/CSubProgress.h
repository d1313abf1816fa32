// SPDX-License-Identifier: MIT
#pragma once

#include "model/CIProgressCallback.h"

/// Maps a scale of its own onto a share of its parent's scale. `initRange` starts a stage and may
/// be called several times: each stage stands for `share` units of the parent. The parent may be
/// null and is not owned.
class DATAEXPORT_EXPORT CSubProgress final : public CIProgressCallback {
public:
    CSubProgress(CIProgressCallback* parent, int share);

    void initRange(int range) override;
    /// The value last passed to `initRange`.
    int range() override { return m_range; }
    /// Never passes more to the parent than is left of the stage's share.
    bool step(double amount) override;
    /// Passes what is left of the stage's share to the parent. False once the parent has reported a
    /// cancel; true without a parent.
    bool finish() override;
    void setAttachStage(bool attachStage) override;

private:
    bool advance(double parentUnits);

    CIProgressCallback* m_parent;
    int m_share;
    int m_range = 0;
    double m_passedOn = 0.0; // units of the parent, in this stage
    bool m_cancelled = false;
};
