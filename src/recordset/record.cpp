// SPDX-License-Identifier: MIT
// What every record has, and the choice of its kind.
//
// {"kind": "file", "values": ["summit.jpg"], "flags": [1], "selected": false, "parent": "Alps",
// ...}
#include "recordset/record.h"

#include "platform/literals.h"
#include "recordset/Kind.h"
#include "recordset/json_strings.h"

#include <QStringList>

#include <algorithm>

namespace recordset {

namespace {

constexpr std::array<int, 4> kFlags{Deleted, InCalendarRange, Locked, PartlySelected};

/// The numbers of a record's flags.
struct Flags : forms::Comparable<int> {
    static bool read(const Source& source, int& flags)
    {
        if (!source.isList()) {
            return false;
        }
        for (std::size_t index = 0; index < source.json().size(); ++index) {
            const Source element = source.at(index);
            int number = 0;
            if (!forms::Integer::read(element, number)) {
                return false;
            }
            if (std::ranges::find(kFlags, number) == kFlags.end()) {
                return element.expected("1, 2, 8 or 16"_L1);
            }
            flags |= number;
        }
        return true;
    }
    static void write(int flags, JsonText& out)
    {
        out.openList();
        for (const int number : kFlags) {
            if ((flags & number) != 0) {
                out.number(number);
            }
        }
        out.closeList();
    }
};

struct Parent : forms::Comparable<std::optional<QString>> {
    static bool read(const Source& source, std::optional<QString>& parent)
    {
        if (source.json().is_null()) {
            return true;
        }
        if (!source.json().is_string()) {
            return source.expected("a string or null"_L1);
        }
        const QString name = textFrom(source.json().get_ref<const std::string&>());
        if (!isParentName(name)) {
            return source.expected(R"(a name other than "." and "..")"_L1);
        }
        parent = name;
        return true;
    }
    static void write(const std::optional<QString>& parent, JsonText& out)
    {
        out.text(parent.value_or(QString()));
    }
};

constexpr std::array kRecordFields{
    textList<&Record::values>("values"),
    field<&Record::flags, Flags>("flags"),
    flag<&Record::selected>("selected"),
    field<&Record::parent, Parent>("parent"),
};

constexpr std::string_view kKindKey = "kind";
constexpr std::array kOwnKeys{kKindKey};

// A record that is no more than every record is.
std::unique_ptr<PRAbstractItem> makePlain(const Source& /*object*/, Record record)
{
    return std::make_unique<PRAbstractItem>(std::move(record));
}

bool isAny(PRAbstractItem& /*item*/)
{
    return true;
}

void writeNothing(PRAbstractItem& /*item*/, JsonText& /*out*/)
{
}

constexpr Kind kPlainKind{
    .name = "plain",
    .keys = {},
    .read = makePlain,
    .isKindOf = isAny,
    .write = writeNothing,
};

// The last one takes what no other one took.
constexpr std::array kKinds{
    &kSmsKind,
    &kContactKind,
    &kChatKind,
    &kChatContactKind,
    &kEventKind,
    &kBookmarkKind,
    &kNoteKind,
    &kFileKind,
    &kPlainKind,
};

const Kind& defaultKind(int dataType)
{
    switch (dataType) {
    case 0:
        return kSmsKind;
    case 2:
        return kContactKind;
    case 5:
    case 7:
    case 9:
    case 11:
    case 14:
    case 17:
    case 19:
        return kChatKind;
    case 16:
        return kChatContactKind;
    case 27:
        return kNoteKind;
    case 29:
        return kEventKind;
    case 33:
    case 34:
        return kBookmarkKind;
    case 3:
    case 13:
    case 30:
        return kPlainKind;
    default:
        return kFileKind;
    }
}

bool unknownKind(const Source& source)
{
    QStringList names;
    for (const Kind* kind : kKinds) {
        names.append(textFrom(kind->name));
    }
    return source.expected("one of "_L1 + names.join(", "_L1));
}

// Null: a fault was noted.
const Kind* kindOfRecord(const Source& record, int dataType)
{
    const Json* value = record.find(kKindKey);
    if (value == nullptr) {
        return &defaultKind(dataType);
    }
    for (const Kind* kind : kKinds) {
        if (*value == kind->name) {
            return kind;
        }
    }
    unknownKind(record.member(*value, kKindKey));
    return nullptr;
}

Record recordOf(PRAbstractItem& item)
{
    Record record{.selected = item.isSelected()};
    for (int column = 0; column < item.record().values.size(); ++column) {
        record.values.append(item.value(column));
    }
    for (const int number : kFlags) {
        record.flags |= item.flag(number) ? number : 0;
    }
    if (const PRAbstractItem* parent = item.parentItem()) {
        record.parent = parent->value(0);
    }
    return record;
}

} // namespace

std::unique_ptr<PRAbstractItem> readRecord(const Source& source, int dataType)
{
    const Kind* kind = source.isObject() ? kindOfRecord(source, dataType) : nullptr;
    Record record;
    if (kind == nullptr || !source.hasOnly({kOwnKeys, kKeysOf<kRecordFields>, kind->keys})
        || !readMembers<kRecordFields>(source, record)) {
        return nullptr;
    }
    return kind->read(source, std::move(record));
}

void writeRecord(PRAbstractItem& item, int dataType, JsonText& out)
{
    const Kind& kind =
        **std::ranges::find_if(kKinds, [&](const Kind* one) { return one->isKindOf(item); });
    out.openObject();
    if (&kind != &defaultKind(dataType)) {
        out.key(kKindKey);
        out.text(textFrom(kind.name));
    }
    writeMembers<kRecordFields>(recordOf(item), out);
    kind.write(item, out);
    out.closeObject();
}

bool isParentName(const QString& name)
{
    return name != "."_L1 && name != ".."_L1;
}

} // namespace recordset
