// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QString>

class QByteArray;
class QImage;

/// The sink of one output of one category. It owns the directory convention: a category has the
/// directory <root>/<category>, or <root>/<category>/<sub>, and loses it when it fails.
/// Calling order: construct, `openExport` or `openCommonExport`, then if that succeeded what the
/// translator calls, and always `closeExport`.
class CIDataExporter {
public:
    CIDataExporter();
    CIDataExporter(const CIDataExporter&) = delete;
    CIDataExporter& operator=(const CIDataExporter&) = delete;
    virtual ~CIDataExporter();

    /// Starts one record. False: this record is to be skipped.
    virtual bool beginItem(const QString& name);
    /// Text to the output; a file exporter copies the file at path `text` under the name `result`
    /// and puts the final path into it.
    virtual bool write(const QString& text, QString& result) = 0;
    virtual bool exportThumbData(const QString& src, const QString& name);
    virtual bool exportHttpData(const QString& url, const QString& localPath);
    virtual bool saveImage(const QImage& image, const QString& name);
    virtual bool exportData(const QByteArray& data, const QString& name) = 0;
    virtual bool copyDepend(const QString& src, const QString& name) = 0;
    virtual bool endItem();
    virtual bool beginCommonFile(const QDir& dir);
    virtual bool beginFile(const QDir& dir) = 0;
    virtual bool endFile(bool ok) = 0;

    /// Makes the category's directory and starts the output there. Neither `categoryName` nor `sub`
    /// is made safe: both may hold a slash.
    bool openExport(const QDir& root, const QString& ownerName, const QString& categoryName);
    bool openExport(const QDir& root, const QString& ownerName, const QString& categoryName,
        const QString& sub);
    /// The same, for the file of what is in common use.
    bool openCommonExport(const QDir& root, const QString& ownerName, const QString& categoryName,
        const QString& sub);

    /// Ends the output. `ok` false removes <root>/<category> with the output of all its formats.
    bool closeExport(bool ok);

    /// The form that translators use for text.
    bool write(const QString& text);

protected:
    const QString& ownerName() const { return m_ownerName; }
    const QString& categoryName() const { return m_categoryName; }

private:
    bool enterCategory(const QDir& root, const QString& ownerName, const QString& categoryName,
        const QString& sub, QDir& directory);

    QDir m_rootDir;
    QString m_ownerName;
    QString m_categoryName;
};
