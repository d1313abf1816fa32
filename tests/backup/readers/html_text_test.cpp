// SPDX-License-Identifier: MIT
#include "backup/readers/html_text.h"

#include <gtest/gtest.h>

namespace {

QString textOf(const QString& html)
{
    return backup::htmlText(html, [](const QString& id) { return "[" + id + "]"; });
}

TEST(HtmlText, ReadsAsItIsSeen)
{
    struct Row {
        const char* what;
        const char* html;
        QString text;
    };
    const Row rows[]{
        {"blocks", "Packing<div>Rope</div><div>Lamp</div>", "Packing\nRope\nLamp"},
        {"blank line", "a<div><br></div><div>b</div>", "a\n\nb"},
        {"breaks", "a<br>b<br/>c", "a\nb\nc"},
        {"entities", "&lt;b&gt; &amp; &quot;x&quot;&nbsp;&#8364;&#x20AC;", "<b> & \"x\" €€"},
        {"no entity", "AT&T &unknown; &#0; &#xD800; & ;", "AT&T &unknown; &#0; &#xD800; & ;"},
        {"list", "<ul><li>a</li><li>b</li></ul>c", "• a\n• b\nc"},
        {"style sheet", "<html><head><style>p{}</style></head><body>x</body></html>", "x"},
        {"image", R"(a<img src="cid:A1@n">b<object type="x" data='cid:B2'></object>)",
            "a[A1@n]b[B2]"},
        {"foreign image", R"(<img src="https://a.example/b.png">x)", "x"},
        {"inline tags", "a<b>b</b><i>c</i>", "abc"},
        {"blanks", "a \n  b", "a b"},
        {"plain text", "nothing else", "nothing else"},
        {"open tag at the end", "a<div", "a"},
        {"open style", "a<style>x", "a"},
        {"comparison", "1 < 2 <3", "1 < 2 <3"},
        {"comment", "a<!-- b -->c", "ac"},
        {"nothing", "", ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(textOf(row.html), row.text);
    }
}

} // namespace
