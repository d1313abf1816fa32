// SPDX-License-Identifier: MIT
#pragma once

#include "exporters/CIDataExporter.h"

#include <QFile>
#include <QMap>
#include <QTextStream>

/// One text file, or one text file for each record, in the category's directory.
/// An object serves one output; open, write, close, then throw it away.
class CPlainFileExporter final : public CIDataExporter {
public:
    /// `extension` carries its point (".csv").
    CPlainFileExporter(const QString& extension, bool oneFilePerItem);

    /// Takes effect when the next file is opened. `codecName` as QTextCodec knows it.
    void setEncoding(const QString& codecName, bool bom);

    using CIDataExporter::write;
    /// Opens the record's file where each record has one; false where that fails.
    bool beginItem(const QString& name) override;
    bool write(const QString& text, QString& result) override;
    bool exportData(const QByteArray& data, const QString& name) override;
    bool copyDepend(const QString& src, const QString& name) override;
    bool endItem() override;
    bool beginCommonFile(const QDir& dir) override;
    bool beginFile(const QDir& dir) override;
    /// `ok` false removes the file; where each record has one, those stay.
    bool endFile(bool ok) override;

private:
    bool openFile(const QString& baseName);

    QDir m_dir;
    QString m_extension;
    bool m_oneFilePerItem;
    QString m_codec;
    bool m_bom = false;
    QFile m_file;
    QTextStream m_stream;
    QMap<QString, int> m_nameCounts; // by safe base name: the number last used
};
