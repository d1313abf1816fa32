// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/LazyData.h"

namespace formats {
class Database;
}

namespace backup {

/// The pages that were visited with Safari, of all its profiles, newest first: data type 34.
class HistoryData final : public LazyData {
public:
    static constexpr int kDataType = 34;

    explicit HistoryData(Notices& notices);

    static bool isHistory(const formats::Database& database);

protected:
    RecordList read(const std::vector<NamedDatabase>& databases, Notices& notices) const override;
};

} // namespace backup
