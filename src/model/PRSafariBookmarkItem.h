// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRAbstractItem.h"

/// A bookmark or a visit; `value(0)` to `value(2)` are title, address and label.
class DATAEXPORT_EXPORT PRSafariBookmarkItem : public PRAbstractItem {
public:
    explicit PRSafariBookmarkItem(Record record = {}, QString group = {});
    ~PRSafariBookmarkItem() override;

    /// Folder of the entry: empty at top level. "Reading List" and "History" have a fixed place.
    QString bookmarkGroup() const { return m_group; }

private:
    QString m_group;
};
