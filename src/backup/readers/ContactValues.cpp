// SPDX-License-Identifier: MIT
//   ABMultiValue          UID, record_id -> ABPerson, property: the kind, identifier: its order,
//                         label -> ABMultiValueLabel, value: NULL where it is made of entries
//   ABMultiValueEntry     parent_id -> ABMultiValue, key -> ABMultiValueEntryKey, value
//   ABMultiValueLabel, ABMultiValueEntryKey   value; known by their implicit row numbers
#include "backup/readers/ContactValues.h"

#include "backup/readers/contact_date.h"
#include "backup/readers/contact_name.h"
#include "backup/readers/sorted_rows.h"
#include "platform/literals.h"

#include <QSet>

#include <algorithm>
#include <array>
#include <tuple>

namespace backup {

namespace {

constexpr int kTone = 16; // the tone of a card: names a file of the phone

// Releases differ in the capitals of these keys.
constexpr std::array kKeys{"Street"_L1, "SubLocality"_L1, "City"_L1, "SubAdministrativeArea"_L1,
    "State"_L1, "ZIP"_L1, "Country"_L1, "CountryCode"_L1, "service"_L1, "username"_L1, "url"_L1,
    "identifier"_L1, "displayname"_L1};

// The key under which the kind keeps what stands as one text; empty for a kind that is one text.
QString mainKey(int kind)
{
    switch (kind) {
    case Address:
        return QStringLiteral("Street");
    case InstantMessage:
    case SocialProfile:
        return QStringLiteral("username");
    default:
        return {};
    }
}

bool isPlain(int kind)
{
    return kind == Phone || kind == Email || kind == Date || kind == WebAddress
           || kind == RelatedName;
}

QHash<qint64, QString> readTexts(const TableReader& store, const QString& table)
{
    QHash<qint64, QString> texts;
    const std::array columns{WantedColumn{"value"_L1, true}};
    store.read(table, columns,
        [&](const formats::Statement& row) { texts.insert(row.integer(1), row.text(0)); });
    return texts;
}

QString digitsOf(const QString& phone)
{
    QString digits;
    std::ranges::copy_if(phone, std::back_inserter(digits),
        [](QChar c) { return c.isDigit() || c == QChar(u'+') || c == QChar(u'*'); });
    return digits;
}

// Two values of one kind that show the same have the same signature.
QString signature(const ContactProperty& property)
{
    QString text = property.value.simplified().toCaseFolded();
    if (property.type == Phone && !digitsOf(text).isEmpty()) {
        text = digitsOf(text);
    }
    QStringList parts{QString::number(property.type), text};
    for (auto part = property.entry.begin(); part != property.entry.end(); ++part) {
        parts << part.key() << part.value();
    }
    return parts.join(QChar(u'\0'));
}

// Adds what the cards before do not have; `known` are the signatures of what they have.
void addNew(std::vector<ContactProperty> properties, QSet<QString>& known,
    std::vector<ContactProperty>& all)
{
    QSet<QString> own;
    for (ContactProperty& property : properties) {
        const QString shown = signature(property);
        own.insert(shown);
        if (!known.contains(shown)) {
            all.push_back(std::move(property));
        }
    }
    known.unite(own);
}

} // namespace

void ContactValues::read()
{
    if (m_isRead) {
        return;
    }
    m_isRead = true;
    m_labels = readTexts(m_store, "ABMultiValueLabel"_L1);
    readValues();
    readParts();
    std::ranges::sort(m_values, {}, [](const Value& value) {
        return std::tuple(value.card, value.kind, value.place, value.id);
    });
    std::ranges::stable_sort(m_parts, {}, &Part::value);
}

void ContactValues::readValues()
{
    enum Column : int { CardColumn, KindColumn, PlaceColumn, IdColumn, LabelColumn, TextColumn };
    const std::array columns{WantedColumn{"record_id"_L1, true}, WantedColumn{"property"_L1, true},
        WantedColumn{"identifier"_L1}, WantedColumn{"UID|rowid"_L1}, WantedColumn{"label"_L1, true},
        WantedColumn{"value"_L1, true}};
    m_store.read("ABMultiValue"_L1, columns, [&](const formats::Statement& row) {
        const qint64 kind = row.integer(KindColumn);
        if (kind <= 0 || kind > INT32_MAX || kind == kTone) {
            return;
        }
        m_values.push_back({.card = row.integer(CardColumn),
            .kind = static_cast<int>(kind),
            .place = row.integer(PlaceColumn),
            .id = row.integer(IdColumn),
            .label = row.integer(LabelColumn),
            .text = keep(row.textView(TextColumn))});
    });
}

void ContactValues::readParts()
{
    m_keys = readTexts(m_store, "ABMultiValueEntryKey"_L1);
    for (QString& key : m_keys) {
        const auto* const known = std::ranges::find_if(
            kKeys, [&](QLatin1String name) { return key.compare(name, Qt::CaseInsensitive) == 0; });
        if (known != kKeys.end()) {
            key = *known;
        }
    }
    const std::array columns{WantedColumn{"parent_id"_L1, true}, WantedColumn{"key"_L1, true},
        WantedColumn{"value"_L1, true}};
    m_store.read("ABMultiValueEntry"_L1, columns, [&](const formats::Statement& row) {
        const std::string_view text = row.textView(2);
        if (!text.empty()) {
            m_parts.push_back({.value = row.integer(0), .key = row.integer(1), .text = keep(text)});
        }
    });
}

ContactValues::Text ContactValues::keep(std::string_view text)
{
    const Text kept{.at = m_texts.size(), .size = text.size()};
    m_texts += text;
    return kept;
}

QString ContactValues::textOf(const Text& text) const
{
    const QString decoded =
        QString::fromUtf8(m_texts.data() + text.at, static_cast<int>(text.size));
    return withPlainLineEnds(withoutMarks(decoded));
}

QMap<QString, QString> ContactValues::partsOf(qint64 value) const
{
    QMap<QString, QString> parts;
    for (const Part& part : rowsWith(m_parts, value, &Part::value)) {
        const QString key = m_keys.value(part.key);
        if (!key.isEmpty() && !parts.contains(key)) {
            parts.insert(key, textOf(part.text));
        }
    }
    return parts;
}

// None for a value that holds nothing.
std::optional<ContactProperty> ContactValues::property(const Value& value) const
{
    ContactProperty property{
        .type = value.kind, .label = m_labels.value(value.label), .value = textOf(value.text)};
    if (value.kind == Date) {
        property.value = contactDate(property.value);
    }
    if (!isPlain(value.kind)) {
        property.entry = partsOf(value.id);
    }
    const QString key = mainKey(value.kind);
    if (!key.isEmpty() && property.entry.isEmpty() && !property.value.isEmpty()) {
        property.entry.insert(key, property.value);
        property.value.clear();
    }
    if (property.value.isEmpty() && property.entry.isEmpty()) {
        return std::nullopt;
    }
    return property;
}

std::vector<ContactProperty> ContactValues::propertiesOf(qint64 card) const
{
    std::vector<ContactProperty> properties;
    for (const Value& value : rowsWith(m_values, card, &Value::card)) {
        std::optional<ContactProperty> found = property(value);
        if (found) {
            properties.push_back(std::move(*found));
        }
    }
    return properties;
}

std::vector<PRContactProperty> ContactValues::of(std::span<const qint64> cards)
{
    read();
    std::vector<ContactProperty> all;
    QSet<QString> known;
    for (const qint64 card : cards) {
        addNew(propertiesOf(card), known, all);
    }
    std::ranges::stable_sort(all, {}, &ContactProperty::type);
    std::vector<PRContactProperty> properties;
    properties.reserve(all.size());
    for (ContactProperty& found : all) {
        properties.emplace_back(std::move(found));
    }
    return properties;
}

QString ContactValues::first(qint64 card, PropType kind)
{
    read();
    for (const Value& value : rowsWith(m_values, card, &Value::card)) {
        const auto found = value.kind == kind ? property(value) : std::nullopt;
        if (found) {
            return found->value.simplified();
        }
    }
    return {};
}

} // namespace backup
