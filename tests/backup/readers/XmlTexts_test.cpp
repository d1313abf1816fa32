// SPDX-License-Identifier: MIT
#include "backup/readers/XmlTexts.h"
#include "platform/literals.h"

#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace {

using backup::XmlTexts;

TEST(XmlTexts, KnowsTextsAndAttributesByTheirPlaces)
{
    const XmlTexts xml(R"(
        <?xml version="1.0"?>
        <msg from="wxid_a"><appmsg appid=""><title> Ferry &amp; tide </title>
            <des><![CDATA[a < b]]></des><items><item>1</item><item>2</item></items></appmsg></msg>)");
    EXPECT_EQ(xml.at("msg@from"_L1), "wxid_a");
    EXPECT_EQ(xml.at("msg/appmsg/title"_L1), "Ferry & tide");
    EXPECT_EQ(xml.at("msg/appmsg/des"_L1), "a < b");
    EXPECT_EQ(xml.at("msg/appmsg/items/item"_L1), "1") << "the first counts";
    EXPECT_EQ(xml.at("msg/appmsg@appid"_L1), "");
    EXPECT_EQ(xml.at("title"_L1), "");
    EXPECT_EQ(xml.firstOf({"msg/appmsg/url"_L1, "msg/appmsg/des"_L1}), "a < b");
    EXPECT_EQ(xml.firstOf({"msg/appmsg/url"_L1}), "");
    EXPECT_EQ(xml.allText(), "Ferry & tide a < b 1 2");
}

TEST(XmlTexts, ReadsDamagedXmlAsFarAsItGoes)
{
    const XmlTexts xml(
        "<msg><title>Tides</title><url>http://x/?a=1&b=2</url><des>lost</des></msg>");
    EXPECT_EQ(xml.at("msg/title"_L1), "Tides");
    EXPECT_EQ(xml.at("msg/des"_L1), "");
    EXPECT_EQ(XmlTexts("no XML").at("msg"_L1), "");
    EXPECT_EQ(XmlTexts("").allText(), "");
}

TEST(XmlTexts, TakesUndeclaredPrefixesAndIgnoresWhatIsTooDeep)
{
    EXPECT_EQ(XmlTexts("<msg><a:b>x</a:b></msg>").at("msg/a:b"_L1), "x");
    const QString deep = QString("<a>").repeated(5000) + "x" + QString("</a>").repeated(5000);
    EXPECT_EQ(XmlTexts(deep).allText(), "");
    EXPECT_EQ(XmlTexts("<b><c>y</c>" + deep + "<d>z</d></b>").at("b/d"_L1), "z");
}

TEST(XmlTexts, EntitiesThatMultiplyEndTheReading)
{
    QString bomb = "<!DOCTYPE m [<!ENTITY a0 \"lol\">";
    for (int level = 1; level < 12; ++level) {
        bomb += QString("<!ENTITY a%1 \"").arg(level) + QString("&a%1;").arg(level - 1).repeated(10)
                + "\">";
    }
    EXPECT_LT(XmlTexts(bomb + "]><m>&a11;</m>").allText().size(), 100'000);
}

TEST(XmlTexts, LongNamesAreNotKeptWhole)
{
    const QByteArray name(4000, 'a');
    const XmlTexts xml("<m><" + name + " " + name + "='1'>x</" + name + "><b>y</b></m>");
    EXPECT_EQ(xml.at(QLatin1String("m/" + name)), "");
    EXPECT_EQ(xml.at(QLatin1String("m/" + name + "@" + name)), "");
    EXPECT_EQ(xml.at("m/b"_L1), "y");
    EXPECT_EQ(xml.allText(), "x y");
}

TEST(ElementText, IsThatOfAllElementsWithinHoweverDeep)
{
    constexpr int depth = 300'000;
    QXmlStreamReader reader("<m><t>a" + QString("<b>").repeated(depth) + "x"
                            + QString("</b>").repeated(depth)
                            + "<![CDATA[ c]]></t><u>next</u></m>");
    reader.readNextStartElement();
    reader.readNextStartElement();
    EXPECT_EQ(backup::elementText(reader), "ax c");
    EXPECT_TRUE(reader.readNextStartElement());
    EXPECT_EQ(backup::elementText(reader), "next");
}

TEST(ElementText, EndsWhereTheXmlIsDamaged)
{
    QXmlStreamReader reader(QString("<t>a<b>b</c>d</t>"));
    reader.readNextStartElement();
    EXPECT_EQ(backup::elementText(reader), "ab");
}

TEST(WithoutTags, TakesTagsAndKeepsWhatOnlyLooksLikeOne)
{
    struct Row {
        const char* text = nullptr;
        const char* plain = nullptr;
    };
    // clang-format off
    const std::vector<Row> rows{
        {"plain",                                                   "plain"},
        {"<img src=\"x.png\"/> You got <a href=\"y\">a gift</a>\n", "You got a gift"},
        {"a < b and c > d",                                         "a < b and c > d"},
        {"1 <3 2",                                                  "1 <3 2"},
        {"R&amp;D &lt;b&gt; &quot;x&quot; it&#39;s",                "R&D <b> \"x\" it's"},
        {"&amp;lt;",                                                "&lt;"},
        {"<![CDATA[kept]]><!-- not -->",                            "kept"},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(backup::withoutTags(row.text), row.plain);
    }
}

TEST(LooksLikeXml, AsksForATagAtTheStart)
{
    EXPECT_TRUE(backup::looksLikeXml("<msg/>"));
    EXPECT_TRUE(backup::looksLikeXml(" \n<?xml version=\"1.0\"?><msg/>"));
    EXPECT_FALSE(backup::looksLikeXml("see <b>"));
    EXPECT_FALSE(backup::looksLikeXml("<3"));
    EXPECT_FALSE(backup::looksLikeXml(""));
}

} // namespace
