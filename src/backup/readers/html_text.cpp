// SPDX-License-Identifier: MIT
// "Packing<div>Rope &amp; lamp</div><div><br></div><ul><li>Tea</li></ul><img src="cid:A1@notes">"
//
// Packing
// Rope & lamp
//
// • Tea
// [knot.jpg]
#include "backup/readers/html_text.h"

#include "platform/literals.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace backup {

namespace {

constexpr std::array kBlocks{"div"_L1, "p"_L1, "ul"_L1, "ol"_L1, "li"_L1, "h1"_L1, "h2"_L1, "h3"_L1,
    "tr"_L1, "table"_L1, "blockquote"_L1, "body"_L1, "html"_L1};
constexpr std::array kHidden{"style"_L1, "script"_L1, "head"_L1, "title"_L1};

struct EntityRow {
    QLatin1String name;
    char16_t character = 0;
};
// clang-format off
constexpr std::array kEntities{
    EntityRow{"amp"_L1,  u'&'},
    EntityRow{"lt"_L1,   u'<'},
    EntityRow{"gt"_L1,   u'>'},
    EntityRow{"quot"_L1, u'"'},
    EntityRow{"apos"_L1, u'\''},
    EntityRow{"nbsp"_L1, u' '},
};
// clang-format on

constexpr int kLongestEntity = 12; // "&#x10FFFF;" and its like

// The character of "amp", "#38" or "#x26"; empty for what is none.
QString entityText(const QString& name)
{
    const auto* const row = std::ranges::find(kEntities, name, &EntityRow::name);
    if (row != kEntities.end()) {
        return {QChar(row->character)};
    }
    if (!name.startsWith(QChar(u'#'))) {
        return {};
    }
    const bool isHex = name.mid(1, 1).compare("x"_L1, Qt::CaseInsensitive) == 0;
    bool isNumber = false;
    const uint code = isHex ? name.mid(2).toUInt(&isNumber, 16) : name.mid(1).toUInt(&isNumber, 10);
    const bool isCharacter =
        isNumber && code > 0 && code <= QChar::LastValidCodePoint && !QChar::isSurrogate(code);
    return isCharacter ? QString::fromUcs4(&code, 1) : QString();
}

class Reader {
public:
    Reader(const QString& html, const std::function<QString(const QString&)>& attachmentText)
        : m_html(html), m_attachmentText(attachmentText)
    {
    }

    QString read()
    {
        while (m_at < m_html.size()) {
            const QChar c = m_html[m_at];
            if (isTag()) {
                readTag();
            } else if (c == QChar(u'&')) {
                readEntity();
            } else {
                ++m_at;
                add(c.isSpace() ? QChar(u' ') : c);
            }
        }
        return m_text.trimmed();
    }

private:
    // Any other "<" is a character of the text.
    bool isTag() const
    {
        const bool isLast = m_at + 1 == m_html.size();
        const QChar next = isLast || m_html[m_at] != QChar(u'<') ? QChar() : m_html[m_at + 1];
        return next.isLetter() || next == QChar(u'/') || next == QChar(u'!');
    }

    void readTag()
    {
        const int end = m_html.indexOf(QChar(u'>'), m_at);
        const int after = end < 0 ? m_html.size() : end + 1;
        const QString tag = m_html.mid(m_at + 1, (end < 0 ? after : end) - m_at - 1);
        m_at = after;
        static const QRegularExpression pattern("^(/?)([a-zA-Z][a-zA-Z0-9]*)"_L1);
        const QRegularExpressionMatch match = pattern.match(tag);
        if (match.hasMatch()) {
            const QString name = match.captured(2).toLower();
            if (match.captured(1).isEmpty()) {
                open(name, tag);
            } else {
                close(name);
            }
        }
    }

    void open(const QString& name, const QString& tag)
    {
        if (std::ranges::find(kHidden, name) != kHidden.end()) {
            const int end = m_html.indexOf("</"_L1 + name, m_at, Qt::CaseInsensitive);
            m_at = end < 0 ? m_html.size() : end;
        } else if (name == "br"_L1) {
            m_text += QChar(u'\n');
            m_isLineOpen = false;
        } else if (name == "img"_L1 || name == "object"_L1) {
            openImage(tag);
        } else if (isBlock(name)) {
            endLine();
        }
        if (name == "li"_L1) {
            m_text += QStringLiteral("• ");
        }
    }

    void close(const QString& name)
    {
        if (isBlock(name)) {
            endLine();
        }
    }

    void openImage(const QString& tag)
    {
        static const QRegularExpression source(R"(\b(?:src|data)\s*=\s*["']?cid:([^"'\s>]+))"_L1,
            QRegularExpression::CaseInsensitiveOption);
        const QRegularExpressionMatch match = source.match(tag);
        if (match.hasMatch()) {
            m_text += m_attachmentText(match.captured(1));
            m_isLineOpen = true;
        }
    }

    void readEntity()
    {
        const int end = m_html.indexOf(QChar(u';'), m_at);
        const bool isNear = end > m_at && end - m_at <= kLongestEntity;
        const QString text = isNear ? entityText(m_html.mid(m_at + 1, end - m_at - 1)) : QString();
        m_text += text.isEmpty() ? QStringLiteral("&") : text;
        m_isLineOpen = true;
        m_at = text.isEmpty() ? m_at + 1 : end + 1;
    }

    // Blanks between blocks and several in a row are none of the text's.
    void add(QChar c)
    {
        const bool isRepeated = m_text.isEmpty() || m_text.back().isSpace();
        if (c != QChar(u' ') || !isRepeated) {
            m_text += c;
            m_isLineOpen = true;
        }
    }

    static bool isBlock(const QString& name)
    {
        return std::ranges::find(kBlocks, name) != kBlocks.end();
    }

    // A block begins on a new line; it makes no blank one.
    void endLine()
    {
        if (m_isLineOpen) {
            m_text += QChar(u'\n');
            m_isLineOpen = false;
        }
    }

    const QString& m_html;
    const std::function<QString(const QString&)>& m_attachmentText;
    int m_at = 0;
    QString m_text;
    bool m_isLineOpen = false; // something stands in it
};

} // namespace

QString htmlText(
    const QString& html, const std::function<QString(const QString& contentId)>& attachmentText)
{
    return Reader(html, attachmentText).read();
}

} // namespace backup
