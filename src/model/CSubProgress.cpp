// SPDX-License-Identifier: MIT
#include "model/CSubProgress.h"

#include <algorithm>

CSubProgress::CSubProgress(CIProgressCallback* parent, int share) : m_parent(parent), m_share(share)
{
}

void CSubProgress::initRange(int range)
{
    m_range = range;
    m_passedOn = 0.0;
}

bool CSubProgress::step(double amount)
{
    const double units = m_range > 0 ? amount / m_range * m_share : 0.0;
    return advance(std::min(units, m_share - m_passedOn));
}

bool CSubProgress::finish()
{
    return advance(m_share - m_passedOn);
}

void CSubProgress::setAttachStage(bool attachStage)
{
    if (m_parent != nullptr) {
        m_parent->setAttachStage(attachStage);
    }
}

bool CSubProgress::advance(double parentUnits)
{
    m_passedOn += parentUnits;
    if (m_parent != nullptr && !m_parent->step(parentUnits)) {
        m_cancelled = true;
    }
    return !m_cancelled;
}
