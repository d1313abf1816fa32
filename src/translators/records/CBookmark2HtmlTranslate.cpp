// SPDX-License-Identifier: MIT
// One table; each group but the first has a head row, and its stripes begin anew:
//
//   Anna's Safari Bookmarks
//   | Tides: <Tides>              |   top level, without a head row
//   | Reading List                |   dark
//   | : <Knots to learn>          |   white; an entry without a label keeps its colon
//   | Harbours: [x] <Old harbour> |   grey; a deleted one has the mark and a red link
//   | Sailing                     |   dark; the other groups by name
//   | History                     |   dark; always the last
#include "translators/records/CBookmark2HtmlTranslate.h"

#include "exporters/CHtmlExporter.h"
#include "exporters/page_text.h"
#include "model/PRData.h"
#include "model/PRSafariBookmarkItem.h"
#include "translators/record_loop.h"

#include <QCoreApplication>
#include <QMap>
#include <QStringList>

namespace {

constexpr QLatin1String kStyleSheet = R"(
<style type="text/css">
    html, div, body, p, form, img, h1, h2, h3, input { margin:0 auto; padding:0; font:12px/160% Arial, Helvetica, sans-serif; color:#575757; }
    img, input { border:none; }
    h1 { color:#fefefe; font-size:32px; font-weight:bold; margin-left:16px; padding-top:5px; }
    #wrap { width:900px; background-color:#FFF; padding:4px; border:1px solid #cacaca; }
    #top { background:#7f8ea3; }
    .main table { margin:0 auto; font-size:14px; width:100%; }
    .main table tr td { background-color:#fff; border-collapse:collapse; height:38px; line-height:150%; padding-left:14px; }
    .main table tr.grey td { background-color:#f8f8f8; }
    .main table tr.dark td { background-color:#e5e4e4; color:#353535; font-weight:bold; }
    .ad:link { color:#e61010; } </style>
)"_page;

constexpr QLatin1String kOpen = R"(
<div id="wrap">
    <div id="top"><h1>%1</h1></div>
    <div class="main">
        <table border=0 cellspacing=0 cellpadding=0>
)"_page;

constexpr QLatin1String kGroupHead = R"(<tr class="dark"><td>%1&nbsp;</td></tr>)"_page;

constexpr QLatin1String kRowOpen = "<tr>"_L1;
constexpr QLatin1String kGreyRowOpen = R"(<tr class="grey">)"_page;

// The colon stands before the link of a live entry even where it has no label.
constexpr QLatin1String kLiveCell = "<td>%3: <a href='%1'>%2</a></td>"_L1;
constexpr QLatin1String kDeletedCell =
    "<td>%4: <img src='image/%3'><a href='%1' class='ad'>%2</a></td>"_L1;
constexpr QLatin1String kDeletedCellWithoutLabel =
    "<td><img src='image/%3'><a href='%1' class='ad'>%2</a></td>"_L1;

constexpr QLatin1String kRowClose = "</tr>"_L1;

constexpr QLatin1String kClose = "</table></div></div>"_L1;

// The groups that have a fixed place, by the model's names, and at the same time their labels.
constexpr const char* kReadingList = QT_TRANSLATE_NOOP("DataExport", "Reading List");
constexpr const char* kHistory = QT_TRANSLATE_NOOP("DataExport", "History");

using Groups = QMap<QString, QList<const PRAbstractItem*>>;

// All records by their group, and the mark of deleted ones beside the page if there are any.
Groups gather(const PRData& data, CHtmlExporter* exporter, CIProgressCallback* progress)
{
    Groups groups;
    bool hasDeletedIcon = false;
    const QList<int> rows = data.recoverList();
    const double unit = progressUnit(progress, rows.size());
    for (const int row : rows) {
        if (progress != nullptr && !progress->step(unit)) {
            break; // the page is completed with what is there
        }
        const auto* bookmark = dynamic_cast<const PRSafariBookmarkItem*>(data.at(row, true));
        if (bookmark == nullptr) {
            continue;
        }
        if (!hasDeletedIcon && bookmark->flag(Deleted)) {
            exporter->copyDeletedIcon();
            hasDeletedIcon = true;
        }
        groups[bookmark->bookmarkGroup()].append(bookmark);
    }
    return groups;
}

QStringList pageOrder(const Groups& groups)
{
    const QString readingList = QLatin1String(kReadingList);
    const QString history = QLatin1String(kHistory);
    QStringList order = groups.keys();
    for (const QString& fixed : {QString(), readingList, history}) {
        order.removeAll(fixed);
    }
    order.sort(Qt::CaseSensitive); // "history" is an ordinary group behind "Zoo"
    return QStringList{QString(), readingList} + order + QStringList{history};
}

QString groupLabel(const QString& name)
{
    for (const char* label : {kReadingList, kHistory}) {
        if (name == QLatin1String(label)) {
            return QCoreApplication::translate("DataExport", label);
        }
    }
    return name;
}

// Titles, addresses and labels go into the page as they stand: nothing here is escaped.
void drawCell(Page& page, const PRAbstractItem& bookmark)
{
    const QString title = bookmark.value(0);
    const QString address = bookmark.value(1);
    const QString label = bookmark.value(2);
    if (!bookmark.flag(Deleted)) {
        page.add(kLiveCell, address, title, label);
    } else if (!label.isEmpty()) {
        page.add(kDeletedCell, address, title, kDeletedIcon, label);
    } else {
        page.add(kDeletedCellWithoutLabel, address, title, kDeletedIcon);
    }
}

void drawGroup(Page& page, const QString& name, const Groups::mapped_type& bookmarks)
{
    if (!name.isEmpty()) {
        page.add(kGroupHead, escaped(groupLabel(name)));
    }
    bool grey = false;
    for (const PRAbstractItem* bookmark : bookmarks) {
        page.add(grey ? kGreyRowOpen : kRowOpen);
        drawCell(page, *bookmark);
        page.add(kRowClose);
        grey = !grey;
    }
}

} // namespace

QString CBookmark2HtmlTranslate::styleSheet()
{
    return kStyleSheet;
}

bool CBookmark2HtmlTranslate::translate(
    CHtmlExporter* exporter, const QString& title, CIProgressCallback* progress)
{
    Page head;
    head.add(kOpen, escaped(title));
    if (!exporter->write(head.text())) {
        return false;
    }
    const Groups groups = gather(*m_data, exporter, progress);
    const QStringList order = pageOrder(groups);
    Page rows;
    for (const QString& name : order) {
        const auto group = groups.constFind(name);
        if (group != groups.cend()) {
            drawGroup(rows, name, *group);
        }
    }
    return exporter->write(rows.text()) && exporter->write(kClose);
}
