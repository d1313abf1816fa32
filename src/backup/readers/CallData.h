// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/LazyData.h"
#include "backup/readers/SenderNames.h"

namespace backup {

/// The calls of a phone, newest first: data type 3.
class CallData final : public LazyData {
public:
    static constexpr int kDataType = 3;

    CallData(SenderNames names, Notices& notices);

protected:
    RecordList read(const std::vector<NamedDatabase>& databases, Notices& notices) const override;

private:
    SenderNames m_names;
};

} // namespace backup
