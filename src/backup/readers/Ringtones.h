// SPDX-License-Identifier: MIT
#pragma once

#include "backup/container/FileLocator.h"
#include "model/PRData.h"

#include <memory>

namespace backup {

/// The ringtones that were put on the phone or bought (data type 32), by their names; null where
/// there are none. `files` outlives the set.
std::unique_ptr<PRData> ringtones(const FileLocator& files);

} // namespace backup
