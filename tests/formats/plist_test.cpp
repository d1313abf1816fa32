// SPDX-License-Identifier: MIT
#include "formats/plist.h"
#include "plist_bytes.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <random>

namespace {

using formats::parsePlist;
using formats::PlistUid;

QVariant valueOf(const QByteArray& bytes)
{
    const auto parsed = parsePlist(bytes, "x.plist");
    return parsed ? *parsed : QVariant("error " + parsed.error().text());
}

QString errorOf(const QByteArray& bytes)
{
    const auto parsed = parsePlist(bytes, "x.plist");
    return parsed ? "none" : parsed.error().text();
}

const QDateTime kMorning({2020, 1, 2}, {3, 4, 5}, Qt::UTC);

TEST(Plist, ReadsAWholeBinaryList)
{
    const QByteArray bytes = drawnArray(R"(
        'bplist00'
        D1 01 02
        51 'a'
        A2 03 04
        10 FF
        08
        08 0B 0D 10 12
        00 00 00 00 00 00 01 01  00 00 00 00 00 00 00 05
        00 00 00 00 00 00 00 00  00 00 00 00 00 00 00 13)");
    EXPECT_EQ(valueOf(bytes), QVariantMap({{"a", QVariantList({255LL, false})}}));
}

TEST(Plist, ReadsEveryKindOfBinaryObject)
{
    struct Row {
        const char* what;
        const char* object;
        QVariant value;
    };
    const Row rows[]{{"false", "08", false}, {"true", "09", true}, {"one byte", "10 FF", 255LL},
        {"two bytes", "11 01 00", 256LL}, {"four bytes", "12 80 00 00 00", 2147483648LL},
        {"eight bytes are signed", "13 FF FF FF FF FF FF FF FE", -2LL},
        {"sixteen bytes", "14 00 00 00 00 00 00 00 00 00 00 00 00 00 00 01 00", 256LL},
        {"float", "22 3F C0 00 00", 1.5}, {"double", "23 BF F8 00 00 00 00 00 00", -1.5},
        {"date", "33 41 C1 DE CA 92 80 00 00", kMorning},
        {"date with a fraction", "33 3F E0 00 00 00 00 00 00",
            QDateTime({2001, 1, 1}, {0, 0, 0, 500}, Qt::UTC)},
        {"date before 2001", "33 BF F8 00 00 00 00 00 00",
            QDateTime({2000, 12, 31}, {23, 59, 58, 500}, Qt::UTC)},
        {"date out of range", "33 7F E8 00 00 00 00 00 00", QDateTime()},
        {"data", "42 00 FF", QByteArray("\0\xFF", 2)}, {"ASCII", "53 'abc'", "abc"},
        {"long ASCII", "5F 10 10 '0123456789ABCDEF'", "0123456789ABCDEF"},
        {"UTF-16", "63 00 E4 D8 3D DE 00", QString::fromUtf8("\xC3\xA4\xF0\x9F\x98\x80")},
        {"empty array", "A0", QVariantList()}, {"empty dictionary", "D0", QVariantMap()}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const QVariant value = valueOf(binaryPlist({drawnArray(row.object)}));
        EXPECT_EQ(value.userType(), row.value.userType());
        EXPECT_EQ(value, row.value);
    }
}

TEST(Plist, ReadsReferencesOfArchivesOfAllLengths)
{
    struct Row {
        const char* object;
        quint64 index;
    };
    const Row rows[]{{"80 05", 5}, {"81 01 00", 256}, {"83 00 01 00 00", 65536},
        {"87 00 00 00 00 00 00 00 09", 9}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.object);
        const QVariant value = valueOf(binaryPlist({drawnArray(row.object)}));
        ASSERT_EQ(value.userType(), qMetaTypeId<PlistUid>());
        EXPECT_EQ(value.value<PlistUid>().index, row.index);
    }
}

TEST(Plist, ReadsEveryKindOfXmlElement)
{
    struct Row {
        const char* xml;
        QVariant value;
    };
    const Row rows[]{{"<true/>", true}, {"<false/>", false}, {"<integer>-5</integer>", -5LL},
        {"<real>1.5</real>", 1.5}, {"<string>a&amp;b &#228;</string>", QString("a&b \u00E4")},
        {"<string></string>", ""}, {"<string/>", ""},
        {"<date>2020-01-02T03:04:05Z</date>", kMorning},
        {"<data>\n\tAAH/\n</data>", QByteArray("\0\1\xFF", 3)}, {"<array/>", QVariantList()},
        {"<array><integer>1</integer><string>b</string></array>", QVariantList({1LL, "b"})},
        {"<dict><key>b</key><true/><key>a</key><dict/></dict>",
            QVariantMap({{"a", QVariantMap()}, {"b", true}})}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.xml);
        const QVariant value = valueOf(xmlPlist(row.xml));
        EXPECT_EQ(value.userType(), row.value.userType());
        EXPECT_EQ(value, row.value);
    }
}

TEST(Plist, TakesTheDictionaryOfAReferenceInXmlForOne)
{
    const QVariant value = valueOf(xmlPlist("<dict><key>CF$UID</key><integer>7</integer></dict>"));
    ASSERT_EQ(value.userType(), qMetaTypeId<PlistUid>());
    EXPECT_EQ(value.value<PlistUid>().index, 7U);
}

TEST(Plist, PassesAMarkAndBlanksBeforeXml)
{
    const QByteArray xml = xmlPlist("<string>a</string>");
    EXPECT_EQ(valueOf("\xEF\xBB\xBF" + xml), "a");
    EXPECT_EQ(valueOf("\n  " + xml), "a");
}

TEST(Plist, RefusesWhatIsNone)
{
    struct Row {
        const char* what;
        QByteArray bytes;
        const char* error;
    };
    const Row rows[]{{"nothing", "", "x.plist: the property list is empty"},
        {"blanks", " \n", "x.plist: the property list is empty"},
        {"many blanks", QByteArray(1000, ' '), "x.plist: the property list is empty"},
        {"old text", " { a = 1; }", "x.plist: property lists in the old text form are not read"},
        {"old array", "(1, 2)", "x.plist: property lists in the old text form are not read"},
        {"typedstream", "\x04\x0Bstreamtyped\x81\xE8\x03", "x.plist: this is no property list"},
        {"words", "hello", "x.plist: this is no property list"},
        {"page", "<html><body>hello</body></html>", "x.plist: the property list is damaged"},
        {"XML in UTF-16", QByteArray("\xFF\xFE<\0?\0", 6), "x.plist: this is no property list"},
        {"signature alone", "bplist00", "x.plist: the binary property list is damaged"},
        {"noise", "bplist00" + QByteArray(100, '\xA5'),
            "x.plist: the binary property list is damaged"}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(errorOf(row.bytes).toStdString(), row.error);
    }
}

TEST(Plist, RefusesXmlThatIsCut)
{
    const QByteArray xml =
        xmlPlist("<dict><key>a</key><array><string>b</string><data>AAAA</data></array></dict>");
    for (int size = 0; size < xml.indexOf("</dict>") + 6; ++size) {
        SCOPED_TRACE(size);
        EXPECT_NE(errorOf(xml.left(size)), "none");
    }
}

TEST(Plist, RefusesABinaryListThatIsCut)
{
    const QByteArray list = binaryPlist({drawnArray("D1 01 02"), drawnArray("51 'a'"), "\x09"});
    ASSERT_EQ(valueOf(list), QVariantMap({{"a", true}}));
    for (int size = 0; size < list.size(); ++size) {
        SCOPED_TRACE(size);
        EXPECT_NE(errorOf(list.left(size)), "none");
    }
}

TEST(Plist, SurvivesChangedBinaryLists)
{
    const QByteArray list = binaryPlist({drawnArray("D3 01 02 03 04 05 06"), drawnArray("51 'a'"),
        drawnArray("51 'b'"), drawnArray("51 'c'"), drawnArray("A3 07 08 09"),
        drawnArray("44 01 02 03 04"), drawnArray("63 00 E4 D8 3D DE 00"), drawnArray("80 05"),
        drawnArray("33 41 C1 DE CA 92 80 00 00"), drawnArray("D1 01 07")});
    std::mt19937 random(11);
    int read = 0;
    for (int round = 0; round < 20'000; ++round) {
        QByteArray changed = list;
        for (unsigned changes = 1 + random() % 4; changes > 0; --changes) {
            const int place = static_cast<int>(random() % static_cast<unsigned>(changed.size()));
            changed[place] = static_cast<char>(random());
        }
        read += parsePlist(changed, "x.plist") ? 1 : 0;
    }
    EXPECT_GT(read, 0);
    EXPECT_LT(read, 20'000);
}

TEST(PlistFile, IsReadByItsPath)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QString::fromUtf8("\xC3\xA4 #1.plist"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(xmlPlist("<string>a</string>"));
    file.close();
    const auto read = formats::readPlistFile(path);
    ASSERT_TRUE(read);
    EXPECT_EQ(*read, "a");
}

TEST(PlistFile, NamesItsPathInErrors)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("none.plist");
    const auto read = formats::readPlistFile(path);
    ASSERT_FALSE(read);
    EXPECT_EQ(read.error().where, path);
    EXPECT_FALSE(read.error().what.isEmpty());
}

} // namespace
