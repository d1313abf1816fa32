// SPDX-License-Identifier: MIT
#pragma once

#include "formats/Result.h"

#include <QString>
#include <QVector>

#include <array>

class PRBackup;

/// The data types that this version of the library writes.
inline constexpr std::array kWrittenTypes{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16,
    17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 31, 32, 33, 34, 35};

/// Data types of a list like "Messages, 2": names without regard to case, or numbers. The error
/// names what is no category, and the categories that there are.
formats::Result<QVector<int>> parseCategories(const QString& list);

/// What an export of some data types, or of all, does with those of a backup.
struct ExportPlan {
    QVector<int> written;   ///< have records and a writer, in the order of the library
    QVector<int> unwritten; ///< have records and no writer
    QVector<int> empty;     ///< were named, and have no records
};

/// `only` empty: all categories.
ExportPlan planExport(const PRBackup& records, const QVector<int>& only);

/// Those of the data types that have no writer in this version.
QVector<int> withoutWriter(const QVector<int>& dataTypes);

/// "Messages, Contacts"
QString categoryNames(const QVector<int>& dataTypes);

/// "Messages (3), Contacts (12)"
QString categoryCounts(const PRBackup& records, const QVector<int>& dataTypes);
