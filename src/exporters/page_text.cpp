// SPDX-License-Identifier: MIT
#include "exporters/page_text.h"

#include "exporters/escape.h"

#include <cstring>

namespace {

// 1 to 9 for the digit behind a percent sign, 0 for anything else.
std::size_t placeNumber(char c)
{
    return c >= '1' && c <= '9' ? static_cast<std::size_t>(c - '0') : 0;
}

} // namespace

void PageValue::appendTo(QString& page) const
{
    switch (m_kind) {
    case Kind::Latin:
        page += m_latin;
        return;
    case Kind::Markup:
        page.append(m_text.data(), static_cast<int>(m_text.size()));
        return;
    case Kind::Text:
        appendHtmlLines(page, m_text);
        return;
    }
}

void Page::fill(QLatin1String pattern, const PageValue* values, std::size_t count)
{
    const char* at = pattern.data();
    const char* const end = at + pattern.size();
    const char* written = at;
    while (at < end) {
        const auto* sign =
            static_cast<const char*>(std::memchr(at, '%', static_cast<std::size_t>(end - at)));
        if (sign == nullptr || end - sign < 2) {
            break;
        }
        at = sign + 1;
        const std::size_t place = placeNumber(*at);
        if (place == 0 || place > count) {
            continue;
        }
        m_text += QLatin1String(written, static_cast<int>(sign - written));
        values[place - 1].appendTo(m_text);
        written = ++at;
    }
    m_text += QLatin1String(written, static_cast<int>(end - written));
}
