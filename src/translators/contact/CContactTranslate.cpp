// SPDX-License-Identifier: MIT
#include "translators/contact/CContactTranslate.h"

#include "model/PRContactItem.h"
#include "translators/record_loop.h"

bool CContactTranslate::translate(
    CIDataExporter* exporter, const QString& title, CIProgressCallback* progress)
{
    return translateRecords<PRContactItem, ItemCalls::BeginAndEnd>(
        *this, *m_data, exporter, title, progress);
}
