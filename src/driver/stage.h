// SPDX-License-Identifier: MIT
#pragma once

#include "model/CIProgressCallback.h"

#include <QCoreApplication>
#include <QString>

/// The title that pages show: translated, where file names keep the English form.
inline QString exportTitle(const QString& ownerName, const QString& categoryName)
{
    return QCoreApplication::translate("DataExport", "%1's %2").arg(ownerName, categoryName);
}

/// The part of the scale that one of `stages` formats gets, in whole units; 0 without progress.
inline int stageShare(CIProgressCallback* progress, int stages)
{
    return progress != nullptr ? progress->range() / stages : 0;
}
