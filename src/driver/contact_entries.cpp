// SPDX-License-Identifier: MIT
#include "driver/CBackupExporter.h"
#include "model/PRData.h"

#include <QDir>

bool CBackupExporter::exportContact(PRData* /*data*/, const QDir& /*dir*/,
    const QString& /*ownerName*/, const QString& /*categoryName*/, CIProgressCallback* /*progress*/,
    CBackupExporter* /*owner*/, bool /*convertHeic*/)
{
    return false; // contacts have no writer in this version; no directory is made for them
}
