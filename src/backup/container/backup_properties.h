// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace backup {

class Notices;

/// What the backup says of the device. Every text may be empty.
struct DeviceInfo {
    QString name;
    QString productType;    ///< "iPhone14,5"
    QString productVersion; ///< "17.5.1"
    QString lastBackup;     ///< ISO 8601
};

/// What the property lists of a backup folder say.
struct BackupProperties {
    DeviceInfo device;
    bool knowsEncryption = false; ///< whether Manifest.plist could be read
    bool encrypted = false;
};

/// Reads Info.plist, Manifest.plist and Status.plist of a folder. None of them must be there; the
/// notices are told what their absence or their contents mean for the backup.
BackupProperties readBackupProperties(const QString& folder, Notices& notices);

} // namespace backup
