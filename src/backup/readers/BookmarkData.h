// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/LazyData.h"

namespace formats {
class Database;
}

namespace backup {

/// Safari's bookmarks and its reading list, as they lie in their folders: data type 33.
class BookmarkData final : public LazyData {
public:
    static constexpr int kDataType = 33;

    explicit BookmarkData(Notices& notices);

    /// Whether the database has bookmarks, and is none of those that hold open tabs.
    static bool isBookmarkStore(const formats::Database& database);

protected:
    RecordList read(const std::vector<NamedDatabase>& databases, Notices& notices) const override;
};

} // namespace backup
