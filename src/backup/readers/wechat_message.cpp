// SPDX-License-Identifier: MIT
//   Type 1      See you at six
//   Type 48     <msg><location x="52.5163" y="13.3777" label="Pariser Platz" poiname="Gate"/></msg>
//   Type 49     <msg><appmsg><title/><des/><url/><type>57</type>
//                   <refermsg><type>1</type><displayname/><content/></refermsg></appmsg></msg>
//   Type 10000  "Bo" joined the group chat
//   Type 10002  <sysmsg type="revokemsg"><revokemsg><replacemsg>"Bo" recalled a message
#include "backup/readers/wechat_message.h"

#include "backup/readers/XmlTexts.h"
#include "backup/readers/chat_lines.h"
#include "backup/readers/wechat_notice.h"
#include "platform/literals.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace backup {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

QString lines(std::initializer_list<QString> texts)
{
    QStringList shown;
    for (const QString& text : texts) {
        if (!text.isEmpty() && !shown.contains(text)) {
            shown.append(text);
        }
    }
    return shown.join(QChar(u'\n'));
}

WeChatContent event(QString text)
{
    return {.kind = MsgType::GroupEvent,
        .text = text.isEmpty() ? systemMessageLine() : std::move(text)};
}

WeChatContent plainText(const QString& message)
{
    return {.text = message};
}

WeChatContent picture(const QString& /*message*/)
{
    return {.kind = MsgType::Picture, .folder = WeChatFolder::Pictures};
}

WeChatContent voice(const QString& /*message*/)
{
    return {.kind = MsgType::Audio, .folder = WeChatFolder::Voice};
}

WeChatContent video(const QString& /*message*/)
{
    return {.kind = MsgType::Video, .folder = WeChatFolder::Videos};
}

WeChatContent sticker(const QString& /*message*/)
{
    return {.kind = MsgType::Picture, .text = stickerText()};
}

WeChatContent mail(const QString& message)
{
    const XmlTexts xml(message);
    return {
        .text = lines({xml.at("msg/pushmail/content/subject"_L1),
            xml.at("msg/pushmail/content/sender"_L1), xml.at("msg/pushmail/content/digest"_L1)})};
}

WeChatContent friendRequest(const QString& message)
{
    const XmlTexts xml(message);
    const QString who = plainName(xml.firstOf({"msg@fromnickname"_L1, "msg@fromusername"_L1}));
    return event(lines({tr("Friend request from %1").arg(who), xml.at("msg@content"_L1)}));
}

WeChatContent contactCard(const QString& message)
{
    const XmlTexts xml(message);
    return {.kind = MsgType::ContactCard,
        .text = lines({plainName(xml.at("msg@nickname"_L1)),
            xml.firstOf({"msg@alias"_L1, "msg@username"_L1})})};
}

WeChatContent location(const QString& message)
{
    const XmlTexts xml(message);
    // A place without a name is called "[Location]", in the language of the phone.
    QString name = xml.at("msg/location@poiname"_L1);
    const QString address = xml.at("msg/location@label"_L1);
    if (name.startsWith(QChar(u'[')) && !address.isEmpty()) {
        name.clear();
    }
    return {.kind = MsgType::Location,
        .text = locationText(lines({name, address}), xml.at("msg/location@x"_L1).toDouble(),
            xml.at("msg/location@y"_L1).toDouble())};
}

WeChatContent call(const QString& message)
{
    const QString told =
        looksLikeXml(message) ? XmlTexts(message).firstOf(
            {"voipmsg/VoIPBubbleMsg/msg"_L1, "VoIPBubbleMsg/msg"_L1, "msg/voip/msg"_L1})
                              : QString();
    return event(told.isEmpty() ? tr("Call") : tr("Call") + ": "_L1 + told);
}

WeChatContent notice(const QString& message)
{
    return event(noticeText(message));
}

// Kinds of app messages: what stands in `appmsg/type`.

WeChatContent link(const XmlTexts& xml)
{
    return {.text = lines({xml.at("msg/appmsg/title"_L1), xml.at("msg/appmsg/des"_L1),
                xml.at("msg/appmsg/url"_L1)}),
        .folder = WeChatFolder::Attachments,
        .previewOnly = true};
}

WeChatContent appText(const XmlTexts& xml)
{
    return {.text = xml.firstOf({"msg/appmsg/title"_L1, "msg/appmsg/des"_L1})};
}

WeChatContent appPicture(const XmlTexts& xml)
{
    return {.kind = MsgType::Picture,
        .text = xml.at("msg/appmsg/title"_L1),
        .folder = WeChatFolder::Attachments};
}

WeChatContent appSticker(const XmlTexts& /*xml*/)
{
    return {.kind = MsgType::Picture,
        .text = stickerText(),
        .folder = WeChatFolder::Attachments,
        .previewOnly = true};
}

WeChatContent document(const XmlTexts& xml)
{
    const QString title = xml.at("msg/appmsg/title"_L1);
    QString name = title;
    const QString ending = xml.at("msg/appmsg/appattach/fileext"_L1);
    if (!ending.isEmpty() && !name.endsWith(QChar(u'.') + ending, Qt::CaseInsensitive)) {
        name += QChar(u'.') + ending;
    }
    return {.kind = MsgType::Document,
        .text = title,
        .folder = WeChatFolder::Attachments,
        .fileName = name};
}

WeChatContent liveLocation(const XmlTexts& xml)
{
    const QString title = xml.at("msg/appmsg/title"_L1);
    return {.kind = MsgType::Location, .text = title.isEmpty() ? tr("Live location") : title};
}

WeChatContent history(const XmlTexts& xml)
{
    const QString forwarded = forwardedText(xml.at("msg/appmsg/recorditem"_L1));
    return {.text = lines({xml.at("msg/appmsg/title"_L1),
                forwarded.isEmpty() ? xml.at("msg/appmsg/des"_L1) : forwarded})};
}

WeChatContent miniProgram(const XmlTexts& xml)
{
    return {
        .text = lines({xml.at("msg/appmsg/sourcedisplayname"_L1), xml.at("msg/appmsg/title"_L1)}),
        .folder = WeChatFolder::Attachments,
        .previewOnly = true};
}

// The title asks for a newer release.
WeChatContent channel(const XmlTexts& xml)
{
    const QString feed = lines(
        {xml.at("msg/appmsg/finderFeed/nickname"_L1), xml.at("msg/appmsg/finderFeed/desc"_L1)});
    return feed.isEmpty() ? link(xml) : WeChatContent{.text = feed};
}

QString quotedText(const XmlTexts& xml)
{
    const QString content = xml.at("msg/appmsg/refermsg/content"_L1);
    switch (const qint64 type = xml.at("msg/appmsg/refermsg/type"_L1).toLongLong()) {
    case 0:
    case 1:
        return looksLikeXml(content) ? withoutTags(content) : content;
    case 3:
        return tr("Photo");
    case 34:
        return tr("Voice message");
    case 43:
    case 62:
        return tr("Video");
    case 49:
        return XmlTexts(content).at("msg/appmsg/title"_L1); // not what that one quotes
    default:
        return weChatContent(type, content).text;
    }
}

WeChatContent quote(const XmlTexts& xml)
{
    const QString who = plainName(xml.at("msg/appmsg/refermsg/displayname"_L1));
    const QString what = quotedText(xml).simplified();
    QString quoted;
    if (!who.isEmpty() || !what.isEmpty()) {
        quoted = "> "_L1 + (who.isEmpty() || what.isEmpty() ? who + what : who + ": "_L1 + what);
    }
    // Not `lines`: an answer may repeat what it quotes.
    const QString answer = xml.at("msg/appmsg/title"_L1);
    return {.text = quoted.isEmpty() || answer.isEmpty() ? quoted + answer
                                                         : quoted + QChar(u'\n') + answer};
}

WeChatContent pat(const XmlTexts& xml)
{
    return event(xml.at("msg/appmsg/title"_L1));
}

WeChatContent money(const XmlTexts& xml)
{
    return {
        .text = lines({xml.at("msg/appmsg/title"_L1), xml.at("msg/appmsg/wcpayinfo/feedesc"_L1),
            xml.firstOf({"msg/appmsg/wcpayinfo/pay_memo"_L1,
                "msg/appmsg/wcpayinfo/receivertitle"_L1, "msg/appmsg/wcpayinfo/sendertitle"_L1})})};
}

// clang-format off
struct AppRow {
    qint64 type = 0;
    WeChatContent (*content)(const XmlTexts& xml) = nullptr;
};
constexpr std::array kApps{
    AppRow{1, appText},     AppRow{2, appPicture},    AppRow{6, document},     AppRow{8, appSticker},
    AppRow{15, appSticker}, AppRow{17, liveLocation}, AppRow{19, history},     AppRow{33, miniProgram},
    AppRow{36, miniProgram}, AppRow{51, channel},     AppRow{57, quote},       AppRow{62, pat},
    AppRow{2000, money},    AppRow{2001, money},
};
// clang-format on

WeChatContent appMessage(const QString& message)
{
    const XmlTexts xml(message);
    const auto* const row =
        std::ranges::find(kApps, xml.at("msg/appmsg/type"_L1).toLongLong(), &AppRow::type);
    return row == kApps.end() ? link(xml) : row->content(xml); // music, films and others
}

// clang-format off
struct TypeRow {
    qint64 type = 0;
    WeChatContent (*content)(const QString& message) = nullptr;
};
constexpr std::array kTypes{
    TypeRow{1, plainText},   TypeRow{3, picture},      TypeRow{34, voice},      TypeRow{35, mail},
    TypeRow{37, friendRequest}, TypeRow{42, contactCard}, TypeRow{43, video},   TypeRow{47, sticker},
    TypeRow{48, location},   TypeRow{49, appMessage},  TypeRow{50, call},       TypeRow{52, call},
    TypeRow{53, call},       TypeRow{62, video},       TypeRow{64, notice},     TypeRow{66, contactCard},
    TypeRow{9999, notice},   TypeRow{10000, notice},   TypeRow{10002, notice},
};
// clang-format on

// A text as it stands; of XML the title, since the rest of it is for programs.
WeChatContent unknown(const QString& message)
{
    return {.text = looksLikeXml(message)
                        ? XmlTexts(message).firstOf({"msg/appmsg/title"_L1, "msg/appmsg/des"_L1})
                        : message.trimmed()};
}

} // namespace

WeChatContent weChatContent(qint64 type, const QString& message)
{
    const auto* const row = std::ranges::find(kTypes, type, &TypeRow::type);
    // Some app messages have types of their own.
    const auto of = message.contains("<appmsg"_L1) ? appMessage : unknown;
    WeChatContent content = row == kTypes.end() ? of(message) : row->content(message);
    const bool isBare = content.kind == MsgType::Text || content.kind == MsgType::ContactCard;
    if (isBare && content.text.isEmpty() && type != 1) {
        content.text = unknown(message).text; // not of the shape that its type has
        if (content.text.isEmpty()) {
            return {.kind = MsgType::GroupEvent, .text = unknownMessageLine()};
        }
    }
    return content;
}

WeChatSenderText splitSender(const QString& message)
{
    constexpr int kLongestName = 80;
    const int end = message.indexOf(":\n"_L1);
    const auto isOfName = [](QChar c) {
        return c.unicode() < 0x80
               && (c.isLetterOrNumber() || c == u'_' || c == u'-' || c == u'@' || c == u'.');
    };
    if (end <= 0 || end > kLongestName
        || !std::all_of(message.cbegin(), message.cbegin() + end, isOfName)) {
        return {.text = message};
    }
    return {.sender = message.left(end), .text = message.mid(end + 2)};
}

} // namespace backup
