// SPDX-License-Identifier: MIT
// A row of a page, as tall as its text: nine cells around it, and behind them what went wrong.
//
//   <div class="main-right">                      the side on which it stands
//     <table class='sm'><tr>
//       <td><table class="msg-box">
//         top-l   top-c                top-r      a received bubble's deleted mark
//         mid-l   the text, its icon   mid-r
//         bot-l   bot-c                bot-r
//       </table></td>
//       <td>!</td>
//     </tr></table>
//   </div>
#include "translators/message/bubble.h"

#include "exporters/CHtmlExporter.h"
#include "exporters/page_images.h"
#include "exporters/page_text.h"
#include "platform/OvResourceMgr.h"

namespace {

constexpr QLatin1String kPageTop = R"(
<div id="wrap">
    <div id="top"><h1>%1</h1></div>
)"_page;
constexpr QLatin1String kPageBottom = "</div>"_L1;

constexpr QLatin1String kHeading = "<h2>%1&nbsp;&nbsp;%2&nbsp;&nbsp;%3</h2>"_L1;

constexpr QLatin1String kRowOpen = R"(
<div class="%1">
    %2%3
    <table class='%4'><tr>
)"_page;
constexpr QLatin1String kBubbleOpen = R"(
<td>
    <table border="0" cellpadding="0" cellspacing="0" class="msg-box">
        <tr><td class="top-l"></td><td class="top-c"></td><td class="top-r">%1</td></tr>
        <tr><td class="mid-l"></td>
)"_page;
constexpr QLatin1String kTextCell = R"(<td class="mid-c">%1&nbsp;</td>)"_L1;
constexpr QLatin1String kIconCell = R"(
<td class="mid-c">
    <table><tr><td><img src="%1" /></td><td>%2&nbsp;</td></tr></table>
</td>
)"_page;
constexpr QLatin1String kBubbleClose = R"(
        <td class="mid-r"></td></tr>
        <tr><td class="bot-l"></td><td class="bot-c"></td><td class="bot-r"></td></tr>
    </table>
</td>
)"_page;
constexpr QLatin1String kFailureCell = R"(<td><img src="%1/exclamation.png" /></td>)"_L1;
constexpr QLatin1String kNoFailureCell = "<td></td>"_L1;
constexpr QLatin1String kRowClose = R"(
    </tr></table>
</div>
)"_page;

// Sent bubbles have it before them, received ones in the corner.
constexpr QLatin1String kSentDeletedMark =
    R"(<img src='image/del_msg_send.png' style='top:20px;left:5px; position:relative;' />)"_L1;
constexpr QLatin1String kReceivedDeletedMark =
    R"(<img src='image/del_msg_recv.png' style='top:3px;left:0px; position:relative;' />)"_L1;

// One of the nine images that a skin is made of; the size of two of them differs by skin.
enum class CellSize { None, TopLeft, TopRight, BottomLeft };
struct SkinCell {
    QLatin1String selector;
    QLatin1String suffix;
    QLatin1String repeat;
    CellSize size = CellSize::None;
};
// clang-format off
constexpr std::array kSkinCells{
    SkinCell{".top-l"_L1, "top-l"_L1,    "no-repeat"_L1, CellSize::TopLeft},
    SkinCell{".top-c"_L1, "top-c"_L1,    "repeat-x"_L1,  CellSize::None},
    SkinCell{".top-r"_L1, "top-r"_L1,    "no-repeat"_L1, CellSize::TopRight},
    SkinCell{".mid-l"_L1, "middle-l"_L1, "repeat-y"_L1,  CellSize::None},
    SkinCell{".mid-c"_L1, "bg"_L1,       "repeat"_L1,    CellSize::None},
    SkinCell{".mid-r"_L1, "middle-r"_L1, "repeat-y"_L1,  CellSize::None},
    SkinCell{".bot-l"_L1, "bot-l"_L1,    "no-repeat"_L1, CellSize::BottomLeft},
    SkinCell{".bot-c"_L1, "bot-c"_L1,    "repeat-x"_L1,  CellSize::None},
    SkinCell{".bot-r"_L1, "bot-r"_L1,    "no-repeat"_L1, CellSize::None},
};
// clang-format on

constexpr QLatin1String kSkinRule = "%1 %2 { background:url(%3/%4-%5.png) %6;%7 }"_L1;

QLatin1String sizeOf(const SkinCell& cell, const BubbleSkin& skin)
{
    switch (cell.size) {
    case CellSize::TopLeft:
        return skin.topLeftSize;
    case CellSize::TopRight:
        return " width:18px;"_L1;
    case CellSize::BottomLeft:
        return skin.bottomLeftSize;
    case CellSize::None:
        break;
    }
    return ""_L1;
}

} // namespace

// clang-format off
const BubbleSkin kSentSkin{
    ".main-right"_L1, "message"_L1, " height:13px; width:14px;"_L1, " height:14px;"_L1};
const BubbleSkin kSentIMessageSkin{
    ".main-right-imsg"_L1, "imessage"_L1, " height:13px; width:14px;"_L1, " height:14px;"_L1};
const BubbleSkin kReceivedSkin{
    ".main-left"_L1, "rmessage"_L1, " height:15px; width:14px;"_L1, " height:13px;"_L1};
// clang-format on

void addSkinRules(Page& sheet, const BubbleSkin& skin)
{
    for (const SkinCell& cell : kSkinCells) {
        sheet.add(kSkinRule, skin.selector, cell.selector, kImageDirectory, skin.prefix,
            cell.suffix, cell.repeat, sizeOf(cell, skin));
    }
}

void copySkin(CIDataExporter& exporter, const BubbleSkin& skin)
{
    for (const SkinCell& cell : kSkinCells) {
        copyPageImage(exporter, QStringLiteral("%1-%2.png").arg(skin.prefix, cell.suffix));
    }
}

void copyPageImage(CIDataExporter& exporter, const QString& name)
{
    const QString source = QStringLiteral("%1/DataExport/%2")
                               .arg(OvResourceMgr::instance()->productResourceRoot(), name);
    exporter.copyDepend(source, name); // a missing image is no failure
}

void copyBrandImage(CIDataExporter& exporter, const QString& name)
{
    exporter.copyDepend(brandImageSource(name), name); // as above
}

bool writePageTop(CIDataExporter& exporter, const QString& title)
{
    Page top;
    top.add(kPageTop, escaped(title));
    return exporter.write(top.text());
}

bool writePageBottom(CIDataExporter& exporter)
{
    return exporter.write(kPageBottom);
}

void drawHeading(Page& page, const std::array<QString, 3>& texts)
{
    page.add(kHeading, escaped(texts[0]), escaped(texts[1]), escaped(texts[2]));
}

void openBubbleRow(Page& page, QLatin1String side, const BubbleLook& look, const QString& moreMarks)
{
    page.add(kRowOpen, side, look.fromMe && look.deleted ? kSentDeletedMark : ""_L1, moreMarks,
        look.fromMe ? "sm"_L1 : "rm"_L1);
}

void closeBubbleRow(Page& page)
{
    page.add(kRowClose);
}

void drawBubble(Page& page, const BubbleLook& look, const QString& text, const QString& icon)
{
    page.add(kBubbleOpen, !look.fromMe && look.deleted ? kReceivedDeletedMark : ""_L1);
    if (icon.isEmpty()) {
        page.add(kTextCell, escaped(text));
    } else {
        page.add(kIconCell, icon, escaped(text));
    }
    page.add(kBubbleClose);
}

void drawFailureCell(Page& page, const BubbleLook& look)
{
    if (look.failed) {
        page.add(kFailureCell, kImageDirectory);
    } else {
        page.add(kNoFailureCell);
    }
}
