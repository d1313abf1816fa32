// SPDX-License-Identifier: MIT
#include "formats/TypedstreamDecoder.h"

#include "formats/typedstream_values.h"

#include <algorithm>
#include <charconv>
#include <utility>

// The grammar. "new" is 84, "nil" 85, "end" 86; a reference is a signed integer, of which -110
// (byte 92) names the first entry of its table.
//
//   stream  = 04, 0B "streamtyped", 81 E8 03, group of "@"
//   group   = string with type characters, then a value for each
//   string  = new, length, bytes | reference to a string | nil
//   object  = new, class, groups, end | reference to an entry | nil
//   class   = new, string with the name, version, class above | reference to an entry | nil
//   text    = new, string | reference to an entry | nil
//
// Strings have a table of their own. Objects, classes and texts share the other one; an object is
// entered before its class, and a class before the one above it.
//
//   type    value
//   @ #     object, class
//   *       text
//   % :     string
//   +       length, bytes
//   c C B   one byte
//   sSiIlLqQ  integer: the byte itself, or 81 and 2 bytes, or 82 and 4 bytes
//   f d     83 and 4 or 8 bytes, or an integer
//   [Nt]    N values of type t
//   {n=t..} the members, in order
namespace formats {

namespace {

constexpr std::string_view kHeader = "\x04\x0Bstreamtyped\x81\xE8\x03";
constexpr qint64 kFirstReference = -110;

// A text with its attributes nests five deep.
constexpr int kMaxDepth = 64;
// A value that is read costs a step. Most take a byte at least; arrays of empty structures and
// long type strings do not, and shall not keep us.
constexpr std::size_t kStepsPerByte = 32;

class Deeper {
public:
    explicit Deeper(int& depth) : m_depth(depth) { ++m_depth; }
    ~Deeper() { --m_depth; }
    Deeper(const Deeper&) = delete;
    Deeper& operator=(const Deeper&) = delete;
    Deeper(Deeper&&) = delete;
    Deeper& operator=(Deeper&&) = delete;

private:
    int& m_depth;
};

bool isByteType(char type)
{
    return type == 'c' || type == 'C' || type == 'B';
}

template <typename Number, typename Value>
bool keep(std::vector<TypedstreamValue>& values, const std::optional<Value>& value)
{
    if (value) {
        values.emplace_back(static_cast<Number>(*value));
    }
    return value.has_value();
}

} // namespace

TypedstreamDecoder::TypedstreamDecoder(std::span<const unsigned char> bytes)
    : m_size(bytes.size()), m_cursor(bytes), m_steps(bytes.size() * kStepsPerByte)
{
}

std::optional<TypedstreamObject> TypedstreamDecoder::readRoot()
{
    if (!m_cursor.pass(kHeader) || readString() != "@" || !m_cursor.pass(kTypedstreamNew)) {
        return std::nullopt;
    }
    return readNewObject();
}

std::optional<std::size_t> TypedstreamDecoder::readReference(std::size_t tableSize)
{
    const auto number = m_cursor.signedInteger();
    if (!number || *number < kFirstReference) {
        return std::nullopt;
    }
    const auto index = static_cast<std::size_t>(*number - kFirstReference);
    return index < tableSize ? std::optional(index) : std::nullopt;
}

std::optional<std::string_view> TypedstreamDecoder::readString()
{
    if (m_cursor.pass(kTypedstreamNil)) {
        return std::string_view();
    }
    if (!m_cursor.pass(kTypedstreamNew)) {
        const auto index = readReference(m_strings.size());
        return index ? std::optional(m_strings[*index]) : std::nullopt;
    }
    const auto size = m_cursor.unsignedInteger();
    const auto bytes = size ? m_cursor.take(*size) : std::nullopt;
    if (bytes) {
        m_strings.push_back(*bytes);
    }
    return bytes;
}

std::optional<std::string_view> TypedstreamDecoder::readText()
{
    if (m_cursor.pass(kTypedstreamNil)) {
        return std::string_view();
    }
    if (!m_cursor.pass(kTypedstreamNew)) {
        const auto index = readReference(m_entries.size());
        return index && m_entries[*index].kind == Entry::Text
                   ? std::optional(m_entries[*index].text)
                   : std::nullopt;
    }
    const auto text = readString();
    if (text) {
        m_entries.push_back({.kind = Entry::Text, .text = *text});
    }
    return text;
}

// `found` is none for nil.
bool TypedstreamDecoder::readClass(std::optional<std::size_t>& found)
{
    std::optional<std::size_t> below;
    found.reset();
    while (m_cursor.pass(kTypedstreamNew)) {
        const std::size_t index = m_entries.size();
        m_entries.push_back({.kind = Entry::Class});
        if (below) {
            m_entries[*below].up = index;
        }
        found = found ? found : index;
        below = index;
        const auto name = readString();
        if (!name || !m_cursor.signedInteger()) {
            return false;
        }
        m_entries[index].text = *name;
    }
    if (m_cursor.pass(kTypedstreamNil)) {
        return true;
    }
    const auto known = readReference(m_entries.size());
    if (!known || m_entries[*known].kind != Entry::Class) {
        return false;
    }
    if (below) {
        m_entries[*below].up = known;
    }
    found = found ? found : known;
    return true;
}

std::optional<QVariant> TypedstreamDecoder::readObject()
{
    if (m_cursor.pass(kTypedstreamNil)) {
        return QVariant();
    }
    if (!m_cursor.pass(kTypedstreamNew)) {
        const auto index = readReference(m_entries.size());
        if (!index || m_entries[*index].kind != Entry::Object
            || m_depth + m_entries[*index].height > kMaxDepth) {
            return std::nullopt;
        }
        m_height = std::max(m_height, m_entries[*index].height + 1);
        return m_entries[*index].value; // invalid for an object that contains itself
    }
    const std::size_t index = m_entries.size();
    const int heightBeside = std::exchange(m_height, 0);
    const auto object = readNewObject();
    auto value = object ? valueOfObject(*object) : std::nullopt;
    if (value) {
        m_entries[index].value = *value;
        m_entries[index].height = m_height;
    }
    m_height = std::max(heightBeside, m_height + 1);
    return value;
}

// What follows the byte for "new".
std::optional<TypedstreamObject> TypedstreamDecoder::readNewObject()
{
    const Deeper deeper(m_depth);
    m_entries.push_back({.kind = Entry::Object});
    std::optional<std::size_t> ofClass;
    if (m_depth > kMaxDepth || !readClass(ofClass) || !ofClass) {
        return std::nullopt;
    }
    TypedstreamObject object{.classes = classNames(*ofClass), .values = {}};
    while (m_cursor.peek() != kTypedstreamEnd) {
        if (!readGroup(object.values)) {
            return std::nullopt;
        }
    }
    return m_cursor.pass(kTypedstreamEnd) ? std::optional(std::move(object)) : std::nullopt;
}

// A damaged stream may name a class as its own superclass: no chain is followed for long.
std::vector<std::string_view> TypedstreamDecoder::classNames(std::size_t entry) const
{
    std::vector<std::string_view> names;
    std::optional<std::size_t> next = entry;
    while (next && names.size() < kMaxDepth) {
        names.push_back(m_entries[*next].text);
        next = m_entries[*next].up;
    }
    return names;
}

bool TypedstreamDecoder::readGroup(Values& values)
{
    const auto found = readString();
    if (!found || found->empty()) {
        return false;
    }
    std::string_view types = *found;
    while (!types.empty()) {
        if (!readType(types, values)) {
            return false;
        }
    }
    return true;
}

// Reads a value of the first of `types`, which is taken off.
bool TypedstreamDecoder::readType(std::string_view& types, Values& values)
{
    const Deeper deeper(m_depth);
    const auto type = takeType(types);
    if (!type || m_depth > kMaxDepth) {
        return false;
    }
    switch (type->front()) {
    case '[':
        return readArray(type->substr(1, type->size() - 2), values);
    case '{':
        return readStructure(type->substr(1, type->size() - 2), values);
    default:
        return readSimple(type->front(), values);
    }
}

bool TypedstreamDecoder::readSimple(char type, Values& values)
{
    switch (type) {
    case 'c':
        return keep<qint64>(values, m_cursor.raw<qint8>());
    case 'C':
    case 'B':
        return keep<qint64>(values, m_cursor.raw<quint8>());
    case 's':
    case 'i':
    case 'l':
    case 'q':
        return keep<qint64>(values, m_cursor.signedInteger());
    case 'S':
    case 'I':
    case 'L':
    case 'Q':
        return keep<qint64>(values, m_cursor.unsignedInteger());
    case 'f':
        return m_cursor.pass(kTypedstreamFloating) ? keep<double>(values, m_cursor.raw<float>())
                                                   : keep<double>(values, m_cursor.signedInteger());
    case 'd':
        return m_cursor.pass(kTypedstreamFloating) ? keep<double>(values, m_cursor.raw<double>())
                                                   : keep<double>(values, m_cursor.signedInteger());
    default:
        return readNamed(type, values);
    }
}

// What may stand in a table, and raw bytes.
bool TypedstreamDecoder::readNamed(char type, Values& values)
{
    if (type == '@') {
        const auto value = readObject();
        return keep<QVariant>(values, value);
    }
    if (type == '#') {
        std::optional<std::size_t> found;
        const bool sound = readClass(found);
        values.emplace_back(found ? m_entries[*found].text : std::string_view());
        return sound;
    }
    if (type == '*') {
        return keep<std::string_view>(values, readText());
    }
    if (type == '%' || type == ':') {
        return keep<std::string_view>(values, readString());
    }
    if (type == '+') {
        const auto size = m_cursor.unsignedInteger();
        return size && keep<std::string_view>(values, m_cursor.take(*size));
    }
    return false;
}

// `array` is what stands in the brackets: "12c".
bool TypedstreamDecoder::readArray(std::string_view array, Values& values)
{
    quint32 count = 0;
    const auto [rest, error] = std::from_chars(array.data(), array.data() + array.size(), count);
    const std::string_view element = array.substr(static_cast<std::size_t>(rest - array.data()));
    if (error != std::errc() || element.empty()) {
        return false;
    }
    if (element.size() == 1 && isByteType(element.front())) {
        return keep<std::string_view>(values, m_cursor.take(count));
    }
    for (quint32 i = 0; i < count; ++i) {
        std::string_view types = element;
        if (!readType(types, values) || !types.empty()) {
            return false;
        }
    }
    return true;
}

// `structure` is what stands in the braces: "_NSRange=II".
bool TypedstreamDecoder::readStructure(std::string_view structure, Values& values)
{
    const std::size_t sign = structure.find('=');
    if (sign == std::string_view::npos) {
        return false;
    }
    std::string_view types = structure.substr(sign + 1);
    while (!types.empty()) {
        if (!readType(types, values)) {
            return false;
        }
    }
    return true;
}

// Takes the first type off: one character, or all up to the bracket that closes.
std::optional<std::string_view> TypedstreamDecoder::takeType(std::string_view& types)
{
    int open = 0;
    std::size_t size = 0;
    do {
        if (size == types.size()) {
            return std::nullopt;
        }
        const char character = types[size++];
        open += character == '[' || character == '{' ? 1 : 0;
        open -= character == ']' || character == '}' ? 1 : 0;
    } while (open > 0);
    if (open < 0 || !spend(size)) {
        return std::nullopt;
    }
    const std::string_view type = types.substr(0, size);
    types.remove_prefix(size);
    return type;
}

bool TypedstreamDecoder::spend(std::size_t steps)
{
    const bool enough = steps <= m_steps;
    m_steps -= enough ? steps : 0;
    return enough;
}

} // namespace formats
