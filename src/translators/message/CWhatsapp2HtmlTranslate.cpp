// SPDX-License-Identifier: MIT
// One page for all chats:
//
//   <h1> Anna's WhatsApp
//   <h2> Chat: Crew  Name: Crew  Phone: +49 431 5550101, +49 431 5550102
//   ------------------------------------------------------  a rule
//              Date: 2024-05-01 14:30             before each message
//   Ben                                           the sender, in a group
//   (See you at eight?) ! (like) 2                not sent; liked
//                      (like) (broadcast) ((picture) Yes)
//              Ben added Ole                      an event of the group
#include "translators/message/CWhatsapp2HtmlTranslate.h"

#include "exporters/CHtmlExporter.h"
#include "exporters/page_images.h"
#include "exporters/page_text.h"
#include "model/PRWhatsappItem.h"
#include "platform/CCommonUtils.h"
#include "platform/literals.h"
#include "translators/message/DateLabel.h"
#include "translators/message/bubble.h"
#include "translators/message/bubble_style.h"
#include "translators/message/labels.h"

#include <QImage>

#include <algorithm>
#include <array>

namespace {

constexpr std::array kSkins{kSentSkin, kReceivedSkin};

// clang-format off
constexpr std::array kImages{
    "exclamation.png"_L1, "del_msg_recv.png"_L1, "del_msg_send.png"_L1,
    "broadcast.png"_L1,   "msglike.png"_L1,      "msgnolike.png"_L1,
};
constexpr std::array kBrandImages{
    "audio.png"_L1,    "video.png"_L1,   "vcard.png"_L1,
    "location.png"_L1, "picture.png"_L1, "document.png"_L1,
};

// Of messages without a picture to show. All other types have none.
struct TypeIcon {
    MsgType type = MsgType::Text;
    QLatin1String icon;
};
constexpr std::array kTypeIcons{
    TypeIcon{MsgType::Picture,     "picture.png"_L1},
    TypeIcon{MsgType::Video,       "video.png"_L1},
    TypeIcon{MsgType::Audio,       "audio.png"_L1},
    TypeIcon{MsgType::ContactCard, "vcard.png"_L1},
    TypeIcon{MsgType::Location,    "location.png"_L1},
    TypeIcon{MsgType::Document,    "document.png"_L1},
};
// clang-format on

constexpr QLatin1String kRule = "<hr />"_L1;
constexpr QLatin1String kDateOpen = "<p>"_L1;
constexpr QLatin1String kDateClose = "</p>"_L1;
constexpr QLatin1String kEvent = "<p>%1</p>"_L1;
constexpr QLatin1String kBroadcastMark =
    "<img src='image/broadcast.png' style='top:20px;left:%1px; position:relative;' />"_L1;
constexpr QLatin1String kLikeCell = R"(<td align="center"><img src="%1/%2.png" />%3</td>)"_L1;
constexpr QLatin1String kLikeCount = R"(<br /><font color="#000000">%1</font>)"_L1;

QString phoneLine(const PRWhatsappItem& chat)
{
    QString phones = chat.value(2);
    phones.replace(QChar(u','), ", "_L1);
    return label(QT_TRANSLATE_NOOP("DataExport", "Phone: %1")).arg(phones);
}

void drawDate(Page& page, const DateLabel& date, const PRWhatsappMsg& message)
{
    page.add(kDateOpen);
    date.draw(page, message.msgDate());
    page.add(kDateClose);
}

QString iconPath(MsgType type)
{
    const auto* row = std::ranges::find(kTypeIcons, type, &TypeIcon::type);
    return row != kTypeIcons.end() ? imagePath(row->icon) : QString();
}

QImage pictureOf(const PRWhatsappMsg& message)
{
    QImage picture;
    if (message.media().isEmpty()) {
        return picture;
    }
    const bool loaded = message.isReadThumbFileData()
                            ? CCommonUtils::readThumbFileData(picture, message.media())
                            : picture.load(message.media());
    return loaded ? picture : QImage();
}

// Only one's own messages have it, clear of the deleted mark.
void drawBroadcastMark(Page& page, bool deleted)
{
    page.add(kBroadcastMark, deleted ? "10"_L1 : "5"_L1);
}

void drawLike(Page& page, const PRWhatsappMsg& message)
{
    Page count;
    if (message.getLikeCount() != 0) {
        count.add(kLikeCount, QString::number(message.getLikeCount()));
    }
    page.add(kLikeCell, kImageDirectory, message.getLikeType() != 0 ? "msglike"_L1 : "msgnolike"_L1,
        count.text());
}

// The like stands on the inner side of the bubble.
void drawMessage(Page& page, const PRWhatsappMsg& message, const QString& picture, bool deleted)
{
    const BubbleLook look{
        .fromMe = message.isFromMe(), .failed = !message.isSentDone(), .deleted = deleted};
    openBubbleSide(page, look.fromMe ? "main-right"_L1 : "main-left"_L1, look);
    if (look.fromMe && message.isBroadcast()) {
        drawBroadcastMark(page, deleted);
    }
    openBubbleRow(page, look);
    if (look.fromMe && message.isDrawLike()) {
        drawLike(page, message);
    }
    drawBubble(page, look, message.content(), picture);
    drawFailureCell(page, look);
    if (!look.fromMe && message.isDrawLike()) {
        drawLike(page, message);
    }
    closeBubbleRow(page);
}

} // namespace

QString chatStyleSheet()
{
    return bubbleStyleSheet({.headingFont = "font-size:14px; font-weight:bold;"_L1,
        .lineFont = "font-size:14px;"_L1,
        .eventRule = {},
        .sideRule = {},
        .sideImageRule = {},
        .skins = kSkins});
}

bool CWhatsapp2HtmlTranslate::prepare(
    CIDataExporter* /*exporter*/, const QString& title, CIProgressCallback* /*progress*/)
{
    m_title = title;
    return true;
}

bool CWhatsapp2HtmlTranslate::writeHeader(CIDataExporter* exporter)
{
    for (const BubbleSkin& skin : kSkins) {
        copySkin(*exporter, skin);
    }
    for (const QLatin1String image : kImages) {
        copyPageImage(*exporter, image);
    }
    for (const QLatin1String image : kBrandImages) {
        copyBrandImage(*exporter, image);
    }
    return writePageTop(*exporter, m_title);
}

bool CWhatsapp2HtmlTranslate::writeFooter(CIDataExporter* exporter)
{
    return writePageBottom(*exporter);
}

bool CWhatsapp2HtmlTranslate::writeItem(CIDataExporter* exporter, PRWhatsappItem* item)
{
    const bool deleted = item->flag(Deleted);
    const bool partial = item->flag(PartlySelected);
    Page page;
    openConversation(
        page, {label(QT_TRANSLATE_NOOP("DataExport", "Chat: %1")).arg(item->value(0)),
                  label(QT_TRANSLATE_NOOP("DataExport", "Name: %1")).arg(item->value(1)),
                  phoneLine(*item)});
    page.add(kRule);
    const DateLabel date;
    for (const PRWhatsappMsg* message : item->detailContent()->messages()) {
        if (partial && !message->isChecked()) {
            continue;
        }
        drawDate(page, date, *message);
        if (message->type() == MsgType::GroupEvent) {
            page.add(kEvent, escaped(message->content()));
            continue;
        }
        if (!message->member().isEmpty()) {
            drawSender(page, message->member());
        }
        const QString picture = mediaPath(*exporter, *message);
        if (!message->content().isEmpty() || !picture.isEmpty()) {
            drawMessage(page, *message, picture, deleted);
        }
    }
    closeConversation(page);
    return exporter->write(page.text());
}

// The picture of a message as the page links to it, or the icon of its type; empty for none.
QString CWhatsapp2HtmlTranslate::mediaPath(CIDataExporter& exporter, const PRWhatsappMsg& message)
{
    const QImage picture = pictureOf(message);
    if (picture.isNull()) {
        return iconPath(message.type());
    }
    // Also one that fits: unlike on the page of messages, each picture is a real file.
    return m_pictures.add(exporter, pngOf(isTooLarge(picture) ? fitted(picture) : picture));
}
