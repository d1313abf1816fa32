// SPDX-License-Identifier: MIT
#include "exporters/FileProgress.h"

#include <algorithm>

FileProgress::FileProgress(CIProgressCallback* parent, int parentRange)
    : m_parent(parent), m_parentRange(parentRange)
{
}

void FileProgress::setTotal(qint64 bytes)
{
    m_total = bytes != 0 ? bytes : 1;
}

void FileProgress::initRange(int range)
{
    m_done = 0.0;
    setTotal(range);
}

int FileProgress::range()
{
    return 1;
}

bool FileProgress::step(double amount)
{
    const auto total = static_cast<double>(m_total);
    const double delta = std::min(amount, total - m_done);
    const bool goesOn = m_parent == nullptr || m_parent->step(delta / total * m_parentRange);
    m_done += delta;
    return goesOn;
}

bool FileProgress::finish()
{
    return step(static_cast<double>(m_total) - m_done);
}

void FileProgress::setAttachStage(bool /*attachStage*/)
{
}
