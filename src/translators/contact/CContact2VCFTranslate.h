// SPDX-License-Identifier: MIT
#pragma once

#include "translators/contact/CContactTranslate.h"

/// Each selected contact as a vCard of version 2.1 with its values as they stand: neither escaped
/// nor folded. The exporter makes a file of each.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): final, and never held by its base
class CContact2VCFTranslate final : public CContactTranslate {
public:
    using CContactTranslate::CContactTranslate;

    bool prepare(CIDataExporter* /*exporter*/, const QString& /*title*/,
        CIProgressCallback* /*progress*/) override
    {
        return true;
    }
    bool writeHeader(CIDataExporter* /*exporter*/) override { return true; }
    bool writeFooter(CIDataExporter* /*exporter*/) override { return true; }
    /// Writes a card in one piece.
    bool writeItem(CIDataExporter* exporter, PRContactItem* item) override;
};
