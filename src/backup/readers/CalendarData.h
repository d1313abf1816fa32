// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/LazyData.h"

namespace backup {

/// The events of all calendars by their start: data type 29.
class CalendarData final : public LazyData {
public:
    static constexpr int kDataType = 29;

    explicit CalendarData(Notices& notices);

protected:
    RecordList read(const std::vector<NamedDatabase>& databases, Notices& notices) const override;
};

} // namespace backup
