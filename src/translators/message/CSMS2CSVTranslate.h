// SPDX-License-Identifier: MIT
#pragma once

#include "translators/message/CSMSTranslate.h"

/// The selected conversations as CSV: one row for each message that has text.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): final, and never held by its base
class CSMS2CSVTranslate final : public CSMSTranslate {
public:
    using CSMSTranslate::CSMSTranslate;

    bool prepare(
        CIDataExporter* exporter, const QString& title, CIProgressCallback* progress) override;
    bool writeHeader(CIDataExporter* exporter) override;
    bool writeFooter(CIDataExporter* exporter) override;
    /// Always true: a row that cannot be written does not stop the run.
    bool writeItem(CIDataExporter* exporter, PRSMSItem* item) override;
};
