// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace backup {

enum class MediaKind { Other, Picture, Film, Sound, Document };

/// What a file is by the ending of its name.
MediaKind mediaKindOf(const QString& fileName);

} // namespace backup
