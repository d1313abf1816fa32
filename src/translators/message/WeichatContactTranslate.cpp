// SPDX-License-Identifier: MIT
#include "translators/message/WeichatContactTranslate.h"

#include "model/PRWeichatContactItem.h"
#include "translators/record_loop.h"

WeichatContactTranslate::~WeichatContactTranslate() = default;

bool WeichatContactTranslate::translate(
    CIDataExporter* exporter, const QString& title, CIProgressCallback* progress)
{
    return translateRecords<PRWeichatContactItem, ItemCalls::None>(
        *this, *m_data, exporter, title, progress);
}
