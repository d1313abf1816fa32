// SPDX-License-Identifier: MIT
#pragma once

#include "platform/OvCurlWrapper.h"
#include "platform/export.h"

#include <QList>
#include <QStringList>
#include <QVector>

class CIProgressCallback;
class PRBackup;
class PRData;
class PRFileItem;
class PRWhatsappMsg;
class QDir;
class QEventLoop;
class QString;

/// Writes the selected records of an opened backup as files, a directory for each category.
/// An object lives across exports. Everything runs on the thread of the caller; `cancelDownload`
/// and `onStopLoop` alone are meant to be called while an export runs.
class DATAEXPORT_EXPORT CBackupExporter {
public:
    /// Writes the categories in `dataTypes` (numbers 0 to 35; others, and repeated ones, have no
    /// effect) beneath `dir`. `progress` may be null. `ownerName` is the first word of every title
    /// and file name. Always true: a category that fails shows by its directory being gone.
    bool exportBackup(PRBackup* backup, const QDir& dir, CIProgressCallback* progress,
        const QVector<int>& dataTypes, bool convertHeic, QString ownerName);
    /// The same for all data types.
    bool exportBackup(PRBackup* backup, const QDir& dir, CIProgressCallback* progress,
        bool convertHeic, QString ownerName);

    /// Whether the backup was read from a device in recovery mode, whose media are protected.
    void setFromDFU(bool fromDFU) { m_fromDFU = fromDFU; }
    /// Whether contacts take their Tavero form.
    void setExportContactForTavero(bool forTavero) { m_exportContactForTavero = forTavero; }

    /// The HEIC pictures of which no JPEG could be made, since the object was made: paths of their
    /// copies.
    const QStringList& unconvertedPictures() const { return m_unconvertedPictures; }

    /// Skips all downloads that have not begun, now and for the life of the object.
    void cancelDownload();
    void onStopLoop(bool stop);

private:
    using Entry = bool (*)(PRData* data, const QDir& dir, const QString& ownerName,
        const QString& categoryName, CIProgressCallback* progress, CBackupExporter* owner,
        bool convertHeic);
    struct CategoryEntry {
        int dataType;
        Entry entry;
    };
    struct DispatchTable;

    static bool exportBookmark(PRData* data, const QDir& dir, const QString& ownerName,
        const QString& categoryName, CIProgressCallback* progress, CBackupExporter* owner,
        bool convertHeic);
    static bool exportCalendarIcs(PRData* data, const QDir& dir, const QString& ownerName,
        const QString& categoryName, CIProgressCallback* progress, CBackupExporter* owner,
        bool convertHeic);
    static bool exportContact(PRData* data, const QDir& dir, const QString& ownerName,
        const QString& categoryName, CIProgressCallback* progress, CBackupExporter* owner,
        bool convertHeic);
    static bool exportFile(PRData* data, const QDir& dir, const QString& ownerName,
        const QString& categoryName, CIProgressCallback* progress, CBackupExporter* owner,
        bool convertHeic);
    static bool exportHtml(PRData* data, const QDir& dir, const QString& ownerName,
        const QString& categoryName, CIProgressCallback* progress, CBackupExporter* owner,
        bool convertHeic);
    static bool exportSMS(PRData* data, const QDir& dir, const QString& ownerName,
        const QString& categoryName, CIProgressCallback* progress, CBackupExporter* owner,
        bool convertHeic);
    static bool exportWeichatContact(PRData* data, const QDir& dir, const QString& ownerName,
        const QString& categoryName, CIProgressCallback* progress, CBackupExporter* owner,
        bool convertHeic);
    static bool exportWhatsapp(PRData* data, const QDir& dir, const QString& ownerName,
        const QString& categoryName, CIProgressCallback* progress, CBackupExporter* owner,
        bool convertHeic);
    static bool exportWhatsappHtml(PRData* data, const QDir& dir, const QString& ownerName,
        const QString& categoryName, CIProgressCallback* progress, CBackupExporter* owner,
        bool convertHeic);

    void getDownloadChatMsg(
        QList<PRWhatsappMsg*>& msgs, int dataType, PRBackup* backup, const QVector<int>& dataTypes);
    void getDownloadFileItem(
        QList<PRFileItem*>& items, int dataType, PRBackup* backup, const QVector<int>& dataTypes);
    void onDownloadChatAttach(QList<PRWhatsappMsg*>& msgs, int dataType, PRBackup* backup,
        const QDir& dir, const QString& ownerName, const QVector<int>& dataTypes,
        CIProgressCallback* progress, bool convertHeic);
    void onDownloadFileAttach(QList<PRFileItem*>& items, int dataType, PRBackup* backup,
        const QDir& dir, const QString& ownerName, const QVector<int>& dataTypes,
        CIProgressCallback* progress, bool convertHeic);

    /// False when a cancel was seen at its head: the export then ends without a last `finish`.
    bool runAttachmentStage(PRBackup* backup, const QDir& dir, CIProgressCallback* progress,
        const QVector<int>& dataTypes, bool convertHeic, const QString& ownerName,
        int attachWeight);
    void quitEventLoop();

    bool m_fromDFU = false;
    bool m_exportContactForTavero = false;
    QEventLoop* m_eventLoop = nullptr; // nothing here sets it; an extension may wait in one
    OvCurlWrapper m_curl;              // one for all attachments, asked for its code after each
    bool m_stopLoop = false;
    bool m_cancelled = false; // never reset: an exporter once cancelled skips all later downloads
    QStringList m_unconvertedPictures;
};
