// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

#include <QLatin1String>
#include <array>
#include <cstddef>

/// The source of a piece of a page, as it stands in the code.
template <std::size_t kSize> struct PageSource {
    // NOLINTNEXTLINE(google-explicit-constructor): a literal becomes the template's argument
    constexpr PageSource(const char (&source)[kSize])
    {
        for (std::size_t i = 0; i < kSize; ++i) {
            text[i] = source[i];
        }
    }

    char text[kSize] = {};
};

/// A piece of a page in one line: without its line breaks and the blanks behind each of them.
template <std::size_t kSize> struct FoldedPage {
    constexpr explicit FoldedPage(const PageSource<kSize>& source)
    {
        bool indented = false;
        for (std::size_t i = 0; i + 1 < kSize; ++i) {
            const char c = source.text[i];
            indented = c == '\n' || (indented && c == ' ');
            if (!indented) {
                text[size++] = c;
            }
        }
    }

    char text[kSize] = {};
    int size = 0;
};

template <PageSource kSource> inline constexpr FoldedPage kFoldedPage{kSource};

/// `R"(...)"_page` is written over many lines and indented like the tags that it holds; what is
/// there at run time has neither line breaks nor the blanks behind them.
template <PageSource kSource> constexpr QLatin1String operator""_page()
{
    return QLatin1String(kFoldedPage<kSource>.text, kFoldedPage<kSource>.size);
}

/// Text of a record on its way into a page. Copies nothing; the text must outlive it.
struct EscapedText {
    QStringView text;
};

/// `text` as HTML, with each line feed turned into a live "<br>": the result of `htmlEscapeLines`.
inline EscapedText escaped(const QString& text)
{
    return {text};
}

/// What stands in a place of a template: markup as it is, or text to be escaped.
class PageValue {
public:
    // NOLINTBEGIN(google-explicit-constructor): what a page is given reads like text
    PageValue(QLatin1String markup) : m_latin(markup), m_kind(Kind::Latin) {}
    PageValue(const QString& markup) : m_text(markup), m_kind(Kind::Markup) {}
    PageValue(EscapedText text) : m_text(text.text), m_kind(Kind::Text) {}
    // NOLINTEND(google-explicit-constructor)

    void appendTo(QString& page) const;

private:
    enum class Kind { Latin, Markup, Text };

    QStringView m_text;
    QLatin1String m_latin;
    Kind m_kind;
};

/// The text of a page, or of one record on it, that grows at its end.
class Page {
public:
    Page() = default;
    explicit Page(QLatin1String markup) : m_text(markup) {}

    /// Adds a template with each "%1" to "%9" replaced by that value. All places are filled at
    /// once: a "%2" in a value stays. A place without a value stays as well.
    template <typename... Values> void add(QLatin1String pattern, const Values&... values)
    {
        if constexpr (sizeof...(values) == 0) {
            m_text += pattern;
        } else {
            const std::array<PageValue, sizeof...(values)> all{PageValue(values)...};
            fill(pattern, all.data(), all.size());
        }
    }
    /// Adds text of a record.
    void add(EscapedText text) { PageValue(text).appendTo(m_text); }

    const QString& text() const { return m_text; }

private:
    void fill(QLatin1String pattern, const PageValue* values, std::size_t count);

    QString m_text;
};
