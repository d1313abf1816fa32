// SPDX-License-Identifier: MIT
#pragma once

#include "model/CIProgressCallback.h"

#include <QtGlobal>

/// Turns bytes into the parent's units: told the bytes of a category, it passes each chunk on as
/// its part of the units that the category has. It never passes on more than these, however much a
/// file has grown. A local object of the translation of files.
class FileProgress final : public CIProgressCallback {
public:
    /// `parent` is not owned and may be null. `parentRange`: the units of the parent for which this
    /// object stands.
    FileProgress(CIProgressCallback* parent, int parentRange);

    /// All bytes that will be reported, in place of the 100 units at the start. 0 counts as 1.
    void setTotal(qint64 bytes);

    void initRange(int range) override;
    /// Always 1: nobody divides this scale.
    int range() override;
    bool step(double amount) override;
    bool finish() override;
    void setAttachStage(bool attachStage) override;

private:
    CIProgressCallback* m_parent;
    int m_parentRange;
    qint64 m_total = 100; // never 0
    double m_done = 0.0;
};
