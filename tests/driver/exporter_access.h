// SPDX-License-Identifier: MIT
#pragma once

#include "driver/CBackupExporter.h"

#include <QDir>
#include <QString>

/// Pointers to the private members of the driver, for tests of what no host sees:
/// `exporter.*access_to::cancelled()` is the field, `access_to::exportSMS()` the entry.
namespace access_to {

using Flag = bool CBackupExporter::*;
using EventLoopField = QEventLoop* CBackupExporter::*;
using CurlField = OvCurlWrapper CBackupExporter::*;
using Entry = bool (*)(PRData*, const QDir&, const QString&, const QString&, CIProgressCallback*,
    CBackupExporter*, bool);
using CollectMessages = void (CBackupExporter::*)(
    QList<PRWhatsappMsg*>&, int, PRBackup*, const QVector<int>&);
using CollectFiles = void (CBackupExporter::*)(
    QList<PRFileItem*>&, int, PRBackup*, const QVector<int>&);
using FetchMessages = void (CBackupExporter::*)(QList<PRWhatsappMsg*>&, int, PRBackup*, const QDir&,
    const QString&, const QVector<int>&, CIProgressCallback*, bool);
using FetchFiles = void (CBackupExporter::*)(QList<PRFileItem*>&, int, PRBackup*, const QDir&,
    const QString&, const QVector<int>&, CIProgressCallback*, bool);

Flag fromDFU();
Flag exportContactForTavero();
EventLoopField eventLoop();
CurlField curl();
Flag stopLoop();
Flag cancelled();
Entry exportBookmark();
Entry exportCalendarIcs();
Entry exportContact();
Entry exportFile();
Entry exportHtml();
Entry exportSMS();
Entry exportWeichatContact();
Entry exportWhatsapp();
Entry exportWhatsappHtml();
CollectMessages getDownloadChatMsg();
CollectFiles getDownloadFileItem();
FetchMessages onDownloadChatAttach();
FetchFiles onDownloadFileAttach();

} // namespace access_to
