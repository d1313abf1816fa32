// SPDX-License-Identifier: MIT
// The frame of a page; what stands between the two parts comes from the translator.
//
//   <!DOCTYPE html PUBLIC ...><html><head><meta ...><title>Anna's Messages</title>
//   <style type="text/css">...</style></head><body>
//   ...
//   </body></html>
#include "exporters/CHtmlExporter.h"

#include "exporters/escape.h"
#include "exporters/page_text.h"
#include "platform/CCommonUtils.h"
#include "platform/OvResourceMgr.h"

#include <QImage>

#include <algorithm>

namespace {

constexpr QLatin1String kPageBegin = R"(
<!DOCTYPE html PUBLIC "-//W3C//DTD XHTML 1.0 Transitional//EN" "http://www.w3.org/TR/xhtml1/DTD/xhtml1-transitional.dtd">
<html>
<head>
    <meta http-equiv="Content-Type" content="text/html; charset=utf-8">
    <title>%1</title>
    %2
</head>
<body>
)"_page;

constexpr QLatin1String kPageEnd = "</body></html>"_L1;

// The stream encodes what it is given in one go and holds both forms meanwhile: a conversation of
// a hundred megabytes goes out in pieces.
constexpr qsizetype kPieceUnits = 32'768;

} // namespace

CHtmlExporter::CHtmlExporter() : m_imageDir(QDir(QString()))
{
}

void CHtmlExporter::setHeadText(const QString& text)
{
    m_headText = text;
}

bool CHtmlExporter::write(const QString& text, QString& /*result*/)
{
    const QStringView whole(text);
    for (qsizetype at = 0; at < whole.size(); at += kPieceUnits) {
        m_stream << whole.mid(at, std::min(kPieceUnits, whole.size() - at));
    }
    return true;
}

bool CHtmlExporter::exportData(const QByteArray& data, const QString& name)
{
    ensureImageDirectory();
    QFile file(m_imageDir.absoluteFilePath(name));
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    file.write(data); // a short write is not noticed: the page links to what is there
    return true;
}

bool CHtmlExporter::saveImage(const QImage& image, const QString& name)
{
    ensureImageDirectory();
    image.save(m_imageDir.absolutePath() + QChar(u'/') + name); // a failure leaves a dead link
    return true;
}

bool CHtmlExporter::copyDepend(const QString& src, const QString& name)
{
    ensureImageDirectory();
    return CCommonUtils::copyFile(src, m_imageDir, name);
}

bool CHtmlExporter::beginFile(const QDir& dir)
{
    m_imageDir = QDir(dir.absoluteFilePath(kImageDirectory));
    // The file's name and the title in the head are the same text, made safe for a file.
    const QString name = safeFileName(QStringLiteral("%1's %2").arg(ownerName(), categoryName()));
    m_file.setFileName(dir.absoluteFilePath(name + ".html"_L1));
    if (!m_file.open(QIODevice::WriteOnly)) {
        return false;
    }
    m_stream.setDevice(&m_file);
    m_stream.setCodec("UTF-8");
    Page head;
    head.add(kPageBegin, name, m_headText);
    m_stream << head.text();
    return true;
}

bool CHtmlExporter::endFile(bool ok)
{
    if (ok) {
        m_stream << kPageEnd;
        m_stream.flush();
    }
    m_file.close();
    if (!ok && !m_file.fileName().isEmpty()) {
        m_file.remove();
    }
    return true;
}

void CHtmlExporter::copyResource(const QString& resource, const QString& name)
{
    // A missing image is no failure: the page links to what is there.
    copyDepend(QStringLiteral("%1/DataExport/%2")
                   .arg(OvResourceMgr::instance()->productResourceRoot(), resource),
        name);
}

void CHtmlExporter::copyDeletedIcon()
{
    copyResource(kDeletedIcon, kDeletedIcon);
}

void CHtmlExporter::ensureImageDirectory() const
{
    if (!m_imageDir.exists()) {
        QDir beside = m_imageDir;
        beside.cdUp();
        beside.mkpath(kImageDirectory); // not tested: what is written into it fails by itself
    }
}
