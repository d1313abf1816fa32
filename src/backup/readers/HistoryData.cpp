// SPDX-License-Identifier: MIT
// History.db, iOS 8 and later
//   history_items       id, url
//   history_visits      id, history_item, visit_time (seconds since 2001; the newest releases may
//                       have them since 1970), title, redirect_destination (the visit to which the
//                       page led on by itself)
//   history_tombstones  url, start_time, end_time: visits that were deleted
#include "backup/readers/HistoryData.h"

#include "backup/readers/safari_records.h"
#include "backup/readers/table_reader.h"
#include "platform/literals.h"

#include <algorithm>
#include <array>
#include <unordered_map>

namespace backup {

namespace {

struct Page {
    QString address;
    QString title; // of its newest visit that has one
};

struct StoredVisit {
    qint64 id = 0;
    qint64 page = 0;
    qint64 destination = 0;
    Visit visit;
};

using Pages = std::unordered_map<qint64, Page>;

bool isAhead(const QDateTime& date)
{
    return date.isValid() && date > QDateTime::currentDateTimeUtc();
}

// A date behind 2031 that lies ahead is counted since 1970, if it is a date at all: the end of a
// stretch of time can be the end of all time.
QDateTime visitDate(const formats::Statement& row, int column)
{
    constexpr double kSecondsTo2032 = 978'307'200; // from 2001, and from 1970 to 2001
    QDateTime since2001 = cocoaDate(row, column);
    if (row.real(column) < kSecondsTo2032 || !isAhead(since2001)) {
        return since2001;
    }
    QDateTime since1970 = unixDate(row, column);
    return isAhead(since1970) ? QDateTime() : since1970;
}

Pages readPages(const TableReader& store)
{
    const std::array columns{WantedColumn{"id"_L1, true}, WantedColumn{"url"_L1, true}};
    Pages pages;
    store.read("history_items"_L1, columns,
        [&](const formats::Statement& row) { pages[row.integer(0)].address = row.text(1); });
    return pages;
}

std::vector<StoredVisit> readStoredVisits(const TableReader& store)
{
    enum Column : int { Id, Item, Time, Title, Destination };
    const std::array columns{WantedColumn{"id"_L1, true}, WantedColumn{"history_item"_L1, true},
        WantedColumn{"visit_time"_L1, true}, WantedColumn{"title"_L1, true},
        WantedColumn{"redirect_destination"_L1}};
    std::vector<StoredVisit> visits;
    store.read("history_visits"_L1, columns, [&](const formats::Statement& row) {
        visits.push_back({.id = row.integer(Id),
            .page = row.integer(Item),
            .destination = row.integer(Destination),
            .visit = {.title = row.text(Title), .date = visitDate(row, Time)}});
    });
    std::ranges::sort(visits, std::less(), &StoredVisit::id);
    return visits;
}

// A page that led on to a later visit was never seen.
bool ledOn(const StoredVisit& visit, const std::vector<StoredVisit>& all)
{
    return visit.destination > visit.id
           && std::ranges::binary_search(all, visit.destination, std::less(), &StoredVisit::id);
}

void learnTitles(const std::vector<StoredVisit>& visits, Pages& pages)
{
    for (const StoredVisit& stored : visits) {
        const auto page = pages.find(stored.page);
        if (page != pages.end() && !stored.visit.title.isEmpty()) {
            page->second.title = stored.visit.title;
        }
    }
}

void readVisits(const TableReader& store, std::vector<Visit>& all)
{
    Pages pages = readPages(store);
    std::vector<StoredVisit> stored = readStoredVisits(store);
    learnTitles(stored, pages);
    std::vector<bool> hops;
    hops.reserve(stored.size());
    for (const StoredVisit& one : stored) {
        hops.push_back(ledOn(one, stored));
    }
    for (std::size_t i = 0; i < stored.size(); ++i) {
        const auto page = pages.find(stored[i].page);
        Visit& visit = stored[i].visit;
        if (page != pages.end()) {
            visit.address = page->second.address;
            visit.title = visit.title.isEmpty() ? page->second.title : visit.title;
        }
        if (!hops[i] && !(visit.address.isEmpty() && visit.title.isEmpty())) {
            all.push_back(std::move(visit));
        }
    }
}

// Those without an address stand for a stretch of time in which all was deleted.
void readTombstones(const TableReader& store, std::vector<Visit>& all)
{
    enum Column : int { Address, End, Start };
    const std::array columns{
        WantedColumn{"url"_L1}, WantedColumn{"end_time"_L1}, WantedColumn{"start_time"_L1}};
    if (!store.database().hasTable("history_tombstones"_L1)) {
        return; // the first releases have none
    }
    store.read("history_tombstones"_L1, columns, [&](const formats::Statement& row) {
        if (row.textView(Address).empty()) {
            return;
        }
        const QDateTime end = visitDate(row, End);
        all.push_back({.address = row.text(Address),
            .date = end.isValid() ? end : visitDate(row, Start),
            .deleted = true});
    });
}

} // namespace

HistoryData::HistoryData(Notices& notices) : LazyData(kDataType, linkColumns(), notices)
{
}

bool HistoryData::isHistory(const formats::Database& database)
{
    const QStringList tables = database.tables();
    return tables.contains("history_visits"_L1) && tables.contains("history_items"_L1);
}

RecordList HistoryData::read(const std::vector<NamedDatabase>& databases, Notices& notices) const
{
    std::vector<Visit> all;
    for (const NamedDatabase& store : databases) {
        const TableReader reader(store.opened.database, store.name, notices);
        readVisits(reader, all);
        readTombstones(reader, all);
    }
    return visitRecords(std::move(all));
}

} // namespace backup
