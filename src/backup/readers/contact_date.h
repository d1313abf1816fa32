// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRContactItem.h"

#include <QByteArray>
#include <QString>

namespace backup {

/// Seconds since 2001 as decimal text, at noon of the day in UTC so that the day is the same in
/// nearly all time zones; empty for what is no date. `stored` is such seconds, or "1990-04-01".
QString contactDate(const QString& stored);

/// A birthday of another calendar. What is stored is a property list with the keys
/// calendarIdentifier, era, year, month, isLeapMonth and day; a text that is none is shown as it
/// is. Of type 0 where there is none.
AltBirthday alternateBirthday(const QByteArray& stored);

/// With line feeds for all kinds of ends of lines.
QString withPlainLineEnds(QString text);

} // namespace backup
