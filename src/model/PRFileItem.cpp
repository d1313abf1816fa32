// SPDX-License-Identifier: MIT
#include "model/PRFileItem.h"

PRFileItem::PRFileItem(Record record, FileContent content)
    : PRAbstractItem(std::move(record)), m_content(std::move(content))
{
}

PRFileItem::~PRFileItem() = default;
