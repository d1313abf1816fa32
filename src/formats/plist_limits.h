// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace formats {

/// Containers of a property list that are handed on nest no deeper.
constexpr int kPlistMaxDepth = 256;

/// Why libplist must not be given these bytes; null if it may. It reads and frees containers by
/// recursion and copies an object for each reference to it: a list that nests thousands deep would
/// end us, and some hundred bytes could grow to any size.
QString binaryPlistFault(const QByteArray& bytes);
/// The same for XML, of which only the depth can do harm.
QString xmlPlistFault(const QByteArray& bytes);

} // namespace formats
