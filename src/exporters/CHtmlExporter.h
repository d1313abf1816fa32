// SPDX-License-Identifier: MIT
#pragma once

#include "exporters/CIDataExporter.h"
#include "platform/literals.h"

#include <QFile>
#include <QTextStream>

/// The directory beside a page that holds what the page links to.
inline constexpr QLatin1String kImageDirectory = "image"_L1;
/// The mark of deleted records.
inline constexpr QLatin1String kDeletedIcon = "deleted.png"_L1;

/// One page in the category's directory, with all that it links to in a directory "image" beside
/// it. The exporter writes the frame, a translator the body. An object serves one page.
class CHtmlExporter : public CIDataExporter {
public:
    CHtmlExporter();

    /// What stands in the head after the title: the style sheet. To be set before `openExport`.
    void setHeadText(const QString& text);

    using CIDataExporter::write;
    /// Adds to the page; always true.
    bool write(const QString& text, QString& result) override;
    /// The file `name` beside the page. False where it cannot be opened.
    bool exportData(const QByteArray& data, const QString& name) override;
    /// The picture beside the page, in the format of the suffix of `name`. Always true.
    bool saveImage(const QImage& image, const QString& name) override;
    bool copyDepend(const QString& src, const QString& name) override;
    /// The page is a new one: a page of that name is replaced.
    bool beginFile(const QDir& dir) override;
    /// `ok` false removes the page.
    bool endFile(bool ok) override;

    /// Copies an image of the product's resources beside the page.
    void copyResource(const QString& resource, const QString& name);
    void copyDeletedIcon();

private:
    void ensureImageDirectory() const;

    QString m_headText;
    QFile m_file;
    QTextStream m_stream;
    QDir m_imageDir; // need not exist: made with the first file
};
