// SPDX-License-Identifier: MIT
// Media that the backup holds only as an address: collected after the categories are written.
#include "driver/CBackupExporter.h"
#include "driver/category_order.h"
#include "driver/stage.h"
#include "model/CIProgressCallback.h"
#include "model/CSubProgress.h"
#include "model/PRBackup.h"
#include "model/PRFileItem.h"
#include "model/PRWhatsappItem.h"
#include "platform/Log.h"
#include "platform/literals.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace {

constexpr int kChatType = 14;
constexpr int kFileType = 15;
constexpr int kUnitsPerAttachment = 100;
constexpr int kPasses = 3;

// Case counts: an address in capitals is a path to this library.
bool isAddress(const QString& text)
{
    return text.startsWith("http"_L1);
}

// Proxy, host and connection (the numbers of the transfer), and what a server may mend. Any other
// end without a file would be the same the next time.
bool isWorthARetry(int code)
{
    return (code >= 5 && code <= 7) || code >= 400;
}

// False once the user has cancelled.
bool stepped(CIProgressCallback* progress, int units)
{
    return progress == nullptr || progress->step(units);
}

// What the media of messages and the files of records differ in.

struct MessageMedia {
    using Item = PRWhatsappMsg;

    static QString address(const PRWhatsappMsg& message) { return message.media(); }
    static QString suffix(const PRWhatsappMsg& /*message*/) { return QStringLiteral("jpg"); }
    static void setPath(PRWhatsappMsg& message, const QString& path) { message.setMedia(path); }
    static void logFailure(const QString& address, int code)
    {
        Log("CBackupExporter", 1, "onDownloadChatAttach %s HttpCode %d",
            address.toLocal8Bit().constData(), code);
    }
};

struct RecordFile {
    using Item = PRFileItem;

    static QString address(const PRFileItem& file) { return file.filePath(); }
    static QString suffix(const PRFileItem& file) { return QFileInfo(file.value(0)).suffix(); }
    static void setPath(PRFileItem& file, const QString& path) { file.setFilePath(path); }
    static void logFailure(const QString& address, int code)
    {
        Log("CBackupExporter", 1, "onDownloadFileAttach %s HttpCode %d",
            address.toLocal8Bit().constData(), code);
    }
};

/// Fetches the attachments of one list, in passes: what failed and is worth it is tried again when
/// all others have had their turn.
template <typename Media> class Downloads {
public:
    using Item = typename Media::Item;

    Downloads(const QList<Item*>& items, OvCurlWrapper& curl, const bool& cancelled,
        CIProgressCallback* progress)
        : m_pending(items), m_curl(curl), m_cancelled(cancelled), m_progress(progress)
    {
    }

    /// True when the category is to be written again, with what was fetched.
    bool run()
    {
        for (int pass = 0; pass < kPasses && !m_pending.isEmpty(); ++pass) {
            if (!runPass()) {
                return false;
            }
        }
        return m_gotSome;
    }

private:
    // False when the downloads were cancelled before one of the items. A cancel in the progress
    // ends the pass and not the run: a host that wants no more downloads calls `cancelDownload`.
    bool runPass()
    {
        const QList<Item*> snapshot = m_pending;
        for (Item* item : snapshot) {
            if (m_cancelled) {
                return false;
            }
            if (item == nullptr) {
                m_pending.removeOne(item);
                continue;
            }
            if (!fetch(*item) || !stepped(m_progress, m_units)) {
                m_gotSome = false;
                return true;
            }
        }
        return true;
    }

    // False: a cancel was seen behind a failure, which then leaves no line in the log.
    bool fetch(Item& item)
    {
        const QString address = Media::address(item);
        if (!isAddress(address)) {
            return true; // has its step, and stays
        }
        const QString path = PRData::onDowmloadThumbnail(m_curl, address, Media::suffix(item));
        const int code = m_curl.httpCode();
        if (QFile::exists(path)) {
            Media::setPath(item, path);
            m_pending.removeOne(&item);
            m_gotSome = true;
            m_units = kUnitsPerAttachment;
            return true;
        }
        if (!stepped(m_progress, 0)) {
            return false;
        }
        Media::logFailure(address, code);
        if (isWorthARetry(code)) {
            m_units = 0;
        } else {
            m_pending.removeOne(&item);
        }
        return true;
    }

    QList<Item*> m_pending;
    OvCurlWrapper& m_curl;
    const bool& m_cancelled; // may change during each download
    CIProgressCallback* m_progress;
    bool m_gotSome = false;
    // Held from item to item: behind one that waits for its next turn all failures report nothing,
    // until a download works again. So the scale may end short of its range.
    int m_units = kUnitsPerAttachment;
};

// The sets of both kinds take as much of the scale as in their first round.
int unitsOf(const PRData& data)
{
    return kUnitsPerRecord * data.recoverList().size();
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

void CBackupExporter::onDownloadChatAttach(QList<PRWhatsappMsg*>& msgs, int dataType,
    PRBackup* backup, const QDir& dir, const QString& ownerName, const QVector<int>& dataTypes,
    CIProgressCallback* progress, bool convertHeic)
{
    if (!stepped(progress, 0)
        || !Downloads<MessageMedia>(msgs, m_curl, m_cancelled, progress).run()) {
        return;
    }
    PRData* data = wantedSet(*backup, dataTypes, dataType);
    if (data == nullptr) {
        return;
    }
    const int units = unitsOf(*data);
    CSubProgress again(progress, units);
    again.initRange(units);
    // The page alone, which takes the place of the first one; a failure shows as in the first
    // round.
    exportWhatsappHtml(
        data, dir, ownerName, PRBackup::dataTypeName(dataType), &again, this, convertHeic);
}

void CBackupExporter::onDownloadFileAttach(QList<PRFileItem*>& items, int dataType,
    PRBackup* backup, const QDir& dir, const QString& ownerName, const QVector<int>& dataTypes,
    CIProgressCallback* progress, bool convertHeic)
{
    if (!stepped(progress, 0)
        || !Downloads<RecordFile>(items, m_curl, m_cancelled, progress).run()) {
        return;
    }
    PRData* data = wantedSet(*backup, dataTypes, dataType);
    if (data == nullptr) {
        return;
    }
    const int units = unitsOf(*data);
    CSubProgress again(progress, units);
    again.initRange(units);
    // All selected files once more; those of the first round keep their names, these get new ones.
    exportFile(data, dir, ownerName, PRBackup::dataTypeName(dataType), &again, this, convertHeic);
}
