// SPDX-License-Identifier: MIT
#include "backup/readers/XmlTexts.h"

#include "platform/literals.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

#include <array>
#include <vector>

namespace backup {

namespace {

// Places below that are of no use, nor are longer names; strangers could fill the memory with them.
constexpr std::size_t kDeepest = 16;
constexpr int kLongestName = 32;

struct Entity {
    QLatin1String written;
    char16_t character = 0;
};
// "&amp;" comes last: what it makes is no entity again.
constexpr std::array kEntities{
    Entity{"&lt;"_L1, u'<'},
    Entity{"&gt;"_L1, u'>'},
    Entity{"&quot;"_L1, u'"'},
    Entity{"&apos;"_L1, u'\''},
    Entity{"&#39;"_L1, u'\''},
    Entity{"&nbsp;"_L1, u' '},
    Entity{"&amp;"_L1, u'&'},
};

/// An element that is being read.
struct OpenElement {
    QString place;
    QString text;
};

} // namespace

XmlTexts::XmlTexts(const QString& xml)
{
    QXmlStreamReader reader(xml.trimmed()); // before its declaration there may be nothing
    reader.setNamespaceProcessing(false);   // prefixes are often not declared
    std::vector<OpenElement> open;
    std::size_t depth = 0;
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::StartElement && ++depth <= kDeepest) {
            const QString name = reader.qualifiedName().left(kLongestName).toString();
            open.push_back({open.empty() ? name : open.back().place + QChar(u'/') + name, {}});
            addAttributes(open.back().place, reader.attributes());
        } else if (token == QXmlStreamReader::Characters && depth <= kDeepest && !open.empty()) {
            open.back().text += reader.text();
        } else if (token == QXmlStreamReader::EndElement && depth-- <= kDeepest) {
            add(open.back().place, open.back().text);
            m_allText += open.back().text.trimmed() + QChar(u'\n');
            open.pop_back();
        }
    }
    m_allText = m_allText.simplified();
}

void XmlTexts::addAttributes(const QString& element, const QXmlStreamAttributes& attributes)
{
    for (const QXmlStreamAttribute& attribute : attributes) {
        add(element + QChar(u'@') + attribute.qualifiedName().left(kLongestName).toString(),
            attribute.value().toString());
    }
}

QString XmlTexts::firstOf(std::initializer_list<QLatin1String> places) const
{
    for (const QLatin1String place : places) {
        QString text = at(place);
        if (!text.isEmpty()) {
            return text;
        }
    }
    return {};
}

void XmlTexts::add(const QString& place, const QString& text)
{
    const QString trimmed = text.trimmed();
    if (!trimmed.isEmpty() && !m_texts.contains(place)) {
        m_texts.insert(place, trimmed);
    }
}

// Not readElementText: that calls itself for each element within, and messages come from strangers.
QString elementText(QXmlStreamReader& reader)
{
    QString text;
    for (std::size_t depth = 1; depth > 0 && !reader.atEnd();) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::StartElement) {
            ++depth;
        } else if (token == QXmlStreamReader::EndElement) {
            --depth;
        } else if (token == QXmlStreamReader::Characters) {
            text += reader.text();
        }
    }
    return text;
}

bool looksLikeXml(const QString& text)
{
    static const QRegularExpression start(QStringLiteral("^\\s*<[?!A-Za-z]"));
    return start.match(text).hasMatch();
}

QString withoutTags(const QString& text)
{
    if (!text.contains(QChar(u'<')) && !text.contains(QChar(u'&'))) {
        return text.trimmed();
    }
    static const QRegularExpression opening(QStringLiteral("<!\\[CDATA\\[|\\]\\]>"));
    static const QRegularExpression tag(QStringLiteral("</?[A-Za-z][^<>]*>|<[?!][^<>]*>"));
    QString plain = text;
    plain.remove(opening).remove(tag);
    for (const Entity& entity : kEntities) {
        plain.replace(entity.written, QString(QChar(entity.character)));
    }
    return plain.trimmed();
}

} // namespace backup
