// SPDX-License-Identifier: MIT
// gzip around TableStore of note_body.proto: a heap of objects, and lists of field names and of
// identifiers. One object has the fields
//   crRows       -> an ordered set: the identifiers of the rows from top to bottom
//   crColumns    -> the same for the columns
//   cellColumns  -> a dictionary: identifier of a column -> a dictionary: of a row -> the cell's
//   text
// An identifier is an object whose first field holds a place in the list of identifiers. A row that
// was moved keeps its first identifier in the order; `identifiers` leads to the one that it has
// now.
#include "formats/cocoa_values.h"
#include "formats/note_body.h"
#include "formats/note_message.h"

#include <algorithm>
#include <map>
#include <note_body.pb.h>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace formats {

namespace {

// More cells than that in one table are no table of a person's.
constexpr std::size_t kMostCells = 1'000'000;

using Places = std::map<std::uint64_t, std::size_t>; // identifier -> row or column

/// Looks into the heap; what is not there reads as an empty message.
class Heap {
public:
    explicit Heap(const proto::TableObjects& objects) : m_objects(objects) {}

    const proto::TableObject& at(const proto::ObjectId& id) const
    {
        const int place = id.object();
        return id.has_object() && place >= 0 && place < m_objects.object_size()
                   ? m_objects.object(place)
                   : proto::TableObject::default_instance();
    }

    std::optional<std::uint64_t> identifier(const proto::ObjectId& id) const
    {
        const proto::FieldMap& fields = at(id).fields();
        return fields.field_size() > 0 ? std::optional(fields.field(0).value().number())
                                       : std::nullopt;
    }

    /// The value of a field of that name, of the object that has one.
    const proto::TableObject& field(const std::string& name) const
    {
        for (const proto::TableObject& object : m_objects.object()) {
            const auto& fields = object.fields().field();
            const auto found = std::ranges::find_if(
                fields, [&](const proto::Field& field) { return keyAt(field.key()) == name; });
            if (found != fields.end()) {
                return at(found->value());
            }
        }
        return proto::TableObject::default_instance();
    }

    std::optional<std::uint64_t> placeOfUuid(const std::string& uuid) const
    {
        const auto& uuids = m_objects.uuid();
        const auto found = std::find(uuids.begin(), uuids.end(), uuid);
        return found != uuids.end()
                   ? std::optional(static_cast<std::uint64_t>(found - uuids.begin()))
                   : std::nullopt;
    }

private:
    std::string_view keyAt(int place) const
    {
        return place >= 0 && place < m_objects.key_size() ? m_objects.key(place)
                                                          : std::string_view();
    }

    const proto::TableObjects& m_objects;
};

Places placesOf(const Heap& heap, const proto::Ordering& ordering)
{
    Places places;
    std::size_t next = 0;
    for (const proto::Place& place : ordering.places().place()) {
        if (const auto identifier = heap.placeOfUuid(place.uuid())) {
            places[*identifier] = next++;
        }
    }
    for (const proto::Element& element : ordering.identifiers().element()) {
        const auto first = heap.identifier(element.key());
        const auto now = heap.identifier(element.value());
        if (first && now && places.contains(*first)) {
            places[*now] = places[*first];
        }
    }
    return places;
}

std::optional<std::size_t> placeOf(
    const Heap& heap, const Places& places, const proto::ObjectId& id)
{
    const auto identifier = heap.identifier(id);
    const auto place = identifier ? places.find(*identifier) : places.end();
    return place != places.end() ? std::optional(place->second) : std::nullopt;
}

void fillColumn(NoteTable& table, const Heap& heap, const Places& rows, std::size_t column,
    const proto::Dictionary& cells)
{
    for (const proto::Element& cell : cells.element()) {
        if (const auto row = placeOf(heap, rows, cell.key())) {
            table[*row][column] = utf8Text(heap.at(cell.value()).note().text());
        }
    }
}

// Empty where the structure does not hold.
NoteTable structured(const Heap& heap)
{
    const proto::Ordering& rowOrder = heap.field("crRows").ordered().ordering();
    const proto::Ordering& columnOrder = heap.field("crColumns").ordered().ordering();
    const auto rowCount = static_cast<std::size_t>(rowOrder.places().place_size());
    const auto columnCount = static_cast<std::size_t>(columnOrder.places().place_size());
    if (rowCount == 0 || columnCount == 0 || rowCount > kMostCells / columnCount) {
        return {};
    }
    const Places rows = placesOf(heap, rowOrder);
    const Places columns = placesOf(heap, columnOrder);
    NoteTable table(rowCount, std::vector<QString>(columnCount));
    for (const proto::Element& column : heap.field("cellColumns").dictionary().element()) {
        if (const auto place = placeOf(heap, columns, column.key())) {
            fillColumn(table, heap, rows, *place, heap.at(column.value()).dictionary());
        }
    }
    const auto hasText = [](const std::vector<QString>& row) {
        return std::ranges::any_of(row, [](const QString& cell) { return !cell.isEmpty(); });
    };
    return std::ranges::any_of(table, hasText) ? table : NoteTable();
}

NoteTable allTexts(const proto::TableObjects& objects)
{
    NoteTable table;
    for (const proto::TableObject& object : objects.object()) {
        if (const QString text = utf8Text(object.note().text()); !text.isEmpty()) {
            table.push_back({text});
        }
    }
    return table;
}

} // namespace

Result<NoteTable> parseNoteTable(std::span<const unsigned char> bytes)
{
    const auto store = noteMessage<proto::TableStore>(bytes);
    if (!store) {
        return store.error();
    }
    const proto::TableObjects& objects = store->document().objects();
    NoteTable table = structured(Heap(objects));
    if (table.empty()) {
        table = allTexts(objects);
    }
    if (table.empty()) {
        return Error{.what = QStringLiteral("the table has no texts")};
    }
    return table;
}

} // namespace formats
