// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/call_rows.h"

namespace backup {

/// A call of Viber as its list has it.
struct ViberCall {
    Call call;
    qint64 message = 0; ///< row of ZVIBERMESSAGE that shows the call in its chat; 0: none
};

/// The calls in the order of their rows; none where the release has no list.
std::vector<ViberCall> readViberCalls(const TableReader& store);

} // namespace backup
