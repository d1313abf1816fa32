// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace backup {

/// Where the files of a device lie on this computer.
class FileLocator {
public:
    FileLocator() = default;
    FileLocator(const FileLocator&) = delete;
    FileLocator& operator=(const FileLocator&) = delete;
    virtual ~FileLocator() = default;

    /// Path on this computer of the device's file; empty when it is not there.
    virtual QString locate(const QString& domain, const QString& relativePath) const = 0;

    /// Relative paths of the regular files below a directory of the device, in order.
    virtual QStringList filesBelow(const QString& domain, const QString& directory) const = 0;
};

} // namespace backup
