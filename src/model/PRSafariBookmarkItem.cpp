// SPDX-License-Identifier: MIT
#include "model/PRSafariBookmarkItem.h"

PRSafariBookmarkItem::PRSafariBookmarkItem(Record record, QString group)
    : PRAbstractItem(std::move(record)), m_group(std::move(group))
{
}

PRSafariBookmarkItem::~PRSafariBookmarkItem() = default;
