// SPDX-License-Identifier: MIT
// The categories of tables, bookmarks and events.
#include "driver/CBackupExporter.h"
#include "driver/stage.h"
#include "exporters/CHtmlExporter.h"
#include "exporters/CPlainFileExporter.h"
#include "model/CSubProgress.h"
#include "platform/literals.h"
#include "translators/records/CBookmark2HtmlTranslate.h"
#include "translators/records/CCalendar2IcsTranslate.h"
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

bool writeCalendar(PRData* data, const QDir& dir, const QString& ownerName,
    const QString& categoryName, CIProgressCallback* progress)
{
    CPlainFileExporter exporter(".ics"_L1, false);
    exporter.setEncoding("UTF-8"_L1, true);
    bool written = false;
    if (exporter.openExport(dir, ownerName, categoryName)) {
        CCalendar2IcsTranslate translator(data);
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

bool CBackupExporter::exportCalendarIcs(PRData* data, const QDir& dir, const QString& ownerName,
    const QString& categoryName, CIProgressCallback* progress, CBackupExporter* /*owner*/,
    bool /*convertHeic*/)
{
    CSubProgress sub(progress, stageShare(progress, 2));
    sub.initRange(100);
    bool written = exportHtml(data, dir, ownerName, categoryName, &sub, nullptr, true);
    const bool goesOn = sub.finish() && written;
    if (goesOn) {
        // On the scale that the page has used up: the rest is the caller's to pass on.
        written = writeCalendar(data, dir, ownerName, categoryName, &sub);
    }
    return written;
}
