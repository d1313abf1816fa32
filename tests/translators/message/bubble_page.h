// SPDX-License-Identifier: MIT
// What tests of all pages of bubbles need.
#pragma once

#include "exporters/CIDataExporter.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImage>
#include <QMap>
#include <QStringList>
#include <QTranslator>

#include <gtest/gtest.h>

#include <utility>

/// Keeps all that it is given, in order. The `failing`-th write (from 1) is answered by false; so
/// is each file, where `filesFail`.
class PageSink final : public CIDataExporter {
public:
    explicit PageSink(int failing = 0, bool filesFail = false)
        : m_failing(failing), m_filesFail(filesFail)
    {
    }

    using CIDataExporter::write;
    bool beginItem(const QString& name) override { return other("beginItem " + name); }
    bool write(const QString& text, QString& /*result*/) override
    {
        m_writes.append(text);
        return m_writes.size() != m_failing;
    }
    bool saveImage(const QImage& /*image*/, const QString& name) override
    {
        return other("saveImage " + name);
    }
    bool exportData(const QByteArray& data, const QString& name) override
    {
        m_pictures.append({name, data});
        return !m_filesFail;
    }
    bool copyDepend(const QString& src, const QString& name) override
    {
        m_copies.append(src + " as " + name);
        return !m_filesFail;
    }
    bool endItem() override { return other("endItem"); }
    bool beginFile(const QDir& /*dir*/) override { return other("beginFile"); }
    bool endFile(bool /*ok*/) override { return other("endFile"); }

    const QStringList& writes() const { return m_writes; }
    /// "<source> as <name>"
    const QStringList& copies() const { return m_copies; }
    /// Names and bytes.
    const QList<QPair<QString, QByteArray>>& pictures() const { return m_pictures; }
    const QStringList& otherCalls() const { return m_otherCalls; }

private:
    bool other(const QString& call)
    {
        m_otherCalls.append(call);
        return true;
    }

    int m_failing;
    bool m_filesFail;
    QStringList m_writes;
    QStringList m_copies;
    QList<QPair<QString, QByteArray>> m_pictures;
    QStringList m_otherCalls;
};

/// Translates these texts of the context "DataExport" as long as it lives.
class Translations final : public QTranslator {
public:
    explicit Translations(QMap<QString, QString> texts) : m_texts(std::move(texts))
    {
        QCoreApplication::installTranslator(this);
    }

    QString translate(const char* context, const char* source, const char* /*disambiguation*/,
        int /*n*/) const override
    {
        return QLatin1String(context) == QLatin1String("DataExport") ? m_texts.value(source)
                                                                     : QString();
    }
    bool isEmpty() const override { return false; }

private:
    QMap<QString, QString> m_texts;
};

/// A bubble without marks, by side and colour; the cell is that of its text.
inline QString bubbleWith(const QString& cell, const QString& side, const QString& colour)
{
    return R"(<div class=")" + side + R"("><table class=')" + colour
           + R"('><tr><td><table border="0" cellpadding="0" cellspacing="0" class="msg-box">)"
             R"(<tr><td class="top-l"></td><td class="top-c"></td><td class="top-r"></td></tr>)"
             R"(<tr><td class="mid-l"></td>)"
           + cell
           + R"(<td class="mid-r"></td></tr>)"
             R"(<tr><td class="bot-l"></td><td class="bot-c"></td><td class="bot-r"></td></tr>)"
             "</table></td><td></td></tr></table></div>";
}

/// Received bubbles of texts that are already escaped.
inline QString receivedBubble(const QString& text)
{
    return bubbleWith(R"(<td class="mid-c">)" + text + "&nbsp;</td>", "main-left", "rm");
}
inline QString receivedIconBubble(const QString& icon, const QString& text)
{
    return bubbleWith(R"(<td class="mid-c"><table><tr><td><img src=")" + icon + R"(" /></td><td>)"
                          + text + "&nbsp;</td></tr></table></td>",
        "main-left", "rm");
}
/// A picture of one colour as a file has it.
inline QByteArray imageBytes(int width, int height, const char* format = "PNG")
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(qRgb(200, 40, 40));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format));
    return bytes;
}
