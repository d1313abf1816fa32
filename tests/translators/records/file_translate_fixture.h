// SPDX-License-Identifier: MIT
#pragma once

#include "exporters/CFileExporter.h"
#include "model/PRData.h"
#include "model/PRFileItem.h"
#include "support/log_messages.h"
#include "support/temp_tree.h"
#include "translators/records/CFileTranslate.h"

#include <QBuffer>
#include <QImage>

#include <gtest/gtest.h>

#include <utility>

inline constexpr int kDocuments = 35;
inline constexpr int kPhotos = 21;
inline constexpr const char* kLine = "dataexport.FileExport|warning|";

inline std::unique_ptr<PRFileItem> file(const QString& name, FileContent content)
{
    return std::make_unique<PRFileItem>(Record{.values = {name}}, std::move(content));
}

inline std::unique_ptr<PRFileItem> fileOf(
    const QString& parent, const QString& name, FileContent content)
{
    return std::make_unique<PRFileItem>(
        Record{.values = {name}, .parent = parent}, std::move(content));
}

/// Translates files from "in" to "out/Cat" of a directory of the test's own.
class FileTranslateTest : public testing::Test {
protected:
    template <typename... Items> void add(Items... items)
    {
        (records.push_back(std::move(items)), ...);
    }

    /// Puts what was added into "out/Cat" and tells the lines of the log behind the first.
    QStringList run(CIProgressCallback* progress = nullptr, int dataType = kDocuments,
        bool convertHeic = false, bool protectMedia = true)
    {
        const auto count = records.size();
        PRData data(dataType, std::exchange(records, RecordList()));
        CFileExporter exporter;
        EXPECT_TRUE(exporter.openExport(QDir(tree.path("out")), "Anna", "Cat"));
        const support::LogMessages messages;
        EXPECT_TRUE(
            CFileTranslate(&data).translate(&exporter, progress, protectMedia, convertHeic));
        QStringList lines = messages.lines();
        lines.replaceInStrings(kLine, "");
        EXPECT_EQ(lines.takeFirst(), QString("%1 files to export").arg(count));
        return lines;
    }

    QStringList written() const
    {
        QStringList entries = tree.list().filter(QRegExp("^out/Cat/."));
        return entries.replaceInStrings(QRegExp("^out/Cat/"), "");
    }

    QByteArray contents(const QString& name) const { return tree.read("out/Cat/" + name); }

    static QByteArray encoded(const char* format)
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        QImage image(4, 4, QImage::Format_RGB32);
        image.fill(Qt::red);
        EXPECT_TRUE(image.save(&buffer, format));
        return buffer.data();
    }

    QString source(const QString& name, const QByteArray& bytes)
    {
        return tree.write("in/" + name, bytes);
    }

    support::TempTree tree;
    RecordList records;
};
