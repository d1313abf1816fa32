// SPDX-License-Identifier: MIT
#include "recordset/JsonTree.h"

#include "platform/literals.h"

namespace recordset {

namespace {

// The open values around a record: the document, its sets, a set, its records.
constexpr std::size_t kLevelsAroundRecord = 4;

// "[json.exception.parse_error.101] parse error at line 1, column 2: syntax error while ...": what
// follows the place, or the bracket where there is no place.
std::string clauseOf(const std::string& message)
{
    const std::size_t column = message.find(", column ");
    const std::string_view before = column == std::string::npos ? "] " : ": ";
    const std::size_t start = message.find(before, column == std::string::npos ? 0 : column);
    return start == std::string::npos ? message : message.substr(start + before.size());
}

} // namespace

bool JsonTree::key(string_t& name)
{
    Level& level = m_levels.back();
    level.key = std::move(name);
    if (!level.value->contains(level.key)) {
        return true;
    }
    m_reading.fault = Fault{.pointer = pointer(),
        .what = "expected each key of an object once, found this one again"_L1};
    return false;
}

bool JsonTree::parse_error(std::size_t position, const std::string& /*lastToken*/,
    const nlohmann::detail::exception& error)
{
    m_syntaxError = SyntaxError{.byte = position, .text = clauseOf(error.what())};
    return false;
}

// Values below an open one stay where they are: only the innermost list grows.
Json& JsonTree::place(Json value)
{
    if (m_levels.empty()) {
        m_root = std::move(value);
        return m_root;
    }
    Level& level = m_levels.back();
    if (level.value->is_array()) {
        level.value->push_back(std::move(value));
        return level.value->back();
    }
    return (*level.value)[level.key] = std::move(value);
}

bool JsonTree::scalar(Json value)
{
    return complete(place(std::move(value)));
}

bool JsonTree::open(Json value)
{
    m_levels.push_back({.value = &place(std::move(value)), .key = {}});
    return true;
}

bool JsonTree::close()
{
    Json& value = *m_levels.back().value;
    m_levels.pop_back();
    return complete(value);
}

bool JsonTree::complete(Json& value)
{
    const bool isRecord = m_levels.size() == kLevelsAroundRecord && m_levels[0].key == "sets"
                          && m_levels[1].value->is_array() && m_levels[2].key == "records"
                          && m_levels[3].value->is_array();
    return !isRecord
           || m_onRecord(value, m_levels[1].value->size() - 1, m_levels[3].value->size() - 1);
}

// Of the key that is being read.
QString JsonTree::pointer() const
{
    QString pointer;
    for (const Level& level : m_levels) {
        pointer += level.value->is_array() ? "/"_L1 + QString::number(level.value->size() - 1)
                                           : pointerStep(level.key);
    }
    return pointer;
}

} // namespace recordset
