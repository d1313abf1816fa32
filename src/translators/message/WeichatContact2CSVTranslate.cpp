// SPDX-License-Identifier: MIT
// One file, lines ended by a comma and a line feed. No cell is quoted: the alias brings its marks
// along, and a comma in any other cell shifts those behind it. The format is like that.
//
//   Name,Alias,Wechat ID,WXID,Region,Phone,What's Up,
//   Mia,"mimi",mia.huber,wxid_1,Kiel Germany,+49 431 5550101;+49 431 5550102,At sea,
#include "translators/message/WeichatContact2CSVTranslate.h"

#include "exporters/CIDataExporter.h"
#include "model/PRWeichatContactItem.h"
#include "platform/literals.h"
#include "translators/message/chat_contact_texts.h"
#include "translators/message/message_csv.h"

#include <QCoreApplication>
#include <QStringList>

#include <array>

namespace {

constexpr std::array kColumns{
    QT_TRANSLATE_NOOP("DataExport", "Name"),
    QT_TRANSLATE_NOOP("DataExport", "Alias"),
    QT_TRANSLATE_NOOP("DataExport", "Wechat ID"),
    QT_TRANSLATE_NOOP("DataExport", "WXID"),
    QT_TRANSLATE_NOOP("DataExport", "Region"),
    QT_TRANSLATE_NOOP("DataExport", "Phone"),
    QT_TRANSLATE_NOOP("DataExport", "What's Up"),
};

constexpr QLatin1String kRowEnd = ",\n"_L1;

} // namespace

bool WeichatContact2CSVTranslate::prepare(
    CIDataExporter* exporter, const QString& /*title*/, CIProgressCallback* /*progress*/)
{
    return exporter->write(columnLabels(kColumns) + kRowEnd);
}

bool WeichatContact2CSVTranslate::writeHeader(CIDataExporter* /*exporter*/)
{
    return true;
}

bool WeichatContact2CSVTranslate::writeFooter(CIDataExporter* /*exporter*/)
{
    return true;
}

bool WeichatContact2CSVTranslate::writeItem(CIDataExporter* exporter, PRWeichatContactItem* item)
{
    const PRWeiChatContact& contact = *item->detailContent();
    const QStringList cells{
        contact.name(),
        aliasText(contact),
        publicId(contact.wxNameId(), contact.nameID()),
        contact.nameID(),
        regionText(contact),
        contact.phones().join(QChar(u';')),
        contact.sign(),
    };
    return exporter->write(cells.join(QChar(u',')) + kRowEnd);
}
