// SPDX-License-Identifier: MIT
#pragma once

#include "exporters/CHtmlExporter.h"
#include "platform/OvResourceMgr.h"

#include <QImage>
#include <QStringList>

/// A page that is kept write by write, with the files that it was given, and that can refuse one of
/// the writes. Images of the product are named as lying in "/res".
class RecordingPage final : public CHtmlExporter {
public:
    /// The `failingWrite`-th write (counted from 1) is kept and answers false. 0: none.
    explicit RecordingPage(int failingWrite = 0) : m_failingWrite(failingWrite)
    {
        OvResourceMgr::instance()->setProductResourceRoot("/res");
    }
    ~RecordingPage() override { OvResourceMgr::instance()->setProductResourceRoot({}); }

    using CHtmlExporter::write;
    bool write(const QString& text, QString& /*result*/) override
    {
        writes.append(text);
        return writes.size() != m_failingWrite;
    }

    /// Nothing is copied, so that each claim about a page is made with its images missing.
    bool copyDepend(const QString& src, const QString& name) override
    {
        files.append("copy " + src + " as " + name);
        return false;
    }

    bool exportData(const QByteArray& data, const QString& name) override
    {
        files.append("export " + name);
        exported.append(data);
        return false;
    }

    bool saveImage(const QImage& image, const QString& name) override
    {
        files.append(
            QStringLiteral("save %1x%2 as %3").arg(image.width()).arg(image.height()).arg(name));
        images.append(image);
        return false;
    }

    QString text() const { return writes.join(QString()); }

    QStringList writes;
    QStringList files;
    QList<QImage> images;
    QList<QByteArray> exported;

private:
    int m_failingWrite;
};
