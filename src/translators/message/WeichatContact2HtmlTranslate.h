// SPDX-License-Identifier: MIT
#pragma once

#include "platform/OvCurlWrapper.h"
#include "translators/message/PagePictures.h"
#include "translators/message/WeichatContactTranslate.h"

#include <QString>

/// The selected contacts and rooms as one page of cards, whose style sheet is that of the page of
/// contacts. Its exporter is always a `CHtmlExporter`.
class WeichatContact2HtmlTranslate final : public WeichatContactTranslate {
public:
    using WeichatContactTranslate::WeichatContactTranslate;

    bool prepare(
        CIDataExporter* exporter, const QString& title, CIProgressCallback* progress) override;
    /// Copies the images of the page, and opens it.
    bool writeHeader(CIDataExporter* exporter) override;
    bool writeFooter(CIDataExporter* exporter) override;
    /// Writes a card in one piece, after its picture, which may be fetched.
    bool writeItem(CIDataExporter* exporter, PRWeichatContactItem* item) override;

private:
    QString headPicture(CIDataExporter& exporter, const QString& source);

    PagePictures m_pictures;
    QString m_title;
    OvCurlWrapper m_curl; // for pictures that are addresses
};
