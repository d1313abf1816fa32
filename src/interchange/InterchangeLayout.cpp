// SPDX-License-Identifier: MIT
#include "interchange/InterchangeLayout.h"

#include "model/PRContactItem.h"

namespace {

constexpr QLatin1String kWrapperStart = "_$!<"_L1;

QString folderPath(const InterchangeLayout& layout, const QString& categoryName)
{
    return categoryName + QChar(u'/') + layout.folder;
}

} // namespace

bool isWrappedLabel(const QString& text)
{
    return text.contains(kWrapperStart);
}

// The mark alone decides: a text that merely holds it loses eight characters of its own.
QString unwrapLabel(QString text)
{
    if (isWrappedLabel(text)) {
        text.chop(kWrapperStart.size());
        text.remove(0, kWrapperStart.size());
    }
    return text;
}

QString labelOrType(const PRContactProperty& property)
{
    const QString& label = property.propLabel();
    return label.isEmpty() ? QString::number(property.propType()) : label;
}

QString InterchangeLayout::escapeValue(const QString& text) const
{
    QString escaped = text;
    escaped.replace(QChar(u'\\'), R"(\\)"_L1);
    escaped.replace(QChar(u';'), R"(\;)"_L1);
    return unwrapsLabels ? unwrapLabel(escaped) : escaped;
}

QString InterchangeLayout::mapLabel(QLatin1String family, const QString& label) const
{
    return mappedLabel(labels, family, label);
}

// An unknown label is unwrapped twice, as it is escaped on the way: one wrapper in another goes.
QString InterchangeLayout::displayLabel(QLatin1String family, const QString& label) const
{
    const QString word = mapLabel(family, label);
    const QString shown = word.isEmpty() ? escapeValue(label) : word;
    return unwrapsLabels ? unwrapLabel(shown) : shown;
}

QString InterchangeLayout::subValue(const PRContactProperty& property, QLatin1String key) const
{
    const QString value = property.propValueEntry().value(key);
    return unwrapsLabels ? unwrapLabel(value) : value;
}

// The rule is on the high four bits of the first UTF-8 byte of each UTF-16 unit: 0, 1 and 2 drop
// it. Only ASCII has those.
QString InterchangeLayout::cleanAddressText(const QString& text) const
{
    QString clean;
    clean.reserve(text.size());
    for (const QChar unit : text) {
        if (unit == QChar(u'\v')) {
            clean += verticalTab;
        } else if (unit.unicode() >= 0x30) {
            clean += unit;
        }
    }
    return clean;
}

bool InterchangeLayout::makeFolder(const QDir& dir, const QString& categoryName) const
{
    const QString path = folderPath(*this, categoryName);
    return dir.exists(path) || dir.mkpath(path);
}

// Filled place after place: a %4 in the owner's name is filled with the category.
QString InterchangeLayout::filePath(const QDir& dir, const QString& ownerName,
    const QString& categoryName, const QString& purpose) const
{
    return QString(fileName)
        .arg(dir.path())
        .arg(folderPath(*this, categoryName))
        .arg(ownerName)
        .arg(categoryName)
        .arg(purpose);
}
