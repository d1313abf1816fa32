// SPDX-License-Identifier: MIT
#pragma once

#include "recordset/recordset.h"
#include "support/temp_tree.h"

#include <QByteArray>

#include <gtest/gtest.h>

/// Loads `json` from a file records.json.
inline formats::Result<recordset::RecordSet> loadText(
    const support::TempTree& tree, const QByteArray& json)
{
    return recordset::load(tree.write("records.json", json));
}

/// A record set with one set of this data type, whose records are the objects in `records`.
inline QByteArray setOf(int dataType, const QByteArray& records)
{
    return R"({"recordSet": 1, "sets": [{"dataType": )" + QByteArray::number(dataType)
           + R"(, "records": [)" + records + "]}]}";
}

/// What went wrong, for the message of an assertion; empty where nothing did.
template <typename Value> std::string errorOf(const formats::Result<Value>& result)
{
    return result.has_value() ? std::string() : result.error().text().toStdString();
}
