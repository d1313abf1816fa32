// SPDX-License-Identifier: MIT
// Bookmarks.plist
//   {WebBookmarkType: WebBookmarkTypeList, Title: "Travel", Children: [
//     {WebBookmarkType: WebBookmarkTypeLeaf, URLString: "https://...", URIDictionary: {title:
//     ...}}]}
// History.plist; lastVisitedDate is a text, seconds since 2001
//   {WebHistoryDates: [{"": "https://...", title: ..., lastVisitedDate: "325160392.8"}]}
#include "backup/readers/safari_lists.h"

#include "backup/readers/BookmarkData.h"
#include "backup/readers/HistoryData.h"
#include "backup/readers/safari_records.h"
#include "formats/cocoa_values.h"
#include "platform/literals.h"

#include <array>

namespace backup {

namespace {

constexpr int kDeepest = 100; // folders in one another

// Folders that the phone shows without a name.
constexpr std::array kTopFolders{"BookmarksBar"_L1, "BookmarksMenu"_L1};

QString folderName(const QVariantMap& folder)
{
    QString title = folder.value("Title"_L1).toString();
    const bool top = std::ranges::find(kTopFolders, title) != kTopFolders.end();
    return top ? QString() : title;
}

void addBookmarks(
    const QVariantMap& node, const QString& group, int depth, std::vector<Bookmark>& all)
{
    const QString type = node.value("WebBookmarkType"_L1).toString();
    if (type == "WebBookmarkTypeLeaf"_L1) {
        const QString address = node.value("URLString"_L1).toString();
        if (!address.isEmpty()) {
            all.push_back(
                {.title = node.value("URIDictionary"_L1).toMap().value("title"_L1).toString(),
                    .address = address,
                    .group = group});
        }
        return;
    }
    if (type != "WebBookmarkTypeList"_L1 || depth == kDeepest) {
        return;
    }
    const QString name = folderName(node);
    const QString path = group.isEmpty() || name.isEmpty() ? group + name : group + " / "_L1 + name;
    const QVariantList children = node.value("Children"_L1).toList();
    for (const QVariant& child : children) {
        addBookmarks(child.toMap(), path, depth + 1, all);
    }
}

} // namespace

std::unique_ptr<PRData> bookmarksOfList(const QVariant& list)
{
    std::vector<Bookmark> all;
    addBookmarks(list.toMap(), QString(), 0, all);
    return std::make_unique<PRData>(
        BookmarkData::kDataType, bookmarkRecords(std::move(all)), linkColumns());
}

std::unique_ptr<PRData> historyOfList(const QVariant& list)
{
    std::vector<Visit> visits;
    const QVariantList pages = list.toMap().value("WebHistoryDates"_L1).toList();
    for (const QVariant& page : pages) {
        const QVariantMap values = page.toMap();
        const QString address = values.value(QString()).toString();
        const double seconds = values.value("lastVisitedDate"_L1).toDouble();
        if (!address.isEmpty()) {
            visits.push_back({.title = values.value("title"_L1).toString(),
                .address = address,
                .date = seconds == 0 ? QDateTime() : formats::dateFromCocoaSeconds(seconds)});
        }
    }
    return std::make_unique<PRData>(
        HistoryData::kDataType, visitRecords(std::move(visits)), linkColumns());
}

} // namespace backup
