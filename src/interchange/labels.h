// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <QLatin1String>

/// The column of the label table that a layout reads.
enum class LabelColumn { Google, Outlook, VCard };

/// What the layout writes for a label of the phone. `family` is "TEL", "URL", "EMAIL", "X-DT",
/// "ADR" or "X-RSH". Empty where the family has no such label, and for every other family: the
/// services of "X-IM" have no words of their own.
QLatin1String mappedLabel(LabelColumn column, QLatin1String family, const QString& label);
