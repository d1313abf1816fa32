// SPDX-License-Identifier: MIT
// The table of Manifest.db that is read here; `file` (size, times, rights) is not.
//   CREATE TABLE Files (fileID TEXT PRIMARY KEY, domain TEXT, relativePath TEXT, flags INTEGER,
//                       file BLOB)
// fileID is the name of the payload, the SHA-1 of "domain-relativePath" in hexadecimal digits;
// flags is 1 for a file, 2 for a directory, 4 for a link. There are indexes on domain and on
// relativePath, each on its own.
#include "backup/container/Manifest.h"

#include "backup/container/Notices.h"
#include "backup/container/manifest_path.h"

#include <algorithm>
#include <utility>

namespace backup {

namespace {

using formats::Error;
using formats::Result;
using formats::Statement;

const QString kSelect = QStringLiteral("SELECT fileID, domain, relativePath, flags FROM Files ");

// The plus keeps SQLite off the index on domains, some of which hold half of all files.
const QString kByPath =
    kSelect + QStringLiteral("WHERE +domain = ?1 AND relativePath = ?2 AND flags IN (1, 2)");

const QString kByPathInAnyDomain =
    kSelect + QStringLiteral("WHERE relativePath = ?1 AND flags = 1 ORDER BY domain");

// No index knows the ends of paths. The inner query reads the index on relativePath from end to
// end, a tenth of the table.
const QString kByEndInAnyDomain = kSelect
                                  + QStringLiteral("WHERE rowid IN (SELECT rowid FROM Files"
                                                   " WHERE substr(relativePath, -length(?1)) = ?1)"
                                                   " AND flags = 1 ORDER BY domain, relativePath");

// "0" follows "/": the range holds all that begins with the directory and a slash.
const QString kBelow =
    kSelect
    + QStringLiteral("WHERE +domain = ?1 AND relativePath > ?2 || '/' AND relativePath < ?2 || '0'"
                     " AND flags = 1 ORDER BY relativePath");

const QString kOfDomain =
    kSelect + QStringLiteral("WHERE domain = ?1 AND flags = 1 ORDER BY relativePath");

// Asked once for each domain: the index leads from one to the next.
const QString kNextDomain = QStringLiteral("SELECT min(domain) FROM Files WHERE domain > ?1");

QString shownName(const ManifestEntry& entry)
{
    return entry.domain + QLatin1Char('/') + entry.relativePath;
}

// The root directory of a domain has no path of its own.
bool hasUsablePath(const ManifestEntry& entry)
{
    return isSafeRelativePath(entry.relativePath)
           || (entry.relativePath.isEmpty() && entry.flags == ManifestEntry::Directory);
}

// Tells the notices of a row that cannot be used.
bool isUsable(const ManifestEntry& entry, Notices& notices)
{
    if (!hasUsablePath(entry)) {
        notices.addOneOfMany(
            QStringLiteral("%1: the manifest gives a path that is not used, it could lead out of a "
                           "folder")
                .arg(shownName(entry)),
            QStringLiteral("%1 more paths of the manifest are not used, they could lead out of a "
                           "folder"));
        return false;
    }
    if (!isFileId(entry.fileId)) {
        notices.addOneOfMany(
            QStringLiteral("%1: the manifest gives it a file name that is none (\"%2\")")
                .arg(shownName(entry), entry.fileId),
            QStringLiteral("%1 more files have a file name in the manifest that is none"));
        return false;
    }
    return true;
}

// Empty where the table is a manifest's.
QString whyNoManifest(const QStringList& columns)
{
    if (columns.isEmpty()) {
        return QStringLiteral("this is no manifest of a backup: it has no table Files");
    }
    const QStringList needed = {QStringLiteral("fileID"), QStringLiteral("domain"),
        QStringLiteral("relativePath"), QStringLiteral("flags")};
    const auto absent = std::ranges::find_if(
        needed, [&columns](const QString& column) { return !columns.contains(column); });
    return absent == needed.end()
               ? QString()
               : QStringLiteral("this is no manifest of a backup: its table Files has no column %1")
                     .arg(*absent);
}

} // namespace

Manifest::Manifest(OpenedDatabase database, Queries queries, QString path, Notices& notices)
    : m_database(std::move(database)), m_queries(std::move(queries)), m_path(std::move(path)),
      m_notices(&notices)
{
}

Result<Manifest> Manifest::open(const QString& path, Notices& notices)
{
    auto opened = openWithLog(path, path + QStringLiteral("-wal"), notices);
    if (!opened) {
        return opened.error();
    }
    const QString reason = whyNoManifest(opened->database.columns(QStringLiteral("Files")));
    if (!reason.isEmpty()) {
        return Error{.where = path, .what = reason};
    }
    auto queries = prepareQueries(opened->database);
    if (!queries) {
        return Error{.where = path, .what = queries.error().what};
    }
    return Manifest(std::move(*opened), std::move(*queries), path, notices);
}

Result<Manifest::Queries> Manifest::prepareQueries(const formats::Database& database)
{
    Queries queries;
    const std::pair<Statement*, const QString&> texts[] = {
        {&queries.byPath, kByPath},
        {&queries.byPathInAnyDomain, kByPathInAnyDomain},
        {&queries.byEndInAnyDomain, kByEndInAnyDomain},
        {&queries.below, kBelow},
        {&queries.ofDomain, kOfDomain},
        {&queries.nextDomain, kNextDomain},
    };
    for (const auto& [statement, text] : texts) {
        auto prepared = database.prepare(text);
        if (!prepared) {
            return prepared.error();
        }
        *statement = std::move(*prepared);
    }
    return queries;
}

std::optional<ManifestEntry> Manifest::find(const QString& domain, const QString& relativePath)
{
    const QStringList forms = unicodeForms(relativePath);
    for (const QString& form : forms) {
        m_queries.byPath.bind(1, domain).bind(2, form);
        if (auto entry = firstEntry(m_queries.byPath)) {
            return entry;
        }
    }
    return std::nullopt;
}

std::optional<ManifestEntry> Manifest::findInAnyDomain(const QString& relativePath)
{
    m_queries.byPathInAnyDomain.bind(1, relativePath);
    if (auto entry = firstEntry(m_queries.byPathInAnyDomain)) {
        return entry;
    }
    m_queries.byEndInAnyDomain.bind(1, QLatin1Char('/') + relativePath);
    return firstEntry(m_queries.byEndInAnyDomain);
}

QStringList Manifest::filesBelow(const QString& domain, const QString& directory)
{
    QStringList paths;
    const QStringList forms = unicodeForms(withoutTrailingSlashes(directory));
    for (const QString& form : forms) {
        Statement& query = form.isEmpty() ? m_queries.ofDomain : m_queries.below;
        query.bind(1, domain);
        if (!form.isEmpty()) {
            query.bind(2, form);
        }
        while (const auto entry = nextEntry(query)) {
            paths.append(entry->relativePath);
        }
        query.reset();
    }
    return paths;
}

QStringList Manifest::domains(const QString& begin)
{
    Statement& query = m_queries.nextDomain;
    QStringList names;
    QString last = begin;
    while (true) {
        query.bind(1, last);
        const QString next = query.next() ? query.text(0) : QString();
        query.reset();
        // A name that the last one does not precede would never end.
        if (!next.startsWith(begin) || next <= last) {
            return names;
        }
        names.append(next);
        last = next;
    }
}

std::optional<ManifestEntry> Manifest::nextEntry(Statement& query)
{
    while (query.next()) {
        ManifestEntry entry{.fileId = query.text(0),
            .domain = query.text(1),
            .relativePath = query.text(2),
            .flags = static_cast<int>(query.integer(3))};
        if (isUsable(entry, *m_notices)) {
            return entry;
        }
    }
    if (query.failed()) {
        m_notices->add(QStringLiteral("%1: the manifest is damaged (%2); files may be missing")
                           .arg(m_path, query.errorText()));
    }
    return std::nullopt;
}

// Leaves the query at its start: one that stands on a row keeps a page.
std::optional<ManifestEntry> Manifest::firstEntry(Statement& query)
{
    auto entry = nextEntry(query);
    query.reset();
    return entry;
}

} // namespace backup
