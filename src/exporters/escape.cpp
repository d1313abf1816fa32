// SPDX-License-Identifier: MIT
#include "exporters/escape.h"

#include "platform/literals.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace {

constexpr std::u16string_view kForbiddenInFileNames = u"/\\:\"*?<>|\r\n";

constexpr std::uint64_t bit(char16_t c)
{
    return std::uint64_t(1) << c;
}

// All that HTML escapes lies below 64.
constexpr std::uint64_t kHtmlSpecial = bit(u'<') | bit(u'>') | bit(u'&') | bit(u'"') | bit(u'\n');

bool isHtmlSpecial(QChar c)
{
    return c.unicode() < 64 && (kHtmlSpecial >> c.unicode() & 1) != 0;
}

QLatin1String htmlForm(QChar special)
{
    switch (special.unicode()) {
    case u'<':
        return "&lt;"_L1;
    case u'>':
        return "&gt;"_L1;
    case u'&':
        return "&amp;"_L1;
    case u'"':
        return "&quot;"_L1;
    default:
        return "<br>"_L1; // the line feed
    }
}

} // namespace

QString safeFileName(const QString& name)
{
    QString safe = name;
    std::replace_if(
        safe.begin(), safe.end(),
        [](QChar c) {
            return kForbiddenInFileNames.find(c.unicode()) != std::u16string_view::npos;
        },
        QChar(u'_'));
    return safe;
}

QString csvQuote(const QString& text)
{
    QString quoted;
    quoted.reserve(text.size() + 2);
    quoted += QChar(u'"');
    appendCsvEscaped(quoted, text);
    quoted += QChar(u'"');
    return quoted;
}

QString htmlEscapeLines(const QString& text)
{
    if (std::none_of(text.begin(), text.end(), isHtmlSpecial)) {
        return text;
    }
    QString html;
    appendHtmlLines(html, text);
    return html;
}

void appendHtmlLines(QString& page, QStringView text)
{
    const QChar* written = text.begin();
    for (;;) {
        const QChar* special = std::find_if(written, text.end(), isHtmlSpecial);
        page.append(written, static_cast<int>(special - written));
        if (special == text.end()) {
            return;
        }
        page += htmlForm(*special);
        written = special + 1;
    }
}

void appendCsvEscaped(QString& row, const QString& text)
{
    int from = 0;
    for (int quote = text.indexOf(QChar(u'"')); quote >= 0;
         quote = text.indexOf(QChar(u'"'), from)) {
        row.append(text.constData() + from, quote + 1 - from);
        row += QChar(u'"');
        from = quote + 1;
    }
    row.append(text.constData() + from, text.size() - from);
}
