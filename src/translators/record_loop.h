// SPDX-License-Identifier: MIT
#pragma once

#include "exporters/CIDataExporter.h"
#include "model/CIProgressCallback.h"
#include "model/PRData.h"

/// Whether the loop opens and closes each record at the exporter.
enum class ItemCalls { None, BeginAndEnd };

/// What one of `records` selected records is worth on the scale of `progress`; 0 without any.
inline double progressUnit(CIProgressCallback* progress, int records)
{
    if (progress == nullptr || records == 0) {
        return 0.0;
    }
    return static_cast<double>(progress->range()) / static_cast<double>(records);
}

/// One record of the walk. False when it could not be written; one that the exporter refuses is
/// passed over and no failure.
template <typename Item, ItemCalls kItemCalls, typename Translator>
bool translateRecord(Translator& translator, CIDataExporter* exporter, Item* item)
{
    if constexpr (kItemCalls == ItemCalls::None) {
        return translator.writeItem(exporter, item);
    } else {
        if (!exporter->beginItem(item->value(0))) {
            return true;
        }
        const bool written = translator.writeItem(exporter, item);
        return exporter->endItem() && written; // ended after a failure too
    }
}

/// The walk over the selected records that all translator families share. `Item` is the family's
/// record class; records of another class are passed over. A cancel ends the walk, and the footer
/// is still written; false means that something could not be written.
template <typename Item, ItemCalls kItemCalls, typename Translator>
bool translateRecords(Translator& translator, const PRData& data, CIDataExporter* exporter,
    const QString& title, CIProgressCallback* progress)
{
    if (!translator.prepare(exporter, title, progress)) {
        return false;
    }
    const QList<int> rows = data.recoverList();
    const double unit = progressUnit(progress, rows.size());
    if (!translator.writeHeader(exporter)) {
        return false;
    }
    for (const int row : rows) {
        // Before the record's work: it is also taken for records that are passed over.
        if (progress != nullptr && !progress->step(unit)) {
            break;
        }
        auto* item = dynamic_cast<Item*>(data.at(row, true));
        if (item != nullptr && !translateRecord<Item, kItemCalls>(translator, exporter, item)) {
            return false;
        }
    }
    return translator.writeFooter(exporter);
}
