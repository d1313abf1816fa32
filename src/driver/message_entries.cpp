// SPDX-License-Identifier: MIT
// The categories of conversations: messages, chats and chat contacts.
#include "driver/CBackupExporter.h"
#include "driver/stage.h"
#include "exporters/CHtmlExporter.h"
#include "exporters/CPlainFileExporter.h"
#include "model/CSubProgress.h"
#include "model/PRData.h"
#include "platform/literals.h"
#include "translators/contact/CContact2HtmlTranslate.h"
#include "translators/message/CSMS2CSVTranslate.h"
#include "translators/message/CSMS2HtmlTranslate.h"
#include "translators/message/CWhatsapp2CSVTranslate.h"
#include "translators/message/CWhatsapp2HtmlTranslate.h"
#include "translators/message/WeichatContact2CSVTranslate.h"
#include "translators/message/WeichatContact2HtmlTranslate.h"

#include <QDir>

namespace {

// What all formats of one export are given.
struct MessageExport {
    const QDir& dir;
    const QString& ownerName;
    const QString& categoryName;
    CIProgressCallback* progress = nullptr;
};

// Fills one output, in the sub-directory `sub` if it names one.
template <typename Translator>
bool writeOutput(const MessageExport& run, CIDataExporter& exporter, Translator& translator,
    const QString& sub = {})
{
    const bool written = exporter.openExport(run.dir, run.ownerName, run.categoryName, sub)
                         && translator.translate(
                             &exporter, exportTitle(run.ownerName, run.categoryName), run.progress);
    exporter.closeExport(written);
    return written;
}

template <typename Translator>
bool writePage(
    const MessageExport& run, PRData* data, const QString& styleSheet, const QString& sub = {})
{
    CHtmlExporter exporter;
    Translator translator(data);
    exporter.setHeadText(styleSheet);
    return writeOutput(run, exporter, translator, sub);
}

template <typename Translator>
bool writeCsv(
    const MessageExport& run, PRData* data, const QString& codecName, const QString& sub = {})
{
    CPlainFileExporter exporter(".csv"_L1, false);
    exporter.setEncoding(codecName, true);
    Translator translator(data);
    return writeOutput(run, exporter, translator, sub);
}

} // namespace

bool CBackupExporter::exportSMS(PRData* data, const QDir& dir, const QString& ownerName,
    const QString& categoryName, CIProgressCallback* progress, CBackupExporter* /*owner*/,
    bool /*convertHeic*/)
{
    if (dynamic_cast<PRSMSData*>(data) == nullptr) {
        return false;
    }
    CSubProgress sub(progress, stageShare(progress, 2));
    const MessageExport run{dir, ownerName, categoryName, &sub};
    sub.initRange(100);
    bool written = writePage<CSMS2HtmlTranslate>(run, data, smsStyleSheet());
    if (sub.finish() && written) {
        sub.initRange(100);
        written = writeCsv<CSMS2CSVTranslate>(run, data, "UTF16"_L1);
    }
    sub.finish(); // a cancel shows at the driver's own scale
    return written;
}

bool CBackupExporter::exportWhatsapp(PRData* data, const QDir& dir, const QString& ownerName,
    const QString& categoryName, CIProgressCallback* progress, CBackupExporter* /*owner*/,
    bool /*convertHeic*/)
{
    CSubProgress sub(progress, stageShare(progress, 2));
    sub.initRange(100);
    bool written = exportWhatsappHtml(data, dir, ownerName, categoryName, &sub, nullptr, true);
    if (sub.finish() && written) {
        sub.initRange(100);
        const MessageExport run{dir, ownerName, categoryName, &sub};
        written = writeCsv<CWhatsapp2CSVTranslate>(run, data, "UTF16"_L1);
    }
    sub.finish(); // a cancel shows at the driver's own scale
    return written;
}

bool CBackupExporter::exportWhatsappHtml(PRData* data, const QDir& dir, const QString& ownerName,
    const QString& categoryName, CIProgressCallback* progress, CBackupExporter* /*owner*/,
    bool /*convertHeic*/)
{
    const MessageExport run{dir, ownerName, categoryName, progress};
    return writePage<CWhatsapp2HtmlTranslate>(run, data, chatStyleSheet());
}

bool CBackupExporter::exportWeichatContact(PRData* data, const QDir& dir, const QString& ownerName,
    const QString& categoryName, CIProgressCallback* progress, CBackupExporter* /*owner*/,
    bool /*convertHeic*/)
{
    // A third for each of two formats: what is left of the scale is passed on at its end.
    CSubProgress sub(progress, stageShare(progress, 3));
    const MessageExport run{dir, ownerName, categoryName, &sub};
    sub.initRange(100);
    bool written = writePage<WeichatContact2HtmlTranslate>(
        run, data, CContact2HtmlTranslate::styleSheet(), "HTML"_L1);
    if (sub.finish() && written) {
        sub.initRange(100);
        written = writeCsv<WeichatContact2CSVTranslate>(run, data, "UTF-8"_L1, "CSV"_L1);
    }
    sub.finish(); // a cancel shows at the driver's own scale
    return written;
}
