// SPDX-License-Identifier: MIT
#pragma once

#include "backup/container/opened_database.h"
#include "formats/Result.h"
#include "formats/sqlite.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace backup {

class Notices;

/// One file, directory or link of the device, as the manifest names it.
struct ManifestEntry {
    enum Flags { RegularFile = 1, Directory = 2, Link = 4 };

    QString fileId; ///< 40 hexadecimal digits; anything else is no entry
    QString domain;
    QString relativePath; ///< without a leading slash, without ".."
    int flags = 0;        ///< one of Flags
};

/// The index of a backup's files, Manifest.db. Nothing is loaded ahead: a row is read when it is
/// asked for, and one that cannot be used is told to the notices then. For one thread.
class Manifest {
public:
    /// The error is for a database that cannot be read or that is no manifest. `notices` outlives
    /// the manifest.
    static formats::Result<Manifest> open(const QString& path, Notices& notices);

    /// The entry of a regular file or a directory, stored under the path or under the other Unicode
    /// form of it.
    std::optional<ManifestEntry> find(const QString& domain, const QString& relativePath);

    /// A regular file of any domain whose path is `relativePath` or ends in it.
    std::optional<ManifestEntry> findInAnyDomain(const QString& relativePath);

    /// Relative paths of the regular files below a directory, in order; of the whole domain where
    /// `directory` is empty.
    QStringList filesBelow(const QString& domain, const QString& directory);

    /// Names of the domains that begin with `begin`, in order.
    QStringList domains(const QString& begin);

private:
    struct Queries {
        formats::Statement byPath;
        formats::Statement byPathInAnyDomain;
        formats::Statement byEndInAnyDomain;
        formats::Statement below;
        formats::Statement ofDomain;
        formats::Statement nextDomain;
    };

    Manifest(OpenedDatabase database, Queries queries, QString path, Notices& notices);
    static formats::Result<Queries> prepareQueries(const formats::Database& database);

    /// The next row that can be used; none at the end.
    std::optional<ManifestEntry> nextEntry(formats::Statement& query);
    std::optional<ManifestEntry> firstEntry(formats::Statement& query);

    OpenedDatabase m_database;
    Queries m_queries; // after the database that they need
    QString m_path;
    Notices* m_notices; // not owned
};

} // namespace backup
