// SPDX-License-Identifier: MIT
// One file, lines ended by a line feed; labels bare, all other cells quoted:
//
//   Chat,Name,Phone,Date,Type,Content
//   "Crew","Crew","+49 431 5550101,+49 431 5550102","2024-05-01 14:30","Received","At ""Luna""?"
#include "translators/message/CWhatsapp2CSVTranslate.h"

#include "exporters/CIDataExporter.h"
#include "model/PRWhatsappItem.h"
#include "translators/message/message_csv.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {

constexpr std::array kColumns{
    QT_TRANSLATE_NOOP("DataExport", "Chat"),
    QT_TRANSLATE_NOOP("DataExport", "Name"),
    QT_TRANSLATE_NOOP("DataExport", "Phone"),
    QT_TRANSLATE_NOOP("DataExport", "Date"),
    QT_TRANSLATE_NOOP("DataExport", "Type"),
    QT_TRANSLATE_NOOP("DataExport", "Content"),
};

// Have no row, even where they have a caption.
constexpr std::array kFiles{MsgType::Picture, MsgType::Video, MsgType::Audio, MsgType::Document};

// The type cells, translated and quoted once for a chat.
struct TypeCells {
    QString groupEvent = quotedLabel(QT_TRANSLATE_NOOP("DataExport", "Group Event"));
    QString fail = quotedLabel(QT_TRANSLATE_NOOP("DataExport", "Fail"));
    QString sent = quotedLabel(QT_TRANSLATE_NOOP("DataExport", "Sent"));
    QString received = quotedLabel(QT_TRANSLATE_NOOP("DataExport", "Received"));

    // An event is one however it was sent; a message that did not go out is "Fail", whichever way.
    const QString& of(const PRWhatsappMsg& message) const
    {
        if (message.type() == MsgType::GroupEvent) {
            return groupEvent;
        }
        if (!message.isSentDone()) {
            return fail;
        }
        return message.isFromMe() ? sent : received;
    }
};

bool hasRow(const PRWhatsappMsg& message)
{
    return !message.content().isEmpty()
           && std::ranges::find(kFiles, message.type()) == kFiles.end();
}

} // namespace

bool CWhatsapp2CSVTranslate::prepare(
    CIDataExporter* exporter, const QString& /*title*/, CIProgressCallback* /*progress*/)
{
    return exporter->write(columnLabels(kColumns) + QChar(u'\n'));
}

bool CWhatsapp2CSVTranslate::writeHeader(CIDataExporter* /*exporter*/)
{
    return true;
}

bool CWhatsapp2CSVTranslate::writeFooter(CIDataExporter* /*exporter*/)
{
    return true;
}

bool CWhatsapp2CSVTranslate::writeItem(CIDataExporter* exporter, PRWhatsappItem* item)
{
    const bool partial = item->flag(PartlySelected);
    const TypeCells types;
    ConversationRows rows(*item);
    for (const PRWhatsappMsg* message : item->detailContent()->messages()) {
        if ((partial && !message->isChecked()) || !hasRow(*message)) {
            continue;
        }
        rows.begin(message->msgDate(), types.of(*message));
        rows.addContent(message->content());
        rows.write(*exporter); // a failed row does not stop the run
    }
    return true;
}
