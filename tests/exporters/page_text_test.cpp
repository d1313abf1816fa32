// SPDX-License-Identifier: MIT
#include "exporters/escape.h"
#include "exporters/page_text.h"
#include "platform/literals.h"

#include <QString>

#include <gtest/gtest.h>

namespace {

std::string textOf(QLatin1String latin)
{
    return {latin.data(), static_cast<std::size_t>(latin.size())};
}

// `pattern` filled from the values, behind a text that is there already.
template <typename... Values> std::string filled(QLatin1String pattern, const Values&... values)
{
    Page page("<p>"_L1);
    page.add(pattern, values...);
    const std::string text = page.text().toStdString();
    EXPECT_EQ(text.substr(0, 3), "<p>");
    return text.substr(3);
}

} // namespace

TEST(PageLiteral, FoldsLineBreaksAndTheBlanksBehindThem)
{
    EXPECT_EQ(textOf(R"()"_page), "");
    EXPECT_EQ(textOf(R"(<b>)"_page), "<b>");
    EXPECT_EQ(textOf(R"(
        <table>
            <tr>

                <td></td>
        </tr></table>
    )"_page),
        "<table><tr><td></td></tr></table>");
}

TEST(PageLiteral, KeepsTheBlanksInALineAndAtItsEnd)
{
    EXPECT_EQ(textOf("a  b \nc\n  d e \n"_page), "a  b cd e ");
    EXPECT_EQ(textOf("  a"_page), "  a"); // no break before them
}

TEST(PageLiteral, KeepsAllOtherWhiteSpaceAndQuotes)
{
    EXPECT_EQ(textOf("a\n\tb\r\n c\n \t d"_page), "a\tb\rc\t d");
    EXPECT_EQ(textOf(R"(<a href="%1" class='x'>\n</a>)"_page), R"(<a href="%1" class='x'>\n</a>)");
}

TEST(PageLiteral, IsThereWhenTheProgramIsCompiled)
{
    static_assert(R"(
        <p>
    )"_page.size() == 3);
    EXPECT_EQ("<p>\n"_page.data(), "<p>\n"_page.data()) << "one text for all that say the same";
}

TEST(PageAdd, FillsEachPlaceWithItsValue)
{
    const QString one = "1st";
    EXPECT_EQ(filled("%1"_L1, one), "1st");
    EXPECT_EQ(filled("a%1b"_L1, one), "a1stb");
    EXPECT_EQ(filled("%2 %1 %2"_L1, one, "2nd"_L1), "2nd 1st 2nd");
    EXPECT_EQ(filled("%1%1"_L1, one), "1st1st");
    EXPECT_EQ(filled("no place"_L1, one), "no place");
    EXPECT_EQ(filled(""_L1, one), "");
    EXPECT_EQ(filled("%9%8%7%6%5%4%3%2%1"_L1, "a"_L1, "b"_L1, "c"_L1, "d"_L1, "e"_L1, "f"_L1,
                  "g"_L1, "h"_L1, "i"_L1),
        "ihgfedcba");
}

TEST(PageAdd, LeavesWhatIsNoPlaceAsItIs)
{
    struct {
        const char* what = nullptr;
        QLatin1String pattern;
        const char* text = nullptr;
    } const rows[] = {
        {"a place without a value", "%1%3%2"_L1, "A%3B"},
        {"ten is place one and a nought", "%10"_L1, "A0"},
        {"nought is no place", "%0%1"_L1, "%0A"},
        {"a percent sign at the end", "%1%"_L1, "A%"},
        {"nothing else", "%"_L1, "%"},
        {"two at the end", "%%"_L1, "%%"},
        {"a percent sign before a place", "%%1%"_L1, "%A%"},
        {"a share of a width", R"(<td width="%1%">%2)"_L1, R"(<td width="A%">B)"},
        {"a letter", "%a%L1%n"_L1, "%a%L1%n"},
        {"a style", "width:80%; font:12px/160% x"_L1, "width:80%; font:12px/160% x"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(filled(row.pattern, "A"_L1, "B"_L1), row.text);
    }
}

TEST(PageAdd, WithoutValuesKeepsAllPlaces)
{
    EXPECT_EQ(filled("%1 %2 %%"_L1), "%1 %2 %%");
}

TEST(PageAdd, FillsAllPlacesAtOnce)
{
    const QString second = "%2";
    EXPECT_EQ(filled("%1-%2"_L1, second, "%1"_L1), "%2-%1");
    EXPECT_EQ(filled("%1-%2"_L1, escaped(second), "x"_L1), "%2-x");
    EXPECT_EQ(filled("%12"_L1, "%"_L1, "x"_L1), "%2") << "nor what two of them make together";
}

TEST(PageAdd, TakesMarkupAsItIsAndTextEscaped)
{
    const QString text = QString::fromUtf8("<ä & \"😀\">\n'");
    const std::string html = "&lt;ä &amp; &quot;😀&quot;&gt;<br>'";
    EXPECT_EQ(filled("%1"_L1, text), text.toStdString());
    EXPECT_EQ(filled("%1"_L1, "<br>&"_L1), "<br>&");
    EXPECT_EQ(filled("%1"_L1, escaped(text)), html);
    Page page;
    page.add(escaped(text));
    EXPECT_EQ(page.text().toStdString(), html);
}

TEST(PageAdd, TakesEmptyAndNullValues)
{
    EXPECT_EQ(filled("[%1%2%3%4]"_L1, QString(), QString(""), QLatin1String(), escaped({})), "[]");
    Page page;
    page.add(escaped({}));
    page.add(QLatin1String());
    EXPECT_EQ(page.text(), "");
}

TEST(PageAdd, EscapesLikeTheEscapeOfAWholeText)
{
    for (int code = 0; code < 0x10000; ++code) {
        const QString text = QString("a") + QChar(static_cast<ushort>(code)) + "b";
        Page page;
        page.add(escaped(text));
        ASSERT_EQ(page.text(), htmlEscapeLines(text)) << code;
    }
}

TEST(PageAdd, TakesNullCharactersAsText)
{
    const QString text = QString("a") + QChar(0) + "b";
    Page page;
    page.add("%1"_L1, escaped(text));
    EXPECT_EQ(page.text(), text);
}

TEST(AppendHtmlLines, AddsBehindWhatIsThere)
{
    struct {
        const char* text = nullptr;
        const char* page = nullptr;
    } const rows[] = {
        {"", "<p>"},
        {"plain", "<p>plain"},
        {"<", "<p>&lt;"},
        {"\n\n", "<p><br><br>"},
        {"<a>", "<p>&lt;a&gt;"},
        {"a&b\"c", "<p>a&amp;b&quot;c"},
        {"a\r\nb", "<p>a\r<br>b"},
        {"&lt;", "<p>&amp;lt;"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        QString page = "<p>";
        appendHtmlLines(page, QString(row.text));
        EXPECT_EQ(page.toStdString(), row.page);
    }
    QString page = "<p>";
    appendHtmlLines(page, QStringView());
    EXPECT_EQ(page, "<p>");
}
