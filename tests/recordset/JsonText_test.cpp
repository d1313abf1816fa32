// SPDX-License-Identifier: MIT
#include "recordset/JsonText.h"

#include <gtest/gtest.h>

using recordset::JsonText;

namespace {

std::string written(const QString& text)
{
    JsonText json;
    json.openList();
    json.text(text);
    json.closeList();
    return json.take();
}

} // namespace

TEST(JsonText, PutsTheItemsOfARecordOnLinesAndWhatTheyHoldOnOne)
{
    JsonText json;
    json.openDocument();
    json.key("recordSet");
    json.number(1);
    json.key("sets");
    json.openItems();
    json.openObject();
    json.key("dataType");
    json.number(0);
    json.key("records");
    json.openItems();
    json.openObject();
    json.key("chats");
    json.openItems();
    json.openObject();
    json.key("fromMe");
    json.truth(true);
    json.key("pieces");
    json.openItems();
    json.openObject();
    json.closeObject();
    json.openObject();
    json.closeObject();
    json.closeList();
    json.closeObject();
    json.openObject();
    json.closeObject();
    json.closeList();
    json.closeObject();
    json.closeList();
    json.closeObject();
    json.closeList();
    json.closeObject();
    EXPECT_EQ(json.take(), R"({
  "recordSet": 1,
  "sets": [
    {"dataType": 0, "records": [
      {"chats": [
        {"fromMe": true, "pieces": [{}, {}]},
        {}
      ]}
    ]}
  ]
}
)");
}

TEST(JsonText, LeavesAnEmptyListOnItsLine)
{
    JsonText json;
    json.openDocument();
    json.key("sets");
    json.openItems();
    json.closeList();
    json.closeObject();
    EXPECT_EQ(json.take(), "{\n  \"sets\": []\n}\n");
}

TEST(JsonText, EscapesWhatJsonAsksForAndNothingElse)
{
    EXPECT_EQ(written("a\"b\\c/d"), "[\"a\\\"b\\\\c/d\"]\n");
    EXPECT_EQ(written("\n\r\t\b\x1f\x7f"), "[\"\\n\\r\\t\\u0008\\u001f\x7f\"]\n");
    EXPECT_EQ(written(QString(QChar(0))), "[\"\\u0000\"]\n");
    EXPECT_EQ(written(QString::fromUtf8("grüße 🌊")), "[\"grüße 🌊\"]\n");
}

TEST(JsonText, ReplacesSurrogatesWithoutAPartner)
{
    const QChar high(0xD83C);
    const QChar low(0xDF0A);
    const QString alone = QString("a") + high + "b" + low;
    EXPECT_EQ(written(alone), "[\"a\uFFFDb\uFFFD\"]\n");
    EXPECT_EQ(written(QString(high)), "[\"\uFFFD\"]\n");
    EXPECT_EQ(written(QString(low) + high), "[\"\uFFFD\uFFFD\"]\n");
    EXPECT_EQ(written(QString(high) + high + low), "[\"\uFFFD🌊\"]\n");
    EXPECT_EQ(written(QString(high) + low + low), "[\"🌊\uFFFD\"]\n");
}

TEST(JsonText, GivesOutWhatWasWrittenSinceTheLastTime)
{
    JsonText json;
    json.openList();
    json.number(-2147483647 - 1);
    EXPECT_EQ(json.take(), "[-2147483648");
    json.number(7);
    json.closeList();
    EXPECT_EQ(json.take(), ", 7]\n");
}
