// SPDX-License-Identifier: MIT
#pragma once

#include "cli/ProgressView.h"
#include "model/CIProgressCallback.h"

#include <functional>
#include <vector>

/// One category on the scale.
struct ProgressStage {
    QString name;
    int records = 0;
};

/// Tells a view what the library does. The library moves along one scale for all categories, each
/// as long as it has records, and does not name them: the category is found by the position. The
/// attachments that are fetched afterwards have a scale of their own.
class ExportProgress final : public CIProgressCallback {
public:
    struct Hooks {
        std::function<bool()> isCancelled;   ///< asked in each step
        std::function<void()> onCancel = {}; ///< called once, when a cancel is first seen
        Clock clock;
    };

    /// `stages` in the order in which they are written; `view` may be null and is not owned.
    ExportProgress(std::vector<ProgressStage> stages, ProgressView* view, Hooks hooks);

    void initRange(int range) override;
    int range() override { return m_range; }
    bool step(double amount) override;
    bool finish() override;
    void setAttachStage(bool attachStage) override;

    /// Whether the library has been told of a cancel.
    bool wasCancelled() const { return m_cancelled; }

private:
    bool moveTo(double position);
    bool sawCancel();
    void endPassedStages();
    ProgressState state() const;

    std::vector<ProgressStage> m_stages;
    ProgressView* m_view;
    Hooks m_hooks;
    int m_range = 0;
    double m_position = 0.0;
    std::size_t m_stage = 0;   // index of the one in work; past the last: all are done
    double m_stageStart = 0.0; // its position
    bool m_stageBegan = false;
    qint64 m_scaleBegan = 0;
    bool m_cancelled = false;
};
