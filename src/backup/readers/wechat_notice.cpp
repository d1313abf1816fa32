// SPDX-License-Identifier: MIT
//   You received <a href="…">Bo's red packet</a>
//
//   <sysmsg type="revokemsg"><revokemsg><replacemsg>"Bo" recalled a
//   message</replacemsg></revokemsg>
//
//   <sysmsg type="sysmsgtemplate"><sysmsgtemplate><content_template><plain/>
//     <template>"$adder$" added "$names$"</template>
//     <link_list><link name="names"><memberlist><member><nickname>Ann</nickname></member>
//         <member><nickname>Bo</nickname></member></memberlist><separator>, </separator></link>
//
//   <recordinfo><datalist><dataitem><sourcename>Bo</sourcename><datadesc>See you</datadesc>
#include "backup/readers/wechat_notice.h"

#include "backup/readers/XmlTexts.h"
#include "backup/readers/chat_lines.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <QXmlStreamReader>

#include <vector>

namespace backup {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

/// One place of a template, with who stands in it.
struct Link {
    QString name;
    QString plain;
    QString separator = QStringLiteral(", ");
    QStringList people;

    QString text() const { return people.isEmpty() ? plain : people.join(separator); }
};

QString elementText(QXmlStreamReader& reader)
{
    return reader.readElementText(QXmlStreamReader::IncludeChildElements);
}

void readInto(Link& link, QXmlStreamReader& reader)
{
    if (reader.name() == "nickname"_L1) {
        link.people.append(plainName(elementText(reader)));
    } else if (reader.name() == "separator"_L1) {
        link.separator = elementText(reader);
    } else if (reader.name() == "plain"_L1) {
        link.plain = elementText(reader);
    }
}

QString filledTemplate(const QString& message)
{
    QXmlStreamReader reader(message.trimmed());
    QString text;
    std::vector<Link> links;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (reader.name() == "template"_L1 && text.isEmpty()) {
            text = withoutTags(elementText(reader));
        } else if (reader.name() == "link"_L1) {
            links.push_back({.name = reader.attributes().value("name"_L1).toString()});
        } else if (!links.empty()) {
            readInto(links.back(), reader);
        }
    }
    for (const Link& link : links) {
        text.replace(QChar(u'$') + link.name + QChar(u'$'), link.text());
    }
    return text;
}

QString systemXmlText(const QString& message)
{
    const XmlTexts xml(message);
    QString told = xml.firstOf({"sysmsg/revokemsg/replacemsg"_L1,
        "sysmsg/sysmsgtemplate/content_template/plain"_L1, "sysmsg/delchatroommember/plain"_L1});
    told = told.isEmpty() ? filledTemplate(message) : withoutTags(told);
    if (!told.isEmpty()) {
        return told;
    }
    if (xml.at("sysmsg@type"_L1) == "revokemsg"_L1) {
        return tr("A message was recalled");
    }
    return xml.allText();
}

} // namespace

QString noticeText(const QString& message)
{
    const QString trimmed = message.trimmed();
    if (trimmed.startsWith("<sysmsg"_L1) || trimmed.startsWith("<?xml"_L1)) {
        return systemXmlText(trimmed);
    }
    if (trimmed.startsWith(QChar(u'{'))) {
        const QJsonObject object = QJsonDocument::fromJson(trimmed.toUtf8()).object();
        QString told = object.value("msgContent"_L1).toString();
        if (!told.isEmpty()) {
            return told;
        }
    }
    return withoutTags(trimmed);
}

QString forwardedText(const QString& recordItem)
{
    QXmlStreamReader reader(recordItem.trimmed());
    QStringList lines;
    QString who;
    QString what;
    const auto finish = [&] {
        if (!what.isEmpty()) {
            lines.append(who.isEmpty() ? what : who + ": "_L1 + what);
        }
        who.clear();
        what.clear();
    };
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::EndElement && reader.name() == "dataitem"_L1) {
            finish();
        } else if (token != QXmlStreamReader::StartElement) {
            continue;
        } else if (reader.name() == "sourcename"_L1) {
            who = plainName(elementText(reader));
        } else if (reader.name() == "datadesc"_L1
                   || (reader.name() == "datatitle"_L1 && what.isEmpty())) {
            what = elementText(reader).trimmed();
        }
    }
    finish();
    return lines.join(QChar(u'\n'));
}

} // namespace backup
