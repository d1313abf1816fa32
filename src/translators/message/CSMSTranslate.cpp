// SPDX-License-Identifier: MIT
#include "translators/message/CSMSTranslate.h"

#include "model/PRSMSItem.h"
#include "translators/record_loop.h"

bool CSMSTranslate::translate(
    CIDataExporter* exporter, const QString& title, CIProgressCallback* progress)
{
    return translateRecords<PRSMSItem, ItemCalls::None>(*this, *m_data, exporter, title, progress);
}
