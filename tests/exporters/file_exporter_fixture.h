// SPDX-License-Identifier: MIT
#pragma once

#include "exporters/CFileExporter.h"
#include "support/temp_tree.h"

#include <QBuffer>
#include <QImage>

#include <gtest/gtest.h>

/// An exporter of files at work in "out/Cat" of a directory of the test's own, in which "in" holds
/// the sources.
class FileExporterTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(exporter.openExport(QDir(tree.path("out")), "Anna", "Cat"));
    }

    /// Writes `bytes` as a source, and that under `name`; `name` becomes the path of the copy.
    bool write(const QByteArray& bytes, QString& name)
    {
        return exporter.write(tree.write("in/source", bytes), name);
    }

    /// The name of the copy that is made of `bytes` under `name`.
    QString nameOfCopy(const QByteArray& bytes, const QString& name)
    {
        QString path = name;
        write(bytes, path);
        return QDir(tree.path("out/Cat")).relativeFilePath(path);
    }

    /// All that lies below "out/Cat".
    QStringList written() const
    {
        QStringList entries = tree.list().filter(QRegExp("^out/Cat/."));
        return entries.replaceInStrings(QRegExp("^out/Cat/"), "");
    }

    QByteArray contents(const QString& name) const { return tree.read("out/Cat/" + name); }

    static QByteArray encoded(const char* format, int side = 8)
    {
        QImage image(side, side, QImage::Format_RGB32);
        image.fill(Qt::green);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        EXPECT_TRUE(image.save(&buffer, format));
        return buffer.data();
    }

    support::TempTree tree;
    CFileExporter exporter;
};
