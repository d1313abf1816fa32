// SPDX-License-Identifier: MIT
#include "cli/ExportProgress.h"

#include "driver/category_order.h"

#include <algorithm>

namespace {

// Sums of many small steps miss the end of a category by less than this; a record has 100 units.
constexpr double kRoundingUnits = 0.5;

double shareOf(double part, double whole)
{
    return whole > 0.0 ? std::clamp(part / whole, 0.0, 1.0) : 1.0;
}

} // namespace

ExportProgress::ExportProgress(std::vector<ProgressStage> stages, ProgressView* view, Hooks hooks)
    : m_stages(std::move(stages)), m_view(view), m_hooks(std::move(hooks))
{
}

void ExportProgress::initRange(int range)
{
    m_range = range;
    m_position = 0.0;
    m_stage = 0;
    m_stageStart = 0.0;
    m_stageBegan = false;
    m_scaleBegan = m_hooks.clock();
}

bool ExportProgress::step(double amount)
{
    return moveTo(m_position + amount);
}

bool ExportProgress::finish()
{
    return moveTo(m_range);
}

void ExportProgress::setAttachStage(bool attachStage)
{
    if (attachStage) {
        m_stages = {{.name = QStringLiteral("Attachments"), .records = m_range / kUnitsPerRecord}};
        initRange(m_range);
    }
}

// The position stays where the cancel was seen: the library still moves to the ends of its stages.
bool ExportProgress::moveTo(double position)
{
    if (sawCancel()) {
        return false;
    }
    m_position = std::min<double>(position, m_range);
    if (m_view != nullptr) {
        endPassedStages();
    }
    if (m_view != nullptr && m_stage < m_stages.size()) {
        m_view->moved(state());
    }
    return true;
}

bool ExportProgress::sawCancel()
{
    if (!m_cancelled && m_hooks.isCancelled()) {
        m_cancelled = true;
        if (m_hooks.onCancel) {
            m_hooks.onCancel();
        }
    }
    return m_cancelled;
}

void ExportProgress::endPassedStages()
{
    while (m_stage < m_stages.size()) {
        const ProgressStage& stage = m_stages.at(m_stage);
        if (!m_stageBegan) {
            m_view->stageBegan(stage.name);
            m_stageBegan = true;
        }
        const double end = m_stageStart + double(kUnitsPerRecord) * stage.records;
        if (m_position < end - kRoundingUnits) {
            return;
        }
        m_view->stageEnded(stage.name);
        m_stageBegan = false;
        m_stageStart = end;
        ++m_stage;
    }
}

ProgressState ExportProgress::state() const
{
    const ProgressStage& stage = m_stages.at(m_stage);
    return {.stage = stage.name,
        .stageShare = shareOf(m_position - m_stageStart, double(kUnitsPerRecord) * stage.records),
        .share = shareOf(m_position, m_range),
        .records = m_position / kUnitsPerRecord,
        .elapsedMs = m_hooks.clock() - m_scaleBegan};
}
