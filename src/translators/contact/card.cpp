// SPDX-License-Identifier: MIT
// A page of cards:
//
//   Anna's Contacts
//   +---------------------------------+
//   |  (picture)   Mia Huber          |    after the deleted mark, if it is deleted
//   |              "Mimi"             |    lines
//   |              Pilot - Sky Ltd    |
//   |  Phone                          |    the heading of a group
//   |  mobile      +49 171 5550101    |
//   |  work        +49 30 5550102     |    the last row of a group has a line under it
//   +---------------------------------+
#include "translators/contact/card.h"

#include "exporters/CHtmlExporter.h"
#include "exporters/page_images.h"
#include "exporters/page_text.h"
#include "platform/literals.h"

#include <QImage>

namespace {

constexpr QLatin1String kStyle = R"(
<style type="text/css">
html, div, body, p, form, img, h1, input { margin:0 auto; padding:0; font:12px/160% Arial, Helvetica, sans-serif; }
img, input { border:none; }
h1 { color:#fefefe; font-size:32px; margin-left:16px; padding-top:5px; }
#wrap { width:700px; background-color:#FFF; padding:4px; border:1px solid #cacaca; }
#top { background:#7f8ea3; }
.main { border:1px solid #e5e4e4; margin-top:10px; padding:10px; }
.main-top { overflow:hidden; }
.main-pic { width:138px; height:138px; padding:6px; float:left; margin-top:6px; margin-bottom:6px; margin-left:6px; }
.main-text { width:450px; margin-left:34px; float:left; }
.main-title { font-size:30px; font-weight:bold; line-height:150%; margin-top:10px; }
.main-text p { font-size:16px; font-weight:bold; }
.main table { margin:0 auto; font-size:14px; width:100%; }
.main table tr td { background-color:#fff; border-collapse:collapse; line-height:120%; padding:6px; vertical-align:text-top; }
.main table tr.group td { height:32px; font-size:15px; font-weight:bold; border-bottom: 1px solid #f1f1f1; vertical-align: bottom; }
.main table tr.group_end td { border-bottom: 1px solid #f1f1f1; }
.first-td { width:150px; }
.second-td { }
.nc { color:#4f4c4c; }
.dc { color:#e61010; }
</style>
)"_page;

constexpr QLatin1String kPageTop = R"(
<div id="wrap">
    <div id="top"><h1>%1</h1></div>
)"_page;
constexpr QLatin1String kPageBottom = "</div>"_L1;

constexpr QLatin1String kCardOpen = R"(
<div class="main %1">
    <div class="main-top">
        <div class="main-pic"><img src="%2" /></div>
        <div class="main-text">
            <div class="main-title">%3%4</div>
)"_page;
constexpr QLatin1String kDeletedMark = "<img src='image/deleted.png'>"_L1;
constexpr QLatin1String kLine = "<p>%1</p>"_L1;
constexpr QLatin1String kTableOpen = R"(
        </div>
    </div>
    <table border=0 cellspacing=0 cellpadding=0>
)"_page;
constexpr QLatin1String kHeading = "<tr%1><td colspan='2'>%2&nbsp;</td></tr>"_L1;
constexpr QLatin1String kRow = R"(
        <tr%1>
            <td class="first-td">%2&nbsp;</td>
            <td class="second-td">%3&nbsp;</td>
        </tr>
)"_page;
constexpr QLatin1String kCardClose = R"(
    </table>
</div>
)"_page;

constexpr QLatin1String kDefaultPicture = "default_contact.png"_L1;
constexpr int kPictureSide = 136; // pixels

QLatin1String classOf(CardRow row)
{
    switch (row) {
    case CardRow::Head:
        return R"( class="group")"_L1;
    case CardRow::Last:
        return R"( class="group_end")"_L1;
    case CardRow::Inner:
        break;
    }
    return ""_L1;
}

} // namespace

QString cardStyleSheet()
{
    return kStyle;
}

bool writeCardsTop(CHtmlExporter& exporter, const QString& title)
{
    // A missing image is no failure.
    exporter.copyDepend(brandImageSource("contact_person.png"_L1), kDefaultPicture);
    exporter.copyDeletedIcon();
    Page top;
    top.add(kPageTop, escaped(title));
    return exporter.write(top.text());
}

bool writeCardsBottom(CIDataExporter& exporter)
{
    return exporter.write(kPageBottom);
}

QString defaultCardPicture()
{
    return imagePath(kDefaultPicture);
}

QByteArray cardPicture(const QImage& picture)
{
    return pngOf(
        picture.scaled(kPictureSide, kPictureSide, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

void openCard(Page& page, const QString& picture, const QString& name, bool deleted)
{
    // The name is markup: it stands in the page as the record has it.
    page.add(kCardOpen, deleted ? "dc"_L1 : "nc"_L1, picture, deleted ? kDeletedMark : ""_L1, name);
}

void addCardLine(Page& page, const QString& line)
{
    page.add(kLine, line);
}

void openCardTable(Page& page)
{
    page.add(kTableOpen);
}

void closeCard(Page& page)
{
    page.add(kCardClose);
}

void addCardHeading(Page& page, const QString& label)
{
    page.add(kHeading, classOf(CardRow::Head), escaped(label));
}

void addCardRow(Page& page, CardRow row, const QString& label, const QString& value)
{
    page.add(kRow, classOf(row), escaped(label), escaped(value));
}
