// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace backup {

/// The contact cards of a message: a line with the name and the numbers of each. `names` and
/// `cards` are texts as the columns hold them, several in each.
QString cardLines(const QString& names, const QString& cards);

/// The name of a place, its address, and "52.5163, 13.3777"; the texts may be empty or equal.
QString placeLines(const QString& name, const QString& address, double latitude, double longitude);

/// A question with a line for each answer that can be chosen.
QString pollLines(const QString& question, const QStringList& options);

/// The texts that are not empty, one below the other, none twice.
QString joinedLines(const QStringList& texts);

} // namespace backup
