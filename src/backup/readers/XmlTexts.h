// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>

#include <QLatin1String>
#include <initializer_list>

class QXmlStreamAttributes;
class QXmlStreamReader;

namespace backup {

/// The texts and attributes of an XML document by their places: "msg/appmsg/title",
/// "msg/location@x". Of several at one place the first counts. Damaged XML reads as far as it goes.
class XmlTexts {
public:
    explicit XmlTexts(const QString& xml);

    /// Trimmed; empty where there is none.
    QString at(QLatin1String place) const { return m_texts.value(place); }
    /// The same at the first of the places that has one.
    QString firstOf(std::initializer_list<QLatin1String> places) const;
    /// All texts outside of attributes on one line, each element's behind those within it.
    const QString& allText() const { return m_allText; }

private:
    void addAttributes(const QString& element, const QXmlStreamAttributes& attributes);
    void add(const QString& place, const QString& text);

    QHash<QString, QString> m_texts;
    QString m_allText;
};

/// The text of the element that `reader` has just begun, with that of all elements within it,
/// however deep they lie. The reader stands at its end then.
QString elementText(QXmlStreamReader& reader);

/// Whether a text is XML from its first character on that is none of a blank.
bool looksLikeXml(const QString& text);

/// A text without the tags in it, and with characters in place of entities. What only looks like a
/// tag ("a < b") stays.
QString withoutTags(const QString& text);

} // namespace backup
