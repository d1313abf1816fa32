// SPDX-License-Identifier: MIT
// One file, lines ended by a line feed; labels bare, all other cells quoted:
//
//   Name,Phone,Email,Date,Type,Content
//   "Mia","+49 171 5550101","","2024-05-01 14:30","Received","See you at ""Luna""?"
#include "translators/message/CSMS2CSVTranslate.h"

#include "exporters/CIDataExporter.h"
#include "exporters/escape.h"
#include "model/PRSMSItem.h"
#include "platform/CCommonUtils.h"
#include "platform/literals.h"

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

QString label(const char* source)
{
    return QCoreApplication::translate("DataExport", source);
}

// The type cells, translated and quoted once for a conversation.
struct TypeCells {
    QString unknown = csvQuote(label(QT_TRANSLATE_NOOP("DataExport", "Unknown")));
    QString sent = csvQuote(label(QT_TRANSLATE_NOOP("DataExport", "Sent")));
    QString received = csvQuote(label(QT_TRANSLATE_NOOP("DataExport", "Received")));

    // A message that was not sent completely is "Unknown", whichever way it went.
    const QString& of(const PRSMSChat& message) const
    {
        if (!message.isSentDone()) {
            return unknown;
        }
        return message.isFromMe() ? sent : received;
    }
};

// The texts of a message, escaped and with one blank between them. False when there is none.
class ContentCell {
public:
    explicit ContentCell(QString& row) : m_row(row), m_start(row.size()) {}

    void add(const QString& text)
    {
        if (text.isEmpty()) {
            return;
        }
        if (m_row.size() > m_start) {
            m_row += QChar(u' ');
        }
        appendCsvEscaped(m_row, text);
    }

    bool isEmpty() const { return m_row.size() == m_start; }

private:
    QString& m_row;
    int m_start;
};

// Any type that holds "text" counts, not "text/plain" alone. A location is a text file too, but one
// that nobody reads.
bool isText(const PRSMSPiece& piece)
{
    return piece.pieceType().contains("text"_L1) && !piece.isLocation();
}

void addContent(
    ContentCell& cell, const PRSMSChat& message, const QMap<QString, QString>& addresses)
{
    if (message.itemType() != 0) {
        cell.add(message.msgForEvent(addresses));
        return;
    }
    cell.add(message.subject());
    cell.add(message.content());
    for (const PRSMSPiece* piece : message.pieces()) {
        if (isText(*piece)) {
            cell.add(QString::fromUtf8(piece->pieceData()));
        }
    }
}

} // namespace

bool CSMS2CSVTranslate::prepare(
    CIDataExporter* exporter, const QString& /*title*/, CIProgressCallback* /*progress*/)
{
    // The labels go out bare, unlike every other cell.
    QStringList labels;
    for (const char* column : kColumns) {
        labels.append(label(column));
    }
    return exporter->write(labels.join(QChar(u',')) + QChar(u'\n'));
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
    const QString conversationCells = csvQuote(item->value(0)) + QChar(u',')
                                      + csvQuote(item->value(1)) + QChar(u',')
                                      + csvQuote(item->value(2)) + QChar(u',');

    QString row = conversationCells;
    for (const PRSMSChat* message : conversation.chats()) {
        if (partial && !message->isChecked()) {
            continue;
        }
        row.truncate(conversationCells.size());
        row += csvQuote(CCommonUtils::datetimeToMinute(message->msgDate(), true));
        row += QChar(u',');
        row += types.of(*message);
        row += R"(,")"_L1;
        ContentCell content(row);
        addContent(content, *message, conversation.addrIds());
        if (content.isEmpty()) {
            continue; // a picture alone leaves no row
        }
        row += "\"\n"_L1;
        exporter->write(row); // a failed row does not stop the run
    }
    return true;
}
