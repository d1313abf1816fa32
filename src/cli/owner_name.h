// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// A name that a backup or a record set gives, fit to begin file names: separators, control
/// characters and names that mean a directory become "_". Empty where nothing is left.
QString cleanedOwner(const QString& name);

/// The first of the names that is not empty once it is cleaned, else "iPhone".
QString defaultOwner(const QStringList& names);
