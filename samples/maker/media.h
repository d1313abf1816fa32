// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace sample {

/// The file that the sources call `name`: one that is drawn or played by this program ("beach.jpg",
/// "boat.mov"), else the one of that name in `directory`. Empty for a HEIC without an encoder.
QByteArray media(const QString& name, const QString& directory);

} // namespace sample
