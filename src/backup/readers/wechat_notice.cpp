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

namespace backup {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

// Strangers write the names that stand in a line, which could fill the memory.
constexpr int kLongestLine = 100'000;
constexpr int kLongestSeparator = 16;

/// What stands in one place of a template, and who.
struct Link {
    QString plain;
    QString separator = QStringLiteral(", ");
    QStringList people;

    QString text() const { return people.isEmpty() ? plain : people.join(separator); }
};

void readInto(Link& link, QXmlStreamReader& reader)
{
    if (reader.name() == "nickname"_L1) {
        link.people.append(plainName(elementText(reader)));
    } else if (reader.name() == "separator"_L1) {
        link.separator = elementText(reader).left(kLongestSeparator);
    } else if (reader.name() == "plain"_L1) {
        link.plain = elementText(reader);
    }
}

// "$name$" is a place. What was put into one is no place again.
QString filled(const QString& text, const QHash<QString, Link>& links)
{
    const QStringList parts = text.split(QChar(u'$'));
    QString line = parts.first();
    for (int part = 1; part < parts.size() && line.size() < kLongestLine; ++part) {
        const auto link = links.constFind(parts.at(part));
        if (link == links.constEnd() || part + 1 == parts.size()) {
            line += QChar(u'$') + parts.at(part);
            continue;
        }
        ++part;
        line += link->text() + parts.at(part);
    }
    return line;
}

QString filledTemplate(const QString& message)
{
    QXmlStreamReader reader(message.trimmed());
    reader.setNamespaceProcessing(false); // prefixes are often not declared
    QString text;
    QHash<QString, Link> links;
    Link* link = nullptr;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (reader.name() == "template"_L1 && text.isEmpty()) {
            text = withoutTags(elementText(reader));
        } else if (reader.name() == "link"_L1) {
            link = &links[reader.attributes().value("name"_L1).toString()];
        } else if (link != nullptr) {
            readInto(*link, reader);
        }
    }
    return filled(text, links);
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
    reader.setNamespaceProcessing(false);
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
