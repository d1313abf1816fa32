// SPDX-License-Identifier: MIT
#pragma once

#include "backup/container/FileLocator.h"

#include <QDir>

namespace backup {

/// Files that lie beside a single database file: under their path on the device, under the last
/// parts of it, or by their bare name.
class LooseFiles final : public FileLocator {
public:
    explicit LooseFiles(const QDir& directory) : m_directory(directory) {}

    QString locate(const QString& domain, const QString& relativePath) const override;
    QStringList filesBelow(const QString& domain, const QString& directory) const override;

private:
    QDir m_directory;
};

} // namespace backup
