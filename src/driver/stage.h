// SPDX-License-Identifier: MIT
#pragma once

#include "model/CIProgressCallback.h"
#include "model/PRBackup.h"

#include <QCoreApplication>
#include <QString>
#include <QVector>

/// The set of a category that is to be written; null for one that is not wanted, has no set or no
/// selected record.
inline PRData* wantedSet(const PRBackup& backup, const QVector<int>& dataTypes, int dataType)
{
    PRData* data = dataTypes.contains(dataType) ? backup.getPRData(dataType) : nullptr;
    return data != nullptr && data->recoverCount() != 0 ? data : nullptr;
}

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
