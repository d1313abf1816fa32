// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/OpenedBackup.h"
#include "formats/Result.h"

#include <QString>
#include <QStringList>

/// What a command works on: a backup folder, a database file or a record set, opened.
struct Source {
    QString owner;               ///< as a record set names him, else empty
    backup::OpenedBackup opened; ///< of a record set the records alone

    const PRBackup& records() const { return opened.records; }
    PRBackup& records() { return opened.records; }

    /// What the user should know of it; more once its records have been asked for.
    QStringList notices() const;
};

/// Opens what lies at `path` by what it is, not by its name.
formats::Result<Source> openSource(const QString& path);
