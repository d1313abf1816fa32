// SPDX-License-Identifier: MIT
// One page for all conversations:
//
//   <h1> Anna's Messages
//   <h2> Name: Mia  Phone: +49 171 5550101  Email:
//            ------- iMessage -------
//              Date: 2024-05-01 14:30
//   (See you at eight?)
//                              (Yes, at Luna) !      not sent
//              Mia named the conversation "Trip"     an event
//   Mia                                              the sender, in a group
//   (picture)
#include "translators/message/CSMS2HtmlTranslate.h"

#include "exporters/CIDataExporter.h"
#include "exporters/page_images.h"
#include "exporters/page_text.h"
#include "model/PRSMSItem.h"
#include "platform/CCommonUtils.h"
#include "platform/literals.h"
#include "translators/message/bubble.h"

#include <QCoreApplication>
#include <QFile>
#include <QImage>

#include <array>
#include <optional>

namespace {

constexpr QLatin1String kStyle = R"(
html, div, body, p, form, img, h1, h2, input { margin:0 auto; padding:0; font:14px/160% Arial, Helvetica, sans-serif; color:#575757; }
img, input { border:none; }
#wrap { width:500px; background:#fff; }
h1 { color:#333333; font-size:32px; font-weight:bold; text-align:center; padding-top:10px; }
h2 { color:#333333; font-size:16px; padding-bottom:0px; padding-top:10px; }
.main { overflow:hidden; clear:both; }
.main p { color:#333333; text-align:center; font-size:12px; padding-top:10px; clear:both; }
.main .event-msg { font-size:14px; }
.main .cid { color:#2F85D0; padding-left:20px; text-align:left; font-size:14px; }
.main-left { float:left; padding-top:10px; padding-bottom:20px; vertical-align:center; clear:both; }
.main-right { float:right; padding-top:10px; padding-bottom:20px; clear:both; }
.main-right-imsg { float:right; padding-top:10px; padding-bottom:20px; clear:both; }
.main-left img { vertical-align:middle; }
.main-right img { vertical-align:middle; }
.main-right-imsg img { vertical-align:middle; }
.msg-box .mid-c { max-width:230px; word-break:break-word; }
)"_page;
constexpr QLatin1String kTextColours = R"(
.rm { color:#000; }
.sm { color:#fff; }
)"_page;

constexpr QLatin1String kConversationOpen = R"(<div class="main">)"_L1;
constexpr QLatin1String kDateOpen = "<p>%1%2"_L1;
constexpr QLatin1String kDateClose = "</p>"_L1;
constexpr QLatin1String kEvent = R"(<p class="event-msg">%1</p>)"_L1;
constexpr QLatin1String kSender = R"(<p class="cid">%1</p>)"_L1;
constexpr QLatin1String kPictureRow = R"(
<div class="%1">
    <table><tr>
        <td><img src="%2" /></td>
)"_page;
constexpr QLatin1String kConversationClose = "</div>"_L1;

// Of pieces without a picture, by their type; the first one that fits.
struct TypeIcon {
    QLatin1String type;
    QLatin1String icon;
};
// clang-format off
constexpr std::array kTypeIcons{
    TypeIcon{"image"_L1, "picture.png"_L1},
    TypeIcon{"video"_L1, "video.png"_L1},
    TypeIcon{"audio"_L1, "audio.png"_L1},
};
// clang-format on

QString label(const char* source)
{
    return QCoreApplication::translate("DataExport", source);
}

// The lines between the messages: what the last of them showed, and their texts.
class DateLines {
public:
    void draw(Page& page, const PRSMSChat& message)
    {
        const QDateTime date = message.msgDate();
        const bool dateChanged = !m_lastDate.isValid() || m_lastDate != date;
        const bool kindChanged = m_lastNormal != message.isNormalSMS();
        m_lastDate = date;
        m_lastNormal = message.isNormalSMS();
        if (dateChanged || kindChanged) {
            page.add(kDateOpen, kindChanged ? kindLine(*m_lastNormal) : QString(),
                escaped(m_label.first()));
            drawDate(page, CCommonUtils::datetimeToMinute(date, true));
            page.add(kDateClose);
        }
    }

private:
    // The label is cut at its places once: there are as many dates as messages.
    void drawDate(Page& page, const QString& date) const
    {
        for (int i = 1; i < m_label.size(); ++i) {
            page.add("%1%2"_L1, date, escaped(m_label.at(i)));
        }
    }

    QString kindLine(bool normal) const
    {
        return m_hyphens + (normal ? "SMS/MMS"_L1 : "iMessage"_L1) + m_hyphens + "<br>"_L1;
    }

    const QString m_hyphens = QString(55, QChar(u'-'));
    const QStringList m_label =
        label(QT_TRANSLATE_NOOP("DataExport", "Date: %1")).split(QStringLiteral("%1"));
    QDateTime m_lastDate;
    std::optional<bool> m_lastNormal;
};

// The picture of a piece, from the first place that has one.
QImage pictureOf(const PRSMSPiece& piece)
{
    QImage picture;
    if (picture.loadFromData(piece.pieceData())) {
        return picture;
    }
    const QString& preview = piece.piecePreviewFile();
    const bool isHeic = preview.endsWith(".heic"_L1, Qt::CaseInsensitive);
    const QString thumbnail = isHeic ? preview + "thumb.jpg"_L1 : QString();
    for (const QString& path : {piece.pieceLocation(), preview, thumbnail}) {
        if (!path.isEmpty() && picture.load(path)) {
            return picture;
        }
    }
    return {};
}

QString iconOf(const PRSMSPiece& piece)
{
    for (const TypeIcon& row : kTypeIcons) {
        if (piece.pieceType().contains(row.type)) {
            return imagePath(row.icon);
        }
    }
    return piece.isLocation() ? imagePath("location.png"_L1) : QString();
}

// One message: its sender, its bubbles and pictures.
class MessageDrawing {
public:
    MessageDrawing(Page& page, CIDataExporter& exporter, PagePictures& pictures,
        const PRSMSChat& message, bool deleted)
        : m_page(page), m_exporter(exporter), m_pictures(pictures),
          m_message(message), m_look{.fromMe = message.isFromMe(),
                                  .failed = !message.isSentDone(),
                                  .deleted = deleted},
          m_subjectPending(!message.subject().isEmpty())
    {
    }

    void draw(const QMap<QString, QString>& names)
    {
        drawSender(names);
        if (!m_message.content().isEmpty()) {
            drawText(m_message.content());
        }
        for (const PRSMSPiece* piece : m_message.pieces()) {
            drawPiece(*piece);
        }
        if (m_subjectPending) {
            drawText(QString());
        }
    }

private:
    // Only a group needs to tell who speaks.
    void drawSender(const QMap<QString, QString>& names)
    {
        if (names.size() > 1 && !m_look.fromMe) {
            const QString& address = m_message.addr();
            m_page.add(kSender, escaped(names.value(address, address)));
        }
    }

    void drawPiece(const PRSMSPiece& piece)
    {
        if (piece.pieceType().contains("text/plain"_L1)) {
            drawText(QString::fromUtf8(piece.pieceData()));
            return;
        }
        if (m_subjectPending) {
            drawText(QString());
        }
        drawAttachment(piece);
    }

    void drawAttachment(const PRSMSPiece& piece)
    {
        const QImage picture = pictureOf(piece);
        if (!picture.isNull()) {
            drawPicture(picture);
            return;
        }
        const QString icon = iconOf(piece);
        if (!piece.pieceInfo().isEmpty() || !icon.isEmpty()) {
            drawBubbleRow(piece.pieceInfo(), icon);
        }
    }

    void drawPicture(const QImage& picture)
    {
        // A picture that needs no scaling goes out as an empty file: the format asks for it.
        const QByteArray png = isTooLarge(picture) ? pngOf(fitted(picture)) : QByteArray();
        // Neither a bubble nor a deleted mark, and the same for both kinds of messages.
        m_page.add(kPictureRow, m_look.fromMe ? "main-right"_L1 : "main-left"_L1,
            m_pictures.add(m_exporter, png));
        drawFailureCell(m_page, m_look);
        closeBubbleRow(m_page);
    }

    // The subject leads the first bubble of the message and no other.
    void drawText(const QString& text)
    {
        if (!m_subjectPending) {
            drawBubbleRow(text, QString());
            return;
        }
        m_subjectPending = false;
        const QString& subject = m_message.subject();
        drawBubbleRow(text.isEmpty() ? subject : subject + QChar(u'\n') + text, QString());
    }

    void drawBubbleRow(const QString& text, const QString& icon)
    {
        openBubbleRow(m_page, side(), m_look);
        drawBubble(m_page, m_look, text, icon);
        drawFailureCell(m_page, m_look);
        closeBubbleRow(m_page);
    }

    // Received messages look alike, whatever brought them.
    QLatin1String side() const
    {
        if (!m_look.fromMe) {
            return "main-left"_L1;
        }
        return m_message.isNormalSMS() ? "main-right"_L1 : "main-right-imsg"_L1;
    }

    Page& m_page;
    CIDataExporter& m_exporter;
    PagePictures& m_pictures;
    const PRSMSChat& m_message;
    const BubbleLook m_look;
    bool m_subjectPending;
};

void drawEvent(Page& page, const PRSMSChat& message, const PRSMSChatGroup& conversation)
{
    page.add(kEvent, escaped(message.msgForEvent(conversation.addrIds())));
}

} // namespace

QString smsStyleSheet()
{
    Page sheet(R"(<style type="text/css">)"_L1);
    sheet.add(kStyle);
    for (const BubbleSkin& skin : {kSentSkin, kSentIMessageSkin, kReceivedSkin}) {
        addSkinRules(sheet, skin);
    }
    sheet.add(kTextColours);
    sheet.add("</style>"_L1);
    return sheet.text();
}

bool CSMS2HtmlTranslate::prepare(
    CIDataExporter* /*exporter*/, const QString& title, CIProgressCallback* /*progress*/)
{
    m_title = title;
    return true;
}

bool CSMS2HtmlTranslate::writeHeader(CIDataExporter* exporter)
{
    for (const BubbleSkin& skin : {kSentSkin, kSentIMessageSkin, kReceivedSkin}) {
        copySkin(*exporter, skin);
    }
    for (const QLatin1String name :
        {"exclamation.png"_L1, "del_msg_recv.png"_L1, "del_msg_send.png"_L1}) {
        copyPageImage(*exporter, name);
    }
    copyBrandImage(*exporter, "video.png"_L1);
    copyBrandImage(*exporter, "picture.png"_L1);
    // A brand may have an audio image of its own for messages.
    const QString audio = brandImageSource("audio_sms.png"_L1);
    if (QFile::exists(audio)) {
        exporter->copyDepend(audio, "audio.png"_L1); // ignored, as all of them
    } else {
        copyBrandImage(*exporter, "audio.png"_L1);
    }
    copyBrandImage(*exporter, "location.png"_L1);
    return writePageTop(*exporter, m_title);
}

bool CSMS2HtmlTranslate::writeFooter(CIDataExporter* exporter)
{
    return writePageBottom(*exporter);
}

bool CSMS2HtmlTranslate::writeItem(CIDataExporter* exporter, PRSMSItem* item)
{
    const PRSMSChatGroup& conversation = *item->detailContent();
    const bool deleted = item->flag(Deleted);
    const bool partial = item->flag(PartlySelected);
    Page page(kConversationOpen);
    drawHeading(page, {label(QT_TRANSLATE_NOOP("DataExport", "Name: %1")).arg(item->value(0)),
                          label(QT_TRANSLATE_NOOP("DataExport", "Phone: %1")).arg(item->value(1)),
                          label(QT_TRANSLATE_NOOP("DataExport", "Email: %1")).arg(item->value(2))});
    DateLines dates;
    for (const PRSMSChat* message : conversation.chats()) {
        if (partial && !message->isChecked()) {
            continue;
        }
        dates.draw(page, *message);
        if (message->itemType() != 0) {
            drawEvent(page, *message, conversation);
        } else {
            MessageDrawing(page, *exporter, m_pictures, *message, deleted)
                .draw(conversation.addrIds());
        }
    }
    page.add(kConversationClose);
    return exporter->write(page.text());
}
