// SPDX-License-Identifier: MIT
#include "model/PRContactItem.h"

PRContactPrivate::PRContactPrivate(ContactContent content) : ContactContent(std::move(content))
{
    m_properties.reserve(static_cast<int>(propertyList.size()));
    for (PRContactProperty& property : propertyList) {
        m_properties.append(&property);
    }
}

PRContactPrivate::~PRContactPrivate() = default;

PRContactItem::PRContactItem(Record record) : PRAbstractItem(std::move(record))
{
}

PRContactItem::PRContactItem(Record record, ContactContent content)
    : PRAbstractItem(std::move(record)),
      m_content(std::make_unique<PRContactPrivate>(std::move(content)))
{
}

PRContactItem::~PRContactItem() = default;

const PRContactPrivate* PRContactItem::detailContent() const
{
    static const PRContactPrivate empty;
    return m_content ? m_content.get() : &empty;
}
