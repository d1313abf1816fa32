// SPDX-License-Identifier: MIT
//   Messages: begun
//   Messages: 50 %
//   Messages: 100 %
#include "cli/ProgressLines.h"

#include "cli/Console.h"
#include "platform/literals.h"

void ProgressLines::stageBegan(const QString& stage)
{
    m_tenths = 0;
    m_console.note(stage + ": begun"_L1);
}

void ProgressLines::moved(const ProgressState& state)
{
    const int tenths = static_cast<int>(state.stageShare * 10.0);
    if (tenths > m_tenths && tenths < 10) {
        m_tenths = tenths;
        m_console.note(state.stage + ": "_L1 + QString::number(tenths * 10) + " %"_L1);
    }
}

// "Done" would say too much: a category that has failed ends too.
void ProgressLines::stageEnded(const QString& stage)
{
    m_console.note(stage + ": 100 %"_L1);
}
