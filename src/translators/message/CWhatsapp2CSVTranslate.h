// SPDX-License-Identifier: MIT
#pragma once

#include "translators/message/CWhatsappTranslate.h"

/// The selected chats as CSV: one row for each message that has text and is no file.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): final, and never held by its base
class CWhatsapp2CSVTranslate final : public CWhatsappTranslate {
public:
    using CWhatsappTranslate::CWhatsappTranslate;

    bool prepare(
        CIDataExporter* exporter, const QString& title, CIProgressCallback* progress) override;
    bool writeHeader(CIDataExporter* exporter) override;
    bool writeFooter(CIDataExporter* exporter) override;
    /// Always true: a row that cannot be written does not stop the run.
    bool writeItem(CIDataExporter* exporter, PRWhatsappItem* item) override;
};
