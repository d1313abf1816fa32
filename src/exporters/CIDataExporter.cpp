// SPDX-License-Identifier: MIT
#include "exporters/CIDataExporter.h"

#include "platform/CCommonUtils.h"
#include "platform/literals.h"

CIDataExporter::CIDataExporter() : m_rootDir(QDir(QString()))
{
}

CIDataExporter::~CIDataExporter() = default;

bool CIDataExporter::beginItem(const QString& /*name*/)
{
    return true;
}

bool CIDataExporter::exportThumbData(const QString& /*src*/, const QString& /*name*/)
{
    return false;
}

bool CIDataExporter::exportHttpData(const QString& /*url*/, const QString& /*localPath*/)
{
    return false;
}

bool CIDataExporter::saveImage(const QImage& /*image*/, const QString& /*name*/)
{
    return false;
}

bool CIDataExporter::endItem()
{
    return true;
}

bool CIDataExporter::beginCommonFile(const QDir& /*dir*/)
{
    return true;
}

bool CIDataExporter::openExport(
    const QDir& root, const QString& ownerName, const QString& categoryName)
{
    return openExport(root, ownerName, categoryName, QString());
}

bool CIDataExporter::openExport(
    const QDir& root, const QString& ownerName, const QString& categoryName, const QString& sub)
{
    QDir directory;
    return enterCategory(root, ownerName, categoryName, sub, directory) && beginFile(directory);
}

bool CIDataExporter::openCommonExport(
    const QDir& root, const QString& ownerName, const QString& categoryName, const QString& sub)
{
    QDir directory;
    return enterCategory(root, ownerName, categoryName, sub, directory)
           && beginCommonFile(directory);
}

bool CIDataExporter::closeExport(bool ok)
{
    const bool ended = endFile(ok);
    if (!ok) {
        CCommonUtils::rmDir(m_rootDir, m_categoryName, nullptr);
    }
    return ended;
}

bool CIDataExporter::write(const QString& text)
{
    QString unused;
    return write(text, unused);
}

// A directory that cannot be made leaves the names as they were: after a failed first open the
// category's name is empty, and closing removes nothing.
bool CIDataExporter::enterCategory(const QDir& root, const QString& ownerName,
    const QString& categoryName, const QString& sub, QDir& directory)
{
    const QString relative = sub.isEmpty() ? categoryName : categoryName + "/"_L1 + sub;
    m_rootDir = root;
    if (!root.exists(relative) && !root.mkpath(relative)) {
        return false;
    }
    directory = root;
    directory.cd(relative); // not tested: a directory that cannot be entered fails at the open
    m_ownerName = ownerName;
    m_categoryName = categoryName;
    return true;
}
