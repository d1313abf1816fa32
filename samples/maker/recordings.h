// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace sample {

QByteArray melody();        ///< two seconds of sound, CAF
QByteArray film();          ///< two seconds of a boat at sea, QuickTime
QByteArray filmBackwards(); ///< the boat goes home
QByteArray silence();       ///< two seconds of a telephone line, AMR
QByteArray ticket();        ///< a page, PDF

} // namespace sample
