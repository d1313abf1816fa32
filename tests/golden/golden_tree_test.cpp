// SPDX-License-Identifier: MIT
#include "golden_tree.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using golden::differences;
using golden::Tree;

QByteArray pngOf(QSize size, QRgb colour)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, "PNG"));
    return bytes;
}

TEST(GoldenTree, TreesOfTheSameFilesDoNotDiffer)
{
    const Tree tree{{"a", "1"}, {"b/c", ""}, {"d/", ""}};
    EXPECT_EQ(differences(tree, tree), QStringList());
    EXPECT_EQ(differences({}, {}), QStringList());
}

TEST(GoldenTree, EachMissingExtraAndDifferingPathIsTold)
{
    const QStringList found = differences({{"gone", ""}, {"kept", "1"}, {"other", "a"}, {"x/", ""}},
        {{"extra", ""}, {"kept", "1"}, {"other", "b"}, {"x", ""}});
    ASSERT_EQ(found.size(), 5);
    EXPECT_EQ(found.at(0), "gone: expected and not written");
    EXPECT_TRUE(found.at(1).startsWith("other: differs at byte 0 ")) << found.at(1).toStdString();
    EXPECT_EQ(found.at(2), "x/: expected and not written");
    EXPECT_EQ(found.at(3), "extra: written and not expected");
    EXPECT_EQ(found.at(4), "x: written and not expected");
}

TEST(GoldenTree, TheFirstDifferingLineIsShown)
{
    const auto utf16 = [](const QString& text) {
        return "\xFF\xFE"
               + QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
    };
    struct {
        const char* what = nullptr;
        QByteArray expected;
        QByteArray actual;
        const char* difference = nullptr;
    } const rows[] = {
        {"UTF-8", "one\ntwo\nthree\n", "one\ntoo\nthree\n",
            "f: differs at byte 5 (14 bytes expected, 14 written), line 2\n"
            "  expected: two\n  written:  too"},
        {"UTF-16", utf16("one\nt\xC3\xBC\n"), utf16("one\ntu\r\n"),
            "f: differs at byte 12 (16 bytes expected, 18 written), line 2\n"
            "  expected: t{00fc}\n  written:  tu{000d}"},
        {"a line less", "one\n", "one",
            "f: differs at byte 3 (4 bytes expected, 3 written), line 2\n"
            "  expected: \n  written:  (no line)"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(differences({{"f", row.expected}}, {{"f", row.actual}}).join('|').toStdString(),
            row.difference);
    }
}

TEST(GoldenTree, APageCountsAsOneTagALine)
{
    EXPECT_EQ(differences({{"f.html", "<p>a</p><p>b</p>"}}, {{"f.html", "<p>a</p><p>c</p>"}})
                  .join('|')
                  .toStdString(),
        "f.html: differs at byte 11 (16 bytes expected, 16 written), line 3\n"
        "  expected: <p>b\n  written:  <p>c");
}

TEST(GoldenTree, APictureThatDiffersIsToldAsAPicture)
{
    const QByteArray red = pngOf({90, 60}, qRgb(200, 0, 0));
    struct {
        const char* what = nullptr;
        QByteArray actual;
        const char* difference = nullptr;
    } const rows[] = {
        {"colour", pngOf({90, 60}, qRgb(201, 0, 0)),
            "a.png: shows another picture of the same size"},
        {"opacity", pngOf({90, 60}, qRgba(200, 0, 0, 254)),
            "a.png: shows another picture of the same size"},
        {"size", pngOf({60, 90}, qRgb(200, 0, 0)),
            "a.png: a picture of 90 x 60 is expected, one of 60 x 90 written"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(differences({{"a.png", red}}, {{"a.png", row.actual}}).join('|').toStdString(),
            row.difference);
    }
}

TEST(GoldenTree, APictureIsNoEmptyFile)
{
    const QByteArray red = pngOf({90, 60}, qRgb(200, 0, 0));
    EXPECT_EQ(differences({{"a.png", red}}, {{"a.png", ""}}).size(), 1);
    EXPECT_EQ(differences({{"a.png", ""}}, {{"a.png", red}}).size(), 1);
}

TEST(GoldenTree, APlaceMarkInAPathOrALineStaysText)
{
    EXPECT_EQ(differences({{"%2", "%1"}}, {{"%2", "%7"}}).join('|').toStdString(),
        "%2: differs at byte 1 (2 bytes expected, 2 written), line 1\n"
        "  expected: %1\n  written:  %7");
}

TEST(GoldenTree, AByteThatNoTextShowsStillDiffers)
{
    EXPECT_EQ(differences({{"f", "\xFF"}}, {{"f", "\xFE"}}).size(), 1);
    EXPECT_EQ(
        differences({{"f", QByteArray("a\0b", 3)}}, {{"f", QByteArray("a\0c", 3)}}).size(), 1);
}

TEST(GoldenTree, PicturesCompareByTheirPixels)
{
    const auto png = [](const QImage& image, int quality) {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        EXPECT_TRUE(image.save(&buffer, "PNG", quality));
        return buffer.data();
    };
    QImage image(20, 20, QImage::Format_RGB32);
    image.fill(Qt::red);
    const QByteArray packed = png(image, 0);
    const QByteArray loose = png(image, 100);
    ASSERT_NE(packed, loose);
    EXPECT_EQ(differences({{"a.png", packed}}, {{"a.png", loose}}), QStringList());
    EXPECT_EQ(differences({{"a.bin", packed}}, {{"a.bin", loose}}).size(), 1);
    image.setPixelColor(3, 4, Qt::blue);
    EXPECT_EQ(differences({{"a.png", packed}}, {{"a.png", png(image, 0)}}).size(), 1);
    EXPECT_EQ(differences({{"a.png", packed}}, {{"a.png", "no picture"}}).size(), 1);
    EXPECT_EQ(differences({{"a.png", "none"}}, {{"a.png", "no picture"}}).size(), 1);
}

TEST(GoldenTree, WhatIsWrittenIsReadAgainAndNothingElse)
{
    const QTemporaryDir parent;
    const QString directory = parent.filePath("expected");
    const Tree first{{"old", "1"}};
    const Tree second{
        {"a/b/c", QByteArray("\0\r\n\xFF", 4)}, {"a/empty/", ""}, {".hidden", "x"}, {"none", ""}};
    ASSERT_TRUE(golden::writeTree(directory, first));
    ASSERT_TRUE(golden::writeTree(directory, second));
    EXPECT_EQ(golden::readTree(directory), second);
    ASSERT_TRUE(golden::writeTree(directory, {}));
    EXPECT_EQ(golden::readTree(directory), Tree());
    EXPECT_TRUE(QFile::exists(directory + "/.keep"));
}

TEST(GoldenTree, AnEmptyDirectoryIsTold)
{
    const QTemporaryDir directory;
    ASSERT_TRUE(QDir(directory.path()).mkpath("Messages/image"));
    EXPECT_EQ(golden::readTree(directory.path()), (Tree{{"Messages/image/", ""}}));
}

} // namespace
