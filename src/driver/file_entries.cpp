// SPDX-License-Identifier: MIT
#include "driver/CBackupExporter.h"

#include <QDir>

bool CBackupExporter::exportFile(PRData* /*data*/, const QDir& /*dir*/,
    const QString& /*ownerName*/, const QString& /*categoryName*/, CIProgressCallback* /*progress*/,
    CBackupExporter* /*owner*/, bool /*convertHeic*/)
{
    return false; // files have no writer in this version; no directory is made for them
}
