// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

namespace backup {

/// The text of a fragment of HTML as a reader sees it: a line for each block, bullets for list
/// items. `attachmentText` gives what stands for an image by its content id. Damaged HTML reads as
/// far as it goes.
QString htmlText(
    const QString& html, const std::function<QString(const QString& contentId)>& attachmentText);

} // namespace backup
