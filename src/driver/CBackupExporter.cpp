// SPDX-License-Identifier: MIT
#include "driver/CBackupExporter.h"

#include "driver/category_order.h"
#include "driver/stage.h"
#include "model/CSubProgress.h"
#include "model/PRBackup.h"

#include <QDir>
#include <QEventLoop>

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

namespace {

// The types whose media may have to be fetched.
constexpr std::array kAttachmentTypes{14, 15};

int categoryWeight(const PRBackup& backup, const QVector<int>& dataTypes, int dataType)
{
    const PRData* data = dataTypes.contains(dataType) ? backup.getPRData(dataType) : nullptr;
    return data != nullptr ? data->recoverCount() * kUnitsPerRecord : 0;
}

} // namespace

struct CBackupExporter::DispatchTable {
    // The order in which categories are counted and written.
    std::array<CategoryEntry, kDataTypeCount> rows{{
        {21, exportFile},
        {22, exportFile},
        {23, exportFile},
        {2, exportContact},
        {0, exportSMS},
        {1, exportFile},
        {3, exportHtml},
        {29, exportCalendarIcs},
        {27, exportHtml},
        {28, exportFile},
        {30, exportHtml},
        {31, exportFile},
        {32, exportFile},
        {33, exportBookmark},
        {34, exportBookmark},
        {5, exportWhatsapp},
        {6, exportFile},
        {7, exportWhatsapp},
        {8, exportFile},
        {9, exportWhatsapp},
        {10, exportFile},
        {11, exportWhatsapp},
        {12, exportFile},
        {13, exportHtml},
        {14, exportWhatsapp},
        {15, exportFile},
        {16, exportWeichatContact},
        {17, exportWhatsapp},
        {18, exportFile},
        {19, exportWhatsapp},
        {20, exportFile},
        {24, exportFile},
        {25, exportFile},
        {26, exportFile},
        {35, exportFile},
        {4, exportFile},
    }};
};

// NOLINTBEGIN(performance-unnecessary-value-param): the name comes by value in the host's contract
bool CBackupExporter::exportBackup(PRBackup* backup, const QDir& dir, CIProgressCallback* progress,
    const QVector<int>& dataTypes, bool convertHeic, QString ownerName)
// NOLINTEND(performance-unnecessary-value-param)
{
    constexpr DispatchTable table;
    static_assert(std::ranges::equal(table.rows, kCategoryOrder, {}, &CategoryEntry::dataType));
    QVector<int> weights;
    weights.reserve(kDataTypeCount);
    int attachWeight = 0;
    for (const CategoryEntry& category : table.rows) {
        const int weight = categoryWeight(*backup, dataTypes, category.dataType);
        weights.append(weight);
        if (std::ranges::find(kAttachmentTypes, category.dataType) != kAttachmentTypes.end()) {
            attachWeight += weight;
        }
    }
    const int total = std::accumulate(weights.cbegin(), weights.cend(), 0);

    if (progress != nullptr && total != 0) {
        progress->initRange(total);
    }
    bool running = true;
    for (int row = 0; row < kDataTypeCount && running && total != 0; ++row) {
        const CategoryEntry& category = table.rows.at(static_cast<std::size_t>(row));
        // Asked afresh: the stored weight is for the scale alone.
        PRData* data = wantedSet(*backup, dataTypes, category.dataType);
        if (data == nullptr) {
            continue;
        }
        CSubProgress categoryProgress(progress, weights.at(row));
        categoryProgress.initRange(weights.at(row));
        // A category that fails has lost its directory and does not stop the run.
        category.entry(data, dir, ownerName, PRBackup::dataTypeName(category.dataType),
            &categoryProgress, this, convertHeic);
        running = categoryProgress.finish();
    }
    // Entered after a cancel too, which is noticed again at its head.
    if (attachWeight != 0
        && !runAttachmentStage(
            backup, dir, progress, dataTypes, convertHeic, ownerName, attachWeight)) {
        return true;
    }
    if (progress != nullptr) {
        progress->finish(); // the result says nothing that the caller does not know
    }
    return true;
}

bool CBackupExporter::exportBackup(PRBackup* backup, const QDir& dir, CIProgressCallback* progress,
    bool convertHeic, QString ownerName)
{
    QVector<int> allTypes(kDataTypeCount);
    std::iota(allTypes.begin(), allTypes.end(), 0);
    return exportBackup(backup, dir, progress, allTypes, convertHeic, std::move(ownerName));
}

void CBackupExporter::cancelDownload()
{
    m_stopLoop = false;
    m_cancelled = true;
    quitEventLoop();
}

void CBackupExporter::onStopLoop(bool stop)
{
    m_stopLoop = stop;
    quitEventLoop();
}

void CBackupExporter::quitEventLoop()
{
    if (m_eventLoop != nullptr) {
        m_eventLoop->quit();
        m_eventLoop->deleteLater();
        m_eventLoop = nullptr;
    }
}
