// SPDX-License-Identifier: MIT
#include "model/PRAbstractItem.h"

PRAbstractItem::PRAbstractItem(Record record) : m_record(std::move(record))
{
    if (m_record.parent) {
        m_parent = std::make_unique<PRAbstractItem>(Record{.values = {*m_record.parent}});
    }
}

PRAbstractItem::~PRAbstractItem() = default;

QString PRAbstractItem::value(int column) const
{
    return m_record.values.value(column);
}

QVariant PRAbstractItem::sortValue(int column) const
{
    return value(column);
}

bool PRAbstractItem::flag(int number) const
{
    switch (number) {
    case Deleted:
    case InCalendarRange:
    case Locked:
    case PartlySelected:
        return (m_record.flags & number) != 0;
    default:
        return false;
    }
}

PRAbstractItem* PRAbstractItem::parentItem()
{
    return m_parent.get();
}
