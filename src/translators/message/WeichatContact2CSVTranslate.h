// SPDX-License-Identifier: MIT
#pragma once

#include "translators/message/WeichatContactTranslate.h"

/// The selected contacts and rooms as CSV, one row each.
class WeichatContact2CSVTranslate final : public WeichatContactTranslate {
public:
    using WeichatContactTranslate::WeichatContactTranslate;

    bool prepare(
        CIDataExporter* exporter, const QString& title, CIProgressCallback* progress) override;
    bool writeHeader(CIDataExporter* exporter) override;
    bool writeFooter(CIDataExporter* exporter) override;
    /// Here a row that cannot be written ends the run.
    bool writeItem(CIDataExporter* exporter, PRWeichatContactItem* item) override;
};
