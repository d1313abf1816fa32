// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

/// Why nothing may be written to the folder `target`: empty where it may. A folder that holds
/// something is taken only when `merge` says so.
QString targetObjection(const QString& source, const QString& target, bool merge);

/// The same for the new file `target`.
QString newFileObjection(const QString& source, const QString& target);

/// Why `source` stands in the way of the folders that the categories get in `target`: one that
/// fails takes its folder away with all that is in it. Empty where it does not.
QString categoryObjection(
    const QString& source, const QString& target, const QVector<int>& dataTypes);
