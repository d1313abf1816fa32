// SPDX-License-Identifier: MIT
#include "exporters/escape.h"

#include <QString>

#include <gtest/gtest.h>

#include <map>
#include <string_view>

namespace {

constexpr int kCharacters = 0x10000;

bool isOneOf(int code, std::u16string_view characters)
{
    return characters.find(static_cast<char16_t>(code)) != std::u16string_view::npos;
}

QString oneCharacter(int code)
{
    return {QChar(static_cast<ushort>(code))};
}

} // namespace

TEST(SafeFileName, ReplacesElevenCharactersAndNoOther)
{
    const std::u16string_view replaced = u"/\\:\"*?<>|\r\n";
    ASSERT_EQ(replaced.size(), 11U);
    for (int code = 0; code < kCharacters; ++code) {
        const QString text = oneCharacter(code);
        ASSERT_EQ(safeFileName(text), isOneOf(code, replaced) ? QString("_") : text) << code;
    }
}

TEST(SafeFileName, ReplacesOneForOneAndKeepsPointsBlanksAndLength)
{
    struct Row {
        const char* name;
        const char* safe;
    };
    const Row rows[] = {
        {"", ""},
        {"a/b\\c:d\"e*f?g<h>i|j\rk\nl", "a_b_c_d_e_f_g_h_i_j_k_l"},
        {"///", "___"},
        {"\r\n", "__"},
        {" . a . ", " . a . "},
        {"..", ".."},
        {"../../etc", ".._.._etc"},
        {"a.tar.gz", "a.tar.gz"},
        {"tab\tand %1", "tab\tand %1"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(safeFileName(row.name).toStdString(), row.safe);
    }
    EXPECT_EQ(safeFileName(QString(5'000, QLatin1Char('/'))), QString(5'000, QLatin1Char('_')));
    const QString beyondThePlane = QString::fromUtf8("😀/é");
    EXPECT_EQ(safeFileName(beyondThePlane), QString::fromUtf8("😀_é"));
}

TEST(CsvQuote, DoublesDoubleQuotesAndNoOtherCharacter)
{
    for (int code = 0; code < kCharacters; ++code) {
        const QString text = oneCharacter(code);
        const QString inside = code == '"' ? QString("\"\"") : text;
        ASSERT_EQ(csvQuote(text), "\"" + inside + "\"") << code;
    }
}

TEST(CsvQuote, QuotesEvenAnEmptyTextAndOneThatNeedsNothing)
{
    struct Row {
        const char* text;
        const char* quoted;
    };
    const Row rows[] = {
        {"", R"("")"},
        {"plain", R"("plain")"},
        {R"(")", R"("""")"},
        {R"("")", R"("""""")"},
        {R"(a"b)", R"("a""b")"},
        {R"("begin)", R"("""begin")"},
        {R"(end")", R"("end""")"},
        {R"(a""b"c)", R"("a""""b""c")"},
        {"a,b;c\r\nd", "\"a,b;c\r\nd\""},
        {"=1+1", R"("=1+1")"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(csvQuote(row.text).toStdString(), row.quoted);
    }
    EXPECT_EQ(csvQuote(QString()), "\"\"");
}

TEST(AppendCsvEscaped, AddsToTheRowWithoutQuotesAround)
{
    QString row = R"("x",")";
    appendCsvEscaped(row, "a\"b");
    appendCsvEscaped(row, "");
    appendCsvEscaped(row, "\"");
    EXPECT_EQ(row, R"("x","a""b"")");
}

TEST(HtmlEscapeLines, EscapesFourCharactersAndTurnsTheLineFeed)
{
    const std::map<int, QString> replaced = {
        {'<', "&lt;"}, {'>', "&gt;"}, {'&', "&amp;"}, {'"', "&quot;"}, {'\n', "<br>"}};
    for (int code = 0; code < kCharacters; ++code) {
        const auto found = replaced.find(code);
        const QString text = oneCharacter(code);
        ASSERT_EQ(htmlEscapeLines(text), found == replaced.end() ? text : found->second) << code;
    }
}

TEST(HtmlEscapeLines, EscapesFirstSoThatOnlyItsOwnTagsAreLive)
{
    struct Row {
        const char* text;
        const char* html;
    };
    const Row rows[] = {
        {"", ""},
        {"a\nb", "a<br>b"},
        {"\n\n", "<br><br>"},
        {"a\r\nb", "a\r<br>b"},
        {"a<br>b\n", "a&lt;br&gt;b<br>"},
        {"&lt;", "&amp;lt;"},
        {"it's", "it's"},
        {"<a href=\"x\">&</a>", "&lt;a href=&quot;x&quot;&gt;&amp;&lt;/a&gt;"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(htmlEscapeLines(row.text).toStdString(), row.html);
    }
}
