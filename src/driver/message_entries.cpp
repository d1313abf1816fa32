// SPDX-License-Identifier: MIT
// The categories of conversations: messages, chats and chat contacts.
#include "driver/CBackupExporter.h"
#include "driver/stage.h"
#include "exporters/CHtmlExporter.h"
#include "exporters/CPlainFileExporter.h"
#include "model/CSubProgress.h"
#include "model/PRData.h"
#include "platform/literals.h"
#include "translators/message/CSMS2CSVTranslate.h"
#include "translators/message/CSMS2HtmlTranslate.h"

#include <QDir>

namespace {

bool writeSmsPage(PRSMSData* data, const QDir& dir, const QString& ownerName,
    const QString& categoryName, CIProgressCallback* progress)
{
    CHtmlExporter exporter;
    CSMS2HtmlTranslate translator(data);
    exporter.setHeadText(smsStyleSheet());
    progress->initRange(100);
    const bool written =
        exporter.openExport(dir, ownerName, categoryName)
        && translator.translate(&exporter, exportTitle(ownerName, categoryName), progress);
    exporter.closeExport(written);
    return written;
}

bool writeSmsCsv(PRSMSData* data, const QDir& dir, const QString& ownerName,
    const QString& categoryName, CIProgressCallback* progress)
{
    CPlainFileExporter exporter(".csv"_L1, false);
    exporter.setEncoding("UTF16"_L1, true);
    progress->initRange(100);
    bool written = false;
    if (exporter.openExport(dir, ownerName, categoryName)) {
        CSMS2CSVTranslate translator(data);
        written = translator.translate(&exporter, exportTitle(ownerName, categoryName), progress);
    }
    exporter.closeExport(written);
    return written;
}

} // namespace

bool CBackupExporter::exportSMS(PRData* data, const QDir& dir, const QString& ownerName,
    const QString& categoryName, CIProgressCallback* progress, CBackupExporter* /*owner*/,
    bool /*convertHeic*/)
{
    auto* messages = dynamic_cast<PRSMSData*>(data);
    if (messages == nullptr) {
        return false;
    }
    CSubProgress sub(progress, stageShare(progress, 2));
    bool written = writeSmsPage(messages, dir, ownerName, categoryName, &sub);
    if (sub.finish() && written) {
        written = writeSmsCsv(messages, dir, ownerName, categoryName, &sub);
    }
    sub.finish(); // a cancel shows at the driver's own scale
    return written;
}

bool CBackupExporter::exportWhatsapp(PRData* /*data*/, const QDir& /*dir*/,
    const QString& /*ownerName*/, const QString& /*categoryName*/, CIProgressCallback* /*progress*/,
    CBackupExporter* /*owner*/, bool /*convertHeic*/)
{
    return false; // chats have no writer in this version; no directory is made for them
}

bool CBackupExporter::exportWhatsappHtml(PRData* /*data*/, const QDir& /*dir*/,
    const QString& /*ownerName*/, const QString& /*categoryName*/, CIProgressCallback* /*progress*/,
    CBackupExporter* /*owner*/, bool /*convertHeic*/)
{
    return false; // as for exportWhatsapp
}

bool CBackupExporter::exportWeichatContact(PRData* /*data*/, const QDir& /*dir*/,
    const QString& /*ownerName*/, const QString& /*categoryName*/, CIProgressCallback* /*progress*/,
    CBackupExporter* /*owner*/, bool /*convertHeic*/)
{
    return false; // as for exportWhatsapp
}
