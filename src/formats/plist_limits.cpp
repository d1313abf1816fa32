// SPDX-License-Identifier: MIT
#include "formats/plist_limits.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

// Footer of a binary plist, the last 32 bytes; all numbers big-endian.
//   offset size
//      6    1   bytes of one entry of the offset table (1..8)
//      7    1   bytes of one object reference (1..8)
//      8    8   number of objects
//     16    8   number of the root object
//     24    8   offset of the offset table
//
// An object begins with its kind (high half) and its count (low half; F: an integer object with
// the count follows). All counts are of bytes but where said.
//   4 data   5 ASCII   6 UTF-16 (count of units)   8 UID
//   A array  C set (count of references, which follow)
//   D dictionary (count of entries; the references of all keys follow, then those of the values)
//   else a number, a date or a truth value
namespace formats {

namespace {

constexpr std::size_t kFooterSize = 32;
// What libplist holds for one object beside its contents, roughly.
constexpr quint64 kNodeSize = 64;
// A list grows beyond its file only by objects that are referred to several times.
constexpr quint64 kMaxGrown = 67'108'864;
constexpr quint64 kMaxGrowth = 4;

enum Kind : unsigned char {
    Data = 0x4,
    Ascii = 0x5,
    Utf16 = 0x6,
    Array = 0xA,
    Set = 0xC,
    Dict = 0xD
};

bool isCounted(unsigned char kind)
{
    using enum Kind;
    return kind == Data || kind == Ascii || kind == Utf16 || kind == Array || kind == Set
           || kind == Dict;
}

QString damaged()
{
    return QStringLiteral("the binary property list is damaged");
}

QString tooDeep()
{
    return QStringLiteral("the property list nests too deep");
}

QString growsTooMuch()
{
    return QStringLiteral("the property list repeats its objects too often");
}

class BinaryMeasure {
public:
    explicit BinaryMeasure(const QByteArray& bytes)
        : m_bytes(reinterpret_cast<const unsigned char*>(bytes.constData())),
          m_size(static_cast<std::size_t>(bytes.size()))
    {
    }

    QString fault();

private:
    struct Measured {
        bool open = false;
        bool done = false;
        int height = 0;
        quint64 grown = 0;
    };
    struct Object {
        unsigned char kind = 0;
        quint64 references = 0; // that follow
        quint64 contents = 0;   // bytes
        std::size_t at = 0;     // of what follows
    };

    std::optional<quint64> number(quint64 at, std::size_t size) const;
    std::optional<Object> object(quint64 index) const;
    bool readFooter();
    bool measure(quint64 index, int depth);
    bool measureReferences(const Object& object, Measured& sum, int depth);

    const unsigned char* m_bytes;
    std::size_t m_size;
    std::size_t m_offsetSize = 0;
    std::size_t m_referenceSize = 0;
    quint64 m_root = 0;
    quint64 m_table = 0;
    std::vector<Measured> m_objects;
    QString m_fault;
};

QString BinaryMeasure::fault()
{
    if (!readFooter()) {
        return damaged();
    }
    if (!measure(m_root, 1)) {
        return m_fault.isNull() ? damaged() : m_fault;
    }
    return {};
}

std::optional<quint64> BinaryMeasure::number(quint64 at, std::size_t size) const
{
    if (at > m_size || m_size - at < size) {
        return std::nullopt;
    }
    quint64 value = 0;
    for (std::size_t i = 0; i < size; ++i) {
        value = value << 8 | m_bytes[at + i];
    }
    return value;
}

bool BinaryMeasure::readFooter()
{
    if (m_size < kFooterSize) {
        return false;
    }
    const std::size_t footer = m_size - kFooterSize;
    m_offsetSize = m_bytes[footer + 6];
    m_referenceSize = m_bytes[footer + 7];
    const quint64 count = *number(footer + 8, 8);
    m_root = *number(footer + 16, 8);
    m_table = *number(footer + 24, 8);
    const bool sizesFit =
        m_offsetSize >= 1 && m_offsetSize <= 8 && m_referenceSize >= 1 && m_referenceSize <= 8;
    if (!sizesFit || m_table > footer || (footer - m_table) / m_offsetSize < count) {
        return false;
    }
    m_objects.resize(count);
    return true;
}

std::optional<BinaryMeasure::Object> BinaryMeasure::object(quint64 index) const
{
    const auto at = number(m_table + index * m_offsetSize, m_offsetSize);
    const auto marker = at ? number(*at, 1) : std::nullopt;
    if (!marker) {
        return std::nullopt;
    }
    Object found{.kind = static_cast<unsigned char>(*marker >> 4), .at = *at + 1};
    if (!isCounted(found.kind)) {
        return found;
    }
    quint64 count = *marker & 0xF;
    if (count == 0xF) {
        const auto size = number(found.at, 1);
        const std::size_t bytes = size ? std::size_t(1) << (*size & 0x3) : 0;
        const auto counted = number(found.at + 1, bytes);
        if (!counted) {
            return std::nullopt;
        }
        count = *counted;
        found.at += 1 + bytes;
    }
    if (count > m_size) {
        return std::nullopt;
    }
    const quint64 amount = found.kind == Dict || found.kind == Utf16 ? 2 * count : count;
    (found.kind >= Array ? found.references : found.contents) = amount;
    return found;
}

// Each object is measured once; false for a fault.
bool BinaryMeasure::measure(quint64 index, int depth)
{
    if (index >= m_objects.size() || m_objects[index].open) {
        return false;
    }
    if (depth + m_objects[index].height > kPlistMaxDepth) {
        m_fault = tooDeep();
        return false;
    }
    if (m_objects[index].done) {
        return true;
    }
    const auto found = object(index);
    if (!found) {
        return false;
    }
    Measured measured{.done = true, .height = 0, .grown = kNodeSize + found->contents};
    m_objects[index].open = true;
    if (!measureReferences(*found, measured, depth)) {
        return false;
    }
    m_objects[index] = measured;
    return true;
}

bool BinaryMeasure::measureReferences(const Object& object, Measured& sum, int depth)
{
    for (quint64 i = 0; i < object.references; ++i) {
        const auto to = number(object.at + i * m_referenceSize, m_referenceSize);
        if (!to || !measure(*to, depth + 1)) {
            return false;
        }
        sum.height = std::max(sum.height, m_objects[*to].height + 1);
        sum.grown += m_objects[*to].grown;
        if (sum.grown > kMaxGrown + kMaxGrowth * m_size) {
            m_fault = growsTooMuch();
            return false;
        }
    }
    return true;
}

// What the reader of XML passes over.
struct Passage {
    std::string_view opening;
    std::string_view closing;
};
constexpr Passage kPassages[]{{"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}, {"<!", ">"}};
constexpr std::string_view kLongestDeclarationEnd = "]>";

// The passage that begins at `at`, empty if none does.
std::string_view passageAt(std::string_view xml, std::size_t at)
{
    const std::string_view rest = xml.substr(at);
    const auto* const found = std::ranges::find_if(
        kPassages, [rest](const Passage& passage) { return rest.starts_with(passage.opening); });
    if (found == std::end(kPassages)) {
        return {};
    }
    const bool declares = found->closing == ">" && rest.find('[') < rest.find('>');
    const auto end =
        rest.find(declares ? kLongestDeclarationEnd : found->closing, found->opening.size());
    return rest.substr(0, end);
}

int countOf(std::string_view text, std::string_view part)
{
    int count = 0;
    for (auto at = text.find(part); at != std::string_view::npos; at = text.find(part, at + 1)) {
        ++count;
    }
    return count;
}

// How much deeper a tag leads; `tag` lacks its ">". In doubt it is taken for an opening one.
int stepOf(std::string_view tag)
{
    if (tag.starts_with("</array") || tag.starts_with("</dict")) {
        return -1;
    }
    if (tag == "<array/" || tag == "<dict/" || tag == "<array /" || tag == "<dict /") {
        return 0;
    }
    return tag.starts_with("<array") || tag.starts_with("<dict") ? 1 : 0;
}

} // namespace

QString binaryPlistFault(const QByteArray& bytes)
{
    return BinaryMeasure(bytes).fault();
}

QString xmlPlistFault(const QByteArray& bytes)
{
    const std::string_view xml(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    int depth = 0;
    for (std::size_t at = xml.find('<'); at != std::string_view::npos; at = xml.find('<', at)) {
        const std::string_view passage = passageAt(xml, at);
        const std::string_view tag = xml.substr(at, xml.find('>', at) - at);
        if (passage.empty()) {
            depth = std::max(0, depth + stepOf(tag));
        } else if (!passage.starts_with("<![CDATA[")) {
            // Should libplist see an end of it where we do not, we have counted too much.
            depth += countOf(passage, "<array") + countOf(passage, "<dict");
        }
        if (depth > kPlistMaxDepth) {
            return tooDeep();
        }
        at += passage.empty() ? tag.size() : passage.size();
    }
    return {};
}

} // namespace formats
