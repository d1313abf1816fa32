// SPDX-License-Identifier: MIT
//   <group>
//   <label>: <title that links to the address>
#include "backup/readers/safari_records.h"

#include "backup/readers/table_reader.h"
#include "model/PRSafariBookmarkItem.h"
#include "platform/CCommonUtils.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QUrl>

#include <algorithm>

namespace backup {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

// Three values, of which `VisitItem` has its own.
const QStringList& threeValues()
{
    static const QStringList values{QString(), QString(), QString()};
    return values;
}

/// A visit that makes its texts when they are asked for: there can be a hundred thousand.
class VisitItem final : public PRSafariBookmarkItem {
public:
    explicit VisitItem(Visit visit)
        : PRSafariBookmarkItem(
            {.values = threeValues(), .flags = visit.deleted ? Deleted : 0}, historyGroup()),
          m_title(std::move(visit.title)), m_address(std::move(visit.address)),
          m_date(dateOrder(visit.date))
    {
    }

    QString value(int column) const override
    {
        switch (column) {
        case 0:
            return m_title.isEmpty() ? m_address : m_title;
        case 1:
            return m_address;
        case 2:
            return linkLabel(date(), m_address);
        default:
            return {};
        }
    }

private:
    QDateTime date() const
    {
        return m_date == dateOrder({}) ? QDateTime()
                                       : QDateTime::fromMSecsSinceEpoch(m_date, Qt::UTC);
    }

    QString m_title; // empty: the address serves
    QString m_address;
    qint64 m_date; // as `dateOrder` has it
};

} // namespace

QString readingListGroup()
{
    return QStringLiteral("Reading List");
}

QString historyGroup()
{
    static const QString group = QStringLiteral("History");
    return group;
}

QString linkLabel(const QDateTime& date, const QString& address)
{
    QString dateText = CCommonUtils::datetimeToMinute(date, true);
    if (!dateText.isEmpty()) {
        return dateText;
    }
    const QUrl url(address);
    const QString host = url.host();
    if (!host.isEmpty()) {
        return host.startsWith("www."_L1) ? host.mid(4) : host;
    }
    return url.scheme().isEmpty() ? address.section(QChar(u'/'), 0, 0) : url.scheme();
}

RecordList bookmarkRecords(std::vector<Bookmark> bookmarks)
{
    RecordList records;
    records.reserve(bookmarks.size());
    for (Bookmark& bookmark : bookmarks) {
        const QString& title = bookmark.title.isEmpty() ? bookmark.address : bookmark.title;
        records.push_back(std::make_unique<PRSafariBookmarkItem>(
            Record{.values = {title, bookmark.address, linkLabel(bookmark.added, bookmark.address)},
                .flags = bookmark.deleted ? Deleted : 0},
            std::move(bookmark.group)));
    }
    return records;
}

RecordList visitRecords(std::vector<Visit> visits)
{
    std::ranges::reverse(visits); // of two with one date the one stored later comes first
    std::ranges::stable_sort(
        visits, std::greater(), [](const Visit& visit) { return dateOrder(visit.date); });
    RecordList records;
    records.reserve(visits.size());
    for (Visit& visit : visits) {
        records.push_back(std::make_unique<VisitItem>(std::move(visit)));
    }
    return records;
}

QStringList linkColumns()
{
    return {tr("Title"), tr("Web address"), tr("Label")};
}

} // namespace backup
