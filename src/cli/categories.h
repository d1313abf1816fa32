// SPDX-License-Identifier: MIT
#pragma once

#include "formats/Result.h"

#include <QString>
#include <QVector>

class PRBackup;

/// Data types of a list like "Messages, 2": names without regard to case, or numbers. The error
/// names what is no category, and the categories that there are.
formats::Result<QVector<int>> parseCategories(const QString& list);

/// What an export of some data types, or of all, does with those of a backup.
struct ExportPlan {
    QVector<int> written; ///< have records, in the order of the library
    QVector<int> empty;   ///< were named, and have no records
};

/// `only` empty: all categories.
ExportPlan planExport(const PRBackup& records, const QVector<int>& only);

/// "Messages, Contacts"
QString categoryNames(const QVector<int>& dataTypes);
