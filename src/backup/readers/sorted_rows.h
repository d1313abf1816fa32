// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <span>
#include <vector>

namespace backup {

/// Those of rows that are sorted by `part` in which it is `key`.
template <typename Row, typename Key>
std::span<const Row> rowsWith(const std::vector<Row>& rows, const Key& key, Key Row::*part)
{
    const auto first = std::ranges::lower_bound(rows, key, {}, part);
    const auto end = std::ranges::upper_bound(first, rows.end(), key, {}, part);
    return {first, end};
}

} // namespace backup
