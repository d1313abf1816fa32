// SPDX-License-Identifier: MIT
#include "exporters/CPlainFileExporter.h"
#include "support/temp_tree.h"

#include <QByteArray>
#include <QString>

#include <gtest/gtest.h>

using support::TempTree;

namespace {

struct Encoding {
    const char* what;
    const char* codec;
    bool mark;
    QByteArray bytes; // of "Aé😀\r\n"
};

const QByteArray kUtf8 = "A\xC3\xA9\xF0\x9F\x98\x80\r\n";
const QByteArray kUtf16 = QByteArray::fromHex("4100 e900 3dd8 00de 0d00 0a00");

// The mark of UTF-16 tells the byte order, the low byte first.
const Encoding kEncodings[] = {
    {"UTF16 with a mark", "UTF16", true, "\xFF\xFE" + kUtf16},
    {"UTF-8 with a mark", "UTF-8", true, "\xEF\xBB\xBF" + kUtf8},
    {"UTF-8 without a mark", "UTF-8", false, kUtf8},
    {"no codec: that of the locale", "", false, kUtf8},
};

const QString kText = QString::fromUtf8("Aé😀\r\n");

} // namespace

TEST(CPlainFileExporterEncoding, HoldsForTheOneFile)
{
    for (const Encoding& encoding : kEncodings) {
        SCOPED_TRACE(encoding.what);
        const TempTree tree;
        CPlainFileExporter exporter(".csv", false);
        exporter.setEncoding(encoding.codec, encoding.mark);
        EXPECT_TRUE(exporter.openExport(tree.dir(), "Anna", "Contacts"));
        EXPECT_TRUE(exporter.write(kText));
        EXPECT_TRUE(exporter.write(kText));
        EXPECT_TRUE(exporter.closeExport(true));
        // One mark, however often text is written.
        const QByteArray more = encoding.bytes.right(
            encoding.codec == QByteArray("UTF16") ? kUtf16.size() : kUtf8.size());
        EXPECT_EQ(tree.read("Contacts/Anna's Contacts.csv"), encoding.bytes + more);
    }
}

TEST(CPlainFileExporterEncoding, HoldsForTheCommonFile)
{
    for (const Encoding& encoding : kEncodings) {
        SCOPED_TRACE(encoding.what);
        const TempTree tree;
        CPlainFileExporter exporter(".csv", false);
        exporter.setEncoding(encoding.codec, encoding.mark);
        EXPECT_TRUE(exporter.openCommonExport(tree.dir(), "Anna", "Contacts", ""));
        EXPECT_TRUE(exporter.write(kText));
        EXPECT_TRUE(exporter.closeExport(true));
        EXPECT_EQ(tree.read("Contacts/Anna's Contacts in common use.csv"), encoding.bytes);
    }
}

TEST(CPlainFileExporterEncoding, HoldsForTheFileOfEachRecord)
{
    for (const Encoding& encoding : kEncodings) {
        SCOPED_TRACE(encoding.what);
        const TempTree tree;
        CPlainFileExporter exporter(".csv", true);
        exporter.setEncoding(encoding.codec, encoding.mark);
        EXPECT_TRUE(exporter.openExport(tree.dir(), "Anna", "Contacts"));
        for (const char* name : {"one", "two", "three"}) {
            EXPECT_TRUE(exporter.beginItem(name));
            EXPECT_TRUE(exporter.write(kText));
            EXPECT_TRUE(exporter.endItem());
            EXPECT_EQ(tree.read(QString("Contacts/%1.csv").arg(name)), encoding.bytes);
        }
    }
}

TEST(CPlainFileExporterEncoding, TakesEffectWithTheNextFile)
{
    const TempTree tree;
    CPlainFileExporter exporter(".csv", true);
    EXPECT_TRUE(exporter.openExport(tree.dir(), "Anna", "Contacts"));
    EXPECT_TRUE(exporter.beginItem("one"));
    exporter.setEncoding("UTF16", true);
    EXPECT_TRUE(exporter.write(kText));
    EXPECT_TRUE(exporter.endItem());
    EXPECT_TRUE(exporter.beginItem("two"));
    EXPECT_TRUE(exporter.write(kText));
    EXPECT_TRUE(exporter.endItem());
    EXPECT_EQ(tree.read("Contacts/one.csv"), kUtf8);
    EXPECT_EQ(tree.read("Contacts/two.csv"), "\xFF\xFE" + kUtf16);
}

TEST(CPlainFileExporterEncoding, LongTextsOfManyWritesArriveWhole)
{
    const TempTree tree;
    CPlainFileExporter exporter(".csv", false);
    exporter.setEncoding("UTF16", true);
    EXPECT_TRUE(exporter.openExport(tree.dir(), "Anna", "Contacts"));
    QByteArray expected = "\xFF\xFE";
    for (int i = 0; i < 20'000; ++i) {
        EXPECT_TRUE(exporter.write(kText));
        expected += kUtf16;
    }
    EXPECT_TRUE(exporter.closeExport(true));
    EXPECT_EQ(tree.read("Contacts/Anna's Contacts.csv"), expected);
}
