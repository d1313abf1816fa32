// SPDX-License-Identifier: MIT
#pragma once

#include "translators/contact/CContactTranslate.h"

/// Each selected contact as a vCard of version 2.1 for the Tavero contact-transfer tool: escaped
/// values, quoted-printable notes and addresses, labels as types, and lines of its own for
/// messengers, dates and related names.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): final, and never held by its base
class CContact2VCFTranslateTavero final : public CContactTranslate {
public:
    using CContactTranslate::CContactTranslate;

    /// Whether text lines name their charset; to be set before `translate`.
    void setWriteCharset(bool write) { m_writeCharset = write; }

    bool prepare(CIDataExporter* /*exporter*/, const QString& /*title*/,
        CIProgressCallback* /*progress*/) override
    {
        return true;
    }
    bool writeHeader(CIDataExporter* /*exporter*/) override { return true; }
    bool writeFooter(CIDataExporter* /*exporter*/) override { return true; }
    /// Writes a card in one piece.
    bool writeItem(CIDataExporter* exporter, PRContactItem* item) override;

private:
    bool m_writeCharset = false;
};
