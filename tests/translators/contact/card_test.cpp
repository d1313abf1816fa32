// SPDX-License-Identifier: MIT
#include "exporters/page_text.h"
#include "translators/contact/CContact2HtmlTranslate.h"
#include "translators/contact/card.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace {

TEST(CardStyleSheet, HasTheseRulesInOneLine)
{
    // clang-format off
    const QStringList rules{
        "html, div, body, p, form, img, h1, input { margin:0 auto; padding:0; font:12px/160% Arial, Helvetica, sans-serif; }",
        "img, input { border:none; }",
        "h1 { color:#fefefe; font-size:32px; margin-left:16px; padding-top:5px; }",
        "#wrap { width:700px; background-color:#FFF; padding:4px; border:1px solid #cacaca; }",
        "#top { background:#7f8ea3; }",
        ".main { border:1px solid #e5e4e4; margin-top:10px; padding:10px; }",
        ".main-top { overflow:hidden; }",
        ".main-pic { width:138px; height:138px; padding:6px; float:left; margin-top:6px; margin-bottom:6px; margin-left:6px; }",
        ".main-text { width:450px; margin-left:34px; float:left; }",
        ".main-title { font-size:30px; font-weight:bold; line-height:150%; margin-top:10px; }",
        ".main-text p { font-size:16px; font-weight:bold; }",
        ".main table { margin:0 auto; font-size:14px; width:100%; }",
        ".main table tr td { background-color:#fff; border-collapse:collapse; line-height:120%; padding:6px; vertical-align:text-top; }",
        ".main table tr.group td { height:32px; font-size:15px; font-weight:bold; border-bottom: 1px solid #f1f1f1; vertical-align: bottom; }",
        ".main table tr.group_end td { border-bottom: 1px solid #f1f1f1; }",
        ".first-td { width:150px; }",
        ".second-td { }",
        ".nc { color:#4f4c4c; }",
        ".dc { color:#e61010; }",
    };
    // clang-format on
    const QString sheet = "<style type=\"text/css\">" + rules.join("") + "</style>";
    EXPECT_EQ(cardStyleSheet().toStdString(), sheet.toStdString());
    EXPECT_EQ(CContact2HtmlTranslate::styleSheet(), sheet);
}

TEST(CardRows, TellTheirPlaceByTheirClass)
{
    struct {
        CardRow row = CardRow::Head;
        QString begin;
    } const rows[] = {
        {CardRow::Head, R"(<tr class="group">)"},
        {CardRow::Inner, "<tr>"},
        {CardRow::Last, R"(<tr class="group_end">)"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.begin.toStdString());
        Page page;
        addCardRow(page, row.row, "a<\n%2", "b>%1");
        EXPECT_EQ(page.text(), row.begin
                                   + R"(<td class="first-td">a&lt;<br>%2&nbsp;</td>)"
                                     R"(<td class="second-td">b&gt;%1&nbsp;</td></tr>)");
    }
}

TEST(CardHeading, SpansBothColumnsAndIsEscaped)
{
    Page page;
    addCardHeading(page, "a<\n%1");
    EXPECT_EQ(page.text(), R"(<tr class="group"><td colspan='2'>a&lt;<br>%1&nbsp;</td></tr>)");
}

} // namespace
