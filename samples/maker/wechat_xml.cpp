// SPDX-License-Identifier: MIT
#include "wechat_xml.h"

#include "common.h"

#include <algorithm>
#include <array>

namespace sample {

namespace {

QString elements(const QString& text)
{
    return text.toHtmlEscaped();
}

QString media(const char* element)
{
    return QString("<?xml version=\"1.0\"?>\n<msg><%1 length=\"48211\" /></msg>").arg(element);
}

QString app(int type, const QString& title, const QString& inner)
{
    return QString("<?xml version=\"1.0\"?>\n<msg><appmsg appid=\"\" sdkver=\"0\"><title>%1</title>"
                   "<action>view</action><type>%2</type>%3</appmsg><scene>0</scene></msg>")
        .arg(elements(title), QString::number(type), inner);
}

QString element(const char* name, const QString& text)
{
    return QString("<%1>%2</%1>").arg(name, elements(text));
}

WeChatMessage quote(const QJsonObject& source)
{
    const QJsonValue quoted = source["quote"];
    return {49, app(57, source["text"].toString(),
                    "<refermsg><type>1</type>" + element("displayname", quoted["who"].toString())
                        + element("content", quoted["text"].toString()) + "</refermsg>")};
}

WeChatMessage place(const QJsonObject& source)
{
    const QJsonValue place = source["place"];
    return {48, QString("<?xml version=\"1.0\"?>\n<msg><location x=\"%1\" y=\"%2\" scale=\"16\""
                        " label=\"%3\" maptype=\"roadmap\" poiname=\"%4\" /></msg>")
                    .arg(place["latitude"].toString(), place["longitude"].toString(),
                        elements(place["label"].toString()), elements(place["name"].toString()))};
}

WeChatMessage card(const QJsonObject& source)
{
    const QJsonValue card = source["card"];
    return {42, QString("<?xml version=\"1.0\"?>\n<msg username=\"%1\" nickname=\"%2\" alias=\"%3\""
                        " certflag=\"0\" />")
                    .arg(card["user"].toString(), elements(card["nick"].toString()),
                        card["alias"].toString())};
}

WeChatMessage link(const QJsonObject& source)
{
    const QJsonValue link = source["link"];
    return {49,
        app(5, link["title"].toString(),
            element("des", link["summary"].toString()) + element("url", link["url"].toString()))};
}

WeChatMessage document(const QJsonObject& source)
{
    const QString name = source["name"].toString();
    return {49,
        app(6, name, "<appattach>" + element("fileext", name.section('.', -1)) + "</appattach>")};
}

WeChatMessage money(const QJsonObject& source)
{
    const QJsonValue money = source["money"];
    return {49, app(2000, money["title"].toString(),
                    "<wcpayinfo>" + element("feedesc", money["amount"].toString())
                        + element("pay_memo", money["words"].toString()) + "</wcpayinfo>")};
}

WeChatMessage recalled(const QJsonObject& source)
{
    return {10002, "<sysmsg type=\"revokemsg\"><revokemsg><newmsgid>1</newmsgid>"
                       + element("replacemsg", source["recalled"].toString())
                       + "</revokemsg></sysmsg>"};
}

WeChatMessage added(const QJsonObject& source)
{
    const auto member = [](const QString& name) {
        return "<member>" + element("nickname", name) + "</member>";
    };
    QString people;
    for (const QJsonValue& person : entriesOf(source["added"]["who"])) {
        people += member(person.toString());
    }
    return {10002,
        R"(<sysmsg type="sysmsgtemplate"><sysmsgtemplate><content_template type="tmpl_type_profile">)"
        R"(<plain></plain><template>"$username$" invited "$names$" to the group chat</template>)"
        R"(<link_list><link name="username"><memberlist>)"
            + member(source["added"]["by"].toString())
            + R"(</memberlist></link><link name="names"><memberlist>)" + people
            + "</memberlist><separator>, </separator></link></link_list>"
              "</content_template></sysmsgtemplate></sysmsg>"};
}

WeChatMessage call(const QJsonObject& source)
{
    return {50, "<voipmsg type=\"VoIPBubbleMsg\"><VoIPBubbleMsg>"
                    + element("msg", source["call"].toString()) + "</VoIPBubbleMsg></voipmsg>"};
}

struct KindRow {
    const char* key = nullptr;
    WeChatMessage (*message)(const QJsonObject& source) = nullptr;
};
// clang-format off
constexpr std::array kKinds{
    KindRow{"quote",    quote},
    KindRow{"place",    place},
    KindRow{"card",     card},
    KindRow{"link",     link},
    KindRow{"document", document},
    KindRow{"money",    money},
    KindRow{"recalled", recalled},
    KindRow{"added",    added},
    KindRow{"call",     call},
    KindRow{"pat",      [](const QJsonObject& source) { return WeChatMessage{49, app(62, source["pat"].toString(), {})}; }},
    KindRow{"system",   [](const QJsonObject& source) { return WeChatMessage{10000, source["system"].toString()}; }},
    KindRow{"picture",  [](const QJsonObject& /*source*/) { return WeChatMessage{3, media("img")}; }},
    KindRow{"voice",    [](const QJsonObject& /*source*/) { return WeChatMessage{34, media("voicemsg")}; }},
    KindRow{"video",    [](const QJsonObject& /*source*/) { return WeChatMessage{43, media("videomsg")}; }},
    KindRow{"sticker",  [](const QJsonObject& /*source*/) { return WeChatMessage{47, media("emoji")}; }},
    KindRow{"text",     [](const QJsonObject& source) { return WeChatMessage{1, source["text"].toString()}; }},
};
// clang-format on

} // namespace

WeChatMessage weChatMessage(const QJsonObject& source)
{
    const auto* const row = std::ranges::find_if(
        kKinds, [&](const KindRow& kind) { return source.contains(kind.key); });
    if (row == kKinds.end()) {
        fail("a message of wechat.json at " + source["at"].toString() + " has nothing in it");
    }
    return row->message(source);
}

} // namespace sample
