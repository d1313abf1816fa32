// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRAbstractItem.h"
#include "recordset/fields.h"

#include <memory>

namespace recordset {

/// A class of records: the keys that it has beside those of every record, and how they are read and
/// written.
struct Kind {
    std::string_view name;
    Keys keys;
    /// Null: a fault was noted.
    std::unique_ptr<PRAbstractItem> (*read)(const Source& object, Record record);
    bool (*isKindOf)(PRAbstractItem& item);
    void (*write)(PRAbstractItem& item, JsonText& out);
};

template <auto function> struct ItemOf;
template <typename Contents, typename Item, Contents (*function)(Item&)> struct ItemOf<function> {
    using Type = Item;
};

/// `make` builds the record from the struct of `fields`; `contentsOf` gives the struct back, by the
/// operation that loads it.
template <const auto& fields, auto make, auto contentsOf>
constexpr Kind kindOf(std::string_view name)
{
    using Item = typename ItemOf<contentsOf>::Type;
    return {
        .name = name,
        .keys = kKeysOf<fields>,
        .read = [](const Source& object, Record record) -> std::unique_ptr<PRAbstractItem> {
            OwnerOf<fields> contents{};
            if (!readMembers<fields>(object, contents)) {
                return nullptr;
            }
            return make(std::move(record), std::move(contents));
        },
        .isKindOf = [](PRAbstractItem& item) { return dynamic_cast<Item*>(&item) != nullptr; },
        .write =
            [](PRAbstractItem& item, JsonText& out) {
                writeMembers<fields>(contentsOf(dynamic_cast<Item&>(item)), out);
            },
    };
}

/// Where an item is made from the struct itself.
template <typename Item, typename Contents>
std::unique_ptr<PRAbstractItem> makeItem(Record record, Contents contents)
{
    return std::make_unique<Item>(std::move(record), std::move(contents));
}

// Each in a file of its own, kind_sms.cpp and so on.
extern const Kind kSmsKind;
extern const Kind kContactKind;
extern const Kind kChatKind;
extern const Kind kChatContactKind;
extern const Kind kEventKind;
extern const Kind kBookmarkKind;
extern const Kind kNoteKind;
extern const Kind kFileKind;

} // namespace recordset
