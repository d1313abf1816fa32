// SPDX-License-Identifier: MIT
// Texts that no phone should hold, through every place of both pages, on disk.
#include "exporters/CHtmlExporter.h"
#include "exporters/escape.h"
#include "model/PRData.h"
#include "model/PRNoteItem.h"
#include "model/PRSafariBookmarkItem.h"
#include "support/temp_tree.h"
#include "translators/records/CBookmark2HtmlTranslate.h"
#include "translators/records/CTable2HtmlTranslate.h"

#include <gtest/gtest.h>

namespace {

struct HostileText {
    const char* what = nullptr;
    QString text;
    QByteArray bytes; // unescaped on the page
    QByteArray html;  // escaped
};

QByteArray megabyteOf(const QByteArray& unit)
{
    return unit.repeated(1'048'576 / unit.size());
}

const std::vector<HostileText>& hostileTexts()
{
    static const std::vector<HostileText> texts{
        {"nothing", {}, "", ""},
        {"markup", "</td></table><script>alert('1')</script>",
            "</td></table><script>alert('1')</script>",
            "&lt;/td&gt;&lt;/table&gt;&lt;script&gt;alert('1')&lt;/script&gt;"},
        {"quotes", R"('" onload="x)", R"('" onload="x)", "'&quot; onload=&quot;x"},
        {"entities", "&amp;&#60;", "&amp;&#60;", "&amp;amp;&amp;#60;"},
        {"places", "%1%2%3%4%9%10%%%", "%1%2%3%4%9%10%%%", "%1%2%3%4%9%10%%%"},
        {"line ends", "a\r\nb\nc\rd", "a\r\nb\nc\rd", "a\r<br>b<br>c\rd"},
        {"right to left", QString::fromUtf8("\u202Eשלום\u202C"),
            "\xE2\x80\xAE\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D\xE2\x80\xAC",
            "\xE2\x80\xAE\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D\xE2\x80\xAC"},
        {"emoji", QString::fromUtf8("👩‍🚀"), "\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x9A\x80",
            "\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x9A\x80"},
        {"halves of a pair", QString("a") + QChar(0xD83D) + "b" + QChar(0xDE00) + "c", "a?b?c",
            "a?b?c"},
        {"a null", QString("a") + QChar(0) + "b", QByteArray("a\0b", 3), QByteArray("a\0b", 3)},
        {"a megabyte", QString(1'048'576, 'x'), megabyteOf("x"), megabyteOf("x")},
        {"a megabyte to escape", QString(1'048'576, '<'), megabyteOf("<"),
            megabyteOf("<").replace("<", "&lt;")},
    };
    return texts;
}

template <typename Translator> QByteArray pageOf(PRData& data, const QString& title = "Title")
{
    const support::TempTree tree;
    CHtmlExporter exporter;
    EXPECT_TRUE(exporter.openExport(tree.dir(), "Anna", "Cat"));
    EXPECT_TRUE(Translator(&data).translate(&exporter, title, nullptr));
    EXPECT_TRUE(exporter.closeExport(true));
    return tree.read("Cat/Anna's Cat.html");
}

// The texts are far too long to be shown when they differ.
bool holds(const QByteArray& page, const QByteArray& part)
{
    return page.contains(part);
}

QByteArray bookmarkPage(const QString& group, const QStringList& values, int flags = 0)
{
    RecordList records;
    records.push_back(
        std::make_unique<PRSafariBookmarkItem>(Record{.values = values, .flags = flags}, group));
    PRData data(33, std::move(records));
    return pageOf<CBookmark2HtmlTranslate>(data);
}

} // namespace

TEST(HostileText, InABookmarkGoesOutAsItIs)
{
    for (const HostileText& hostile : hostileTexts()) {
        SCOPED_TRACE(hostile.what);
        const QString& text = hostile.text;
        const QByteArray& bytes = hostile.bytes;
        EXPECT_TRUE(holds(bookmarkPage("", {text, text, text}),
            "<tr><td>" + bytes + ": <a href='" + bytes + "'>" + bytes + "</a></td></tr>"));
        const QByteArray label = bytes.isEmpty() ? QByteArray() : bytes + ": ";
        EXPECT_TRUE(holds(bookmarkPage("", {text, text, text}, Deleted),
            "<tr><td>" + label + "<img src='image/deleted.png'><a href='" + bytes + "' class='ad'>"
                + bytes + "</a></td></tr>"));
    }
}

TEST(HostileText, AsAGroupIsEscaped)
{
    for (const HostileText& hostile : hostileTexts()) {
        SCOPED_TRACE(hostile.what);
        const bool hasHead = !hostile.text.isEmpty();
        EXPECT_EQ(holds(bookmarkPage(hostile.text, {"a"}),
                      R"(<tr class="dark"><td>)" + hostile.html + "&nbsp;</td></tr>"),
            hasHead);
    }
}

TEST(HostileText, AsATitleIsEscaped)
{
    for (const HostileText& hostile : hostileTexts()) {
        SCOPED_TRACE(hostile.what);
        PRData data(3, {});
        const QByteArray heading = "<h1>" + hostile.html + "</h1>";
        EXPECT_TRUE(holds(pageOf<CTable2HtmlTranslate>(data, hostile.text), heading));
        EXPECT_TRUE(holds(pageOf<CBookmark2HtmlTranslate>(data, hostile.text), heading));
    }
}

TEST(HostileText, InACellOrAHeadingIsEscaped)
{
    for (const HostileText& hostile : hostileTexts()) {
        SCOPED_TRACE(hostile.what);
        const QString& text = hostile.text;
        const QByteArray& html = hostile.html;
        RecordList records;
        records.push_back(
            std::make_unique<PRAbstractItem>(Record{.values = {text, text}, .flags = Deleted}));
        PRData data(3, std::move(records), {text, text});
        EXPECT_TRUE(holds(pageOf<CTable2HtmlTranslate>(data),
            R"(<tr class="dark"><td width="45%">)" + html + "&nbsp;</td><td>" + html
                + R"(&nbsp;</td></tr><tr class="rd"><td><img src='image/deleted.png'>)" + html
                + "&nbsp;</td><td>" + html + "&nbsp;</td></tr>"));
    }
}

TEST(HostileText, InANoteIsEscapedAndNamesAPictureWithoutHarm)
{
    QImage preview(1, 1, QImage::Format_RGB32);
    preview.fill(Qt::red);
    for (const HostileText& hostile : hostileTexts()) {
        SCOPED_TRACE(hostile.what);
        const QString& text = hostile.text;
        std::vector<PRNoteItem::NotePiece> pieces{{.content = text},
            {.kind = 1, .content = text, .label = text, .preview = preview},
            {.kind = 1,
                .content = text,
                .label = text,
                .sourcePath = "/n/a." + text,
                .preview = preview}};
        RecordList records;
        records.push_back(std::make_unique<PRNoteItem>(Record{}, std::move(pieces)));
        PRData data(27, std::move(records), {"", "", "", "", ""});
        const QByteArray page = pageOf<CTable2HtmlTranslate>(data);
        EXPECT_TRUE(holds(page, "<td><p>" + hostile.html + "</p><a href=\"Image/"));
        EXPECT_TRUE(
            page.endsWith("&nbsp;<br></td></tr></table></div></td></tr></table></body></html>"));
    }
}
