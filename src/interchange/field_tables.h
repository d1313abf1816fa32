// SPDX-License-Identifier: MIT
#pragma once

#include "interchange/InterchangeLayout.h"
#include "model/PRContactItem.h"
#include "model/PRData.h"

#include <QString>

/// One field of a layout. Tables stand in the order of the file and are closed by a row without
/// key and handler.
template <typename Handler> struct FieldRow {
    QString key;
    Handler handler = nullptr;
};

template <typename Handler, typename Visit>
void forEachField(const FieldRow<Handler>* table, Visit visit)
{
    for (const FieldRow<Handler>* row = table; !row->key.isEmpty(); ++row) {
        visit(*row);
    }
}

/// What is no contact, or not selected, is passed over.
template <typename Visit> void forEachSelectedContact(const PRData& data, Visit visit)
{
    for (int row = 0; row < data.count(1); ++row) {
        auto* const contact = dynamic_cast<PRContactItem*>(data.at(row, true));
        if (contact != nullptr && data.checked(contact)) {
            visit(*contact);
        }
    }
}

template <typename Visit>
void forEachProperty(const PRContactItem& contact, PropType kind, Visit visit)
{
    const QList<PRContactProperty*>& properties = contact.detailContent()->properties();
    for (const PRContactProperty* property : properties) {
        if (property->propType() == kind) {
            visit(*property);
        }
    }
}
