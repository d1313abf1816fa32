// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRContactItem.h"
#include "model/PRData.h"

#include <QMap>
#include <QString>

#include <memory>
#include <utility>
#include <vector>

/// A property of a plain kind.
inline PRContactProperty plain(int type, const QString& label, const QString& value)
{
    return PRContactProperty({.type = type, .label = label, .value = value});
}

/// A property of a composite kind.
inline PRContactProperty composite(
    int type, const QString& label, const QMap<QString, QString>& entry)
{
    return PRContactProperty({.type = type, .label = label, .entry = entry});
}

/// A contact that holds nothing but these properties.
inline ContactContent holding(std::vector<PRContactProperty> properties)
{
    ContactContent content;
    content.propertyList = std::move(properties);
    return content;
}

inline std::unique_ptr<PRContactItem> contactOf(
    ContactContent content, const QString& name = "Mia", bool selected = true)
{
    return std::make_unique<PRContactItem>(
        Record{.values = {name}, .selected = selected}, std::move(content));
}

/// The selected contacts of these contents, named "1", "2", ...
inline RecordList contactsOf(std::vector<ContactContent> contents)
{
    RecordList records;
    for (ContactContent& content : contents) {
        const auto number = static_cast<int>(records.size()) + 1;
        records.push_back(contactOf(std::move(content), QString::number(number)));
    }
    return records;
}
