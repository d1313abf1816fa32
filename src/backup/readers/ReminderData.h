// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/LazyData.h"

namespace backup {

/// The reminders of all accounts, list by list: data type 30.
class ReminderData final : public LazyData {
public:
    static constexpr int kDataType = 30;

    explicit ReminderData(Notices& notices);

protected:
    RecordList read(const std::vector<NamedDatabase>& databases, Notices& notices) const override;
};

} // namespace backup
