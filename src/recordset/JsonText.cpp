// SPDX-License-Identifier: MIT
// {
//   "recordSet": 1,
//   "sets": [
//     {"dataType": 0, "records": [
//       {"values": ["Ben"], "chats": [
//         {"fromMe": true, "content": "Hi", "pieces": [{"type": "image/png"}]},
//         {"content": "Ho"}
//       ]}
//     ]}
//   ]
// }
#include "recordset/JsonText.h"

#include "recordset/json_strings.h"

#include <utility>

namespace recordset {

namespace {

constexpr std::size_t kBlanksOfIndent = 2;

// Document, sets, records, and the items of a record.
constexpr std::size_t kLevelsWithLines = 4;

std::string_view viewOf(const QByteArray& bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

} // namespace

void JsonText::openItems()
{
    open('[', m_indent < kLevelsWithLines);
}

void JsonText::key(std::string_view name)
{
    separate();
    appendJsonString(m_text, name);
    m_text += ": ";
    m_afterKey = true;
}

void JsonText::textKey(const QString& name)
{
    key(viewOf(wellFormed(name).toUtf8()));
}

void JsonText::text(const QString& text)
{
    utf8(wellFormed(text).toUtf8());
}

void JsonText::number(int number)
{
    separate();
    m_text += std::to_string(number);
}

void JsonText::truth(bool truth)
{
    separate();
    m_text += truth ? "true" : "false";
}

void JsonText::utf8(const QByteArray& text)
{
    separate();
    appendJsonString(m_text, viewOf(text));
}

std::string JsonText::take()
{
    return std::exchange(m_text, {});
}

void JsonText::open(char bracket, bool lines)
{
    separate();
    m_text += bracket;
    m_levels.push_back({.lines = lines});
    m_indent += lines ? 1 : 0;
}

void JsonText::close(char bracket)
{
    const Level level = m_levels.back();
    m_levels.pop_back();
    if (level.lines) {
        --m_indent;
        if (!level.empty) {
            startLine();
        }
    }
    m_text += bracket;
    if (m_levels.empty()) {
        m_text += '\n';
    }
}

void JsonText::separate()
{
    if (std::exchange(m_afterKey, false) || m_levels.empty()) {
        return;
    }
    Level& level = m_levels.back();
    if (!level.empty) {
        m_text += level.lines ? "," : ", ";
    }
    if (level.lines) {
        startLine();
    }
    level.empty = false;
}

void JsonText::startLine()
{
    m_text += '\n';
    m_text.append(m_indent * kBlanksOfIndent, ' ');
}

} // namespace recordset
