// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

enum class Align { Left, Right };

/// Rows of text in columns that are as wide as their widest cell, two blanks apart.
class Table {
public:
    /// One entry for each column; every row has as many cells.
    explicit Table(std::vector<Align> columns) : m_columns(std::move(columns)) {}

    void addRow(const QStringList& cells) { m_rows.push_back(cells); }
    /// The rows as lines, without blanks at the end.
    QStringList lines() const;

private:
    std::vector<int> widths() const;

    std::vector<Align> m_columns;
    std::vector<QStringList> m_rows;
};
