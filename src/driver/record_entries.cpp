// SPDX-License-Identifier: MIT
// The categories of tables, bookmarks and events.
#include "driver/CBackupExporter.h"

#include <QDir>

bool CBackupExporter::exportHtml(PRData* /*data*/, const QDir& /*dir*/,
    const QString& /*ownerName*/, const QString& /*categoryName*/, CIProgressCallback* /*progress*/,
    CBackupExporter* /*owner*/, bool /*convertHeic*/)
{
    return false; // tables have no writer in this version; no directory is made for them
}

bool CBackupExporter::exportBookmark(PRData* /*data*/, const QDir& /*dir*/,
    const QString& /*ownerName*/, const QString& /*categoryName*/, CIProgressCallback* /*progress*/,
    CBackupExporter* /*owner*/, bool /*convertHeic*/)
{
    return false; // as for exportHtml
}

bool CBackupExporter::exportCalendarIcs(PRData* /*data*/, const QDir& /*dir*/,
    const QString& /*ownerName*/, const QString& /*categoryName*/, CIProgressCallback* /*progress*/,
    CBackupExporter* /*owner*/, bool /*convertHeic*/)
{
    return false; // as for exportHtml
}
