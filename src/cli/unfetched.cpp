// SPDX-License-Identifier: MIT
#include "cli/unfetched.h"

#include "model/PRBackup.h"
#include "model/PRFileItem.h"
#include "model/PRWhatsappItem.h"
#include "platform/literals.h"

#include <algorithm>

namespace {

// The data types whose attachments the library fetches.
constexpr int kChats = 14;
constexpr int kFiles = 15;

// As the library sees it: an address in capitals is a path.
bool isAddress(const QString& text)
{
    return text.startsWith("http"_L1);
}

int countOfChat(const PRAbstractItem* record)
{
    const auto* chat = dynamic_cast<const PRWhatsappItem*>(record);
    if (chat == nullptr) {
        return 0;
    }
    const bool partial = chat->flag(PartlySelected);
    return static_cast<int>(std::ranges::count_if(
        chat->detailContent()->messages(), [partial](const PRWhatsappMsg* message) {
            return (!partial || message->isChecked()) && isAddress(message->media());
        }));
}

int countOfFile(const PRAbstractItem* record)
{
    const auto* file = dynamic_cast<const PRFileItem*>(record);
    return file != nullptr && isAddress(file->filePath()) ? 1 : 0;
}

} // namespace

int unfetchedAttachments(const PRBackup& records, const QVector<int>& dataTypes)
{
    int count = 0;
    for (const int dataType : {kChats, kFiles}) {
        const PRData* data = dataTypes.contains(dataType) ? records.getPRData(dataType) : nullptr;
        const QList<PRAbstractItem*> selected =
            data != nullptr ? data->recoverFileList() : QList<PRAbstractItem*>();
        for (const PRAbstractItem* record : selected) {
            count += dataType == kChats ? countOfChat(record) : countOfFile(record);
        }
    }
    return count;
}
