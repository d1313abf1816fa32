// SPDX-License-Identifier: MIT
// A row of a conversation, ended by a line feed:
//
//   "Mia","+49 171 5550101","","2024-05-01 14:30","Received","See you at ""Luna""?"
#include "translators/message/message_csv.h"

#include "exporters/CIDataExporter.h"
#include "exporters/escape.h"
#include "model/PRAbstractItem.h"
#include "platform/CCommonUtils.h"
#include "platform/literals.h"
#include "translators/message/labels.h"

#include <QStringList>

QString columnLabels(std::span<const char* const> columns)
{
    QStringList labels;
    for (const char* column : columns) {
        labels.append(label(column));
    }
    return labels.join(QChar(u','));
}

QString quotedLabel(const char* source)
{
    return csvQuote(label(source));
}

ConversationRows::ConversationRows(const PRAbstractItem& conversation)
    : m_row(csvQuote(conversation.value(0)) + QChar(u',') + csvQuote(conversation.value(1))
            + QChar(u',') + csvQuote(conversation.value(2)) + QChar(u',')),
      m_conversationEnd(m_row.size())
{
}

void ConversationRows::begin(const QDateTime& date, const QString& type)
{
    m_row.truncate(m_conversationEnd);
    m_row += csvQuote(CCommonUtils::datetimeToMinute(date, true));
    m_row += QChar(u',');
    m_row += type;
    m_row += R"(,")"_L1;
    m_contentStart = m_row.size();
}

void ConversationRows::addContent(const QString& text)
{
    if (text.isEmpty()) {
        return;
    }
    if (hasContent()) {
        m_row += QChar(u' ');
    }
    appendCsvEscaped(m_row, text);
}

bool ConversationRows::write(CIDataExporter& exporter)
{
    m_row += "\"\n"_L1;
    return exporter.write(m_row);
}
