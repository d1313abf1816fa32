// SPDX-License-Identifier: MIT
#include "cli/Table.h"

#include "platform/literals.h"

#include <algorithm>

QStringList Table::lines() const
{
    const std::vector<int> columnWidths = widths();
    QStringList lines;
    for (const QStringList& row : m_rows) {
        QStringList cells;
        for (std::size_t column = 0; column < m_columns.size(); ++column) {
            const QString cell = row.value(static_cast<int>(column));
            const int width = columnWidths.at(column);
            const bool isRight = m_columns.at(column) == Align::Right;
            cells.append(isRight ? cell.rightJustified(width) : cell.leftJustified(width));
        }
        QString line = cells.join("  "_L1);
        while (line.endsWith(QChar(u' '))) {
            line.chop(1);
        }
        lines.append(line);
    }
    return lines;
}

std::vector<int> Table::widths() const
{
    std::vector<int> widths(m_columns.size());
    for (const QStringList& row : m_rows) {
        for (std::size_t column = 0; column < widths.size(); ++column) {
            widths.at(column) =
                std::max(widths.at(column), row.value(static_cast<int>(column)).size());
        }
    }
    return widths;
}
