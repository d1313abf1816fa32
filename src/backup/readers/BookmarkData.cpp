// SPDX-License-Identifier: MIT
// Bookmarks.db
//   bookmarks  id (0 is the root), parent, type (0 bookmark, 1 folder), order_index, title, url,
//              special_id of a folder: 1 favourites, 2 menu, 3 reading list; 4 and 5 no bookmarks
//              read: NULL outside the reading list; hidden, deleted (waits for the other devices)
//              extra_attributes: property list, {"com.apple.ReadingList": {"DateAdded": date}}
#include "backup/readers/BookmarkData.h"

#include "backup/readers/safari_records.h"
#include "backup/readers/table_reader.h"
#include "formats/plist.h"
#include "platform/literals.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <array>
#include <tuple>

namespace backup {

namespace {

enum SpecialFolder : int { Ordinary = 0, Favourites = 1, Menu = 2, ReadingList = 3 };

constexpr int kFolder = 1;

enum Column : int {
    Id,
    Parent,
    Type,
    Order,
    Title,
    Address,
    Special,
    Read,
    Hidden,
    IsDeleted,
    Attributes,
};

struct Folder {
    qint64 parent = 0;
    qint64 special = Ordinary;
    QString title;
    bool hidden = false;
    bool deleted = false;
};

struct Leaf {
    qint64 parent = 0;
    qint64 order = 0;
    bool hidden = false;
    bool inReadingList = false;
    Bookmark bookmark;
};

/// What the folders around a bookmark make of it.
struct Place {
    QString group;
    bool shown = true;
    bool deleted = false;
};

QDateTime dateAdded(const QByteArray& attributes)
{
    if (attributes.isEmpty()) {
        return {};
    }
    const auto list = formats::parsePlist(attributes, QStringLiteral("extra_attributes"));
    return list ? list->toMap()
                      .value("com.apple.ReadingList"_L1)
                      .toMap()
                      .value("DateAdded"_L1)
                      .toDateTime()
                : QDateTime();
}

/// The rows of one store.
class BookmarkTree {
public:
    explicit BookmarkTree(const TableReader& store)
    {
        const std::array columns{WantedColumn{"id"_L1, true}, WantedColumn{"parent"_L1, true},
            WantedColumn{"type"_L1, true}, WantedColumn{"order_index"_L1},
            WantedColumn{"title"_L1, true}, WantedColumn{"url"_L1, true},
            WantedColumn{"special_id"_L1}, WantedColumn{"read"_L1}, WantedColumn{"hidden"_L1},
            WantedColumn{"deleted"_L1}, WantedColumn{"extra_attributes"_L1}};
        store.read("bookmarks"_L1, columns, [this](const formats::Statement& row) { take(row); });
        std::ranges::stable_sort(m_leaves, std::less(),
            [](const Leaf& leaf) { return std::tuple(leaf.parent, leaf.order); });
    }

    std::vector<Bookmark> bookmarks()
    {
        std::vector<Bookmark> all;
        for (Leaf& leaf : m_leaves) {
            Place place = placeOf(leaf);
            if (place.shown) {
                leaf.bookmark.group = std::move(place.group);
                leaf.bookmark.deleted |= place.deleted;
                all.push_back(std::move(leaf.bookmark));
            }
        }
        return all;
    }

private:
    void take(const formats::Statement& row)
    {
        const bool deleted = row.integer(IsDeleted) != 0;
        if (row.integer(Type) == kFolder) {
            m_folders.insert(row.integer(Id), {.parent = row.integer(Parent),
                                                  .special = row.integer(Special),
                                                  .title = row.text(Title),
                                                  .hidden = row.integer(Hidden) != 0,
                                                  .deleted = deleted});
            return;
        }
        if (row.textView(Address).empty()) {
            return;
        }
        const bool inReadingList = !row.isNull(Read);
        m_leaves.push_back({.parent = row.integer(Parent),
            .order = row.integer(Order),
            .hidden = row.integer(Hidden) != 0,
            .inReadingList = inReadingList,
            .bookmark = {.title = row.text(Title),
                .address = row.text(Address),
                .added = inReadingList ? dateAdded(row.blob(Attributes)) : QDateTime(),
                .deleted = deleted}});
    }

    // The folder of the reading list is a hidden one itself.
    Place placeOf(const Leaf& leaf) const
    {
        Place place{.shown = leaf.inReadingList || !leaf.hidden};
        QStringList path;
        qint64 id = leaf.parent;
        bool inReadingList = leaf.inReadingList;
        QSet<qint64> seen; // damaged folders can make a ring
        while (id != 0 && m_folders.contains(id) && !seen.contains(id)) {
            const Folder folder = m_folders.value(id);
            seen.insert(id);
            inReadingList |= folder.special == ReadingList;
            place.deleted |= folder.deleted;
            place.shown &= inReadingList || (!folder.hidden && folder.special <= ReadingList);
            if (folder.special == Ordinary) {
                path.prepend(folder.title);
            }
            id = folder.parent;
        }
        place.group = inReadingList ? readingListGroup() : path.join(" / "_L1);
        return place;
    }

    QHash<qint64, Folder> m_folders;
    std::vector<Leaf> m_leaves;
};

} // namespace

BookmarkData::BookmarkData(Notices& notices) : LazyData(kDataType, linkColumns(), notices)
{
}

bool BookmarkData::isBookmarkStore(const formats::Database& database)
{
    const QStringList tables = database.tables();
    return tables.contains("bookmarks"_L1) && !tables.contains("windows"_L1);
}

RecordList BookmarkData::read(const std::vector<NamedDatabase>& databases, Notices& notices) const
{
    std::vector<Bookmark> all;
    for (const NamedDatabase& store : databases) {
        BookmarkTree tree(TableReader(store.opened.database, store.name, notices));
        std::ranges::move(tree.bookmarks(), std::back_inserter(all));
    }
    return bookmarkRecords(std::move(all));
}

} // namespace backup
