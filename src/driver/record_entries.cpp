// SPDX-License-Identifier: MIT
// The categories of tables, bookmarks and events.
#include "driver/CBackupExporter.h"
#include "driver/stage.h"
#include "exporters/CHtmlExporter.h"
#include "translators/records/CBookmark2HtmlTranslate.h"
#include "translators/records/CTable2HtmlTranslate.h"

#include <QDir>

namespace {

// One page on the progress that is given: neither page has a scale of its own.
template <typename Translator>
bool writePage(PRData* data, const QDir& dir, const QString& ownerName, const QString& categoryName,
    CIProgressCallback* progress)
{
    CHtmlExporter exporter;
    exporter.setHeadText(Translator::styleSheet());
    bool written = false;
    if (exporter.openExport(dir, ownerName, categoryName)) {
        Translator translator(data);
        written = translator.translate(&exporter, exportTitle(ownerName, categoryName), progress);
    }
    exporter.closeExport(written);
    return written;
}

} // namespace

bool CBackupExporter::exportHtml(PRData* data, const QDir& dir, const QString& ownerName,
    const QString& categoryName, CIProgressCallback* progress, CBackupExporter* /*owner*/,
    bool /*convertHeic*/)
{
    return writePage<CTable2HtmlTranslate>(data, dir, ownerName, categoryName, progress);
}

bool CBackupExporter::exportBookmark(PRData* data, const QDir& dir, const QString& ownerName,
    const QString& categoryName, CIProgressCallback* progress, CBackupExporter* /*owner*/,
    bool /*convertHeic*/)
{
    return writePage<CBookmark2HtmlTranslate>(data, dir, ownerName, categoryName, progress);
}

bool CBackupExporter::exportCalendarIcs(PRData* /*data*/, const QDir& /*dir*/,
    const QString& /*ownerName*/, const QString& /*categoryName*/, CIProgressCallback* /*progress*/,
    CBackupExporter* /*owner*/, bool /*convertHeic*/)
{
    return false; // events have no writer in this version; no directory is made for them
}
