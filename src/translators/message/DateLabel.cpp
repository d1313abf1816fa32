// SPDX-License-Identifier: MIT
#include "translators/message/DateLabel.h"

#include "exporters/page_text.h"
#include "platform/CCommonUtils.h"
#include "platform/literals.h"
#include "translators/message/labels.h"

DateLabel::DateLabel()
    : m_parts(label(QT_TRANSLATE_NOOP("DataExport", "Date: %1")).split(QStringLiteral("%1")))
{
}

void DateLabel::draw(Page& page, const QDateTime& date) const
{
    page.add(escaped(m_parts.first()));
    const QString text = CCommonUtils::datetimeToMinute(date, true); // nothing in it to escape
    for (int i = 1; i < m_parts.size(); ++i) {
        page.add("%1%2"_L1, text, escaped(m_parts.at(i)));
    }
}
