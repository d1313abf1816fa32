// SPDX-License-Identifier: MIT
#include "exporters/escape.h"

#include "platform/literals.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr std::u16string_view kForbiddenInFileNames = u"/\\:\"*?<>|\r\n";

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
    // Escaped first, so that the tags stay tags.
    return text.toHtmlEscaped().replace(QChar(u'\n'), "<br>"_L1);
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
