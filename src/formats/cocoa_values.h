// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

#include <string_view>

namespace formats {

/// Seconds since 2001-01-01 UTC. Invalid for NaN and outside the years that QDateTime writes well
/// (0 to 9999).
QDateTime dateFromCocoaSeconds(double seconds);

/// `relative` as it stands, or as seen from `base` where there is one.
QString urlText(const QString& base, const QString& relative);

/// UTF-8; a byte that is none becomes U+FFFD. A leading U+FEFF stays, because ranges count it.
QString utf8Text(std::string_view utf8);

} // namespace formats
