// SPDX-License-Identifier: MIT
#pragma once

#include "interchange/InterchangeLayout.h"
#include "model/PRContactItem.h"

#include <QString>

#include <QLatin1String>

/// A template with its places filled all at once: a "%2" in a value stays.
template <typename... Values> QString filled(QLatin1String pattern, const Values&... values)
{
    return QString(pattern).arg(values...);
}

/// A date of the model, which is seconds since 2001 as text; what is no number counts as 0.
QString dateText(const QString& secondsSince2001, QLatin1String format);
/// Its last five characters: month and day, where the format ends with them.
QString dayText(const QString& secondsSince2001, QLatin1String format);

/// A note that has its block already, from an earlier import, gets no second one.
bool holdsNoteBlock(const QString& note);

/// One line for each filled field that has no place of its own in the layout.
QString noteLines(const InterchangeLayout& layout, const PRContactPrivate& contact);

/// Nothing for no lines.
QString noteBlock(const QString& lines);

/// The note of a CSV row: escaped, with a block of the lines, `eventLine` and the social profiles,
/// and in one line. A note that holds its block keeps its line feeds, and breaks the row.
QString csvNote(
    const InterchangeLayout& layout, const PRContactItem& contact, const QString& eventLine = {});
