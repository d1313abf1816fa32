// SPDX-License-Identifier: MIT
// {"kind": "bookmark", "values": ["Tides", "https://tides.example/", "Tides"], "group": "Sailing"}
#include "model/PRSafariBookmarkItem.h"
#include "recordset/Kind.h"

namespace recordset {

namespace {

struct Bookmark {
    QString group;
};

constexpr std::array kFields{
    text<&Bookmark::group>("group"),
};

std::unique_ptr<PRAbstractItem> make(Record record, Bookmark bookmark)
{
    return std::make_unique<PRSafariBookmarkItem>(std::move(record), std::move(bookmark.group));
}

Bookmark contentsOf(PRSafariBookmarkItem& item)
{
    return {.group = item.bookmarkGroup()};
}

} // namespace

constinit const Kind kBookmarkKind = kindOf<kFields, make, contentsOf>("bookmark");

} // namespace recordset
