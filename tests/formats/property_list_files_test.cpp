// SPDX-License-Identifier: MIT
#include "formats/plist.h"
#include "formats/sqlite.h"
#include "formats/typedstream.h"
#include "real_files.h"

#include <QDateTime>
#include <QDirIterator>

#include <gtest/gtest.h>

namespace {

using formats::parsePlist;
using formats::readPlistFile;
using formats::unarchive;

QVariant valueAt(QVariant value, const QStringList& keys)
{
    for (const QString& key : keys) {
        value = value.toMap().value(key);
    }
    return value;
}

TEST(PropertyListFiles, AreAllRead)
{
    QDirIterator files(
        realFiles("message-blobs").path(), {"*.plist"}, QDir::Files, QDirIterator::Subdirectories);
    int read = 0;
    while (files.hasNext()) {
        const QString path = files.next();
        SCOPED_TRACE(path.toStdString());
        const auto list = readPlistFile(path);
        ASSERT_TRUE(list);
        EXPECT_FALSE(list->toMap().isEmpty());
        EXPECT_EQ(list->toMap().contains("$objects"), unarchive(*list).isValid());
        ++read;
    }
    if (read == 0) {
        GTEST_SKIP() << "absent";
    }
}

TEST(PropertyListFiles, HoldALinkWithItsTitle)
{
    const auto list = readPlistFile(realFiles("message-blobs/url_message").filePath("URL.plist"));
    if (!list) {
        GTEST_SKIP() << "absent";
    }
    const QVariant link = valueAt(unarchive(*list), {"richLinkMetadata"});
    EXPECT_EQ(valueAt(link, {"$class"}), "LPLinkMetadata");
    EXPECT_EQ(valueAt(link, {"originalURL"}), "https://chrissardegna.com");
    EXPECT_EQ(valueAt(link, {"title"}), "Christopher Sardegna");
}

TEST(PropertyListFiles, HoldTheVersionsOfAnEditedMessage)
{
    const auto list =
        readPlistFile(realFiles("message-blobs/edited_message").filePath("Edited.plist"));
    if (!list) {
        GTEST_SKIP() << "absent";
    }
    const QVariantMap parts = valueAt(*list, {"ec"}).toMap();
    ASSERT_FALSE(parts.isEmpty());
    const QVariantList versions = parts.first().toList();
    ASSERT_FALSE(versions.isEmpty());
    for (const QVariant& version : versions) {
        const QByteArray stream = valueAt(version, {"t"}).toByteArray();
        const auto text =
            formats::parseTypedstream({reinterpret_cast<const unsigned char*>(stream.constData()),
                static_cast<std::size_t>(stream.size())});
        ASSERT_TRUE(text);
        EXPECT_FALSE(text->text.isEmpty());
    }
}

TEST(PropertyListFiles, AgreeWithTheRowsOfAManifest)
{
    const QString path = realFiles("backups/ios-13.3").filePath("Manifest.db");
    if (!QFile::exists(path)) {
        GTEST_SKIP() << "absent";
    }
    const auto database = formats::Database::open(path, formats::OpenMode::Immutable);
    ASSERT_TRUE(database);
    auto rows = database->prepare("SELECT relativePath, file FROM Files");
    int count = 0;
    while (rows && rows->next()) {
        SCOPED_TRACE(++count);
        const auto list = parsePlist(rows->blob(1), "Manifest.db");
        ASSERT_TRUE(list);
        const QVariant file = unarchive(*list);
        EXPECT_EQ(valueAt(file, {"$class"}), "MBFile");
        EXPECT_EQ(valueAt(file, {"RelativePath"}).toString(), rows->text(0));
        EXPECT_EQ(valueAt(file, {"LastModified"}).type(), QVariant::LongLong);
    }
    EXPECT_EQ(count, 1746);
}

} // namespace
