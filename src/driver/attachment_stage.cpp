// SPDX-License-Identifier: MIT
// Media that the backup holds only as an address: collected after the categories are written.
#include "driver/CBackupExporter.h"
#include "driver/stage.h"
#include "model/CIProgressCallback.h"
#include "model/PRBackup.h"
#include "model/PRFileItem.h"
#include "model/PRWhatsappItem.h"
#include "platform/literals.h"

#include <QDir>

#include <algorithm>
#include <iterator>

namespace {

constexpr int kChatType = 14;
constexpr int kFileType = 15;
constexpr int kUnitsPerAttachment = 100;

// Case counts: an address in capitals is a path to this library.
bool isAddress(const QString& text)
{
    return text.startsWith("http"_L1);
}

} // namespace

bool CBackupExporter::runAttachmentStage(PRBackup* backup, const QDir& dir,
    CIProgressCallback* progress, const QVector<int>& dataTypes, bool convertHeic,
    const QString& ownerName, int attachWeight)
{
    if (progress != nullptr && !progress->step(0.0)) {
        return false;
    }
    QList<PRWhatsappMsg*> messages;
    QList<PRFileItem*> files;
    getDownloadChatMsg(messages, kChatType, backup, dataTypes);
    getDownloadFileItem(files, kFileType, backup, dataTypes);
    if (progress != nullptr) {
        progress->initRange(attachWeight + kUnitsPerAttachment * (messages.size() + files.size()));
        progress->setAttachStage(true);
    }
    onDownloadChatAttach(
        messages, kChatType, backup, dir, ownerName, dataTypes, progress, convertHeic);
    onDownloadFileAttach(
        files, kFileType, backup, dir, ownerName, dataTypes, progress, convertHeic);
    return true;
}

void CBackupExporter::getDownloadChatMsg(
    QList<PRWhatsappMsg*>& msgs, int dataType, PRBackup* backup, const QVector<int>& dataTypes)
{
    PRData* data = wantedSet(*backup, dataTypes, dataType);
    if (data == nullptr) {
        return;
    }
    const QList<int> rows = data->recoverList();
    for (const int row : rows) {
        auto* chat = dynamic_cast<PRWhatsappItem*>(data->at(row, true));
        if (chat == nullptr) {
            continue;
        }
        const bool partial = chat->flag(PartlySelected);
        const QList<PRWhatsappMsg*>& messages = chat->detailContent()->messages();
        std::ranges::copy_if(
            messages, std::back_inserter(msgs), [partial](const PRWhatsappMsg* message) {
                return (!partial || message->isChecked()) && isAddress(message->media());
            });
    }
}

void CBackupExporter::getDownloadFileItem(
    QList<PRFileItem*>& items, int dataType, PRBackup* backup, const QVector<int>& dataTypes)
{
    PRData* data = wantedSet(*backup, dataTypes, dataType);
    if (data == nullptr) {
        return;
    }
    const QList<PRAbstractItem*> records = data->recoverFileList();
    for (PRAbstractItem* record : records) {
        auto* file = dynamic_cast<PRFileItem*>(record);
        if (file != nullptr && isAddress(file->filePath())) {
            items.append(file);
        }
    }
}

// Chats and their files have no writer in this version, so nothing is fetched for them: both
// operations poll for a cancel, as they do before any download, and leave the records as they are.

void CBackupExporter::onDownloadChatAttach(QList<PRWhatsappMsg*>& /*msgs*/, int /*dataType*/,
    PRBackup* /*backup*/, const QDir& /*dir*/, const QString& /*ownerName*/,
    const QVector<int>& /*dataTypes*/, CIProgressCallback* progress, bool /*convertHeic*/)
{
    if (progress != nullptr) {
        progress->step(0.0); // the answer decides about downloads only
    }
}

void CBackupExporter::onDownloadFileAttach(QList<PRFileItem*>& /*items*/, int /*dataType*/,
    PRBackup* /*backup*/, const QDir& /*dir*/, const QString& /*ownerName*/,
    const QVector<int>& /*dataTypes*/, CIProgressCallback* progress, bool /*convertHeic*/)
{
    if (progress != nullptr) {
        progress->step(0.0); // as above
    }
}
