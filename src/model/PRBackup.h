// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRData.h"

#include <array>

/// Data types are the numbers from 0 to 35.
inline constexpr int kDataTypeCount = 36;

/// One opened backup: at most one data set for each data type, all owned.
class DATAEXPORT_EXPORT PRBackup {
public:
    PRBackup();
    PRBackup(PRBackup&& other) noexcept;
    PRBackup& operator=(PRBackup&& other) noexcept;
    ~PRBackup();

    /// Takes the set; one of the same data type is replaced.
    void add(std::unique_ptr<PRData> set);

    /// The set of this data type, always the same object; null when the backup has none.
    PRData* getPRData(int dataType) const;

    /// Display name of a category, fit to be a directory's name. Empty for other numbers.
    static QString dataTypeName(int dataType);

    /// Whether the files of this category get the date of their record.
    static bool fromPhotoFile(int dataType);

private:
    std::array<std::unique_ptr<PRData>, kDataTypeCount> m_sets;
};
