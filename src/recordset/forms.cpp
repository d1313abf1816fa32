// SPDX-License-Identifier: MIT
#include "recordset/forms.h"

#include "platform/literals.h"
#include "recordset/iso_date.h"
#include "recordset/json_strings.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <array>
#include <limits>

namespace recordset::forms {

namespace {

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kMost = std::numeric_limits<int>::max();

// Null, with a fault noted, where the value is no string.
const std::string* stringOf(const Source& source)
{
    const auto* text = source.json().get_ptr<const std::string*>();
    if (text == nullptr) {
        source.expected("a string"_L1);
    }
    return text;
}

QByteArray bytesOf(const std::string& text)
{
    return {text.data(), static_cast<int>(text.size())};
}

bool isLetter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool isOfScheme(char character)
{
    return isLetter(character) || (character >= '0' && character <= '9') || character == '+'
           || character == '-' || character == '.';
}

// "http://", "FTP://": a scheme as URIs have it, and what must follow.
bool isAddress(std::string_view text)
{
    const std::string_view scheme = text.substr(0, text.find("://"));
    return scheme.size() < text.size() && !scheme.empty() && isLetter(scheme.front())
           && std::ranges::all_of(scheme, isOfScheme);
}

bool readText(const Source& source, QByteArray& bytes)
{
    const std::string* text = stringOf(source);
    if (text != nullptr) {
        bytes = bytesOf(*text);
    }
    return text != nullptr;
}

bool readBase64(const Source& source, QByteArray& bytes)
{
    const std::string* text = stringOf(source);
    if (text == nullptr) {
        return false;
    }
    const auto decoded = QByteArray::fromBase64Encoding(
        bytesOf(*text), QByteArray::Base64Encoding | QByteArray::AbortOnBase64DecodingErrors);
    // The decoder lets a group go that is cut off.
    if (!decoded || text->size() % 4 != 0) {
        return source.expected("base64"_L1);
    }
    bytes = *decoded;
    return true;
}

bool readFile(const Source& source, QByteArray& bytes)
{
    QString path;
    if (!Path::read(source, path)) {
        return false;
    }
    QFile file(path);
    if (file.open(QFile::ReadOnly)) {
        bytes = file.readAll();
        // More than a QByteArray can hold reads as nothing.
        if (file.error() == QFile::NoError && bytes.size() >= file.size()) {
            return true;
        }
    }
    const QString reason =
        file.error() != QFile::NoError ? file.errorString() : "it is too large"_L1;
    return source.expected(QStringLiteral("a file that can be read (%1)").arg(reason));
}

struct BytesRow {
    std::string_view key;
    bool (*read)(const Source& source, QByteArray& bytes);
};

constexpr std::array kBytesForms{
    BytesRow{"text", readText},
    BytesRow{"base64", readBase64},
    BytesRow{"file", readFile},
};
constexpr std::array<std::string_view, 3> kBytesKeys{"text", "base64", "file"};

} // namespace

bool Flag::read(const Source& source, bool& truth)
{
    const auto* value = source.json().get_ptr<const bool*>();
    if (value == nullptr) {
        return source.expected("true or false"_L1);
    }
    truth = *value;
    return true;
}

bool Integer::read(const Source& source, int& number)
{
    const Json& json = source.json();
    const bool fits = json.is_number_unsigned()
                          ? json.get<std::uint64_t>() <= static_cast<std::uint64_t>(kMost)
                          : json.is_number_integer() && json.get<std::int64_t>() >= kLeast;
    if (!fits) {
        return source.expected(
            QStringLiteral("a whole number from %1 to %2").arg(kLeast).arg(kMost));
    }
    number = json.get<int>();
    return true;
}

bool Text::read(const Source& source, QString& text)
{
    const std::string* value = stringOf(source);
    if (value != nullptr) {
        text = textFrom(*value);
    }
    return value != nullptr;
}

bool Path::read(const Source& source, QString& path)
{
    const std::string* value = stringOf(source);
    if (value == nullptr) {
        return false;
    }
    path = textFrom(*value);
    if (path.isEmpty() || isAddress(*value)) {
        return true;
    }
    path =
        QDir::cleanPath(path.startsWith(QChar(u'/')) ? path : source.folder() + QChar(u'/') + path);
    return true;
}

void Path::write(const QString& path, JsonText& out)
{
    const QByteArray utf8 = path.toUtf8();
    const bool stays =
        path.isEmpty() || isAddress({utf8.constData(), static_cast<std::size_t>(utf8.size())});
    out.text(stays ? path : QDir::cleanPath(QDir::current().absoluteFilePath(path)));
}

bool Date::read(const Source& source, QDateTime& moment)
{
    const std::string* value = stringOf(source);
    if (value == nullptr) {
        return false;
    }
    const std::optional<QDateTime> read = momentFrom(*value);
    if (!read) {
        return source.expected("a date and time of ISO 8601 such as 2024-05-01T12:30:00Z"_L1);
    }
    moment = *read;
    return true;
}

bool Date::same(const QDateTime& one, const QDateTime& other)
{
    return one.isValid() == other.isValid() && one == other;
}

void Date::write(const QDateTime& moment, JsonText& out)
{
    out.text(isoText(moment));
}

bool Bytes::read(const Source& source, QByteArray& bytes)
{
    if (!source.isObject()) {
        return false;
    }
    if (source.json().size() != 1) {
        return source.fail(
            QStringLiteral("expected exactly one of the keys text, base64, file, found %1 keys")
                .arg(source.json().size()));
    }
    for (const BytesRow& row : kBytesForms) {
        if (const Json* value = source.find(row.key)) {
            return row.read(source.member(*value, row.key), bytes);
        }
    }
    return source.hasOnly({kBytesKeys});
}

void Bytes::write(const QByteArray& bytes, JsonText& out)
{
    const std::string_view view{bytes.constData(), static_cast<std::size_t>(bytes.size())};
    out.openObject();
    if (textFrom(view).toUtf8() == bytes) {
        out.key("text");
        out.utf8(bytes);
    } else {
        out.key("base64");
        out.utf8(bytes.toBase64());
    }
    out.closeObject();
}

bool TextList::read(const Source& source, QStringList& texts)
{
    if (!source.isList()) {
        return false;
    }
    texts.clear(); // of the default
    for (std::size_t index = 0; index < source.json().size(); ++index) {
        QString text;
        if (!Text::read(source.at(index), text)) {
            return false;
        }
        texts.append(text);
    }
    return true;
}

void TextList::write(const QStringList& texts, JsonText& out)
{
    out.openList();
    for (const QString& text : texts) {
        out.text(text);
    }
    out.closeList();
}

bool TextMap::read(const Source& source, QMap<QString, QString>& texts)
{
    if (!source.isObject()) {
        return false;
    }
    for (const auto& [key, value] : source.json().items()) {
        if (!Text::read(source.member(value, key), texts[textFrom(key)])) {
            return false;
        }
    }
    return true;
}

void TextMap::write(const QMap<QString, QString>& texts, JsonText& out)
{
    // Keys that differ in nothing but surrogates without a partner must not become one.
    QMap<QString, QString> written;
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        QString key = wellFormed(text.key());
        while (written.contains(key)) {
            key += QChar(QChar::ReplacementCharacter);
        }
        written.insert(key, text.value());
    }
    out.openObject();
    for (auto text = written.cbegin(); text != written.cend(); ++text) {
        out.textKey(text.key());
        out.text(text.value());
    }
    out.closeObject();
}

} // namespace recordset::forms
