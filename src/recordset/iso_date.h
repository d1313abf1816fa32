// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>

#include <optional>
#include <string_view>

namespace recordset {

/// The moment of an ISO 8601 text, in UTC; nothing where it cannot be read. Without a zone the text
/// is local time; an empty text is an invalid QDateTime.
std::optional<QDateTime> momentFrom(std::string_view text);

/// ISO 8601 in UTC, with milliseconds only where they are not 0; empty for an invalid moment.
QString isoText(const QDateTime& moment);

} // namespace recordset
