// SPDX-License-Identifier: MIT
#include "translators/message/bubble_style.h"

#include "exporters/CHtmlExporter.h"
#include "exporters/page_images.h"
#include "exporters/page_text.h"
#include "platform/OvResourceMgr.h"

#include <array>

namespace {

constexpr QLatin1String kStyle = R"(
<style type="text/css">
html, div, body, p, form, img, h1, h2, input { margin:0 auto; padding:0; font:14px/160% Arial, Helvetica, sans-serif; color:#575757; }
img, input { border:none; }
#wrap { width:500px; background:#fff; }
h1 { color:#333333; font-size:32px; font-weight:bold; text-align:center; padding-top:10px; }
h2 { color:#333333; %1 padding-bottom:0px; padding-top:10px; }
.main { overflow:hidden; clear:both; }
.main p { color:#333333; text-align:center; %2 padding-top:10px; clear:both; }
%3
.main .cid { color:#2F85D0; padding-left:20px; text-align:left; font-size:14px; }
.main-left { float:left; padding-top:10px; padding-bottom:20px; vertical-align:center; clear:both; }
.main-right { float:right; padding-top:10px; padding-bottom:20px; clear:both; }
%4
.main-left img { vertical-align:middle; }
.main-right img { vertical-align:middle; }
%5
.msg-box .mid-c { max-width:230px; word-break:break-word; }
)"_page;

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

constexpr QLatin1String kStyleEnd = R"(
.rm { color:#000; }
.sm { color:#fff; }
</style>
)"_page;

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

void addSkinRules(Page& sheet, const BubbleSkin& skin)
{
    for (const SkinCell& cell : kSkinCells) {
        sheet.add(kSkinRule, skin.selector, cell.selector, kImageDirectory, skin.prefix,
            cell.suffix, cell.repeat, sizeOf(cell, skin));
    }
}

} // namespace

QString bubbleStyleSheet(const SheetParts& parts)
{
    Page sheet;
    sheet.add(kStyle, parts.headingFont, parts.lineFont, parts.eventRule, parts.sideRule,
        parts.sideImageRule);
    for (const BubbleSkin& skin : parts.skins) {
        addSkinRules(sheet, skin);
    }
    sheet.add(kStyleEnd);
    return sheet.text();
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
