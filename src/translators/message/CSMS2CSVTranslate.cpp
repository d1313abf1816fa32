// SPDX-License-Identifier: MIT
// One file, lines ended by a line feed; labels bare, all other cells quoted:
//
//   Name,Phone,Email,Date,Type,Content
//   "Mia","+49 171 5550101","","2024-05-01 14:30","Received","See you at ""Luna""?"
#include "translators/message/CSMS2CSVTranslate.h"

#include "exporters/CIDataExporter.h"
#include "model/PRSMSItem.h"
#include "platform/literals.h"
#include "translators/message/message_csv.h"

#include <QCoreApplication>

#include <array>

namespace {

constexpr std::array kColumns{
    QT_TRANSLATE_NOOP("DataExport", "Name"),
    QT_TRANSLATE_NOOP("DataExport", "Phone"),
    QT_TRANSLATE_NOOP("DataExport", "Email"),
    QT_TRANSLATE_NOOP("DataExport", "Date"),
    QT_TRANSLATE_NOOP("DataExport", "Type"),
    QT_TRANSLATE_NOOP("DataExport", "Content"),
};

// The type cells, translated and quoted once for a conversation.
struct TypeCells {
    QString unknown = quotedLabel(QT_TRANSLATE_NOOP("DataExport", "Unknown"));
    QString sent = quotedLabel(QT_TRANSLATE_NOOP("DataExport", "Sent"));
    QString received = quotedLabel(QT_TRANSLATE_NOOP("DataExport", "Received"));

    // A message that was not sent completely is "Unknown", whichever way it went.
    const QString& of(const PRSMSChat& message) const
    {
        if (!message.isSentDone()) {
            return unknown;
        }
        return message.isFromMe() ? sent : received;
    }
};

// Any type that holds "text" counts, not "text/plain" alone. A location is a text file too, but one
// that nobody reads.
bool isText(const PRSMSPiece& piece)
{
    return piece.pieceType().contains("text"_L1) && !piece.isLocation();
}

void addContent(
    ConversationRows& rows, const PRSMSChat& message, const QMap<QString, QString>& addresses)
{
    if (message.itemType() != 0) {
        rows.addContent(message.msgForEvent(addresses));
        return;
    }
    rows.addContent(message.subject());
    rows.addContent(message.content());
    for (const PRSMSPiece* piece : message.pieces()) {
        if (isText(*piece)) {
            rows.addContent(QString::fromUtf8(piece->pieceData()));
        }
    }
}

} // namespace

bool CSMS2CSVTranslate::prepare(
    CIDataExporter* exporter, const QString& /*title*/, CIProgressCallback* /*progress*/)
{
    return exporter->write(columnLabels(kColumns) + QChar(u'\n'));
}

bool CSMS2CSVTranslate::writeHeader(CIDataExporter* /*exporter*/)
{
    return true;
}

bool CSMS2CSVTranslate::writeFooter(CIDataExporter* /*exporter*/)
{
    return true;
}

bool CSMS2CSVTranslate::writeItem(CIDataExporter* exporter, PRSMSItem* item)
{
    const PRSMSChatGroup& conversation = *item->detailContent();
    const bool partial = item->flag(PartlySelected);
    const TypeCells types;
    ConversationRows rows(*item);
    for (const PRSMSChat* message : conversation.chats()) {
        if (partial && !message->isChecked()) {
            continue;
        }
        rows.begin(message->msgDate(), types.of(*message));
        addContent(rows, *message, conversation.addrIds());
        if (rows.hasContent()) {   // a picture alone leaves no row
            rows.write(*exporter); // a failed row does not stop the run
        }
    }
    return true;
}
