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
#include "exporters/page_text.h"

namespace {

constexpr QLatin1String kPageTop = R"(
<div id="wrap">
    <div id="top"><h1>%1</h1></div>
)"_page;
constexpr QLatin1String kPageBottom = "</div>"_L1;

constexpr QLatin1String kConversationOpen = R"(<div class="main">)"_L1;
constexpr QLatin1String kHeading = "<h2>%1&nbsp;&nbsp;%2&nbsp;&nbsp;%3</h2>"_L1;

constexpr QLatin1String kConversationClose = "</div>"_L1;

constexpr QLatin1String kSender = R"(<p class="cid">%1</p>)"_L1;

constexpr QLatin1String kSideOpen = R"(<div class="%1">%2)"_L1;
constexpr QLatin1String kRowOpen = "<table class='%1'><tr>"_L1;
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

} // namespace

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

void openConversation(Page& page, const std::array<QString, 3>& texts)
{
    page.add(kConversationOpen);
    page.add(kHeading, escaped(texts[0]), escaped(texts[1]), escaped(texts[2]));
}

void closeConversation(Page& page)
{
    page.add(kConversationClose);
}

void drawSender(Page& page, const QString& name)
{
    page.add(kSender, escaped(name));
}

void openBubbleSide(Page& page, QLatin1String side, const BubbleLook& look)
{
    page.add(kSideOpen, side, look.fromMe && look.deleted ? kSentDeletedMark : ""_L1);
}

void openBubbleRow(Page& page, const BubbleLook& look)
{
    page.add(kRowOpen, look.fromMe ? "sm"_L1 : "rm"_L1);
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
