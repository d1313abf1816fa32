// SPDX-License-Identifier: MIT
//   Messages  [==============                          ]   35 %  120/s  0:42 left
#include "cli/ProgressBar.h"

#include "cli/Console.h"
#include "platform/literals.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

constexpr qint64 kRedrawMs = 100;
constexpr qint64 kFirstGuessMs = 1000; // a rate of less than a second is no rate
constexpr int kShortestBar = 10;
constexpr int kLongestBar = 40;
constexpr QLatin1String kGap = "  "_L1;

QString twoDigits(qint64 number)
{
    return QStringLiteral("%1").arg(number, 2, 10, QChar(u'0'));
}

QString duration(qint64 seconds)
{
    const qint64 minutes = seconds / 60;
    const QString tail = ":"_L1 + twoDigits(seconds % 60);
    return minutes < 60 ? QString::number(minutes) + tail
                        : QString::number(minutes / 60) + ":"_L1 + twoDigits(minutes % 60) + tail;
}

QString rateText(const ProgressState& state)
{
    const double perSecond = state.records * 1000.0 / static_cast<double>(state.elapsedMs);
    return kGap + QString::number(perSecond, 'f', perSecond < 10.0 ? 1 : 0) + "/s"_L1;
}

QString timeLeftText(const ProgressState& state)
{
    const double leftMs = static_cast<double>(state.elapsedMs) * (1.0 - state.share) / state.share;
    return kGap + duration(std::llround(leftMs / 1000.0)) + " left"_L1;
}

// What may stand behind the bar, the fullest form first.
QStringList tails(const ProgressState& state)
{
    const QString percent =
        kGap + QStringLiteral("%1 %").arg(static_cast<int>(state.share * 100.0), 3);
    if (state.elapsedMs < kFirstGuessMs || state.share <= 0.0) {
        return {percent};
    }
    const QString left = timeLeftText(state);
    return {percent + rateText(state) + left, percent + left, percent};
}

QString barText(double share, int room)
{
    const int length = std::min(room, kLongestBar);
    const int done = static_cast<int>(share * length);
    return kGap + "["_L1 + QString(done, QChar(u'=')) + QString(length - done, QChar(u' '))
           + "]"_L1;
}

} // namespace

ProgressBar::ProgressBar(Console& console, Clock clock)
    : m_console(console), m_clock(std::move(clock))
{
}

ProgressBar::~ProgressBar()
{
    m_console.clearStatus();
}

void ProgressBar::stageBegan(const QString& /*stage*/)
{
}

void ProgressBar::moved(const ProgressState& state)
{
    const qint64 now = m_clock();
    if (m_drawnMs && now - *m_drawnMs < kRedrawMs) {
        return;
    }
    m_drawnMs = now;
    m_console.showStatus(progressBarText(state, m_console.columns() - 1));
}

void ProgressBar::stageEnded(const QString& /*stage*/)
{
}

QString progressBarText(const ProgressState& state, int width)
{
    const int frame = kGap.size() + 2; // the blanks before the bar, and its ends
    const QStringList candidates = tails(state);
    for (const QString& tail : candidates) {
        const int room = width - state.stage.size() - tail.size() - frame;
        if (room >= kShortestBar) {
            return state.stage + barText(state.share, room) + tail;
        }
    }
    return (state.stage + candidates.back()).left(std::max(0, width));
}
