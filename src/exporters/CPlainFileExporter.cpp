// SPDX-License-Identifier: MIT
#include "exporters/CPlainFileExporter.h"

#include "exporters/escape.h"
#include "platform/CCommonUtils.h"

#include <QCoreApplication>

// NOLINTNEXTLINE(modernize-pass-by-value): the signature is agreed
CPlainFileExporter::CPlainFileExporter(const QString& extension, bool oneFilePerItem)
    : m_dir(QDir(QString())), m_extension(extension), m_oneFilePerItem(oneFilePerItem)
{
}

void CPlainFileExporter::setEncoding(const QString& codecName, bool bom)
{
    m_codec = codecName;
    m_bom = bom;
}

bool CPlainFileExporter::beginItem(const QString& name)
{
    return !m_oneFilePerItem || openFile(name);
}

bool CPlainFileExporter::write(const QString& text, QString& /*result*/)
{
    // Text beside the records is lost: left in the stream, it would begin the next record's file.
    if (m_file.isOpen()) {
        m_stream << text;
    }
    return true;
}

bool CPlainFileExporter::exportData(const QByteArray& /*data*/, const QString& /*name*/)
{
    return true;
}

bool CPlainFileExporter::copyDepend(const QString& /*src*/, const QString& /*name*/)
{
    return true;
}

bool CPlainFileExporter::endItem()
{
    if (m_oneFilePerItem) {
        m_file.close();
    }
    return true;
}

bool CPlainFileExporter::beginCommonFile(const QDir& dir)
{
    m_dir = dir;
    return m_oneFilePerItem
           || openFile(QStringLiteral("%1's %2 %3")
                           .arg(ownerName(), categoryName(),
                               QCoreApplication::translate("DataExport", "in common use")));
}

bool CPlainFileExporter::beginFile(const QDir& dir)
{
    m_dir = dir;
    return m_oneFilePerItem || openFile(QStringLiteral("%1's %2").arg(ownerName(), categoryName()));
}

bool CPlainFileExporter::endFile(bool ok)
{
    if (!m_oneFilePerItem) {
        m_file.close(); // the stream flushes as its device closes
        if (!ok) {
            m_file.remove();
        }
    }
    return true;
}

bool CPlainFileExporter::openFile(const QString& baseName)
{
    const QString name = safeFileName(baseName);
    m_file.setFileName(CCommonUtils::uniqFileName(m_dir, name, m_extension, m_nameCounts[name]));
    if (!m_file.open(QIODevice::WriteOnly)) {
        return false;
    }
    // Else each file would leave one more flush to be called when the next one is closed.
    m_file.disconnect();
    m_stream.setDevice(&m_file);
    m_stream.setCodec(m_codec.toUtf8().constData());
    m_stream.setGenerateByteOrderMark(m_bom);
    return true;
}
