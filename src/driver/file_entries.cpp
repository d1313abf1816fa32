// SPDX-License-Identifier: MIT
// The categories of files: pictures, films, sounds, attachments, documents.
#include "driver/CBackupExporter.h"
#include "exporters/CFileExporter.h"
#include "model/PRData.h"
#include "translators/records/CFileTranslate.h"

#include <QDir>

namespace {

constexpr int kRingtones = 32; // never protected

} // namespace

bool CBackupExporter::exportFile(PRData* data, const QDir& dir, const QString& ownerName,
    const QString& categoryName, CIProgressCallback* progress, CBackupExporter* owner,
    bool convertHeic)
{
    CFileExporter exporter;
    bool written = false;
    if (exporter.openExport(dir, ownerName, categoryName)) {
        const bool protectMedia = owner->m_fromDFU && data->dataType() != kRingtones;
        CFileTranslate translator(data);
        written = translator.translate(&exporter, progress, protectMedia, convertHeic);
    }
    exporter.closeExport(written);
    owner->m_unconvertedPictures += exporter.unconverted();
    return written;
}
