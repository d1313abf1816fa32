// SPDX-License-Identifier: MIT
// One table, whatever the records are; the set has the columns and the text of the cells:
//
//   Anna's Call History
//   | Name (30%) | Number (30%)    | Date             |   dark; the last column takes the rest
//   | Mia        | +49 171 5550101 | 2024-05-01 14:30 |   white
//   | [x] Ben    | +49 171 5550102 | 2024-05-01 15:10 |   grey; a deleted one has the mark, all red
//
// Notes have their text and pictures in column 4, or nothing but a lock.
#include "translators/records/CTable2HtmlTranslate.h"

#include "exporters/CHtmlExporter.h"
#include "exporters/escape.h"
#include "exporters/page_text.h"
#include "model/PRData.h"
#include "model/PRNoteItem.h"
#include "translators/record_loop.h"
#include "translators/records/note_cell.h"

#include <QCoreApplication>

namespace {

constexpr QLatin1String kStyleSheet = R"(
<style type="text/css">
    html, div, body, p, form, img, h1, input { margin:0 auto; padding:0; font:12px/160% Arial, Helvetica, sans-serif; color:#575757; }
    img, input { border:none; }
    h1 { color:#fefefe; font-size:32px; font-weight:bold; margin-left:16px; padding-top:5px; }
    #wrap { margin:0 auto; width:80%; background-color:#FFF; padding:4px; border:1px solid #cacaca; }
    #top { background: #7f8ea3; }
    .main table { margin:0 auto; font-size:14px; width:100%; }
    .main table tr td { background-color:#fff; border-collapse:collapse; height:38px; line-height:150%; text-align:left; border:1px solid #f8f8f8; padding:6px; }
    .main table tr.grey td { background-color:#f8f8f8; }
    .main table tr.dark td { background-color:#e5e4e4; color:#353535; font-weight:bold; border:1px solid #dadada; text-align:center; }
    .rd { color:#e61010; }
    .main table tr td p { font-size:14px; }
    .main table tr.rd td p { font-size:14px; color:#e61010; }
</style>
)"_page;

constexpr QLatin1String kOpen = R"(
<table id="wrap" cellspacing=0 cellpadding=0><tr><td>
    <div id="top"><h1>%1</h1></div>
    <div class="main">
        <table border=0 cellspacing=0 cellpadding=0>
            <tr class="dark">
)"_page;
constexpr QLatin1String kHeading = R"(<td width="%1%">%2&nbsp;</td>)"_page;
constexpr QLatin1String kCell = "<td>%1&nbsp;</td>"_L1; // the last heading too

// By `Row::odd` and `Row::deleted`.
constexpr QLatin1String kRowOpen[2][2] = {
    {"<tr>"_L1, R"(<tr class="rd">)"_page},
    {R"(<tr class="grey">)"_page, R"(<tr class="grey rd">)"_page},
};
constexpr QLatin1String kDeletedCell = "<td><img src='image/%2'>%1&nbsp;</td>"_L1;
constexpr QLatin1String kLockedCell = "<td><img src='image/%2'>&nbsp;%1&nbsp;</td>"_L1;
constexpr QLatin1String kRowClose = "</tr>"_L1;

constexpr QLatin1String kClose = "</table></div></td></tr></table>"_L1;

constexpr QLatin1String kLockIcon = "crypted.png"_L1;
constexpr QLatin1String kDeletedLockIcon = "crypteddeleted.png"_L1;

constexpr int kWidthOfAllColumns = 90; // percent
enum TableType { Notes = 27, Reminders = 30 };
constexpr int kNoteColumn = 4;
constexpr int kUnbrokenReminderColumn = 3; // not broken at its blanks

// A record in its row of the page.
struct Row {
    int index = 0; // in the data set
    const PRAbstractItem& record;
    bool odd = false; // on the page
    bool deleted = record.flag(Deleted);
    bool locked = record.flag(Locked);
};

// The images that rows ask for, each copied once.
class RowIcons {
public:
    explicit RowIcons(CHtmlExporter* exporter) : m_exporter(exporter) {}

    void copyFor(const Row& row)
    {
        if (row.deleted && !m_hasDeleted) {
            m_exporter->copyDeletedIcon();
            m_hasDeleted = true;
        }
        if (row.locked) {
            copyLock(row.deleted);
        }
    }

private:
    // The second locked and deleted record brings the lock of a live one along, shown or not.
    void copyLock(bool deleted)
    {
        if (deleted && !m_hasDeletedLock) {
            m_exporter->copyResource(kDeletedLockIcon, kDeletedLockIcon);
            m_hasDeletedLock = true;
        } else if (!m_hasLock) {
            m_exporter->copyResource(kLockIcon, kLockIcon);
            m_hasLock = true;
        }
    }

    CHtmlExporter* m_exporter;
    bool m_hasDeleted = false;
    bool m_hasDeletedLock = false;
    bool m_hasLock = false;
};

// The headings' widths do not add up: each has its share of 90 in whole percent, 0 with more than
// 90 columns, and the last one has none.
void drawHeadings(Page& page, const PRData& data)
{
    const int columns = data.dataColumn();
    const QString width = QString::number(columns > 0 ? kWidthOfAllColumns / columns : 0);
    for (int column = 0; column < columns - 1; ++column) {
        page.add(kHeading, width, escaped(data.columnName(column)));
    }
    if (columns > 0) {
        page.add(kCell, escaped(data.columnName(columns - 1)));
    }
    page.add(kRowClose);
}

// A locked note shows a lock and a word, and nothing of what it may hold. The word is a label and
// goes out as it is, unlike the texts of records.
void drawNote(Page& page, const Row& row, const PRNoteItem& note, const QString& text,
    CIDataExporter* exporter)
{
    if (row.locked) {
        page.add(kLockedCell, QCoreApplication::translate("DataExport", "Locked"),
            row.deleted ? kDeletedLockIcon : kLockIcon);
    } else if (!note.notePieces().isEmpty()) {
        drawNoteCell(page, note, exporter);
    } else {
        page.add(kCell, escaped(text));
    }
}

void drawCell(Page& page, const PRData& data, const Row& row, int column, CIDataExporter* exporter)
{
    const auto* note = data.dataType() == Notes && column == kNoteColumn
                           ? dynamic_cast<const PRNoteItem*>(&row.record)
                           : nullptr;
    const QString text = data.value(row.index, column);
    if (row.deleted && column == 0) {
        page.add(kDeletedCell, escaped(text), kDeletedIcon);
    } else if (note != nullptr) {
        drawNote(page, row, *note, text, exporter);
    } else if (data.dataType() == Reminders && column == kUnbrokenReminderColumn) {
        // Behind the escaping, so that the blanks' own entities stay live.
        page.add(kCell, htmlEscapeLines(text).replace(QChar(u' '), "&nbsp;"_L1));
    } else {
        page.add(kCell, escaped(text));
    }
}

QString headText(const PRData& data, const QString& title)
{
    Page page;
    page.add(kOpen, escaped(title));
    drawHeadings(page, data);
    return page.text();
}

QString rowText(const PRData& data, const Row& row, CIDataExporter* exporter)
{
    Page page(kRowOpen[row.odd ? 1 : 0][row.deleted ? 1 : 0]);
    const int columns = data.dataColumn();
    for (int column = 0; column < columns; ++column) {
        drawCell(page, data, row, column, exporter);
    }
    page.add(kRowClose);
    return page.text();
}

} // namespace

QString CTable2HtmlTranslate::styleSheet()
{
    return kStyleSheet;
}

bool CTable2HtmlTranslate::translate(
    CHtmlExporter* exporter, const QString& title, CIProgressCallback* progress)
{
    if (!exporter->write(headText(*m_data, title))) {
        return false;
    }
    const QList<int> rows = m_data->recoverList();
    const double unit = progressUnit(progress, rows.size());
    RowIcons icons(exporter);
    bool odd = false;
    for (const int index : rows) {
        if (progress != nullptr && !progress->step(unit)) {
            break; // the page ends in order with the rows that it has
        }
        const Row row{.index = index, .record = *m_data->at(index, true), .odd = odd};
        icons.copyFor(row);
        if (!exporter->write(rowText(*m_data, row, exporter))) {
            return false;
        }
        odd = !odd;
    }
    return exporter->write(kClose);
}
