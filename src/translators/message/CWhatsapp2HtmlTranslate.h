// SPDX-License-Identifier: MIT
#pragma once

#include "translators/message/CWhatsappTranslate.h"
#include "translators/message/PagePictures.h"

#include <QString>

class PRWhatsappMsg;

/// The style sheet of the page, for its head.
QString chatStyleSheet();

/// The selected chats as one page of speech bubbles: sent messages to the right, received ones to
/// the left, pictures inside their bubbles.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): final, and never held by its base
class CWhatsapp2HtmlTranslate final : public CWhatsappTranslate {
public:
    using CWhatsappTranslate::CWhatsappTranslate;

    bool prepare(
        CIDataExporter* exporter, const QString& title, CIProgressCallback* progress) override;
    /// Copies the images of the page, and opens it.
    bool writeHeader(CIDataExporter* exporter) override;
    bool writeFooter(CIDataExporter* exporter) override;
    /// Writes a chat in one piece, after its pictures.
    bool writeItem(CIDataExporter* exporter, PRWhatsappItem* item) override;

private:
    QString mediaPath(CIDataExporter& exporter, const PRWhatsappMsg& message);

    PagePictures m_pictures;
    QString m_title;
};
