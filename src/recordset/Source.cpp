// SPDX-License-Identifier: MIT
#include "recordset/Source.h"

#include "platform/literals.h"
#include "recordset/json_strings.h"

#include <QStringList>

#include <algorithm>

namespace recordset {

namespace {

constexpr int kShownCharacters = 40;

QString quoted(const QString& text)
{
    const bool isLong = text.size() > kShownCharacters;
    const QByteArray shown = wellFormed(text.left(kShownCharacters)).toUtf8();
    std::string json;
    appendJsonString(json, {shown.constData(), static_cast<std::size_t>(shown.size())});
    return textFrom(json) + (isLong ? "..."_L1 : ""_L1);
}

QString described(const Json& value)
{
    if (value.is_object()) {
        return "an object"_L1;
    }
    if (value.is_array()) {
        return "a list"_L1;
    }
    if (value.is_string()) {
        return quoted(textFrom(value.get_ref<const std::string&>()));
    }
    return QString::fromStdString(value.dump());
}

bool isKnown(std::string_view key, std::initializer_list<Keys> known)
{
    return std::ranges::any_of(
        known, [key](Keys keys) { return std::ranges::find(keys, key) != keys.end(); });
}

QString listed(std::initializer_list<Keys> known)
{
    QStringList names;
    for (const Keys keys : known) {
        for (const std::string_view key : keys) {
            names.append(textFrom(key));
        }
    }
    return names.join(", "_L1);
}

} // namespace

QString pointerStep(std::string_view token)
{
    QString step = textFrom(token);
    step.replace("~"_L1, "~0"_L1).replace("/"_L1, "~1"_L1);
    return "/"_L1 + step;
}

const Json* Source::find(std::string_view key) const
{
    const auto found = m_json.find(key);
    return found != m_json.end() ? &*found : nullptr;
}

Source Source::member(const Json& value, std::string_view key) const
{
    return {value, *this, key, kNoIndex};
}

Source Source::at(std::size_t index) const
{
    return {m_json[index], *this, {}, index};
}

bool Source::fail(const QString& what) const
{
    return failAt(pointer(), what);
}

bool Source::expected(const QString& what) const
{
    return fail(QStringLiteral("expected %1, found %2").arg(what, described(m_json)));
}

bool Source::lacks(std::string_view key, const QString& expectation) const
{
    return failAt(pointer() + pointerStep(key),
        QStringLiteral("expected %1, found no such key").arg(expectation));
}

bool Source::isObject() const
{
    return m_json.is_object() || expected("an object"_L1);
}

bool Source::isList() const
{
    return m_json.is_array() || expected("a list"_L1);
}

bool Source::hasOnly(std::initializer_list<Keys> known) const
{
    for (const auto& [key, value] : m_json.items()) {
        if (!isKnown(key, known)) {
            return failAt(
                pointer() + pointerStep(key), "unknown key, expected one of: "_L1 + listed(known));
        }
    }
    return true;
}

QString Source::pointer() const
{
    if (m_parent == nullptr) {
        return {};
    }
    return m_parent->pointer()
           + (m_index == kNoIndex ? pointerStep(m_key) : "/"_L1 + QString::number(m_index));
}

bool Source::failAt(const QString& pointer, const QString& what) const
{
    if (!m_reading.fault) {
        m_reading.fault = Fault{.pointer = pointer, .what = what};
    }
    return false;
}

} // namespace recordset
