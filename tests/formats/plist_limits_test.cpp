// SPDX-License-Identifier: MIT
#include "formats/plist.h"
#include "formats/plist_limits.h"
#include "plist_bytes.h"

#include <gtest/gtest.h>

namespace {

using formats::binaryPlistFault;
using formats::kPlistMaxDepth;
using formats::parsePlist;
using formats::xmlPlistFault;

// Arrays, each of which holds the next one `times` times; the last one is empty.
QByteArray nestedBinary(int depth, int times)
{
    QList<QByteArray> objects;
    for (int i = 1; i < depth; ++i) {
        QByteArray array = bigEndian(quint64(0xA0) + static_cast<quint64>(times), 1);
        for (int time = 0; time < times; ++time) {
            array += bigEndian(static_cast<quint64>(i), 4);
        }
        objects.append(array);
    }
    objects.append("\xA0");
    return binaryPlist(objects, 4);
}

QByteArray nestedXml(int depth, const QByteArray& inside = {})
{
    QByteArray xml;
    for (int i = 0; i < depth; ++i) {
        xml += "<array>" + inside;
    }
    for (int i = 0; i < depth; ++i) {
        xml += "</array>";
    }
    return xmlPlist(xml);
}

TEST(PlistLimits, LetsBinaryListsNestUpToTheLimit)
{
    EXPECT_EQ(binaryPlistFault(nestedBinary(kPlistMaxDepth, 1)), QString());
    EXPECT_TRUE(parsePlist(nestedBinary(kPlistMaxDepth, 1), "x"));
    EXPECT_EQ(
        binaryPlistFault(nestedBinary(kPlistMaxDepth + 1, 1)), "the property list nests too deep");
}

TEST(PlistLimits, RefusesBinaryListsThatNestWithoutEnd)
{
    EXPECT_FALSE(parsePlist(nestedBinary(300'000, 1), "x"));
}

TEST(PlistLimits, SeesTheDepthBehindAnObjectThatIsKnownAlready)
{
    // The root holds each array of a long chain, the deepest first.
    constexpr int kLong = 2000;
    QByteArray root = drawnArray("AF 11") + bigEndian(kLong, 2);
    QList<QByteArray> objects{QByteArray()};
    for (int i = 1; i <= kLong; ++i) {
        root += bigEndian(static_cast<quint64>(kLong + 1 - i), 4);
        objects.append(i < kLong ? "\xA1" + bigEndian(static_cast<quint64>(i) + 1, 4) : "\xA0");
    }
    objects[0] = root;
    EXPECT_EQ(binaryPlistFault(binaryPlist(objects, 4)), "the property list nests too deep");
}

TEST(PlistLimits, RefusesBinaryListsThatGrow)
{
    EXPECT_EQ(binaryPlistFault(nestedBinary(10, 2)), QString());
    EXPECT_EQ(
        binaryPlistFault(nestedBinary(60, 2)), "the property list repeats its objects too often");
    const QByteArray data = drawnArray("4F 12 00 10 00 00") + QByteArray(0x100000, 'x');
    QByteArray array = drawnArray("AF 11 10 00");
    for (int i = 0; i < 0x1000; ++i) {
        array += bigEndian(1, 4);
    }
    EXPECT_EQ(binaryPlistFault(binaryPlist({array, data}, 4)),
        "the property list repeats its objects too often");
}

TEST(PlistLimits, RefusesBinaryListsThatHoldThemselves)
{
    EXPECT_EQ(binaryPlistFault(binaryPlist({drawnArray("A1 00")})),
        "the binary property list is damaged");
}

TEST(PlistLimits, LetsXmlNestUpToTheLimit)
{
    EXPECT_EQ(xmlPlistFault(nestedXml(kPlistMaxDepth)), QString());
    EXPECT_TRUE(parsePlist(nestedXml(kPlistMaxDepth), "x"));
    EXPECT_EQ(xmlPlistFault(nestedXml(kPlistMaxDepth + 1)), "the property list nests too deep");
}

TEST(PlistLimits, CountsOnlyContainersThatStayOpen)
{
    QByteArray many;
    for (int i = 0; i < 1000; ++i) {
        many += "<dict><key>a</key><array/></dict><array></array><string>b</string>";
    }
    const QByteArray xml = xmlPlist("<array>" + many + "</array>");
    EXPECT_EQ(xmlPlistFault(xml), QString());
    EXPECT_TRUE(parsePlist(xml, "x"));
}

TEST(PlistLimits, SeesTheDepthBehindClosingsThatAreNone)
{
    for (const char* hidden : {"<!--</array>-->", "<?x </array> ?>", "<![CDATA[</array>]]>",
             "<!x [ > </array> ]>", "<!x </array>"}) {
        SCOPED_TRACE(hidden);
        EXPECT_EQ(xmlPlistFault(nestedXml(1000, hidden)), "the property list nests too deep");
    }
    QByteArray attributes = nestedXml(1000);
    attributes.replace("<array>", "<array x=\"/>\">");
    EXPECT_EQ(xmlPlistFault(attributes), "the property list nests too deep");
}

TEST(PlistLimits, RefusesXmlThatNestsWithoutEnd)
{
    EXPECT_FALSE(parsePlist(nestedXml(300'000), "x"));
}

TEST(PlistLimits, ReadsTextThatLooksLikeContainers)
{
    const QByteArray text =
        "<string><![CDATA[" + QByteArray("<dict>").repeated(1000) + "]]></string>";
    const auto parsed = parsePlist(xmlPlist(text), "x");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->toString().size(), 6000);
}

} // namespace
