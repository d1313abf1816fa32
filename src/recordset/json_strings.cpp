// SPDX-License-Identifier: MIT
#include "recordset/json_strings.h"

#include <array>
#include <cstdio>

namespace recordset {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool isAloneAt(const QString& text, int at)
{
    const QChar unit = text.at(at);
    if (unit.isHighSurrogate()) {
        return at + 1 == text.size() || !text.at(at + 1).isLowSurrogate();
    }
    return unit.isLowSurrogate() && (at == 0 || !text.at(at - 1).isHighSurrogate());
}

void appendControl(std::string& out, char control)
{
    std::array<char, 8> escape{};
    std::snprintf(escape.data(), escape.size(), "\\u%04x", static_cast<unsigned>(control));
    out += escape.data();
}

void appendEscape(std::string& out, char character)
{
    switch (character) {
    case '"':
        out += "\\\"";
        break;
    case '\\':
        out += "\\\\";
        break;
    case '\n':
        out += "\\n";
        break;
    case '\r':
        out += "\\r";
        break;
    case '\t':
        out += "\\t";
        break;
    default:
        appendControl(out, character);
    }
}

bool needsEscape(char character)
{
    return static_cast<unsigned char>(character) < 0x20 || character == '"' || character == '\\';
}

} // namespace

QString textFrom(std::string_view utf8)
{
    QString text;
    while (utf8.starts_with(kByteOrderMark)) {
        text += QChar(QChar::ByteOrderMark);
        utf8.remove_prefix(kByteOrderMark.size());
    }
    return text + QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

QString wellFormed(QString text)
{
    for (int at = 0; at < text.size(); ++at) {
        if (text.at(at).isSurrogate() && isAloneAt(text, at)) {
            text[at] = QChar::ReplacementCharacter;
        }
    }
    return text;
}

void appendJsonString(std::string& out, std::string_view utf8)
{
    out += '"';
    for (const char character : utf8) {
        if (needsEscape(character)) {
            appendEscape(out, character);
        } else {
            out += character;
        }
    }
    out += '"';
}

} // namespace recordset
