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
#include "platform/literals.h"
#include "translators/message/DateLabel.h"
#include "translators/message/bubble.h"
#include "translators/message/bubble_style.h"
#include "translators/message/labels.h"

#include <QCoreApplication>
#include <QFile>
#include <QImage>

#include <array>
#include <optional>

namespace {

constexpr std::array kSkins{kSentSkin, kSentIMessageSkin, kReceivedSkin};

constexpr QLatin1String kDateOpen = "<p>%1"_L1;
constexpr QLatin1String kDateClose = "</p>"_L1;
constexpr QLatin1String kEvent = R"(<p class="event-msg">%1</p>)"_L1;
constexpr QLatin1String kPictureRow = R"(
<div class="%1">
    <table><tr>
        <td><img src="%2" /></td>
)"_page;

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
            page.add(kDateOpen, kindChanged ? kindLine(*m_lastNormal) : QString());
            m_label.draw(page, date);
            page.add(kDateClose);
        }
    }

private:
    QString kindLine(bool normal) const
    {
        return m_hyphens + (normal ? "SMS/MMS"_L1 : "iMessage"_L1) + m_hyphens + "<br>"_L1;
    }

    const QString m_hyphens = QString(55, QChar(u'-'));
    const DateLabel m_label;
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
        drawGroupSender(names);
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
    void drawGroupSender(const QMap<QString, QString>& names)
    {
        if (names.size() > 1 && !m_look.fromMe) {
            const QString& address = m_message.addr();
            drawSender(m_page, names.value(address, address));
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
        openBubbleSide(m_page, side(), m_look);
        openBubbleRow(m_page, m_look);
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
    return bubbleStyleSheet({.headingFont = "font-size:16px;"_L1,
        .lineFont = "font-size:12px;"_L1,
        .eventRule = ".main .event-msg { font-size:14px; }"_L1,
        .sideRule = R"(
            .main-right-imsg { float:right; padding-top:10px; padding-bottom:20px; clear:both; }
        )"_page,
        .sideImageRule = ".main-right-imsg img { vertical-align:middle; }"_L1,
        .skins = kSkins});
}

bool CSMS2HtmlTranslate::prepare(
    CIDataExporter* /*exporter*/, const QString& title, CIProgressCallback* /*progress*/)
{
    m_title = title;
    return true;
}

bool CSMS2HtmlTranslate::writeHeader(CIDataExporter* exporter)
{
    for (const BubbleSkin& skin : kSkins) {
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
    Page page;
    openConversation(
        page, {label(QT_TRANSLATE_NOOP("DataExport", "Name: %1")).arg(item->value(0)),
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
    closeConversation(page);
    return exporter->write(page.text());
}
