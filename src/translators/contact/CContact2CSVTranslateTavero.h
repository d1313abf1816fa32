// SPDX-License-Identifier: MIT
#pragma once

#include "translators/contact/CContactHelper.h"
#include "translators/contact/CContactTranslate.h"
#include "translators/contact/ContactColumns.h"

/// The selected contacts as the CSV that Tavero reads: a row of column names, then a row for
/// each contact, with every part of a contact in a column of its own.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): final, and never held by its base
class CContact2CSVTranslateTavero final : public CContactTranslate {
public:
    using CContactTranslate::CContactTranslate;

    /// Makes room for the selected contact that has most of a kind, and writes the names.
    bool prepare(
        CIDataExporter* exporter, const QString& title, CIProgressCallback* progress) override;
    bool writeHeader(CIDataExporter* exporter) override;
    bool writeFooter(CIDataExporter* exporter) override;
    bool writeItem(CIDataExporter* exporter, PRContactItem* item) override;

private:
    ContactColumns m_columns;
    CContactHelper m_helper;
};
