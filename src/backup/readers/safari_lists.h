// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRData.h"

#include <QVariant>

#include <memory>

namespace backup {

/// The sets 33 and 34 out of the property lists that Safari kept before it had databases:
/// Bookmarks.plist (until iOS 4) and History.plist (until iOS 7). What a list lacks is left out.
std::unique_ptr<PRData> bookmarksOfList(const QVariant& list);
std::unique_ptr<PRData> historyOfList(const QVariant& list);

} // namespace backup
