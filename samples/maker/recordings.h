// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace sample {

QByteArray melody(); ///< two seconds of sound, CAF
QByteArray film();   ///< two seconds of a boat at sea, QuickTime
QByteArray ticket(); ///< a page, PDF

} // namespace sample
