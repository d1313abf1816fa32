// SPDX-License-Identifier: MIT
// The category of contacts.
#include "driver/CBackupExporter.h"
#include "driver/stage.h"
#include "exporters/CHtmlExporter.h"
#include "exporters/CPlainFileExporter.h"
#include "interchange/ExportCSVFile_Google.h"
#include "interchange/ExportCSVFile_Outlook.h"
#include "interchange/ExportVCFFile.h"
#include "model/CSubProgress.h"
#include "model/PRData.h"
#include "platform/literals.h"
#include "translators/contact/CContact2CSVTranslate.h"
#include "translators/contact/CContact2CSVTranslateTavero.h"
#include "translators/contact/CContact2HtmlTranslate.h"
#include "translators/contact/CContact2VCFTranslate.h"
#include "translators/contact/CContact2VCFTranslateTavero.h"

#include <QDir>

namespace {

// What all formats of one export of contacts are given.
struct ContactExport {
    PRContactData* contacts = nullptr;
    const QDir& dir;
    const QString& ownerName;
    const QString& categoryName;
    CIProgressCallback* progress = nullptr;

    QString title() const { return exportTitle(ownerName, categoryName); }
};

bool writePage(const ContactExport& run)
{
    CHtmlExporter exporter;
    CContact2HtmlTranslate translator(run.contacts);
    exporter.setHeadText(CContact2HtmlTranslate::styleSheet());
    run.progress->initRange(100);
    const bool written = exporter.openExport(run.dir, run.ownerName, run.categoryName, "HTML"_L1)
                         && translator.translate(&exporter, run.title(), run.progress);
    exporter.closeExport(written);
    return written;
}

// One file, or one for each contact, in the sub-directory `sub`.
bool writeText(const ContactExport& run, CPlainFileExporter& exporter, QLatin1String sub,
    CContactTranslate& translator)
{
    run.progress->initRange(100);
    const bool written = exporter.openCommonExport(run.dir, run.ownerName, run.categoryName, sub)
                         && translator.translate(&exporter, run.title(), run.progress);
    exporter.closeExport(written);
    return written;
}

bool writeCsv(const ContactExport& run, bool forTavero)
{
    CPlainFileExporter exporter(".csv"_L1, false);
    exporter.setEncoding("UTF-8"_L1, true);
    if (forTavero) {
        CContact2CSVTranslateTavero translator(run.contacts);
        return writeText(run, exporter, "CSV"_L1, translator);
    }
    CContact2CSVTranslate translator(run.contacts);
    return writeText(run, exporter, "CSV"_L1, translator);
}

bool writeCards(const ContactExport& run, bool forTavero)
{
    CPlainFileExporter exporter(".vcf"_L1, true);
    if (forTavero) {
        // Without an encoding of its own: that of the machine.
        CContact2VCFTranslateTavero translator(run.contacts);
        translator.setWriteCharset(false);
        return writeText(run, exporter, "VCF"_L1, translator);
    }
    exporter.setEncoding("UTF-8"_L1, false);
    CContact2VCFTranslate translator(run.contacts);
    return writeText(run, exporter, "VCF"_L1, translator);
}

// The files for other address books. They make their folders anew, and whether they could be
// written says nothing of the category.
void writeInterchange(const ContactExport& run)
{
    ExportVCFFile cards(nullptr);
    cards.exportContacts(run.contacts, run.dir, run.ownerName, run.categoryName);
    ExportCSVFile_Google google(nullptr);
    google.exportContacts(run.contacts, run.dir, run.ownerName, run.categoryName);
    ExportCSVFile_Outlook outlook(nullptr);
    outlook.exportContacts(run.contacts, run.dir, run.ownerName, run.categoryName);
}

} // namespace

bool CBackupExporter::exportContact(PRData* data, const QDir& dir, const QString& ownerName,
    const QString& categoryName, CIProgressCallback* progress, CBackupExporter* owner,
    bool /*convertHeic*/)
{
    auto* contacts = dynamic_cast<PRContactData*>(data);
    if (contacts == nullptr) {
        return false;
    }
    const bool forTavero = owner->m_exportContactForTavero;
    CSubProgress sub(progress, stageShare(progress, 3));
    const ContactExport run{.contacts = contacts,
        .dir = dir,
        .ownerName = ownerName,
        .categoryName = categoryName,
        .progress = &sub};
    bool written = writePage(run);
    bool goesOn = sub.finish() && written;
    if (goesOn) {
        written = writeCsv(run, forTavero);
    }
    // Each place is finished, also where nothing ran.
    goesOn = sub.finish() && goesOn && written;
    if (goesOn) {
        written = writeCards(run, forTavero);
    }
    sub.finish();          // a cancel shows at the driver's own scale
    writeInterchange(run); // also after a failure or a cancel
    return written;
}
