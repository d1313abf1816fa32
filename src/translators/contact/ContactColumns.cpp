// SPDX-License-Identifier: MIT
#include "translators/contact/ContactColumns.h"

#include "exporters/escape.h"
#include "model/PRContactItem.h"
#include "model/PRData.h"
#include "platform/literals.h"
#include "translators/contact/CContactHelper.h"

#include <algorithm>

namespace {

// The names of the columns of a kind's property of that number.
void appendNames(QStringList& names, const PropertyBlock& block, int number)
{
    for (const PropertyColumn& column : block.columns) {
        names.append(QString(column.name).arg(number));
    }
}

void appendCell(QString& row, const QString& text)
{
    row += row.isEmpty() ? R"(")"_L1 : R"(,")"_L1;
    appendCsvEscaped(row, text);
    row += QChar(u'"');
}

// The cells of all properties of a kind, and empty ones up to `count` properties.
void appendBlock(QString& row, const PropertyBlock& block, int count, CContactHelper& helper,
    const PRContactPrivate& contact)
{
    int left = count;
    for (const PRContactProperty* property : contact.properties()) {
        if (property->propType() != block.propType || left == 0) {
            continue;
        }
        for (const PropertyColumn& column : block.columns) {
            appendCell(row, column.cell(helper, *property));
        }
        --left;
    }
    for (std::size_t empty = block.columns.size() * static_cast<std::size_t>(left); empty > 0;
         --empty) {
        appendCell(row, {});
    }
}

} // namespace

ContactColumns::ContactColumns(std::span<const ContactColumn> columns,
    std::span<const PropertyBlock> blocks, const PRData& data)
    : m_columns(columns)
{
    for (const PropertyBlock& block : blocks) {
        m_blocks.push_back({.block = block});
    }
    const CContactHelper helper;
    for (int row = 0; row < data.count(1); ++row) {
        PRAbstractItem* record = data.at(row, true);
        const auto* contact =
            data.recover(record) ? dynamic_cast<const PRContactItem*>(record) : nullptr;
        if (contact == nullptr) {
            continue;
        }
        for (auto& [block, count] : m_blocks) {
            count = std::max(count, helper.getPropCount(contact->detailContent(), block.propType));
        }
    }
}

QStringList ContactColumns::names() const
{
    QStringList names;
    for (const ContactColumn& column : m_columns) {
        names.append(column.name);
    }
    for (const auto& [block, count] : m_blocks) {
        for (int number = 1; number <= count; ++number) {
            appendNames(names, block, number);
        }
    }
    return names;
}

QString ContactColumns::row(CContactHelper& helper, const PRContactPrivate& contact) const
{
    QString row;
    for (const ContactColumn& column : m_columns) {
        appendCell(row, column.cell != nullptr ? column.cell(helper, contact) : QString());
    }
    for (const auto& [block, count] : m_blocks) {
        appendBlock(row, block, count, helper, contact);
    }
    return row;
}
