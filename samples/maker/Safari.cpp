// SPDX-License-Identifier: MIT
#include "Safari.h"

#include "common.h"
#include "plist_writer.h"

#include <QDateTime>
#include <QUrl>

namespace sample {

namespace {

enum SpecialFolder { Ordinary = 0, Favourites = 1, ReadingList = 3, OftenVisited = 5 };
enum RowType { Leaf = 0, Folder = 1 };

constexpr int kRoot = 0;

QByteArray readingListAttributes(const QJsonObject& source)
{
    const qint64 seconds = secondsSince2001(source["added"].toString()) + kUnixAt2001;
    QVariantMap values{{"DateAdded", QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC)}};
    if (source.contains("preview")) {
        values["PreviewText"] = source["preview"].toString();
    }
    return binaryPlist(QVariantMap{{"com.apple.ReadingList", values}});
}

} // namespace

SafariBookmarks::SafariBookmarks(Database& database) : m_database(database)
{
}

void SafariBookmarks::write(const QJsonObject& source)
{
    m_database.run("BEGIN");
    m_database.insert("bookmarks", {{"id", kRoot}, {"type", Folder}, {"title", "Root"},
                                       {"order_index", 0}, {"external_uuid", "Root"}});
    const qint64 favourites = writeFolder(kRoot, "BookmarksBar", Favourites);
    const qint64 readingList = writeFolder(kRoot, "com.apple.ReadingList", ReadingList);
    const qint64 often = writeFolder(kRoot, "com.apple.FrequentlyVisitedSites", OftenVisited);
    for (const qint64 hidden : {readingList, often}) {
        m_database.run("UPDATE bookmarks SET hidden = 1 WHERE id = " + QByteArray::number(hidden));
    }
    writeEntries(favourites, source["favourites"]);
    writeEntries(kRoot, source["bookmarks"]);
    writeReadingList(readingList, source["readingList"]);
    m_database.run("UPDATE bookmarks SET num_children ="
                   " (SELECT count(*) FROM bookmarks b WHERE b.parent = bookmarks.id);"
                   "COMMIT");
}

qint64 SafariBookmarks::writeFolder(qint64 parent, const QString& title, int special)
{
    const qint64 folder = m_database.insert("bookmarks",
        {{"special_id", special}, {"parent", parent}, {"type", Folder}, {"title", title},
            {"order_index", ++m_order}, {"external_uuid", uuidFor("bookmarks " + title)},
            {"deletable", special == Ordinary ? 1 : 0}});
    m_database.insert("folder_ancestors", {{"folder_id", folder}, {"ancestor_id", parent}});
    return folder;
}

Database::Row SafariBookmarks::rowOf(const QJsonObject& source, qint64 folder)
{
    const QString url = source["url"].toString();
    return {{"parent", folder}, {"type", Leaf}, {"title", source["title"].toString()}, {"url", url},
        {"order_index", ++m_order}, {"external_uuid", uuidFor("bookmark " + url)},
        {"deleted", source["deleted"].toBool() ? 1 : 0}};
}

void SafariBookmarks::writeEntries(qint64 folder, const QJsonValue& entries)
{
    for (const QJsonValue& entry : entriesOf(entries)) {
        const QJsonObject source = entry.toObject();
        if (source.contains("folder")) {
            writeEntries(
                writeFolder(folder, source["folder"].toString(), Ordinary), source["entries"]);
        } else {
            m_database.insert("bookmarks", rowOf(source, folder));
        }
    }
}

void SafariBookmarks::writeReadingList(qint64 folder, const QJsonValue& entries)
{
    for (const QJsonValue& entry : entriesOf(entries)) {
        const QJsonObject source = entry.toObject();
        Database::Row row = rowOf(source, folder);
        row.emplace_back("read", source["read"].toBool() ? 1 : 0);
        row.emplace_back("hidden_ancestor_count", 1);
        row.emplace_back(
            "last_modified", secondsSince2001(source["added"].toString()) + kUnixAt2001);
        row.emplace_back("extra_attributes", readingListAttributes(source));
        m_database.insert("bookmarks", row);
    }
}

SafariHistory::SafariHistory(Database& database) : m_database(database)
{
}

void SafariHistory::write(const QJsonObject& source)
{
    m_database.run("BEGIN");
    for (const QJsonValue& visit : entriesOf(source["history"])) {
        writeVisit(visit.toObject());
    }
    for (const QJsonValue& deleted : entriesOf(source["deletedHistory"])) {
        m_database.insert(
            "history_tombstones", {{"start_time", secondsSince2001(deleted["from"].toString())},
                                      {"end_time", secondsSince2001(deleted["to"].toString())},
                                      {"url", deleted["url"].toString()}, {"generation", 1}});
    }
    m_database.run("UPDATE history_items SET visit_count ="
                   " (SELECT count(*) FROM history_visits WHERE history_item = history_items.id);"
                   "COMMIT");
}

qint64 SafariHistory::page(const QString& address)
{
    qint64& row = m_pages[address];
    if (row == 0) {
        row = m_database.insert("history_items",
            {{"url", address}, {"domain_expansion", QUrl(address).host().section('.', 0, -2)},
                {"visit_count", 0}, {"daily_visit_counts", QByteArray(4, '\0')},
                {"should_recompute_derived_visit_counts", 0}, {"visit_count_score", 100}});
    }
    return row;
}

// The page that led on was asked for first, and has no title.
qint64 SafariHistory::writeHop(const QString& address, qint64 seconds, qint64 destination)
{
    return m_database.insert(
        "history_visits", {{"id", destination - 1}, {"history_item", page(address)},
                              {"visit_time", seconds}, {"redirect_destination", destination}});
}

void SafariHistory::writeVisit(const QJsonObject& source)
{
    const qint64 seconds = secondsSince2001(source["at"].toString());
    const QString via = source["via"].toString();
    ++m_visits;
    QVariant hop;
    if (!via.isEmpty()) {
        ++m_visits;
        hop = writeHop(via, seconds, m_visits);
    }
    m_database.insert("history_visits",
        {{"id", m_visits}, {"history_item", page(source["url"].toString())},
            {"visit_time", seconds}, {"title", source["title"].toString()},
            {"redirect_source", hop}, {"origin", source["origin"].toInt()}, {"score", 100}});
}

} // namespace sample
