// SPDX-License-Identifier: MIT
#pragma once

#include "interchange/labels.h"
#include "platform/literals.h"

#include <QDir>
#include <QString>

class PRContactProperty;

/// What stands between the "_$!<" and ">!$_" of a label of the phone. Any text with "_$!<" in it,
/// wherever that is, loses four characters at each end; all others stay.
QString unwrapLabel(QString text);
bool isWrappedLabel(const QString& text);

/// The label of a property, or the number of its kind where it has none.
QString labelOrType(const PRContactProperty& property);

/// The rules for text and file names that the address-book files share. What they do differently
/// is here as data.
struct InterchangeLayout {
    LabelColumn labels = LabelColumn::Google;
    bool unwrapsLabels = false; ///< in labels, sub-values and whatever is escaped
    QLatin1String verticalTab;  ///< what stands for one in an address
    QLatin1String folder;       ///< below the category's directory
    QLatin1String fileName;     ///< directory, folder, owner, category, purpose
    QLatin1String noteLine;     ///< a name and a value, in the block behind a note

    /// A backslash before each backslash and each semicolon. Nothing is ever quoted, and a comma
    /// or a line break stays.
    QString escapeValue(const QString& text) const;

    /// The layout's own word for a label, or empty: see `mappedLabel`.
    QString mapLabel(QLatin1String family, const QString& label) const;
    /// The same, but an unknown label stays, escaped.
    QString displayLabel(QLatin1String family, const QString& label) const;

    /// A part of a composite property, unescaped; empty where there is none.
    QString subValue(const PRContactProperty& property, QLatin1String key) const;

    /// Digits, letters, all that is not ASCII, and what ASCII has from the digits on: ; stays,
    /// while blanks, commas, full stops and hyphens go, and so do line breaks.
    QString cleanAddressText(const QString& text) const;

    /// Sees to it that the category's folder is there; false when it cannot be made.
    bool makeFolder(const QDir& dir, const QString& categoryName) const;
    QString filePath(const QDir& dir, const QString& ownerName, const QString& categoryName,
        const QString& purpose) const;
};

// clang-format off
inline constexpr InterchangeLayout kGoogleLayout{
    .labels = LabelColumn::Google,  .unwrapsLabels = true,  .verticalTab = R"(\n)"_L1,
    .folder = "CSV"_L1, .fileName = "%1/%2/%3's %4 %5.csv"_L1, .noteLine = "<<%1:%2>>\t"_L1,
};
inline constexpr InterchangeLayout kOutlookLayout{
    .labels = LabelColumn::Outlook, .unwrapsLabels = false, .verticalTab = R"(\n)"_L1,
    .folder = "CSV"_L1, .fileName = "%1/%2/%3's %4 %5.csv"_L1, .noteLine = "<<%1:%2>>\t"_L1,
};
inline constexpr InterchangeLayout kVCardLayout{
    .labels = LabelColumn::VCard,   .unwrapsLabels = false, .verticalTab = "//n"_L1,
    .folder = "VCF"_L1, .fileName = "%1/%2/%3's %4 %5.vcf"_L1, .noteLine = "%1:%2/\t"_L1,
};
// clang-format on
