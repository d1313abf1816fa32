// SPDX-License-Identifier: MIT
#pragma once

#include "translators/message/CSMSTranslate.h"
#include "translators/message/PagePictures.h"

#include <QString>

/// The style sheet of the page, for its head.
QString smsStyleSheet();

/// The selected conversations as one page of speech bubbles: sent messages to the right, received
/// ones to the left.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): final, and never held by its base
class CSMS2HtmlTranslate final : public CSMSTranslate {
public:
    using CSMSTranslate::CSMSTranslate;

    bool prepare(
        CIDataExporter* exporter, const QString& title, CIProgressCallback* progress) override;
    /// Copies the images of the page, and opens it.
    bool writeHeader(CIDataExporter* exporter) override;
    bool writeFooter(CIDataExporter* exporter) override;
    /// Writes a conversation in one piece.
    bool writeItem(CIDataExporter* exporter, PRSMSItem* item) override;

private:
    PagePictures m_pictures;
    QString m_title;
};
