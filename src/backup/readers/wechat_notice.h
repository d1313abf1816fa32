// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace backup {

/// What a line of the application tells, be it text, text with tags, XML or JSON; empty for
/// nothing.
QString noticeText(const QString& message);

/// The messages of a history that was forwarded ("Bo: See you", a line each) from its XML.
QString forwardedText(const QString& recordItem);

} // namespace backup
