// SPDX-License-Identifier: MIT
#include "translators/message/CWhatsappTranslate.h"

#include "model/PRWhatsappItem.h"
#include "translators/record_loop.h"

bool CWhatsappTranslate::translate(
    CIDataExporter* exporter, const QString& title, CIProgressCallback* progress)
{
    return translateRecords<PRWhatsappItem, ItemCalls::None>(
        *this, *m_data, exporter, title, progress);
}
