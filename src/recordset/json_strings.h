// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace recordset {

/// The text of well-formed UTF-8. A byte order mark at its start is a character like any other
/// (QString::fromUtf8 drops it).
QString textFrom(std::string_view utf8);

/// `text` with U+FFFD in place of each surrogate that has no partner: JSON cannot say one.
QString wellFormed(QString text);

/// The JSON string for well-formed UTF-8, with its quotes.
void appendJsonString(std::string& out, std::string_view utf8);

} // namespace recordset
