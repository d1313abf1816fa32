// SPDX-License-Identifier: MIT
#pragma once

#include "translators/contact/CContactTranslate.h"

#include <QByteArray>
#include <QString>

/// The selected contacts as one page of cards. Deleted contacts are red, and show also what live
/// ones keep hidden. Its exporter is always a `CHtmlExporter`.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): final, and never held by its base
class CContact2HtmlTranslate final : public CContactTranslate {
public:
    using CContactTranslate::CContactTranslate;

    /// The style sheet of the page, for its head.
    static QString styleSheet();

    bool prepare(
        CIDataExporter* exporter, const QString& title, CIProgressCallback* progress) override;
    /// Copies the images of the page, and opens it.
    bool writeHeader(CIDataExporter* exporter) override;
    bool writeFooter(CIDataExporter* exporter) override;
    /// Writes a card in one piece, after its photo.
    bool writeItem(CIDataExporter* exporter, PRContactItem* item) override;

private:
    QString addPicture(CIDataExporter& exporter, const QByteArray& photo);

    int m_photoIndex = 0; // of the next photo, through the whole page
    QString m_title;
};
